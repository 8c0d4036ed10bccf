#pragma once

#include "live/palette.h"
#include "live/picture_values.h"

#include <QRectF>
#include <QSizeF>

#include <array>

class QPainter;

namespace ferna::live {

/// The words of a picture, so that it can speak the language of a document.
struct PictureWords {
    QString pressure = QStringLiteral("Docisk, MPa");
    QString neutralLine = QStringLiteral("oś obojętna");
    QString tippingAxis = QStringLiteral("oś obrotu");
    QString governingAnchor = QStringLiteral("kotwa miarodajna");
    QString governingCorner = QStringLiteral("największy docisk");
    QString noPressure = QStringLiteral("bez docisku");
    QString noEquilibrium = QStringLiteral("Brak równowagi: słup się przewraca");
    /// In the order of `Check`.
    std::array<QString, 4> checks{QStringLiteral("beton"), QStringLiteral("rozciąganie"),
                                  QStringLiteral("ścinanie"), QStringLiteral("interakcja")};
    QString inCase = QStringLiteral("przyp. %1");  ///< where a value of an envelope comes from
    QString above = QStringLiteral("ponad 999 %"); ///< a utilisation beyond what anyone compares
    /// At the foot; empty: no line there.
    QString view = QStringLiteral("Podgląd według dokładnej równowagi. Raport tworzy Oblicz.");
};

/// How a picture is drawn.
struct PictureOptions {
    QSizeF size{800, 600}; ///< of the whole picture in the painter's units
    Theme theme = Theme::Light;
    bool greyed = false;  ///< the values are those of an earlier input
    QString reason;       ///< why it is greyed; stands across the picture
    int chosenAnchor = 0; ///< shown as chosen, from 1; 0 for none
    qreal letter = 12;    ///< height of the letters in the painter's units
    /// What is to be seen at least, mm, y upwards: so that the scale stays while something is
    /// dragged. Null: plate and anchors.
    QRectF shown;
    PictureWords words;
};

/// Draws plate, anchors, pressures and forces true to scale into the rectangle from (0, 0) to
/// `options.size`, background included, and nothing outside it. Where the values cannot be drawn
/// the background, the title and the reason alone. Sets font, pen and brush of the painter.
void drawPicture(QPainter& painter, const PictureValues& values, const PictureOptions& options);

/// The size that suits a picture of a document at letters of 12 units.
inline constexpr QSizeF pictureSize(800, 600);

} // namespace ferna::live
