#pragma once

#include "design/stan.h"
#include "support/decimal_comma.h"
#include "support/modal_answers.h"
#include "support/printing.h"
#include "widgets/picture_view.h"
#include "widgets/qt_dialogs.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <stdexcept>

namespace ferna::testing {

/// Mouse and keyboard on one real form or dialog.
class Hand {
public:
    explicit Hand(QWidget& form) : form_(form) {}

    template <typename Widget = QWidget>
    Widget* the(const char* name) const {
        auto* const widget = form_.findChild<Widget*>(QString::fromLatin1(name));
        if (widget == nullptr)
            throw std::runtime_error(std::string("no control ") + name);
        return widget;
    }
    QString text(const char* field) const { return the<QLineEdit>(field)->text(); }
    QString label(const char* name) const { return the<QLabel>(name)->text(); }
    bool shown(const char* name) const { return the<QWidget>(name)->isVisible(); }
    bool enabled(const char* name) const { return the<QWidget>(name)->isEnabled(); }
    bool checked(const char* name) const { return the<QRadioButton>(name)->isChecked(); }
    QString focused() const {
        const QWidget* const focus = form_.focusWidget();
        return focus ? focus->objectName() : QString();
    }

    void click(const char* name) {
        QWidget* const widget = the<QWidget>(name);
        ASSERT_TRUE(widget->isVisible()) << name;
        const QPoint at = qobject_cast<QRadioButton*>(widget) ? QPoint(8, widget->height() / 2)
                                                              : widget->rect().center();
        QTest::mouseClick(widget, Qt::LeftButton, {}, at);
        settle();
    }
    /// A key to whatever has the focus.
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QWidget* const focus = form_.focusWidget();
        QTest::keyClick(focus ? focus : &form_, key, modifiers);
        if (modifiers == Qt::AltModifier)
            QTest::qWait(mnemonicPress);
        settle();
    }
    /// Clicks into a field and types over what stands there.
    void type(const char* field, const QString& text) {
        ASSERT_TRUE(the<QLineEdit>(field)->isVisible()) << field;
        QTest::mouseClick(the<QLineEdit>(field), Qt::LeftButton);
        settle();
        typeHere(text);
    }
    /// Types over what stands in the field with the focus.
    void typeHere(const QString& text) {
        QWidget* const focus = form_.focusWidget();
        ASSERT_NE(focus, nullptr);
        QTest::keyClick(focus, Qt::Key_A, Qt::ControlModifier);
        if (text.isEmpty())
            QTest::keyClick(focus, Qt::Key_Delete);
        for (const QChar c : text) // keyClicks is for Latin letters only
            QTest::sendKeyEvent(QTest::Click, focus, Qt::Key_unknown, QString(c), {});
    }
    /// Chooses an item of a drop-down list by the arrow keys; the focus stays there.
    void choose(const char* list, int index) {
        auto* const box = the<QComboBox>(list);
        box->setFocus();
        while (box->currentIndex() != index)
            QTest::keyClick(box, box->currentIndex() < index ? Qt::Key_Down : Qt::Key_Up);
    }

    /// True where the picture shows this sketch.
    bool shows(const char* name, const QString& sketch) const {
        auto* const view = the<PictureView>(name);
        PictureView expected;
        expected.resize(view->size());
        expected.setSketch(QStringLiteral(":/szkice/%1.svg").arg(sketch));
        const auto picture = [](PictureView& one) {
            return one.grab().toImage().convertToFormat(QImage::Format_RGB32);
        };
        return picture(*view) == picture(expected);
    }

    /// Lets everything happen that is due.
    void settle() {
        QTest::qWait(1);
        QCoreApplication::processEvents();
        if (form_.isVisible() && QApplication::activeModalWidget() == nullptr)
            activate();
    }
    void activate() {
        form_.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&form_));
    }

private:
    static constexpr int mnemonicPress =
        150; // ms; a button stays down for a while before it clicks
    QWidget& form_;
};

/// What every form stands on: a program folder of its own, real boxes, their answers.
class WorkedForm : public ::testing::Test {
protected:
    WorkedForm() {
        for (int n = 1; n <= CatalogueLines; ++n)
            stan.Teksty(n) = QStringLiteral("<%1>").arg(n);
    }
    QString path(const QString& file) const { return folder.filePath(file); }

    QTemporaryDir folder;
    WithDecimalSign comma{u','};
    Stan stan;
    QtDialogs dialogs;
    ModalAnswers answers;
};

} // namespace ferna::testing
