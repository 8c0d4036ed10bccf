#pragma once

#include "pages/page.h"
#include "runtime/dialogs.h"

#include <functional>
#include <memory>
#include <optional>

class QGuiApplication;

namespace ferna::renderer {

/// What printers, PDF documents and windows of the renderer's own take. It stands in a module of
/// its own: its libraries would be half of what there is to load, and the picture on the screen
/// needs none of them.
class Paper {
public:
    virtual ~Paper() = default;

    /// Starts Qt with windows, on the user's screen.
    virtual std::unique_ptr<QGuiApplication> startQt(int& argc, char** argv) = 0;

    /// Asks where to save; `files` are those that a name stands for. None where it was cancelled.
    virtual std::optional<QString>
    askWhereToSave(const SaveQuestion& question,
                   const std::function<QStringList(const QString& name)>& files) = 0;

    /// Prints on the system's default printer. Errors of `printOnDefault`.
    virtual void printDefault(const pages::Report& report) = 0;
    /// Asks for the printer first. Errors of `printOnChosen`.
    virtual void printChosen(const pages::Report& report) = 0;

    /// The pages of a PDF as a document. Error 57 where the pages are no PDF.
    virtual QByteArray document(const QByteArray& pdf, const pages::Report& report,
                                const QString& title) = 0;
};

/// The module, loaded at the first call. Error 429 where it is missing or cannot be loaded.
Paper& paper();

/// What the module exports under `paperFactory`; what it gives lives as long as the program.
using PaperFactory = Paper* (*)();
inline constexpr const char* paperFactory = "fernaPaper";

} // namespace ferna::renderer
