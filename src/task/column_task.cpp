#include "task/column_task.h"

#include "runtime/format.h"
#include "statics/load_scheme.h"
#include "task/json_text.h"

namespace ferna {

namespace {

using Load = ColumnTask::Load;

/// A value of a load and the field of the dialog that it fills.
struct ValueKey {
    const char* key;
    std::optional<QString> Load::*typed;
};

using ValueKeys = std::vector<ValueKey>;

constexpr std::array directions{"pionowe", "ZX", "ZY"};
constexpr std::array kinds{"sila", "ciagle", "moment"};

const ValueKeys verticalValues{{"P", &Load::load}, {"ex", &Load::arm}, {"ey", &Load::secondArm}};
const ValueKeys forceValues{{"H", &Load::load}, {"h", &Load::arm}};
const ValueKeys distributedValues{
    {"p1", &Load::load}, {"p2", &Load::secondLoad}, {"h1", &Load::arm}, {"h2", &Load::secondArm}};
const ValueKeys momentValues{{"M", &Load::load}};

/// A load with exactly the values of its direction and kind.
ObjectReader loadObject(const TaskValue& value, const std::string& path, int direction, int kind) {
    if (direction == 0)
        return {value, path, {"kierunek", "rodzaj", "P", "ex", "ey"}};
    if (kind == 0)
        return {value, path, {"kierunek", "rodzaj", "H", "h"}};
    if (kind == 1)
        return {value, path, {"kierunek", "rodzaj", "p1", "p2", "h1", "h2"}};
    return {value, path, {"kierunek", "rodzaj", "M"}};
}

const ValueKeys& valuesOf(int direction, int kind) {
    if (direction == 0)
        return verticalValues;
    return kind == 0 ? forceValues : kind == 1 ? distributedValues : momentValues;
}

Load readLoad(const TaskValue& value, const std::string& path) {
    ObjectReader any(
        value, path,
        {"kierunek", "rodzaj", "P", "ex", "ey", "H", "h", "p1", "p2", "h1", "h2", "M"});
    const std::string direction =
        any.oneOf("kierunek", {directions[0], directions[1], directions[2]});
    Load load{};
    load.optTypObciaz = direction == directions[0] ? 0 : direction == directions[1] ? 1 : 2;
    // A vertical load is always a force: the form hides the other kinds.
    const std::string kind = load.optTypObciaz == 0
                                 ? any.oneOf("rodzaj", {kinds[0]})
                                 : any.oneOf("rodzaj", {kinds[0], kinds[1], kinds[2]});
    load.optTypsily = kind == kinds[0] ? 0 : kind == kinds[1] ? 1 : 2;
    ObjectReader object = loadObject(value, path, load.optTypObciaz, load.optTypsily);
    for (const ValueKey& key : valuesOf(load.optTypObciaz, load.optTypsily))
        load.*key.typed = object.fieldText(key.key);
    return load;
}

void declare(const Load& load, Stan_statyki& loads, StaticsForm& form) {
    chooseDirection(form, load.optTypObciaz);
    chooseKind(form, load.optTypsily);
    LoadDialog dialog = openLoadDialog(form);
    const auto type = [](LoadDialog::Field& field, const std::optional<QString>& typed) {
        field.text = typed.value_or(field.text);
    };
    type(dialog.load, load.load);
    type(dialog.secondLoad, load.secondLoad);
    type(dialog.arm, load.arm);
    type(dialog.secondArm, load.secondArm);
    acceptLoad(loads, form, dialog);
}

/// The load table as the fields of a task.
class FieldTable : public LoadTable {
public:
    explicit FieldTable(InputFields& fields) : fields_(fields) {}

    void setCount(const QString& /*text*/) override {}
    void setRow(int r, const LoadRow<QString>& texts) override {
        fields_.loads.at(static_cast<std::size_t>(r)) = texts;
    }
    void showRow(int /*r*/) override {}

private:
    InputFields& fields_;
};

} // namespace

ColumnTask readColumnTask(const TaskValue& value, const std::string& path) {
    if (!value.isArray())
        throw TaskError(path, {"expected an array of loads", "ma tu stać tablica obciążeń"});
    ColumnTask task;
    task.path = path;
    for (const TaskValue& part : value.parts())
        task.loads.push_back(readLoad(part, path + '[' + std::to_string(task.loads.size()) + ']'));
    return task;
}

Json columnTaskJson(const ColumnTask& task) {
    Json all = Json::array();
    for (const Load& load : task.loads) {
        Json one{{"kierunek", directions.at(static_cast<std::size_t>(load.optTypObciaz))},
                 {"rodzaj", kinds.at(static_cast<std::size_t>(load.optTypsily))}};
        for (const ValueKey& key : valuesOf(load.optTypObciaz, load.optTypsily))
            if (const auto& typed = load.*key.typed)
                one[key.key] = jsonNumber(numberIn(*typed).value_or(0));
        all.push_back(std::move(one));
    }
    return all;
}

ColumnTask columnTaskOf(const Stan_statyki& loads, int inCase) {
    ColumnTask task;
    task.path = "Slup";
    task.inCase = inCase;
    for (int slot = 1; slot <= qMin<int>(loads.Liczba_obc, MaxColumnLoads); ++slot) {
        Load load{qMax(loads.Obc_typ[0](slot) - 1, 0), loads.Obc_typ[1](slot), {}, {}, {}, {}};
        const std::array places{&Load::load, &Load::secondLoad, &Load::arm, &Load::secondArm};
        for (const ValueKey& key : valuesOf(load.optTypObciaz, load.optTypsily))
            for (std::size_t row = 0; row < places.size(); ++row)
                if (places[row] == key.typed)
                    load.*key.typed = general(loads.Obc_wart[row](slot));
        task.loads.push_back(std::move(load));
    }
    return task;
}

DeclaredLoads declareLoads(const ColumnTask& task, Stan& stan, InputFields& fields) {
    DeclaredLoads done;
    done.form = openStatics(done.loads);
    FieldTable table(fields);
    std::string at; // what is being done
    try {
        for (std::size_t i = 0; i < task.loads.size(); ++i) {
            at = task.path + '[' + std::to_string(i) + ']';
            declare(task.loads[i], done.loads, done.form);
        }
        at = task.path;
        if (task.inCase == 0)
            saveTotals(stan, done.form.totals, table);
    } catch (const RunTimeError& failure) {
        done.failure = failure.of(at);
    }
    return done;
}

} // namespace ferna
