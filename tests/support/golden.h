#pragma once

#include "design/stan.h"
#include "runtime/dialogs.h"
#include "support/places.h"

#include <QFile>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <stdexcept>
#include <utility>
#include <vector>

namespace ferna::testing {

using GoldenJson = nlohmann::ordered_json;

/// A reference task and its expected result.
struct GoldenCase {
    int line;
    GoldenJson task;
    GoldenJson expected;
};

inline std::vector<GoldenJson> goldenLines(const QString& name) {
    QFile file(places::golden("/") + name);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("missing golden file " + name.toStdString());
    std::vector<GoldenJson> lines;
    while (!file.atEnd())
        lines.push_back(GoldenJson::parse(file.readLine().toStdString()));
    return lines;
}

inline std::vector<GoldenCase> goldenCases(const QString& set) {
    std::vector<GoldenJson> tasks = goldenLines(set + QStringLiteral(".tasks.jsonl"));
    std::vector<GoldenJson> expected = goldenLines(set + QStringLiteral(".expected.jsonl"));
    if (tasks.size() != expected.size())
        throw std::runtime_error("golden files of different length");
    std::vector<GoldenCase> cases;
    for (std::size_t i = 0; i < tasks.size(); ++i)
        cases.push_back({static_cast<int>(i + 1), std::move(tasks[i]), std::move(expected[i])});
    return cases;
}

/// A catalogue in which text n is "<n>", so that a wrong line number shows.
inline void fillNumberedCatalogue(Stan& stan) {
    for (int n = 1; n <= CatalogueLines; ++n)
        stan.Teksty(n) = QStringLiteral("<%1>").arg(n);
}

/// The state as the calculation of a reference task leaves it for the sections behind it.
inline Stan calculatedState(const GoldenCase& golden) {
    Stan stan;
    fillNumberedCatalogue(stan);
    const GoldenJson& result = golden.expected;
    const auto single = [](const GoldenJson& value) {
        return static_cast<Single>(value.get<double>());
    };
    stan.wyniki.Sila_kotwy_max = single(result.at("Sila_kotwy_max"));
    stan.wyniki.Sigma_b_max = single(result.at("Sigma_b_max"));
    stan.wyniki.Nr_kotwy_max = result.at("Nr_kotwy_max").get<Integer>();
    stan.wyniki.Kotwy_OK = result.at("Kotwy_OK").get<bool>() ? True : False;
    stan.opcje.Nr_stali = golden.task.at("Nr_stali").get<Integer>();
    const GoldenJson& materials = result.at("Materialy");
    stan.materialy.Fd_kotwy = single(materials.at("Fd_kotwy"));
    stan.materialy.Mnoznik_dlugosci = single(materials.at("Mnoznik_dlugosci"));
    stan.materialy.Wsp_dlugosci = single(materials.at("Wsp_dlugosci"));
    for (const GoldenJson& anchor : golden.task.at("Kotwy"))
        stan.plyta.Fi_kotwy(++stan.plyta.Liczba_srub) = anchor.at("fi").get<Integer>();
    return stan;
}

/// A value as the reference writes it: the same 32-bit number where it is a fraction.
inline void expectSame(const GoldenJson& expected, const GoldenJson& got,
                       const std::string& where) {
    if (expected.is_object()) {
        for (const auto& item : expected.items()) {
            ASSERT_TRUE(got.contains(item.key())) << where << ' ' << item.key();
            expectSame(item.value(), got.at(item.key()), where + '.' + item.key());
        }
    } else if (expected.is_number_float()) {
        EXPECT_EQ(static_cast<Single>(expected.get<double>()),
                  static_cast<Single>(got.get<double>()))
            << where;
    } else {
        EXPECT_EQ(expected.dump(), got.dump()) << where;
    }
}

/// The boxes of the section behind those that the calculation has shown before it.
inline void expectLastMessages(const GoldenJson& expected, const ScriptedDialogs& dialogs,
                               const std::string& where) {
    ASSERT_GE(expected.size(), dialogs.messages.size()) << where;
    const std::size_t before = expected.size() - dialogs.messages.size();
    for (std::size_t i = 0; i < dialogs.messages.size(); ++i) {
        EXPECT_EQ(expected[before + i].at("tekst").get<std::string>(),
                  dialogs.messages[i].text.toStdString())
            << where;
        EXPECT_EQ(expected[before + i].at("tytul").get<std::string>(),
                  dialogs.messages[i].title.toStdString())
            << where;
    }
    // What stands in front is the solver's.
    for (std::size_t i = 0; i < before; ++i)
        EXPECT_NE(expected[i].at("tekst").get<std::string>().find("rozwiazania"), std::string::npos)
            << where;
}

} // namespace ferna::testing
