#include "app/editing_entries.h"

#include "editing/forms/anchors_beside_the_list.h"
#include "editing/forms/load_table_keys.h"
#include "input/forms/Ferna3.h"

namespace ferna {

void addEditing(Ferna3& form, const Stan& stan) {
    new LoadTableKeys(&form); // the form owns it
    anchorsBesideTheList(form, stan);
}

} // namespace ferna
