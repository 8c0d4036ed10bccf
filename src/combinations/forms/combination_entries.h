#pragma once

#include "combinations/forms/combinations_window.h"

#include <QObject>

namespace ferna {

class Dialogs;
class Ferna3;

/// What stands beside the window "Kombinacje": see its links of the same names. Without them the
/// window has no such commands.
struct AroundCombinations {
    std::function<void()> showInChart = {};
    std::function<std::optional<QString>(const combinations::Digest&)> saveSheet = {};
    std::function<void()> answered = {};
};

/// "Kombinacje..." in the main form's menu, and its window beside the form.
class CombinationEntries : public QObject {
public:
    /// The form owns what is made here. From now on it offers the window where a table of more rows
    /// than the load table holds is pasted.
    CombinationEntries(const Stan& stan, Ferna3& form, Dialogs& dialogs,
                       AroundCombinations around = {});

    /// Opens the window.
    void open();
    /// Opens the window with a table that came as text.
    void openWith(const QString& table);
    /// A calculation has ended.
    void calculated();
    /// See `CombinationsWindow::calculatedDigest`; empty before its first opening.
    std::optional<combinations::Digest> calculatedDigest() const;

    /// The window; null before its first opening.
    CombinationsWindow* window() const { return window_.get(); }

private:
    bool offer(const QString& table);
    void put(const CombinationsWindow::Rows& rows);

    const Stan& stan_;
    Ferna3& form_;
    Dialogs& dialogs_;
    AroundCombinations around_;
    std::unique_ptr<CombinationsWindow> window_; ///< made at its first opening
};

} // namespace ferna
