// Whole tasks against the results of an independent computation.
#include "batch/task_run.h"
#include "support/decimal_comma.h"
#include "support/folder.h"
#include "support/places.h"
#include "support/printing.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace ferna;
using namespace ferna::batch;
using ferna::testing::Folder;
using ferna::testing::WithDecimalSign;

namespace {

/// The first place where a result differs from the expected one; empty where none does. Singles
/// must be the same number, the three Doubles of a case agree to 1e-9, everything else be equal.
std::string difference(const Json& expected, const Json& got, const std::string& path,
                       const std::string& key) {
    if (expected.is_object()) {
        if (!got.is_object())
            return path;
        for (const auto& [name, value] : expected.items()) {
            if (name.starts_with('_'))
                continue;
            if (!got.contains(name))
                return path + '.' + name + " is missing";
            if (auto found = difference(value, got[name], path + '.' + name, name); !found.empty())
                return found;
        }
        return {};
    }
    if (expected.is_array()) {
        if (!got.is_array() || got.size() != expected.size())
            return path;
        for (std::size_t i = 0; i < expected.size(); ++i)
            if (auto found =
                    difference(expected[i], got[i], path + '[' + std::to_string(i) + ']', key);
                !found.empty())
                return found;
        return {};
    }
    if (expected.is_number_float() && got.is_number()) {
        const double e = expected;
        const double g = got;
        if (key == "Beta" || key == "C_linii" || key == "Wsp_k")
            return std::fabs(e - g) <= std::max(1e-9 * std::max(std::fabs(e), std::fabs(g)), 1e-12)
                       ? std::string()
                       : path;
        return static_cast<Single>(e) == static_cast<Single>(g) ? std::string() : path;
    }
    return expected == got ? std::string() : path;
}

std::string text(const Json& value) {
    return value.dump().substr(0, 400);
}

TEST(References, EveryTaskOfTheSolverHasItsResults) {
    const WithDecimalSign comma(u',');
    const Folder folder;
    QByteArray catalogue; // line n reads "<n>", so that a wrong line number shows
    for (int n = 1; n <= CatalogueLines; ++n)
        catalogue += '<' + QByteArray::number(n) + ">\r\n";
    const RunOptions options{
        folder.write(QStringLiteral("k.txt"), catalogue), {}, QDateTime::currentDateTime()};
    const auto lines = [](const char* name) {
        return Folder::bytesOf(places::golden("/") + QString::fromLatin1(name))
            .trimmed()
            .split('\n');
    };
    const auto tasks = lines("solver.tasks.jsonl");
    const auto expected = lines("solver.expected.jsonl");
    ASSERT_EQ(tasks.size(), expected.size());
    ASSERT_GT(tasks.size(), 300);
    for (qsizetype i = 0; i < tasks.size(); ++i) {
        const Json want = Json::parse(expected[i].toStdString());
        const Json got = resultOf(run(readTask(parsed(tasks[i].toStdString())), options));
        EXPECT_EQ(difference(want, got, "", ""), "")
            << "task " << i + 1 << "\nexpected " << text(want) << "\ngot " << text(got);
    }
}

TEST(References, TheComparisonSeesADifference) {
    const Json a = Json::parse(R"({"Sigma_b": 1.25, "Beta": 0.5, "Wiersze": ["<1>"], "n": 3})");
    const auto changed = [&](const char* key, const Json& value) {
        Json b = a;
        b[key] = value;
        return difference(a, b, "", "");
    };
    EXPECT_EQ(difference(a, a, "", ""), "");
    EXPECT_EQ(changed("Sigma_b", 1.2500001), ".Sigma_b");
    EXPECT_EQ(changed("Sigma_b", 1.25000000001), "") << "the same Single";
    EXPECT_EQ(changed("Beta", 0.500000001), ".Beta");
    EXPECT_EQ(changed("Beta", 0.5000000000001), "");
    EXPECT_EQ(changed("Wiersze", Json::array({"<2>"})), ".Wiersze[0]");
    EXPECT_EQ(changed("n", 4), ".n");
}

} // namespace
