// The seven sketches of the plate section: each check has its own, under its own name.
#include "pages/sketch_files.h"
#include "plate/plate_form.h"
#include "plate/plate_report_lines.h"
#include "support/folder.h"
#include "support/places.h"
#include "support/printing.h"

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <gtest/gtest.h>

using namespace ferna;
using namespace ferna::testing;

namespace {

const std::array names{"Szkic1", "Szkic2", "Szkic31", "Szkic32", "Szkic33", "Szkic51", "Szkic52"};

QImage drawn(const QString& svg, QSize size) {
    QSvgRenderer sketch(svg);
    EXPECT_TRUE(sketch.isValid()) << svg.toStdString();
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    sketch.render(&painter);
    return picture;
}

double difference(const QImage& a, const QImage& b) {
    double sum = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            sum += std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y)));
    return sum / (a.width() * a.height());
}

class PlateImages : public ::testing::Test {
protected:
    PlateImages() {
        const QDir programs(places::bin());
        for (const QString& picture : programs.entryList({QStringLiteral("rysgb*.bmp")}))
            QFile::copy(programs.filePath(picture), folder.path(picture));
    }

    /// The sketches of a section in which every check stands.
    PlateSection section() {
        PlateForm form = openPlateForm(stan);
        for (int check = 1; check <= PlateChecks; ++check)
            stan.raport.Spr_blachy(check) = 20;
        form.fields.cmbStalb = 1;
        form.Nr_stali_blachy = 2;
        form.inputs.check4.Nr_profilu = 1;
        form.fields.Text4 = QStringLiteral("20");
        return *writePlateSection(stan, form, dialogs);
    }

    Folder folder;
    Stan stan;
    ScriptedDialogs dialogs;
};

TEST_F(PlateImages, EachCheckSavesItsOwnUnderItsOwnName) {
    const PlateSection written = section();
    ASSERT_EQ(written.sketches.size(), names.size());
    for (std::size_t i = 0; i < names.size(); ++i) {
        const QString name = QLatin1String(names.at(i)) + QStringLiteral(".bmp");
        EXPECT_EQ(QLatin1String(written.sketches[i].file), name);
        savePlateSketch(folder.path(QStringLiteral(".")), written.sketches[i].image,
                        QLatin1String(written.sketches[i].file));
        const QImage saved(folder.path(name));
        ASSERT_FALSE(saved.isNull()) << names.at(i);
        // whose drawing it is
        QString nearest;
        double least = 255;
        for (const char* other : names) {
            const QString source =
                QStringLiteral(":/szkice/%1.svg").arg(QString::fromLatin1(other).toLower());
            const double differs = difference(saved, drawn(source, saved.size()));
            if (differs < least) {
                least = differs;
                nearest = QLatin1String(other);
            }
        }
        EXPECT_EQ(nearest, QLatin1String(names.at(i)));
        EXPECT_LT(least, 5);
    }
}

} // namespace
