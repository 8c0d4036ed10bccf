#pragma once

#include "protocol/renderer_start.h"

#include <QPointer>
#include <QWidget>

#include <memory>

class QDialog;
class QLabel;

namespace ferna {

/// The patience of the engineer while the renderer works: the form stays drawn, and after a while a
/// small box tells what is waited for and offers to give up. Lives for one run of the renderer.
class RendererWait {
public:
    /// `form`: over which the box stands.
    explicit RendererWait(QWidget* form);
    ~RendererWait();
    RendererWait(const RendererWait&) = delete;
    RendererWait& operator=(const RendererWait&) = delete;

    /// To be asked again and again. False once the engineer has given up.
    bool goOn(const RendererState& state);

    /// Without a box until then, and while the renderer shows a window of its own.
    static constexpr std::chrono::milliseconds silent{4000};

private:
    void makeBox();
    void takeBoxAway();

    QPointer<QWidget> form_;
    std::unique_ptr<QDialog> box_;
    QLabel* words_ = nullptr;
    bool givenUp_ = false;
};

} // namespace ferna
