#include "widgets/qt_dialogs.h"

#include "design/typed_names.h"
#include "widgets/codepage_note.h"
#include "widgets/number_field.h"
#include "windows/save_question.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace ferna {

namespace {

QMessageBox::Icon iconOf(MessageStyle style) {
    switch (style) {
    case MessageStyle::Stop:
        return QMessageBox::Critical;
    case MessageStyle::Question:
        return QMessageBox::Question;
    case MessageStyle::Exclamation:
        return QMessageBox::Warning;
    case MessageStyle::Information:
        return QMessageBox::Information;
    case MessageStyle::Plain:
        break;
    }
    return QMessageBox::NoIcon;
}

/// The window that a box stands over. No window is active for the moment in which one box has gone
/// and the next one comes.
QWidget* owner() {
    if (QWidget* const modal = QApplication::activeModalWidget())
        return modal;
    if (QWidget* const active = QApplication::activeWindow())
        return active;
    for (QWidget* const window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->windowType() == Qt::Window)
            return window;
    return nullptr;
}

} // namespace

void QtDialogs::message(const QString& text, const QString& title, MessageStyle style) {
    QMessageBox box(iconOf(style), title, text, QMessageBox::NoButton, owner());
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(box.addButton(QStringLiteral("OK"), QMessageBox::AcceptRole));
    box.exec();
}

bool QtDialogs::confirm(const QString& text, const QString& title) {
    QMessageBox box(QMessageBox::Question, title, text, QMessageBox::NoButton, owner());
    box.setTextFormat(Qt::PlainText);
    const QPushButton* const yes = box.addButton(QStringLiteral("&Tak"), QMessageBox::YesRole);
    QPushButton* const no = box.addButton(QStringLiteral("&Nie"), QMessageBox::NoRole);
    box.setDefaultButton(no);
    box.setEscapeButton(no);
    box.exec();
    return box.clickedButton() == yes;
}

QString QtDialogs::input(const QString& prompt, const QString& title, const QString& preset,
                         std::optional<QPoint> position, const NoteOf& noteOf) {
    QDialog box(owner());
    box.setObjectName(QStringLiteral("inputBox"));
    box.setWindowTitle(title);
    auto* const text = new QLineEdit(preset);
    text->selectAll();
    keepTablesOfNumbersOut(text);
    auto* const label = new QLabel(prompt);
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(text);
    auto* const note = new QLabel;
    showNote(text, note, noteOf ? noteOf : lettersNote);
    auto* const buttons = new QDialogButtonBox;
    buttons->addButton(QStringLiteral("OK"), QDialogButtonBox::AcceptRole)->setDefault(true);
    buttons->addButton(QStringLiteral("&Anuluj"), QDialogButtonBox::RejectRole);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &box, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &box, &QDialog::reject);
    auto* const layout = new QVBoxLayout(&box);
    layout->addWidget(label);
    layout->addWidget(text);
    layout->addWidget(note);
    layout->addWidget(buttons);
    box.setMinimumWidth(box.fontMetrics().horizontalAdvance(QString(48, u'x')));
    if (position)
        box.move(*position);
    return box.exec() == QDialog::Accepted ? text->text() : QString();
}

std::optional<QString> QtDialogs::saveFile(const SaveQuestion& question) {
    SaveSurroundings surroundings;
    surroundings.parent = QApplication::activeWindow();
    return askWhereToSave(question, surroundings);
}

} // namespace ferna
