#include "protocol/commands.h"

#include "runtime/format.h"
#include "runtime/run_time_error.h"
#include "runtime/text_file.h"

#include <QDir>

#include <algorithm>
#include <cmath>

namespace ferna::wyd {

namespace {

constexpr double largestCoordinate = 1e6; // mm

/// The first field of a record.
namespace command {
constexpr QLatin1String text("3");
constexpr QLatin1String pageNumber("13");
constexpr QLatin1String picture("5");
constexpr QLatin1String pen("14");
constexpr QLatin1String frameEnd("9");
constexpr QLatin1String newPage("10");
} // namespace command

/// A record that cannot be understood; the text says why.
struct Malformed {
    QString why;
};

bool isPlainNumber(QStringView text) {
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), [](QChar c) {
        return (c >= u'0' && c <= u'9') || c == u'.' || c == u'-' || c == u'+' || c == u'e'
               || c == u'E';
    });
}

/// The fields of one record line.
class Fields {
public:
    explicit Fields(const QString& line) {
        isTooLong_ = line.size() > longestText;
        for (const QString& field : line.left(longestText).split(u','))
            fields_ += field.trimmed();
        while (fields_.size() > 1 && fields_.last().isEmpty())
            fields_.removeLast();
    }

    void expectAtMost(int count) const {
        if (isTooLong_)
            throw Malformed{QStringLiteral("polecenie ma ponad %1 znaków").arg(longestText)};
        if (fields_.size() - 1 > count)
            throw Malformed{
                QStringLiteral("za dużo pól (%1 zamiast %2)").arg(fields_.size() - 1).arg(count)};
    }

    bool empty(int index) const { return index >= fields_.size() || fields_[index].isEmpty(); }
    QString field(int index) const { return index < fields_.size() ? fields_[index] : QString(); }

    std::optional<double> number(int index) const {
        if (empty(index))
            return {};
        return parsed(fields_[index]);
    }

    std::optional<int> whole(int index) const {
        const std::optional<double> value = number(index);
        if (!value)
            return {};
        if (*value != std::floor(*value))
            throw Malformed{QStringLiteral("\"%1\" to nie liczba całkowita").arg(fields_[index])};
        return static_cast<int>(*value);
    }

    std::optional<bool> flag(int index) const {
        const std::optional<int> value = whole(index);
        if (value && *value != 0 && *value != 1)
            throw Malformed{QStringLiteral("%1 zamiast 0 albo 1").arg(*value)};
        return value ? std::optional(*value == 1) : std::nullopt;
    }

    std::optional<double> positive(int index) const {
        const std::optional<double> value = number(index);
        if (value && *value <= 0)
            throw Malformed{QStringLiteral("wymiar \"%1\" nie jest dodatni").arg(fields_[index])};
        return value;
    }

    static double parsed(const QString& text) {
        bool good = false;
        const double value = isPlainNumber(text) ? text.toDouble(&good) : 0;
        if (!good || !(std::fabs(value) <= largestCoordinate))
            throw Malformed{QStringLiteral("\"%1\" to nie liczba").arg(text)};
        return value;
    }

private:
    QStringList fields_;
    bool isTooLong_ = false;
};

std::optional<Baseline> baseline(const Fields& fields, int index) {
    if (fields.empty(index))
        return {};
    const QString field = fields.field(index);
    if (field.startsWith(u'@'))
        return Baseline{Fields::parsed(field.mid(1).trimmed()), true};
    return Baseline{Fields::parsed(field), false};
}

TextRecord textRecord(const Fields& fields, bool pageNumber) {
    fields.expectAtMost(12);
    for (const int constant : {3, 4, 6, 7, 8, 10}) // have one value only, yet must be numbers
        (void)fields.number(constant);
    TextRecord record;
    record.x = fields.number(1);
    record.y = baseline(fields, 2);
    record.height = fields.positive(5);
    record.underline = fields.flag(9);
    record.weight = fields.whole(11);
    record.font = fields.whole(12);
    record.pageNumber = pageNumber;
    return record;
}

PictureRecord pictureRecord(const Fields& fields) {
    fields.expectAtMost(4);
    return {fields.number(1), fields.number(2), fields.positive(3), fields.positive(4), {}};
}

PenRecord penRecord(const Fields& fields) {
    fields.expectAtMost(3);
    return {fields.number(1), fields.number(2), fields.flag(3)};
}

/// Reads the lines one record at a time.
class RecordReader {
public:
    RecordReader(const QStringList& lines, const QString& path, Complaints& complaints)
        : lines_(lines), path_(path), complaints_(complaints) {}

