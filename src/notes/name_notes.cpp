#include "notes/name_notes.h"

#include "design/typed_names.h"
#include "runtime/text_file.h"

namespace ferna::notes {

namespace {

void lettersLost(QStringView what, const QString& name, Notes& notes) {
    const QString lost = lostLetters(oneLine(name));
    if (lost.isEmpty())
        return;
    notes.push_back(
        {Code::LiteraSpozaStrony, 0, 0, 0,
         QStringLiteral("%1: raport nie pomieści znaków %2, w ich miejscu będzie \"?\". "
                        "Wpisz nazwę bez nich.")
             .arg(what, lost)});
}

} // namespace

Notes nameNotes(const Entered& entered) {
    Notes notes;
    lettersLost(u"Nazwa projektu", entered.fields.txtNaz_proj, notes);
    lettersLost(u"Nazwa stali kotew", entered.steelName, notes);
    return notes;
}

Notes labelNotes(const QString& label) {
    Notes notes;
    lettersLost(u"Oznaczenie stopy", oneLine(label).left(longestLabel), notes);
    const QString cut = cutFromLabel(oneLine(label));
    if (!cut.isEmpty())
        notes.push_back({Code::NazwaSkrocona, 0, 0, 0,
                         QStringLiteral("Oznaczenie stopy ma %1 znaków, a raport mieści %2: nie "
                                        "będzie w nim \"%3\". Skróć oznaczenie.")
                             .arg(oneLine(label).size())
                             .arg(longestLabel)
                             .arg(cut)});
    return notes;
}

Notes plateSteelNotes(const QString& name) {
    Notes notes;
    lettersLost(u"Nazwa stali blachy", name, notes);
    return notes;
}

} // namespace ferna::notes
