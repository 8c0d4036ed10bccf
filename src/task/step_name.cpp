#include "task/step_name.h"

#include "task/json_text.h"

#include <optional>

namespace ferna {

namespace {

/// The anchor, from 1, in which the first `count` of two layouts differ by `differ`; 0 for more
/// than one.
template <typename Differ>
std::optional<int> changedAnchor(int count, const Differ& differ) {
    std::optional<int> changed;
    for (int i = 1; i <= count; ++i)
        if (differ(i))
            changed = changed ? 0 : i;
    return changed;
}

QString anchorsOf(int count) {
    return count == 1 ? QStringLiteral("kotwy") : QStringLiteral("%1 kotew").arg(count);
}

QString anchorStep(const Plyta_i_kotwy& before, const Plyta_i_kotwy& after) {
    const int more = after.Liczba_srub - before.Liczba_srub;
    if (more > 0)
        return QStringLiteral("dodanie ") + anchorsOf(more);
    if (more < 0)
        return after.Liczba_srub == 0 && more < -1
                   ? QStringLiteral("usunięcie wszystkich kotew")
                   : QStringLiteral("usunięcie ") + anchorsOf(-more);
    const auto diameter = changedAnchor(
        after.Liczba_srub, [&](int i) { return before.Fi_kotwy(i) != after.Fi_kotwy(i); });
    if (diameter)
        return *diameter == 0 ? QStringLiteral("średnice kotew")
                              : QStringLiteral("średnica kotwy %1").arg(*diameter);
    const auto place = changedAnchor(after.Liczba_srub, [&](int i) {
        return before.X_kotwy(i) != after.X_kotwy(i) || before.Y_kotwy(i) != after.Y_kotwy(i)
               || before.X_kotwy_mm(i) != after.X_kotwy_mm(i)
               || before.Y_kotwy_mm(i) != after.Y_kotwy_mm(i);
    });
    if (place)
        return *place == 0 ? QStringLiteral("przesunięcie kotew")
                           : QStringLiteral("przesunięcie kotwy %1").arg(*place);
    return {};
}

/// The one load that differs, or the table; empty where none does.
QString loadStep(const Task& before, const Task& after) {
    QString step;
    for (std::size_t r = 0; r < after.fields.loads.size(); ++r) {
        const LoadRow<QString>& a = before.fields.loads[r];
        const LoadRow<QString>& b = after.fields.loads[r];
        const auto load = [&](const QString& from, const QString& to, const char* name) {
            if (from == to)
                return;
            step = step.isEmpty()
                       ? QStringLiteral("%1 w przypadku %2").arg(QLatin1String(name)).arg(r + 1)
                       : QStringLiteral("tabela obciążeń");
        };
        load(a.N, b.N, "N");
        load(a.M1, b.M1, "M1");
        load(a.M2, b.M2, "M2");
        load(a.Vx, b.Vx, "Vx");
        load(a.Vy, b.Vy, "Vy");
    }
    return step;
}

template <typename Section, typename Text>
bool sameSection(const std::optional<Section>& a, const std::optional<Section>& b,
                 const Text& text) {
    return a.has_value() == b.has_value() && (!a || text(*a) == text(*b));
}

QString sectionStep(const Task& a, const Task& b) {
    if (!sameSection(a.column, b.column, columnTaskJson))
        return QStringLiteral("obciążenia słupa");
    if (!sameSection(a.plate, b.plate, plateTaskJson))
        return QStringLiteral("grubość blachy");
    if (!sameSection(a.anchor, b.anchor, anchorTaskJson))
        return QStringLiteral("dobór kotwy");
    return a.Nazwa_stopy != b.Nazwa_stopy ? QStringLiteral("oznaczenie stopy") : QString();
}

QString optionStep(const Task& a, const Task& b) {
    const Opcje_zadania& before = a.stan.opcje;
    const Opcje_zadania& after = b.stan.opcje;
    if (before.Nr_normy != after.Nr_normy)
        return QStringLiteral("norma");
    if (before.Nr_betonu != after.Nr_betonu)
        return QStringLiteral("beton");
    if (before.Tryb_wsp_n != after.Tryb_wsp_n || a.fields.Text2 != b.fields.Text2)
        return QStringLiteral("współczynnik n");
    if (before.Nr_jezyka != after.Nr_jezyka)
        return QStringLiteral("język wyników");
    if (before.Tryb_RTF != after.Tryb_RTF)
        return QStringLiteral("opcja wyników RTF");
    return {};
}

QString fieldStep(const InputFields& a, const InputFields& b) {
    if (a.cmbStal != b.cmbStal)
        return QStringLiteral("stal kotew");
    if (a.Option1_0 != b.Option1_0)
        return QStringLiteral("typ stopy");
    if (a.optHsruby_0 != b.optHsruby_0)
        return QStringLiteral("przenoszenie sił poziomych");
    if (a.Text3 != b.Text3)
        return QStringLiteral("długość płyty");
    if (a.Text4 != b.Text4)
        return QStringLiteral("szerokość płyty");
    if (a.txtNaz_proj != b.txtNaz_proj)
        return QStringLiteral("nazwa projektu");
    return a.txtNr_strony != b.txtNr_strony ? QStringLiteral("numer strony") : QString();
}

} // namespace

QString stepName(const Task& before, const Task& after) {
    QString name = sectionStep(before, after);
    if (name.isEmpty())
        name = anchorStep(before.stan.plyta, after.stan.plyta);
    if (name.isEmpty())
        name = optionStep(before, after);
    if (name.isEmpty())
        name = loadStep(before, after);
    if (name.isEmpty() && before.stan.obciazenia.Liczba_przyp != after.stan.obciazenia.Liczba_przyp)
        name = QStringLiteral("liczba przypadków");
    if (name.isEmpty())
        name = fieldStep(before.fields, after.fields);
    return name.isEmpty() ? QStringLiteral("stal użytkownika") : name;
}

QString counted(int count, const QString& one, const QString& few, const QString& many) {
    const int last = count % 10;
    const int lastTwo = count % 100;
    const bool isFew = last >= 2 && last <= 4 && (lastTwo < 12 || lastTwo > 14);
    return QString::number(count) + u' ' + (count == 1 ? one : isFew ? few : many);
}

} // namespace ferna
