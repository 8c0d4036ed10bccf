// Where the built program writes, and what it leaves alone.
#include "batch/program.h"
#include "support/places.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QThread>
#include <QXmlStreamReader>

#include <sys/stat.h>

#include <csignal>

using namespace ferna::testing;

namespace {

// Every character that means something in one of the formats.
const QString meaningful =
    QStringLiteral("</title><script>alert(1)</script> & \"A\" 'B' ]]> <!-- %s {\\b} (C) $x, 10; #");

class Outputs : public Program {
protected:
    Outputs() { epoch = QStringLiteral("1767225600"); }

    QString path(const char* name) const { return folder.path(QString::fromUtf8(name)); }
    bool exists(const char* name) const { return QFile::exists(path(name)); }

    int report(const char* name, const QByteArray& text = good) {
        return call({QStringLiteral("--raport"), path(name), task(text)});
    }

    /// A task named by those characters.
    static QByteArray named() {
        const QByteArray escaped = meaningful.toUtf8().replace('\\', "\\\\").replace('"', "\\\"");
        return QByteArray(good)
            .replace("Hala ż", escaped)
            .replace("{\"Nazwa", "{\"Nazwa_stopy\": \"<F & 1>\", \"Nazwa");
    }

    /// A task whose report has several pages.
    static QByteArray longTask() {
        const QByteArray load = R"({"N": 50, "M1": 60, "M2": 20, "Vx": 1, "Vy": 0})";
        return QByteArray(good).replace(load, QByteArrayList(6, load).join(','));
    }

    /// The texts of an XML document; a failure where it is none.
    static QString textsOf(const QByteArray& bytes) {
        QXmlStreamReader xml(bytes);
        QString texts;
        while (!xml.atEnd()) {
            if (xml.readNext() == QXmlStreamReader::Characters)
                texts += xml.text();
            EXPECT_NE(xml.name(), QLatin1String("script"));
        }
        EXPECT_FALSE(xml.hasError())
            << xml.errorString().toStdString() << ", line " << xml.lineNumber();
        return texts;
    }

