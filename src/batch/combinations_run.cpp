#include "batch/combinations_run.h"

#include "batch/json_writer.h"
#include "combinations/choice.h"
#include "combinations/evaluation.h"
#include "combinations/table_reader.h"

namespace ferna::batch {

namespace {

using namespace combinations;

constexpr std::array<const char*, allChecks.size()> checkKeys{"beton", "rozciaganie", "scinanie",
                                                              "interakcja"};

const char* keyOf(Check check) {
    return checkKeys.at(static_cast<std::size_t>(check));
}

void writeAnswer(JsonWriter& json, const Combination& combination,
                 const std::optional<Utilisation>& answer) {
    json.key("nazwa");
    json.text(combination.name);
    json.key("Wytezenie");
    if (!answer) {
        json.null();
        return;
    }
    json.beginObject();
    for (const Check check : allChecks) {
        json.key(keyOf(check));
        json.number(answer->of(check)); // null where infinite
    }
    json.endObject();
    json.key("kotwa");
    json.whole(answer->anchor);
}

std::string rowLine(RowNumber row, const ReadRow& read, const std::optional<Utilisation>& answer) {
    JsonWriter json(JsonWriter::Layout::OneLine);
    json.beginObject();
    json.key("wiersz");
    json.whole(row);
    if (const auto* const refusal = std::get_if<Refusal>(&read)) {
        json.key("blad");
        json.text(refusal->text);
    } else {
        writeAnswer(json, std::get<Combination>(read), answer);
    }
    json.endObject();
    return json.written() + '\n';
}

std::string summaryLine(const CombinationsEnd& end, const Choice& choice) {
    JsonWriter json(JsonWriter::Layout::OneLine);
    json.beginObject();
    json.key("Podsumowanie");
    json.beginObject();
    json.key("wiersze");
    json.whole(end.rows);
    json.key("odrzucone");
    json.whole(end.refused);
    json.key("miarodajne");
    json.beginObject();
    for (const Check check : allChecks) {
        json.key(keyOf(check));
        if (const RowNumber row = choice.governing(check))
            json.whole(row);
        else
            json.null();
    }
    json.endObject();
    json.key("szesc");
    json.beginArray();
    for (const RowNumber row : choice.six())
        json.whole(row);
    json.endArray();
    json.endObject();
    json.endObject();
    return json.written() + '\n';
}

/// Why no base can be made of the task.
QString words(Unready why) {
    return why == Unready::NoAreas
               ? QStringLiteral("the task gives no base: plate, ratio n or a diameter off the "
                                "series")
               : QStringLiteral("the task gives no strength of the anchors' steel");
}

} // namespace

CombinationsEnd runCombinations(const QString& table, const Task& task,
                                const std::function<void(const std::string&)>& print) {
    constexpr std::size_t printedAtOnce = 65'536; // bytes
    const auto evaluator = Evaluator::of(task.stan, task.fields);
    if (const auto* const why = std::get_if<Unready>(&evaluator))
        return {.trouble = words(*why)};
    const auto opened = openTable(table);
    if (const auto* const why = std::get_if<QString>(&opened))
        return {.trouble = table + QStringLiteral(": ") + *why};
    RowSource& source = *std::get<std::unique_ptr<RowSource>>(opened);
    TableReader reader(source);
    if (!reader.layout().doubt.isEmpty())
        return {.trouble = table + QStringLiteral(": ") + reader.layout().doubt};

    CombinationsEnd end{.remark = reader.layout().assumed};
    Choice choice;
    std::string lines;
    while (const std::optional<ReadRow> read = reader.next()) {
        ++end.rows;
        std::optional<Utilisation> answer;
        if (const auto* const combination = std::get_if<Combination>(&*read)) {
            answer = std::get<Evaluator>(evaluator).answer(*combination);
            choice.add(end.rows, answer);
        } else {
            ++end.refused;
        }
        lines += rowLine(end.rows, *read, answer);
        if (lines.size() >= printedAtOnce)
            print(std::exchange(lines, {}));
    }
    if (!source.trouble().isEmpty())
        end.trouble = table + QStringLiteral(": ") + source.trouble();
    print(lines + summaryLine(end, choice));
    return end;
}

} // namespace ferna::batch
