#pragma once

#include "task/task.h"

namespace ferna {

/// What has changed between two tasks, as the menu names a step: "N w przypadku 2", "dodanie 4
/// kotew". Of several changes that one command brings the first counts, as the norm before the
/// concrete and the ratio n that follow from it; different texts of the load table are "tabela
/// obciążeń".
QString stepName(const Task& before, const Task& after);

/// "1 kotwa", "3 kotwy", "12 kotew"; the words for one, for two to four, and for more.
QString counted(int count, const QString& one, const QString& few, const QString& many);

} // namespace ferna
