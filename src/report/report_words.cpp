#include "report/report_words.h"

#include "report/report_model.h"
#include "runtime/run_time_error.h"

#include <QRegularExpression>

#include <array>

namespace ferna {

namespace {

constexpr Integer french = 3;

QString utf8(const char* text) {
    return QString::fromUtf8(text);
}

struct Row {
    const char *tag, *title, *subject, *data, *page, *figure, *views, *zone, *anchor;
};

// In the order of the catalogues; the second is Polish in plain letters.
constexpr std::array rows{
    Row{"pl-PL", "Zakotwienie słupa stalowego wg %1 i %2",
        "Obliczenia zakotwienia słupa w stopie fundamentowej", "Dane i obciążenia", "Strona",
        "Rys.", "Podstawa słupa: widok ogólny oraz płyta z kotwami",
        "%1: strefa ściskana i oś obojętna", "Kotwa"},
    Row{"pl-PL", "Zakotwienie slupa stalowego wg %1 i %2",
        "Obliczenia zakotwienia slupa w stopie fundamentowej", "Dane i obciazenia", "Strona",
        "Rys.", "Podstawa slupa: widok ogolny oraz plyta z kotwami",
        "%1: strefa sciskana i os obojetna", "Kotwa"},
    Row{"en-GB", "Anchorage of a steel column to %1 and %2",
        "Calculation of a column's anchorage in its footing", "Data and loads", "Page", "Fig.",
        "Column base: general view, and the plate with its anchors",
        "%1: compression zone and neutral axis", "Anchor"},
    Row{"fr-FR", "Ancrage d'un poteau métallique selon %1 et %2",
        "Calcul de l'ancrage d'un poteau dans sa semelle", "Données et charges", "Page", "Fig.",
        "Pied de poteau : vue générale, et platine avec ses tiges d'ancrage",
        "%1 : zone comprimée et axe neutre", "Tige d'ancrage"},
    Row{"de-DE", "Verankerung einer Stahlstütze nach %1 und %2",
        "Nachweis der Stützenverankerung im Fundament", "Angaben und Belastung", "Seite", "Bild",
        "Stützenfuß: Übersicht, und Fußplatte mit Ankern", "%1: Druckzone und Nulllinie", "Anker"},
};

const Row& rowOf(Integer Nr_jezyka) {
    if (Nr_jezyka < 0 || Nr_jezyka >= static_cast<int>(rows.size()))
        throw RunTimeError(error::Subscript, QStringLiteral("język nr %1").arg(Nr_jezyka));
    return rows[static_cast<std::size_t>(Nr_jezyka)];
}

} // namespace

ReportWords reportWords(Integer Nr_jezyka) {
    const Row& row = rowOf(Nr_jezyka);
    return {utf8(row.tag),    utf8(row.title), utf8(row.subject), utf8(row.data),  utf8(row.page),
            utf8(row.figure), utf8(row.views), utf8(row.zone),    utf8(row.anchor)};
}

QString documentTitle(Integer Nr_jezyka, Integer Nr_normy) {
    return utf8(rowOf(Nr_jezyka).title)
        .arg(QStringLiteral("PN-B-03215:1999"),
             Nr_normy == 0 ? QStringLiteral("PN-84/B-03264") : QStringLiteral("PN-B-03264:1999"));
}

QStringList documentOptions(const ReportModel& report) {
    const ReportWords words = reportWords(report.language);
    QString title = documentTitle(report.language, report.norm);
    const QString project = report.title(4).trimmed();
    if (!project.isEmpty())
        title += QStringLiteral(" - ") + project;
    QStringList options{QStringLiteral("--tytul"), title,
                        QStringLiteral("--temat"), words.subject,
                        QStringLiteral("--jezyk"), words.tag};
    const QString author = report.title(3).trimmed();
    if (!author.isEmpty())
        options += {QStringLiteral("--autor"), author};
    return options;
}

QString fullSpelling(QString line, Integer Nr_jezyka) {
    if (Nr_jezyka != french)
        return line;
    constexpr std::array<std::pair<const char*, const char*>, 5> words{{
        {"entierement", "entièrement"},
        {"diametre", "diamètre"},
        {"Diametre", "Diamètre"},
        {"modele", "modèle"},
        {"a(?= 50 mm\\))", "à"},
    }};
    for (const auto& [bare, full] : words)
        line.replace(QRegularExpression(QStringLiteral("\\b%1\\b").arg(utf8(bare))), utf8(full));
    return line;
}

} // namespace ferna
