// Five hundred reports as the program makes them, of all languages, sizes and sections: how their
// pages are cut.
#include "batch/report_files.h"
#include "batch/task_run.h"
#include "pages/sketch_files.h"
#include "protocol/renderer_files.h"
#include "renderer/page_checks.h"
#include "report/wyd_writer.h"
#include "support/folder.h"
#include "support/golden.h"
#include "support/random_tasks.h"
#include "support/task_document.h"

#include <QImage>

using namespace ferna;
using namespace ferna::renderer;
using ferna::testing::Dice;
using ferna::testing::expectGoodPages;
using ferna::testing::Folder;
using ferna::testing::GoldenJson;
using ferna::testing::goldenLines;

namespace {

constexpr int reports = 500;

/// A line of the report and the page that it stands on.
struct PlacedLine {
    QString text;
    int page;
};
using Piece = std::vector<PlacedLine>;

bool isAnchorLine(const PlacedLine& line) {
    return line.text.trimmed().at(0).isDigit();
}

/// Reads the lines of a report off its pages, one after the other.
class Reader {
public:
    explicit Reader(const pages::Report& report) {
        constexpr double frameEnds = 30; // mm
        for (std::size_t i = 0; i < report.pages.size(); ++i)
            for (const pages::Text& text : report.pages[i].texts)
                if (text.baseline.y() > frameEnds)
                    texts_.push_back({text.text, static_cast<int>(i)});
    }

    /// The lines that leave ink, with their pages. A failure where one is missing or out of order.
    Piece read(const QStringList& lines) {
        Piece piece;
        for (const QString& line : lines) {
            if (line.trimmed().isEmpty())
                continue;
            while (next_ < texts_.size() && texts_[next_].text != line)
                ++next_;
            EXPECT_LT(next_, texts_.size()) << "missing: " << line.toStdString();
            if (next_ == texts_.size())
                break;
            piece.push_back(texts_[next_++]);
        }
        return piece;
    }

private:
    Piece texts_;
    std::size_t next_ = 0;
};

QStringList linesOf(const ReportCase& section) {
    QStringList lines{section.title};
    lines += section.axis;
    for (const ReportResultLine& line : section.results)
        lines += line.text;
    return lines;
}

void expectOnOnePage(const Piece& piece) {
    for (const PlacedLine& line : piece)
        EXPECT_EQ(line.page, piece.front().page) << line.text.toStdString();
}

/// No page has one line alone of a piece that has more.
void expectNoLoneLine(const Piece& piece) {
    std::map<int, int> linesOnPage;
    for (const PlacedLine& line : piece)
        ++linesOnPage[line.page];
    if (piece.size() > 1) {
        for (const auto& [page, count] : linesOnPage)
            EXPECT_GT(count, 1) << "page " << page << ": " << piece.front().text.toStdString();
    }
}

void expectGoodCase(const Piece& piece) {
    ASSERT_FALSE(piece.empty());
    expectNoLoneLine(piece);
    const bool hasAnchors = std::any_of(piece.begin() + 1, piece.end(), isAnchorLine);
    int named = piece.front().page; // the page whose reader knows which case it is
    for (std::size_t i = 1; i < piece.size(); ++i) {
        if (hasAnchors && isAnchorLine(piece[i]))
            named = piece[i].page;
        else
            EXPECT_EQ(piece[i].page, named) << "a check alone: " << piece[i].text.toStdString();
    }
    constexpr std::size_t withTitle = 5;
    constexpr std::size_t last = 3;
    for (std::size_t i = 0; i < std::min(withTitle, piece.size()); ++i)
        EXPECT_EQ(piece[i].page, piece.front().page) << piece[i].text.toStdString();
    for (std::size_t i = piece.size() - std::min(last, piece.size()); i < piece.size(); ++i)
        EXPECT_EQ(piece[i].page, piece.back().page) << piece[i].text.toStdString();
}

void expectHalfFull(const pages::Report& report) {
    constexpr double middle = (40 + 225) / 2.0;
    for (std::size_t i = 0; i + 1 < report.pages.size(); ++i) {
        double lowest = 0;
        for (const pages::Text& text : report.pages[i].texts)
            lowest = std::max(lowest, text.box().bottom());
        for (const pages::Picture& picture : report.pages[i].pictures)
            lowest = std::max(lowest, picture.rect.bottom());
        EXPECT_GE(lowest, middle) << "page " << i + 1;
    }
}

class WholeReports : public ::testing::Test {
protected:
    WholeReports() {
        QStringList names{generalViewFile,
                          platePictureFile,
                          anchorSketchFile,
                          QStringLiteral("rys3f.bmp"),
                          QStringLiteral("rys2pm.bmp"),
                          QStringLiteral("rys2pd.bmp")};
        for (int c = 1; c <= MaxCases; ++c)
            names += QStringLiteral("fernasz%1.bmp").arg(c);
        for (const char* sketch : {"1", "2", "31", "32", "33", "51", "52"})
            names += QStringLiteral("Szkic%1.bmp").arg(QLatin1String(sketch));
        QImage image(24, 16, QImage::Format_RGB32);
        image.fill(Qt::lightGray);
        for (const QString& name : names)
            image.save(folder.path(name), "BMP");
        for (GoldenJson& task : goldenLines(QStringLiteral("plate.tasks.jsonl")))
            if (task.contains("Blacha"))
                plates.push_back(std::move(task["Blacha"]));
    }

