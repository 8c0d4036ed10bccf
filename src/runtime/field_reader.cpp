#include "runtime/field_reader.h"

#include "runtime/format.h"
#include "runtime/run_time_error.h"
#include "runtime/text_file.h"

#include <QDir>

namespace ferna {

FieldReader::FieldReader(const QString& path) : path_(path), lines_(readLines(path)) {}

void FieldReader::fail(int number, const QString& what) const {
    throw RunTimeError(number, QStringLiteral("%1, wiersz %2: %3")
                                   .arg(QDir::toNativeSeparators(path_))
                                   .arg(line_)
                                   .arg(what));
}

void FieldReader::nextLine() {
    ++line_;
    position_ = 0;
    if (line_ > lines_.size())
        fail(error::InputPastEnd, QStringLiteral("brak wiersza"));
}

QString FieldReader::numberField() {
    const QString& line = lines_[line_ - 1];
    while (position_ < line.size() && line[position_] == u' ')
        ++position_;
    const qsizetype start = position_;
    while (position_ < line.size() && line[position_] != u' ' && line[position_] != u',')
        ++position_;
    QString field = line.mid(start, position_ - start);
    while (position_ < line.size() && line[position_] == u' ')
        ++position_;
    if (position_ < line.size() && line[position_] == u',')
        ++position_;
    if (field.isEmpty())
        fail(error::InputPastEnd, QStringLiteral("brak liczby"));
    return field;
}

Double FieldReader::number() {
    const QString field = numberField();
    try {
        return CDbl(field);
    } catch (const RunTimeError& failure) {
        fail(failure.number(), u'"' + field + u'"');
    }
}

Integer FieldReader::integer() {
    const Double value = number();
    try {
        return CInt(value);
    } catch (const RunTimeError& failure) {
        fail(failure.number(), general(value));
    }
}

Integer FieldReader::choice(Integer first, Integer last) {
    const Integer value = integer();
    if (value < first || value > last)
        fail(error::Subscript,
             QStringLiteral("%1 zamiast liczby od %2 do %3").arg(value).arg(first).arg(last));
    return value;
}

Single FieldReader::single() {
    const Double value = number();
    try {
        return CSng(value);
    } catch (const RunTimeError& failure) {
        fail(failure.number(), general(value));
    }
}

QString FieldReader::text() {
    const QString& line = lines_[line_ - 1];
    while (position_ < line.size() && line[position_] == u' ')
        ++position_;
    qsizetype end = line.indexOf(u',', position_);
    if (end < 0)
        end = line.size();
    QString field = line.mid(position_, end - position_);
    position_ = end < line.size() ? end + 1 : end;
    return field;
}

bool FieldReader::atLineEnd() const {
    return QStringView(lines_[line_ - 1]).mid(position_).trimmed().isEmpty();
}

QString FieldReader::rest() {
    QString rest = lines_[line_ - 1].mid(position_);
    position_ = lines_[line_ - 1].size();
    return rest;
}

} // namespace ferna
