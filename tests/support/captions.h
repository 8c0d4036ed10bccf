#pragma once

#include "support/printing.h"

#include <QComboBox>
#include <QGroupBox>
#include <QWidget>

#include <gtest/gtest.h>

#include <vector>

namespace ferna::testing {

/// A control as the engineer reads it.
struct Control {
    const char* name;
    const char* caption;
    const char* tip = "";
};

/// What stands on a control: its text, or the title of a group.
inline QString captionOf(const QWidget& widget) {
    const auto* const group = qobject_cast<const QGroupBox*>(&widget);
    return group != nullptr ? group->title() : widget.property("text").toString();
}

/// Captions and tool tips to the letter.
inline void expectControls(const QWidget& form, const std::vector<Control>& controls) {
    for (const Control& control : controls) {
        const auto* const widget = form.findChild<QWidget*>(QString::fromLatin1(control.name));
        ASSERT_NE(widget, nullptr) << control.name;
        EXPECT_EQ(captionOf(*widget), QString::fromUtf8(control.caption)) << control.name;
        EXPECT_EQ(widget->toolTip(), QString::fromUtf8(control.tip)) << control.name;
    }
}

inline QStringList itemsOf(const QWidget& form, const char* list) {
    const auto* const box = form.findChild<QComboBox*>(QString::fromLatin1(list));
    QStringList items;
    for (int i = 0; i < box->count(); ++i)
        items += box->itemText(i);
    return items;
}

} // namespace ferna::testing
