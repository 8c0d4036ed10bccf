#include "widgets/field_note.h"

#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolTip>

namespace ferna {

namespace {

constexpr int gap = 3; // pixels between the field and its note

/// One note, for as long as it stands.
class FieldNote : public QLabel {
public:
    FieldNote(QWidget* field, const QString& text) : QLabel(text, field->window()), field_(field) {
        setObjectName(QStringLiteral("fieldNote"));
        setTextFormat(Qt::PlainText);
        setMargin(6);
        setFrameStyle(QFrame::Box | QFrame::Plain);
        setAutoFillBackground(true);
        setPalette(QToolTip::palette());
        setBackgroundRole(QPalette::ToolTipBase);
        setForegroundRole(QPalette::ToolTipText);
        setAttribute(Qt::WA_TransparentForMouseEvents);
        field->setAccessibleDescription(text);
        field->installEventFilter(this);
        if (auto* const line = qobject_cast<QLineEdit*>(field))
            connect(line, &QLineEdit::textChanged, this, &FieldNote::go);
        putBesideTheField();
        show();
        raise();
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::FocusOut || event->type() == QEvent::Hide)
            go();
        return false;
    }

private:
    void go() {
        field_->setAccessibleDescription(QString());
        hide();
        deleteLater();
    }

    void putBesideTheField() {
        const QWidget* const form = parentWidget();
        const int widest = form->width() - 2 * gap;
        setWordWrap(sizeHint().width() > widest);
        resize(wordWrap() ? QSize(widest, heightForWidth(widest)) : sizeHint());
        const QPoint corner = field_->mapTo(form, QPoint(0, 0));
        const int under = corner.y() + field_->height() + gap;
        const int y = under + height() <= form->height() ? under : corner.y() - height() - gap;
        move(qBound(gap, corner.x(), qMax(gap, form->width() - width() - gap)), qMax(0, y));
    }

    QWidget* field_;
};

} // namespace

void showFieldNote(QWidget* field, const QString& text) {
    for (QLabel* old : field->window()->findChildren<QLabel*>(QStringLiteral("fieldNote")))
        delete old;
    new FieldNote(field, text); // the form owns it
}

} // namespace ferna
