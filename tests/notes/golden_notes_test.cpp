// The notes of every reference task against their conditions, computed here once more from what
// the task asks and the result tells: the codes that must be there are there, and no others.
#include "batch/task_run.h"
#include "design/material_tables.h"
#include "support/golden.h"
#include "support/places.h"

#include <set>

using namespace ferna;
using namespace ferna::batch;
using ferna::testing::GoldenJson;

namespace {

using Found = std::set<std::string>;

std::string mark(const char* code, int number = 0) {
    return number == 0 ? code : std::string(code) + ' ' + std::to_string(number);
}

/// What the notes of a result say: code and case, or check, or nothing.
Found told(const Json& result) {
    Found found;
    for (const Json& note : result.at("Uwagi")) {
        const std::string code = note.at("kod");
        EXPECT_FALSE(note.at("tekst").get<std::string>().empty()) << code;
        found.insert(
            mark(code.c_str(),
                 note.value("przypadek",
                            code == "grubosc_bez_sprawdzenia" ? 0 : note.value("sprawdzenie", 0))));
    }
    return found;
}

double largestStress(const Json& stresses) {
    double largest = 0;
    for (const double one : stresses)
        largest = std::max(largest, std::fabs(one));
    return largest;
}

double deviation(const Json& told, const Json& exact) {
    const double pressure = exact.at("Sigma_b");
    double d = pressure < 0.01 ? 0 : (pressure - told.at("Sigma_b").get<double>()) / pressure;
    const double scale = std::max(1.0, largestStress(exact.at("Sigma_kotwy")));
    for (std::size_t i = 0; i < exact.at("Sigma_kotwy").size(); ++i)
        d = std::max(d, (std::fabs(exact.at("Sigma_kotwy")[i].get<double>())
                         - std::fabs(told.at("Sigma_kotwy")[i].get<double>()))
                            / scale);
    return d;
}

bool anyMessage(const Json& result, const char* part) {
    for (const Json& box : result.at("Komunikaty"))
        if (box.at("tekst").get<std::string>().find(part) != std::string::npos)
            return true;
    return false;
}

void expectedOfGeometry(const Json& task, Found& expected) {
    const Json& anchors = task.at("Kotwy");
    for (std::size_t j = 0; j < anchors.size(); ++j) {
        const double x = std::nearbyint(anchors[j].at("x").get<double>());
        const double y = std::nearbyint(anchors[j].at("y").get<double>());
        const int fi = anchors[j].at("fi");
        if (task.at("Dlug_plyty_mm").get<double>() / 2 - std::fabs(x) < fi / 2.0
            || task.at("Szer_plyty_mm").get<double>() / 2 - std::fabs(y) < fi / 2.0)
            expected.insert("kotwa_poza_plyta");
        if (std::find(std::begin(anchorDiameters), std::end(anchorDiameters), fi)
            == std::end(anchorDiameters))
            expected.insert("srednica_spoza_szeregu");
        for (std::size_t i = 0; i < j; ++i)
            if (std::hypot(x - std::nearbyint(anchors[i].at("x").get<double>()),
                           y - std::nearbyint(anchors[i].at("y").get<double>()))
                < std::max(fi, anchors[i].at("fi").get<int>()))
                expected.insert("kotwy_w_jednym_miejscu");
    }
}

/// A case without results in a calculation that has ended for want of a solution.
bool withoutResults(const Json& result, int c) {
    return result.at("Obliczone").get<bool>()
           && result.at("Przypadki")[static_cast<std::size_t>(c - 1)].at("Wiersze").empty();
}

void expectedOfCase(const Json& result, int c, Found& expected) {
    if (result.at("Rownowaga").is_null())
        return;
    const Json& exact = result.at("Rownowaga")[static_cast<std::size_t>(c - 1)];
    if (!exact.at("istnieje").get<bool>()) {
        expected.insert(mark("nie_stoi", c));
        return;
    }
    if (!result.at("Obliczone").get<bool>())
        return;
    const Json& told = result.at("Przypadki")[static_cast<std::size_t>(c - 1)];
    if (withoutResults(result, c)) {
        expected.insert(mark("brak_rozwiazania", c));
        return;
    }
    if (deviation(told, exact) > 0.02)
        expected.insert(mark("odchylka", c));
    const Json& materials = result.at("Materialy");
    const double fd = materials.at("Fd_kotwy");
    const double limit = 2 * static_cast<double>(materials.at("Rb_betonu").get<float>());
    if ((largestStress(exact.at("Sigma_kotwy")) > fd && largestStress(told.at("Sigma_kotwy")) <= fd)
        || (exact.at("Sigma_b").get<double>() > limit && told.at("Sigma_b").get<double>() <= limit))
        expected.insert(mark("werdykt", c));
}

void expectedOfTension(const Json& task, const Json& result, Found& expected) {
    if (!anyMessage(result, "zakotwień rozciąganych"))
        return;
    int c = 0;
    for (const Json& loads : task.at("Przypadki"))
        if (++c; loads.at("N").get<double>() < 0)
            expected.insert(mark("rozciaganie", c));
}

void expectedOfPlate(const Json& task, const Json& result, Found& expected) {
    if (!task.contains("Blacha") || !result.contains("Blacha"))
        return;
    const Json& section = result.at("Blacha");
    const auto required = [&](int check) {
        return section.at("Spr_blachy")[static_cast<std::size_t>(check - 1)].get<int>();
    };
    int most = 0;
    for (int check = 1; check <= 8; ++check)
        most = std::max(most, required(check));
    if (!section.at("Wiersze_blachy").empty()) {
        const double accepted =
            CDbl(QString::fromStdString(section.at("Grubosc").get<std::string>()));
        if (most == 0 || accepted < most)
            expected.insert("grubosc_bez_sprawdzenia");
    }
    if (!task.at("Blacha").contains("Sprawdzenia"))
        return;
    const double force = std::fabs(result.at("Sila_kotwy_max").get<double>());
    const double pressure = result.at("Sigma_b_max");
    for (const auto& [key, fields] : task.at("Blacha").at("Sprawdzenia").items()) {
        const int check = std::stoi(key);
        if (required(check) <= 0) {
            expected.insert(mark("sprawdzenie_odrzucone", check));
            continue;
        }
        for (const auto& [name, value] : fields.items()) {
            const bool isForce = name == "S";
            if ((isForce || name.starts_with("sigma"))
                && static_cast<float>(value.get<double>()) < 0.98 * (isForce ? force : pressure))
                expected.insert(mark("sila_mniejsza", check));
        }
    }
}

/// Notes about how a solution came about are looked at by themselves.
Found withoutTheWay(Found found) {
    std::erase_if(found, [](const std::string& one) {
        return one.starts_with("moment_powiekszony") || one.starts_with("kotwa_przesunieta");
    });
    return found;
}

bool tellsTheWay(const Found& found, const char* code) {
    return std::any_of(found.begin(), found.end(),
                       [&](const std::string& one) { return one.starts_with(code); });
}

/// True where the last anchor is not where it was typed.
bool lastAnchorMoved(const Json& task, const Json& result) {
    const Json& typed = task.at("Kotwy").back();
    const Json& place = result.at("Wspolrzedne").back();
    return static_cast<float>(std::nearbyint(typed.at("x").get<double>()) / 10.0)
               != static_cast<float>(place[0].get<double>())
           || static_cast<float>(std::nearbyint(typed.at("y").get<double>()) / 10.0)
                  != static_cast<float>(place[1].get<double>());
}

struct Tally {
    int tasks = 0;
    std::map<std::string, int> notes;
};

void compareSet(const QString& set, Tally& tally) {
    const RunOptions options{{}, places::data(), QDateTime::currentDateTime()};
    for (const GoldenJson& line :
         ferna::testing::goldenLines(set + QStringLiteral(".tasks.jsonl"))) {
        const std::string where = set.toStdString() + " task " + std::to_string(++tally.tasks);
        const Json result = resultOf(run(readTask(parsed(line.dump())), options));
        const Found found = told(result);
        Found expected;
        expectedOfGeometry(line, expected);
        for (int c = 1; c <= static_cast<int>(
                            result.at("Rownowaga").is_null() ? 0 : result.at("Rownowaga").size());
             ++c)
            expectedOfCase(result, c, expected);
        expectedOfTension(line, result, expected);
        expectedOfPlate(line, result, expected);
        EXPECT_EQ(withoutTheWay(found), expected) << where << '\n' << result.at("Uwagi").dump(1);
        if (tellsTheWay(found, "kotwa_przesunieta")) {
            EXPECT_TRUE(lastAnchorMoved(line, result)) << where;
        } else if (result.at("Obliczone").get<bool>()
                   && !result.at("Przerwij_obliczenia").get<bool>()) {
            EXPECT_FALSE(lastAnchorMoved(line, result)) << where;
        }
        for (const Json& note : result.at("Uwagi"))
            ++tally.notes[note.at("kod").get<std::string>()];
    }
}

TEST(NotesOfTheReferences, AreThoseWhoseConditionHoldsAndNoOthers) {
    Tally tally;
    for (const char* set : {"solver", "plate", "anchor", "statics"})
        compareSet(QString::fromLatin1(set), tally);
    EXPECT_GT(tally.tasks, 500);
    for (const auto& [code, count] : tally.notes)
        std::printf("%-26s %d\n", code.c_str(), count);
    for (const char* code : {"odchylka", "brak_rozwiazania", "sprawdzenie_odrzucone"})
        EXPECT_GT(tally.notes[code], 0) << code;
}

} // namespace
