#pragma once

#include <QPointer>
#include <QWidget>

class QBoxLayout;
class QDialog;

namespace ferna {

/// A place at the right of a form for a panel: the form grows by the panel and shrinks when it is
/// taken away. What is on the form stays as it is.
class SidePlace {
public:
    explicit SidePlace(QDialog* form) : form_(form) {}

    /// Puts the panel there, so wide, and shows it. The form moves to the left where the screen
    /// ends.
    void put(QWidget* panel, int width);
    /// Takes the panel away; it has no parent then and is hidden. Its width.
    int take();

    bool holds(const QWidget* panel) const { return panel_ == panel && panel != nullptr; }

private:
    void makeRoom();

    QDialog* form_;
    QBoxLayout* row_ = nullptr; ///< the form's own content and the panel; of the first use
    QPointer<QWidget> panel_;
};

} // namespace ferna
