#pragma once

#include "editing/forms/anchor_model.h"
#include "editing/forms/anchor_picture.h"
#include "editing/forms/anchor_table.h"
#include "editing/forms/anchors_beside_the_list.h"
#include "input/plate_drawing.h"
#include "support/main_form.h"
#include "widgets/picture_view.h"

#include <QClipboard>
#include <QComboBox>

namespace ferna::testing {

/// The tab of the anchors with four of them, M30 at (+-250, +-150) on a plate of 600 x 400 mm.
class WorkedAnchors : public MainForm {
protected:
    void prepare() override { table = anchorsBesideTheList(*form, stan); }

    void SetUp() override {
        MainForm::SetUp();
        type("Text3", QStringLiteral("600"));
        type("Text4", QStringLiteral("400"));
        show(Sruby);
        add("cmdDodaj4", 30, 250, 150);
        drawing = the<PictureView>("Picture3");
    }

    /// The told list, a line an anchor.
    QString line(int anchor) const { return anchorList().value(anchor - 1); }

    static QString listed(int number, int fi, int x, int y) {
        return QStringLiteral("%1.   M%2  x=%3 mm  y=%4 mm").arg(number).arg(fi).arg(x).arg(y);
    }

    editing::Anchors chosen() const { return table->chosen(); }

    /// Where a place of the plate, mm, is on the drawing.
    QPoint at(qreal x, qreal y) const {
        const QRectF place = drawing->drawingPlace();
        const qreal scale =
            place.width() / 2 / plateHalfExtent(platePictureSize, *form->drawnPlate()).width();
        return (place.center() + QPointF(x, -y) * scale).toPoint();
    }

    void clickAt(qreal x, qreal y, Qt::KeyboardModifiers modifiers = {}) {
        QTest::mouseClick(drawing, Qt::LeftButton, modifiers, at(x, y));
        settle();
    }

    /// The middle of a cell of the table, in its viewport.
    QPoint cell(int anchor, int column) const {
        return table->visualRect(table->model()->index(anchor - 1, column)).center();
    }

    AnchorTable* table = nullptr;
    PictureView* drawing = nullptr;
};

} // namespace ferna::testing
