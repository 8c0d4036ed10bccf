#include "app/editing_entries.h"

#include "editing/forms/load_table_keys.h"
#include "input/forms/Ferna3.h"

namespace ferna {

void addEditing(Ferna3& form) {
    new LoadTableKeys(&form); // the form owns it
}

} // namespace ferna
