#include "task/plate_task.h"

#include "plate/plate_checks.h"
#include "plate/plate_tables.h"

namespace ferna {

namespace {

/// A key of a check and the field that it fills.
struct FieldKey {
    const char* key;
    bool whole; ///< read as a whole number
    QString& (*field)(PlateFields&);
};

using Fields = PlateFields;

template <auto check, auto text>
QString& in(Fields& fields) {
    return fields.*check.*text;
}

using FieldKeys = std::vector<FieldKey>;

/// The fields of each check 1..8; check 4 has its list of profiles besides.
const std::array<FieldKeys, PlateChecks> fieldKeys{
    FieldKeys{{"bs", false, in<&Fields::check1, &Fields::TensionStrip::bs>},
              {"ca", false, in<&Fields::check1, &Fields::TensionStrip::ca>},
              {"S", false, in<&Fields::check1, &Fields::TensionStrip::S>}},
    FieldKeys{{"ca", false, in<&Fields::check2, &Fields::CompressionStrip::ca>},
              {"sigma_k", false, in<&Fields::check2, &Fields::CompressionStrip::sigma_k>},
              {"sigma_p", false, in<&Fields::check2, &Fields::CompressionStrip::sigma_p>}},
    FieldKeys{{"l", true, in<&Fields::check3, &Fields::Fragment::l>},
              {"b", true, in<&Fields::check3, &Fields::Fragment::b>},
              {"sigma", false, in<&Fields::check3, &Fields::Fragment::sigma>}},
    FieldKeys{{"sigma", false, in<&Fields::check4, &Fields::ColumnBase::sigma>}},
    FieldKeys{{"l", true, in<&Fields::check5, &Fields::Fragment::l>},
              {"b", true, in<&Fields::check5, &Fields::Fragment::b>},
              {"sigma", false, in<&Fields::check5, &Fields::Fragment::sigma>}},
    FieldKeys{{"l", true, in<&Fields::check6, &Fields::Fragment::l>},
              {"b", true, in<&Fields::check6, &Fields::Fragment::b>},
              {"sigma", false, in<&Fields::check6, &Fields::Fragment::sigma>}},
    FieldKeys{{"b", true, in<&Fields::check7, &Fields::AnchorFragment::b>},
              {"a", true, in<&Fields::check7, &Fields::AnchorFragment::a>},
              {"c", true, in<&Fields::check7, &Fields::AnchorFragment::c>},
              {"S", false, in<&Fields::check7, &Fields::AnchorFragment::S>}},
    FieldKeys{{"b", true, in<&Fields::check8, &Fields::AnchorFragment::b>},
              {"a", true, in<&Fields::check8, &Fields::AnchorFragment::a>},
              {"c", true, in<&Fields::check8, &Fields::AnchorFragment::c>},
              {"S", false, in<&Fields::check8, &Fields::AnchorFragment::S>}},
};

ObjectReader checkObject(const TaskValue& value, const std::string& path, int check) {
    switch (check) {
    case 1:
        return {value, path, {"bs", "ca", "S"}};
    case 2:
        return {value, path, {"ca", "sigma_k", "sigma_p"}};
    case 4:
        return {value, path, {"Nr_profilu", "sigma"}};
    case 7:
    case 8:
        return {value, path, {"b", "a", "c", "S"}};
    default:
        return {value, path, {"l", "b", "sigma"}};
    }
}

PlateTask::Check readCheck(const TaskValue& value, const std::string& path, int check) {
    ObjectReader object = checkObject(value, path, check);
    PlateTask::Check out{check, {}, {}};
    const FieldKeys& keys = fieldKeys[static_cast<std::size_t>(check - 1)];
    out.typed.reserve(keys.size());
    for (const FieldKey& key : keys)
        if (auto text = key.whole ? object.wholeFieldText(key.key) : object.fieldText(key.key))
            out.typed.push_back({key.field, std::move(*text)});
    if (check == 4)
        out.profile = object.listNumber("Nr_profilu", 1, static_cast<int>(profileNames().size()));
    return out;
}

/// The dialog of the user's plate steel, filled from the task; a refusal is followed by a cancel.
class TypedPlateSteel : public PlateSteelHost {
public:
    TypedPlateSteel(const PlateSteelFields& fields, Dialogs& dialogs)
        : fields_(fields), dialogs_(dialogs) {}

    void KGM8b(Stan& stan) override {
        if (acceptPlateSteel(stan, fields_, dialogs_))
            cancelSteel(stan);
    }

private:
    const PlateSteelFields& fields_;
    Dialogs& dialogs_;
};

} // namespace

void PlateTask::Check::type(PlateFields& fields) const {
    for (const Typed& one : typed)
        one.field(fields) = one.text;
    if (profile)
        fields.cmbProfil = *profile - 1;
}

PlateTask readPlateTask(const TaskValue& value, const std::string& path) {
    ObjectReader object(
        value, path,
        {"Nr_stali_blachy", "Blacha_nazwa", "Blacha_fd", "Blacha_t_max", "Grubosc", "Sprawdzenia"});
    const QString zero = QStringLiteral("0");
    PlateTask task;
    task.path = path;
    task.cmbStalb = object.listNumber("Nr_stali_blachy", 1, userPlateSteel).value_or(0) - 1;
    task.steel = {object.text("Blacha_nazwa"), object.fieldText("Blacha_fd").value_or(zero),
                  object.wholeFieldText("Blacha_t_max").value_or(zero)};
    if (object.has("Grubosc") && !object.at("Grubosc").isNull())
        task.Grubosc = object.fieldText("Grubosc");
    if (!object.has("Sprawdzenia"))
        return task;
    ObjectReader checks(object.at("Sprawdzenia"), object.pathOf("Sprawdzenia"),
                        {"1", "2", "3", "4", "5", "6", "7", "8"});
    for (const TaskValue& part : object.at("Sprawdzenia").parts()) {
        const std::string number(part.key);
        task.checks.push_back(readCheck(part, checks.pathOf(number), std::stoi(number)));
    }
    return task;
}

WorkedPlate workPlate(const PlateTask& task, Stan& stan, Dialogs& dialogs) {
    WorkedPlate result;
    PlateForm& form = result.form;
    std::string at = task.path; // what is being done
    TypedPlateSteel host(task.steel, dialogs);
    const PlateWork work{stan, form, dialogs, host};
    std::array<bool, PlateChecks> asked{}; // and not run yet
    for (const PlateTask::Check& check : task.checks)
        asked.at(static_cast<std::size_t>(check.check - 1)) = true;
    try {
        form = openPlateForm(stan);
        form.fields.cmbStalb = task.cmbStalb;
        leaveGradeList(stan, form, dialogs, host);
        for (const PlateTask::Check& check : task.checks) {
            at = task.path + ".Sprawdzenia." + std::to_string(check.check);
            check.type(form.fields);
            asked.at(static_cast<std::size_t>(check.check - 1)) = false;
            computePlateCheck(work, check.check);
        }
        at = task.path + ".Grubosc";
        form.fields.Text4 = task.Grubosc.value_or(form.fields.Text4);
        result.section = writePlateSection(stan, form, dialogs);
    } catch (const RunTimeError& failure) {
        result.failure = failure.of(at);
    }
    for (std::size_t i = 0; i < asked.size(); ++i)
        form.refused[i] = form.refused[i] || asked[i];
    result.facts = notes::plateFacts(stan, form, result.section.has_value());
    return result;
}

} // namespace ferna
