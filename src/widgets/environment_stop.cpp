#include "widgets/environment_stop.h"

#include "runtime/dialogs.h"
#include "runtime/run_time_error.h"
#include "widgets/field_place.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

#include <optional>

namespace ferna {

namespace {

/// The end of the program loses what was typed: it is asked about once more.
bool endsReally(QWidget* box) {
    QMessageBox question(QMessageBox::Warning, programTitle,
                         QStringLiteral("Zakończyć program bez zapisania konfiguracji?"),
                         QMessageBox::NoButton, box);
    question.setObjectName(QStringLiteral("endQuestion"));
    const QPushButton* const yes = question.addButton(QStringLiteral("&Tak"), QMessageBox::YesRole);
    QPushButton* const no = question.addButton(QStringLiteral("&Nie"), QMessageBox::NoRole);
    question.setDefaultButton(no);
    question.setEscapeButton(no);
    question.exec();
    return question.clickedButton() == yes;
}

/// True where the engineer goes back to the program, into the field that the error stands in;
/// otherwise the program's end is under way.
bool stop(QWidget* form, const RunTimeError& failure, const QString& whatComes) {
    QLineEdit* const field = fieldOf(form, failure.value());
    QMessageBox box(
        QMessageBox::Critical, programTitle,
        QStringLiteral("Błąd wykonania '%1':\n%2").arg(failure.number()).arg(failure.text())
            + (field ? QStringLiteral("\nPole: ") + placeOf(field) : QString()),
        QMessageBox::NoButton, form);
    box.setObjectName(QStringLiteral("environmentStop"));
    box.setTextFormat(Qt::PlainText);
    QPushButton* const back =
        box.addButton(QStringLiteral("&Wróć do programu"), QMessageBox::RejectRole);
    QPushButton* const end =
        box.addButton(QStringLiteral("&Zakończ program"), QMessageBox::DestructiveRole);
    end->setAutoDefault(false); // Enter means the way back wherever the focus is
    box.setDefaultButton(back);
    box.setEscapeButton(back);
    box.setInformativeText(whatComes
                           + QStringLiteral("\nZakończenie programu nie zapisuje konfiguracji."));
    do {
        box.exec();
    } while (box.clickedButton() == end && !endsReally(form));
    if (box.clickedButton() == end) {
        QCoreApplication::exit(1);
        return false;
    }
    if (field)
        goTo(field);
    return true;
}

std::optional<RunTimeError> failureOf(const std::function<void()>& step) {
    try {
        step();
        return std::nullopt;
    } catch (const RunTimeError& failure) {
        return failure;
    } catch (const std::exception& failure) {
        return RunTimeError(error::Internal, QString::fromUtf8(failure.what()));
    }
}

} // namespace

bool guarded(QWidget* form, const std::function<void()>& handler) {
    const auto failure = failureOf(handler);
    if (failure)
        stop(form, *failure,
             QStringLiteral("Polecenie zostało przerwane. Po powrocie wpisane dane pozostają bez "
                            "zmian."));
    return !failure;
}

bool goesOnWithout(QWidget* form, const std::function<void()>& step, const QString& whatComes) {
    const auto failure = failureOf(step);
    return !failure || stop(form, *failure, whatComes);
}

} // namespace ferna
