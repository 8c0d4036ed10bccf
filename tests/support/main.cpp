#include "runtime/qt_remarks.h"
#include "support/own_settings.h"

#include <QGuiApplication>

#include <gtest/gtest.h>

// The core runs under QGuiApplication without widgets; a leak of widgets into it would not link.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    ferna::hushMissingRuntimeFolder();
    const ferna::testing::OwnSettings settings;
    const QGuiApplication application(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