    static QByteArray outputOf(const QString& program, const QStringList& arguments) {
        QProcess process;
        process.start(program, arguments);
        EXPECT_TRUE(process.waitForFinished());
        return process.readAllStandardOutput();
    }
};

TEST_F(Outputs, SvgIsWellFormedWhateverTheProjectIsCalled) {
    ASSERT_EQ(report("r.svg", named()), 0) << err.toStdString();
    const QString texts = textsOf(folder.read(QStringLiteral("r.svg")));
    EXPECT_GE(texts.count(meaningful), 1) << texts.toStdString();
    EXPECT_TRUE(texts.contains(QStringLiteral(" - ") + meaningful)) << "the title";
}

TEST_F(Outputs, ControlCharactersOfACatalogueBreakNoSvg) {
    QByteArray catalogue = Folder::bytesOf(places::data("/Ferpl.txt")).replace(" ", "\x01");
    const QString file = folder.write(QStringLiteral("k.txt"), catalogue);
    ASSERT_EQ(call({QStringLiteral("--katalog"), file, QStringLiteral("--raport"), path("r.svg"),
                    task(good)}),
              0)
        << err.toStdString();
    textsOf(folder.read(QStringLiteral("r.svg")));
}

TEST_F(Outputs, OdtIsWellFormedWhateverTheProjectIsCalled) {
    ASSERT_EQ(report("r.odt", named()), 0) << err.toStdString();
    for (const char* part : {"content.xml", "meta.xml", "styles.xml"}) {
        const QString texts = textsOf(outputOf(
            QStringLiteral("unzip"), {QStringLiteral("-p"), path("r.odt"), QLatin1String(part)}));
        if (part == std::string("content.xml")) {
            EXPECT_TRUE(texts.contains(meaningful)) << texts.left(400).toStdString();
        }
    }
}

TEST_F(Outputs, DocxIsWellFormedWhateverTheProjectIsCalled) {
    ASSERT_EQ(report("r.docx", named()), 0) << err.toStdString();
    for (const char* part :
         {"word/document.xml", "word/styles.xml", "word/header1.xml", "docProps/core.xml"}) {
        const QString texts = textsOf(outputOf(
            QStringLiteral("unzip"), {QStringLiteral("-p"), path("r.docx"), QLatin1String(part)}));
        if (part == std::string("word/document.xml")) {
            EXPECT_TRUE(texts.contains(meaningful)) << texts.left(400).toStdString();
        }
    }
}

TEST_F(Outputs, DocumentsHaveTheSameBytesUnderTheSameDate) {
    for (const char* name : {"r.pdf", "r.odt", "r.docx"}) {
        ASSERT_EQ(report(name, longTask()), 0) << err.toStdString();
        const QByteArray first = folder.read(QString::fromLatin1(name));
        ASSERT_EQ(report(name, longTask()), 0);
        EXPECT_EQ(folder.read(QString::fromLatin1(name)), first) << name;
    }
}

TEST_F(Outputs, PdfTellsItsTitleAndLanguageAndLeadsToCasesByBookmarks) {
    ASSERT_EQ(
        report("r.pdf", QByteArray(longTask()).replace("{\"Nazwa", "{\"Nr_jezyka\": 4, \"Nazwa")),
        0)
        << err.toStdString();
    const QByteArray info = outputOf(QStringLiteral("pdfinfo"), {path("r.pdf")});
    EXPECT_TRUE(info.contains("Verankerung einer Stahlst\xc3\xbctze nach PN-B-03215:1999 und "
                              "PN-84/B-03264 - Hala \xc5\xbc"))
        << info.toStdString();
    EXPECT_TRUE(info.contains("Nachweis der St\xc3\xbctzenverankerung im Fundament"));
    EXPECT_TRUE(info.contains("2026")) << "SOURCE_DATE_EPOCH";
    const QByteArray html =
        outputOf(QStringLiteral("pdftohtml"), {QStringLiteral("-xml"), QStringLiteral("-stdout"),
                                               QStringLiteral("-i"), path("r.pdf")});
    QStringList bookmarks;
    QXmlStreamReader xml(html);
    while (!xml.atEnd())
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == u"item") {
            const QString page = xml.attributes().value(QStringLiteral("page")).toString();
            bookmarks += xml.readElementText();
            const QByteArray text = outputOf(QStringLiteral("pdftotext"),
                                             {QStringLiteral("-f"), page, QStringLiteral("-l"),
                                              page, path("r.pdf"), QStringLiteral("-")});
            EXPECT_TRUE(text.contains(bookmarks.last().toUtf8()))
                << bookmarks.last().toStdString() << " is not on page " << page.toStdString();
        }
    QStringList expected{QStringLiteral("Belastung"), QStringLiteral("Ergebnisse der Berechnung")};
    for (int c = 1; c <= 6; ++c)
        expected += QStringLiteral("Lastfall Nr. %1").arg(c);
    expected += QStringLiteral("Größtwerte aller Lastfälle");
    EXPECT_EQ(bookmarks.join(u'\n').toStdString(), expected.join(u'\n').toStdString());
    EXPECT_TRUE(folder.read(QStringLiteral("r.pdf")).contains("/Lang"));
}

TEST_F(Outputs, ARefusedPlateCheckIsToldBesideTheReportWithoutIt) {
    const QByteArray text =
        QByteArray(good).replace("{\"Nazwa", R"({"Blacha": {"Nr_stali_blachy": 2, "Sprawdzenia": {
            "1": {"bs": 0, "ca": 60, "S": 100}, "3": {"l": 121, "b": 95, "sigma": 6.5}}}, "Nazwa)");
    ASSERT_EQ(report("r.txt", text), 0) << err.toStdString();
    EXPECT_TRUE(err.contains("uwaga: Sprawdzenie blachy (1): ")) << err.toStdString();
    const nlohmann::json result = nlohmann::json::parse(out.toStdString());
    int told = 0;
    for (const nlohmann::json& note : result["Uwagi"])
        if (note["kod"] == "sprawdzenie_odrzucone") {
            ++told;
            EXPECT_EQ(note["sprawdzenie"], 1);
        }
    EXPECT_EQ(told, 1);
    EXPECT_TRUE(folder.read(QStringLiteral("r.txt")).contains("121 x 95 mm"));
}

