#include "task/forms/task_desk.h"

#include "runtime/settings.h"
#include "runtime/text_file.h"
#include "task/entered_task.h"
#include "task/forms/task_file_question.h"

#include <QApplication>
#include <QDropEvent>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QTimer>

namespace ferna {

namespace {

constexpr qsizetype longestTask = 1'000'000; // bytes
constexpr qsizetype mostRecent = 10;
const QString recentKey = QStringLiteral("zadania/ostatnie");
const QString openTitle = QStringLiteral("Ferna 2005 Pr - Otwieranie zadania");
const QString saveTitle = QStringLiteral("Ferna 2005 Pr - Zapisywanie zadania");

QString shortName(const QString& file) {
    return QFileInfo(file).fileName();
}

/// What is wrong with the text of a task, and where: "wiersz 12, klucz Kotwy[3].fi: ...".
QString complaint(std::string_view text, const TaskError& failure) {
    QString where = QStringLiteral("wiersz %1").arg(lineOf(text, failure.path));
    if (!failure.path.empty())
        where += QStringLiteral(", klucz ") + QString::fromStdString(failure.path);
    return where + QStringLiteral(": ") + QString::fromStdString(failure.polish);
}

/// The one local file that is dragged; empty where it is none.
QString draggedFile(const QMimeData* data) {
    const QList<QUrl> urls = data->urls();
    return urls.size() == 1 ? urls.front().toLocalFile() : QString();
}

} // namespace

TaskDesk::TaskDesk(Ferna3& form, Dialogs& dialogs, const QString& keptFolder)
    : form_(form), dialogs_(dialogs), kept_(keptFolder) {
    watchForm();
}

void TaskDesk::watchForm() {
    for (QLineEdit* field : form_.findChildren<QLineEdit*>())
        connect(field, &QLineEdit::textEdited, this, [this] {
            typing_ = true;
            if (!std::exchange(isTyped_, true))
                Q_EMIT changed();
        });
    connect(&form_, &Ferna3::entered, this, [this] {
        if (!waiting_)
            QTimer::singleShot(0, this, &TaskDesk::recordUnlessTyping);
        waiting_ = true;
    });
    connect(&form_, &Ferna3::stepped, this, [this](const QString& name) { record(name); });
    connect(&form_, &Ferna3::calculating, this, [this] { record(); });
    connect(&form_, &Ferna3::columnSaved, this, [this](const Stan_statyki& loads, int loadCase) {
        sections_.column = columnTaskOf(loads, loadCase);
        record();
    });
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* left, QWidget* come) {
        if ((left != nullptr && form_.isAncestorOf(left))
            || (come != nullptr && form_.isAncestorOf(come)))
            QTimer::singleShot(0, this, &TaskDesk::recordWhenFree);
    });
    qApp->installEventFilter(this);
    form_.setAcceptDrops(true);
}

void TaskDesk::begin() {
    history_.begin(task());
    saved_[history_.number()] = {{}, history_.text()};
    begun_ = true;
    Q_EMIT changed();
}

Task TaskDesk::task() const {
    Task now = sections_;
    now.stan = form_.enteredState();
    now.fields = form_.fields();
    return now;
}

// What is typed becomes a step once its field is left; everything else at once.
void TaskDesk::recordUnlessTyping() {
    waiting_ = false;
    const bool isDragged = QGuiApplication::mouseButtons() != Qt::NoButton; // told when it ends
    if (!std::exchange(typing_, false) && !isDragged)
        recordWhenFree();
}

// While a dialog stands its command is half done, as where anchors are counted and not placed yet.
// Once it goes the focus comes back.
void TaskDesk::recordWhenFree() {
    constexpr int lookAgain = 20;                        // ms
    if (QGuiApplication::mouseButtons() != Qt::NoButton) // what is dragged is half done too
        QTimer::singleShot(lookAgain, this, &TaskDesk::recordWhenFree);
    else if (QApplication::activeModalWidget() == nullptr)
        record();
}

void TaskDesk::record(const QString& name) {
    if (!begun_)
        return;
    const bool wasTyped = std::exchange(isTyped_, false);
    const bool isStep = history_.record(task(), name);
    if (isStep)
        keep();
    if (isStep || wasTyped)
        Q_EMIT changed();
}

void TaskDesk::keep() {
    if (keptNumber_ != history_.number())
        kept_.beginAnother();
    keptNumber_ = history_.number();
    try {
        kept_.keep(history_.text());
    } catch (const RunTimeError& failure) {
        if (!std::exchange(failureTold_, true))
            Q_EMIT keepingFailed(
                QStringLiteral("Kopia zadania na wypadek awarii nie jest zapisywana: ")
                + failure.text());
    }
}

void TaskDesk::lay(const Task& task, const QString& step, const QString& file, bool isSaved) {
    record();
    form_.openTask(openedState(form_.enteredState(), task), openedFields(task));
    sections_ = task;
    history_.recordAnother(this->task(), step);
    saved_[history_.number()] = {file, isSaved ? history_.text() : std::string()};
    Q_EMIT opened();
    Q_EMIT changed();
}

void TaskDesk::beginNew() {
    lay(newTask(task()), QStringLiteral("nowe zadanie"), {}, true); // kept once it is worked on
}

void TaskDesk::openByQuestion() {
    if (const auto file = askWhichTask(&form_))
        open(*file);
}

