#pragma once

#include <QString>

#include <deque>
#include <functional>
#include <vector>

class QWidget;

namespace ferna::testing {

/// Answers the modal boxes and dialogs that the clicks and keys of a test bring up, in the order in
/// which the test announced them. A box that nobody announced fails the test and is closed; one
/// that was announced and did not come fails the test at its end.
class ModalAnswers {
public:
    using Step = std::function<void(QWidget& modal)>;

    ModalAnswers();
    ~ModalAnswers();
    ModalAnswers(const ModalAnswers&) = delete;
    ModalAnswers& operator=(const ModalAnswers&) = delete;

    /// A box whose text holds `text` under this title; the button with this caption is clicked.
    void box(const QString& title, const QString& text,
             const QString& button = QStringLiteral("OK"));
    /// The stop of the environment with this error number; goes back to the program, or ends it,
    /// which is asked about once more.
    void stop(int number, bool end = false);
    /// An input box: its title, its prompt, its preset; the answer is typed over it.
    void input(const QString& title, const QString& prompt, const QString& preset,
               const QString& answer);
    /// An input box that is left by Esc.
    void cancelInput(const QString& title);
    /// A dialog by its object name; it has to be closed when the step is over.
    void dialog(const QString& objectName, Step step);
    /// A dialog by its object name that is closed by its frame.
    void closeByFrame(const QString& objectName);

    /// All that was announced has come.
    bool done() const { return steps_.empty(); }

private:
    void look();
    void lookSoon();
    void run(QWidget& modal);

    std::deque<Step> steps_;
    std::vector<QWidget*> busy_; ///< being answered, outermost first
};

} // namespace ferna::testing
