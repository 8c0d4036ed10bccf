#include "design/language.h"

#include "runtime/text_file.h"

#include <QDir>

#include <array>

namespace ferna {

QString catalogueFile(Integer Nr_jezyka) {
    constexpr std::array<const char*, Languages> files{"Ferpl.txt", "Ferp2.txt", "Fergb.txt",
                                                       "Ferfr.txt", "Ferge.txt"};
    if (Nr_jezyka < 0 || Nr_jezyka >= static_cast<int>(files.size()))
        throw RunTimeError(error::Subscript, QStringLiteral("język nr %1").arg(Nr_jezyka));
    return QString::fromLatin1(files[static_cast<std::size_t>(Nr_jezyka)]);
}

CatalogueTexts catalogueTexts(const QString& path) {
    const QStringList lines = readLines(path, TextFrom::Editor);
    if (lines.size() < CatalogueLines)
        throw RunTimeError(error::InputPastEnd,
                           QStringLiteral("%1, wiersz %2: katalog ma %3 wierszy")
                               .arg(QDir::toNativeSeparators(path))
                               .arg(lines.size() + 1)
                               .arg(CatalogueLines));
    CatalogueTexts texts;
    for (int n = 1; n <= CatalogueLines; ++n)
        texts(n) = lines[n - 1];
    return texts;
}

void Czytaj_teksty(Stan& stan, const QString& path) {
    stan.Teksty = catalogueTexts(path);
}

CatalogueStock::CatalogueStock(QString folder, QString replacement)
    : folder_(std::move(folder)), replacement_(std::move(replacement)) {}

const CatalogueTexts& CatalogueStock::texts(Integer Nr_jezyka) {
    const std::lock_guard lock(mutex_);
    const auto known = read_.find(Nr_jezyka);
    if (known != read_.end())
        return known->second;
    const QString path =
        replacement_.isEmpty() ? folder_ + u'/' + catalogueFile(Nr_jezyka) : replacement_;
    return read_.emplace(Nr_jezyka, catalogueTexts(path)).first->second;
}

} // namespace ferna
