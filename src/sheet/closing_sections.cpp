#include "notes/notes.h"
#include "sheet/sections.h"

namespace ferna::sheet {

void addNotes(Maker& maker) {
    maker.heading(1, maker.text()(QStringLiteral("notes.heading")));
    const notes::Notes all = notes::notesOf(maker.input().record);
    if (all.empty()) {
        maker.say(QStringLiteral("notes.none"));
        return;
    }
    maker.add(Paragraph{maker.text()(QStringLiteral("notes.about")), Tone::Small, true});
    for (const notes::Note& note : all)
        maker.add(Paragraph{QStringLiteral("<b>%1.</b> %2")
                                .arg(maker.text()(QStringLiteral("note.")
                                                  + QString::fromLatin1(codeName(note.code))),
                                     rich(note.text)),
                            Tone::Quote});
}

void addModel(Maker& maker) {
    maker.heading(1, maker.text()(QStringLiteral("model.heading")));
    for (const char* key : {"model.rigid", "model.concrete", "model.anchors", "model.exact",
                            "model.search", "model.shear", "model.report", "model.not"})
        maker.say(QString::fromLatin1(key));
}

} // namespace ferna::sheet
