#pragma once

#include "desktop/word_processor.h"

#include <QString>

#include <memory>

namespace ferna::writer {

class OfficeProcess;
class ProcessGroup;

/// The word processor's operations over its programming interface, in the thread that calls them.
/// Errors as told at `WordProcessor`; a call that the word processor does not answer blocks until
/// its process is killed.
class UnoDocument {
public:
    UnoDocument(const WordProcessorPlace& place, std::shared_ptr<ProcessGroup> group);
    ~UnoDocument();
    UnoDocument(const UnoDocument&) = delete;
    UnoDocument& operator=(const UnoDocument&) = delete;

    void connect();
    void add();
    /// A file that the word processor reads. Error 53 where it does not.
    void openFile(const QString& file);
    void insertAfter(const QString& text);
    void addPicture(const QString& file);
    /// Moves a picture right and down, in points.
    void move(const QString& name, int right, int down);
    void saveAs(const QString& file);
    void close();
    /// Closes what is open and ends the word processor, by force where it must be.
    void end() noexcept;

private:
    struct Uno;
    std::unique_ptr<Uno> uno_;
};

} // namespace ferna::writer
