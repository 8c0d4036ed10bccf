#pragma once

#include <QList>
#include <QWidget>

#include <functional>

namespace ferna {

/// The fields of a form whose leaving brings something: what that is runs once the click or the
/// dialog that took the focus is over.
class LeftFields : public QObject {
    Q_OBJECT

public:
    /// `leave` runs what the leaving of a field brings; its error says that the field cannot be
    /// left.
    LeftFields(QWidget* form, std::function<void(QWidget*)> leave);

    void watch(QWidget* field);

    /// Runs what is due now. A field that cannot be left gets the focus back, and its error comes
    /// through.
    void settle();

    /// What the leaving of this field brings is not due any more.
    void taken(QWidget* field) { left_.removeAll(field); }
    /// Nothing is due any more.
    void forget() { left_.clear(); }

    /// Gives the focus back to a field that could not be left; the field that loses it is not left.
    void returnTo(QWidget* field);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void settleWhenFree();

    QWidget* form_;
    std::function<void(QWidget*)> leave_;
    QList<QWidget*> left_;   ///< left, and what that brings has not run yet
    bool returning_ = false; ///< the focus goes back to a field that could not be left
};

} // namespace ferna
