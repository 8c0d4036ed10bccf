#pragma once

#include <QString>

namespace ferna::renderer {

/// Why the print queue takes no job, in Polish; empty where it takes one or cannot be asked.
QString queueRefusal(const QString& name);

/// Number of the newest job of the queue; 0 where it has none, -1 where it cannot be asked.
int lastJobOf(const QString& name);

} // namespace ferna::renderer
