#include "smallest/brute_force.h"
#include "smallest/search.h"
#include "smallest/steel_mass.h"
#include "support/column_base.h"

#include <gtest/gtest.h>

#include <random>

namespace ferna::smallest {

namespace {

/// Loads of a column of a hall, B15, and a range around what they need.
testing::ColumnBase hall() {
    testing::ColumnBase base;
    base.fourAnchors(250, 150);
    base.loads(300, 80, 20, 40, 10).loads(150, 60, -15, 30, 0).loads(500, -20, 5);
    return base;
}

DesignRange hallRange() {
    DesignRange range;
    range.columnLength = 300;
    range.columnWidth = 300;
    range.length = {500, 900, 50};
    range.width = {400, 700, 50};
    range.steels = {2, 4};
    return range;
}

Task hallTask() {
    const testing::ColumnBase base = hall();
    return enteredTask(base.stan, base.fields).value();
}

TEST(AnchorPlaces, OfFourStandAtTheEdgeDistanceOfTheRule) {
    DesignRange range = hallRange();
    range.edge = 2;
    range.leastEdge = 40;
    EXPECT_EQ(edgeDistance(range, 16), 40);
    EXPECT_EQ(edgeDistance(range, 24), 50) << "48 mm, up to whole 5";
    const auto places = anchorPlaces(range, 600, 500, 4, 24);
    ASSERT_EQ(places.size(), 4U);
    EXPECT_EQ(places[0].x, 250);
    EXPECT_EQ(places[0].y, 200);
    EXPECT_EQ(places[3].x, -250);
    EXPECT_EQ(places[3].y, -200);
}

TEST(AnchorPlaces, OfSixEightAndTwelveStandOnTheEdgesSymmetrically) {
    const DesignRange range = hallRange();
    for (const int layout : {4, 6, 8, 12}) {
        const auto places = anchorPlaces(range, 900, 800, layout, 24);
        ASSERT_EQ(static_cast<int>(places.size()), layout);
        for (const equilibrium::Point& place : places) {
            EXPECT_TRUE(std::fabs(place.x) == 400 || std::fabs(place.y) == 350);
            for (const double sign : {1.0, -1.0}) {
                const auto mirrored = [&](const equilibrium::Point& other) {
                    return other.x == sign * place.x && other.y == -sign * place.y;
                };
                EXPECT_EQ(std::count_if(places.begin(), places.end(), mirrored), 1) << layout;
            }
        }
    }
    const auto six = anchorPlaces(range, 900, 800, 6, 24);
    EXPECT_EQ(six[4].x, 400);
    EXPECT_EQ(six[4].y, 0);
}

TEST(AnchorPlaces, AreNoneTooNearToOneAnotherOrToTheColumn) {
    DesignRange range = hallRange();
    EXPECT_FALSE(anchorPlaces(range, 500, 500, 4, 24).empty());
    EXPECT_TRUE(anchorPlaces(range, 450, 450, 6, 24).empty()) << "25 mm from the column's flange";
    range.columnLength = range.columnWidth = 0;
    EXPECT_FALSE(anchorPlaces(range, 400, 250, 6, 24).empty());
    EXPECT_TRUE(anchorPlaces(range, 400, 242, 6, 24).empty()) << "71 mm apart, less than 3 d";
    range.columnLength = 420;
    EXPECT_TRUE(anchorPlaces(range, 400, 400, 4, 24).empty()) << "a column longer than its plate";
}

TEST(DesignRange, NamesThePartThatCannotBeWorkedWith) {
    EXPECT_FALSE(wrongPart(hallRange()));
    const auto wrong = [](auto change) {
        DesignRange range = hallRange();
        change(range);
        return wrongPart(range);
    };
    EXPECT_EQ(wrong([](DesignRange& r) { r.columnLength = -1; }), RangePart::Column);
    EXPECT_EQ(wrong([](DesignRange& r) { r.length.step = 0; }), RangePart::Length);
    EXPECT_EQ(wrong([](DesignRange& r) { r.length.to = 40'000; }), RangePart::Length);
    EXPECT_EQ(wrong([](DesignRange& r) { r.width = {700, 600, 10}; }), RangePart::Width);
    EXPECT_EQ(wrong([](DesignRange& r) { r.ratio = 1.1; }), RangePart::Ratio);
    EXPECT_EQ(wrong([](DesignRange& r) { r.layouts = {5}; }), RangePart::Layouts);
    EXPECT_EQ(wrong([](DesignRange& r) { r.diameters = {}; }), RangePart::Diameters);
    EXPECT_EQ(wrong([](DesignRange& r) { r.diameters = {25}; }), RangePart::Diameters);
    EXPECT_EQ(wrong([](DesignRange& r) { r.steels = {8}; }), RangePart::Steels);
    EXPECT_EQ(wrong([](DesignRange& r) { r.spacing = -1; }), RangePart::Distances);
    EXPECT_EQ(wrong([](DesignRange& r) { r.pressure = 2.1; }), RangePart::Pressure);
    EXPECT_EQ(wrong([](DesignRange& r) { r.plateSteel = 6; }), RangePart::PlateSteel);
    EXPECT_EQ(wrong([](DesignRange& r) { r.grout = 501; }), RangePart::Thickness);
    EXPECT_EQ(wrong([](DesignRange& r) {
                  r.length = {1, 9000, 1};
                  r.width = {1, 9000, 1};
              }),
              RangePart::TooMany);
}

TEST(DesignRange, CountsItsCandidates) {
    DesignRange range = hallRange();
    range.length = {500, 600, 50};
    range.width = {450, 700, 50};
    // 500: 450, 500; 550: three; 600: four.
    EXPECT_EQ(candidates(range), 9 * 4 * 13 * 2);
    range.ratio = 0.75;
    EXPECT_EQ(candidates(range), 3 * 4 * 13 * 2);
    EXPECT_EQ(widthsFor(range, 550), std::vector<int>{410});
}

TEST(SteelMass, IsOfPlateAndAnchors) {
    EXPECT_NEAR(plateMass(600, 400, 30), 0.6 * 0.4 * 0.03 * 7850, 1e-9);
    EXPECT_NEAR(anchorMass(4, 24, 1000), 4 * M_PI * 0.012 * 0.012 * 7850, 1e-9);
    // Catalogue: 24 mm hooked, and 5 d for the hook.
    const int thin = anchorLength(24, 20, 30, 40);
    EXPECT_EQ(anchorLength(24, 70, 30, 40), thin + 50);
    EXPECT_EQ(thin % 50, 0);
}

TEST(PlateThickness, IsThatOfTheStripsOfThePlateCheck) {
    DesignRange range = hallRange();
    range.columnLength = range.columnWidth = 300;
    equilibrium::Result found;
    found.sigmaConcrete = 5;
    const auto places = anchorPlaces(range, 600, 500, 4, 24);
    PlateThickness pressed(range, 600, 500, 50, places, 353);
    pressed.take(found);
    // 150 sqrt(3 x 5 / 205) = 40.6
    EXPECT_EQ(pressed.found(), 41);
    found.sigmaConcrete = 0;
    found.sigmaAnchor[2] = -200;
    PlateThickness pulled(range, 600, 500, 50, places, 353);
    pulled.take(found);
    // 70.6 kN, ca = hypot(100, 50) = 111.8, bs = 2 x 50: 2.2 sqrt(70600 x 111.8 / (205 x 100))
    EXPECT_EQ(pulled.found(), 44);
    range.plateSteel = 3; // holds up to 40 mm
    PlateThickness thick(range, 600, 500, 50, places, 353);
    thick.take(found);
    EXPECT_FALSE(PlateThickness(range, 600, 500, 50, places, 353).found() != 10);
    EXPECT_FALSE(thick.found());
}

TEST(PlateThickness, IsOfAStripThatEndsHalfwayToTheNextAnchor) {
    DesignRange range = hallRange();
    range.columnLength = range.columnWidth = 100;
    range.leastEdge = 200;
    const auto places = anchorPlaces(range, 900, 800, 12, 24);
    ASSERT_EQ(places.size(), 12U);
    equilibrium::Result found;
    found.sigmaAnchor[0] = -100; // at 250, 200; the next one at 250, 67
    PlateThickness plate(range, 900, 800, 200, places, 353);
    plate.take(found);
    // 35.3 kN, ca = hypot(200, 150) = 250, bs = 133: 2.2 sqrt(35300 x 250 / (205 x 133)) = 39.6
    EXPECT_EQ(plate.found(), 40);
}

TEST(Lightest, IsWhatBruteForceFindsOnTwoHundredSmallGrids) {
    std::mt19937_64 numbers(5);
    const auto between = [&](int least, int most) {
        return std::uniform_int_distribution<>(least, most)(numbers);
    };
    int found = 0;
    for (int grid = 0; grid < 200; ++grid) {
        testing::ColumnBase column;
        column.allAnchorsTakeShear(grid % 3 != 0);
        const int cases = between(1, 6);
        for (int c = 0; c < cases; ++c)
            column.loads(between(-20, 700), between(-90, 90), between(-30, 30), between(0, 60),
                         between(0, 30));
        const Task task = enteredTask(column.stan, column.fields).value();
        DesignRange range;
        range.columnLength = 10 * between(10, 30);
        range.columnWidth = 10 * between(10, 30);
        range.length = {10 * between(30, 50), 10 * between(50, 90), 10 * between(5, 12)};
        range.width = {10 * between(20, 40), 10 * between(40, 80), 10 * between(5, 12)};
        range.ratio = grid % 4 == 0 ? between(60, 100) / 100.0 : 0;
        range.diameters = {16, 24, 36, 56};
        range.steels = {1, 2, 5};
        range.edge = between(10, 30) / 10.0;
        range.pressure = between(10, 20) / 10.0;
        range.plateSteel = CInt(between(1, 5));
        range.spacing = between(0, 5);
        range.stiffened = grid % 5 == 0;
        const std::vector<Design> brute = testing::byBruteForce(range, task);
        const Found quick = lightest(range, task, brute.size() + 5);
        ASSERT_EQ(quick.passed, static_cast<long>(brute.size())) << grid;
        ASSERT_EQ(quick.best.size(), brute.size()) << grid;
        for (std::size_t k = 0; k < brute.size(); ++k) {
            EXPECT_NEAR(quick.best[k].mass(), brute[k].mass(), 1e-9) << grid << ' ' << k;
            EXPECT_TRUE(std::any_of(
                brute.begin(), brute.end(),
                [&](const Design& one) {
                    const Design& other = quick.best[k];
                    return one.length == other.length && one.width == other.width
                           && one.layout == other.layout && one.diameter == other.diameter
                           && one.steel == other.steel && one.thickness == other.thickness
                           && one.anchorLength == other.anchorLength && one.edge == other.edge;
                }))
                << grid << ' ' << k;
        }
        found += brute.empty() ? 0 : 1;
    }
    EXPECT_GT(found, 50);
}

TEST(Lightest, KeepsTheFirstOfAllInTheSameOrder) {
    const Found all = lightest(hallRange(), hallTask(), 100'000);
    const Found few = lightest(hallRange(), hallTask(), 7);
    ASSERT_GT(all.best.size(), 100U);
    EXPECT_EQ(all.passed, static_cast<long>(all.best.size()));
    EXPECT_EQ(few.passed, all.passed);
    EXPECT_EQ(few.candidates, candidates(hallRange()));
    ASSERT_EQ(few.best.size(), 7U);
    for (std::size_t k = 0; k < 7; ++k)
        EXPECT_EQ(few.best[k], all.best[k]);
    EXPECT_TRUE(std::is_sorted(all.best.begin(), all.best.end(), isLighter));
}

TEST(Lightest, TellsTheLargestUtilisationAndItsCase) {
    const Found found = lightest(hallRange(), hallTask(), 1);
    ASSERT_EQ(found.best.size(), 1U);
    const Design& best = found.best.front();
    EXPECT_GT(best.worstCase, 0);
    EXPECT_LE(best.used.bearingFactor, 1);
    EXPECT_LE(best.used.tension, 1);
    EXPECT_GT(judged(best.used, 1), 0.7) << "the lightest one is used well";
}

TEST(Lightest, TellsTheCaseThatUsesADesignMostWhereverItStands) {
    Task task = hallTask();
    ASSERT_EQ(task.cases.size(), 3U);
    const LoadCase light{{50, 1, 1}, {}};
    const LoadCase heavy = task.cases[0];
    for (const int place : {1, 2, 3}) {
        task.cases.assign(3, light);
        task.cases[static_cast<std::size_t>(place - 1)] = heavy;
        const Found found = lightest(hallRange(), task, 5);
        ASSERT_FALSE(found.best.empty());
        for (const Design& design : found.best)
            EXPECT_EQ(design.worstCase, place);
    }
}

TEST(Lightest, CountsWhatOnlyAPlateTooThickWouldBear) {
    DesignRange range = hallRange();
    range.plateSteel = 1; // up to 40 mm
    range.columnLength = range.columnWidth = 50;
    const Found plain = lightest(range, hallTask(), 5);
    EXPECT_GT(plain.tooThick, 0);
    range.stiffened = true;
    range.leastThickness = 25;
    const Found stiffened = lightest(range, hallTask(), 5);
    EXPECT_EQ(stiffened.tooThick, 0);
    EXPECT_EQ(stiffened.passed, plain.passed + plain.tooThick);
    EXPECT_EQ(stiffened.best.at(0).thickness, 25);
}

TEST(Lightest, StopsWhereItIsAskedTo) {
    int asked = 0;
    const Found found = lightest(hallRange(), hallTask(), 5,
                                 [&](double share) { return ++asked < 3 && share < 1; });
    EXPECT_TRUE(found.stopped);
    EXPECT_EQ(asked, 3);
    EXPECT_LT(found.candidates, candidates(hallRange()));
}

TEST(EnteredTask, IsNoneWithoutNumbersToWorkWith) {
    testing::ColumnBase base = hall();
    ASSERT_TRUE(enteredTask(base.stan, base.fields));
    EXPECT_EQ(enteredTask(base.stan, base.fields)->cases.size(), 3U);
    EXPECT_FALSE(enteredTask(base.stan, base.fields)->limits[2][6]) << "St4 above 40 mm";
    EXPECT_EQ(enteredTask(base.stan, base.fields)->limits[2][0]->fd, 235);
    InputFields fields = base.fields;
    fields.Text2 = QStringLiteral("sześć");
    EXPECT_FALSE(enteredTask(base.stan, fields));
    fields = base.fields;
    fields.loads[1].Vy.clear();
    EXPECT_FALSE(enteredTask(base.stan, fields));
    base.stan.obciazenia.Liczba_przyp = 0;
    EXPECT_FALSE(enteredTask(base.stan, base.fields));
}

} // namespace

} // namespace ferna::smallest
