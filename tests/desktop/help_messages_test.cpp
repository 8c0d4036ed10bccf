#include "desktop/help_texts.h"
#include "desktop/source_texts.h"
#include "runtime/run_time_error.h"
#include "support/places.h"

#include <gtest/gtest.h>

using namespace ferna;
using namespace ferna::testing;

namespace {

const QString messagesPage = QStringLiteral("komunikaty.html");

// A message, a question, and the refusals that a command turns into a message.
const QStringList messageCalls{
    QStringLiteral("message"),  QStringLiteral("confirm"),     QStringLiteral("input"),
    QStringLiteral("Refusal"),  QStringLiteral("require"),     QStringLiteral("tooThick"),
    QStringLiteral("TooThick"), QStringLiteral("saveFile"),    QStringLiteral("SaveQuestion"),
    QStringLiteral("critical"), QStringLiteral("information"), QStringLiteral("warning")};

/// A text without its variable parts, each part with single blanks. Mnemonics are left out.
QStringList fixedParts(QString text) {
    text.remove(u'&');
    QStringList parts;
    for (const QString& part : text.split(QRegularExpression(QStringLiteral("%\\d"))))
        if (part.contains(QRegularExpression(QStringLiteral("\\p{L}\\p{L}"))))
            parts += part.simplified();
    return parts;
}

/// Every text of the program: those of its sources and of its forms.
const QStringList& textsOfTheProgram() {
    static const QStringList texts = [] {
        QStringList all;
        for (const QString& file : sourceFiles()) {
            const QString source = textOf(file);
            const QStringList found =
                file.endsWith(u".ui") ? captured(source, QStringLiteral("<string>([^<]*)</string>"))
                                      : textsOf(tokensOf(source));
            for (QString text : found) {
                text.replace(QStringLiteral("&amp;"), QStringLiteral("&"));
                all += text.remove(u'&').simplified();
            }
        }
        return all;
    }();
    return texts;
}

bool programSays(const QString& part) {
    for (const QString& text : textsOfTheProgram())
        if (text.contains(part))
            return true;
    return false;
}

struct Section {
    QString id;
    QString html;
};

std::vector<Section> sections() {
    std::vector<Section> all;
    const QStringList pieces = helpPage(messagesPage).split(QStringLiteral("<h2 id=\""));
    for (const QString& piece : pieces.mid(1))
        all.push_back({piece.section(u'"', 0, 0), piece.section(u'>', 1)});
    return all;
}

/// The fixed parts of a message as the page shows it: what stands outside <var>.
QStringList partsShown(const QString& message) {
    QStringList parts;
    for (const QString& piece :
         message.split(QRegularExpression(QStringLiteral("<var>[^<]*</var>")))) {
        const QString part = plain(piece);
        if (!part.isEmpty())
            parts += part;
    }
    return parts;
}

/// A run of pieces that a line end in the program joins: the page shows them in one cell.
bool programSaysAll(const QString& message) {
    for (const QString& part : partsShown(message))
        if (part.contains(QRegularExpression(QStringLiteral("\\p{L}|!!"))) && !programSays(part))
            return false;
    return true;
}

TEST(HelpMessages, EveryMessageOfThePageStandsInTheProgram) {
    int checked = 0;
    for (const Section& section : sections()) {
        const QStringList messages =
            captured(section.html, QStringLiteral("<td class=\"k\">(.*?)</td>"));
        EXPECT_FALSE(messages.isEmpty()) << section.id.toStdString();
        for (const QString& message : messages) {
            ++checked;
            EXPECT_TRUE(programSaysAll(message))
                << section.id.toStdString() << ": " << message.toStdString();
        }
    }
    EXPECT_GT(checked, 80);
}

TEST(HelpMessages, EveryMessageBoxOfTheProgramStandsOnThePage) {
    const QString page = plain(helpPage(messagesPage));
    int checked = 0;
    for (const QString& file : sourceFiles()) {
        if (!file.endsWith(u".cpp") || file.contains(u"/src/batch/"))
            continue; // the companion has no windows
        const std::vector<Token> tokens = tokensOf(textOf(file));
        QStringList texts = textsHandedTo(tokens, messageCalls);
        for (const QString& text : textsOf(tokens)) {
            const bool saysAloud = text.endsWith(u'!') && text.contains(u' ');
            if (saysAloud) // the words of a table of refusals
                texts += text;
        }
        for (const QString& text : texts)
            for (const QString& part : fixedParts(text)) {
                ++checked;
                EXPECT_TRUE(page.contains(part))
                    << file.toStdString() << ": " << part.toStdString();
            }
    }
    EXPECT_GT(checked, 80);
}

TEST(HelpMessages, EveryWindowThatTellsAnErrorStandsOnThePage) {
    const QString page = plain(helpPage(messagesPage));
    int files = 0;
    for (const QString& file : sourceFiles()) {
        const QString source = textOf(file);
        if (!file.endsWith(u".cpp") || !source.contains(u"#include <QMessageBox>")
            || file.endsWith(u"/qt_dialogs.cpp"))
            continue;
        ++files;
        for (const QString& text : textsOf(tokensOf(source)))
            for (const QString& part : fixedParts(text))
                EXPECT_TRUE(!part.contains(u' ') || page.contains(part))
                    << file.toStdString() << ": " << part.toStdString();
    }
    EXPECT_GE(files, 2);
}

TEST(HelpMessages, EveryRunTimeErrorStandsOnThePageWithItsNumber) {
    const QString page = helpPage(messagesPage).simplified();
    const QStringList numbers = captured(textOf(places::source("/src/runtime/run_time_error.h")),
                                         QStringLiteral("inline constexpr int \\w+ = (\\d+);"));
    EXPECT_GE(numbers.size(), 16);
    for (const QString& number : numbers) {
        const QString row = QStringLiteral("<tr><td>%1</td><td class=\"k\">%2</td>")
                                .arg(number, errorText(number.toInt()));
        EXPECT_TRUE(page.contains(row)) << row.toStdString();
    }
}

TEST(HelpMessages, ATextThatTheProgramDoesNotHoldIsNoticed) {
    EXPECT_FALSE(programSaysAll(QStringLiteral("Takiego komunikatu nie ma")));
    EXPECT_FALSE(programSaysAll(QStringLiteral("<var>n</var> takiego dopisku nie ma")));
    EXPECT_TRUE(programSaysAll(QStringLiteral("BRAK ROZWIĄZANIA<br>Zmodyfikuj nieco dane")));
}

TEST(SourceTexts, DigitsMayBeGrouped) {
    EXPECT_EQ(textsOf(tokensOf(QStringLiteral("const int many = 1'000'000'000; say(\"here\");"))),
              QStringList(QStringLiteral("here")));
}

TEST(SourceTexts, TextsAreReadAsTheProgramShowsThem) {
    const auto tokens = tokensOf(QStringLiteral(
        "// \"a comment\"\nshow(u\"one \"\n \"two\\n\\\"x\\\"\", '\"'); keep(\"three\");"));
    EXPECT_EQ(textsOf(tokens),
              QStringList({QStringLiteral("one two\n\"x\""), QStringLiteral("three")}));
    EXPECT_EQ(textsHandedTo(tokens, {QStringLiteral("keep")}),
              QStringList(QStringLiteral("three")));
}

} // namespace
