#include "pages/bitmap_file.h"
#include "support/folder.h"
#include "support/printing.h"

#include <QRandomGenerator>

#include <sys/stat.h>

using namespace ferna;
using ferna::testing::Folder;

namespace {

const QString name = QStringLiteral("a.bmp");

QImage colourful(int width, int height, QImage::Format format) {
    QImage image(width, height, format);
    QRandomGenerator dice(7);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            image.setPixel(x, y, dice.generate() | 0xFF000000U);
    return image;
}

/// As the headers alone tell it.
QSize sizeBy(const QByteArray& file) {
    return bitmapSize(file.first(qMin(file.size(), bitmapHeaders)), file.size());
}

TEST(PictureFile, IsThePictureThatTheToolkitReads) {
    const Folder folder;
    for (const int width : {1, 2, 3, 4, 5, 37}) {
        ASSERT_TRUE(colourful(width, 11, QImage::Format_RGB32).save(folder.path(name)));
        const QImage read = readPicture(folder.path(name));
        EXPECT_EQ(read.format(), QImage::Format_RGB32);
        EXPECT_EQ(read, QImage(folder.path(name)).convertToFormat(QImage::Format_RGB32)) << width;
        EXPECT_EQ(sizeBy(folder.read(name)), QSize(width, 11));
    }
}

TEST(PictureFile, OfAnotherKindIsLeftToTheToolkit) {
    const Folder folder;
    for (const char* file : {"a.png", "b.bmp"}) {
        const QString path = folder.path(QLatin1String(file));
        const auto format = *file == 'a' ? QImage::Format_RGB32 : QImage::Format_Grayscale8;
        QImage made(9, 5, format);
        made.fill(Qt::gray);
        ASSERT_TRUE(made.save(path));
        EXPECT_EQ(readPicture(path), QImage(path).convertToFormat(QImage::Format_RGB32)) << file;
        EXPECT_TRUE(sizeBy(folder.read(QLatin1String(file))).isEmpty()) << "left to readPicture";
    }
    QImage clear(3, 3, QImage::Format_ARGB32);
    clear.fill(Qt::transparent);
    ASSERT_TRUE(clear.save(folder.path(QStringLiteral("c.png"))));
    EXPECT_EQ(readPicture(folder.path(QStringLiteral("c.png"))).pixel(1, 1), qRgb(255, 255, 255));
}

TEST(PictureFile, ThatIsDamagedIsNone) {
    const Folder folder;
    ASSERT_TRUE(colourful(20, 20, QImage::Format_RGB32).save(folder.path(name)));
    const QByteArray whole = folder.read(name);
    for (qsizetype length = 0; length < whole.size(); ++length) {
        folder.write(name, whole.first(length));
        EXPECT_TRUE(readPicture(folder.path(name)).isNull()) << length;
        EXPECT_TRUE(sizeBy(whole.first(length)).isEmpty()) << length;
    }
    QRandomGenerator dice(11);
    for (int round = 0; round < 2000; ++round) { // of any header it may only be a picture or none
        QByteArray damaged = whole;
        for (int i = 0; i < 3; ++i)
            damaged[dice.bounded(54)] = static_cast<char>(dice.bounded(256));
        folder.write(name, damaged);
        const QSize told = sizeBy(damaged);
        const QSize read = readPicture(folder.path(name)).size();
        EXPECT_TRUE(told.isEmpty() || told == read) << round;
    }
    ASSERT_EQ(::mkfifo(QFile::encodeName(folder.path(QStringLiteral("f.bmp"))).constData(), 0600),
              0);
    EXPECT_TRUE(readPicture(folder.path(QStringLiteral("f.bmp"))).isNull());
    EXPECT_TRUE(readPicture(folder.path(QStringLiteral("brak.bmp"))).isNull());
}

} // namespace
