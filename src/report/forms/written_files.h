#pragma once

#include <QFrame>

#include <functional>

class QLabel;
class QUrl;

namespace ferna {

/// The line of the results form that says which files were written last and where, with a way to
/// open their folder. It is not there until something was written.
class WrittenFiles : public QFrame {
    Q_OBJECT

public:
    explicit WrittenFiles(QWidget* parent = nullptr);

    /// Absolute paths, at least one; all of them lie in one folder.
    void tell(const QStringList& files);
    /// What shows a folder, in place of the desktop's file manager; false where it cannot.
    void setOpener(std::function<bool(const QUrl& folder)> open) { open_ = std::move(open); }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void showText();

    QLabel* words_;
    QString text_;
    QString folder_;
    std::function<bool(const QUrl&)> open_;
};

} // namespace ferna
