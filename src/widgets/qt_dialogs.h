#pragma once

#include "runtime/dialogs.h"

namespace ferna {

/// Message boxes and input boxes on the screen, modal over the active window.
class QtDialogs : public Dialogs {
public:
    void message(const QString& text, const QString& title, MessageStyle style) override;
    bool confirm(const QString& text, const QString& title) override;
    QString input(const QString& prompt, const QString& title, const QString& preset,
                  std::optional<QPoint> position, const NoteOf& noteOf) override;
    std::optional<QString> saveFile(const SaveQuestion& question) override;
};

} // namespace ferna
