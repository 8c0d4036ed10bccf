#pragma once

#include <QByteArray>

namespace ferna::renderer {

/// Tells the program that started the renderer a piece of news (`ferna::news`); nobody where no
/// program listens.
void tell(const QByteArray& news);

} // namespace ferna::renderer
