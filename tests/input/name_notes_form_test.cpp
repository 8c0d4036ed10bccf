// What a name loses on its way into the report is said beside its field as it is typed.
#include "report/report_lines.h"
#include "support/main_form.h"

using namespace ferna;
using namespace ferna::testing;

namespace {

class NameNotes : public MainForm {
protected:
    /// The note of an input box.
    static QString noteIn(const QWidget& box) {
        for (const QLabel* label : box.findChildren<QLabel*>())
            if (label->buddy() == nullptr && label->isVisible())
                return label->text();
        return {};
    }
};

TEST_F(NameNotes, AProjectNameThatPagesWouldShrinkIsTold) {
    show(Konfiguracja);
    auto* const note = the<QLabel>("lblZnaki_projektu");
    typeHere(QStringLiteral("Hala A"));
    EXPECT_FALSE(note->isVisible());
    typeHere(QString(60, u'M'));
    EXPECT_TRUE(note->isVisible());
    EXPECT_EQ(note->text(), QStringLiteral("Nazwa nie mieści się w wierszu nagłówka: na stronach "
                                           "raportu będzie pismem 7,9 pt zamiast 9,9 pt"));
}

TEST_F(NameNotes, ALabelThatIsCutIsToldInItsQuestion) {
    Raport raport;
    answers.dialog(QStringLiteral("inputBox"), [](QWidget& box) {
        EXPECT_EQ(noteIn(box), QString());
        auto* const field = box.findChild<QLineEdit*>();
        field->setText(QStringLiteral("stopa pod słup pośredni w osi 12/C"));
        EXPECT_EQ(noteIn(box), QStringLiteral("Oznaczenie ma najwyżej 32 znaki, w raporcie nie "
                                              "będzie: \"/C\""));
        QTest::keyClick(field, Qt::Key_Return);
    });
    Nazwa_zadania(raport, dialogs);
    EXPECT_EQ(raport.Nazwa_stopy, QStringLiteral("stopa pod słup pośredni w osi 12"));
}

TEST_F(NameNotes, OtherQuestionsTellLettersOnly) {
    answers.dialog(QStringLiteral("inputBox"), [](QWidget& box) {
        auto* const field = box.findChild<QLineEdit*>();
        field->setText(QStringLiteral("słup pośredni w osi 12/C, długi dopisek, Ω"));
        EXPECT_EQ(noteIn(box), QStringLiteral("Tych znaków nie ma w stronie kodowej 1250, zamiast "
                                              "nich będzie \"?\": Ω"));
        QTest::keyClick(field, Qt::Key_Return);
    });
    dialogs.input(QStringLiteral("Pytanie"), programTitle, {}, {}, {});
}

} // namespace
