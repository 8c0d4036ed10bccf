#include "task/forms/quiet_line.h"

#include "widgets/note_band.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>

namespace ferna {

QuietLine::QuietLine(QWidget* parent)
    : QFrame(parent), text_(new QLabel), button_(new QPushButton), away_(new QToolButton) {
    setObjectName(QStringLiteral("cicha_linia"));
    setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
    setAutoFillBackground(true);
    QPalette colours = palette();
    colours.setColor(QPalette::Window, quietTint(colours));
    setPalette(colours);
    text_->setObjectName(QStringLiteral("tekst_cichej_linii"));
    text_->setTextFormat(Qt::PlainText);
    text_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    button_->setObjectName(QStringLiteral("przycisk_cichej_linii"));
    button_->setAutoDefault(false);
    away_->setObjectName(QStringLiteral("zamknij_cicha_linie"));
    away_->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    away_->setAutoRaise(true);
    away_->setToolTip(QStringLiteral("Ukryj"));
    away_->setAccessibleName(away_->toolTip());
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 2, 4, 2);
    layout->addWidget(text_, 1);
    layout->addWidget(button_);
    layout->addWidget(away_);
    connect(button_, &QPushButton::clicked, this, [this] {
        hide();
        action_();
    });
    connect(away_, &QToolButton::clicked, this, &QWidget::hide);
    hide();
}

void QuietLine::offer(const QString& text, const QString& caption, std::function<void()> action) {
    tell(text);
    button_->setText(caption);
    button_->show();
    action_ = std::move(action);
}

void QuietLine::tell(const QString& text) {
    text_->setText(text);
    text_->setToolTip(text);
    button_->hide();
    show();
}

QString QuietLine::text() const {
    return isHidden() ? QString() : text_->text();
}

} // namespace ferna
