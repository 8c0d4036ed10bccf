#pragma once

#include <QHelpEngine>
#include <QWidget>

class QLabel;
class QLineEdit;
class QListWidget;
class QTabWidget;
class QTextBrowser;

namespace ferna {

class HelpBrowser;

/// Contexts of the help, by the numbers that its pages carry as identifiers.
namespace help {
inline constexpr int Start = 100;
inline constexpr int Configuration = 110; ///< the tabs of the main form
inline constexpr int General = 120;
inline constexpr int Loads = 130;
inline constexpr int Anchors = 140;
inline constexpr int Statics = 150;
inline constexpr int Combinations = 190;
inline constexpr int Results = 200;
inline constexpr int PlateThickness = 210;
inline constexpr int AnchorSelection = 220;
inline constexpr int Capacity = 270;
inline constexpr int SmallestBase = 280;
inline constexpr int Messages = 300;
} // namespace help

/// Opens the help of a program folder at a context; an unknown one is the start page. A window that
/// is open already is used again. Error 53 where the help is not delivered, 57 where it is damaged
/// or its collection cannot be written.
void openHelp(const QString& programFolder, int context);

/// The help: contents, index and full-text search beside the page. A window of its own that stays
/// usable while a modal form stands; Esc closes it.
class HelpWindow : public QWidget {
    Q_OBJECT

public:
    /// `programFolder` holds Ferna.qch; the collection with the index of the search is kept there.
    /// Errors as `openHelp`.
    explicit HelpWindow(const QString& programFolder);
    ~HelpWindow() override;

    /// Shows the page of a context.
    void showContext(int context);
    /// Searches all pages; the list is filled when the search has ended.
    void search(const QString& words);

protected:
    bool event(QEvent* event) override;

private:
    void openCollection(const QString& programFolder);
    bool takeDocumentation(const QString& documentation);
    QWidget* navigation();
    QWidget* contentsPage();
    QWidget* indexPage();
    QWidget* searchPage();
    QWidget* findBar();
    void addShortcuts();
    void startSearch();
    void showHits();
    void markWord();
    void markInContents(const QUrl& page);
    void openFindBar();
    void findAgain(bool backwards);
    void leaveFindBarOrClose();
    void stayUsableBeside(QWindow* modal);

    std::unique_ptr<QHelpEngine> engine_;
    HelpBrowser* browser_ = nullptr;
    QTabWidget* tabs_ = nullptr;
    QLineEdit* words_ = nullptr;
    QListWidget* hits_ = nullptr;
    QLabel* hitCount_ = nullptr;
    QWidget* findBar_ = nullptr;
    QLineEdit* findText_ = nullptr;
    QLabel* findNote_ = nullptr;
    bool indexed_ = false;
    bool searchWaits_ = false; ///< asked for before the index was ready
};

} // namespace ferna
