#include "windows/application.h"

#include "windows/entered_fields.h"
#include "windows/window_dress.h"

#include <QApplication>
#include <QIcon>
#include <QLibraryInfo>
#include <QTranslator>

namespace ferna {

namespace {

/// Texts of the toolkit: buttons, file and print dialogs, menus of text fields; lists of the help.
void speakPolish(QApplication& application) {
    for (const char* catalogue : {"qtbase_pl", "qt_help_pl"}) {
        auto* const words = new QTranslator(&application);
        if (words->load(QLatin1String(catalogue),
                        QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
            QCoreApplication::installTranslator(words);
    }
}

} // namespace

void dressApplication(QApplication& application) {
    speakPolish(application);
    // The desktop entry and the icon of the windows go by this name.
    QApplication::setDesktopFileName(QStringLiteral("ferna"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/ikony/ferna.svg")));
    selectEnteredFields(application);
    dressWindows(application);
}

} // namespace ferna
