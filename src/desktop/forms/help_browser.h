#pragma once

#include <QHelpEngineCore>
#include <QTextBrowser>

namespace ferna {

/// Shows the pages of the packed help with their sketches, sharp at the screen's scale.
class HelpBrowser : public QTextBrowser {
    Q_OBJECT

public:
    explicit HelpBrowser(const QHelpEngineCore& engine, QWidget* parent = nullptr);

    /// Goes to the next (or previous) place of a text, going on at the other end of the page.
    /// False where the page does not hold it.
    bool findOnPage(const QString& text, bool backwards = false);

    QVariant loadResource(int type, const QUrl& name) override;

private:
    QImage sketch(const QByteArray& svg) const;

    const QHelpEngineCore& engine_;
};

} // namespace ferna
