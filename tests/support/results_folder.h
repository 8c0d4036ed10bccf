#pragma once

#include "runtime/picture_box.h"
#include "support/folder.h"
#include "support/places.h"

namespace ferna::testing {

/// A program folder as the results form finds it after a calculation: the built renderer, the
/// delivered pictures, and a picture of the plate.
class ResultsFolder : public Folder {
public:
    ResultsFolder() {
        const QDir programs(places::bin());
        for (const QString& picture : programs.entryList({QStringLiteral("*.bmp")}))
            QFile::copy(programs.filePath(picture), path(picture));
        QFile::link(programs.filePath(QStringLiteral("Wyd_drk")), path(QStringLiteral("Wyd_drk")));
        PictureBox(QSize(265, 176)).saveBitmap(path(QStringLiteral("Ferrob.bmp")));
    }
};

} // namespace ferna::testing
