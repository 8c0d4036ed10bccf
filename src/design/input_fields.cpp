#include "design/input_fields.h"

#include "runtime/run_time_error.h"

namespace ferna {

void Czytaj_plyte(Stan& stan, const InputFields& fields) {
    Plyta_i_kotwy& plate = stan.plyta;
    plate.Dlugosc_plyty =
        CSng(taking({Value::PlateLength}, [&] { return CSng(fields.Text3); }) / 10.0);
    plate.Szerokosc_plyty =
        CSng(taking({Value::PlateWidth}, [&] { return CSng(fields.Text4); }) / 10.0);
    plate.Dlug_plyty_mm = CInt(Int(CSng(plate.Dlugosc_plyty * 10.0)));
    plate.Szer_plyty_mm = CInt(Int(CSng(plate.Szerokosc_plyty * 10.0)));
}

} // namespace ferna
