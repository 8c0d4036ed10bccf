#pragma once

#include <QPoint>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

namespace ferna {

/// The title of every message that has none of its own.
inline const QString programTitle = QStringLiteral("Ferna 2005 Pr");

/// Icon of a message box, with the classic numbers.
enum class MessageStyle { Plain = 0, Stop = 16, Question = 32, Exclamation = 48, Information = 64 };

/// A question for the name of a file to save. An existing file is asked about before it is
/// replaced.
struct SaveQuestion {
    QString title;
    QString preset;    ///< name offered
    QString extension; ///< added to a name without one, with its point
    QString filter;    ///< "text (*.ext)|*.ext|..."
};

/// What is to be said beside a field as its text is typed; empty for nothing.
using NoteOf = std::function<QString(const QString& typed)>;

/// Message boxes and input boxes as core code sees them: core code never opens a window.
class Dialogs {
public:
    virtual ~Dialogs() = default;

    virtual void message(const QString& text, const QString& title, MessageStyle style) = 0;
    /// A question with Yes and No; true for Yes.
    virtual bool confirm(const QString& text, const QString& title) = 0;
    /// The text typed; empty where the box was cancelled. `noteOf` what is typed stands beside the
    /// field; without it what any text loses in the program's files.
    virtual QString input(const QString& prompt, const QString& title, const QString& preset,
                          std::optional<QPoint> position = {}, const NoteOf& noteOf = {}) = 0;
    /// The path chosen; none where the question was cancelled.
    virtual std::optional<QString> saveFile(const SaveQuestion& question) = 0;
};

/// Boxes without a screen: every box is recorded, the answers are given beforehand.
class ScriptedDialogs : public Dialogs {
public:
    struct Box {
        QString text;
        QString title;
        MessageStyle style = MessageStyle::Plain;
        QString note = {}; ///< what stood beside the field of an input box with its answer
    };

    void message(const QString& text, const QString& title, MessageStyle style) override;
    /// The next answer counts as Yes where it is "tak"; without one the answer is No.
    bool confirm(const QString& text, const QString& title) override;
    /// The next answer; without one the preset, as by Enter.
    QString input(const QString& prompt, const QString& title, const QString& preset,
                  std::optional<QPoint> position, const NoteOf& noteOf) override;
    /// The next answer; without one the question is cancelled.
    std::optional<QString> saveFile(const SaveQuestion& question) override;

    std::vector<Box> messages;    ///< message boxes in their order
    std::vector<Box> questions;   ///< questions and input boxes in their order
    std::vector<QString> answers; ///< of the questions and input boxes to come

private:
    std::optional<QString> nextAnswer();
};

/// A message box as one line of text: "title: text".
QString lineOf(const ScriptedDialogs::Box& box);

/// Hands every box on and keeps what the message boxes have said.
class HeardDialogs : public Dialogs {
public:
    explicit HeardDialogs(Dialogs& shown) : shown_(shown) {}

    void message(const QString& text, const QString& title, MessageStyle style) override;
    bool confirm(const QString& text, const QString& title) override;
    QString input(const QString& prompt, const QString& title, const QString& preset,
                  std::optional<QPoint> position, const NoteOf& noteOf) override;
    std::optional<QString> saveFile(const SaveQuestion& question) override;

    QStringList heard; ///< `lineOf` each message box, in their order

private:
    Dialogs& shown_;
};

} // namespace ferna
