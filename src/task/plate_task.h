#pragma once

#include "design/user_steels.h"
#include "notes/record.h"
#include "plate/plate_form.h"
#include "plate/plate_report_lines.h"
#include "runtime/run_time_error.h"
#include "task/object_reader.h"

#include <optional>
#include <vector>

namespace ferna {

/// The key "Blacha" of a task: what the engineer types and presses in the plate form, in order.
struct PlateTask {
    /// What is typed for a check before its command.
    struct Check {
        struct Typed {
            QString& (*field)(PlateFields&);
            QString text;
        };
        void type(PlateFields& fields) const;

        int check; ///< 1..8
        std::vector<Typed> typed;
        std::optional<int> profile; ///< of check 4, from 1
    };
    std::string path; ///< key of the section
    int cmbStalb = -1;
    PlateSteelFields steel; ///< typed into the dialog of the user's plate steel
    std::vector<Check> checks;
    std::optional<QString> Grubosc; ///< typed over the accepted thickness
};

/// Throws TaskError.
PlateTask readPlateTask(const TaskValue& value, const std::string& path = "Blacha");

/// The key's value. A text that is no number is left out: the form's first text stands for it.
Json plateTaskJson(const PlateTask& task);

/// The form as it was worked, as a task that works it again: the checks that stand with what they
/// read, and the refused ones with what is typed.
PlateTask plateTaskOf(const Stan& stan, const PlateForm& form);

/// What working the plate form leaves behind.
struct WorkedPlate {
    PlateForm form;
    std::optional<PlateSection> section; ///< empty where nothing entered the report
    notes::PlateFacts facts;             ///< what the notes go by
    std::optional<RunTimeError> failure; ///< what stopped it, with the key of the check
};

/// Opens the form on the results in the state, chooses the grade and leaves its list, runs the
/// checks in their order, types the thickness and confirms. A run-time error ends the run where it
/// stands.
WorkedPlate workPlate(const PlateTask& task, Stan& stan, Dialogs& dialogs);

} // namespace ferna
