#include "design/typed_names.h"
#include "pages/letter_widths.h"
#include "support/decimal_comma.h"
#include "support/printing.h"

#include <gtest/gtest.h>

using namespace ferna;
using ferna::testing::WithDecimalSign;

namespace {

const QString longName = QStringLiteral("Rozbudowa hali produkcyjnej nr 4 zakładu w Nowym Sączu, "
                                        "etap II, oś 12, słupy pośrednie i narożne suwnicy");

TEST(TypedNames, LettersOutsideTheCodePageAreNamedOnceInTheirOrder) {
    EXPECT_EQ(lostLetters(u"Słup Ω, φ i Ω"), QStringLiteral("Ωφ"));
    EXPECT_EQ(lostLetters(u"\U0001F600 \U0001F601 \U0001F600"),
              QStringLiteral("\U0001F600\U0001F601"));
    EXPECT_EQ(lostLetters(u"Zażółć gęślą jaźń – „100 %”"), QString());
}

TEST(TypedNames, ALabelLosesWhatStandsBehind32Characters) {
    EXPECT_EQ(cutFromLabel(u"12345678901234567890123456789012"), QString());
    EXPECT_EQ(cutFromLabel(u"12345678901234567890123456789012 A"), QStringLiteral(" A"));
}

TEST(TypedNames, AProjectNameKeepsItsLettersAsLongAsItFits) {
    EXPECT_EQ(projectLetters(u"Hala A"), 3.5);
    EXPECT_EQ(projectLetters(u""), 3.5);
    // M is 1706 / 2048 of its height wide: 47 of them fill 137.0 mm, 48 of them 139.9 mm
    EXPECT_EQ(projectLetters(QString(47, u'M')), 3.5);
    EXPECT_EQ(projectLetters(QString(48, u'M')), 3.47);
    EXPECT_NEAR(points(projectLetters(QString(120, u'M'))), 3.9, 0.05);
    EXPECT_EQ(projectLetters(QString(1'000'000, u'M')), 0.01);
}

TEST(TypedNames, WidthsAreThoseOfTheFace) {
    EXPECT_DOUBLE_EQ(drawing::textWidth(u"Mi", 2048), 1706 + 455);
    EXPECT_DOUBLE_EQ(drawing::textWidth(u" ~", 2048), 569 + 1196);
    EXPECT_DOUBLE_EQ(drawing::textWidth(u"ąŻ", 2048), 1139 + 1251);
    EXPECT_EQ(drawing::textWidth(u"Ω", 2048), drawing::textWidth(u"?", 2048));
}

TEST(TypedNames, NotesSayWhatIsLost) {
    const WithDecimalSign comma{u','};
    EXPECT_EQ(labelNote(QStringLiteral("F-1")), QString());
    EXPECT_EQ(labelNote(QStringLiteral("Stopa Ω pod słup pośredni w osi 12/C")),
              QStringLiteral("Tych znaków nie ma w stronie kodowej 1250, zamiast nich będzie "
                             "\"?\": Ω\nOznaczenie ma najwyżej 32 znaki, w raporcie nie będzie: "
                             "\"12/C\""));
    EXPECT_EQ(projectNote(QStringLiteral("Hala A")), QString());
    EXPECT_EQ(projectNote(longName),
              QStringLiteral("Nazwa nie mieści się w wierszu nagłówka: na stronach raportu będzie "
                             "pismem 8,1 pt zamiast 9,9 pt"));
    EXPECT_EQ(steelNote(QStringLiteral("S355 J2")), QString());
    EXPECT_EQ(steelNote(QStringLiteral("S355, J2")),
              QStringLiteral("W zapisanym zadaniu nazwa kończy się przed przecinkiem"));
}

} // namespace
