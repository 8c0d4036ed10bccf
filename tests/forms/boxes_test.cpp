// The boxes of the program: their icon, their buttons, and which of them Enter and Esc press.
#include "desktop/forms/damaged_file_box.h"
#include "support/worked_form.h"
#include "widgets/environment_stop.h"

#include <QFile>
#include <QFileDialog>
#include <QMessageBox>

using namespace ferna;
using namespace ferna::testing;

namespace {

struct Face {
    QMessageBox::Icon icon;
    QStringList buttons;
    QString atEnter; ///< default button
    QString atEsc;
};

class Boxes : public WorkedForm {
protected:
    Boxes() {
        window.resize(300, 200);
        window.show();
    }

    static QString textOf(const QAbstractButton* button) {
        return button == nullptr ? QString() : button->text().remove(u'&');
    }

    static void press(const QMessageBox& box, const char* caption) {
        for (QAbstractButton* button : box.buttons())
            if (textOf(button) == QString::fromUtf8(caption))
                return QTest::mouseClick(button, Qt::LeftButton);
        ADD_FAILURE() << "no button " << caption;
    }

    /// The next box has this face; the key is pressed in it.
    void expect(const Face& face, Qt::Key key, const QString& name = {}) {
        answers.dialog(name, [face, key](QWidget& modal) {
            auto* const box = qobject_cast<QMessageBox*>(&modal);
            ASSERT_NE(box, nullptr);
            EXPECT_EQ(box->icon(), face.icon);
            QStringList buttons;
            for (const QAbstractButton* button : box->buttons())
                buttons += textOf(button);
            buttons.sort();
            EXPECT_EQ(buttons, face.buttons);
            EXPECT_EQ(textOf(box->defaultButton()), face.atEnter);
            if (!face.atEsc.isEmpty()) {
                EXPECT_EQ(textOf(box->escapeButton()), face.atEsc);
            }
            QTest::keyClick(box, key);
        });
    }

    QWidget window;
};

TEST_F(Boxes, AMessageShowsTheIconOfItsStyleAndOneButton) {
    const std::vector<std::pair<MessageStyle, QMessageBox::Icon>> icons{
        {MessageStyle::Plain, QMessageBox::NoIcon},
        {MessageStyle::Stop, QMessageBox::Critical},
        {MessageStyle::Question, QMessageBox::Question},
        {MessageStyle::Exclamation, QMessageBox::Warning},
        {MessageStyle::Information, QMessageBox::Information}};
    for (const auto& [style, icon] : icons)
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
            expect({icon, {QStringLiteral("OK")}, QStringLiteral("OK"), {}}, key);
            dialogs.message(QStringLiteral("<b>tekst</b>"), programTitle, style);
            EXPECT_TRUE(answers.done());
        }
}

TEST_F(Boxes, AQuestionIsNotAnsweredByYesUnlessYesIsChosen) {
    const Face face{QMessageBox::Question,
                    {QStringLiteral("Nie"), QStringLiteral("Tak")},
                    QStringLiteral("Nie"),
                    QStringLiteral("Nie")};
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        expect(face, key);
        EXPECT_FALSE(dialogs.confirm(QStringLiteral("Czy?"), programTitle));
    }
    answers.box(programTitle, QStringLiteral("Czy?"), QStringLiteral("Tak"));
    EXPECT_TRUE(dialogs.confirm(QStringLiteral("Czy?"), programTitle));
}

TEST_F(Boxes, TheStopOfAnErrorGoesBackByEnterAndEsc) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        answers.dialog(QStringLiteral("environmentStop"), [key](QWidget& modal) {
            auto* const box = qobject_cast<QMessageBox*>(&modal);
            EXPECT_EQ(box->icon(), QMessageBox::Critical);
            EXPECT_EQ(textOf(box->defaultButton()), QStringLiteral("Wróć do programu"));
            EXPECT_EQ(textOf(box->escapeButton()), QStringLiteral("Wróć do programu"));
            QTest::keyClick(box, key);
        });
        EXPECT_FALSE(guarded(&window, [] { throw RunTimeError(error::TypeMismatch); }));
        EXPECT_TRUE(answers.done());
    }
}

