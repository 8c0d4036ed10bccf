#pragma once

#include "design/start_up.h"
#include "input/forms/Ferna3.h"
#include "runtime/text_file.h"
#include "support/decimal_comma.h"
#include "support/modal_answers.h"
#include "support/places.h"
#include "support/printing.h"
#include "widgets/qt_dialogs.h"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>

namespace ferna::testing {

/// The main form as the engineer meets it after the start: a program folder of its own, the
/// delivered task, real boxes, and mouse and keyboard to work it.
class MainForm : public ::testing::Test {
protected:
    enum Tab { Konfiguracja, Dane_ogolne, Obciazenia_, Sruby };

    MainForm() {
        for (const char* file : {"Ferpl.txt", "Ferp2.txt", "Fergb.txt", "Ferfr.txt", "Ferge.txt",
                                 "Ferna.cfg", "W_X.txt"})
            QFile::copy(places::data("/") + QString::fromLatin1(file),
                        path(QString::fromLatin1(file)));
    }

    void SetUp() override { start(); }

    /// Starts the program on the files of the folder.
    void start() {
        form.reset();
        stan = Stan();
        startUp(stan, folder.path());
        form = std::make_unique<Ferna3>(stan, folder.path(), dialogs, [this] { ++resultsOpened; });
        prepare();
        form->load();
        form->show();
        activate();
    }

    /// What stands beside the form, put there before it is loaded.
    virtual void prepare() {}

    QString path(const QString& file) const { return folder.filePath(file); }
    QByteArray contents(const QString& file) const { return readFileWhole(path(file)); }

    /// Replaces a line of the configuration, numbered from 1.
    void setLine(int number, const QByteArray& text) {
        QList<QByteArray> lines = contents(QStringLiteral("Ferna.cfg")).split('\n');
        lines[number - 1] = text + '\r';
        writeFileWhole(path(QStringLiteral("Ferna.cfg")), lines.join('\n'));
    }

    template <typename Widget = QWidget>
    Widget* the(const char* name) const {
        auto* const widget = form->findChild<Widget*>(QString::fromLatin1(name));
        if (widget == nullptr)
            throw std::runtime_error(std::string("no control ") + name);
        return widget;
    }

    QString text(const char* field) const { return the<QLineEdit>(field)->text(); }
    int item(const char* list) const { return the<QComboBox>(list)->currentIndex(); }
    bool checked(const char* option) const { return the<QRadioButton>(option)->isChecked(); }
    QString focused() const {
        const QWidget* const widget = form->focusWidget();
        return widget ? widget->objectName() : QString();
    }
    QStringList anchorList() const {
        return the<QPlainTextEdit>("Text9")->toPlainText().split(u'\n', Qt::SkipEmptyParts);
    }

    /// Lets everything happen that is due.
    void settle() {
        QTest::qWait(1);
        QCoreApplication::processEvents();
        activate();
    }

    void activate() {
        if (!form->isVisible())
            return;
        form->activateWindow();
        // qWaitForWindowActive takes the window of a hidden dialog for the form's own
        ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == form.get(); }));
    }

    void click(const char* name) {
        QWidget* const widget = the<QWidget>(name);
        ASSERT_TRUE(widget->isVisible()) << name;
        const QPoint at = qobject_cast<QRadioButton*>(widget) ? QPoint(8, widget->height() / 2)
                                                              : widget->rect().center();
        QTest::mouseClick(widget, Qt::LeftButton, {}, at);
        settle();
    }

    void show(Tab tab) {
        QTabBar* const bar = the<QTabWidget>("SSTab1")->tabBar();
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(tab).center());
        settle();
    }

    int shownTab() const { return the<QTabWidget>("SSTab1")->currentIndex(); }

    /// A key to whatever has the focus.
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QWidget* const focus = QApplication::focusWidget();
        QTest::keyClick(focus ? focus : form.get(), key, modifiers);
        if (modifiers & Qt::AltModifier)
            QTest::qWait(150); // a button shows that it is pressed before its command runs
        settle();
    }

    /// Clicks into a field and types over what stands there.
    void type(const char* field, const QString& text) {
        QTest::mouseClick(the<QLineEdit>(field), Qt::LeftButton);
        typeHere(text);
    }

    /// Types over what stands in the field with the focus.
    void typeHere(const QString& text) {
        QWidget* const focus = QApplication::focusWidget();
        ASSERT_NE(focus, nullptr);
        QTest::keyClick(focus, Qt::Key_A, Qt::ControlModifier);
        if (text.isEmpty())
            QTest::keyClick(focus, Qt::Key_Delete);
        for (const QChar c : text) // keyClicks is for Latin letters only
            QTest::sendKeyEvent(QTest::Click, focus, Qt::Key_unknown, QString(c), {});
    }

    /// Chooses an item of a list by the keyboard, as far as the list has the focus.
    void choose(const char* list, int index) {
        auto* const box = the<QComboBox>(list);
        box->setFocus();
        while (box->currentIndex() != index)
            QTest::keyClick(box, box->currentIndex() < index ? Qt::Key_Down : Qt::Key_Up);
    }

    /// The next use of the dialog of a new anchor: choose the diameter, type x and y, press Enter.
    void announceAnchor(int fi, const QString& x, const QString& y) {
        answers.dialog(QStringLiteral("Nowa_Sruba"), [=](QWidget& modal) {
            fillAnchor(modal, fi, x, y);
            QTest::keyClick(modal.focusWidget(), Qt::Key_Return);
        });
    }

    static void fillAnchor(QWidget& modal, int fi, const QString& x, const QString& y) {
        chooseDiameter(modal, fi);
        retype(modal, "Text1", x);
        retype(modal, "Text2", y);
    }

    static void chooseDiameter(QWidget& modal, int fi) {
        auto* const list = modal.findChild<QComboBox*>(QStringLiteral("cmbFi"));
        list->setFocus();
        const int wanted = list->findText(QString::number(fi));
        ASSERT_GE(wanted, 0) << "M" << fi << " is not on offer";
        while (list->currentIndex() != wanted)
            QTest::keyClick(list, list->currentIndex() < wanted ? Qt::Key_Down : Qt::Key_Up);
    }

    static void retype(QWidget& modal, const char* field, const QString& text) {
        auto* const line = modal.findChild<QLineEdit*>(QString::fromLatin1(field));
        QTest::mouseClick(line, Qt::LeftButton);
        QTest::keyClick(line, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(line, text);
    }

    static void press(QWidget& modal, const char* button) {
        QTest::mouseClick(modal.findChild<QPushButton*>(QString::fromLatin1(button)),
                          Qt::LeftButton);
    }

    /// Presses one of the commands that add anchors and answers its dialog.
    void add(const char* command, int fi, int x, int y) {
        announceAnchor(fi, QString::number(x), QString::number(y));
        click(command);
    }

    QTemporaryDir folder;
    WithDecimalSign comma{u','};
    Stan stan;
    QtDialogs dialogs;
    int resultsOpened = 0;
    std::unique_ptr<Ferna3> form;
    ModalAnswers answers;
};

} // namespace ferna::testing
