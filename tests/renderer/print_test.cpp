#include "renderer/page_checks.h"
#include "renderer/paper/printing.h"
#include "renderer/program_run.h"
#include "renderer/sample_report.h"
#include "runtime/run_time_error.h"
#include "runtime/text_file.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QPrinter>
#include <QStandardPaths>
#include <QThread>

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

using namespace ferna;
using namespace ferna::renderer;
using ferna::testing::Outcome;
using ferna::testing::pdfText;
using ferna::testing::runProgram;
using ferna::testing::runRenderer;
using ferna::testing::SampleReport;

namespace {

/// A print server of the test's own with one queue that prints into a file.
class PrivatePrintServer {
public:
    /// Empty where it runs, else why it cannot.
    QString start() {
        const QString program = QStringLiteral("/usr/sbin/cupsd");
        const QString ppd =
            QStringLiteral("/usr/share/ppd/cupsfilters/Generic-PDF_Printer-PDF.ppd");
        if (!QFile::exists(program))
            return QStringLiteral("no cupsd here");
        if (!QFile::exists(ppd))
            return QStringLiteral("no PPD of a PDF printer here");
        for (const char* name : {"etc/ppd", "spool/tmp", "cache", "state", "log", "out"})
            QDir(folder_.path()).mkpath(QLatin1String(name));
        QFile::copy(ppd, file("etc/ppd/Raport.ppd"));
        writeConfiguration();
        QProcess::execute(QStringLiteral("chmod"), {QStringLiteral("755"), folder_.path()});
        if (geteuid() == 0)
            QProcess::execute(QStringLiteral("chown"),
                              {QStringLiteral("-R"), QStringLiteral("lp:lp"), file("spool"),
                               file("cache"), file("state"), file("log"), file("out")});
        server_.start(program, {QStringLiteral("-f"), QStringLiteral("-c"), file("cupsd.conf"),
                                QStringLiteral("-s"), file("cups-files.conf")});
        for (int i = 0; i < 50 && server_.state() != QProcess::NotRunning; ++i) {
            if (runProgram(QStringLiteral("lpstat"), {QStringLiteral("-a")}, environment())
                    .output.startsWith(QStringLiteral("Raport")))
                return {};
            QThread::msleep(100);
        }
        return QStringLiteral("cupsd does not run here: ")
               + QString::fromUtf8(server_.readAllStandardError()).trimmed();
    }

    ~PrivatePrintServer() {
        server_.terminate();
        if (!server_.waitForFinished(5000))
            server_.kill();
    }

    QProcessEnvironment environment() const {
        QProcessEnvironment own = QProcessEnvironment::systemEnvironment();
        own.insert(QStringLiteral("CUPS_SERVER"), file("cups.sock"));
        own.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
        return own;
    }

    /// Waits until the queue is empty and gives the printed file.
    QString printed() const {
        QElapsedTimer clock;
        clock.start();
        while (clock.elapsed() < 30000) {
            const Outcome jobs =
                runProgram(QStringLiteral("lpstat"), {QStringLiteral("-o")}, environment());
            if (jobs.exitCode == 0 && jobs.output.isEmpty() && QFile::exists(file("out/job.prn")))
                break;
            QThread::msleep(100);
        }
        return file("out/job.prn");
    }

private:
    QString file(const char* name) const { return folder_.filePath(QLatin1String(name)); }

