#include "desktop/forms/damaged_file_box.h"

#include "runtime/dialogs.h"

#include <QMessageBox>
#include <QPushButton>

namespace ferna {

namespace {

QString offer(const DamagedFile& file) {
    QString start =
        file.isTask ? QStringLiteral("Program może zacząć pracę z ustawieniami początkowymi.")
                    : QStringLiteral("Program może zacząć pracę z dostarczonym katalogiem języka; "
                                     "zadanie w Ferna.cfg pozostaje bez zmian.");
    if (file.keptAs.isEmpty())
        return start;
    return start
           + QStringLiteral(" Uszkodzony plik %1 zostanie zachowany jako %2.")
                 .arg(file.name, file.keptAs);
}

} // namespace

bool wantsDeliveredFile(const DamagedFile& file) {
    QMessageBox box(
        QMessageBox::Critical, programTitle,
        QStringLiteral("Błąd wykonania '%1':\n%2").arg(file.why.number()).arg(file.why.text()));
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(offer(file));
    const QPushButton* const replace =
        box.addButton(file.isTask ? QStringLiteral("&Ustawienia początkowe")
                                  : QStringLiteral("&Dostarczony katalog"),
                      QMessageBox::AcceptRole);
    QPushButton* const end =
        box.addButton(QStringLiteral("&Zakończ program"), QMessageBox::RejectRole);
    box.setDefaultButton(end);
    box.setEscapeButton(end);
    box.exec();
    return box.clickedButton() == replace;
}

} // namespace ferna
