#include "batch/view_files.h"

#include "live/live_values.h"
#include "live/picture_files.h"
#include "runtime/text_file.h"

namespace ferna::batch {

namespace {

/// The name of the file of a case, from 1.
QString caseFile(const QString& file, int c, int cases) {
    const QString stem = QStringLiteral("podglad");
    const QString own = stem + QStringLiteral("-przypadek-%1-z-%2").arg(c).arg(cases)
                        + file.mid(file.lastIndexOf(u'.'));
    return cases == 1 ? file : pageName(file, stem, own);
}

/// What is entered, without what the calculation has done to it since.
live::LiveValues enteredValues(const ComputedTask& done) {
    Stan stan = done.task.stan;
    stan.plyta = done.record.given().plate;
    return live::liveValues(stan, done.record.given().fields);
}

} // namespace

QStringList viewEndings() {
    return live::pictureEndings();
}

bool isViewFile(const QString& file) {
    return live::isPictureFile(file);
}

QString writeView(const ComputedTask& done, const QString& file, OutputFiles& outputs) {
    const live::LiveValues values = enteredValues(done);
    if (!values.valid())
        return QStringLiteral("%1: no picture: %2").arg(file, values.reason);
    const int cases = static_cast<int>(values.cases.size());
    if (cases > 1)
        for (int c = 1; c <= cases; ++c)
            outputs.claim(caseFile(file, c, cases));
    for (int c = 1; c <= cases; ++c) {
        const QString name = caseFile(file, c, cases);
        writeFileWhole(name, live::pictureBytes(name, live::pictureOf(values, c), {}));
    }
    return {};
}

} // namespace ferna::batch
