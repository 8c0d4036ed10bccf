#pragma once

class QApplication;

namespace ferna {

/// What every program with windows begins with: the toolkit's own words are Polish, the windows
/// carry the program's icon and are wide enough for their titles, the icons of the boxes are sharp,
/// and a text field that is entered is selected.
void dressApplication(QApplication& application);

} // namespace ferna
