#include "batch/remarks.h"

namespace ferna::batch {

namespace {

/// True where the section wrote lines into the report, which stand in its result under that key.
bool wrote(const Json& sections, const char* section, const char* lines) {
    const auto found = sections.find(section);
    return found != sections.end() && found->is_object() && !found->at(lines).empty();
}

} // namespace

QStringList remarksOf(const ComputedTask& done) {
    QStringList remarks;
    for (const ScriptedDialogs::Box& box : done.dialogs.messages)
        remarks += (box.title + QStringLiteral(": ") + box.text).simplified();
    if (!done.failure.is_null())
        remarks += QStringLiteral("error %1: %2")
                       .arg(done.failure.at("numer").get<int>())
                       .arg(QString::fromStdString(done.failure.at("tekst").get<std::string>()));
    if (!done.reportReady)
        return remarks;
    if (done.task.plate && !wrote(done.sections, "Blacha", "Wiersze_blachy"))
        remarks += QStringLiteral("Blacha: nothing of the plate section stands in the report");
    if (done.task.anchor && done.task.stan.wyniki.Kotwy_OK == False)
        remarks += QStringLiteral("Kotwa: not selected, as the stress of an anchor is above its "
                                  "strength; nothing of it stands in the report");
    else if (done.task.anchor && !wrote(done.sections, "Kotwa", "Wiersze_kotwy"))
        remarks += QStringLiteral("Kotwa: nothing of the anchor section stands in the report");
    return remarks;
}

} // namespace ferna::batch
