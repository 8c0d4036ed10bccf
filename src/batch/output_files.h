#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace ferna::batch {

/// The files of one call, so that none of them takes another's place: what the call reads is not
/// written, and no two outputs are the same file, however they are named. What is no plain file,
/// as `/dev/null`, may be written as often as one likes.
class OutputFiles {
public:
    /// `inputs`: the files that the call reads.
    explicit OutputFiles(const QStringList& inputs);

    /// Takes a file for one output. Error 52 where the call reads it or writes it already.
    void claim(const QString& file);

private:
    QList<QString> inputs_;
    QList<QString> outputs_;
};

/// Name for one page of a report that is asked for as `file`: `page` is the page's own name, which
/// begins with `stem`; the file's name takes the place of the stem.
QString pageName(const QString& file, const QString& stem, const QString& page);

} // namespace ferna::batch
