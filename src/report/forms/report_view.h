#pragma once

#include "pages/metafile.h"

#include <QWidget>

namespace ferna {

/// Shows the rendered report as wide as the widget, sharp at the screen's scale; the height follows
/// from the pages.
class ReportView : public QWidget {
    Q_OBJECT

public:
    explicit ReportView(QWidget* parent = nullptr) : QWidget(parent) {}

    /// Shows a picture made by the renderer. Error 57 where the bytes are no such picture.
    void setPicture(const QByteArray& emf);
    void clear();

    /// Height for a width, keeping the pages' proportions; 0 without a picture.
    int heightFor(int width) const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Metafile picture_;
};

} // namespace ferna
