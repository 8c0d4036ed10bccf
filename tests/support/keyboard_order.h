#pragma once

#include <QAbstractButton>
#include <QLabel>
#include <QTabBar>
#include <QWidget>

#include <gtest/gtest.h>

namespace ferna::testing {

/// The letter after the "&" of a caption, in lower case; null without one.
inline QChar mnemonicOf(const QString& caption) {
    const qsizetype at = caption.indexOf(u'&');
    return at >= 0 && at + 1 < caption.size() ? caption[at + 1].toLower() : QChar();
}

/// What stands visibly in the window under a key of Alt, each key once.
inline void expectUniqueMnemonics(const QWidget& window) {
    QHash<QChar, QString> taken;
    const auto take = [&taken](const QString& caption) {
        const QChar letter = mnemonicOf(caption);
        if (letter.isNull())
            return;
        EXPECT_FALSE(taken.contains(letter))
            << caption.toStdString() << " and " << taken.value(letter).toStdString();
        taken.insert(letter, caption);
    };
    for (const auto* button : window.findChildren<QAbstractButton*>())
        if (button->isVisibleTo(&window))
            take(button->text());
    for (const auto* label : window.findChildren<QLabel*>())
        if (label->buddy() && label->isVisibleTo(&window))
            take(label->text());
    for (const auto* bar : window.findChildren<QTabBar*>())
        for (int tab = 0; tab < bar->count(); ++tab)
            take(bar->tabText(tab));
    EXPECT_GT(taken.size(), 3);
}

/// The visible parts of a window that Tab stops at, in that order.
inline QList<QWidget*> tabStops(QWidget& window) {
    QList<QWidget*> stops;
    for (QWidget* at = window.nextInFocusChain(); at != &window; at = at->nextInFocusChain())
        if ((at->focusPolicy() & Qt::TabFocus) && at->isVisibleTo(&window) && at->isEnabled()
            && !at->focusProxy())
            stops += at;
    return stops;
}

/// Tab goes from the top down and in a row from left to right. A part counts as beside another
/// where it overlaps it in height.
inline void expectTabsInReadingOrder(QWidget& window) {
    const QList<QWidget*> stops = tabStops(window);
    ASSERT_GT(stops.size(), 4);
    const auto place = [&window](const QWidget* stop) {
        return QRect(stop->mapTo(&window, QPoint()), stop->size());
    };
    for (qsizetype i = 1; i < stops.size(); ++i) {
        const QRect before = place(stops[i - 1]);
        const QRect after = place(stops[i]);
        const bool isBelow = after.top() >= before.bottom();
        const bool isRight = after.left() >= before.right();
        EXPECT_TRUE(isBelow || isRight)
            << stops[i - 1]->metaObject()->className() << ' '
            << stops[i - 1]->objectName().toStdString() << " before "
            << stops[i]->metaObject()->className() << ' ' << stops[i]->objectName().toStdString();
    }
}

} // namespace ferna::testing
