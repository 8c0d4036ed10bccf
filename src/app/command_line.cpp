#include "app/command_line.h"

#include "runtime/screen.h"

namespace ferna {

namespace {

constexpr int Done = 0;
constexpr int Failed = 1;
constexpr int BadCall = 2;

const QString help =
    QStringLiteral("Wywołanie: ferna [PLIK]\n"
                   "Projektuje zakotwienie słupa stalowego w fundamencie betonowym.\n"
                   "PLIK to zadanie (*.ferna), które program otwiera po starcie.\n"
                   "\n"
                   "Opcje:\n"
                   "  -h, --help     Pokazuje tę pomoc.\n"
                   "  -v, --version  Pokazuje wersję programu.\n"
                   "\n"
                   "Bez okien liczy program ferna-wsad.\n");

Leave refusal(const QString& what, int exitCode) {
    return {QStringLiteral("ferna: %1\n").arg(what), exitCode};
}

} // namespace

std::optional<Leave> answerCall(const QStringList& arguments) {
    const auto asks = [&](const char* brief, const char* full) {
        return arguments.contains(QLatin1String(brief)) || arguments.contains(QLatin1String(full));
    };
    if (asks("-h", "--help"))
        return Leave{help, Done};
    if (asks("-v", "--version"))
        return Leave{QStringLiteral("ferna " FERNA_VERSION "\n"), Done};
    if (!hasScreen() && !arguments.contains(u"-platform"))
        return refusal(QStringLiteral("program wymaga ekranu; bez okien liczy ferna-wsad"), Failed);
    return std::nullopt;
}

std::optional<Leave> refuseArguments(const QStringList& left) {
    const bool isFile = !left.isEmpty() && !left[0].startsWith(u'-');
    const qsizetype first = isFile ? 1 : 0;
    if (left.size() == first)
        return std::nullopt;
    return refusal(QStringLiteral("nieznany argument \"%1\" (patrz ferna --help)").arg(left[first]),
                   BadCall);
}

} // namespace ferna
