#include "input/plate_drawing.h"

#include "runtime/format.h"

namespace ferna {

namespace {

Integer scaleBarLength(qreal Hw) {
    return Hw > 1000 ? 1000 : Hw > 100 ? 100 : 50;
}

QPointF scaleBarStart(qreal Hw, qreal Hh) {
    return {-0.94 * Hw, -0.92 * Hh};
}

void drawScaleBar(PictureBox& picture, qreal Hw, qreal Hh) {
    const Integer D = scaleBarLength(Hw);
    const QPointF start = scaleBarStart(Hw, Hh);
    const QPointF end = start + QPointF(D, 0);
    picture.setWidth(1);
    picture.setFilled(true);
    picture.circle(start, 0.02 * Hw);
    picture.circle(end, 0.02 * Hw);
    picture.setFilled(false);
    picture.line(start, end);
}

/// Drawn behind the outline, over which its rim may reach.
void drawScaleText(PictureBox& picture, qreal Hw, qreal Hh) {
    const QPointF start = scaleBarStart(Hw, Hh);
    picture.text({start.x(), 0.8 * start.y()}, general(scaleBarLength(Hw)) + QStringLiteral(" mm"));
}

void drawAxes(PictureBox& picture, qreal Hw, qreal Hh) {
    picture.setStyle(PictureBox::Style::Dotted);
    picture.setColour(qb::Cyan);
    for (const QPointF end : {QPointF(Int(0.9 * Hw), 0), QPointF(Int(-0.9 * Hw), 0),
                              QPointF(0, Int(0.9 * Hh)), QPointF(0, Int(-0.9 * Hh))})
        picture.line({0, 0}, end);
    picture.setStyle(PictureBox::Style::Solid);
    const QString x = QStringLiteral("x");
    const QString y = QStringLiteral("y");
    picture.text({-Int(0.92 * Hw), 0.2 * Hh}, x);
    picture.text({Int(0.92 * Hw), 0.2 * Hh}, x);
    picture.text({0.02 * Hw, -Int(0.75 * Hh)}, y);
    picture.text({0.02 * Hw, Int(0.98 * Hh)}, y);
}

void drawAnchors(PictureBox& picture, const Plyta_i_kotwy& plate) {
    picture.setBold(true);
    for (int i = 1; i <= plate.Liczba_srub; ++i) {
        const QPointF centre(plate.X_kotwy(i) * 10.0, plate.Y_kotwy(i) * 10.0);
        const qreal radius = plate.Fi_kotwy(i) / 2.0;
        picture.setColour(qb::Black);
        picture.circle(centre, radius);
        picture.setColour(qb::LightRed);
        picture.text(centre + QPointF(radius, 0), general(i));
    }
    picture.setColour(qb::Black);
    picture.setBold(false);
}

} // namespace

QSizeF plateHalfExtent(QSize size, const Plyta_i_kotwy& plate) {
    Single LX = plate.Dlugosc_plyty;
    Single LY = plate.Szerokosc_plyty;
    for (int i = 1; i <= plate.Liczba_srub; ++i) {
        LX = qMax(LX, CSng(2.0 * plate.X_kotwy(i)));
        LY = qMax(LY, CSng(2.0 * plate.Y_kotwy(i)));
    }
    const Integer W = CInt(size.width());
    const Integer H = CInt(size.height());
    const Single sx = CSng(divided(W, LX * 1.3 * 10));
    const Single sy = CSng(divided(H, LY * 1.3 * 10));
    const Single s = sx <= sy ? sx : sy;
    return {CSng(W * 0.5 / s), CSng(H * 0.5 / s)};
}

void drawPlate(PictureBox& picture, const Plyta_i_kotwy& plate) {
    const QSizeF half = plateHalfExtent(picture.size(), plate);
    const qreal Hw = half.width();
    const qreal Hh = half.height();
    picture.setScale({-Hw, Hh}, {Hw, -Hh});
    picture.setColour(qb::Black);
    picture.setFillColour(qb::Black);
    picture.setRim(true);
    drawScaleBar(picture, Hw, Hh);
    drawAxes(picture, Hw, Hh);
    picture.setColour(qb::Black);
    picture.setWidth(2);
    const QPointF corner(plate.Dlugosc_plyty * 10.0 / 2, plate.Szerokosc_plyty * 10.0 / 2);
    picture.box(corner, -corner);
    picture.setWidth(1);
    drawScaleText(picture, Hw, Hh);
    drawAnchors(picture, plate);
}

bool Rysuj_P3(PictureBox& picture, Stan& stan, const InputFields& fields, Dialogs& dialogs) {
    try {
        picture.clear();
        Czytaj_plyte(stan, fields);
        drawPlate(picture, stan.plyta);
        return true;
    } catch (const RunTimeError& failure) {
        const QString text = failure.number() == error::TypeMismatch
                                 ? errorText(error::TypeMismatch)
                                 : Format(failure.number(), u"#####") + QStringLiteral("K3!!");
        dialogs.message(text, programTitle, MessageStyle::Exclamation);
        return false;
    }
}

bool savePlatePicture(Stan& stan, const InputFields& fields, Dialogs& dialogs,
                      const QString& path) {
    constexpr qreal printedWidth = 70.1; // mm, in the report
    PictureBox picture(platePictureSize, printRatio(platePictureSize.width(), printedWidth));
    const bool drawn = Rysuj_P3(picture, stan, fields, dialogs);
    picture.saveBitmap(path);
    return drawn;
}

} // namespace ferna