TEST_F(Outputs, TextAndCommandsCarryEveryCharacterAsItStands) {
    ASSERT_EQ(report("r.txt", named()), 0);
    EXPECT_EQ(folder.read(QStringLiteral("r.txt")).split('\n').count(meaningful.toUtf8() + '\r'),
              1);
    ASSERT_EQ(report("r.wyd", named()), 0);
    EXPECT_GE(folder.read(QStringLiteral("r.wyd")).split('\n').count(meaningful.toUtf8() + '\r'),
              1);
    ASSERT_EQ(report("r.rtf", named()), 0);
    EXPECT_TRUE(folder.read(QStringLiteral("r.rtf")).contains(meaningful.toUtf8()))
        << "literal, as the help tells";
}

TEST_F(Outputs, PdfCarriesEveryCharacter) {
    ASSERT_EQ(report("r.pdf", named()), 0);
    const QString text = QString::fromUtf8(
        outputOf(QStringLiteral("pdftotext"),
                 {QStringLiteral("-layout"), path("r.pdf"), QStringLiteral("-")}));
    EXPECT_TRUE(text.contains(QStringLiteral("</title><script>alert(1)</script> & \"A\" 'B' ]]>")))
        << text.left(600).toStdString();
    const QByteArray info = outputOf(QStringLiteral("pdfinfo"), {path("r.pdf")});
    EXPECT_TRUE(info.contains(meaningful.toUtf8())) << info.toStdString();
}

TEST_F(Outputs, EmfCarriesEveryCharacter) {
    ASSERT_EQ(report("r.emf", named()), 0);
    const QByteArray bytes = folder.read(QStringLiteral("r.emf"));
    const QString whole = QStringLiteral("</title><script>alert(1)</script> & \"A\"");
    EXPECT_TRUE(bytes.contains(QByteArray(reinterpret_cast<const char*>(whole.utf16()),
                                          whole.size() * qsizetype{sizeof(char16_t)})));
}

TEST_F(Outputs, TheResultCarriesEveryCharacter) {
    const auto lines = stream(QByteArray(R"({"Nazwa_projektu": "a", "zła & <")") + '\n', {}, 1);
    ASSERT_EQ(lines.size(), 1);
    EXPECT_TRUE(nlohmann::json::accept(lines[0].toStdString()));
    const QByteArray user =
        R"("Nr_stali": 7, "Stal": {"Stal_nazwa": "\"\\\u0001\n\t</ż"}, "Kotwy")";
    call({task(QByteArray(good).replace("\"Kotwy\"", user))});
    EXPECT_TRUE(nlohmann::json::accept(out.toStdString()));
}

TEST_F(Outputs, OfSeveralPagesLeaveTheFilesOfAnotherReportAlone) {
    folder.write(QStringLiteral("F-1.svg"), "stopa F-1");
    folder.write(QStringLiteral("F-1.emf"), "stopa F-1");
    for (const char* name : {"F.svg", "F.emf"}) {
        ASSERT_EQ(report(name, longTask()), 0) << err.toStdString();
        ASSERT_EQ(report(name, longTask()), 0) << "one's own earlier pages are replaced";
    }
    EXPECT_EQ(folder.read(QStringLiteral("F-1.svg")), QByteArray("stopa F-1"));
    EXPECT_EQ(folder.read(QStringLiteral("F-1.emf")), QByteArray("stopa F-1"));
    QStringList expected{QStringLiteral("F-1.emf"), QStringLiteral("F-1.svg"),
                         QStringLiteral("t.json")};
    for (int page = 1; page <= 3; ++page)
        for (const char* ending : {"emf", "svg"})
            expected += QStringLiteral("F-strona-%1-z-3.%2").arg(page).arg(QLatin1String(ending));
    expected.sort();
    EXPECT_EQ(folder.names(), expected);
    EXPECT_EQ(call({QStringLiteral("--help")}), 0);
    EXPECT_TRUE(out.simplified().contains("F-strona-1-z-3.svg"));
}

