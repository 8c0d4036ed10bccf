#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

namespace ferna {

/// How long a file has to last.
enum class Lasting {
    Kept,        ///< on the disk before it takes its name, as what an engineer saves
    Whole,       ///< the same, but its name is not waited for: a power cut may leave the old file
    UntilNextUse ///< written anew at every use: not worth waiting for the disk
};

/// Writes a file as a whole or not at all. A plain file gets its bytes under no name, or, where the
/// file system has no such files, under a hidden one beside it; they take the name once they are on
/// the disk. So a crash, a kill or a full disk leaves the old file or the new one. A hidden name
/// that a kill leaves is taken over by the next saving of the file.
///
/// What is no plain file is written through and stays what it is: a terminal, `/dev/null`, the
/// process's own descriptors under `/dev/fd`, a pipe that somebody reads. A symbolic link is
/// followed, but not one that a stranger has left in a folder where everybody may leave files.
///
/// Errors, each with the file's name and the reason: 76 no such folder, 75 a folder, a block
/// device, a socket, a pipe without a reader, 70 forbidden or a stranger's link, 61 no room, 57
/// anything else, also bytes that the disk took and did not keep.
void writeFileWhole(const QString& path, const QByteArray& bytes, Lasting lasting = Lasting::Kept);

/// A file whose bytes go to the disk before they are wanted, on another thread perhaps, as waiting
/// for the disk takes long. Told to, it takes its name and is `Lasting::Whole`; never told, it
/// leaves the old file.
class FileAhead {
public:
    /// Errors of `writeFileWhole`.
    FileAhead(const QString& path, const QByteArray& bytes);
    FileAhead(FileAhead&&) noexcept;
    FileAhead& operator=(FileAhead&&) noexcept;
    ~FileAhead();

    /// To be called once. Errors of `writeFileWhole`.
    void install();

    class Way;

private:
    std::unique_ptr<Way> way_;
};

/// Removes the hidden names of a folder that killed programs have left; those of savings under way
/// stay.
void removeLeftSavings(const QString& folder);

/// The hidden name under which a file may stand for the moment of its saving.
QString savingName(const QString& path);

} // namespace ferna