    /// A task between the smallest and the largest that a report can be made of.
    GoldenJson task(Dice& dice) const {
        const int width = dice.whole(200, 900);
        const int length = width + dice.whole(0, 500);
        GoldenJson task{{"Nr_jezyka", dice.whole(0, 4)},
                        {"Nr_normy", dice.whole(0, 1)},
                        {"Hsily_wszystkie", dice.whole(0, 1)},
                        {"Nr_betonu", dice.whole(1, 4)},
                        {"Dlug_plyty_mm", length},
                        {"Szer_plyty_mm", width}};
        for (int i = dice.oneIn(3) ? MaxAnchors : dice.whole(2, MaxAnchors); i > 0; --i)
            task["Kotwy"].push_back({{"x", dice.whole(-length / 2 + 30, length / 2 - 30)},
                                     {"y", dice.whole(-width / 2 + 30, width / 2 - 30)},
                                     {"fi", 24}});
        for (int c = dice.whole(1, MaxCases); c > 0; --c) {
            const int N = dice.whole(20, 1500);
            const auto part = [&](double size) {
                return std::round(N * dice.between(-1, 1) * size);
            };
            task["Przypadki"].push_back({{"N", N},
                                         {"M1", part(length / 1500.0)},
                                         {"M2", dice.oneIn(3) ? 0.0 : part(width / 1500.0)},
                                         {"Vx", part(0.4)},
                                         {"Vy", part(0.4)}});
        }
        if (dice.oneIn(2))
            task["Blacha"] = plates[static_cast<std::size_t>(
                dice.whole(0, static_cast<int>(plates.size()) - 1))];
        if (dice.oneIn(2))
            task["Kotwa"] = {{"rodzaj", dice.oneIn(2) ? "F" : "P"}, {"g", 50}};
        return task;
    }

    pages::Report laidOut(const ReportModel& model) const {
        Buduj_wyd(model, folder.path(QString()));
        writeJob(folder.path(QString()), RenderMode::ScreenPicture, 1);
        wyd::Complaints complaints;
        pages::Report report = compose(readJob(folder.path(wyd::jobFile)), complaints);
        EXPECT_TRUE(complaints.lines().isEmpty());
        return report;
    }

    static void expectGood(const ReportModel& model, const pages::Report& report) {
        expectGoodPages(report);
        expectHalfFull(report);
        Reader reader(report);
        expectNoLoneLine(reader.read(model.data + model.anchors));
        expectOnOnePage(reader.read(model.loads));
        const Piece heading = reader.read({model.resultsHeading});
        for (std::size_t c = 0; c < model.cases.size(); ++c) {
            const Piece piece = reader.read(linesOf(model.cases[c]));
            expectGoodCase(piece);
            if (c == 0 && !piece.empty()) {
                EXPECT_EQ(heading.at(0).page, piece.front().page);
            }
        }
        if (model.summary) {
            QStringList lines{model.summary->heading};
            lines.append({model.summary->lines.begin(), model.summary->lines.end()});
            expectOnOnePage(reader.read(lines));
        }
        if (model.plate)
            expectGoodPlate(*model.plate, reader);
        if (model.anchor) {
            const Piece above =
                reader.read(QStringList(model.anchor->heading) + model.anchor->lines.mid(0, 5));
            expectOnOnePage(above);
            const Piece below = reader.read(model.anchor->lines.mid(5));
            if (below.size() == 1) {
                EXPECT_EQ(below.front().page, above.front().page);
            }
            expectNoLoneLine(below);
        }
    }

    static void expectGoodPlate(const ReportPlate& plate, Reader& reader) {
        const Piece heading = reader.read({plate.heading()});
        for (std::size_t i = 0; i < plate.blocks.size(); ++i) {
            const Piece block = reader.read(plate.blocks[i].lines);
            expectOnOnePage(block);
            if (i == 0 && !block.empty()) {
                EXPECT_EQ(heading.at(0).page, block.front().page);
            }
        }
        expectNoLoneLine(reader.read(plate.rest));
    }

    Folder folder;
    std::vector<GoldenJson> plates;
};

TEST_F(WholeReports, FiveHundredReportsKeepTogetherWhatBelongsTogether) {
    const batch::RunOptions options{
        {}, places::data(), QDateTime(QDate(2026, 5, 17), QTime(9, 41))};
    std::size_t several = 0;
    int made = 0;
    for (std::uint64_t number = 1; made < reports; ++number) {
        Dice dice(number);
        const GoldenJson asked = task(dice);
        const batch::ComputedTask done =
            batch::run(readTask(ferna::testing::documentOf(asked)), options);
        if (!done.reportReady)
            continue;
        ++made;
        SCOPED_TRACE("task " + std::to_string(number) + ": " + asked.dump());
        const ReportModel model = reportModel(done.task.stan, done.raport);
        const pages::Report report = laidOut(model);
        several += report.pages.size() > 1 ? 1 : 0;
        expectGood(model, report);
        if (HasFailure())
            break;
    }
    EXPECT_GT(several, reports / 2U) << "most of them have a page to turn";
}

} // namespace
