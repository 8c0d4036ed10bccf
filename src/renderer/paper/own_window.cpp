#include "renderer/paper/own_window.h"

#include "protocol/renderer_news.h"
#include "renderer/news.h"

#include <QDialog>
#include <QWindow>

#include <memory>

namespace ferna::renderer {

namespace {

/// The program's window; none where the renderer was started alone, or where the window system
/// knows no windows of other programs.
std::unique_ptr<QWindow> windowOfTheProgram() {
    const auto number = static_cast<WId>(qEnvironmentVariable(news::variable).toULongLong());
    return std::unique_ptr<QWindow>(number == 0 ? nullptr : QWindow::fromWinId(number));
}

} // namespace

int runOwnWindow(QDialog& dialog) {
    const std::unique_ptr<QWindow> program = windowOfTheProgram();
    if (program != nullptr && dialog.parentWidget() == nullptr) {
        dialog.winId(); // makes the window that the other one is set for
        dialog.windowHandle()->setTransientParent(program.get());
    }
    tell(news::windowOpens());
    const int answer = dialog.exec();
    tell(news::windowCloses());
    if (program != nullptr && dialog.windowHandle() != nullptr)
        dialog.windowHandle()->setTransientParent(nullptr);
    return answer;
}

} // namespace ferna::renderer
