#include "renderer/command_line.h"

namespace ferna::renderer {

namespace {

constexpr int smallestDpi = 20;
constexpr int largestDpi = 1200;

/// Reads one argument after the other.
class CallParser {
public:
    explicit CallParser(const QStringList& arguments) : arguments_(arguments) {}

    /// The fault; empty where there is none.
    QString parse(Call& call) {
        while (next_ < arguments_.size()) {
            const QString argument = arguments_[next_++];
            QString fault =
                argument.startsWith(u"--") ? option(argument.mid(2), call) : job(argument, call);
            if (!fault.isEmpty())
                return fault;
        }
        return call.jobPath.isEmpty() ? QStringLiteral("brak pliku zlecenia") : QString();
    }

private:
    static QString job(const QString& argument, Call& call) {
        if (!call.jobPath.isEmpty())
            return QStringLiteral("zbędny argument \"%1\"").arg(argument);
        if (argument.isEmpty())
            return QStringLiteral("pusta nazwa pliku zlecenia");
        call.jobPath = argument;
        return {};
    }

    QString option(const QString& name, Call& call) {
        const OutputFormat* format = outputFormat(name);
        QString* const property = propertyOf(name, call);
        if (format == nullptr && property == nullptr && name != u"dpi")
            return QStringLiteral("nieznana opcja \"--%1\"").arg(name);
        if (next_ >= arguments_.size() || arguments_[next_].isEmpty())
            return QStringLiteral("brak wartości opcji \"--%1\"").arg(name);
        const QString value = arguments_[next_++];
        if (property != nullptr) {
            *property = value;
            return {};
        }
        if (format == nullptr)
            return dpi(value, call);
        if (call.format != nullptr)
            return QStringLiteral("więcej niż jedna postać wyniku");
        call.format = format;
        call.outputPath = value;
        return {};
    }

    /// The property of the document that an option tells; null for another option.
    static QString* propertyOf(const QString& name, Call& call) {
        return name == u"tytul"   ? &call.title
               : name == u"temat" ? &call.subject
               : name == u"autor" ? &call.author
               : name == u"jezyk" ? &call.language
                                  : nullptr;
    }

    static QString dpi(const QString& value, Call& call) {
        bool good = false;
        call.dpi = value.toInt(&good);
        return good && call.dpi >= smallestDpi && call.dpi <= largestDpi
                   ? QString()
                   : QStringLiteral("rozdzielczość \"%1\" zamiast liczby od %2 do %3")
                         .arg(value)
                         .arg(smallestDpi)
                         .arg(largestDpi);
    }

    const QStringList& arguments_;
    qsizetype next_ = 0;
};

QString explanations() {
    return QStringLiteral(
               "Rysuje strony raportu według poleceń, które wskazuje plik zlecenia.\n"
               "\n"
               "  --pdf PLIK     zapisuje raport jako PDF\n"
               "  --svg PLIK     zapisuje strony jako SVG\n"
               "  --png PLIK     zapisuje strony jako PNG\n"
               "  --emf PLIK     zapisuje strony jako EMF\n"
               "  --dpi N        rozdzielczość PNG, od %1 do %2 (bez opcji %3)\n"
               "  --tytul TEKST, --temat TEKST, --autor TEKST, --jezyk ZNACZNIK\n"
               "                 własności dokumentu PDF; język raportu np. pl-PL\n"
               "  -h, --help     pokazuje tę pomoc\n"
               "  -v, --version  pokazuje wersję\n"
               "\n"
               "Strony raportu, który ma ich kilka, zapisuje jako PLIK-strona-1-z-3.svg\n"
               "i tak dalej.\n"
               "\n"
               "Bez opcji o wyniku decyduje zlecenie. Kody: 0 wykonane, 1 niewykonane,\n"
               "2 złe wywołanie, 3 przerwane przez użytkownika.\n")
        .arg(smallestDpi)
        .arg(largestDpi)
        .arg(Call{}.dpi);
}

} // namespace

std::optional<Call> parseCall(const QStringList& arguments, QString& fault) {
    Call call;
    fault = CallParser(arguments).parse(call);
    return fault.isEmpty() ? std::optional(call) : std::nullopt;
}

QString answerTo(const QStringList& arguments) {
    const QString first = arguments.value(0);
    if (first == u"-h" || first == u"--help")
        return usage() + u'\n' + explanations();
    if (first == u"-v" || first == u"--version")
        return QStringLiteral("Wyd_drk " FERNA_VERSION "\n");
    return {};
}

QString usage() {
    QString formats;
    for (const OutputFormat& format : outputFormats())
        formats += QStringLiteral(" | --%1 PLIK").arg(QLatin1String(format.option));
    return QStringLiteral("Wywołanie: Wyd_drk [%1] [--dpi N] ZLECENIE").arg(formats.mid(3));
}

} // namespace ferna::renderer
