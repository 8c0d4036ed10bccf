// The companion speaks English of its own failures.
#include "batch/failure_words.h"
#include "batch/program.h"

using namespace ferna;
using namespace ferna::testing;

namespace {

class FailureWords : public Program {
protected:
    /// The one line on standard error, which has no Polish letter in it.
    QString said(const QStringList& options) {
        EXPECT_EQ(call(options + QStringList(task(good))), 2) << err.toStdString();
        const QString line = QString::fromUtf8(err).trimmed();
        for (const QChar letter : QStringLiteral("ąćęłńóśźżĄĆĘŁŃÓŚŹŻ"))
            EXPECT_FALSE(line.contains(letter)) << line.toStdString();
        EXPECT_FALSE(line.contains(QStringLiteral("wiersz"))) << line.toStdString();
        return line;
    }
};

TEST_F(FailureWords, OfACatalogueAreEnglish) {
    const QString cut = folder.write(QStringLiteral("cut.txt"), "x\n");
    EXPECT_TRUE(said({QStringLiteral("--katalog"), cut})
                    .endsWith(QStringLiteral("line 2: a catalogue has 66 lines")))
        << err.toStdString();
    const QString utf8 = folder.write(QStringLiteral("utf8.txt"), "Ża\xc5\x82\xc4\x85\n");
    EXPECT_TRUE(said({QStringLiteral("--katalog"), utf8})
                    .endsWith(QStringLiteral("not a text in code page 1250")))
        << err.toStdString();
}

TEST_F(FailureWords, OfAReportThatCannotBeWrittenAreEnglish) {
    for (const char* name : {"brak/r.pdf", "brak/r.odt", "brak/r.txt"})
        EXPECT_TRUE(said({QStringLiteral("--raport"), folder.path(QString::fromLatin1(name))})
                        .contains(QStringLiteral("brak/r.")))
            << err.toStdString();
}

TEST(FailureWordsOfTheRenderer, AreTranslatedInTheMiddleOfItsLine) {
    const RunTimeError failure(error::NoObject,
                               QStringLiteral("Wyd_drk zakończył pracę z kodem 1: Wyd_drk: a.wyd, "
                                              "wiersz 3: ")
                                   + errorText(error::FileNotFound));
    EXPECT_EQ(batch::failureWords(failure),
              errorTextEnglish(error::NoObject)
                  + QStringLiteral(": Wyd_drk ended with code 1: Wyd_drk: a.wyd, line 3: ")
                  + errorTextEnglish(error::FileNotFound));
}

} // namespace
