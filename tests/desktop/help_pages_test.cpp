#include "design/material_tables.h"
#include "desktop/forms/Help_window.h"
#include "desktop/help_texts.h"
#include "runtime/format.h"
#include "support/decimal_comma.h"
#include "support/places.h"

#include <QFileInfo>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <QUrl>

#include <gtest/gtest.h>

using namespace ferna;
using namespace ferna::testing;

namespace {

const QString project = QStringLiteral("ferna.qhp");

/// Whether the help holds what a link names: a page, an anchor of it, a sketch or the style sheet.
bool leadsSomewhere(const QString& link, const QString& fromPage) {
    const QString page = link.section(u'#', 0, 0);
    const QString anchor = link.section(u'#', 1);
    if (page.startsWith(u"szkice/"))
        return QFileInfo::exists(helpFolder + u'/' + page)
               || QFileInfo::exists(places::data("/") + page);
    if (page.startsWith(u"przewodnik/")) // made of the guides by the build
        return QFileInfo(places::bin("/../help/") + page).isFile();
    const QString target = page.isEmpty() ? fromPage : page;
    if (!QFileInfo(helpFolder + u'/' + target).isFile())
        return false;
    return anchor.isEmpty()
           || captured(helpPage(target), QStringLiteral("\\bid=\"([^\"]*)\"")).contains(anchor);
}

/// A table row of a page, as it stands in its text.
QString row(const QStringList& cells) {
    return QStringLiteral("<td>") + cells.join(QStringLiteral("</td><td>"))
           + QStringLiteral("</td>");
}

QString onOneLine(const QString& page) {
    return helpPage(page).simplified().replace(QStringLiteral("</td> <td>"),
                                               QStringLiteral("</td><td>"));
}

TEST(HelpPages, ThereAreSome) {
    EXPECT_GT(helpPages().size(), 10);
}

TEST(HelpPages, EveryPlaceThatTheProjectNamesExists) {
    const QStringList places = captured(helpPage(project), QStringLiteral("\\bref=\"([^\"]*)\""));
    EXPECT_GT(places.size(), 40);
    for (const QString& place : places)
        EXPECT_TRUE(leadsSomewhere(place, project)) << place.toStdString();
}

TEST(HelpPages, EveryPageStandsInTheContents) {
    const QStringList inContents =
        captured(helpPage(project), QStringLiteral("<section [^>]*ref=\"([^\"]*)\""));
    for (const QString& page : helpPages())
        EXPECT_TRUE(inContents.contains(page)) << page.toStdString();
}

TEST(HelpPages, EveryLinkAndPictureOfAPageExists) {
    int links = 0;
    for (const QString& page : helpPages())
        for (const QString& link :
             captured(helpPage(page), QStringLiteral("\\b(?:href|src)=\"([^\"]*)\""))) {
            EXPECT_TRUE(leadsSomewhere(link, page))
                << page.toStdString() << ": " << link.toStdString();
            ++links;
        }
    EXPECT_GT(links, 80);
}

// As the build has laid them: with their anchors, their pictures and the files they name.
TEST(HelpPages, EveryLinkAndPictureOfAGuideExists) {
    const QString root = places::bin("/../help/przewodnik");
    int links = 0;
    for (const char* language : {"/en", "/pl"}) {
        const QDir folder(root + QLatin1String(language));
        for (const QString& name : folder.entryList({QStringLiteral("*.html")}, QDir::Files))
            for (const QString& link : captured(textOf(folder.filePath(name)),
                                                QStringLiteral("\\b(?:href|src)=\"([^\"]*)\""))) {
                const QUrl url(link);
                const QString target = folder.filePath(url.path().isEmpty() ? name : url.path());
                EXPECT_TRUE(QFileInfo(target).isFile())
                    << name.toStdString() << ": " << link.toStdString();
                const QString anchor = url.fragment(QUrl::FullyDecoded);
                EXPECT_TRUE(anchor.isEmpty()
                            || textOf(target).contains(QStringLiteral(" id=\"%1\"").arg(anchor)))
                    << name.toStdString() << ": " << link.toStdString();
                ++links;
            }
    }
    EXPECT_GT(links, 40);
}

TEST(HelpPages, EveryPageHasItsTitleInsideAndOut) {
    for (const QString& page : helpPages()) {
        const QString text = helpPage(page);
        EXPECT_EQ(captured(text, QStringLiteral("<title>([^<]+)</title>")).size(), 1)
            << page.toStdString();
        EXPECT_EQ(captured(text, QStringLiteral("<h1>([^<]+)</h1>")).size(), 1)
            << page.toStdString();
        EXPECT_TRUE(text.contains(u"<meta charset=\"utf-8\">")) << page.toStdString();
    }
}

TEST(HelpPages, EveryTagOfAPageIsClosedInItsOrder) {
    const QStringList single{QStringLiteral("meta"), QStringLiteral("link"), QStringLiteral("br"),
                             QStringLiteral("img")};
    for (const QString& page : helpPages()) {
        QStringList open;
        for (const QString& tag :
             captured(helpPage(page), QStringLiteral("<(/?[a-z][a-z0-9]*)[^>]*>"))) {
            if (!tag.startsWith(u'/')) {
                if (!single.contains(tag))
                    open += tag;
                continue;
            }
            ASSERT_FALSE(open.isEmpty()) << page.toStdString() << ": " << tag.toStdString();
            EXPECT_EQ(u'/' + open.takeLast(), tag) << page.toStdString();
        }
        EXPECT_TRUE(open.isEmpty()) << page.toStdString();
    }
}

TEST(HelpPages, AKeywordAndAContextStandOnce) {
    for (const char* attribute : {"name", "id"}) {
        const QStringList all =
            captured(helpPage(project),
                     QStringLiteral("<keyword [^>]*%1=\"([^\"]*)\"").arg(QLatin1String(attribute)));
        EXPECT_EQ(QSet<QString>(all.begin(), all.end()).size(), all.size()) << attribute;
    }
}

TEST(HelpPages, EveryContextOfTheFormsHasItsPage) {
    const QStringList ids =
        captured(helpPage(project), QStringLiteral("<keyword [^>]*id=\"([^\"]*)\""));
    for (const int context :
         {help::Start, help::Configuration, help::General, help::Loads, help::Anchors,
          help::Statics, help::Results, help::PlateThickness, help::AnchorSelection, help::Capacity,
          help::SmallestBase, help::Messages})
        EXPECT_TRUE(ids.contains(QString::number(context))) << context;
}

TEST(HelpPages, TheTablesAreThoseOfTheCalculation) {
    const WithDecimalSign comma(u',');
    const QString page = onOneLine(QStringLiteral("sprawdzenia.html"));
    for (const Integer norm : {CInt(0), CInt(1)})
        for (int number = 1; number <= concreteNames(norm).size(); ++number) {
            const Concrete& c = concrete(norm, CInt(number));
            const QString cells = row({QString::fromLatin1(c.name), Format(c.Rb_plain, u"#0.0"),
                                       Format(c.Rb_reinforced, u"#0.0"), general(c.Eb_betonu)});
            EXPECT_TRUE(page.contains(cells)) << cells.toStdString();
        }
    for (const int fi : anchorDiameters)
        EXPECT_TRUE(page.contains(row({general(coreArea(CInt(fi)).value())}))) << fi;
    for (int steel = 1; steel < userSteel; ++steel)
        for (const int fi : {16, 17, 30, 31, 32, 41}) {
            const auto strengths = anchorSteel(CInt(steel), CInt(fi));
            if (!strengths)
                continue;
            const QString cells = row({general(strengths->Fd_kotwy), general(strengths->Fd2_kotwy),
                                       general(strengths->Fv_kotwy)});
            EXPECT_TRUE(page.contains(cells))
                << steel << ", M" << fi << ": " << cells.toStdString();
        }
}

TEST(HelpPages, TheExampleOfTheFirstStepsIsWhatTheProgramComputes) {
    const QTemporaryDir folder;
    const QString report = folder.filePath(QStringLiteral("raport.txt"));
    QProcess batch;
    batch.start(places::bin("/ferna-wsad"),
                {QStringLiteral("--dziesietny"), QStringLiteral(","), QStringLiteral("--raport"),
                 report, places::data("/przyklady/slup-hali.json")});
    ASSERT_TRUE(batch.waitForFinished());
    ASSERT_EQ(batch.exitCode(), 0) << batch.readAllStandardError().toStdString();
    QFile file(report);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString computed = QString::fromLatin1(file.readAll()).simplified();
    const QString shown = captured(helpPage(QStringLiteral("pierwsze-kroki.html")),
                                   QStringLiteral("<pre>(.*?)</pre>"))
                              .value(0);
    // The letters of the code page aside, every number of the page stands in the report.
    const QStringList numbers = captured(shown, QStringLiteral("(-?\\d+,\\d+|-?\\d\\d+)"));
    EXPECT_EQ(numbers.size(), 9);
    for (const QString& number : numbers)
        EXPECT_TRUE(computed.contains(number)) << number.toStdString();
}

} // namespace
