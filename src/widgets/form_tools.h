#pragma once

#include <QWidget>

class QComboBox;
class QLineEdit;
class QTabWidget;

namespace ferna {

/// Puts a form in the middle of the screen: (screen size - form size) / 2.
void centreOnScreen(QWidget* form);

/// Lets only digits, "-", "+", ".", "," and backspace be typed into a field; any other key is
/// swallowed with a beep.
void allowOnlyNumbers(QLineEdit* field);

/// Makes the chosen option of a group the only one that Tab stops at; the arrows go to the others.
void stopTabAtTheChoice(QWidget* group);

/// Gives every page of a tab widget the room that the largest of them needs, so that the form
/// stands still when another one comes to the front.
void keepRoomForEveryTab(QTabWidget* tabs);

/// Makes a list at least as wide as the longest of its items needs.
void makeRoomForItems(QComboBox* list);

/// Brings the tabs of a form to the front by keys wherever the focus is: Alt with the number of the
/// tab, Ctrl+Tab and Ctrl+PageDown to the next one that can be chosen, with Shift and Ctrl+PageUp
/// to the one before.
void addTabKeys(QWidget* form, QTabWidget* tabs);

/// Runs the work behind a command and shows the form anew, also where a run-time error ends the
/// work.
template <typename Core, typename Show>
void shownAfterwards(const Core& core, const Show& show) {
    try {
        core();
    } catch (...) {
        show();
        throw;
    }
    show();
}

} // namespace ferna
