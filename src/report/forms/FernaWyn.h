#pragma once

#include "report/results_session.h"

#include <QMainWindow>

#include <functional>
#include <memory>

class QToolButton;
class QLabel;
class QMenu;

namespace Ui {
class FernaWyn;
}

namespace ferna {

/// The results form: shows the report as one picture, offers every output, and leads on to the
/// plate and anchor forms. It draws nothing of the report itself.
class FernaWyn : public QMainWindow {
    Q_OBJECT

public:
    /// Where the form leads to.
    struct Links {
        std::function<void(QWidget*)> plateForm;  ///< shows it modally
        std::function<void(QWidget*)> anchorForm; ///< shows it modally
        std::function<void()> help;
        std::function<void()> back;       ///< shows the input form
        std::function<void()> endProgram; ///< saves the configuration and ends
        /// What there is to say beside the report, given the label as typed last.
        std::function<QStringList(const QString& label)> notes = {};
    };

    FernaWyn(Stan& stan, std::unique_ptr<ResultsSession> session, Links links);
    ~FernaWyn() override;

    /// The menu "&Więcej" of what stands beside the report; seen once it has an entry.
    QMenu* moreMenu() const { return more_; }
    ResultsSession& session() { return *session_; }
    /// Says below the report where files were written.
    void tellWritten(const QStringList& files);

    /// Shows the form, prepares the report and has it rendered.
    void open();
    /// Shows the report anew after a section was added to it.
    void afterSection();

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildStatusBar();
    void addPanel(QWidget* panel, int share);
    void connectMenu();
    void showPanels();
    void showNotes();
    void showRtfEntry();
    void tellWritten();
    void refresh();
    void layOut();
    bool keyOfMenuBar(QEvent* event);
    void saveDocument();
    void back();
    void printWith(RenderMode mode);

    Stan& stan_;
    std::unique_ptr<ResultsSession> session_;
    Links links_;
    std::unique_ptr<Ui::FernaWyn> ui_;
    QMenu* more_ = nullptr;
    QLabel* state_ = nullptr;
    QToolButton* page_ = nullptr;
    QToolButton* project_ = nullptr;
    QToolButton* label_ = nullptr;
    int belowTheReport_ = 0; ///< room under the report once a section was added, pixels
};

} // namespace ferna
