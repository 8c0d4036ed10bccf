#include "analysis/stan_przypadku.h"
#include "batch/task_run.h"
#include "report/report_model.h"
#include "report/text_writer.h"
#include "report/zone_sketch.h"
#include "support/golden.h"
#include "support/main_form.h"
#include "task/entered_task.h"
#include "task/forms/quiet_line.h"
#include "task/forms/task_menu.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QMenu>
#include <QMimeData>

using namespace ferna;
using namespace ferna::testing;

namespace {

/// The main form with its task on the desk, as the program has it.
class Desk : public MainForm {
protected:
    void SetUp() override { begin(); }

    /// A start of the program; what an earlier one had is gone, as after a kill.
    void begin() {
        menu.reset();
        desk.reset();
        form.reset();
        stan = Stan();
        startUp(stan, folder.path());
        form = std::make_unique<Ferna3>(stan, folder.path(), dialogs, [this] { ++resultsOpened; });
        desk = std::make_unique<TaskDesk>(*form, dialogs, path(QStringLiteral("odzyskiwanie")));
        menu = std::make_unique<TaskMenu>(*form, *desk);
        form->load();
        menu->offerLastTask();
        form->show();
        activate();
        desk->begin();
    }

    QAction* entry(const QString& begin) const {
        for (QAction* action : form->menus().task->actions())
            if (action->text().remove(u'&').startsWith(begin))
                return action;
        throw std::runtime_error("no entry " + begin.toStdString());
    }
    QString undoEntry() const { return entry(QStringLiteral("Cofnij"))->text(); }

    QString line() const { return form->findChild<QuietLine*>()->text(); }

    void write(const QString& name, const QByteArray& text) const {
        writeFileWhole(path(name), text);
    }
    QByteArray sample(const char* name) const {
        return readFileWhole(places::data("/przyklady/") + QString::fromLatin1(name));
    }

    /// The next question where to save: this name is typed into it.
    void announceSave(const QString& name) {
        answers.dialog(QStringLiteral("saveQuestion"), [this, name](QWidget& modal) {
            auto* const field = modal.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            field->setText(path(name));
            QTest::keyClick(field, Qt::Key_Return);
        });
    }

    QString cannotOpen(const QString& name) const {
        return QStringLiteral("Nie można otworzyć zadania \"%1\".\n").arg(path(name));
    }

