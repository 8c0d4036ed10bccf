#pragma once

#include "support/places.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QStringList>

#include <gtest/gtest.h>

/// What the tests of the help read: its pages as they lie in the data folder.
namespace ferna::testing {

inline const QString helpFolder = places::data("/help");

inline QString textOf(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return QString::fromUtf8(file.readAll());
}

inline QString helpPage(const QString& name) {
    return textOf(helpFolder + u'/' + name);
}

inline QStringList helpPages() {
    return QDir(helpFolder).entryList({QStringLiteral("*.html")}, QDir::Files);
}

/// Every text that the first group of a pattern captures.
inline QStringList captured(const QString& text, const QString& pattern) {
    QStringList found;
    const QRegularExpression expression(pattern, QRegularExpression::DotMatchesEverythingOption);
    for (auto match = expression.globalMatch(text); match.hasNext();)
        found += match.next().captured(1);
    return found;
}

/// HTML as plain text: tags gone, entities resolved, white space as single blanks.
inline QString plain(QString html) {
    html.replace(QStringLiteral("<br>"), QStringLiteral(" "));
    html.remove(QRegularExpression(QStringLiteral("<[^>]*>")));
    html.replace(QStringLiteral("&lt;"), QStringLiteral("<"));
    html.replace(QStringLiteral("&gt;"), QStringLiteral(">"));
    html.replace(QStringLiteral("&amp;"), QStringLiteral("&"));
    return html.simplified();
}

} // namespace ferna::testing
