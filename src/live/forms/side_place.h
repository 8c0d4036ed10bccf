#pragma once

#include <QPointer>
#include <QWidget>

class QBoxLayout;
class QDialog;

namespace ferna {

/// A place at the right of a form for a panel: the form grows by the panel and is as wide as before
/// when it is taken away. What is on the form stays as it is.
class SidePlace {
public:
    /// The form's own layout moves as a whole into a widget of its own, its menus stay above.
    explicit SidePlace(QDialog* form);

    /// Puts the panel there, so wide, and shows it. The form moves to the left where the screen
    /// ends.
    void put(QWidget* panel, int width);
    /// Takes the panel away; it has no parent then and is hidden. Its width.
    int take();

    bool holds(const QWidget* panel) const { return panel_ == panel && panel != nullptr; }

private:
    QDialog* form_;
    QBoxLayout* row_; ///< the form's own content and the panel
    QPointer<QWidget> panel_;
    int widthAlone_ = 0; ///< of the form without the panel
};

} // namespace ferna
