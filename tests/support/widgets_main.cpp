#include "runtime/qt_remarks.h"

#include <QApplication>

#include <gtest/gtest.h>

// Forms are tested with clicks and keys on the real widgets, without a screen.
int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    ferna::hushMissingRuntimeFolder();
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
