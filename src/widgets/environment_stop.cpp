#include "widgets/environment_stop.h"

#include "runtime/run_time_error.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QPushButton>

#include <optional>

namespace ferna {

namespace {

/// True where the engineer goes back to the program; otherwise its end is under way.
bool stop(QWidget* form, const RunTimeError& failure, const QString& whatComes) {
    QMessageBox box(
        QMessageBox::Critical, QStringLiteral("Ferna 2005 Pr"),
        QStringLiteral("Błąd wykonania '%1':\n%2").arg(failure.number()).arg(failure.text()),
        QMessageBox::NoButton, form);
    box.setObjectName(QStringLiteral("environmentStop"));
    box.setTextFormat(Qt::PlainText);
    QPushButton* const back =
        box.addButton(QStringLiteral("&Wróć do programu"), QMessageBox::RejectRole);
    const QPushButton* const end =
        box.addButton(QStringLiteral("&Zakończ program"), QMessageBox::DestructiveRole);
    box.setDefaultButton(back);
    box.setEscapeButton(back);
    box.setInformativeText(whatComes
                           + QStringLiteral("\nZakończenie programu nie zapisuje konfiguracji."));
    box.exec();
    if (box.clickedButton() != end)
        return true;
    QCoreApplication::exit(1);
    return false;
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
