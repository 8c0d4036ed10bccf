#pragma once

#include <QDesktopServices>
#include <QString>
#include <QUrl>

#include <functional>

namespace ferna {

/// Shows a folder in the user's file manager. Error 429 where `open` knows of none.
void openFolder(const QString& folder,
                const std::function<bool(const QUrl&)>& open = QDesktopServices::openUrl);

} // namespace ferna
