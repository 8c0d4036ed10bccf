#include "combinations/answered_table.h"

#include "runtime/format.h"

#include <algorithm>
#include <cmath>

namespace ferna::combinations {

namespace {

/// A text as a cell of CSV; the marks that a spreadsheet would take for a formula's begin are
/// quoted.
QString cellText(QString text) {
    const bool needsMarks = text.contains(u';') || text.contains(u'"') || text.contains(u'\n');
    if (!needsMarks)
        return text;
    return u'"' + text.replace(u'"', QStringLiteral("\"\"")) + u'"';
}

QString failedChecks(const Utilisation& answer) {
    QStringList failed;
    for (const Check check : allChecks)
        if (answer.of(check) > 1)
            failed += nameOf(check) + u' ' + useText(answer.of(check));
    return failed.isEmpty() ? QString()
                            : QStringLiteral("niespełnione: ") + failed.join(QStringLiteral(", "));
}

QString csvLine(const AnsweredTable& table, RowNumber number) {
    QStringList cells{QString::number(number)};
    const Combination* const one = table.combination(number);
    cells += cellText(one ? one->name : std::get<Refusal>(table.row(number)).name);
    if (one)
        for (const Double load :
             {one->load.N, one->load.M1, one->load.M2, one->shear.Vx, one->shear.Vy})
            cells += general(load);
    else
        cells += QStringList(loads.size());
    const bool hasUse = table.isAnswered(number) && table.answer(number);
    for (const Check check : allChecks)
        cells += hasUse && std::isfinite(table.answer(number)->of(check))
                     ? Format(table.answer(number)->of(check), u"0.0000")
                     : QString();
    cells += hasUse && table.answer(number)->anchor > 0
                 ? QString::number(table.answer(number)->anchor)
                 : QString();
    cells += cellText(remarkOn(table, number));
    return cells.join(u';') + QStringLiteral("\r\n");
}

} // namespace

void AnsweredTable::add(ReadRow row) {
    if (std::holds_alternative<Refusal>(row))
        ++refused_;
    rows_.push_back(std::move(row));
}

void AnsweredTable::forgetAnswers() {
    answers_.clear();
    choice_ = {};
}

bool AnsweredTable::answerNext(const Evaluator& evaluator, std::size_t count) {
    const std::size_t end = std::min(rows_.size(), answers_.size() + count);
    answers_.reserve(rows_.size());
    while (answers_.size() < end) {
        const auto* const one = std::get_if<Combination>(&rows_[answers_.size()]);
        answers_.push_back(one ? evaluator.answer(*one) : std::nullopt);
        if (one)
            choice_.add(static_cast<RowNumber>(answers_.size()), answers_.back());
    }
    return answers_.size() < rows_.size();
}

std::vector<RowNumber> AnsweredTable::governing(Check check) const {
    std::vector<RowNumber> rows;
    const Double most = choice_.envelope(check);
    if (!(most > 0))
        return rows;
    for (RowNumber number = 1; number <= static_cast<RowNumber>(answers_.size()); ++number)
        if (isAnswered(number) && !isLarger(most, useOf(answer(number), check)))
            rows.push_back(number);
    return rows;
}

QString nameOf(Check check) {
    switch (check) {
    case Check::Concrete:
        return QStringLiteral("beton");
    case Check::Tension:
        return QStringLiteral("rozciąganie");
    case Check::Shear:
        return QStringLiteral("ścinanie");
    case Check::Interaction:
        break;
    }
    return QStringLiteral("interakcja");
}

QString useText(Double use) {
    constexpr Double most = 1e4; // beyond it only that it is very much
    if (!std::isfinite(use))
        return QStringLiteral("∞");
    return use < most ? Format(use, u"0.00") : QStringLiteral("> 10000");
}

QString remarkOn(const AnsweredTable& table, RowNumber number) {
    const Combination* const one = table.combination(number);
    if (!one)
        return QStringLiteral("odrzucony: ") + std::get<Refusal>(table.row(number)).text;
    if (!table.isAnswered(number))
        return {};
    const auto& answer = table.answer(number);
    QStringList remarks;
    if (!answer)
        remarks += QStringLiteral("brak równowagi: słup się przewraca");
    else
        remarks += failedChecks(*answer);
    if (one->load.N < 0)
        remarks += QStringLiteral("N < 0: Oblicz odmówi");
    remarks.removeAll(QString());
    return remarks.join(QStringLiteral("; "));
}

QByteArray answersAsCsv(const AnsweredTable& table) {
    QString text = QStringLiteral("\uFEFFwiersz;nazwa;N [kN];M1 [kNm];M2 [kNm];Vx [kN];Vy [kN];"
                                  "beton;rozciąganie;ścinanie;interakcja;kotwa;uwagi\r\n");
    for (RowNumber number = 1; number <= static_cast<RowNumber>(table.size()); ++number)
        text += csvLine(table, number);
    return text.toUtf8();
}

} // namespace ferna::combinations
