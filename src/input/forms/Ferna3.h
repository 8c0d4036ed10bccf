#pragma once

#include "analysis/stan_przypadku.h"
#include "command/calculation.h"
#include "input/anchor_layout.h"
#include "input/forms/input_notes_band.h"
#include "statics/load_list.h"
#include "widgets/added_menus.h"
#include "widgets/field_place.h"

#include <QDialog>

#include <array>
#include <functional>
#include <memory>
#include <optional>

class QPushButton;
class QRadioButton;

namespace Ui {
class Ferna3;
}

namespace ferna {

class LeftFields;
class LoadRows;
class Nowa_Sruba;

/// The main form: the whole design case on four tabs, and the commands to calculate and to leave.
class Ferna3 : public QDialog, public ValueFields, private CalculationHost {
    Q_OBJECT

public:
    /// `folder` is the program folder; `openResults` opens the results form after a calculation.
    Ferna3(Stan& stan, const QString& folder, Dialogs& dialogs, std::function<void()> openResults);
    ~Ferna3() override;

    QLineEdit* fieldOf(const TypedValue& value) const override;

    /// Fills the controls from the state that `startUp` has brought in.
    void load();

    /// The fields and options as they stand.
    InputFields fields() const;

    /// The state as it would stand if the focus left its field now: the lists and the number of
    /// cases as shown.
    Stan enteredState() const;

    /// Takes a state and its fields in place of what is entered, as undo does, and tells `entered`
    /// once. The results of calculations stay those of `task`. Errors of `Czytaj_teksty`; nothing
    /// is taken then.
    void takeTask(const Stan& task, const InputFields& fields);
    /// The same for another task: nothing of earlier calculations is carried into its own.
    void openTask(const Stan& task, const InputFields& fields);

    /// True where the first option of the norm is set.
    bool firstNorm() const;

    /// What the notes of the last calculation go by.
    notes::Record& record() { return uwagi_->record(); }

    /// The menus of what stands beside the task; each is seen once it has an entry.
    const AddedMenus& menus() const { return menus_; }

    /// Has texts put into the load table, with at least so many of its rows shown: the number of
    /// cases follows where it is smaller.
    void takeLoads(int rows, const std::function<void()>& fill);
    /// The same with exactly so many rows: cases behind them go.
    void replaceLoads(int rows, const std::function<void()>& fill);

    /// Asked with a table of more rows than the load table holds, before the first of them are put
    /// there; true where the whole went elsewhere. Nobody is asked by default.
    std::function<bool(const QString& table)> largeTable;

    /// Has the anchors changed, and shows list and drawing anew.
    void editAnchors(const std::function<void(Plyta_i_kotwy&)>& edit);

    /// The plate as it is drawn; empty where it could not be drawn.
    const std::optional<Plyta_i_kotwy>& drawnPlate() const { return drawn_; }

    /// Esc does nothing here: it must not end the program.
    void reject() override {}

    QSize sizeHint() const override;

Q_SIGNALS:
    /// Something of the task was typed, chosen, added or removed.
    void entered();
    /// A command has changed the task: one step to undo, under this name ("przesunięcie kotwy").
    void stepped(const QString& name);
    /// The totals of these loads have gone into a load case, numbered from 1.
    void columnSaved(const Stan_statyki& loads, int loadCase);
    /// "Oblicz" was given and nothing of it has run yet.
    void calculating();
    /// "Oblicz" has ended and no results are shown; these are the messages that it has shown, and
    /// the text of the run-time error where one has ended it.
    void endedWithoutResults(const QStringList& told);
    /// The list of the anchors or their drawing is shown anew.
    void anchorsShown();

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void KGM8(Stan& stan) override;
    void drawPlate(Stan& stan, const InputFields& fields) override;
    void caseEnded(int c) override { record().caseEnded(stan_, c); }
    void caseRefused(int c) override { record().caseRefused(stan_, c); }

    void collectFields();
    void showOptions();
    void showFields(const InputFields& fields);
    void declareColumn();
    void watchEntries();
    void connectOptions();
    void connectAnchorCommands();
    void connectCommand(QPushButton* button, const std::function<void()>& handler);
    /// What happens on leaving a field, where something does.
    void leave(QWidget* field);

    void tabChanged();
    void focusFirstField();
    void leaveText1();
    void leaveConcrete();
    void leaveSteel();
    void fillConcretes();
    void showRatio();
    void chooseLanguage(Integer number);
    void chooseRatioMode(Integer k);
    void askForRatio();

    void addAnchorsBy(Adding way);
    void changeDiameterOf(std::optional<Integer> anchor);
    void showAnchors();
    void showAnchorList();
    void Rysuj_P3();
    void showPlate(bool drawn);

    void calculate();
    void leaveProgram();

    Stan& stan_;
    QString folder_;
    Dialogs& dialogs_;
    std::function<void()> openResults_;
    Stan_przypadku przypadek_;
    Stan_statyki statyka_;
    std::unique_ptr<Ui::Ferna3> ui_;
    AddedMenus menus_;
    std::unique_ptr<InputNotesBand> uwagi_;
    std::unique_ptr<LoadRows> loads_;
    LeftFields* left_; ///< a child of the form
    std::optional<Plyta_i_kotwy> drawn_;
    std::unique_ptr<Nowa_Sruba> nowaSruba_; ///< hidden, not unloaded, between its uses
    std::array<QRadioButton*, 5> Jezyk_{};
    std::array<QRadioButton*, 3> optRTF_{};
    std::array<QRadioButton*, 2> optHsruby_{};
    std::array<QRadioButton*, 2> Norma_{};
    std::array<QRadioButton*, 2> Wsp_n_{};
    Integer Jezyk_wczytany = 0;
};

} // namespace ferna