    void writeConfiguration() const {
        const QString at = folder_.path();
        const QString user = geteuid() == 0 ? QStringLiteral("lp") : qEnvironmentVariable("USER");
        writeFileWhole(file("cups-files.conf"),
                       QStringLiteral("ServerRoot %1/etc\nRequestRoot %1/spool\nTempDir "
                                      "%1/spool/tmp\nCacheDir %1/cache\nStateDir %1/state\n"
                                      "AccessLog %1/log/access\nErrorLog %1/log/error\n"
                                      "PageLog %1/log/page\nFileDevice Yes\nUser %2\nGroup lp\n"
                                      "SystemGroup root\nSandboxing relaxed\n")
                           .arg(at, user)
                           .toUtf8());
        writeFileWhole(file("cupsd.conf"),
                       QStringLiteral("Listen %1/cups.sock\nBrowsing Off\nWebInterface No\n"
                                      "DefaultAuthType None\n<Location />\nOrder allow,deny\n"
                                      "Allow all\n</Location>\n<Policy default>\n<Limit All>\n"
                                      "Order deny,allow\n</Limit>\n</Policy>\n")
                           .arg(at)
                           .toUtf8());
        writeFileWhole(file("etc/printers.conf"),
                       QStringLiteral("<DefaultPrinter Raport>\nDeviceURI file://%1/out/job.prn\n"
                                      "State Idle\nAccepting Yes\n</DefaultPrinter>\n")
                           .arg(at)
                           .toUtf8());
    }

    QTemporaryDir folder_;
    QProcess server_;
};

class Print : public ::testing::Test {
protected:
    void SetUp() override {
        const QString obstacle = server.start();
        if (!obstacle.isEmpty())
            GTEST_SKIP() << obstacle.toStdString();
        sample.anchorSection(sample.calculation(20, 2, 3));
        job = sample.write(QStringLiteral("-1"), 12);
    }

    /// Gives the queue another printer; its server goes on trying to reach it.
    void movePrinter(const QString& address) const {
        ASSERT_EQ(runProgram(QStringLiteral("/usr/sbin/lpadmin"),
                             {QStringLiteral("-p"), QStringLiteral("Raport"), QStringLiteral("-v"),
                              address, QStringLiteral("-o"),
                              QStringLiteral("printer-error-policy=retry-job")},
                             server.environment())
                      .exitCode,
                  0);
    }

    QString reply() const { return readLines(sample.path(QStringLiteral("W_X.txt"))).value(0); }

    QTemporaryDir folder;
    SampleReport sample{folder.path()};
    PrivatePrintServer server;
    QString job;
};

TEST_F(Print, TheDefaultPrinterGetsEveryPageAsText) {
    const Outcome run = runRenderer({job}, server.environment());
    ASSERT_EQ(run.exitCode, 0) << run.errors.toStdString();
    EXPECT_EQ(run.errors, QString());
    EXPECT_EQ(reply(), QStringLiteral(" 1 , 14 "));
    const QString file = server.printed();
    EXPECT_TRUE(pdfText(file, 1).contains(QStringLiteral("Szerokość płyty y =")));
    EXPECT_TRUE(pdfText(file, 1).contains(QStringLiteral("Strona 12")));
    EXPECT_TRUE(pdfText(file, 2).contains(QStringLiteral("Strona 13")));
    EXPECT_TRUE(pdfText(file, 2).contains(QStringLiteral("ωd = 1,063")));
}

TEST_F(Print, AQueueThatTakesNoJobsIsAFailure) {
    ASSERT_EQ(runProgram(QStringLiteral("/usr/sbin/cupsreject"), {QStringLiteral("Raport")},
                         server.environment())
                  .exitCode,
              0);
    const Outcome run = runRenderer({job}, server.environment());
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.errors.contains(QStringLiteral("drukarka Raport: kolejka nie przyjmuje")))
        << run.errors.toStdString();
    EXPECT_EQ(reply(), QStringLiteral(" 0 , 12 "));
}

TEST_F(Print, APausedQueueIsToldWithTheNumberOfTheJobThatWaits) {
    ASSERT_EQ(runProgram(QStringLiteral("/usr/sbin/cupsdisable"), {QStringLiteral("Raport")},
                         server.environment())
                  .exitCode,
              0);
    const Outcome run = runRenderer({job}, server.environment());
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.errors.contains(QStringLiteral(
        "drukarka Raport: kolejka jest wstrzymana, wydruk czeka w niej jako zadanie nr 1")))
        << run.errors.toStdString();
    const QString waiting =
        runProgram(QStringLiteral("lpstat"), {QStringLiteral("-o")}, server.environment()).output;
    EXPECT_TRUE(waiting.startsWith(QStringLiteral("Raport-1 "))) << waiting.toStdString();
}

