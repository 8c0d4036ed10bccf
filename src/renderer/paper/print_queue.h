#pragma once

#include <QString>

namespace ferna::renderer {

/// Why the print queue takes no job, in Polish; empty where it takes one or cannot be asked.
QString queueRefusal(const QString& name);

/// Why a job that the queue has taken will wait there, in Polish: the queue is paused, its printer
/// cannot be reached. Empty where it is on its way or cannot be told.
QString queueObstacle(const QString& name);

/// The same of a queue that does not know it yet: its printer stands in the network and takes no
/// connection, where the server of the queue is this machine's. Waits two seconds at most.
QString deviceObstacle(const QString& name);

/// Number of the newest job of the queue; 0 where it has none, -1 where it cannot be asked.
int lastJobOf(const QString& name);

/// True where that job is not finished yet.
bool isWaiting(const QString& name, int job);

} // namespace ferna::renderer
