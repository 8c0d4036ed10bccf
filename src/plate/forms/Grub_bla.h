#pragma once

#include "plate/plate_form.h"
#include "widgets/field_place.h"

#include <QDialog>

#include <functional>
#include <memory>
#include <vector>

class QLabel;
class QPushButton;

namespace Ui {
class Grub_bla;
}

namespace ferna {

class ResultAge;

/// The thickness of the plate: a tab for every check of a fragment, the grade, and the thickness
/// that governs.
class Grub_bla : public QDialog, public ValueFields, private PlateSteelHost {
    Q_OBJECT

public:
    /// `folder` is the program folder; OK saves the sketches of the section there.
    Grub_bla(Stan& stan, const QString& folder, Dialogs& dialogs, QWidget* parent);
    ~Grub_bla() override;

    QLineEdit* fieldOf(const TypedValue& value) const override;

    /// The form as it was worked.
    const PlateForm& worked() const { return form_; }

protected:
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void KGM8b(Stan& stan) override;

    /// A field, where its text stands in the form's record, and the name of the value.
    struct Line {
        QLineEdit* field;
        QString* text;
        TypedValue value;
    };

    void collectControls();
    void collectLines();
    void connectTabs();
    void connectCommands();
    void connectCommand(QPushButton* button, const std::function<void()>& handler);
    QPushButton* command(int tab) const;

    void chooseTab(int tab);
    void focusFirstField();
    void settleWhenFree();
    void settleGradeList();

    /// Runs a command of the core on the fields as they stand and shows what comes of it, also
    /// where a run-time error ends it.
    void work(const std::function<void()>& core);
    void readFields();
    void showForm();
    void writeSection();

    Stan& stan_;
    QString folder_;
    Dialogs& dialogs_;
    PlateForm form_;
    std::unique_ptr<Ui::Grub_bla> ui_;
    std::vector<Line> lines_;
    std::array<QLabel*, PlateChecks> Label8_{};
    std::array<QPushButton*, PlateChecks> cmdOblicz_{};   ///< by check less one
    std::array<QPushButton*, PlateChecks> cmdAnulujto_{}; ///< by check less one
    std::array<ResultAge*, PlateChecks> resultAges_{};    ///< by check less one
    std::array<QWidget*, PlateChecks> firstFields_{}; ///< what takes the focus with a tab, by tab
    bool gradeListLeft_ = false; ///< left, and what that brings has not run yet
};

} // namespace ferna
