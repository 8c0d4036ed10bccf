#pragma once

#include "plate/plate_form.h"

namespace ferna {

/// What a command of the plate form works on.
struct PlateWork {
    Stan& stan;
    PlateForm& form;
    Dialogs& dialogs;
    PlateSteelHost& host;
};

/// Takes the chosen grade into `Nr_stali_blachy` and gives its strength, MPa, and the thickness up
/// to which it holds, mm. For "inna stal" without a steel the dialog is shown and sets both itself;
/// where it fails, the message is shown and what stands is kept.
void Stal_blachy(const PlateWork& work, Single& Fd, Integer& Grub);

/// Rounds the required thickness t, mm, applies the limits of the grade and keeps the result:
/// `Grub_wyn` takes whole millimetres, the result line and the accepted thickness follow. Beyond a
/// limit the message is shown, `Grub_wyn` is 0 and `ok` False. n is the check less one.
/// Errors 6 beyond 16 bits, 13 where the accepted thickness is no number.
void Sprawdz_grubosc(const PlateWork& work, Single& t, Single& Fd, Integer n, Integer& Grub_wyn,
                     Integer& ok);

/// The command of a check 1..8; nothing happens where it is disabled. A failed validation shows its
/// message and leaves the check absent. The commands of the checks 1 to 4 show a run-time error as
/// a message; those of 5 to 8 let it pass: 5, 6, 11, 13. In either case the check is absent and its
/// result line hidden.
void computePlateCheck(const PlateWork& work, int check);

} // namespace ferna
