#include "task/plate_task.h"

#include "plate/plate_checks.h"
#include "plate/plate_tables.h"
#include "runtime/format.h"
#include "task/json_text.h"

namespace ferna {

namespace {

/// A key of a check, the field that it fills and the value that was read of it.
struct FieldKey {
    const char* key;
    bool whole; ///< read as a whole number
    QString& (*field)(PlateFields&);
    Single (*read)(const PlateInputs&);
};

using Fields = PlateFields;
using Inputs = const PlateInputs;

template <auto check, auto text>
QString& in(Fields& fields) {
    return fields.*check.*text;
}

using FieldKeys = std::vector<FieldKey>;

/// The fields of each check 1..8; check 4 has its list of profiles besides.
const std::array<FieldKeys, PlateChecks> fieldKeys{
    FieldKeys{{"bs", false, in<&Fields::check1, &Fields::TensionStrip::bs>,
               [](Inputs& i) { return Single(i.check1.bs); }},
              {"ca", false, in<&Fields::check1, &Fields::TensionStrip::ca>,
               [](Inputs& i) { return Single(i.check1.ca); }},
              {"S", false, in<&Fields::check1, &Fields::TensionStrip::S>,
               [](Inputs& i) { return Single(i.check1.S); }}},
    FieldKeys{{"ca", false, in<&Fields::check2, &Fields::CompressionStrip::ca>,
               [](Inputs& i) { return Single(i.check2.ca); }},
              {"sigma_k", false, in<&Fields::check2, &Fields::CompressionStrip::sigma_k>,
               [](Inputs& i) { return Single(i.check2.sigma_k); }},
              {"sigma_p", false, in<&Fields::check2, &Fields::CompressionStrip::sigma_p>,
               [](Inputs& i) { return Single(i.check2.sigma_p); }}},
    FieldKeys{{"l", true, in<&Fields::check3, &Fields::Fragment::l>,
               [](Inputs& i) { return Single(i.check3.l); }},
              {"b", true, in<&Fields::check3, &Fields::Fragment::b>,
               [](Inputs& i) { return Single(i.check3.b); }},
              {"sigma", false, in<&Fields::check3, &Fields::Fragment::sigma>,
               [](Inputs& i) { return Single(i.check3.sigma); }}},
    FieldKeys{{"sigma", false, in<&Fields::check4, &Fields::ColumnBase::sigma>,
               [](Inputs& i) { return Single(i.check4.sigma); }}},
    FieldKeys{{"l", true, in<&Fields::check5, &Fields::Fragment::l>,
               [](Inputs& i) { return Single(i.check5.l); }},
              {"b", true, in<&Fields::check5, &Fields::Fragment::b>,
               [](Inputs& i) { return Single(i.check5.b); }},
              {"sigma", false, in<&Fields::check5, &Fields::Fragment::sigma>,
               [](Inputs& i) { return Single(i.check5.sigma); }}},
    FieldKeys{{"l", true, in<&Fields::check6, &Fields::Fragment::l>,
               [](Inputs& i) { return Single(i.check6.l); }},
              {"b", true, in<&Fields::check6, &Fields::Fragment::b>,
               [](Inputs& i) { return Single(i.check6.b); }},
              {"sigma", false, in<&Fields::check6, &Fields::Fragment::sigma>,
               [](Inputs& i) { return Single(i.check6.sigma); }}},
    FieldKeys{{"b", true, in<&Fields::check7, &Fields::AnchorFragment::b>,
               [](Inputs& i) { return Single(i.check7.b); }},
              {"a", true, in<&Fields::check7, &Fields::AnchorFragment::a>,
               [](Inputs& i) { return Single(i.check7.a); }},
              {"c", true, in<&Fields::check7, &Fields::AnchorFragment::c>,
               [](Inputs& i) { return Single(i.check7.c); }},
              {"S", false, in<&Fields::check7, &Fields::AnchorFragment::S>,
               [](Inputs& i) { return Single(i.check7.S); }}},
    FieldKeys{{"b", true, in<&Fields::check8, &Fields::AnchorFragment::b>,
               [](Inputs& i) { return Single(i.check8.b); }},
              {"a", true, in<&Fields::check8, &Fields::AnchorFragment::a>,
               [](Inputs& i) { return Single(i.check8.a); }},
              {"c", true, in<&Fields::check8, &Fields::AnchorFragment::c>,
               [](Inputs& i) { return Single(i.check8.c); }},
              {"S", false, in<&Fields::check8, &Fields::AnchorFragment::S>,
               [](Inputs& i) { return Single(i.check8.S); }}},
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

Json plateTaskJson(const PlateTask& task) {
    Json out = Json::object();
    const auto number = [](Json& object, const char* key, const QString& text) {
        if (const auto value = numberIn(text))
            object[key] = jsonNumber(*value);
    };
    if (task.cmbStalb >= 0)
        out["Nr_stali_blachy"] = task.cmbStalb + 1;
    if (!task.steel.name.isEmpty())
        out["Blacha_nazwa"] = task.steel.name.toStdString();
    if (numberIn(task.steel.fd).value_or(0) != 0)
        number(out, "Blacha_fd", task.steel.fd);
    if (numberIn(task.steel.t_max).value_or(0) != 0)
        number(out, "Blacha_t_max", task.steel.t_max);
    if (task.Grubosc)
        number(out, "Grubosc", *task.Grubosc);
    if (task.checks.empty())
        return out;
    Json& checks = out["Sprawdzenia"];
    for (const PlateTask::Check& check : task.checks) {
        Json one = Json::object();
        if (check.profile)
            one["Nr_profilu"] = *check.profile;
        for (const FieldKey& key : fieldKeys.at(static_cast<std::size_t>(check.check - 1)))
            for (const auto& typed : check.typed)
                if (typed.field == key.field)
                    number(one, key.key, typed.text);
        checks[std::to_string(check.check)] = std::move(one);
    }
    return out;
}

namespace {

/// What check n was given: as it read it where it stands, else as it is typed.
PlateTask::Check checkOf(const PlateForm& form, int n, bool stands) {
    PlateTask::Check check{n, {}, {}};
    PlateFields typed = form.fields;
    for (const FieldKey& key : fieldKeys.at(static_cast<std::size_t>(n - 1)))
        check.typed.push_back(
            {key.field, stands ? general(key.read(form.inputs)) : key.field(typed)});
    const int profile = stands ? form.inputs.check4.Nr_profilu : form.fields.cmbProfil + 1;
    if (n == 4 && profile > 0)
        check.profile = profile;
    return check;
}

} // namespace

PlateTask plateTaskOf(const Stan& stan, const PlateForm& form) {
    PlateTask task;
    task.path = "Blacha";
    task.cmbStalb = form.fields.cmbStalb;
    if (task.cmbStalb + 1 == userPlateSteel)
        task.steel = rememberedPlateSteel(stan.materialy);
    Integer required = 0;
    for (int n = 1; n <= PlateChecks; ++n) {
        const bool stands = stan.raport.Spr_blachy(n) != 0;
        if (stands || form.refused.at(static_cast<std::size_t>(n - 1)))
            task.checks.push_back(checkOf(form, n, stands));
        required = std::max(required, stan.raport.Spr_blachy(n));
    }
    if (numberIn(form.fields.Text4) != static_cast<Double>(required))
        task.Grubosc = form.fields.Text4;
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
