#include "live/sample_pictures.h"
#include "runtime/qt_remarks.h"

#include <QDir>
#include <QGuiApplication>

#include <cstdio>

// Draws the collection of pictures for the eye: draw_samples FOLDER [RATIO].
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    ferna::hushMissingRuntimeFolder();
    const QGuiApplication application(argc, argv);
    if (argc < 2) {
        std::fputs("draw_samples FOLDER [RATIO]\n", stderr);
        return 2;
    }
    const QString folder = QString::fromLocal8Bit(argv[1]);
    const double ratio = argc > 2 ? QByteArray(argv[2]).toDouble() : 1;
    QDir().mkpath(folder);
    for (const ferna::testing::SamplePicture& sample : ferna::testing::samplePictures()) {
        const QString file =
            folder + u'/' + QString::fromLatin1(sample.name) + QStringLiteral(".png");
        if (!ferna::testing::imageOf(sample.values, sample.options, ratio).save(file)) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(file));
            return 1;
        }
    }
    return 0;
}
