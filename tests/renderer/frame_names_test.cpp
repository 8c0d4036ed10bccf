// What is said of a project's name beside its field against what the pages make of it.
#include "design/typed_names.h"
#include "pages/letter_widths.h"
#include "pages/text_measure.h"
#include "renderer/layout.h"
#include "renderer/sample_report.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>

using namespace ferna;
using namespace ferna::renderer;

namespace {

double drawnWidth(const QString& text) {
    pages::Text drawn;
    drawn.text = text;
    drawn.height = 350;
    measure(drawn);
    return drawn.widthMm();
}

TEST(FrameNames, WidthsWithoutFontsAreThoseOfTheDrawnLetters) {
    for (const QString& name :
         {QStringLiteral("Hala produkcyjna, oś 12"), QStringLiteral("ZAŻÓŁĆ GĘŚLĄ JAŹŃ"),
          QStringLiteral("0123456789 -+/()%&"), QStringLiteral("Länge der Fußplatte à 5 °")})
        EXPECT_NEAR(drawing::textWidth(name, 3.5) / drawnWidth(name), 1, 0.01)
            << name.toStdString();
}

TEST(FrameNames, LettersOfALongProjectNameAreAsSmallAsWasSaid) {
    for (const int repetitions : {2, 5, 9}) {
        const QTemporaryDir folder;
        ferna::testing::SampleReport sample(folder.path());
        sample.projectName = QStringLiteral("Rozbudowa hali nr 4 w Sączu ").repeated(repetitions);
        sample.line(85, QStringLiteral("wiersz"));
        wyd::Complaints complaints;
        const pages::Report report =
            compose(readJob(sample.write(QStringLiteral("-2"), 1)), complaints);
        const auto& texts = report.pages.front().texts;
        const auto drawn = std::find_if(texts.begin(), texts.end(), [&](const pages::Text& text) {
            return text.text == sample.projectName;
        });
        ASSERT_NE(drawn, texts.end());
        EXPECT_NEAR(drawn->heightMm() / projectLetters(sample.projectName), 1, 0.01);
        EXPECT_EQ(drawn->heightMm() < 3.5, repetitions > 2);
    }
}

} // namespace
