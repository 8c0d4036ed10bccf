#include "report/title_lines.h"

#include "runtime/run_time_error.h"
#include "runtime/text_file.h"

#include <QDir>
#include <QFileInfo>
#include <QStringDecoder>

#include <algorithm>

namespace ferna {

namespace {

constexpr qsizetype largestTitleFile = 64'000; // bytes
constexpr qsizetype longestTitleLine = 150;    // letters
constexpr std::array standards{"norma_pl", "norma_p2", "norma_gb", "norma_fr", "norma_ge"};
const QString office = QStringLiteral("biuro");

bool isKey(const QString& key) {
    return key == office || std::any_of(standards.begin(), standards.end(), [&](const char* known) {
               return key == QLatin1String(known);
           });
}

[[noreturn]] void refuse(const QString& path, qsizetype line, const QString& why) {
    throw RunTimeError(
        error::DeviceIO,
        QStringLiteral("%1, wiersz %2: %3").arg(QDir::toNativeSeparators(path)).arg(line).arg(why));
}

} // namespace

std::array<QString, 2> titleLines(const QString& folder, Integer Nr_jezyka) {
    if (Nr_jezyka < 0 || Nr_jezyka >= static_cast<int>(standards.size()))
        throw RunTimeError(error::Subscript, QStringLiteral("język nr %1").arg(Nr_jezyka));
    const QString path = folder + u'/' + titleLinesFile;
    if (!QFileInfo::exists(path))
        return {};
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString text = utf8(readFileWhole(path, largestTitleFile));
    if (utf8.hasError())
        refuse(path, 1, QStringLiteral("to nie jest tekst w UTF-8"));
    const QString standard = QString::fromLatin1(standards[static_cast<std::size_t>(Nr_jezyka)]);
    std::array<QString, 2> lines;
    qsizetype number = 0;
    for (const QString& line : text.split(u'\n')) {
        ++number;
        const QString content = line.trimmed();
        if (content.isEmpty() || content.startsWith(u';'))
            continue;
        const qsizetype sign = content.indexOf(u'=');
        const QString key = content.first(qMax(qsizetype{0}, sign)).trimmed();
        if (!isKey(key))
            refuse(path, number, QStringLiteral("nieznany wpis \"%1\"").arg(content));
        const QString value = oneLine(content.mid(sign + 1)).trimmed().left(longestTitleLine);
        if (key == standard)
            lines[0] = value;
        else if (key == office)
            lines[1] = value;
    }
    return lines;
}

const std::array<QString, 2>& TitleLinesStock::lines(Integer Nr_jezyka) {
    const std::lock_guard lock(mutex_);
    const auto known = read_.find(Nr_jezyka);
    return known != read_.end()
               ? known->second
               : read_.emplace(Nr_jezyka, titleLines(folder_, Nr_jezyka)).first->second;
}

} // namespace ferna
