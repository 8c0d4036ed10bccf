#include "support/modal_answers.h"

#include "support/printing.h"

#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <memory>

namespace ferna::testing {

namespace {

QString withoutMnemonic(QString caption) {
    return caption.remove(u'&');
}

void click(QWidget& modal, const QString& caption) {
    for (QPushButton* button : modal.findChildren<QPushButton*>())
        if (withoutMnemonic(button->text()) == caption && button->isVisible()) {
            QTest::mouseClick(button, Qt::LeftButton);
            return;
        }
    ADD_FAILURE() << "no button \"" << caption.toStdString() << "\" in \""
                  << modal.windowTitle().toStdString() << '"';
}

QString describe(QWidget& modal) {
    const auto* const box = qobject_cast<QMessageBox*>(&modal);
    return modal.objectName() + QStringLiteral(" \"") + modal.windowTitle() + QStringLiteral("\": ")
           + (box ? box->text() : QString());
}

} // namespace

ModalAnswers::ModalAnswers() {
    lookSoon();
}

ModalAnswers::~ModalAnswers() {
    EXPECT_TRUE(steps_.empty()) << steps_.size() << " announced boxes did not come";
    for (QTimer* timer : qApp->findChildren<QTimer*>(QStringLiteral("modalAnswers")))
        delete timer;
}

// Every look has a timer of its own, since a step that opens a further box stands in the timer's
// event until that box is closed.
void ModalAnswers::lookSoon() {
    auto* const timer = new QTimer(qApp);
    timer->setObjectName(QStringLiteral("modalAnswers"));
    timer->setSingleShot(true);
    QObject::connect(timer, &QTimer::timeout, timer, [this, timer] {
        timer->setObjectName(QString());
        timer->deleteLater();
        look();
    });
    timer->start(2);
}

void ModalAnswers::look() {
    lookSoon();
    QWidget* const modal = QApplication::activeModalWidget();
    if (modal != nullptr && modal->isVisible()
        && std::find(busy_.begin(), busy_.end(), modal) == busy_.end())
        run(*modal);
}

void ModalAnswers::run(QWidget& modal) {
    const QPointer<QWidget> stays(&modal);
    busy_.push_back(&modal); // the waiting below looks again
    modal.activateWindow();
    if (!QTest::qWaitFor([&] { return QApplication::activeWindow() == &modal; }, 1000))
        ADD_FAILURE() << "not active: " << describe(modal).toStdString();
    if (steps_.empty()) {
        ADD_FAILURE() << "unexpected box: " << describe(modal).toStdString();
        std::erase(busy_, &modal);
        modal.close();
        return;
    }
    const Step step = steps_.front();
    steps_.pop_front();
    step(modal);
    std::erase(busy_, &modal);
    if (stays && stays->isVisible()) {
        ADD_FAILURE() << "still open: " << describe(*stays).toStdString();
        stays->close();
    }
}

void ModalAnswers::box(const QString& title, const QString& text, const QString& button) {
    steps_.emplace_back([=](QWidget& modal) {
        const auto* const box = qobject_cast<QMessageBox*>(&modal);
        ASSERT_NE(box, nullptr) << describe(modal).toStdString();
        EXPECT_EQ(box->windowTitle(), title);
        EXPECT_EQ(box->text(), text);
        click(modal, button);
    });
}

void ModalAnswers::stop(int number, bool end) {
    steps_.emplace_back([=](QWidget& modal) {
        const auto* const box = qobject_cast<QMessageBox*>(&modal);
        ASSERT_NE(box, nullptr) << describe(modal).toStdString();
        EXPECT_EQ(box->objectName(), QStringLiteral("environmentStop"));
        const QString heading = QStringLiteral("Błąd wykonania '%1':").arg(number);
        EXPECT_EQ(box->text().section(u'\n', 0, 0), heading);
        click(modal, end ? QStringLiteral("Zakończ program") : QStringLiteral("Wróć do programu"));
    });
    if (end)
        box(QStringLiteral("Ferna 2005 Pr"),
            QStringLiteral("Zakończyć program bez zapisania konfiguracji?"), QStringLiteral("Tak"));
}

void ModalAnswers::input(const QString& title, const QString& prompt, const QString& preset,
                         const QString& answer) {
    steps_.emplace_back([=](QWidget& modal) {
        ASSERT_EQ(modal.objectName(), QStringLiteral("inputBox")) << describe(modal).toStdString();
        EXPECT_EQ(modal.windowTitle(), title);
        const auto labels = modal.findChildren<QWidget*>();
        EXPECT_TRUE(std::any_of(labels.begin(), labels.end(), [&](const QWidget* one) {
            return one->property("text").toString() == prompt;
        })) << prompt.toStdString();
        auto* const field = modal.findChild<QLineEdit*>();
        EXPECT_EQ(field->text(), preset);
        EXPECT_TRUE(field->hasFocus());
        if (answer.isEmpty())
            QTest::keyClick(field, Qt::Key_Delete);
        else
            QTest::keyClicks(field, answer);
        QTest::keyClick(field, Qt::Key_Return);
    });
}

void ModalAnswers::cancelInput(const QString& title) {
    steps_.emplace_back([=](QWidget& modal) {
        ASSERT_EQ(modal.objectName(), QStringLiteral("inputBox")) << describe(modal).toStdString();
        EXPECT_EQ(modal.windowTitle(), title);
        QTest::keyClick(&modal, Qt::Key_Escape);
    });
}

void ModalAnswers::dialog(const QString& objectName, Step step) {
    steps_.emplace_back([=](QWidget& modal) {
        ASSERT_EQ(modal.objectName(), objectName) << describe(modal).toStdString();
        step(modal);
    });
}

void ModalAnswers::closeByFrame(const QString& objectName) {
    dialog(objectName, [](QWidget& modal) { modal.close(); });
}

} // namespace ferna::testing