TEST_F(Boxes, ADamagedFileOfTheStartIsNamedAndStaysUnlessReplacingItIsChosen) {
    const RunTimeError why(error::InputPastEnd, QStringLiteral("Ferpl.txt, wiersz 61"));
    const DamagedFile catalogue{QStringLiteral("Ferpl.txt"), why,
                                QStringLiteral("Ferpl.txt.uszkodzony.2"), false};
    const Face face{QMessageBox::Critical,
                    {QStringLiteral("Dostarczony katalog"), QStringLiteral("Zakończ program")},
                    QStringLiteral("Zakończ program"),
                    QStringLiteral("Zakończ program")};
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        expect(face, key);
        EXPECT_FALSE(wantsDeliveredFile(catalogue));
    }
    answers.dialog({}, [](QWidget& modal) {
        auto* const box = qobject_cast<QMessageBox*>(&modal);
        EXPECT_EQ(box->windowTitle(), programTitle);
        EXPECT_TRUE(box->text().startsWith(QStringLiteral("Błąd wykonania '62':\n")));
        EXPECT_TRUE(box->text().endsWith(QStringLiteral("Ferpl.txt, wiersz 61")));
        EXPECT_EQ(box->informativeText(),
                  QStringLiteral("Program może zacząć pracę z dostarczonym katalogiem języka; "
                                 "zadanie w Ferna.cfg pozostaje bez zmian. Uszkodzony plik "
                                 "Ferpl.txt zostanie zachowany jako Ferpl.txt.uszkodzony.2."));
        press(*box, "Dostarczony katalog");
    });
    EXPECT_TRUE(wantsDeliveredFile(catalogue));

    answers.dialog({}, [](QWidget& modal) {
        auto* const box = qobject_cast<QMessageBox*>(&modal);
        EXPECT_EQ(box->informativeText(),
                  QStringLiteral("Program może zacząć pracę z ustawieniami początkowymi."));
        press(*box, "Ustawienia początkowe");
    });
    EXPECT_TRUE(wantsDeliveredFile({QStringLiteral("Ferna.cfg"), why, QString(), true}));
}

TEST_F(Boxes, AFileThatExistsIsAskedAboutBeforeItIsReplaced) {
    QFile existing(path(QStringLiteral("raport.txt")));
    ASSERT_TRUE(existing.open(QIODevice::WriteOnly));
    existing.close();
    for (const bool replace : {false, true}) {
        answers.dialog(QStringLiteral("saveQuestion"), [this](QWidget& modal) {
            auto* const field = modal.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            field->setText(path(QStringLiteral("raport.txt")));
            QTest::keyClick(field, Qt::Key_Return);
        });
        answers.dialog(QStringLiteral("replaceQuestion"), [replace](QWidget& modal) {
            auto* const box = qobject_cast<QMessageBox*>(&modal);
            ASSERT_NE(box, nullptr);
            EXPECT_EQ(box->icon(), QMessageBox::Question);
            EXPECT_EQ(box->text(), QStringLiteral("Zastąpić istniejące pliki: raport.txt?"));
            EXPECT_EQ(box->defaultButton()->text(), QStringLiteral("&Nie"));
            EXPECT_EQ(box->escapeButton()->text(), QStringLiteral("&Nie"));
            press(*box, replace ? "Tak" : "Nie");
        });
        if (!replace) // the name is asked for again
            answers.dialog(QStringLiteral("saveQuestion"),
                           [](QWidget& modal) { static_cast<QFileDialog&>(modal).reject(); });
        const auto chosen = dialogs.saveFile({QStringLiteral("Podaj nazwę pliku tekstowego"),
                                              QStringLiteral("Wyniki"), QStringLiteral(".txt"),
                                              QStringLiteral("plik wyników (*.txt)|*.txt")});
        EXPECT_TRUE(answers.done());
        EXPECT_EQ(chosen.has_value(), replace);
    }
}

} // namespace