    std::vector<Record> all() {
        std::vector<Record> records;
        for (; next_ < lines_.size(); ++next_) {
            if (lines_[next_].trimmed().isEmpty())
                continue;
            const int line = static_cast<int>(next_) + 1;
            try {
                records.push_back(one(Fields(lines_[next_])));
                records.back().line = line;
                count(records.back());
            } catch (const Malformed& malformed) {
                complaints_.add(path_, line, malformed.why);
            }
        }
        return records;
    }

private:
    Record one(const Fields& fields) {
        const QString number = fields.field(0);
        if (number == command::text || number == command::pageNumber
            || number == command::picture) {
            const qsizetype textLine = ++next_; // gone past also where the record is malformed
            Record record;
            if (number == command::picture)
                record.content = pictureRecord(fields);
            else
                record.content = textRecord(fields, number == command::pageNumber);
            if (textLine >= lines_.size())
                throw Malformed{QStringLiteral("brak wiersza z tekstem")};
            setText(record, lines_[textLine]);
            return record;
        }
        if (number == command::pen)
            return {0, penRecord(fields)};
        if (number == command::frameEnd) {
            fields.expectAtMost(1);
            (void)fields.number(1);
            return {0, FrameEndRecord{}};
        }
        if (number == command::newPage) {
            fields.expectAtMost(0);
            return {0, NewPageRecord{}};
        }
        throw Malformed{QStringLiteral("nieznane polecenie \"%1\"").arg(number)};
    }

    void count(const Record& record) {
        const bool isNewPage = std::holds_alternative<NewPageRecord>(record.content);
        onThisPage_ = isNewPage ? 0 : onThisPage_ + 1;
        pages_ += isNewPage ? 1 : 0;
        pictures_ += std::holds_alternative<PictureRecord>(record.content) ? 1 : 0;
        limit(record.line, onThisPage_, mostRecordsOfAPage, "poleceń na stronie");
        limit(record.line, pages_, mostPages, "stron");
        limit(record.line, pictures_, mostPictures, "rysunków");
    }

    void limit(int line, int count, int most, const char* what) const {
        if (count > most)
            throw RunTimeError(error::DeviceIO, QStringLiteral("%1, wiersz %2: ponad %3 %4")
                                                    .arg(QDir::toNativeSeparators(path_))
                                                    .arg(line)
                                                    .arg(most)
                                                    .arg(QString::fromUtf8(what)));
    }

    void setText(Record& record, const QString& text) {
        if (auto* words = std::get_if<TextRecord>(&record.content)) {
            words->text = text.left(longestText);
            if (text.size() > longestText)
                complaints_.add(path_, static_cast<int>(next_) + 1,
                                QStringLiteral("tekst obcięty do %1 znaków").arg(longestText));
            return;
        }
        auto& picture = std::get<PictureRecord>(record.content);
        picture.path = text.trimmed();
        if (picture.path.isEmpty())
            throw Malformed{QStringLiteral("brak nazwy pliku rysunku")};
    }

    const QStringList& lines_;
    const QString& path_;
    Complaints& complaints_;
    qsizetype next_ = 0;
    int onThisPage_ = 0;
    int pages_ = 0;
    int pictures_ = 0;
};

/// A record of a text with all its fields; those between have one value only.
QString textRecordLine(QLatin1String number, const TextFields& fields) {
    return number
           + QStringLiteral(",%1,%2,1,,%3,1.,0.,0,%4,0,400,%5")
                 .arg(fields.x, fields.y, fields.height)
                 .arg(fields.underline ? 1 : 0)
                 .arg(fields.font);
}

} // namespace

std::vector<Record> readRecords(const QStringList& lines, const QString& path,
                                Complaints& complaints) {
    return RecordReader(lines, path, complaints).all();
}

std::vector<Record> readRecordFile(const QString& path, Complaints& complaints) {
    return readRecords(readLines(path), path, complaints);
}

void CommandWriter::text(const TextFields& fields, QStringView text) {
    file_.line(textRecordLine(command::text, fields));
    file_.line(text);
}

void CommandWriter::textAt(const QString& x, const QString& y, QStringView text) {
    file_.line(command::text + QStringLiteral(", ") + x + QStringLiteral(", ") + y);
    file_.line(text);
}

void CommandWriter::pageNumber(const TextFields& fields, const QString& words, Integer number) {
    file_.line(textRecordLine(command::pageNumber, fields));
    file_.line(words + Format(number, u"####"));
}

void CommandWriter::picture(const PictureFields& fields, QStringView path) {
    file_.line(command::picture + QStringLiteral(", ") + fields.x + u',' + fields.y
               + QStringLiteral(", ") + fields.width + QStringLiteral(", ") + fields.height);
    file_.line(path);
}

void CommandWriter::pen(const QString& x, const QString& y, QChar draws) {
    file_.line(command::pen + QStringLiteral(",") + x + u',' + y + u',' + draws);
}

void CommandWriter::frameEnd() {
    file_.line(command::frameEnd + QStringLiteral(",5."));
}

void CommandWriter::newPage() {
    file_.line(QString(command::newPage));
}

// Every digit at the end goes, not only the number of the job: the words may carry that of an
// earlier page already.
QString wordsOfPageNumber(const QString& text) {
    qsizetype end = text.size();
    while (end > 0 && text[end - 1].isDigit())
        --end;
    if (end > 0 && end < text.size() && text[end - 1] == u'-')
        --end;
    QString words = text.left(end);
    if (!words.isEmpty() && !words.endsWith(u' '))
        words += u' ';
    return words;
}

} // namespace ferna::wyd
