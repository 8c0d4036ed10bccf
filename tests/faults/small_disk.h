#pragma once

#include <QDir>
#include <QFile>
#include <QString>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/mount.h>

namespace ferna::testing {

/// A disk of 64 KB in memory. Only the superuser can have one: `isThere` tells.
class SmallDisk {
public:
    SmallDisk() : isThere_(mount("tmpfs", native(), "tmpfs", 0, "size=64k") == 0) {}
    ~SmallDisk() {
        if (isThere_)
            umount2(native(), MNT_DETACH);
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

    bool isThere() const { return isThere_; }
    QString path(const char* name) const { return folder_.filePath(QString::fromUtf8(name)); }
    QString folder() const { return folder_.path(); }
    QStringList names() const { return QDir(folder()).entryList(QDir::Files | QDir::Hidden); }

    /// Leaves no byte free.
    void fill() const {
        QFile file(path("pełny"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        const QByteArray block(4096, 'x');
        while (file.write(block) == block.size()) {
        }
    }

    /// Nobody can write any longer, the superuser included.
    void makeReadOnly() const {
        EXPECT_EQ(mount("tmpfs", native(), "tmpfs", MS_REMOUNT | MS_RDONLY, "size=64k"), 0);
    }

private:
    const char* native() {
        native_ = folder_.path().toLocal8Bit();
        return native_.constData();
    }
    const char* native() const { return native_.constData(); }

    QTemporaryDir folder_;
    QByteArray native_;
    bool isThere_;
};

} // namespace ferna::testing
