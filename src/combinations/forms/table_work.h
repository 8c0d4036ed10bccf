#pragma once

#include "combinations/answered_table.h"
#include "combinations/table_reader.h"

#include <QObject>
#include <QTimer>

#include <functional>

namespace ferna {

/// Reads a table and answers its rows in short slices, so that the window stays alive and the work
/// can be stopped at any time.
class TableWork : public QObject {
public:
    struct Told {
        std::function<void()> progressed; ///< after each slice
        std::function<void()> finished;   ///< rows and answers stand
        /// Stopped while reading: the table is that of before; else some rows have no answer.
        std::function<void(bool whileReading)> stopped;
    };
    TableWork(Told told, QObject* parent);

    /// Reads all rows by these columns, then answers them. The table of before stays with its
    /// answers until all rows are read.
    void read(std::unique_ptr<combinations::RowSource> source,
              std::unique_ptr<combinations::TableReader> reader,
              const combinations::Columns& columns,
              std::optional<combinations::Evaluator> evaluator);
    /// Answers the rows anew for another base; without one they stay without answers.
    void answer(std::optional<combinations::Evaluator> evaluator);
    /// Ends the work; a table that was being read is forgotten, and that of before is answered to
    /// its end.
    void stop();

    bool isWorking() const { return timer_.isActive(); }
    /// Rows done so far, of those read or to be answered.
    std::size_t done() const;
    bool isReading() const { return reader_ != nullptr; }

    const combinations::AnsweredTable& table() const { return table_; }
    /// Why the rest of the table could not be read.
    const QString& trouble() const { return trouble_; }

private:
    void slice();
    bool readSome();
    bool answerSome();

    Told told_;
    QTimer timer_;
    std::unique_ptr<combinations::RowSource> source_;
    std::unique_ptr<combinations::TableReader> reader_;
    combinations::Columns columns_;
    combinations::AnsweredTable coming_; ///< being read
    combinations::AnsweredTable table_;
    std::optional<combinations::Evaluator> evaluator_;
    QString trouble_;
};

} // namespace ferna
