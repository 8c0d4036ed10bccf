#include "runtime/widgets/environment_stop.h"

#include "runtime/run_time_error.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QPushButton>

namespace ferna {

namespace {

void stop(QWidget* form, const RunTimeError& failure) {
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
    box.setInformativeText(QStringLiteral(
        "Polecenie zostało przerwane. Po powrocie wpisane dane pozostają bez zmian.\n"
        "Zakończenie programu nie zapisuje konfiguracji."));
    box.exec();
    if (box.clickedButton() == end)
        QCoreApplication::exit(1);
}

} // namespace

bool guarded(QWidget* form, const std::function<void()>& handler) {
    try {
        handler();
        return true;
    } catch (const RunTimeError& failure) {
        stop(form, failure);
    } catch (const std::exception& failure) {
        stop(form, RunTimeError(error::Internal, QString::fromUtf8(failure.what())));
    }
    return false;
}

} // namespace ferna