TEST_F(Print, AnUnreachablePrinterIsToldWithTheNumberOfTheJobThatWaits) {
    movePrinter(QStringLiteral("socket://127.0.0.1:1")); // nobody listens there
    const Outcome run = runRenderer({job}, server.environment());
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.errors.contains(QStringLiteral(
        "drukarka Raport: drukarka jest nieosiągalna, wydruk czeka w niej jako zadanie nr 1")))
        << run.errors.toStdString();
    const QString waiting =
        runProgram(QStringLiteral("lpstat"), {QStringLiteral("-o")}, server.environment()).output;
    EXPECT_TRUE(waiting.startsWith(QStringLiteral("Raport-1 "))) << waiting.toStdString();
}

TEST_F(Print, APrinterThatListensIsNotTakenForAnUnreachableOne) {
    const int printer = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in place{};
    place.sin_family = AF_INET;
    place.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof place;
    ASSERT_EQ(::bind(printer, reinterpret_cast<sockaddr*>(&place), length), 0);
    ASSERT_EQ(::listen(printer, 5), 0);
    ASSERT_EQ(::getsockname(printer, reinterpret_cast<sockaddr*>(&place), &length), 0);
    movePrinter(QStringLiteral("socket://127.0.0.1:%1").arg(ntohs(place.sin_port)));
    const Outcome run = runRenderer({job}, server.environment());
    EXPECT_EQ(run.exitCode, 0) << run.errors.toStdString();
    EXPECT_EQ(run.errors, QString());
    ::close(printer);
}

TEST(PrintWithoutAPrinter, SaysSo) {
    QTemporaryDir folder;
    SampleReport sample(folder.path());
    sample.line(85, QStringLiteral("jeden"));
    QProcessEnvironment none = QProcessEnvironment::systemEnvironment();
    none.insert(QStringLiteral("CUPS_SERVER"), folder.filePath(QStringLiteral("none.sock")));
    const Outcome run = runRenderer({sample.write(QStringLiteral("-1"), 1)}, none);
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.errors.contains(QStringLiteral("nie ma drukarki domyślnej")));
}

class PrintToFile : public ::testing::Test {
protected:
    void SetUp() override {
        for (int i = 0; i < 100; ++i)
            sample.line(85 + 4.5 * i, QStringLiteral("wiersz %1.").arg(i));
        wyd::Complaints complaints;
        report = compose(readJob(sample.write(QStringLiteral("-1"), 1)), complaints);
        ASSERT_EQ(report.pages.size(), 3U);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(file);
        printer.setPageSize(QPageSize(QPageSize::A4));
        printer.setFullPage(true);
    }

    QTemporaryDir folder;
    SampleReport sample{folder.path()};
    pages::Report report;
    QPrinter printer{QPrinter::HighResolution};
    QString file = folder.filePath(QStringLiteral("wydruk.pdf"));
};

TEST_F(PrintToFile, PrintsThePagesOfTheRangeOnly) {
    printer.setPrintRange(QPrinter::PageRange);
    printer.setFromTo(2, 3);
    printOn(printer, report);
    EXPECT_TRUE(pdfText(file, 1).contains(QStringLiteral("Strona 2")));
    EXPECT_TRUE(pdfText(file, 2).contains(QStringLiteral("Strona 3")));
    EXPECT_FALSE(pdfText(file, 3).contains(QStringLiteral("Strona")));
}

TEST_F(PrintToFile, PrintsTheLastPageFirstWhereAsked) {
    printer.setPageOrder(QPrinter::LastPageFirst);
    EXPECT_EQ(pagesToPrint(printer, 3), (std::vector<std::size_t>{2, 1, 0}));
}

TEST_F(PrintToFile, ARangeBehindTheLastPageIsRefused) {
    printer.setPrintRange(QPrinter::PageRange);
    printer.setFromTo(7, 9);
    EXPECT_THROW(printOn(printer, report), RunTimeError);
}

} // namespace