bool TaskDesk::open(const QString& file) {
    QByteArray bytes;
    const auto refuse = [&](const QString& why) {
        dialogs_.message(QStringLiteral("Nie można otworzyć zadania \"%1\".\n%2").arg(file, why),
                         openTitle, MessageStyle::Stop);
        return false;
    };
    std::string_view text;
    try {
        bytes = readFileWhole(file, longestTask);
        text = {bytes.constData(), static_cast<std::size_t>(bytes.size())};
        const Task task = withColumnInCase(readTask(parsed(text)));
        const QString path = QFileInfo(file).absoluteFilePath();
        lay(task, QStringLiteral("otwarcie ") + shortName(file), path, true);
        keep();
        remember(path);
        return true;
    } catch (const TaskError& failure) {
        return refuse(complaint(text, failure));
    } catch (const RunTimeError& failure) {
        if (failure.key().empty())
            return refuse(failure.text());
        return refuse(QStringLiteral("wiersz %1, klucz %2: %3")
                          .arg(lineOf(text, failure.key()))
                          .arg(QString::fromStdString(failure.key()), failure.text()));
    }
}

void TaskDesk::restore(const KeptTask& kept) {
    lay(kept.task, QStringLiteral("przywrócenie zadania"), {}, false);
    keep();
}

bool TaskDesk::save() {
    record();
    return file().isEmpty() ? saveAs() : saveTo(file());
}

bool TaskDesk::saveAs() {
    record();
    QString preset = shortName(file());
    if (preset.isEmpty())
        preset =
            (sections_.Nazwa_stopy.isEmpty() ? QStringLiteral("zadanie") : sections_.Nazwa_stopy)
                .replace(u'/', u'-')
            + taskFileEnding;
    const auto chosen = askWhereToSaveTask(&form_, preset);
    return chosen && saveTo(*chosen);
}

bool TaskDesk::saveTo(const QString& file) {
    try {
        writeFileWhole(file, QByteArray::fromStdString(history_.text()));
    } catch (const RunTimeError& failure) {
        dialogs_.message(
            QStringLiteral("Nie można zapisać zadania \"%1\".\n%2").arg(file, failure.text()),
            saveTitle, MessageStyle::Stop);
        return false;
    }
    const QString path = QFileInfo(file).absoluteFilePath();
    saved_[history_.number()] = {path, history_.text()};
    remember(path);
    Q_EMIT changed();
    return true;
}

void TaskDesk::undo() {
    record();
    if (history_.canUndo())
        show(history_.undo());
}

void TaskDesk::redo() {
    record();
    if (history_.canRedo())
        show(history_.redo());
}

// The results of the last calculation stay as they are: only the task goes back and forth.
void TaskDesk::show(const Task& task) {
    Stan stan = form_.enteredState();
    stan.opcje = task.stan.opcje;
    stan.plyta = task.stan.plyta;
    stan.obciazenia = task.stan.obciazenia;
    stan.materialy = task.stan.materialy;
    form_.takeTask(stan, task.fields);
    sections_ = task;
    keep();
    Q_EMIT changed();
}

QString TaskDesk::file() const {
    const auto found = saved_.find(history_.number());
    return found == saved_.end() ? QString() : found->second.file;
}

bool TaskDesk::isChanged() const {
    const auto found = saved_.find(history_.number());
    return isTyped_ || found == saved_.end() || found->second.text != history_.text();
}

QStringList TaskDesk::recentFiles() {
    QStringList there;
    for (const QString& file : settings::value(recentKey).toStringList())
        if (QFileInfo(file).isFile())
            there += file;
    return there;
}

void TaskDesk::remember(const QString& file) {
    QStringList recent = settings::value(recentKey).toStringList();
    recent.removeAll(file);
    recent.prepend(file);
    settings::setValue(recentKey, QStringList(recent.mid(0, mostRecent)));
}

void TaskDesk::labelled(const QString& label) {
    if (label.isEmpty() || label == sections_.Nazwa_stopy)
        return;
    sections_.Nazwa_stopy = label;
    record();
}

void TaskDesk::plateWorked(const std::optional<PlateTask>& plate) {
    sections_.plate = plate;
    record();
}

void TaskDesk::anchorSelected(const AnchorTask& anchor) {
    sections_.anchor = anchor;
    record();
}

bool TaskDesk::isOfForm(QObject* watched) const {
    const auto* const widget = qobject_cast<QWidget*>(watched);
    return widget != nullptr && widget->window() == &form_;
}

bool TaskDesk::takeDrop(QEvent* event) {
    auto* const drop = static_cast<QDropEvent*>(event);
    const QString file = draggedFile(drop->mimeData());
    if (file.isEmpty())
        return false;
    drop->setDropAction(Qt::CopyAction);
    drop->accept();
    if (event->type() == QEvent::Drop)
        QTimer::singleShot(0, this, [this, file] { open(file); });
    return true;
}

bool TaskDesk::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        return isOfForm(watched) && takeDrop(event);
    case QEvent::ShortcutOverride: {
        // A field would take these keys for its own text: here they are the task's.
        const auto* const key = static_cast<QKeyEvent*>(event);
        const bool isStep = key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo)
                            || key->keyCombination() == (Qt::ControlModifier | Qt::Key_Y);
        return isStep && qobject_cast<QLineEdit*>(watched) != nullptr && isOfForm(watched);
    }
    default:
        return false;
    }
}

} // namespace ferna
