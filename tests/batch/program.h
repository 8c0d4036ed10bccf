#pragma once

#include "support/folder.h"
#include "support/places.h"
#include "support/printing.h"

#include <QProcess>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace ferna::testing {

inline const QByteArray good =
    R"({"Nazwa_projektu": "Hala ż", "Dlug_plyty_mm": 600, "Szer_plyty_mm": 400,)"
    R"("Kotwy": [{"x": -250, "y": -150, "fi": 24}, {"x": 250, "y": 150, "fi": 24}],)"
    R"("Przypadki": [{"N": 50, "M1": 60, "M2": 20, "Vx": 1, "Vy": 0}]})";

/// The built program, driven from outside.
struct Program : ::testing::Test {
    Folder folder;
    QByteArray out;
    QByteArray err;
    QString epoch;

    int call(const QStringList& arguments, const QByteArray& input = {}) {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(QStringLiteral("SOURCE_DATE_EPOCH"));
        if (!epoch.isEmpty())
            environment.insert(QStringLiteral("SOURCE_DATE_EPOCH"), epoch);
        process.setProcessEnvironment(environment);
        process.start(places::bin("/ferna-wsad"), arguments);
        process.write(input);
        process.closeWriteChannel();
        EXPECT_TRUE(process.waitForFinished(120'000));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        out = process.readAllStandardOutput();
        err = process.readAllStandardError();
        return process.exitCode();
    }

    QString task(const QByteArray& text) { return folder.write(QStringLiteral("t.json"), text); }

    QList<QByteArray> stream(const QByteArray& input, const QStringList& more = {},
                             int exitCode = 0) {
        EXPECT_EQ(call(QStringList(QStringLiteral("--linie")) + more, input), exitCode);
        QList<QByteArray> lines = out.split('\n');
        EXPECT_EQ(lines.takeLast(), QByteArray()) << "the last line is ended";
        return lines;
    }
};

} // namespace ferna::testing
