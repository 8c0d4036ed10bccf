#include "batch/report_pictures.h"

#include "runtime/codepage.h"
#include "runtime/text_file.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace ferna::batch {

namespace {

/// True where a file is missing or holds the same bytes as `bytes`.
bool isFreeFor(const QString& file, const QByteArray& bytes) {
    return !QFileInfo::exists(file) || readFileWhole(file) == bytes;
}

/// True where no RTF report but this one lies in its folder.
bool isTheOnlyReport(const QFileInfo& file) {
    const QStringList reports = file.dir().entryList({QStringLiteral("*.rtf")}, QDir::Files);
    return reports == QStringList{file.fileName()};
}

} // namespace

QString picturePrefix(const QString& file) {
    constexpr int digits = 4;
    QString prefix;
    for (const QChar c : QFileInfo(file).completeBaseName())
        if (codepage::holds(c))
            prefix += c;
        else
            prefix += QStringLiteral("_%1").arg(c.unicode(), digits, 16, QLatin1Char('0'));
    return prefix + u'-';
}

RtfPlace placeOfRtfPictures(const QString& file, const QStringList& pictures, const QString& made) {
    const QFileInfo report(file);
    const QString beside = report.absolutePath();
    const QString own =
        report.absoluteDir().filePath(report.completeBaseName() + QStringLiteral("-rysunki"));
    const auto isFree = [&](const QString& picture) {
        return isFreeFor(beside + u'/' + picture, readFileWhole(made + u'/' + picture));
    };
    if (!QFileInfo(own).isDir()
        && (std::all_of(pictures.begin(), pictures.end(), isFree) || isTheOnlyReport(report)))
        return {beside, false, {}};
    return {own, true, own + u'/' + report.fileName()};
}

void copyPictures(const QStringList& pictures, const QString& from, const QString& to,
                  const QString& prefix) {
    for (const QString& picture : pictures)
        writeFileWhole(to + u'/' + prefix + picture, readFileWhole(from + u'/' + picture));
}

} // namespace ferna::batch
