#pragma once

#include <QFrame>

#include <functional>

class QLabel;
class QPushButton;
class QToolButton;

namespace ferna {

/// A line above a form that offers or tells something and asks for nothing: a text, where there is
/// one an action, and a cross that takes the line away. Hidden at first.
class QuietLine : public QFrame {
    Q_OBJECT

public:
    explicit QuietLine(QWidget* parent = nullptr);

    /// Shows a text with a button of that caption.
    void offer(const QString& text, const QString& caption, std::function<void()> action);
    /// Shows a text.
    void tell(const QString& text);

    QString text() const;

private:
    QLabel* text_;
    QPushButton* button_;
    QToolButton* away_;
    std::function<void()> action_;
};

} // namespace ferna
