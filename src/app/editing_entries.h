#pragma once

namespace ferna {

class Ferna3;

/// Lets loads be pasted and copied as a table. The form owns what it takes.
void addEditing(Ferna3& form);

} // namespace ferna
