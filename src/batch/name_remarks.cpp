#include "batch/name_remarks.h"

#include "design/typed_names.h"

namespace ferna::batch {

namespace {

void remarkLetters(QStringList& remarks, const char* key, const QString& name) {
    const QString lost = lostLetters(name);
    if (!lost.isEmpty())
        remarks += QStringLiteral("%1: code page 1250 of the reports lacks \"%2\", they have \"?\" "
                                  "in its place")
                       .arg(QLatin1String(key), lost);
}

} // namespace

QStringList nameRemarks(const Task& task) {
    QStringList remarks;
    const QString& project = task.fields.txtNaz_proj;
    remarkLetters(remarks, "Nazwa_projektu", project);
    const double letters = projectLetters(project);
    if (letters != frameLetters)
        remarks += QStringLiteral("Nazwa_projektu: too long for its line of the title block, "
                                  "printed in letters of %1 pt in place of %2 pt")
                       .arg(points(letters), 0, 'f', 1)
                       .arg(points(frameLetters), 0, 'f', 1);
    remarkLetters(remarks, "Nazwa_stopy", task.Nazwa_stopy.left(longestLabel));
    const QString cut = cutFromLabel(task.Nazwa_stopy);
    if (!cut.isEmpty())
        remarks += QStringLiteral("Nazwa_stopy: cut to %1 characters, \"%2\" is left out")
                       .arg(longestLabel)
                       .arg(cut);
    remarkLetters(remarks, "Stal.Stal_nazwa", task.steel.name);
    if (task.plate)
        remarkLetters(remarks, "Blacha.Blacha_nazwa", task.plate->steel.name);
    return remarks;
}

} // namespace ferna::batch
