#include "batch/json_writer.h"

#include <gtest/gtest.h>

using namespace ferna;
using namespace ferna::batch;

namespace {

std::string writtenText(const QString& text) {
    JsonWriter json(JsonWriter::Layout::OneLine);
    json.text(text);
    return json.written();
}

std::string writtenUtf8(const std::string& text) {
    JsonWriter json(JsonWriter::Layout::OneLine);
    json.utf8(text);
    return json.written();
}

TEST(TextInJson, IsThatOfTheLibraryForEveryLetterAtEveryPlace) {
    for (char32_t letter = 0; letter <= 0x1F600; letter += letter < 0x3000 ? 1 : 0x3F) {
        if (letter >= 0xD800 && letter < 0xE000)
            continue;
        const QString one = QString::fromUcs4(&letter, 1);
        for (const int place : {0, 1, 15, 16, 17, 40}) {
            const QString text = QString(place, u'a') + one + QString(47 - place, u'~');
            const std::string expected = Json(text.toStdString()).dump();
            ASSERT_EQ(writtenText(text), expected)
                << static_cast<unsigned>(letter) << " at " << place;
            ASSERT_EQ(writtenUtf8(text.toStdString()), expected);
        }
    }
}

TEST(TextInJson, OfAnyLengthIsWhole) {
    JsonWriter json(JsonWriter::Layout::OneLine);
    json.beginArray();
    Json expected = Json::array();
    for (int length = 0; length < 400; length += 7) {
        const QString text = QString(length, u'\u0001') + QString(length, u'ż');
        json.text(text);
        expected.push_back(text.toStdString());
    }
    json.endArray();
    EXPECT_EQ(json.written(), expected.dump());
}

TEST(TextInJson, HasAQuestionMarkForHalfACharacter) {
    EXPECT_EQ(writtenText(QStringLiteral("a") + QChar(0xD83D) + u'b'), "\"a?b\"");
    EXPECT_EQ(writtenText(QString(QChar(0xD83D))), "\"?\"");
    EXPECT_EQ(writtenText(QString(QChar(0xDE00)) + QChar(0xD83D)), "\"??\"");
}

TEST(ValueInJson, IsThatOfTheLibrary) {
    const Json value = Json::parse(
        R"({"a": [1, -2, 18, 2.5, 1e300, true, false, null, "z", {}, []], "b": {"c": 0.1}})");
    JsonWriter json(JsonWriter::Layout::OneLine);
    json.value(value);
    EXPECT_EQ(json.written(), value.dump());
    JsonWriter indented(JsonWriter::Layout::Indented);
    indented.value(value);
    EXPECT_EQ(indented.written(), value.dump(1));
}

} // namespace
