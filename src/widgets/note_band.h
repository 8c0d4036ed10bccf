#pragma once

#include <QScrollArea>

#include <functional>
#include <vector>

class QLabel;
class QVBoxLayout;

namespace ferna {

/// A tint that is seen without shouting, on a light window and on a dark one.
QColor quietTint(const QPalette& palette);

/// A quiet band of notes, one under the other. It takes no room where there are none, and a part of
/// its window at most: more notes are scrolled. Where notes lead somewhere, a click leads there,
/// and with the focus in the band the arrows choose a note and Enter or Space follows it.
class NoteBand : public QScrollArea {
public:
    explicit NoteBand(QWidget* parent = nullptr);

    /// The notes shown from now on. `follow` is told the number of a note that is chosen; without
    /// it the notes lead nowhere.
    void setNotes(const QStringList& texts, std::function<void(int)> follow = {});

    QStringList notes() const { return texts_; }

    /// What a window keeps free for it at first, so that it does not grow when a few notes come.
    int usualHeight() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void choose(int number);
    void follow(int number);
    void showChoice();
    void colour();
    void fitHeight();

    QStringList texts_;
    std::function<void(int)> follow_;
    std::vector<QLabel*> lines_;
    QVBoxLayout* layout_;
    int chosen_ = 0;
    int room_ = 0; ///< height of all notes, or the most that the band takes
};

} // namespace ferna
