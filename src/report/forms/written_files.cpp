#include "report/forms/written_files.h"

#include "widgets/environment_stop.h"
#include "windows/file_folder.h"

#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace ferna {

namespace {

constexpr int namedAtMost = 4; // files of the line; the others are counted

QString namesOf(const QStringList& files) {
    QStringList names;
    for (const QString& file : files.mid(0, namedAtMost))
        names += QFileInfo(file).fileName();
    const QString text = names.join(QStringLiteral(", "));
    const qsizetype more = files.size() - names.size();
    return more > 0 ? text + QStringLiteral(" i jeszcze %1").arg(more) : text;
}

} // namespace

WrittenFiles::WrittenFiles(QWidget* parent)
    : QFrame(parent), words_(new QLabel), open_(QDesktopServices::openUrl) {
    setObjectName(QStringLiteral("zapisano"));
    words_->setObjectName(QStringLiteral("lblZapisano"));
    words_->setTextFormat(Qt::PlainText);
    words_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    words_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* const open = new QPushButton(QStringLiteral("&Otwórz folder"));
    open->setObjectName(QStringLiteral("cmdOtworz_folder"));
    open->setToolTip(QStringLiteral("Pokaż zapisany plik w jego folderze"));
    connectGuarded(open, &QPushButton::clicked, this, [this] { openFolder(folder_, open_); });
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(8, 3, 8, 3);
    row->addWidget(words_, 1);
    row->addWidget(open);
    hide();
}

void WrittenFiles::tell(const QStringList& files) {
    folder_ = QFileInfo(files.constFirst()).absolutePath();
    const QString folder = QDir::toNativeSeparators(folder_);
    text_ = QStringLiteral("Zapisano %1 w folderze %2").arg(namesOf(files), folder);
    words_->setToolTip(text_);
    words_->setAccessibleName(text_);
    show();
    showText();
}

void WrittenFiles::resizeEvent(QResizeEvent* event) {
    QFrame::resizeEvent(event);
    showText();
}

// The whole text is the label's tool tip.
void WrittenFiles::showText() {
    words_->setText(words_->fontMetrics().elidedText(text_, Qt::ElideMiddle, words_->width()));
}

} // namespace ferna
