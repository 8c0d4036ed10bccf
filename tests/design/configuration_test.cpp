#include "design/configuration.h"
#include "design/language.h"
#include "design/start_up.h"
#include "runtime/codepage.h"
#include "runtime/format.h"
#include "support/decimal_comma.h"
#include "support/folder.h"
#include "support/places.h"
#include "support/run_time_errors.h"

#include <gtest/gtest.h>

#include <random>

using namespace ferna;
using ferna::testing::errorNumberOf;
using ferna::testing::errorOf;
using ferna::testing::Folder;
using ferna::testing::WithDecimalSign;

namespace {

const QString cfg = QStringLiteral("Ferna.cfg");
const QString reply = QStringLiteral("W_X.txt");

struct Configuration : ::testing::Test {
    WithDecimalSign comma{u','};
    Folder folder;
    Stan stan;

    /// The delivered file, with its line n replaced.
    QByteArray withLine(int n, const QByteArray& line) const {
        QList<QByteArray> lines = Folder::bytesOf(Folder::delivered(cfg)).split('\n');
        lines[n - 1] = line + '\r';
        return lines.join('\n');
    }

    void load(const QByteArray& bytes) { Czytaj_cfg(stan, folder.write(cfg, bytes)); }

    QList<QByteArray> saved(const QByteArray& rendererReply = " 0 , 1 \r\n") {
        folder.write(reply, rendererReply);
        Zapisz_cfg(stan, folder.path(cfg), folder.path(reply));
        return folder.read(cfg).split('\n');
    }
};

/// A state unlike a fresh one in every field of the configuration.
Stan filledStan() {
    Stan stan;
    stan.opcje.Nr_normy = 1;
    stan.opcje.Nazwa_projektu = QStringLiteral("przed");
    stan.opcje.Nr_strony = 77;
    stan.plyta.Dlug_plyty_mm = 1;
    stan.obciazenia.Tablica_obc(1)(1) = 42;
    stan.materialy.Stal_nazwa = QStringLiteral("stara");
    stan.materialy.Blacha_fd = 1;
    stan.opcje.Tryb_RTF = 2;
    return stan;
}

/// What the configuration writes of a state.
QByteArray written(const Stan& stan) {
    const Folder folder;
    folder.write(reply, " 0 , 1 ");
    Stan copy = stan;
    Zapisz_cfg(copy, folder.path(cfg), folder.path(reply));
    return folder.read(cfg);
}

TEST_F(Configuration, TheDeliveredFileIsReadToTheLetter) {
    load(Folder::bytesOf(Folder::delivered(cfg)));
    EXPECT_EQ(stan.opcje.Nr_normy, 0);
    EXPECT_EQ(stan.opcje.Nr_strony, 1);
    EXPECT_EQ(stan.opcje.Nazwa_projektu, QStringLiteral("Projekt"));
    EXPECT_EQ(stan.opcje.Nr_betonu, 3);
    EXPECT_EQ(stan.opcje.Nr_stali, 2);
    EXPECT_EQ(stan.opcje.Tryb_wsp_n, 0);
    EXPECT_EQ(stan.opcje.Nr_jezyka, 0);
    for (int row = 1; row <= 5; ++row)
        EXPECT_EQ(stan.obciazenia.Tablica_obc(row)(1), row <= 3 ? 1000 : 0);
    EXPECT_EQ(stan.obciazenia.Tablica_obc(1)(6), 1000);
    EXPECT_EQ(stan.plyta.Dlug_plyty_mm, 1200);
    EXPECT_EQ(stan.plyta.Szer_plyty_mm, 1200);
    EXPECT_EQ(stan.plyta.X_kotwy(1), 40);
    EXPECT_EQ(stan.plyta.Y_kotwy(1), 40);
    EXPECT_EQ(stan.plyta.Liczba_srub, 0);
    EXPECT_EQ(stan.opcje.Hsily_wszystkie, 0);
    EXPECT_EQ(stan.materialy.Stal_fd, 305);
    EXPECT_EQ(stan.materialy.Stal_Re, 355);
    EXPECT_EQ(stan.materialy.Stal_Rm, 490);
    EXPECT_EQ(stan.materialy.Stal_fi_max, 64);
    EXPECT_EQ(stan.materialy.Stal_nazwa, QStringLiteral("S355"));
    EXPECT_EQ(stan.materialy.Blacha_fd, 305);
    EXPECT_EQ(stan.materialy.Blacha_t_max, 40);
    EXPECT_EQ(stan.materialy.Blacha_nazwa, QStringLiteral("S355"));
    EXPECT_EQ(stan.opcje.Tryb_RTF, 1);
}

TEST_F(Configuration, TheDeliveredFileComesBackByteForByte) {
    const QByteArray delivered = Folder::bytesOf(Folder::delivered(cfg));
    load(delivered);
    // What the program has filled in besides by the time it ends: n of its concrete and the anchor.
    stan.opcje.Wsp_n_val = 7.59F;
    stan.plyta.X_kotwy_mm(1) = 400;
    stan.plyta.Y_kotwy_mm(1) = 400;
    saved();
    EXPECT_EQ(folder.read(cfg), delivered);
}

TEST_F(Configuration, EveryFieldComesBackAfterAnotherRun) {
    Stan before;
    before.opcje = {QStringLiteral("Hala \"B\", oś 3, ż"), 12, 1, 4, 2, 1, 1, 6.25F, 1, 7, 5, 1};
    before.plyta.Dlug_plyty_mm = 955;
    before.plyta.Szer_plyty_mm = 300;
    before.plyta.X_kotwy_mm(1) = -250;
    before.plyta.Y_kotwy_mm(1) = 75;
    for (int row = 1; row <= 5; ++row)
        for (int c = 1; c <= MaxCases; ++c)
            before.obciazenia.Tablica_obc(row)(c) = static_cast<Single>((row * 7 - 12) * c);
    before.materialy.Stal_nazwa = QStringLiteral("10.9 HV");
    before.materialy.Stal_fd = 640.5F;
    before.materialy.Stal_Re = 900;
    before.materialy.Stal_Rm = 1000;
    before.materialy.Stal_fi_max = 36;
    before.materialy.Blacha_nazwa = QStringLiteral("S235 JR");
    before.materialy.Blacha_fd = 215.25F;
    before.materialy.Blacha_t_max = 40;
    load(written(before));
    EXPECT_EQ(stan.plyta.X_kotwy(1), -25); // the place in mm comes back in cm, as a default
    EXPECT_EQ(stan.plyta.Y_kotwy(1), 7.5F);
    stan.plyta.X_kotwy_mm(1) = -250;
    stan.plyta.Y_kotwy_mm(1) = 75;
    EXPECT_EQ(written(stan).toStdString(), written(before).toStdString());
    EXPECT_EQ(stan.opcje.Nazwa_projektu, before.opcje.Nazwa_projektu);
    EXPECT_EQ(stan.opcje.Wsp_n_val, 6.25F);
    EXPECT_EQ(stan.obciazenia.Tablica_obc(1)(6), -30);
    EXPECT_EQ(stan.materialy.Stal_fd, 640.5F);
    EXPECT_EQ(stan.materialy.Blacha_nazwa, QStringLiteral("S235 JR"));
    EXPECT_EQ(stan.opcje.Tryb_RTF, 2);
}

TEST_F(Configuration, TheProjectNameMayHoldCommasAndBlanks) {
    load(withLine(3, "  Hala A, o\x9c 1,  etap 2  "));
    EXPECT_EQ(stan.opcje.Nazwa_projektu, QStringLiteral("  Hala A, oś 1,  etap 2  "));
    load(withLine(3, ""));
    EXPECT_EQ(stan.opcje.Nazwa_projektu, QString());
}

TEST_F(Configuration, TheNameOfASteelEndsAtAComma) {
    load(withLine(18, " 305           355           490           64           S355, gat. 2"));
    EXPECT_EQ(stan.materialy.Stal_nazwa, QStringLiteral("S355"));
    load(withLine(19, " 305           40           18G2 A,B"));
    EXPECT_EQ(stan.materialy.Blacha_nazwa, QStringLiteral("18G2 A"));
    load(withLine(19, " 305           40           "));
    EXPECT_EQ(stan.materialy.Blacha_nazwa, QString());
}

TEST_F(Configuration, AComputedRatioInTheFileIsDropped) {
    stan.opcje.Wsp_n_val = 1.5F;
    load(withLine(6, " 0            759"));
    EXPECT_EQ(stan.opcje.Wsp_n_val, 1.5F);
    load(withLine(6, " 1            759"));
    EXPECT_EQ(stan.opcje.Wsp_n_val, 7.59F);
}

TEST_F(Configuration, ARatioIsWrittenInHundredthsRoundedDown) {
    stan.opcje.Tryb_wsp_n = 1;
    stan.opcje.Wsp_n_val = 6.999F;
    EXPECT_EQ(saved()[5], QByteArray(" 1            699\r"));
    stan.opcje.Wsp_n_val = 0; // the pattern leaves a zero out, and it is read as one again
    EXPECT_EQ(saved()[5], QByteArray(" 1            \r"));
    stan.opcje.Wsp_n_val = 5;
    Czytaj_cfg(stan, folder.path(cfg));
    EXPECT_EQ(stan.opcje.Wsp_n_val, 0);
}

TEST_F(Configuration, LoadsStayWholeTenths) {
    stan.obciazenia.Tablica_obc(1)(1) = 12.5F;
    stan.obciazenia.Tablica_obc(2)(1) = -13;
    EXPECT_EQ(saved()[7], QByteArray("13   -13   0     0   0\r"));
}

TEST_F(Configuration, WithoutAnAnchorThePlaceOfTheLastRunIsLost) {
    load(Folder::bytesOf(Folder::delivered(cfg)));
    EXPECT_EQ(stan.plyta.X_kotwy(1), 40);
    EXPECT_EQ(saved()[15], QByteArray("0             0\r"));
}

TEST_F(Configuration, NumbersCarryAPointWhateverTheLocale) {
    stan.materialy.Stal_fd = 0.5F;
    stan.materialy.Blacha_fd = 205.25F;
    const auto lines = saved();
    EXPECT_TRUE(lines[17].startsWith(" 0.5           0 "));
    EXPECT_TRUE(lines[18].startsWith(" 205.25        0 "));
}

TEST_F(Configuration, TheRendererReportsTheNextFreePage) {
    stan.opcje.Nr_strony = 4;
    EXPECT_EQ(saved(" 0 , 9 \r\n")[1], QByteArray(" 4            Strona\r"));
    EXPECT_EQ(saved(" 1 , 9 \r\n")[1], QByteArray(" 9            Strona\r"));
    EXPECT_EQ(stan.opcje.Nr_strony, 9);
    EXPECT_EQ(saved(" 1 \r\n 12 \r\n")[1], QByteArray(" 12           Strona\r"));
}

TEST_F(Configuration, WithoutTheReplyTheOldFileSurvives) {
    folder.write(cfg, "stary");
    const auto failure = errorOf([&] { Zapisz_cfg(stan, folder.path(cfg), folder.path(reply)); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->number(), error::FileNotFound);
    EXPECT_TRUE(failure->detail().contains(reply));
    EXPECT_EQ(folder.read(cfg), QByteArray("stary"));
}

TEST_F(Configuration, AStartKnowsNoCompressedPlateNoUserSteelAndNoAnchors) {
    stan.wyniki.Przyp_policzony.fill(True);
    stan.materialy.Stal_uzytkownika = true;
    startUp(stan, places::data());
    for (int c = 1; c <= MaxCases; ++c)
        EXPECT_EQ(stan.wyniki.Przyp_policzony(c), False);
    EXPECT_FALSE(stan.materialy.Stal_uzytkownika);
    EXPECT_EQ(stan.plyta.Liczba_srub, 0);
    EXPECT_EQ(stan.opcje.Wsp_n_val, 7.59F) << "of the concrete of the last task";
    EXPECT_EQ(stan.materialy.Nazwa_betonu, QStringLiteral("B20"));
}

// A damaged file: the error names file and line, and the state is as it was.
struct Damage {
    const char* what;
    int number;
    int line; // 0: no line named
    std::function<QByteArray(QByteArray)> damaged;
};

QByteArray lineReplaced(const QByteArray& bytes, int n, const QByteArray& line) {
    QList<QByteArray> lines = bytes.split('\n');
    lines[n - 1] = line + '\r';
    return lines.join('\n');
}

TEST_F(Configuration, ADamagedFileIsRefusedAndLeavesTheStateAlone) {
    const auto put = [](int n, const char* line) {
        return [n, line](const QByteArray& bytes) { return lineReplaced(bytes, n, line); };
    };
    const std::vector<Damage> damages{
        {"empty", error::InputPastEnd, 1, [](const QByteArray&) { return QByteArray(); }},
        {"short", error::InputPastEnd, 11,
         [](const QByteArray& b) { return b.split('\n').mid(0, 10).join('\n'); }},
        {"a word for a number", error::TypeMismatch, 4, put(4, " trzy         Nrbetonu")},
        {"a number too large", error::Overflow, 14, put(14, "40000")},
        {"an unknown norm", error::Subscript, 1, put(1, " 2            Norma")},
        {"an unknown concrete", error::Subscript, 4, put(4, " 6            Nrbetonu")},
        {"no concrete", error::Subscript, 4, put(4, " 0            Nrbetonu")},
        {"an unknown steel", error::Subscript, 5, put(5, " 8            Nrstali")},
        {"an unknown language", error::Subscript, 7, put(7, " 5            Jezyk")},
        {"an unknown RTF", error::Subscript, 20, put(20, " 3            Tryb_RTF")},
        {"a load missing", error::InputPastEnd, 10, put(10, "1000   0   0     0")},
        {"a steel without values", error::TypeMismatch, 18, put(18, " 305 S355")},
        {"a mark of UTF-8", error::TypeMismatch, 1,
         [](const QByteArray& b) { return "\xef\xbb\xbf" + b; }},
        {"UTF-16", error::DeviceIO, 1,
         [](const QByteArray& b) {
             const QString text = QChar(0xfeff) + QString::fromLatin1(b);
             return QByteArray(reinterpret_cast<const char*>(text.utf16()), text.size() * 2);
         }},
        {"zeros", error::DeviceIO, 1,
         [](const QByteArray& b) { return QByteArray(b.size(), '\0'); }},
    };
    const QByteArray delivered = Folder::bytesOf(Folder::delivered(cfg));
    const QByteArray before = written(filledStan());
    for (const Damage& damage : damages) {
        stan = filledStan();
        const auto failure = errorOf([&] { load(damage.damaged(delivered)); });
        ASSERT_TRUE(failure) << damage.what;
        EXPECT_EQ(failure->number(), damage.number) << damage.what;
        EXPECT_TRUE(
            failure->detail().contains(QStringLiteral("Ferna.cfg, wiersz %1:").arg(damage.line)))
            << damage.what << ": " << failure->detail().toStdString();
        EXPECT_EQ(written(stan), before) << damage.what;
    }
    const auto missing =
        errorOf([&] { Czytaj_cfg(stan, folder.path(QStringLiteral("brak.cfg"))); });
    ASSERT_TRUE(missing);
    EXPECT_EQ(missing->number(), error::FileNotFound);
    EXPECT_TRUE(missing->detail().contains(QStringLiteral("brak.cfg")));
}

/// Reads the bytes; afterwards the state is the one before, or everything in it is the file's.
void readNeverHalf(const Folder& folder, const QByteArray& bytes, const QByteArray& before,
                   int* refused) {
    const QString path = folder.write(cfg, bytes);
    Stan stan = filledStan();
    try {
        Czytaj_cfg(stan, path);
    } catch (const RunTimeError& failure) {
        ++*refused;
        ASSERT_TRUE(failure.detail().contains(cfg)) << failure.what();
        ASSERT_EQ(written(stan), before);
        return;
    }
    Stan fresh;
    Czytaj_cfg(fresh, path);
    ASSERT_EQ(written(stan).toStdString(), written(fresh).toStdString());
}

TEST_F(Configuration, ANameThatIsValidInAnotherEncodingTooIsReadAsItWasWritten) {
    for (const QString& name : {QStringLiteral("Blachy zwężą"), QStringLiteral("Hala â€“ 2")}) {
        stan.opcje.Nazwa_projektu = name;
        load(written(stan));
        EXPECT_EQ(stan.opcje.Nazwa_projektu, name);
    }
}

TEST_F(Configuration, EveryRatioThatCanBeSavedIsReadAgainAndNoOther) {
    stan.opcje.Tryb_wsp_n = 1;
    for (const Single n : {-327.68F, -1.0F, 0.0F, 6.85F, 327.67F, 327.679F}) {
        stan.opcje.Wsp_n_val = n;
        EXPECT_TRUE(canBeSaved(n)) << n;
        load(written(stan));
        EXPECT_NEAR(stan.opcje.Wsp_n_val, n, 0.01) << n;
    }
    for (const Single n : {-327.69F, 327.68F, 400.0F, 1e30F}) {
        stan.opcje.Wsp_n_val = n;
        EXPECT_FALSE(canBeSaved(n)) << n;
        EXPECT_EQ(errorNumberOf([&] { load(written(stan)); }), error::Overflow) << n;
    }
}

TEST_F(Configuration, NoPrefixOfTheFileIsReadByHalf) {
    const QByteArray whole = Folder::bytesOf(Folder::delivered(cfg));
    const QByteArray before = written(filledStan());
    int refused = 0;
    for (qsizetype length = 0; length < whole.size(); ++length)
        readNeverHalf(folder, whole.left(length), before, &refused);
    // Only the label and the line end of the last line may be missing.
    EXPECT_GE(refused, whole.size() - 26);
}

TEST_F(Configuration, NoDamagedByteIsReadByHalf) {
    const QByteArray whole = Folder::bytesOf(Folder::delivered(cfg));
    const QByteArray before = written(filledStan());
    std::mt19937 random(20260101); // NOLINT: the same damage in every run
    int refused = 0;
#ifdef FERNA_SANITIZE
    constexpr int rounds = 500;
#else
    constexpr int rounds = 2000;
#endif
    for (int round = 0; round < rounds; ++round) {
        QByteArray bytes = whole;
        for (unsigned flips = 1 + random() % 4; flips > 0; --flips)
            bytes[static_cast<qsizetype>(random() % static_cast<unsigned>(bytes.size()))] =
                static_cast<char>(random() & 0xff);
        readNeverHalf(folder, bytes, before, &refused);
    }
    EXPECT_GT(refused, rounds / 10);
    EXPECT_LT(refused, rounds);
}

} // namespace
