#include "renderer/records.h"

#include "runtime/run_time_error.h"
#include "runtime/text_file.h"

#include <QDir>

#include <cmath>

namespace ferna::renderer {

namespace {

constexpr double largestCoordinate = 1e6; // mm

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
        const QString command = fields.field(0);
        if (command == u"3" || command == u"13" || command == u"5") {
            const qsizetype textLine = ++next_; // gone past also where the record is malformed
            Record record;
            if (command == u"5")
                record.content = pictureRecord(fields);
            else
                record.content = textRecord(fields, command == u"13");
            if (textLine >= lines_.size())
                throw Malformed{QStringLiteral("brak wiersza z tekstem")};
            setText(record, lines_[textLine]);
            return record;
        }
        if (command == u"14")
            return {0, penRecord(fields)};
        if (command == u"9") {
            fields.expectAtMost(1);
            (void)fields.number(1);
            return {0, FrameEndRecord{}};
        }
        if (command == u"10") {
            fields.expectAtMost(0);
            return {0, NewPageRecord{}};
        }
        throw Malformed{QStringLiteral("nieznane polecenie \"%1\"").arg(command)};
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

} // namespace

std::vector<Record> readRecords(const QStringList& lines, const QString& path,
                                Complaints& complaints) {
    return RecordReader(lines, path, complaints).all();
}

std::vector<Record> readRecordFile(const QString& path, Complaints& complaints) {
    return readRecords(readLines(path), path, complaints);
}

} // namespace ferna::renderer
