#pragma once

#include "batch/sheet_files.h"
#include "batch/task_run.h"
#include "sheet/html_writer.h"
#include "sheet/rich_runs.h"
#include "support/places.h"
#include "task/task.h"

#include <nlohmann/json.hpp>

namespace ferna::testing {

inline constexpr std::array<Integer, 5> languages{0, 1, 2, 3, 4};

/// One case of four anchors; it has a neutral line.
inline nlohmann::json base(Integer language = 0) {
    return {{"Nazwa_projektu", "Hala <B> & C"},
            {"Nr_jezyka", language},
            {"Dlug_plyty_mm", 600},
            {"Szer_plyty_mm", 400},
            {"Kotwy",
             {{{"x", 250}, {"y", 150}, {"fi", 24}},
              {{"x", -250}, {"y", 150}, {"fi", 24}},
              {{"x", 250}, {"y", -150}, {"fi", 24}},
              {{"x", -250}, {"y", -150}, {"fi", 24}}}},
            {"Przypadki", {{{"N", 100}, {"M1", 40}, {"M2", 10}, {"Vx", 60}, {"Vy", 5}}}}};
}

/// Six cases of twenty anchors with every section and notes. Of the eight checks of the plate the
/// fourth is excluded by the third.
inline nlohmann::json large(Integer language) {
    nlohmann::json task = base(language);
    task["Dlug_plyty_mm"] = 1000;
    task["Szer_plyty_mm"] = 600;
    task["Kotwy"] = nlohmann::json::array();
    for (int i = 0; i < 10; ++i)
        for (const int y : {-250, 250})
            task["Kotwy"].push_back({{"x", -450 + 100 * i}, {"y", y}, {"fi", 30}});
    task["Przypadki"] = nlohmann::json::array();
    for (int i = 0; i < 6; ++i)
        task["Przypadki"].push_back({{"N", 800 + 50 * i},
                                     {"M1", 400 - 60 * i},
                                     {"M2", (i % 2 == 0 ? 1 : -1) * (60 + 30 * i)},
                                     {"Vx", 300},
                                     {"Vy", 10 * i}});
    task["Blacha"] = {{"Nr_stali_blachy", 4},
                      {"Sprawdzenia",
                       {{"1", {{"bs", 120}, {"ca", 60}, {"S", 100}}},
                        {"2", {{"ca", 90}, {"sigma_k", 6}, {"sigma_p", 4}}},
                        {"3", {{"l", 300}, {"b", 200}, {"sigma", 9}}},
                        {"4", {{"Nr_profilu", 10}, {"sigma", 9}}},
                        {"5", {{"l", 300}, {"b", 200}, {"sigma", 8}}},
                        {"6", {{"l", 300}, {"b", 200}, {"sigma", 4}}},
                        {"7", {{"b", 150}, {"a", 100}, {"c", 100}, {"S", 90}}},
                        {"8", {{"b", 120}, {"a", 60}, {"c", 50}, {"S", 60}}}}}};
    task["Kotwa"] = {{"rodzaj", "P"}, {"g", 60}};
    return task;
}

/// The words of a text without its marks, blanks in a row as one.
inline QString plainText(const sheet::Rich& text) {
    QString plain;
    for (const sheet::RichRun& run : sheet::runsOf(text))
        plain += run.text;
    return plain.simplified();
}

inline batch::ComputedTask computed(const nlohmann::json& task) {
    const std::string text = task.dump();
    return batch::run(readTask(parsed(text)),
                      batch::RunOptions{{}, places::data(), QDateTime::currentDateTime()});
}

/// The sheet as HTML without its pictures.
inline QString page(const nlohmann::json& task) {
    return QString::fromUtf8(
        sheet::htmlOf(batch::sheetOf(computed(task)), sheet::HtmlPictures::LeftOut));
}

} // namespace ferna::testing
