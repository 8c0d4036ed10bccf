#pragma once

#include <QSize>

class QTabWidget;
class QWidget;

namespace ferna {

/// What a form may take of its screen, its frame left out.
QSize roomOnScreen(const QWidget* form);

/// True where a form needs more than `room`.
bool needsMoreThan(const QWidget* form, QSize room);

/// Lets the pages of a tab widget be scrolled, so that what stands around them can always be seen.
void letPagesScroll(QTabWidget* tabs);

/// Lets all that stands on a form be scrolled; a menu bar stays in its place.
void letContentsScroll(QWidget* form);

/// Makes a window of a changeable size as large as wanted, as far as it has room on its screen; one
/// that needs more than there is can be scrolled. In the middle. Once, when all stands on it.
void fitToScreen(QWidget* window, QSize wanted);

} // namespace ferna
