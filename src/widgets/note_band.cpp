#include "widgets/note_band.h"

#include <QKeyEvent>
#include <QLabel>
#include <QScrollBar>
#include <QVBoxLayout>

namespace ferna {

namespace {

constexpr int shareOfTheWindow = 4; // the band takes a quarter of it at most
constexpr int leastLines = 3;       // but so many lines at least, if it has them

constexpr int noteMargin = 3; // around a note

int noteHeight(const QFontMetrics& font) {
    return font.lineSpacing() + 2 * noteMargin;
}

} // namespace

QColor quietTint(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() > 128 ? QColor(0xff, 0xf7, 0xdc)
                                                             : QColor(0x45, 0x3c, 0x22);
}

NoteBand::NoteBand(QWidget* parent) : QScrollArea(parent) {
    auto* const page = new QWidget;
    layout_ = new QVBoxLayout(page);
    layout_->setContentsMargins(0, 0, 0, 0);
    layout_->setSpacing(0);
    setWidget(page);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    setAccessibleName(QStringLiteral("Uwagi"));
    colour();
    hide();
}

void NoteBand::setNotes(const QStringList& texts, std::function<void(int)> follow) {
    follow_ = std::move(follow);
    if (texts == texts_)
        return;
    texts_ = texts;
    const auto count = static_cast<std::size_t>(texts.size());
    while (lines_.size() < count) {
        auto* const line = new QLabel;
        line->setTextFormat(Qt::PlainText);
        line->setWordWrap(true);
        line->setMargin(noteMargin);
        line->setAutoFillBackground(true);
        line->installEventFilter(this);
        layout_->addWidget(line);
        lines_.push_back(line);
    }
    for (; lines_.size() > count; lines_.pop_back())
        delete lines_.back();
    for (std::size_t i = 0; i < count; ++i) {
        lines_[i]->setText(texts.at(static_cast<qsizetype>(i)));
        lines_[i]->setCursor(follow_ ? Qt::PointingHandCursor : Qt::ArrowCursor);
    }
    setFocusPolicy(texts.isEmpty() ? Qt::NoFocus : Qt::TabFocus);
    chosen_ = 0;
    verticalScrollBar()->setValue(0);
    showChoice();
    setVisible(!texts.isEmpty());
    fitHeight();
}

QSize NoteBand::sizeHint() const {
    return {0, room_};
}

// One note can always be read; a window that is only just high enough does not grow for more.
QSize NoteBand::minimumSizeHint() const {
    return {0, qMin(room_, noteHeight(fontMetrics()) + 2 * frameWidth())};
}

int NoteBand::usualHeight() const {
    return leastLines * noteHeight(fontMetrics()) + 2 * frameWidth();
}

void NoteBand::colour() {
    QPalette palette = this->palette();
    const QColor ground = quietTint(palette);
    if (palette.color(QPalette::Base) == ground)
        return;
    palette.setColor(QPalette::Base, ground);
    setPalette(palette);
    setBackgroundRole(QPalette::Base);
    widget()->setBackgroundRole(QPalette::Base);
    viewport()->setBackgroundRole(QPalette::Base);
}

// The height follows the width, in which the notes wrap, and the window, of which it takes a part.
void NoteBand::fitHeight() {
    if (texts_.isEmpty())
        return;
    const int frame = 2 * frameWidth();
    const int line = fontMetrics().lineSpacing();
    const int most = qMax(leastLines * line, window()->height() / shareOfTheWindow);
    const int bar = verticalScrollBar()->sizeHint().width();
    int needed = layout_->heightForWidth(width() - frame) + frame;
    if (needed > most)
        needed = qMax(layout_->heightForWidth(width() - frame - bar) + frame, most);
    room_ = qMin(needed, most);
    setMaximumHeight(room_);
    updateGeometry();
}

void NoteBand::showChoice() {
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        const bool chosen = hasFocus() && static_cast<int>(i) == chosen_;
        lines_[i]->setBackgroundRole(chosen ? QPalette::Highlight : QPalette::Base);
        lines_[i]->setForegroundRole(chosen ? QPalette::HighlightedText : QPalette::Text);
    }
    setAccessibleDescription(texts_.value(chosen_));
}

void NoteBand::choose(int number) {
    chosen_ = qBound(0, number, static_cast<int>(texts_.size()) - 1);
    showChoice();
    ensureWidgetVisible(lines_.at(static_cast<std::size_t>(chosen_)), 0, 0);
}

void NoteBand::follow(int number) {
    if (follow_)
        follow_(number);
}

bool NoteBand::eventFilter(QObject* watched, QEvent* event) {
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        if (watched != lines_[i])
            continue;
        const auto* const mouse = event->type() == QEvent::MouseButtonRelease
                                      ? static_cast<QMouseEvent*>(event)
                                      : nullptr;
        if (mouse && mouse->button() == Qt::LeftButton
            && lines_[i]->rect().contains(mouse->position().toPoint())) {
            chosen_ = static_cast<int>(i);
            follow(chosen_);
            return true;
        }
        // The press belongs to the band: the form must not take it for one on itself.
        return event->type() == QEvent::MouseButtonPress;
    }
    return QScrollArea::eventFilter(watched, event);
}

void NoteBand::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Up:
        choose(chosen_ - 1);
        break;
    case Qt::Key_Down:
        choose(chosen_ + 1);
        break;
    case Qt::Key_Home:
        choose(0);
        break;
    case Qt::Key_End:
        choose(static_cast<int>(texts_.size()) - 1);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        follow(chosen_);
        break;
    default:
        event->ignore();
    }
}

void NoteBand::focusInEvent(QFocusEvent* event) {
    QScrollArea::focusInEvent(event);
    choose(chosen_);
}

void NoteBand::focusOutEvent(QFocusEvent* event) {
    QScrollArea::focusOutEvent(event);
    showChoice();
}

void NoteBand::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    if (event->size().width() != event->oldSize().width())
        fitHeight();
}

void NoteBand::changeEvent(QEvent* event) {
    QScrollArea::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        colour();
}

} // namespace ferna
