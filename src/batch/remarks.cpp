#include "batch/remarks.h"

namespace ferna::batch {

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
    const Stan_raportu& report = done.task.stan.raport;
    if (done.task.plate && report.Liczba_wierszy_blachy <= 0)
        remarks += QStringLiteral("Blacha: nothing of the plate section stands in the report");
    if (done.task.anchor && done.task.stan.wyniki.Kotwy_OK == False)
        remarks += QStringLiteral("Kotwa: not selected, as the stress of an anchor is above its "
                                  "strength; nothing of it stands in the report");
    else if (done.task.anchor && report.Liczba_wierszy_kotwy <= 0)
        remarks += QStringLiteral("Kotwa: nothing of the anchor section stands in the report");
    return remarks;
}

} // namespace ferna::batch
