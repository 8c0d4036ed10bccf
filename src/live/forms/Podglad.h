#pragma once

#include "live/forms/side_place.h"
#include "live/live_values.h"
#include "live/told_checks.h"
#include "runtime/dialogs.h"

#include <QWidget>

#include <functional>
#include <memory>

class QDialog;

namespace Ui {
class Podglad;
}

namespace ferna {

/// What the live view looks at and what it changes.
struct LiveSource {
    const Stan& stan;
    std::function<InputFields()> fields;
    std::function<const notes::Record&()> record; ///< of the last calculation
    /// Puts an anchor, from 1, to a place in mm.
    std::function<void(int anchor, int x, int y)> moveAnchor;
    /// Gives the plate a size in mm.
    std::function<void(int length, int width)> resizePlate;
    /// A change by hand begins: what was typed before is a step of its own.
    std::function<void()> changeBegins = [] {};
    /// A change by hand has ended: all its moves are one step.
    std::function<void()> changeEnds = [] {};
};

/// The live view: the base as a picture with its pressures and forces while the task is typed, case
/// by case or as their envelope, and the checks as a table. It stands at the right of the main form
/// or in a window of its own; where, it remembers.
class Podglad : public QWidget {
    Q_OBJECT

public:
    Podglad(QDialog* form, LiveSource source, Dialogs& dialogs);
    ~Podglad() override;

    /// Shows or hides it.
    void setOpen(bool open);
    bool isOpen() const { return open_; }

    /// Something of the task has changed: the view follows at once where it is open.
    void renew();

    /// A calculation has ended: what it has told holds for what is entered now.
    void calculated();

Q_SIGNALS:
    void openChanged(bool open);

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void connectParts();
    void addPictureCommands();
    void showPlace();
    void putAside();
    void putFree();
    void rememberPlace();
    bool isAside() const { return side_.holds(this); }
    void changePlace();

    bool toldHolds() const;
    void showCases();
    void showPicture();
    void showChecks(const QString& reason);
    int shownCase() const;
    void showCase(int which);
    void anchorChosen(int anchor);
    void checkChosen(int caseNumber, int anchor);

    void savePicture();
    void copyPicture();

    QDialog* form_;
    LiveSource source_;
    Dialogs& dialogs_;
    std::unique_ptr<Ui::Podglad> ui_;
    SidePlace side_;
    live::LiveValues now_;
    live::LiveValues valid_; ///< the last ones that could be shown
    std::optional<notes::Entered> calculated_;
    bool open_ = false;
};

} // namespace ferna
