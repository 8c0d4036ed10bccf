#pragma once

#include <QString>
#include <QStringList>

namespace ferna::batch {

// A report that shows its pictures by the names of files brings them along. Two reports of one
// folder must not show each other's.

/// What stands before the names of the pictures of a command file: the file's own name without its
/// ending, and a dash. A character that the code page of these files lacks stands there as "_" and
/// its number.
QString picturePrefix(const QString& file);

/// Where the pictures of an RTF report go, whose text links to them by fixed names.
struct RtfPlace {
    QString pictures;     ///< folder of the pictures
    bool isOwn = false;   ///< a folder of its own, which gets a copy of the report too
    QString copyOfReport; ///< that copy; empty without a folder of its own
};

/// Beside the report, unless pictures of those names that another report may show lie there: then
/// the folder "NAME-rysunki" beside it. `pictures` are the names in the folder `made`. To be asked
/// before the report is written.
RtfPlace placeOfRtfPictures(const QString& file, const QStringList& pictures, const QString& made);

/// Copies the pictures from one folder into another; `prefix` stands before their names there.
/// Errors of `readFileWhole` and `writeFileWhole`.
void copyPictures(const QStringList& pictures, const QString& from, const QString& to,
                  const QString& prefix = {});

} // namespace ferna::batch
