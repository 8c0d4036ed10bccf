#include "runtime/qt_remarks.h"
#include "support/own_settings.h"
#include "windows/application.h"

#include <QApplication>
#include <QFont>
#include <QFontInfo>

#include <gtest/gtest.h>

#include <cstdio>

namespace {

/// The face of the interface in every test, so that sizes and pictures mean the same everywhere.
/// False where it is not installed.
bool pinInterfaceFont() {
    const QString face = QStringLiteral("DejaVu Sans"); // of fonts-dejavu-core
    constexpr int points = 9;
    QApplication::setFont(QFont(face, points));
    return QFontInfo(QApplication::font()).family() == face;
}

} // namespace

// Forms are tested with clicks and keys on the real widgets, without a screen.
int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    ferna::hushMissingRuntimeFolder();
    const ferna::testing::OwnSettings settings;
    QApplication application(argc, argv);
    ferna::dressApplication(application);
    QApplication::setQuitOnLastWindowClosed(false);
    ::testing::InitGoogleTest(&argc, argv);
    if (!pinInterfaceFont()) {
        std::fputs("the face of the interface in tests, DejaVu Sans, is not installed\n", stderr);
        return 1;
    }
    return RUN_ALL_TESTS();
}
