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

void Czytaj_teksty(Stan& stan, const QString& path) {
    const QStringList lines = readLines(path, TextFrom::Editor);
    if (lines.size() < CatalogueLines)
        throw RunTimeError(error::InputPastEnd,
                           QStringLiteral("%1, wiersz %2: katalog ma %3 wierszy")
                               .arg(QDir::toNativeSeparators(path))
                               .arg(lines.size() + 1)
                               .arg(CatalogueLines));
    for (int n = 1; n <= CatalogueLines; ++n)
        stan.Teksty(n) = lines[n - 1];
}

} // namespace ferna
