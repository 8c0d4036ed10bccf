#pragma once

#include "support/places.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QStringList>

namespace ferna::testing {

struct Outcome {
    int exitCode = -1;
    QString errors; ///< standard error
    QString output;
};

/// Runs a program to its end, at most a minute; exit code -1 where it cannot be started.
inline Outcome
runProgram(const QString& program, const QStringList& arguments,
           const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment()) {
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    constexpr int minute = 60000;
    if (!process.waitForStarted() || !process.waitForFinished(minute))
        return {};
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            QString::fromUtf8(process.readAllStandardError()),
            QString::fromUtf8(process.readAllStandardOutput())};
}

inline Outcome
runRenderer(const QStringList& arguments,
            const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment()) {
    return runProgram(places::bin("/Wyd_drk"), arguments, environment);
}

/// The text of a page of a PDF file, page from 1.
inline QString pdfText(const QString& path, int page) {
    const QString number = QString::number(page);
    return runProgram(QStringLiteral("pdftotext"),
                      {QStringLiteral("-f"), number, QStringLiteral("-l"), number,
                       QStringLiteral("-layout"), path, QStringLiteral("-")})
        .output;
}

} // namespace ferna::testing
