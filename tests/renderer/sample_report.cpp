#include "renderer/sample_report.h"

#include "runtime/text_file.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>

namespace ferna::testing {

namespace {

constexpr double step = 4.5; // mm between body lines

QString decimal(double y) {
    return QString::number(y, 'f', 1);
}

} // namespace

SampleReport::SampleReport(QString folder) : folder_(std::move(folder)) {}

QString SampleReport::path(const QString& name) const {
    return QDir(folder_).filePath(name);
}

QStringList SampleReport::frame(int page) const {
    QStringList lines{QStringLiteral("14,178.,0.,0"),  QStringLiteral("14,178.,0.1,1"),
                      QStringLiteral("14,0.,0.,0"),    QStringLiteral("14,177.,0.,1"),
                      QStringLiteral("14,177.,30.,1"), QStringLiteral("14,0.,30.,1"),
                      QStringLiteral("14,0.,0.,1"),    QStringLiteral("14,0.,15.,0"),
                      QStringLiteral("14,177.,15.,1"), QStringLiteral("14,143.,15.,0"),
                      QStringLiteral("14,143.,30.,1")};
    const auto title = [&](const char* y, const QString& text) {
        lines << QStringLiteral("3,3.,%1,1,,3.5,1.,0.,0,0,0,400,5").arg(QLatin1String(y)) << text;
    };
    title("4.5", QStringLiteral("Zakotwienie słupów stalowych wg PN-B-03215:1999 oraz "
                                "PN-B-03264:1999"));
    title("9.", {});
    title("13.5", {});
    title("19.0", projectName);
    title("23.5", QStringLiteral("17/05/26     09:41"));
    title("28.0", QStringLiteral("Stopa fundamentowa SF-12"));
    lines << QStringLiteral("13,147.,23.5,1,,3.5,1.,0.,0,0,0,400,5")
          << QStringLiteral("Strona ") + (page == 0 ? QString() : QString::number(page))
          << QStringLiteral("3, 3., 55.") << QStringLiteral(" ") << QStringLiteral("9,5.");
    return lines;
}

void SampleReport::line(double y, const QString& text) {
    body_ << QStringLiteral("3,7.0,%1,1,,3.2,1.,0.,0,0,0,400,5").arg(decimal(y)) << text;
}

void SampleReport::underlined(double y, const QString& text) {
    body_ << QStringLiteral("3,7.0,%1,1,,3.2,1.,0.,0,1,0,400,5").arg(decimal(y)) << text;
}

void SampleReport::exceedance(double y, const QString& text, const QString& value) {
    line(y, text);
    body_ << QStringLiteral("3,,,1,,3.2,1.,0.,0,0,0,400,2") << QStringLiteral("w")
          << QStringLiteral("3,,@1,1,,3.2,1.,0.,0,0,0,400,5") << QStringLiteral("d")
          << QStringLiteral("3,,@-1,1,,3.2,1.,0.,0,0,0,400,5") << value;
}

void SampleReport::picture(double x, double y, double width, double height, const QString& file) {
    makePicture(file, width, height);
    body_ << QStringLiteral("5, %1., %2, %3, %4")
                 .arg(static_cast<int>(x))
                 .arg(decimal(y), decimal(width), decimal(height))
          << QDir::toNativeSeparators(path(file));
}

void SampleReport::newPage() {
    body_ << QStringLiteral("10");
    body_ += frame(1);
}

double SampleReport::calculation(int anchors, int cases, int resultLines) {
    double y = 85;
    const auto add = [&](const QString& text) {
        line(y, text);
        y += step;
    };
    picture(10, 35, 52.9, 34.7, QStringLiteral("Ferogo2.bmp"));
    picture(75, 35, 70.1, 46.6, QStringLiteral("Ferrob.bmp"));
    add(QStringLiteral("Długość płyty x =    600 mm"));
    add(QStringLiteral("Szerokość płyty y =    400 mm"));
    add(QStringLiteral("Beton B20 (stopa żelbetowa)       Eb =   27000 MPa      E/Eb = 7,59"));
    add(QStringLiteral("Stal kotew: 2St3S  fd =  215 MPa"));
    add(QStringLiteral("Kotwy (nr, średnica, współrzędne względem środka płyty):"));
    for (int i = 1; i <= anchors; ++i)
        add(QStringLiteral("%1     M24     x = %2 mm     y = %3 mm").arg(i).arg(-250 + i).arg(150));
    add(QStringLiteral("Obciążenia:"));
    add(QStringLiteral("                    N                      M1                       M2   "
                       "                 Vx                 Vy"));
    for (int c = 1; c <= cases; ++c)
        add(QStringLiteral("Przypadek  %1      450,00 kN        62,50 kNm         0,00 kNm      "
                           "- 12,00 kN          0,00 kN")
                .arg(c));
    add({});
    add(QStringLiteral("Wyniki obliczeń:"));
    for (int c = 1; c <= cases; ++c) {
        add(QStringLiteral("Przypadek obciążenia nr %1").arg(c));
        picture(125, y - step, 41.1, 27.9, QStringLiteral("fernasz%1.bmp").arg(c));
        add(QStringLiteral("Oś obojętna przez punkty [mm]: A(-112,200), B(-98,-200)"));
        add(QStringLiteral("Kotwy rozciągane (nr, naprężenie, siła):"));
        add({});
        for (int i = 1; i <= resultLines; ++i)
            add(QStringLiteral("%1     %2,41 MPa         %3,8 kN").arg(i).arg(100 + i).arg(40 + i));
        add(QStringLiteral("Największe naprężenie w betonie: 11,27 MPa"));
        exceedance(y, QStringLiteral("Naprężenie >= Rb: dopuszczalne, gdy wsp. docisku min. "),
                   QStringLiteral(" = 1,063"));
        y += step;
        add({});
    }
    return y;
}

double SampleReport::plateSection(double y, const QList<int>& blocks) {
    struct Form {
        double above, width, height;
        int lines;
        double step;
    };
    static const Form forms[] = {{12, 32.3, 35.5, 4, 27}, {0, 32.3, 29.3, 4, 28},
                                 {0, 33.7, 22.3, 5, 23},  {0, 0, 0, 4, 18},
                                 {0, 33.7, 22.3, 5, 23},  {0, 33.7, 22.3, 5, 23},
                                 {0, 33.7, 22.3, 5, 23},  {0, 33.7, 22.3, 6, 27}};
    line(y, {});
    raw({}); // the line break of the text leaves one more empty line
    underlined(y + step, QStringLiteral("Przyjęta grubość blachy podstawy: 28 mm, stal St3S"));
    line(y + 2 * step, {});
    raw({});
    y += 3 * step;
    for (const int block : blocks) {
        const Form& form = forms[block - 1];
        if (form.height > 0)
            picture(135, y - form.above, form.width, form.height,
                    QStringLiteral("Szkic%1.bmp").arg(block));
        for (int i = 0; i < form.lines; ++i)
            line(y + i * step, block == 8 && i == 5
                                   ? QString()
                                   : QStringLiteral("Blok %1: wspornikowy fragment blachy, wiersz "
                                                    "%2, długość ca = 85 mm")
                                         .arg(block)
                                         .arg(i + 1));
        y += form.step;
    }
    return y;
}

double SampleReport::anchorSection(double y) {
    y += 2;
    underlined(
        y, QStringLiteral("Dobrana kotwa: kotwa fajkowa M24 wg katalogu, stal 2, gwint zwykły"));
    for (int i = 2; i <= 6; ++i)
        line(y + (i - 1) * step, QStringLiteral("Średnica zagięcia: %1 mm").arg(20 * i));
    picture(80, y, 91.5, 29, QStringLiteral("Szkick.bmp"));
    raw({});
    y += 6 * step + 6;
    for (int i = 7; i <= 10; ++i, y += step)
        line(y, QStringLiteral("Długość całkowita: %1 mm (zaokrąglona do 50 mm)").arg(100 * i));
    return y;
}

QString SampleReport::write(const QString& mode, int firstPage) const {
    TextFileWriter job, frameFile, bodyFile;
    job.line(mode + QStringLiteral(", 1.0, 0.5, 1.0, ") + QString::number(firstPage));
    job.line(path(QStringLiteral("FERNAPr.wyd")));
    job.line(path(QStringLiteral("FERNAPr1.wyd")));
    for (const QString& text : frame(firstPage)) {
        frameFile.line(text);
        bodyFile.line(text);
    }
    for (const QString& text : body_)
        bodyFile.line(text);
    frameFile.commit(path(QStringLiteral("FERNAPr1.wyd")));
    bodyFile.commit(path(QStringLiteral("FERNAPr.wyd")));
    job.commit(jobPath());
    return jobPath();
}

void SampleReport::makePicture(const QString& file, double width, double height) const {
    constexpr double pixelsPerMm = 12; // 300 dpi
    const QString full = path(file);
    if (QFile::exists(full))
        return;
    QImage image(static_cast<int>(width * pixelsPerMm), static_cast<int>(height * pixelsPerMm),
                 QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF plate = QRectF(image.rect()).adjusted(20, 20, -20, -20);
    painter.setPen(QPen(Qt::lightGray, 3));
    for (int i = 1; i <= 20; ++i)
        painter.drawLine(QPointF(plate.left() + i * plate.width() / 40, plate.top()),
                         QPointF(plate.left() + i * plate.width() / 30, plate.bottom()));
    painter.setPen(QPen(Qt::black, 4));
    painter.drawRect(plate);
    painter.setPen(QPen(Qt::red, 3));
    painter.drawLine(plate.topLeft(), plate.bottomRight());
    painter.end();
    image.save(full, "BMP");
}

} // namespace ferna::testing
