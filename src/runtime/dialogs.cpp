#include "runtime/dialogs.h"

#include <utility>

namespace ferna {

void ScriptedDialogs::message(const QString& text, const QString& title, MessageStyle style) {
    messages.push_back({text, title, style});
}

bool ScriptedDialogs::confirm(const QString& text, const QString& title) {
    return input(text, title, {}, {}, {}) == u"tak";
}

QString ScriptedDialogs::input(const QString& prompt, const QString& title, const QString& preset,
                               std::optional<QPoint> /*position*/, const NoteOf& noteOf) {
    QString answer = nextAnswer().value_or(preset);
    questions.push_back(
        {prompt, title, MessageStyle::Question, noteOf ? noteOf(answer) : QString()});
    return answer;
}

std::optional<QString> ScriptedDialogs::saveFile(const SaveQuestion& question) {
    questions.push_back({question.preset, question.title, MessageStyle::Question});
    return nextAnswer();
}

std::optional<QString> ScriptedDialogs::nextAnswer() {
    if (answers.empty())
        return std::nullopt;
    QString answer = std::move(answers.front());
    answers.erase(answers.begin());
    return answer;
}

QString lineOf(const ScriptedDialogs::Box& box) {
    return box.title + QStringLiteral(": ") + box.text;
}

void HeardDialogs::message(const QString& text, const QString& title, MessageStyle style) {
    heard += lineOf({text, title, style});
    shown_.message(text, title, style);
}

bool HeardDialogs::confirm(const QString& text, const QString& title) {
    return shown_.confirm(text, title);
}

QString HeardDialogs::input(const QString& prompt, const QString& title, const QString& preset,
                            std::optional<QPoint> position, const NoteOf& noteOf) {
    return shown_.input(prompt, title, preset, position, noteOf);
}

std::optional<QString> HeardDialogs::saveFile(const SaveQuestion& question) {
    return shown_.saveFile(question);
}

} // namespace ferna
