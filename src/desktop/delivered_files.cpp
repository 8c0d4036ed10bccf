#include "desktop/delivered_files.h"

#include "protocol/renderer_files.h"
#include "runtime/text_file.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QMap>

namespace ferna {

namespace {

/// Which contents an installation brought, in the form of sha256sum: a file that no longer has them
/// was changed by the engineer.
const QString recordFile = QStringLiteral("dostarczone.sha256");

/// Delivered once; from then on the program writes them.
bool belongsToTheUser(const QString& file) {
    return file == u"Ferna.cfg" || file == wyd::replyFile;
}

QByteArray sumOf(const QByteArray& bytes) {
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}

class Record {
public:
    explicit Record(const QString& folder) : path_(folder + u'/' + recordFile) {
        if (!QFileInfo::exists(path_))
            return;
        constexpr qsizetype sumLength = 64;
        for (const QByteArray& line : readFileWhole(path_).split('\n'))
            if (line.size() > sumLength + 2)
                sums_[QString::fromUtf8(line.mid(sumLength + 2))] = line.first(sumLength);
    }

    bool knows(const QString& file) const { return sums_.contains(file); }
    bool isAsBrought(const QString& file, const QByteArray& bytes) const {
        return sums_.value(file) == sumOf(bytes);
    }
    void note(const QString& file, const QByteArray& bytes) {
        sums_[file] = sumOf(bytes);
        isChanged_ = true;
    }
    void save() const {
        if (!isChanged_)
            return;
        QByteArray lines;
        for (auto sum = sums_.begin(); sum != sums_.end(); ++sum)
            lines += sum.value() + "  " + sum.key().toUtf8() + '\n';
        writeFileWhole(path_, lines);
    }

private:
    QString path_;
    QMap<QString, QByteArray> sums_;
    bool isChanged_ = false;
};

/// One file of the installation, which is not the user's.
void bringFile(const QString& file, const QByteArray& delivered, const QString& target,
               Record& record) {
    if (QFileInfo::exists(target)) {
        const QByteArray present = readFileWhole(target);
        if (present == delivered) {
            if (!record.knows(file))
                record.note(file, delivered);
            return;
        }
        if (!record.isAsBrought(file, present))
            return;
    }
    writeFileWhole(target, delivered);
    record.note(file, delivered);
}

} // namespace

void bringDeliveredFiles(const QString& delivered, const QString& own) {
    const QStringList files = QDir(delivered).entryList(
        {QStringLiteral("*.txt"), QStringLiteral("*.cfg"), QStringLiteral("*.bmp"),
         QStringLiteral("*.svg"), QStringLiteral("*.qch")},
        QDir::Files);
    Record record(own);
    for (const QString& file : files) {
        const QString target = own + u'/' + file;
        if (!belongsToTheUser(file))
            bringFile(file, readFileWhole(delivered + u'/' + file), target, record);
        else if (!QFileInfo::exists(target))
            writeFileWhole(target, readFileWhole(delivered + u'/' + file));
    }
    record.save();
}

} // namespace ferna
