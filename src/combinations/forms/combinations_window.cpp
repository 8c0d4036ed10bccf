#include "combinations/forms/combinations_window.h"

#include "combinations/forms/answers_filter.h"
#include "combinations/forms/answers_model.h"
#include "combinations/forms/case_picture.h"
#include "combinations/forms/comparison_view.h"
#include "combinations/forms/governing_view.h"
#include "combinations/forms/histogram.h"
#include "combinations/forms/reading_dialog.h"
#include "command/entered_equilibria.h"
#include "runtime/run_time_error.h"
#include "runtime/saved_file.h"
#include "widgets/note_band.h"
#include "widgets/small_screen.h"

#include <QBuffer>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QSplitter>
#include <QTabWidget>
#include <QTableView>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>

namespace ferna {

using combinations::RowNumber;

namespace {

/// A text as rows, with its bytes.
class TextRows : public combinations::RowSource {
public:
    explicit TextRows(const QString& text) {
        buffer_.setData(text.toUtf8());
        buffer_.open(QIODevice::ReadOnly);
        rows_.emplace(buffer_);
    }
    std::optional<QStringList> next() override { return rows_->next(); }
    QString trouble() const override { return rows_->trouble(); }

private:
    QBuffer buffer_;
    std::optional<combinations::TextSource> rows_;
};

QString words(combinations::Unready why) {
    return why == combinations::Unready::NoAreas
               ? QStringLiteral("Kombinacji nie można policzyć: płyta, stosunek n albo średnica "
                                "kotwy nie są podane poprawnie.")
               : QStringLiteral("Kombinacji nie można policzyć: brak wytrzymałości stali kotew.");
}

} // namespace

CombinationsWindow::CombinationsWindow(const Stan& stan, Links links, QWidget* parent)
    : QDialog(parent), stan_(stan), links_(std::move(links)),
      work_({[this] { showProgress(); }, [this] { showTable(); },
             [this](bool whileReading) {
                 isStopped_ = whileReading;
                 said_ = whileReading ? QStringLiteral("Wczytywanie przerwano: %1.").arg(coming_)
                                      : QStringLiteral("Liczenie przerwano: część wierszy nie jest "
                                                       "policzona.");
                 showTable();
             }},
            this) {
    setObjectName(QStringLiteral("Kombinacje"));
    setWindowTitle(QStringLiteral("Ferna 2005 Pr - Kombinacje"));
    setWindowFlag(Qt::WindowMinMaxButtonsHint);
    setProperty("helpContext", 190);
    setAcceptDrops(true);
    auto* const page = new QVBoxLayout(this);
    page->addWidget(topRow());
    notes_ = new NoteBand;
    notes_->setObjectName(QStringLiteral("uwagi"));
    page->addWidget(notes_);
    auto* const halves = new QSplitter;
    halves->addWidget(tableSide());
    halves->addWidget(pictureSide());
    halves->setStretchFactor(0, 3);
    halves->setStretchFactor(1, 2);
    halves->setChildrenCollapsible(false);
    page->addWidget(halves, 1);
    page->addWidget(bottomRow());
    settle_.setSingleShot(true);
    constexpr int pause = 200; // ms
    settle_.setInterval(pause);
    connect(&settle_, &QTimer::timeout, this, [this] {
        if (isVisible()) // a closed window answers when it is opened again
            answerAnew();
    });
    showTable();
    fitToScreen(this, QSize(1280, 780));
}

CombinationsWindow::~CombinationsWindow() = default;

void CombinationsWindow::readFile(const QString& path) {
    auto opened = combinations::openTable(path);
    if (const auto* const why = std::get_if<QString>(&opened)) {
        say(QStringLiteral("%1: %2.").arg(path, *why));
        return;
    }
    take(std::move(std::get<std::unique_ptr<combinations::RowSource>>(opened)),
         QFileInfo(path).fileName());
}

void CombinationsWindow::readText(const QString& text) {
    take(std::make_unique<TextRows>(text), QStringLiteral("schowek"));
}

void CombinationsWindow::take(std::unique_ptr<combinations::RowSource> source,
                              const QString& name) {
    constexpr qsizetype shownRows = 50;
    auto reader = std::make_unique<combinations::TableReader>(*source);
    const QList<QStringList> first = reader->firstRows(shownRows);
    if (first.isEmpty()) {
        say(QStringLiteral("%1: nie ma w nim wierszy z liczbami.").arg(name));
        return;
    }
    ReadingDialog dialog(reader->layout(), first, name, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    coming_ = name;
    said_.clear();
    isStopped_ = false;
    readBase();
    work_.read(std::move(source), std::move(reader), dialog.columns(), evaluator_);
    showProgress();
}

void CombinationsWindow::baseChanged() {
    if (isVisible() && work_.table().size() > 0)
        settle_.start();
}

/// Takes the base as it is entered now; says where there is none.
void CombinationsWindow::readBase() {
    auto made = combinations::Evaluator::of(stan_, links_.fields());
    evaluator_.reset();
    unready_.clear();
    if (const auto* const why = std::get_if<combinations::Unready>(&made))
        unready_ = words(*why);
    else
        evaluator_ = std::get<combinations::Evaluator>(std::move(made));
    showNotes();
}

/// Says what has just happened; it stands until something else does.
void CombinationsWindow::say(const QString& what) {
    said_ = what;
    showNotes();
}

void CombinationsWindow::showNotes() {
    QStringList notes{unready_, said_};
    if (!work_.trouble().isEmpty())
        notes += QStringLiteral("Tabela urywa się: %1.").arg(work_.trouble());
    notes.removeAll(QString());
    notes_->setNotes(notes);
}

/// The rows keep their place in the table.
void CombinationsWindow::answerAnew() {
    readBase();
    work_.answer(evaluator_);
    showProgress();
}

void CombinationsWindow::showProgress() {
    const bool working = work_.isWorking();
    progress_->setVisible(working);
    stop_->setVisible(working);
    if (!working)
        return;
    const auto all = static_cast<int>(work_.table().size());
    progress_->setRange(0, work_.isReading() ? 0 : all); // how many are coming is not known
    progress_->setValue(static_cast<int>(work_.done()));
    state_->setText(work_.isReading()
                        ? QStringLiteral("Wczytywanie: wierszy %1").arg(work_.done())
                        : QStringLiteral("Liczenie: wierszy %1 z %2").arg(work_.done()).arg(all));
}

void CombinationsWindow::showTable() {
    if (!coming_.isEmpty() && !isStopped_) {
        source_ = coming_;
        put_.clear(); // they are of the table of before
    }
    coming_.clear();
    const RowNumber chosen = filter_->mapToSource(table_->currentIndex()).row() + 1;
    const combinations::AnsweredTable& table = work_.table();
    model_->show(table);
    governing_->show(table);
    histogram_->show(table);
    hideIdleColumns();
    if (table.size() > 0) {
        table_->resizeColumnsToContents();
        choose(chosen > 0 && chosen <= static_cast<RowNumber>(table.size())
                   ? chosen
                   : std::max<RowNumber>(1, table.choice().governing(Check::Tension)));
    }
    showNotes();
    const bool any = !table.choice().six().empty();
    for (QPushButton* button : {putButton_, chart_})
        button->setEnabled(any);
    sheet_->setEnabled(any && isAnswered());
    export_->setEnabled(table.size() > 0);
    showComparison();
    showProgress();
    showState();
    showChosen();
    if (links_.answered)
        links_.answered();
}

/// Of shear and interaction only one applies to a base; the other is 0 in all rows.
void CombinationsWindow::hideIdleColumns() {
    const bool alone = evaluator_ && evaluator_->limits().tensionSideAlone;
    table_->setColumnHidden(AnswersModel::Shear, !alone);
    table_->setColumnHidden(AnswersModel::Interaction, alone);
    governing_->setRowHidden(2, !alone);
    governing_->setRowHidden(3, alone);
    governing_->updateGeometry();
}

void CombinationsWindow::showState() {
    const combinations::AnsweredTable& table = work_.table();
    if (work_.isWorking())
        return;
    if (table.size() == 0) {
        state_->setText(
            QStringLiteral("Wczytaj tabelę kombinacji: CSV, arkusz .xlsx lub .ods, albo "
                           "wklej ją ze schowka."));
        return;
    }
    QString text = QStringLiteral("%1: wierszy %2").arg(source_).arg(table.size());
    if (table.refused() > 0)
        text += QStringLiteral(", odrzuconych %1").arg(table.refused());
    if (filter_->rowCount() != model_->rowCount())
        text += QStringLiteral(", pokazanych %1").arg(filter_->rowCount());
    state_->setText(text);
}

void CombinationsWindow::choose(RowNumber row) {
    QModelIndex index = filter_->mapFromSource(model_->index(static_cast<int>(row) - 1, 0));
    if (!index.isValid()) { // the filter hides it
        filterText_->clear();
        shown_->setCurrentIndex(0);
        index = filter_->mapFromSource(model_->index(static_cast<int>(row) - 1, 0));
    }
    table_->setCurrentIndex(index);
    table_->scrollTo(index, QAbstractItemView::PositionAtCenter);
}

live::PictureValues CombinationsWindow::pictureOf(RowNumber row) const {
    const combinations::Combination& one = *work_.table().combination(row);
    const InputFields fields = links_.fields();
    live::PictureValues values;
    values.title = one.name.isEmpty() ? QStringLiteral("Wiersz %1").arg(row)
                                      : QStringLiteral("%1 (wiersz %2)").arg(one.name).arg(row);
    values.length = fields.Text3.toDouble();
    values.width = fields.Text4.toDouble();
    for (std::size_t i = 0; i < evaluator_->anchors().size(); ++i) {
        const equilibrium::Anchor& anchor = evaluator_->anchors()[i];
        values.anchors.push_back(
            {anchor.x, anchor.y, stan_.plyta.Fi_kotwy(static_cast<int>(i) + 1), anchor.area});
    }
    values.cases.push_back(
        {static_cast<int>(row), evaluator_->equilibriumOf(one), work_.table().answer(row)});
    return values;
}

void CombinationsWindow::showChosen() {
    const QModelIndex index = filter_->mapToSource(table_->currentIndex());
    const RowNumber row = index.row() + 1;
    if (!index.isValid() || !evaluator_ || !work_.table().isAnswered(row)) {
        picture_->showNothing(index.isValid() ? remarkOn(work_.table(), row) : QString());
        return;
    }
    picture_->show(pictureOf(row));
}

void CombinationsWindow::putSix() {
    put_.clear();
    calculated_.reset();
    for (const RowNumber row : work_.table().choice().six())
        put_.emplace_back(row, *work_.table().combination(row));
    links_.putIntoTable(put_);
    showComparison();
    say(QStringLiteral("Wstawiono do tabeli obciążeń wierszy: %1. Oblicz policzy je i "
                       "utworzy raport; porównanie pokaże się tutaj.")
            .arg(put_.size()));
}

/// True where the last calculation is of what is entered now.
bool CombinationsWindow::isCalculated() const {
    return calculated_ && notes::sameTask(*calculated_, notes::entered(stan_, links_.fields()));
}

/// None where there is nothing to compare.
std::vector<combinations::Compared> CombinationsWindow::compare() const {
    if (put_.empty() || !evaluator_ || !links_.told || !isCalculated())
        return {};
    return combinations::compared(stan_, links_.told(), *evaluator_, put_);
}

void CombinationsWindow::showComparison() {
    const std::vector<combinations::Compared> all = compare();
    if (!all.empty())
        comparison_->show(all, evaluator_->limits().tensionSideAlone);
    else if (put_.empty())
        comparison_->showNothing(
            QStringLiteral("Porównanie będzie tu po wstawieniu wierszy do tabeli i Oblicz."));
    else if (!calculated_)
        comparison_->showNothing(QStringLiteral("Wstawionych wierszy jeszcze nie obliczono."));
    else
        comparison_->showNothing(QStringLiteral("Zadanie zmieniło się od obliczenia: porównanie "
                                                "będzie tu po następnym Oblicz."));
}

void CombinationsWindow::calculated() {
    if (!put_.empty())
        readBase(); // it may have changed a moment ago, or while the window was closed
    calculated_ = notes::entered(stan_, links_.fields());
    showComparison();
    const std::vector<combinations::Compared> all = compare();
    const auto count = [&all](const auto& is) { return std::count_if(all.begin(), all.end(), is); };
    const auto differing = count([](const auto& one) { return one.differs(); });
    const auto left =
        count([](const auto& one) { return one.state != combinations::Compared::State::Compared; });
    if (left == std::ssize(all))
        return; // another task
    tabs_->setCurrentWidget(comparison_);
    QString words = differing == 0
                        ? QStringLiteral("Oblicz potwierdza wstawione wiersze.")
                        : QStringLiteral("Wierszy, w których Oblicz i dokładna równowaga się "
                                         "różnią: %1 - zob. Porównanie z Oblicz.")
                              .arg(differing);
    if (left > 0)
        words += QStringLiteral(" Wierszy, których nie porównano: %1.").arg(left);
    say(words);
}

std::optional<combinations::Digest> CombinationsWindow::calculatedDigest() const {
    const std::vector<combinations::Compared> all = compare();
    const bool areCases = std::ssize(all) == stan_.obciazenia.Liczba_przyp
                          && std::all_of(all.begin(), all.end(), [](const auto& one) {
                                 return one.state == combinations::Compared::State::Compared;
                             });
    if (all.empty() || !areCases || !isAnswered())
        return std::nullopt;
    std::vector<RowNumber> rows;
    for (const combinations::Compared& one : all) {
        if (work_.table().answer(one.row) != one.exact)
            return std::nullopt; // the table was answered for another base
        rows.push_back(one.row);
    }
    return digestOf(work_.table(), source_, rows);
}

bool CombinationsWindow::isAnswered() const {
    return !work_.isWorking() && work_.table().answered() == work_.table().size();
}

void CombinationsWindow::saveSheet() {
    if (!isAnswered() || settle_.isActive()) {
        say(QStringLiteral("Odpowiedzi są właśnie liczone; arkusz można zapisać za chwilę."));
        return;
    }
    const auto file =
        links_.saveSheet(digestOf(work_.table(), source_, work_.table().choice().six()));
    if (file)
        say(QStringLiteral("Zapisano %1.").arg(*file));
}

void CombinationsWindow::exportCsv() {
    const auto path = links_.saveName(QStringLiteral("kombinacje-wyniki.csv"));
    if (!path)
        return;
    try {
        writeFileWhole(*path, answersAsCsv(work_.table()));
    } catch (const RunTimeError& failure) {
        say(QStringLiteral("Nie zapisano: %1.").arg(failure.detail()));
        return;
    }
    say(QStringLiteral("Zapisano %1.").arg(*path));
}

void CombinationsWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasUrls() || event->mimeData()->hasText())
        event->acceptProposedAction();
}

void CombinationsWindow::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    const QList<QUrl> files = event->mimeData()->urls();
    if (!files.isEmpty() && files.front().isLocalFile())
        readFile(files.front().toLocalFile());
    else
        readText(event->mimeData()->text());
}

void CombinationsWindow::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (event->spontaneous())
        return;
    if (work_.table().size() > 0)
        answerAnew();
    (work_.table().size() > 0 ? static_cast<QWidget*>(table_) : open_)->setFocus();
}

// Esc ends what is going on first, and then the window.
void CombinationsWindow::reject() {
    if (work_.isWorking())
        work_.stop();
    else
        QDialog::reject();
}

} // namespace ferna
