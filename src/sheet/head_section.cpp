#include "sheet/sections.h"

#include <QRegularExpression>

#include <algorithm>

namespace ferna::sheet {

namespace {

Table subjectTable(const Maker& maker) {
    const SheetInput& input = maker.input();
    const auto row = [&](const char* key, const QString& value) {
        return Row{cell(maker.text()(QString::fromLatin1(key))), cell(rich(value))};
    };
    Table table;
    table.columns = {{Column::Align::Left, 1}, {Column::Align::Left, 3.2}};
    table.rows = {row("head.project", input.project), row("head.label", input.record.label()),
                  row("head.program", input.program),
                  row("head.date", input.now.toString(QStringLiteral("yyyy-MM-dd  HH:mm"))),
                  row("head.norms", input.stan.opcje.Nr_normy == 0
                                        ? QStringLiteral("PN-B-03215:1999, PN-84/B-03264")
                                        : QStringLiteral("PN-B-03215:1999, PN-B-03264:1999"))};
    return table;
}

/// The exact equilibrium stands in for the search, and every box that the program has shown is
/// quoted.
void tellThatTheSearchFailed(Maker& maker) {
    const bool anyExact = std::any_of(maker.cases.begin(), maker.cases.end(),
                                      [](const CaseSheet& one) { return one.exact != nullptr; });
    maker.say(anyExact ? QStringLiteral("head.exactOnly") : QStringLiteral("head.nothing"), {},
              Tone::Warning);
    for (const QString& message : maker.input().messages)
        maker.add(Paragraph{rich(message).replace(u'\n', QStringLiteral("<br/>")), Tone::Quote});
}

} // namespace

void addHead(Maker& maker) {
    const Texts& text = maker.text();
    const SheetInput& input = maker.input();
    Sheet& sheet = maker.sheet();
    sheet.language = text.language();
    sheet.program = input.program;
    sheet.title = text(QStringLiteral("head.title"));
    sheet.pageOf = text(QStringLiteral("page"));
    sheet.search = text(QStringLiteral("side.search"));
    sheet.exact = text(QStringLiteral("side.exact"));
    sheet.subject = rich(QStringList{input.project, input.record.label()}
                             .filter(QRegularExpression(QStringLiteral(".")))
                             .join(QStringLiteral(" · ")));
    sheet.made = rich(input.program + QStringLiteral(" · ")
                      + input.now.toString(QStringLiteral("yyyy-MM-dd HH:mm")));
    maker.add(subjectTable(maker));
    maker.add(
        SignatureFields{{text(QStringLiteral("head.author")), text(QStringLiteral("head.checker")),
                         text(QStringLiteral("head.signature"))}});
    if (!input.hasResults)
        tellThatTheSearchFailed(maker);
    maker.say(QStringLiteral("head.reading"), {}, Tone::Small);
}

} // namespace ferna::sheet
