#pragma once

#include "combinations/comparison.h"
#include "combinations/digest.h"
#include "combinations/forms/table_work.h"
#include "design/input_fields.h"
#include "live/picture_values.h"
#include "notes/record.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QTableView;
class QTabWidget;

namespace ferna {

class AnswersFilter;
class AnswersModel;
class CasePicture;
class ComparisonView;
class GoverningView;
class Histogram;
class NoteBand;

/// "Kombinacje...": a table of combinations read from a file or the clipboard, how far each uses
/// the checks of the base that is entered, and the rows of it that go into the load table.
class CombinationsWindow : public QDialog {
    Q_OBJECT

public:
    /// A row of the table and its combination.
    using Rows = std::vector<std::pair<combinations::RowNumber, combinations::Combination>>;
    /// What the window asks of the program around it.
    struct Links {
        std::function<InputFields()> fields;
        /// Fills the load table with these combinations, in order, and nothing else.
        std::function<void(const Rows&)> putIntoTable;
        /// Where to save a file that is called so; none where that was cancelled.
        std::function<std::optional<QString>(const QString& name)> saveName;
        /// The file to read; empty where that was cancelled.
        std::function<QString()> openName;
        /// What the last calculation has told of its cases.
        std::function<combinations::ToldUses()> told = {};
        /// Shows the combinations in the chart of the capacity.
        std::function<void()> showInChart = {};
        /// Writes the calculation of the rows that go into the load table as a sheet, with the
        /// table they are of. The file's name; none where that was cancelled.
        std::function<std::optional<QString>(const combinations::Digest&)> saveSheet = {};
        /// Told whenever the table or its answers have become others.
        std::function<void()> answered = {};
    };
    CombinationsWindow(const Stan& stan, Links links, QWidget* parent = nullptr);
    ~CombinationsWindow() override;

    /// Reads a table from a file or a text, after showing how it is read.
    void readFile(const QString& path);
    void readText(const QString& text);

    /// What is entered has changed: answers everything anew.
    void baseChanged();
    /// The calculation has ended: shows where it differs from the rows that were put.
    void calculated();

    const TableWork& work() const { return work_; }
    /// What the table was read from; empty without one.
    const QString& source() const { return source_; }
    /// The rows that went into the load table, where the cases of the last calculation are just
    /// these and nothing was entered since; else none.
    std::optional<combinations::Digest> calculatedDigest() const;

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void reject() override;

private:
    QWidget* topRow();
    QWidget* tableSide();
    QWidget* combinationTable();
    QWidget* pictureSide();
    QWidget* bottomRow();
    void take(std::unique_ptr<combinations::RowSource> source, const QString& name);
    void readBase();
    void answerAnew();
    void showProgress();
    void showTable();
    void showState();
    void showChosen();
    void choose(combinations::RowNumber row);
    void hideIdleColumns();
    void say(const QString& what);
    void showNotes();
    bool isCalculated() const;
    bool isAnswered() const;
    std::vector<combinations::Compared> compare() const;
    void showComparison();
    void putSix();
    void exportCsv();
    void saveSheet();
    live::PictureValues pictureOf(combinations::RowNumber row) const;

    const Stan& stan_;
    Links links_;
    TableWork work_;
    std::optional<combinations::Evaluator> evaluator_;
    QTimer settle_;          ///< until typing pauses
    QString source_;         ///< what the table was read from; empty without a table
    QString coming_;         ///< the same of the table being read
    bool isStopped_ = false; ///< the reading of last: the table is that of before
    QString unready_;        ///< why no base can be made of what is entered
    QString said_;           ///< what has happened last
    Rows put_;
    std::optional<notes::Entered> calculated_; ///< what stood in the form after a calculation

    QPushButton* open_ = nullptr;
    QLabel* state_ = nullptr;
    QProgressBar* progress_ = nullptr;
    QPushButton* stop_ = nullptr;
    NoteBand* notes_ = nullptr;
    GoverningView* governing_ = nullptr;
    QLineEdit* filterText_ = nullptr;
    QComboBox* shown_ = nullptr;
    QTableView* table_ = nullptr;
    AnswersModel* model_ = nullptr;
    AnswersFilter* filter_ = nullptr;
    QTabWidget* tabs_ = nullptr;
    CasePicture* picture_ = nullptr;
    Histogram* histogram_ = nullptr;
    ComparisonView* comparison_ = nullptr;
    QPushButton* putButton_ = nullptr;
    QPushButton* chart_ = nullptr;
    QPushButton* export_ = nullptr;
    QPushButton* sheet_ = nullptr;
};

} // namespace ferna
