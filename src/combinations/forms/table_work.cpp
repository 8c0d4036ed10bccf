#include "combinations/forms/table_work.h"

#include <QElapsedTimer>

namespace ferna {

namespace {

constexpr qint64 sliceTime = 15; // ms
constexpr std::size_t atOnce = 500;

} // namespace

TableWork::TableWork(Told told, QObject* parent) : QObject(parent), told_(std::move(told)) {
    timer_.setInterval(0);
    connect(&timer_, &QTimer::timeout, this, [this] { slice(); });
}

void TableWork::read(std::unique_ptr<combinations::RowSource> source,
                     std::unique_ptr<combinations::TableReader> reader,
                     const combinations::Columns& columns,
                     std::optional<combinations::Evaluator> evaluator) {
    evaluator_ = std::move(evaluator);
    reader_ = std::move(reader); // before its source
    source_ = std::move(source);
    columns_ = columns;
    coming_ = {};
    timer_.start();
}

void TableWork::answer(std::optional<combinations::Evaluator> evaluator) {
    evaluator_ = std::move(evaluator);
    table_.forgetAnswers();
    timer_.start();
}

void TableWork::stop() {
    if (!isWorking())
        return;
    const bool whileReading = isReading();
    if (!whileReading || table_.answered() == table_.size())
        timer_.stop();
    reader_.reset();
    source_.reset();
    coming_ = {};
    told_.stopped(whileReading);
}

std::size_t TableWork::done() const {
    return isReading() ? coming_.size() : table_.answered();
}

void TableWork::slice() {
    QElapsedTimer clock;
    clock.start();
    bool more = true;
    while (more && !clock.hasExpired(sliceTime))
        more = isReading() ? readSome() : answerSome();
    told_.progressed();
    if (!more) {
        timer_.stop();
        told_.finished();
    }
}

/// True where there is more to do, if only to answer.
bool TableWork::readSome() {
    for (std::size_t i = 0; i < atOnce; ++i) {
        const std::optional<QStringList> cells = reader_->nextCells();
        if (!cells) {
            trouble_ = source_->trouble();
            reader_.reset();
            source_.reset();
            table_ = std::exchange(coming_, {});
            return true;
        }
        coming_.add(combinations::readRow(*cells, columns_));
    }
    return true;
}

bool TableWork::answerSome() {
    return evaluator_ && table_.answerNext(*evaluator_, atOnce);
}

} // namespace ferna
