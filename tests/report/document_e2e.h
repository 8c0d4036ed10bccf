#pragma once

#include "desktop/word_processor.h"
#include "runtime/run_time_error.h"
#include "support/golden_file.h"
#include "support/places.h"
#include "support/printing.h"

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <unistd.h>

#include <csignal>
#include <memory>

namespace ferna::testing {

inline const QString officeProgram = QStringLiteral("/usr/lib/libreoffice/program");

/// What the kernel tells of a process: the name of its program, its state and its parent. All
/// empty where there is none.
struct ProcessState {
    QByteArray program;
    QByteArray state;
    pid_t parent = 0;
};

inline ProcessState stateOf(const QString& process) {
    const QByteArray stat = fileBytes(QStringLiteral("/proc/%1/stat").arg(process));
    const qsizetype before = stat.indexOf('(');
    const qsizetype behind = stat.lastIndexOf(')');
    if (behind < 0)
        return {};
    const QByteArrayList fields = stat.mid(behind + 2).split(' ');
    return {stat.mid(before + 1, behind - before - 1), fields.value(0), fields.value(1).toInt()};
}

/// Word processors that this process has started.
inline QList<pid_t> runningWriters(pid_t parent = ::getpid()) {
    QList<pid_t> found;
    for (const QString& name : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs))
        if (const ProcessState process = stateOf(name);
            process.program == "soffice.bin" && process.parent == parent)
            found += name.toInt();
    return found;
}

/// False also for a process that has ended and that nobody has asked about: in a system whose first
/// process takes no note of orphans they stay in the list.
inline bool alive(pid_t process) {
    const QByteArray state = stateOf(QString::number(process)).state;
    return !state.isEmpty() && state != "Z" && state != "X";
}

/// The pipes of a program's word processor in the shared temporary folder.
inline QStringList pipesOf(pid_t program) {
    return QDir(QStringLiteral("/tmp"))
        .entryList({QStringLiteral("OSL_PIPE_*_ferna%1-*").arg(program)},
                   QDir::AllEntries | QDir::System);
}

inline QByteArray outputOf(const QString& program, const QStringList& arguments,
                           const QString& folder) {
    QProcess process;
    process.setWorkingDirectory(folder);
    process.start(program, arguments);
    if (!process.waitForFinished(120'000) || process.exitCode() != 0)
        ADD_FAILURE() << program.toStdString() << ": "
                      << process.readAllStandardError().toStdString();
    return process.readAllStandardOutput();
}

/// A test with the real word processor; skipped where it is not installed. Nothing of the word
/// processor may be left when it ends.
class DocumentEndToEnd : public ::testing::Test {
protected:
    void SetUp() override {
        place_.module = places::bin("/libferna_writer.so");
        if (!QFile::exists(place_.module))
            GTEST_SKIP() << "the word processor's module was not built: install libreoffice-dev";
        if (!QFile::exists(officeProgram + QStringLiteral("/soffice.bin"))
            || !QFile::exists(officeProgram + QStringLiteral("/libswlo.so")))
            GTEST_SKIP() << "no word processor: install libreoffice-writer-nogui";
        ASSERT_TRUE(temporary_.isValid() && program_.isValid() && out_.isValid());
        before_ = qgetenv("TMPDIR");
        qputenv("TMPDIR", temporary_.path().toLocal8Bit());
        makePictures();
    }

    void TearDown() override {
        if (IsSkipped())
            return;
        if (before_.isEmpty())
            qunsetenv("TMPDIR");
        else
            qputenv("TMPDIR", before_);
        EXPECT_TRUE(runningWriters().isEmpty()) << "left running";
        EXPECT_EQ(pipesOf(::getpid()), QStringList()) << "left behind";
        EXPECT_EQ(QDir(temporary_.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                  QStringList())
            << "left behind";
    }

    void makePictures() const {
        const auto picture = [this](const QString& name, QSize points, QRgb colour) {
            QImage image(points * 4, QImage::Format_RGB888);
            image.fill(colour);
            for (int i = 0; i < image.height(); ++i)
                image.setPixel(i % image.width(), i, qRgb(0, 0, 0));
            image.setDotsPerMeterX(11339); // 288 dots per inch: 4 dots a point
            image.setDotsPerMeterY(11339);
            ASSERT_TRUE(image.save(program_.filePath(name), "BMP"));
        };
        picture(QStringLiteral("Ferogo2.bmp"), {150, 98}, qRgb(200, 220, 240));
        picture(QStringLiteral("Ferrob.bmp"), {199, 119}, qRgb(240, 220, 200));
        picture(QStringLiteral("gkrys0.bmp"), {86, 58}, qRgb(220, 220, 220));
        for (int c = 1; c <= 6; ++c)
            picture(QStringLiteral("fernasz%1.bmp").arg(c), {116, 78},
                    qRgb(160 + 10 * c, 255, 160));
    }

    std::unique_ptr<WordProcessor> opened() {
        std::unique_ptr<WordProcessor> word = openWordProcessor(place_);
        word->getOrCreate();
        word->Documents_Add();
        return word;
    }

    QString out(const QString& name) const { return out_.filePath(name); }

    /// The document as another run of the word processor shows it.
    QString pdfOf(const QString& document) {
        outputOf(officeProgram + QStringLiteral("/soffice"),
                 {QStringLiteral("--headless"),
                  QStringLiteral("-env:UserInstallation=file://") + out(QStringLiteral("profil")),
                  QStringLiteral("--convert-to"), QStringLiteral("pdf"), document},
                 out_.path());
        return out(QFileInfo(document).completeBaseName() + QStringLiteral(".pdf"));
    }

    WordProcessorPlace place_;
    QByteArray before_;       ///< TMPDIR of the other tests
    QTemporaryDir temporary_; ///< where the word processor may leave nothing
    QTemporaryDir program_;   ///< the program folder with its pictures
    QTemporaryDir out_;
};

/// The run-time error that a call ends with; number 0 where it ends with none.
template <typename Call>
RunTimeError errorOf(const Call& call) {
    try {
        call();
    } catch (const RunTimeError& failure) {
        return failure;
    }
    return RunTimeError(0);
}

} // namespace ferna::testing
