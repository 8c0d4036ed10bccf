#include "renderer/layout.h"
#include "renderer/page_checks.h"
#include "renderer/sample_report.h"
#include "runtime/run_time_error.h"

#include <QFile>

using namespace ferna;
using namespace ferna::renderer;
using ferna::testing::count;
using ferna::testing::expectGoodPages;
using ferna::testing::find;
using ferna::testing::Place;
using ferna::testing::SampleReport;

namespace {

class Layout : public ::testing::Test {
protected:
    pages::Report laidOut(int firstPage = 1, const QString& language = {}) {
        wyd::Complaints complaints;
        pages::Report report =
            compose(readJob(sample.write(QStringLiteral("-2"), firstPage)), complaints, language);
        complained = complaints.lines();
        return report;
    }

    static Place at(const pages::Report& report, const char* text) {
        return find(report, QString::fromUtf8(text));
    }

    QTemporaryDir folder;
    SampleReport sample{folder.path()};
    QStringList complained;
};

TEST_F(Layout, AShortReportIsOnePageWithOneFrame) {
    sample.calculation(4, 1, 3);
    const pages::Report report = laidOut();
    ASSERT_EQ(report.pages.size(), 1U);
    EXPECT_EQ(count(report.pages[0], QStringLiteral("Zakotwienie słupów")), 1)
        << "the frame that the body repeats is not drawn a second time";
    EXPECT_EQ(report.pages[0].lines.size(), 7U);
    EXPECT_EQ(report.pages[0].pictures.size(), 3U);
    EXPECT_TRUE(complained.isEmpty());
    EXPECT_EQ(at(report, "Długość płyty").baseline, QPointF(7, 85));
    EXPECT_EQ(report.title, QStringLiteral("Zakotwienie słupów stalowych wg PN-B-03215:1999 oraz "
                                           "PN-B-03264:1999"));
    EXPECT_EQ(report.project, sample.projectName);
    expectGoodPages(report);
}

TEST_F(Layout, ALineAt225StartsTheNextPageAt40) {
    sample.line(220.5, QStringLiteral("ostatni"));
    sample.line(224.9, QStringLiteral("jeszcze"));
    sample.line(225.0, QStringLiteral("pierwszy"));
    sample.line(229.5, QStringLiteral("drugi"));
    const pages::Report report = laidOut();
    ASSERT_EQ(report.pages.size(), 2U);
    EXPECT_EQ(at(report, "jeszcze").page, 0);
    EXPECT_EQ(at(report, "pierwszy").page, 1);
    EXPECT_DOUBLE_EQ(at(report, "pierwszy").baseline.y(), 40);
    EXPECT_NEAR(at(report, "drugi").baseline.y(), 44.5, 1e-9);
}

TEST_F(Layout, TheBodyGoesOnOverManyPages) {
    for (int i = 0; i < 100; ++i)
        sample.line(85 + 4.5 * i, QStringLiteral("wiersz %1.").arg(i));
    const pages::Report report = laidOut();
    // 32 lines fit below y = 85 and 42 below y = 40.
    ASSERT_EQ(report.pages.size(), 3U);
    EXPECT_EQ(at(report, "wiersz 31.").page, 0);
    EXPECT_EQ(at(report, "wiersz 32.").page, 1);
    EXPECT_EQ(at(report, "wiersz 73.").page, 1);
    EXPECT_EQ(at(report, "wiersz 74.").page, 2);
    EXPECT_DOUBLE_EQ(at(report, "wiersz 74.").baseline.y(), 40);
}

TEST_F(Layout, APageStartsWithALineThatHasLetters) {
    sample.line(220.5, QStringLiteral("ostatni"));
    sample.line(225, {});
    sample.line(229.5, QStringLiteral("pierwszy"));
    const pages::Report report = laidOut();
    ASSERT_EQ(report.pages.size(), 2U);
    EXPECT_DOUBLE_EQ(at(report, "pierwszy").baseline.y(), 40);
}

TEST_F(Layout, EmptyLinesAloneMakeNoPage) {
    sample.line(220.5, QStringLiteral("ostatni"));
    for (int i = 1; i < 20; ++i)
        sample.line(220.5 + 4.5 * i, {});
    EXPECT_EQ(laidOut().pages.size(), 1U);
}

TEST_F(Layout, APictureMovesWithTheLinesBesideIt) {
    // Picture and title fit, the third line beside the picture would start at 225.
    sample.line(207.0, QStringLiteral("wyżej"));
    sample.line(211.5, QStringLiteral("przed"));
    sample.line(216.0, QStringLiteral("tytuł"));
    sample.picture(125, 216, 41.1, 27.9, QStringLiteral("a.bmp"));
    sample.line(220.5, QStringLiteral("obok"));
    sample.line(225.0, QStringLiteral("dalej"));
    const pages::Report report = laidOut();
    ASSERT_EQ(report.pages.size(), 2U);
    EXPECT_EQ(at(report, "przed").page, 0);
    EXPECT_EQ(at(report, "tytuł").page, 1);
    EXPECT_DOUBLE_EQ(at(report, "tytuł").baseline.y(), 40);
    ASSERT_EQ(report.pages[1].pictures.size(), 1U);
    EXPECT_DOUBLE_EQ(report.pages[1].pictures[0].rect.top(), 40);
    EXPECT_TRUE(report.pages[0].pictures.empty());
    expectGoodPages(report);
}

TEST_F(Layout, APictureMayEndAt290AndNotBeyond) {
    sample.line(200.0, QStringLiteral("tytuł"));
    sample.picture(125, 200, 41.1, 90, QStringLiteral("a.bmp"));
    EXPECT_EQ(laidOut().pages.size(), 1U);
    sample.picture(20, 200.1, 41.1, 90, QStringLiteral("b.bmp"));
    EXPECT_EQ(laidOut().pages.size(), 1U) << "alone on its page it moves up instead";
    SampleReport other(folder.path());
    other.line(100.0, QStringLiteral("wcześniej"));
    other.line(200.0, QStringLiteral("tytuł"));
    other.picture(125, 200, 41.1, 90.1, QStringLiteral("a.bmp"));
    sample = other;
    const pages::Report report = laidOut();
    ASSERT_EQ(report.pages.size(), 2U);
    EXPECT_EQ(at(report, "tytuł").page, 1);
}

TEST_F(Layout, APlatePictureThatStartsAboveItsLinesTakesItsHeadingAlong) {
    sample.line(193.5, QStringLiteral("przed"));
    sample.plateSection(198, {1});
    const pages::Report report = laidOut();
    ASSERT_EQ(report.pages.size(), 2U);
    const Place heading = at(report, "Przyjęta grubość");
    EXPECT_EQ(heading.page, 1);
    EXPECT_EQ(at(report, "Blok 1").page, 1);
    ASSERT_EQ(report.pages[1].pictures.size(), 1U);
    EXPECT_DOUBLE_EQ(report.pages[1].pictures[0].rect.top(), 40);
    EXPECT_NEAR(heading.baseline.y(), 43, 1e-9) << "the writer's steps stay";
    EXPECT_NEAR(at(report, "Blok 1").baseline.y(), 52, 1e-9);
}

TEST_F(Layout, AnUnderlinedHeadingDoesNotStayBehindAlone) {
    sample.line(207, QStringLiteral("przed"));
    sample.plateSection(211.5, {4}); // heading at 216, its first line at 225
    const pages::Report report = laidOut();
    ASSERT_EQ(report.pages.size(), 2U);
    EXPECT_EQ(at(report, "przed").page, 0);
    EXPECT_EQ(at(report, "Przyjęta grubość").page, 1);
}

TEST_F(Layout, TheTallPictureOfPlateBlockTwoIsNotCutByTheNext) {
    sample.plateSection(60, {2, 3});
    const pages::Report report = laidOut();
    ASSERT_EQ(report.pages.size(), 1U);
    ASSERT_EQ(report.pages[0].pictures.size(), 2U);
    EXPECT_GE(report.pages[0].pictures[1].rect.top(), report.pages[0].pictures[0].rect.bottom());
    EXPECT_EQ(at(report, "Blok 3").baseline.y(), report.pages[0].pictures[1].rect.top())
        << "picture and lines stay level";
}

TEST_F(Layout, ABlockWithoutAPictureIsNotHeldByTheOneAbove) {
    // Block 2 reaches 1.3 mm into the first line of block 4, which may go to the next page.
    sample.line(180, QStringLiteral("przed"));
    const double y = sample.plateSection(183.5, {2, 4}) - 18;
    EXPECT_DOUBLE_EQ(y, 225);
    const pages::Report report = laidOut();
    ASSERT_EQ(report.pages.size(), 2U);
    EXPECT_EQ(at(report, "Blok 2").page, 0);
    EXPECT_EQ(at(report, "Blok 4").page, 1);
}

TEST_F(Layout, TheAnchorSectionStaysWhole) {
    sample.line(185, QStringLiteral("przed"));
    EXPECT_GT(sample.anchorSection(190), 225) << "its sketch would fit, its last lines would not";
    const pages::Report report = laidOut();
    ASSERT_EQ(report.pages.size(), 2U);
    EXPECT_EQ(at(report, "przed").page, 0);
    EXPECT_EQ(at(report, "Dobrana kotwa").page, 1);
    EXPECT_EQ(at(report, "Długość całkowita: 700").page, 1);
    EXPECT_EQ(report.pages[1].pictures.size(), 1U);
    expectGoodPages(report);
}

TEST_F(Layout, AWholeReportKeepsTheRulesOnEveryPage) {
    for (const int anchors : {1, 7, 13, 20})
        for (const int cases : {1, 3, 6}) {
            SCOPED_TRACE(std::to_string(anchors) + " anchors, " + std::to_string(cases) + " cases");
            sample = SampleReport(folder.path());
            double y = sample.calculation(anchors, cases, anchors);
            y = sample.plateSection(y, {1, 2, 3, 4, 5, 6, 7, 8});
            sample.anchorSection(y);
            const pages::Report report = laidOut();
            EXPECT_GE(report.pages.size(), 2U);
            expectGoodPages(report);
            std::size_t pictures = 0;
            for (const pages::Page& page : report.pages) {
                EXPECT_EQ(count(page, QStringLiteral("Zakotwienie słupów")), 1);
                EXPECT_EQ(page.lines.size(), 7U);
                pictures += page.pictures.size();
            }
            EXPECT_EQ(pictures, 2U + static_cast<std::size_t>(cases) + 7 + 1) << "none is lost";
            EXPECT_TRUE(complained.isEmpty());
        }
}

TEST_F(Layout, PagesCountUpFromTheFirstPageNumber) {
    for (int i = 0; i < 100; ++i)
        sample.line(85 + 4.5 * i, QStringLiteral("x"));
    for (const int first : {12, 0, -1, -32768}) {
        const pages::Report report = laidOut(first);
        ASSERT_EQ(report.pages.size(), 3U);
        for (int i = 0; i < 3; ++i) {
            const pages::Page& page = report.pages[static_cast<std::size_t>(i)];
            EXPECT_EQ(page.number, first + i);
            EXPECT_EQ(count(page, QStringLiteral("Strona ") + QString::number(first + i)), 1);
            EXPECT_EQ(count(page, QStringLiteral("Strona")), 1);
        }
    }
}

TEST_F(Layout, AnExplicitNewPageStartsWithTheFrameOnce) {
    sample.line(85, QStringLiteral("pierwsza"));
    sample.newPage();
    sample.line(40, QStringLiteral("druga"));
    const pages::Report report = laidOut(5);
    ASSERT_EQ(report.pages.size(), 2U);
    EXPECT_EQ(at(report, "druga").page, 1);
    EXPECT_DOUBLE_EQ(at(report, "druga").baseline.y(), 40);
    EXPECT_EQ(count(report.pages[1], QStringLiteral("Zakotwienie słupów")), 1);
    EXPECT_EQ(count(report.pages[1], QStringLiteral("Strona 6")), 1);
}

TEST_F(Layout, TextGoesOnBehindTheLastAndTheSubscriptStandsLower) {
    sample.exceedance(100, QStringLiteral("gdy wsp. docisku min. "), QStringLiteral(" = 1,063"));
    sample.line(104.5, QStringLiteral("dalej"));
    const pages::Report report = laidOut();
    const auto& texts = report.pages[0].texts;
    ASSERT_GE(texts.size(), 5U);
    const pages::Text* chain = &texts[texts.size() - 5];
    EXPECT_EQ(chain[1].text, QStringLiteral("ω")) << "the Symbol font's w";
    EXPECT_EQ(chain[2].text, QStringLiteral("d"));
    for (int i = 1; i < 4; ++i)
        EXPECT_NEAR(chain[i].baseline.x(), chain[i - 1].baseline.x() + chain[i - 1].widthMm(),
                    1e-9);
    EXPECT_DOUBLE_EQ(chain[1].baseline.y(), 100);
    EXPECT_DOUBLE_EQ(chain[2].baseline.y(), 101);
    EXPECT_DOUBLE_EQ(chain[3].baseline.y(), 100);
    EXPECT_DOUBLE_EQ(chain[4].baseline.y(), 104.5);
}

TEST_F(Layout, ATextsLastBlankCountsInItsWidth) {
    sample.exceedance(100, QStringLiteral("min. "), QStringLiteral("="));
    sample.exceedance(110, QStringLiteral("min."), QStringLiteral("="));
    const pages::Report report = laidOut();
    const auto& texts = report.pages[0].texts;
    const double with = texts[texts.size() - 8].widthMm();
    const double without = texts[texts.size() - 4].widthMm();
    EXPECT_NEAR(with - without, 0.278 * 3.2, 0.02) << "a blank of the face";
}

TEST_F(Layout, AShortTextRecordKeepsTheSettingsBefore) {
    sample.underlined(100, QStringLiteral("pierwszy"));
    sample.raw(QStringLiteral("3, 9., 110."));
    sample.raw(QStringLiteral("drugi"));
    const pages::Report report = laidOut();
    const pages::Text& second = report.pages[0].texts.back();
    EXPECT_EQ(second.text, QStringLiteral("drugi"));
    EXPECT_EQ(second.baseline, QPointF(9, 110));
    EXPECT_TRUE(second.underline);
    EXPECT_EQ(second.height, 320);
}

TEST_F(Layout, ALongTextIsSetSmallerBesideAPictureAndAtTheSheetsEdge) {
    const QString longText(120, u'm');
    sample.line(100, longText);
    sample.line(104.5, longText);
    sample.picture(125, 100, 41.1, 27.9, QStringLiteral("a.bmp"));
    sample.line(150, longText);
    const pages::Report report = laidOut();
    expectGoodPages(report);
    const auto& texts = report.pages[0].texts;
    EXPECT_LE(texts[texts.size() - 2].box().right(), 125);
    EXPECT_GT(texts[texts.size() - 2].box().right(), 122);
    EXPECT_LE(texts.back().box().right(), 185);
}

TEST_F(Layout, ALongProjectNameEndsBeforeThePageNumber) {
    sample.projectName = QString(100, u'W');
    const pages::Report report = laidOut();
    const Place place = find(report, sample.projectName);
    EXPECT_EQ(place.page, 0);
    for (const pages::Text& text : report.pages[0].texts) {
        if (text.text == sample.projectName) {
            EXPECT_LE(text.box().right(), 143);
        }
    }
}

TEST_F(Layout, AMissingPictureLeavesAnOutlineWithItsName) {
    sample.picture(10, 35, 52.9, 34.7, QStringLiteral("Ferogo2.bmp"));
    ASSERT_TRUE(QFile::remove(sample.path(QStringLiteral("Ferogo2.bmp"))));
    sample.line(85, QStringLiteral("dalej"));
    const pages::Report report = laidOut();
    ASSERT_EQ(complained.size(), 1);
    EXPECT_TRUE(complained[0].contains(QStringLiteral("brak pliku rysunku")));
    EXPECT_EQ(find(report, QStringLiteral("brak rysunku Ferogo2.bmp")).page, 0);
    EXPECT_EQ(find(report, QStringLiteral("dalej")).page, 0);
    EXPECT_EQ(report.pages[0].lines.size(), 7U + 4U);
}

TEST_F(Layout, TheOutlineOfAMissingPictureSpeaksTheLanguageOfTheReport) {
    sample.picture(10, 35, 52.9, 34.7, QStringLiteral("Ferogo2.bmp"));
    ASSERT_TRUE(QFile::remove(sample.path(QStringLiteral("Ferogo2.bmp"))));
    for (const auto& [language, words] : {std::pair{"pl-PL", "brak rysunku Ferogo2.bmp"},
                                          {"en-GB", "picture missing: Ferogo2.bmp"},
                                          {"fr-FR", "image manquante : Ferogo2.bmp"},
                                          {"de-DE", "Bild fehlt: Ferogo2.bmp"},
                                          {"", "brak rysunku Ferogo2.bmp"}})
        EXPECT_EQ(at(laidOut(1, QString::fromLatin1(language)), words).page, 0) << language;
}

TEST_F(Layout, APictureTallerThanThePageIsMadeSmaller) {
    sample.line(50, QStringLiteral("przed"));
    sample.picture(10, 60, 100, 400, QStringLiteral("a.bmp"));
    const pages::Report report = laidOut();
    expectGoodPages(report);
    const QRectF rect = report.pages.back().pictures.at(0).rect;
    EXPECT_NEAR(rect.height(), 250, 1e-6);
    EXPECT_NEAR(rect.width(), 62.5, 1e-6);
}

TEST_F(Layout, AFarOffCoordinateMakesOnePageNotThousands) {
    sample.line(85, QStringLiteral("blisko"));
    sample.line(900000, QStringLiteral("daleko"));
    EXPECT_EQ(laidOut().pages.size(), 2U);
}

TEST_F(Layout, AMissingFrameFileIsAnError) {
    const QString job = sample.write(QStringLiteral("-2"), 1);
    ASSERT_TRUE(QFile::remove(sample.path(QStringLiteral("FERNAPr1.wyd"))));
    wyd::Complaints complaints;
    try {
        compose(readJob(job), complaints);
        FAIL() << "no error";
    } catch (const RunTimeError& failure) {
        EXPECT_EQ(failure.number(), error::FileNotFound);
        EXPECT_TRUE(failure.detail().contains(QStringLiteral("FERNAPr1.wyd")));
    }
}

} // namespace
