#include "report/zone_sketch.h"

#include "analysis/stan_przypadku.h"
#include "design/sign_class.h"
#include "runtime/format.h"

namespace ferna {

namespace {

constexpr int hatchLines = 20;
constexpr Double stepPerLine = 0.5; // 10 mm per cm over the 20 lines

/// What a sketch needs of its case; lengths of the plate and points in cm.
struct Zone {
    Double L;
    Double B;
    Double a; // point A
    Double b;
    Double c; // point B
    Double d;
    Double X; // corner of the compressed zone
    Double Y;
    Integer shape;
    Integer signs;
};

Zone zoneOf(const Stan& stan, int c) {
    const Wyniki& r = stan.wyniki;
    const Integer signs = stan.obciazenia.Klasa_znaku(c);
    const Signs corner = signsOf(signs);
    const Double L = stan.plyta.Dlugosc_plyty;
    const Double B = stan.plyta.Szerokosc_plyty;
    return {L,
            B,
            r.Przec_a(c),
            r.Przec_b(c),
            r.Przec_c(c),
            r.Przec_d(c),
            corner.x * L / 2,
            corner.y * B / 2,
            r.Typ_strefy_przyp(c),
            signs};
}

/// How far the ends A and B of the hatch line move from one line to the next, mm.
struct HatchSteps {
    QPointF A;
    QPointF B;
};

HatchSteps hatchSteps(const Zone& z) {
    const QPointF aAlongX((z.X - z.a) * stepPerLine, 0);
    const QPointF aAlongY(0, (z.Y - z.b) * stepPerLine);
    const QPointF bAlongX((z.X - z.c) * stepPerLine, 0);
    const QPointF bAlongY(0, (z.Y - z.d) * stepPerLine);
    if (z.signs == 4 && z.shape == zone::Triangle) // departs from its sister classes
        return {{(-z.L / 2 - z.a) * stepPerLine, (-z.B / 2 - z.b) * stepPerLine},
                {(z.L / 2 + z.c) * stepPerLine, (z.B / 2 - z.d) * -stepPerLine}};
    switch (z.shape) {
    case zone::Triangle:
        return {aAlongX, bAlongY};
    case zone::AlongLength:
    case 7:
        return {aAlongY, bAlongY};
    case zone::AlongWidth:
    case 6:
        return {aAlongX, bAlongX};
    case zone::LessTriangle:
        return {aAlongY, bAlongX};
    default:
        return {};
    }
}

/// The half of the plate behind the diagonal, where the zone reaches past the corner.
void Kreskuj(PictureBox& picture, const Zone& z) {
    const Double sx = z.X < 0 ? -1 : 1;
    const Double sy = z.Y < 0 ? -1 : 1;
    for (int j = 1; j <= hatchLines; ++j)
        picture.line({-sx * 5 * z.L + sx * j * z.L / 2, sy * 5 * z.B},
                     {sx * 5 * z.L, -sy * 5 * z.B + sy * j * z.B / 2});
}

void drawHatch(PictureBox& picture, const Zone& z) {
    picture.setColour(qb::Grey);
    picture.setWidth(3);
    if (z.shape == zone::LessTriangle)
        Kreskuj(picture, z);
    const HatchSteps step = hatchSteps(z);
    const QPointF A(10 * z.a, 10 * z.b);
    const QPointF B(10 * z.c, 10 * z.d);
    for (int i = 1; i <= hatchLines; ++i)
        picture.line(A + i * step.A, B + i * step.B);
}

void drawOutline(PictureBox& picture, const Zone& z) {
    picture.setColour(qb::Black);
    picture.setWidth(2);
    picture.box({-5 * z.L, -5 * z.B}, {5 * z.L, 5 * z.B});
}

/// The axis and its end points.
void drawNeutralAxis(PictureBox& picture, const Zone& z) {
    constexpr Double discRadius = 20; // mm
    const QPointF A(10 * z.a, 10 * z.b);
    const QPointF B(10 * z.c, 10 * z.d);
    picture.setColour(qb::LightRed);
    picture.setWidth(1);
    picture.line(A, B);
    picture.setFilled(true);
    picture.setFillColour(qb::LightRed);
    picture.circle(A, discRadius);
    picture.circle(B, discRadius);
    picture.setFilled(false);
}

/// The letters of the axis' ends, drawn towards the plate's centre, over everything else.
void drawLetters(PictureBox& picture, const Zone& z) {
    constexpr Double towardsCentre = 0.75;
    picture.setColour(qb::LightRed);
    picture.setLetterHeight(zoneLetterHeight);
    picture.setBold(true);
    picture.setRim(true);
    picture.text(QPointF(10 * z.a, 10 * z.b) * towardsCentre, QStringLiteral("A"));
    picture.text(QPointF(10 * z.c, 10 * z.d) * towardsCentre, QStringLiteral("B"));
    picture.setRim(false);
    picture.setBold(false);
}

void drawPlateAxes(PictureBox& picture, const Zone& z) {
    picture.setStyle(PictureBox::Style::DashDot);
    picture.setColour(qb::Cyan);
    picture.line({-5.25 * z.L, 0}, {5.25 * z.L, 0});
    picture.line({0, -5.25 * z.B}, {0, 5.25 * z.B});
    picture.setStyle(PictureBox::Style::Solid);
}

} // namespace

void drawZone(PictureBox& picture, const Stan& stan, int c) {
    constexpr Double margin = 1.05;
    const Zone z = zoneOf(stan, c);
    const Double W = picture.size().width();
    const Double H = picture.size().height();
    const Double s = qMin(divided(W, z.L * margin * 10), divided(H, z.B * margin * 10));
    const Double halfWidth = W * 0.5 / s;
    const Double halfHeight = H * 0.5 / s;
    picture.setScale({-halfWidth, halfHeight}, {halfWidth, -halfHeight});
    drawHatch(picture, z);
    drawOutline(picture, z);
    drawNeutralAxis(picture, z);
    drawPlateAxes(picture, z);
    drawLetters(picture, z);
    picture.setColour(qb::Grey);
    picture.setFillColour(qb::White);
}

QString zoneSketchFile(int c) {
    return QStringLiteral("fernasz") + general(c) + QStringLiteral(".bmp");
}

void Rysuj_strefe(Raport& raport, const Stan& stan, int c, const QString& path) {
    constexpr qreal printedWidth = 41.1; // mm
    PictureBox picture(zoneSketchSize, printRatio(zoneSketchSize.width(), printedWidth));
    drawZone(picture, stan, c);
    picture.saveBitmap(path, printedWidth);
    raport.Wiersze_strefy(c - 1) = Wiersz_strefy(stan, c);
}

} // namespace ferna