    const QString openTitle = QStringLiteral("Ferna 2005 Pr - Otwieranie zadania");
    std::unique_ptr<TaskDesk> desk;
    std::unique_ptr<TaskMenu> menu;
};

const QString caption = QStringLiteral("Ferna 2005 Pr - zakotwienie słupów stalowych");

TEST_F(Desk, AStartHasTheCaptionAndNothingToUndo) {
    EXPECT_EQ(form->windowTitle(), caption);
    EXPECT_FALSE(entry(QStringLiteral("Cofnij"))->isEnabled());
    EXPECT_FALSE(entry(QStringLiteral("Pokaż"))->isEnabled());
    EXPECT_EQ(line(), QString());
}

TEST_F(Desk, ATypedTextIsOneStepWhichTheKeysUndoAndDoAgain) {
    type("Text3", QStringLiteral("1500"));
    EXPECT_EQ(form->windowTitle(), caption + QStringLiteral(" - bez nazwy*"));
    key(Qt::Key_Tab);
    EXPECT_EQ(undoEntry(), QStringLiteral("&Cofnij: długość płyty"));
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(text("Text3"), QStringLiteral("1200"));
    EXPECT_EQ(form->windowTitle(), caption);
    EXPECT_EQ(entry(QStringLiteral("Ponów"))->text(), QStringLiteral("Ponó&w: długość płyty"));
    key(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(text("Text3"), QStringLiteral("1500"));
}

TEST_F(Desk, WhatIsBeingTypedIsUndoneWithoutLeavingItsField) {
    type("Text4", QStringLiteral("99"));
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(text("Text4"), QStringLiteral("1200"));
    EXPECT_FALSE(desk->history().canUndo());
}

TEST_F(Desk, AnchorsAddedAndRemovedComeBack) {
    show(Sruby);
    add("cmdDodaj4", 24, 250, 150);
    add("cmdDodaj1s", 20, 0, 100);
    EXPECT_EQ(undoEntry(), QStringLiteral("&Cofnij: dodanie kotwy"));
    answers.box(QStringLiteral("Ferna 2005 Pr - Usuwanie wszystkich śrub"),
                QStringLiteral("Czy napewno chcesz usunąć wszystkie śruby?"),
                QStringLiteral("Tak"));
    click("cmdUsunws");
    EXPECT_EQ(undoEntry(), QStringLiteral("&Cofnij: usunięcie wszystkich kotew"));
    desk->undo();
    EXPECT_EQ(anchorList().size(), 5);
    desk->undo();
    EXPECT_EQ(anchorList().size(), 4);
    desk->undo();
    EXPECT_EQ(anchorList().size(), 0);
    desk->redo();
    EXPECT_EQ(anchorList().value(3), QStringLiteral("4.   M24  x=-250 mm  y=-150 mm"));
}

TEST_F(Desk, AChosenNormIsOneStepWithTheConcreteAndTheRatioThatFollowFromIt) {
    show(Konfiguracja);
    click("Norma_1");
    EXPECT_EQ(undoEntry(), QStringLiteral("&Cofnij: norma"));
    const QString ratio = text("Text2");
    desk->undo();
    EXPECT_TRUE(checked("Norma_0"));
    EXPECT_EQ(stan.opcje.Nr_normy, 0);
    EXPECT_EQ(stan.opcje.Nr_betonu, 3);
    desk->redo();
    EXPECT_TRUE(checked("Norma_1"));
    EXPECT_EQ(text("Text2"), ratio);
    EXPECT_FALSE(desk->history().canRedo());
}

TEST_F(Desk, ASavedTaskIsTheFileOfTheCompanionAndStandsInTheTitle) {
    show(Sruby);
    add("cmdDodaj4", 24, 250, 150);
    announceSave(QStringLiteral("stopa F-1"));
    key(Qt::Key_S, Qt::ControlModifier);
    const QByteArray saved = contents(QStringLiteral("stopa F-1.ferna"));
    EXPECT_EQ(saved.toStdString(), desk->history().text());
    EXPECT_EQ(readTask(parsed(saved.toStdString())).stan.plyta.Liczba_srub, 4);
    EXPECT_EQ(form->windowTitle(), caption + QStringLiteral(" - stopa F-1.ferna"));
    EXPECT_EQ(TaskDesk::recentFiles().value(0), path(QStringLiteral("stopa F-1.ferna")));
    EXPECT_TRUE(entry(QStringLiteral("Pokaż"))->isEnabled());
}

TEST_F(Desk, AChangeBehindTheSavingIsMarkedUntilItIsSavedToo) {
    write(QStringLiteral("a.ferna"), sample("slup-narozny.json"));
    ASSERT_TRUE(desk->open(path(QStringLiteral("a.ferna"))));
    EXPECT_EQ(form->windowTitle(), caption + QStringLiteral(" - a.ferna"));
    type("Text3", QStringLiteral("700"));
    key(Qt::Key_Tab);
    EXPECT_EQ(form->windowTitle(), caption + QStringLiteral(" - a.ferna*"));
    key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(form->windowTitle(), caption + QStringLiteral(" - a.ferna"));
    EXPECT_TRUE(contents(QStringLiteral("a.ferna")).contains("\"Dlug_plyty_mm\": 700,"));
}

TEST_F(Desk, AnOpenedTaskStandsInItsFieldsAndCanBeUndone) {
    type("Text3", QStringLiteral("1300"));
    write(QStringLiteral("a.ferna"), sample("slup-narozny.json"));
    ASSERT_TRUE(desk->open(path(QStringLiteral("a.ferna"))));
    EXPECT_EQ(text("txtNaz_proj"), QStringLiteral("Hala magazynowa, oś B"));
    EXPECT_EQ(text("txtNr_strony"), QStringLiteral("3"));
    EXPECT_EQ(text("Text3"), QStringLiteral("500"));
    EXPECT_EQ(text("Text6_0"), QStringLiteral("180"));
    EXPECT_EQ(text("Text8_0"), QStringLiteral("-40"));
    EXPECT_EQ(item("cmbBeton"), 2);
    EXPECT_EQ(item("cmbStal"), 3);
    EXPECT_TRUE(checked("Norma_1"));
    EXPECT_TRUE(checked("Option1_1"));
    EXPECT_EQ(anchorList().size(), 4);
    EXPECT_EQ(undoEntry(), QStringLiteral("&Cofnij: otwarcie a.ferna"));
    EXPECT_EQ(form->windowTitle(), caption + QStringLiteral(" - a.ferna")) << "without the mark";
    desk->undo();
    EXPECT_EQ(text("Text3"), QStringLiteral("1300"));
    EXPECT_EQ(desk->file(), QString()) << "the task before belongs to no file";
    desk->redo();
    EXPECT_EQ(desk->file(), path(QStringLiteral("a.ferna")));
}

TEST_F(Desk, AFileThatCannotBeOpenedIsToldWithLineAndKeyAndChangesNothing) {
    const std::string before = desk->history().text();
    const auto refused = [&](const QByteArray& text, const QString& what) {
        write(QStringLiteral("zla.ferna"), text);
        answers.box(openTitle, cannotOpen(QStringLiteral("zla.ferna")) + what);
        EXPECT_FALSE(desk->open(path(QStringLiteral("zla.ferna"))));
        EXPECT_EQ(taskText(desk->task()), before);
        EXPECT_EQ(form->windowTitle(), caption);
    };
    QByteArray text = sample("slup-narozny.json");
    refused(QByteArray(text).replace("\"fi\": 24}\n", "\"fi\": \"24\"}\n"),
            QStringLiteral("wiersz 15, klucz Kotwy[3].fi: ma tu stać liczba całkowita od -32768 "
                           "do 32767, a stoi \"24\""));
    refused(QByteArray(text).replace("\"Nr_normy\": 1,", "\"Nr_normy\": 1,\n\"Nowy\": 5,"),
            QStringLiteral("wiersz 6, klucz Nowy: nieznany klucz (plik nowszej wersji programu?)"));
    const QString damaged = QStringLiteral(": to nie jest pełny plik zadania (tekst JSON jest tu "
                                           "uszkodzony albo urwany)");
    refused(text.left(200), QStringLiteral("wiersz 9") + damaged);
    refused("", QStringLiteral("wiersz 1") + damaged);
    const QString none = QStringLiteral("nie ma.ferna");
    answers.box(openTitle,
                cannotOpen(none) + QStringLiteral("Nie znaleziono pliku: ") + path(none));
    EXPECT_FALSE(desk->open(path(none)));
}

TEST_F(Desk, ANumberTypedAfterATaskIsOpenedOrAStepTakenBackReplacesTheFields) {
    write(QStringLiteral("a.ferna"), sample("slup-narozny.json"));
    type("Text3", QStringLiteral("700"));
    ASSERT_TRUE(desk->open(path(QStringLiteral("a.ferna"))));
    ASSERT_EQ(focused(), QStringLiteral("Text3"));
    const QString opened = text("Text3");
    key(Qt::Key_5);
    EXPECT_EQ(text("Text3"), QStringLiteral("5"));
    desk->undo();
    EXPECT_EQ(text("Text3"), opened);
    key(Qt::Key_6);
    EXPECT_EQ(text("Text3"), QStringLiteral("6"));
}

/// The programs that a call finds while this stands.
class ProgramsOf {
public:
    explicit ProgramsOf(const QString& folder) { qputenv("PATH", folder.toUtf8()); }
    ~ProgramsOf() { qputenv("PATH", before_); }
    Q_DISABLE_COPY_MOVE(ProgramsOf)

private:
    QByteArray before_ = qgetenv("PATH");
};

TEST_F(Desk, ShowsTheFileOfTheTaskInTheFileManager) {
    write(QStringLiteral("Hala A, oś 1.ferna"), sample("slup-narozny.json"));
    ASSERT_TRUE(desk->open(path(QStringLiteral("Hala A, oś 1.ferna"))));
    write(QStringLiteral("dbus-send"),
          "#!/bin/sh\nfor one; do echo \"$one\"; done > \"${0%/*}/x\"\n"
          "/bin/mv \"${0%/*}/x\" \"${0%/*}/told\"\n");
    QFile::setPermissions(path(QStringLiteral("dbus-send")),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    const ProgramsOf own(folder.path());
    entry(QStringLiteral("Pokaż w folderze"))->trigger();
    const QString told = path(QStringLiteral("told"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return QFile::exists(told); }));
    EXPECT_TRUE(readFileWhole(told).contains("array:string:file://" + folder.path().toUtf8()
                                             + "/Hala%20A%2C%20o%C5%9B%201.ferna\n"))
        << readFileWhole(told).constData();
}

TEST_F(Desk, TellsWhereNothingCanShowTheFolderOfTheTask) {
    write(QStringLiteral("a.ferna"), sample("slup-narozny.json"));
    ASSERT_TRUE(desk->open(path(QStringLiteral("a.ferna"))));
    const ProgramsOf none(path(QStringLiteral("no such folder")));
    answers.stop(error::NoObject);
    entry(QStringLiteral("Pokaż w folderze"))->trigger();
    EXPECT_TRUE(QTest::qWaitFor([this] { return answers.done(); }));
}

TEST_F(Desk, AFileThatCannotBeWrittenIsToldAndTheMarkStays) {
    write(QStringLiteral("a.ferna"), sample("slup-narozny.json"));
    ASSERT_TRUE(desk->open(path(QStringLiteral("a.ferna"))));
    QFile::remove(path(QStringLiteral("a.ferna")));
    QDir().mkpath(path(QStringLiteral("a.ferna")));
    type("Text3", QStringLiteral("700"));
    answers.box(QStringLiteral("Ferna 2005 Pr - Zapisywanie zadania"),
                QStringLiteral("Nie można zapisać zadania \"%1\".\nBłąd dostępu do ścieżki lub "
                               "pliku: %1 (Is a directory)")
                    .arg(path(QStringLiteral("a.ferna"))));
    EXPECT_FALSE(desk->save());
    EXPECT_TRUE(form->windowTitle().endsWith(u'*'));
}

TEST_F(Desk, AKilledProgramOffersItsTaskAtTheNextStart) {
    show(Sruby);
    add("cmdDodaj4", 24, 250, 150);
    show(Obciazenia_);
    type("Text6_0", QStringLiteral("12,3,4"));
    key(Qt::Key_Tab);
    begin();
    EXPECT_TRUE(line().startsWith(
        QStringLiteral("Ostatnie zadanie: Projekt, 4 kotwy, 1 przypadek, dziś ")));
    EXPECT_EQ(text("Text6_0"), QStringLiteral("100")) << "the start itself is as ever";
    EXPECT_EQ(anchorList().size(), 0);
    click("przycisk_cichej_linii");
    EXPECT_EQ(line(), QString());
    EXPECT_EQ(anchorList().size(), 4);
    EXPECT_EQ(text("Text6_0"), QStringLiteral("12,3,4"));
    EXPECT_EQ(undoEntry(), QStringLiteral("&Cofnij: przywrócenie zadania"));
}

TEST_F(Desk, TheOfferGoesWithItsCross) {
    type("Text3", QStringLiteral("700"));
    key(Qt::Key_Tab);
    begin();
    EXPECT_NE(line(), QString());
    click("zamknij_cicha_linie");
    EXPECT_EQ(line(), QString());
    EXPECT_EQ(desk->kept().size(), 1U) << "it stays in the menu";
}

TEST_F(Desk, ATaskThatCannotBeKeptIsToldOnceAndTheWorkGoesOn) {
    write(QStringLiteral("odzyskiwanie"), "a file in the place of the folder");
    type("Text3", QStringLiteral("700"));
    key(Qt::Key_Tab);
    EXPECT_TRUE(
        line().startsWith(QStringLiteral("Kopia zadania na wypadek awarii nie jest zapisywana: ")));
    click("zamknij_cicha_linie");
    type("Text4", QStringLiteral("500"));
    key(Qt::Key_Tab);
    EXPECT_EQ(line(), QString());
    EXPECT_EQ(undoEntry(), QStringLiteral("&Cofnij: szerokość płyty"));
}

TEST_F(Desk, ANewTaskKeepsTheProjectAndTheNormAndHasNoFile) {
    write(QStringLiteral("a.ferna"), sample("slup-narozny.json"));
    ASSERT_TRUE(desk->open(path(QStringLiteral("a.ferna"))));
    key(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(text("txtNaz_proj"), QStringLiteral("Hala magazynowa, oś B"));
    EXPECT_TRUE(checked("Norma_1"));
    EXPECT_EQ(the<QComboBox>("cmbBeton")->currentText(), QStringLiteral("B20"));
    EXPECT_EQ(text("Text3"), QStringLiteral("1200"));
    EXPECT_EQ(anchorList().size(), 0);
    EXPECT_EQ(form->windowTitle(), caption);
    EXPECT_EQ(desk->sections().Nazwa_stopy, QString());
}

TEST_F(Desk, AFileDroppedOntoAFieldIsOpened) {
    write(QStringLiteral("a.ferna"), sample("slup-narozny.json"));
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(path(QStringLiteral("a.ferna")))});
    QLineEdit* const field = the<QLineEdit>("Text3");
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(field, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(field, &drop);
    settle();
    EXPECT_EQ(text("Text3"), QStringLiteral("500"));
    EXPECT_EQ(desk->file(), path(QStringLiteral("a.ferna")));
}

TEST_F(Desk, TheLoadsOnTheColumnComeBackInTheirCase) {
    write(QStringLiteral("a.ferna"), R"({"Dlug_plyty_mm": 600, "Szer_plyty_mm": 400, "Kotwy": [],
        "Przypadki": [{"N": 300, "M1": 0, "M2": 0, "Vx": 0, "Vy": 0}],
        "Slup": [{"kierunek": "pionowe", "rodzaj": "sila", "P": 250, "ex": 100, "ey": 0}]})");
    ASSERT_TRUE(desk->open(path(QStringLiteral("a.ferna"))));
    EXPECT_EQ(text("Text1"), QStringLiteral("2"));
    EXPECT_EQ(text("Text6_1").trimmed(), QStringLiteral("250,0"));
    const Task saved = readTask(parsed(desk->history().text()));
    ASSERT_TRUE(saved.column.has_value());
    EXPECT_EQ(saved.column->inCase, 2);
    EXPECT_EQ(saved.stan.obciazenia.Liczba_przyp, 2);
}

TEST_F(Desk, LoadsDeclaredOnTheColumnGoIntoTheTask) {
    Stan declaring = stan;
    InputFields fields = form->fields();
    const DeclaredLoads done = declareLoads(
        readColumnTask(parsed(R"([{"kierunek": "ZY", "rodzaj": "sila", "H": 12, "h": 4}])")),
        declaring, fields);
    Q_EMIT form->columnSaved(done.loads, 1);
    const Task saved = readTask(parsed(desk->history().text()));
    ASSERT_TRUE(saved.column.has_value());
    EXPECT_EQ(saved.column->inCase, 1);
    ASSERT_EQ(saved.column->loads.size(), 1U);
    EXPECT_EQ(saved.column->loads[0].load, QStringLiteral("12"));
    EXPECT_TRUE(form->windowTitle().endsWith(u'*'));
}

/// The text report of a computed state, at one moment.
QByteArray reportOf(Stan& stan, const QString& label) {
    Raport raport;
    ScriptedDialogs boxes;
    boxes.answers.push_back(label);
    Wypelnij_wiersze(raport, stan);
    for (int c = 1; c <= stan.obciazenia.Liczba_przyp; ++c)
        if (!wholePlate(stan, c))
            raport.Wiersze_strefy(c - 1) = Wiersz_strefy(stan, c);
    Naglowek(raport, stan, stan.opcje.Nr_normy == 0, QDateTime(QDate(2026, 1, 2), QTime(3, 4)),
             boxes);
    return textReport(reportModel(stan, raport)).bytes();
}

TEST_F(Desk, AReportFromTheWindowIsThatOfTheCompanion) {
    const batch::RunOptions options{{}, places::data(), QDateTime(QDate(2026, 1, 2), QTime(3, 4))};
    int compared = 0;
    const auto compare = [&](const std::string& text) {
        batch::ComputedTask done = batch::run(readTask(parsed(text)), options);
        if (!batch::solved(done) || !done.dialogs.messages.empty()
            || done.task.stan.opcje.Nr_stali == 7)
            return;
        write(QStringLiteral("a.ferna"), QByteArray::fromStdString(text));
        ASSERT_TRUE(desk->open(path(QStringLiteral("a.ferna"))));
        const int opened = resultsOpened;
        click("cmdOblicz");
        ASSERT_EQ(resultsOpened, opened + 1) << text;
        if (desk->sections().plate)
            workPlate(*desk->sections().plate, stan, dialogs);
        ScriptedDialogs boxes;
        if (desk->sections().anchor)
            selectAnchor(*desk->sections().anchor, stan, boxes);
        const QString label = desk->sections().Nazwa_stopy;
        EXPECT_EQ(reportOf(stan, label),
                  textReport(reportModel(done.task.stan, done.raport)).bytes())
            << text;
        ++compared;
    };
    for (const char* set : {"plate", "anchor", "statics", "solver"}) {
        int taken = 0;
        for (const GoldenCase& golden : goldenCases(QString::fromLatin1(set)))
            if (++taken <= 25)
                compare(golden.task.dump());
    }
    for (const char* name : {"slup-hali.json", "slup-narozny.json", "szesc-przypadkow.json"})
        compare(sample(name).toStdString());
    EXPECT_GT(compared, 60);
}

} // namespace