TEST_F(Outputs, PrintCommandsLeaveThePicturesOfAnotherReportAlone) {
    ASSERT_EQ(report("A.wyd"), 0) << err.toStdString();
    const QByteArray before = folder.read(QStringLiteral("A-fernasz1.bmp"));
    ASSERT_EQ(report("B.wyd", QByteArray(good).replace("\"M1\": 60", "\"M1\": -90")), 0);
    EXPECT_NE(folder.read(QStringLiteral("B-fernasz1.bmp")), before);
    EXPECT_EQ(folder.read(QStringLiteral("A-fernasz1.bmp")), before);
    EXPECT_TRUE(folder.read(QStringLiteral("A.wyd"))
                    .contains("\n" + path("A-fernasz1.bmp").toUtf8() + "\r"));
}

TEST_F(Outputs, NeverTakeThePlaceOfAnInput) {
    const QString input = task(good);
    ASSERT_EQ(::link(QFile::encodeName(input).constData(),
                     QFile::encodeName(path("inna.json")).constData()),
              0);
    ASSERT_EQ(::symlink("t.json", QFile::encodeName(path("link.json")).constData()), 0);
    for (const char* name : {"t.json", "inna.json", "link.json", "./t.json"}) {
        EXPECT_EQ(call({QStringLiteral("--wynik"), path(name), input}), 2) << name;
        EXPECT_TRUE(err.contains("this call reads the file")) << err.toStdString();
        EXPECT_EQ(folder.read(QStringLiteral("t.json")), good);
    }
    const QString catalogue =
        folder.write(QStringLiteral("k.txt"), Folder::bytesOf(places::data("/Ferpl.txt")));
    EXPECT_EQ(call({QStringLiteral("--katalog"), catalogue, QStringLiteral("--raport"), catalogue,
                    input}),
              2);
    EXPECT_EQ(call({QStringLiteral("--raport"), path("r.txt"), QStringLiteral("--wynik"),
                    path("r.txt"), input}),
              2);
    EXPECT_TRUE(err.contains("two outputs of this call")) << err.toStdString();
    EXPECT_FALSE(exists("r.txt"));
}

TEST_F(Outputs, AreWrittenThroughWhatIsNoPlainFile) {
    ASSERT_EQ(::symlink("/dev/null", QFile::encodeName(path("r.pdf")).constData()), 0);
    ASSERT_EQ(::symlink("/dev/null", QFile::encodeName(path("r.txt")).constData()), 0);
    EXPECT_EQ(report("r.pdf"), 0) << err.toStdString();
    EXPECT_EQ(report("r.txt"), 0) << err.toStdString();
    EXPECT_TRUE(QFileInfo(path("r.pdf")).isSymLink());
    EXPECT_EQ(call({QStringLiteral("--wynik"), QStringLiteral("/dev/stdout"), task(good)}), 0);
    EXPECT_TRUE(nlohmann::json::accept(out.toStdString()));
    EXPECT_EQ(call({QStringLiteral("--wynik"), QStringLiteral("/dev/null"), task(good)}), 0);
    struct stat info {};
    ASSERT_EQ(::stat("/dev/null", &info), 0);
    EXPECT_TRUE(S_ISCHR(info.st_mode));
    ASSERT_EQ(::mkfifo(QFile::encodeName(path("f.json")).constData(), 0600), 0);
    EXPECT_EQ(call({QStringLiteral("--wynik"), path("f.json"), task(good)}), 2);
    EXPECT_FALSE(QFileInfo(path("f.json")).isFile());
}

