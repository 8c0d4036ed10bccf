#pragma once

#include "support/places.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QString>

#include <gtest/gtest.h>

namespace ferna::testing {

inline QByteArray fileBytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Compares bytes with a golden file, line by line. With FERNA_ACCEPT_GOLDEN set the file is
/// rewritten and the test fails, so that nobody takes it for a passed one.
inline void expectGolden(const QByteArray& bytes, const QString& name) {
    const QString path = places::golden("/") + name;
    if (qEnvironmentVariableIsSet("FERNA_ACCEPT_GOLDEN")) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
        file.write(bytes);
        FAIL() << "rewritten: " << path.toStdString();
    }
    ASSERT_TRUE(QFileInfo::exists(path)) << path.toStdString();
    const QByteArray golden = fileBytes(path);
    const QList<QByteArray> expected = golden.split('\n');
    const QList<QByteArray> actual = bytes.split('\n');
    for (qsizetype i = 0; i < std::min(expected.size(), actual.size()); ++i)
        ASSERT_EQ(actual[i].toStdString(), expected[i].toStdString())
            << name.toStdString() << ", line " << i + 1;
    EXPECT_EQ(actual.size(), expected.size()) << name.toStdString() << ", number of lines";
}

} // namespace ferna::testing
