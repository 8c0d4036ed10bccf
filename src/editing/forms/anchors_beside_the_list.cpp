#include "editing/forms/anchors_beside_the_list.h"

#include "editing/forms/anchor_model.h"
#include "editing/forms/anchor_picture.h"
#include "editing/forms/anchor_table.h"
#include "input/forms/Ferna3.h"
#include "widgets/picture_view.h"

#include <QBoxLayout>

namespace ferna {

AnchorTable* anchorsBesideTheList(Ferna3& form, const Stan& stan) {
    auto* const drawing = form.findChild<PictureView*>(QStringLiteral("Picture3"));
    auto* const tab = drawing->parentWidget();
    auto* const row = qobject_cast<QBoxLayout*>(tab->layout());
    const int place = row->indexOf(drawing);
    auto* const table = new AnchorTable(new AnchorModel(form, stan, &form), tab);
    new AnchorPicture(drawing, table, [&form]() -> const std::optional<Plyta_i_kotwy>& {
        return form.drawnPlate();
    });
    auto* const column = new QVBoxLayout;
    const int stretch = row->stretch(place);
    row->insertLayout(place, column, stretch);
    column->addWidget(drawing, 1);
    column->addWidget(table);
    auto* const list = form.findChild<QWidget*>(QStringLiteral("Text9"));
    QWidget::setTabOrder(list, drawing);
    QWidget::setTabOrder(drawing, table);
    return table;
}

} // namespace ferna