TEST_F(Outputs, APipeAsATaskIsReadWhereSomebodyWritesIt) {
    const QString program = places::bin("/ferna-wsad");
    const QString input = task(good);
    for (const char* shell : {"cat \"$1\" | \"$0\" /dev/stdin", "\"$0\" /dev/stdin < \"$1\"",
                              "\"$0\" <(sleep 0.3; cat \"$1\")"}) {
        const QByteArray result = outputOf(
            QStringLiteral("bash"), {QStringLiteral("-c"), QLatin1String(shell), program, input});
        EXPECT_TRUE(
            nlohmann::json::parse(result.toStdString(), nullptr, false).contains("Obliczone"))
            << shell;
    }
    ASSERT_EQ(::mkfifo(QFile::encodeName(path("f.json")).constData(), 0600), 0);
    EXPECT_EQ(call({path("f.json")}), 2);
    EXPECT_TRUE(err.contains("nobody writes to it")) << err.toStdString();
    EXPECT_EQ(call({QStringLiteral("/dev/zero")}), 2);
    EXPECT_TRUE(err.contains("at most 1000000 bytes")) << err.toStdString();
}

class Interrupted : public Outputs {
protected:
    QStringList left() const {
        return QDir(path("tmp")).entryList({QStringLiteral("ferna*")}, QDir::AllEntries);
    }

    /// Starts a report of pictures and sends a signal once its folder is there. True where the
    /// signal came while the program worked; on a busy machine it may have ended before.
    bool interruptedBy(int signal) {
        QDir().mkpath(path("tmp"));
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("TMPDIR"), path("tmp"));
        process.setProcessEnvironment(environment);
        const QStringList before = left();
        process.start(places::bin("/ferna-wsad"),
                      {QStringLiteral("--raport"), path("r.pdf"), task(longTask())});
        const auto started = [&] {
            for (const QString& one : left())
                if (!before.contains(one)
                    && QFile::exists(path("tmp") + u'/' + one + QStringLiteral("/W_KK.txt")))
                    return true;
            return false;
        };
        QElapsedTimer clock;
        clock.start();
        while (!started() && !process.waitForFinished(0) && clock.elapsed() < 20'000)
            QThread::usleep(200);
        if (process.state() == QProcess::Running)
            ::kill(static_cast<pid_t>(process.processId()), signal);
        EXPECT_TRUE(process.waitForFinished() || process.state() == QProcess::NotRunning);
        if (process.exitStatus() == QProcess::CrashExit)
            return true;
        QFile::remove(path("r.pdf"));
        return false;
    }

    void interruptBy(int signal) {
        int tries = 20;
        while (!interruptedBy(signal) && --tries > 0) {
        }
        ASSERT_GT(tries, 0) << "the signal " << signal << " does its work";
        EXPECT_FALSE(exists("r.pdf"));
    }

    bool rendererRuns() const {
        return !outputOf(QStringLiteral("pgrep"),
                         {QStringLiteral("-f"), QStringLiteral("Wyd_drk.*") + path("tmp")})
                    .isEmpty();
    }
};

TEST_F(Interrupted, BySignalsLeavesNoFolderAndNoRenderer) {
    for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
        ASSERT_NO_FATAL_FAILURE(interruptBy(signal));
        EXPECT_EQ(left(), QStringList()) << signal;
        EXPECT_FALSE(rendererRuns());
    }
}

TEST_F(Interrupted, ByAKillTakesTheRendererAlong) {
    ASSERT_NO_FATAL_FAILURE(interruptBy(SIGKILL));
    for (int i = 0; i < 100 && rendererRuns(); ++i)
        QThread::msleep(20);
    EXPECT_FALSE(rendererRuns());
    // The folder stays with nobody left to remove it, until the next run finds it settled.
    ASSERT_EQ(left().size(), 1);
    QFile folderLeft(path("tmp") + u'/' + left()[0]);
    QProcess::execute(
        QStringLiteral("touch"),
        {QStringLiteral("-d"), QStringLiteral("2 minutes ago"), folderLeft.fileName()});
    ASSERT_NO_FATAL_FAILURE(interruptBy(SIGTERM));
    EXPECT_EQ(left(), QStringList());
}

} // namespace
