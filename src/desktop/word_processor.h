#pragma once

#include <QString>

#include <chrono>
#include <memory>
#include <optional>

namespace ferna {

/// A word processor as the report uses it: one hidden document, text at its end, floating pictures
/// that are moved from the place where they land. Destroyed, it leaves no document open and nothing
/// running. Every call can fail with error 429, where the word processor cannot be started, has
/// ended or does not answer; after a failure only the destructor is left to call.
class WordProcessor {
public:
    virtual ~WordProcessor() = default;

    /// Gets a running word processor, or starts one.
    virtual void getOrCreate() = 0;
    /// Opens the document that the further calls are about.
    virtual void Documents_Add() = 0;
    /// The same with a file for its content. Error 53 for one that cannot be opened.
    virtual void Documents_Open(const QString& FileName) = 0;

    /// Text at the end of the document. Carriage return and line feed, or carriage return alone,
    /// end a paragraph; a form feed is a page break.
    virtual void InsertAfter(const QString& Text) = 0;
    /// A floating picture at the start of the document's text. The pictures are named "Picture 2",
    /// "Picture 3" and so on in their order. Error 53, or 57 for a file that is no picture.
    virtual void AddPicture(const QString& FileName, bool LinkToFile, bool SaveWithDocument) = 0;
    /// Moves a picture down, or to the right, in points. Error 9 for a name that there is not.
    virtual void IncrementTop(const QString& name, int shift) = 0;
    virtual void IncrementLeft(const QString& name, int shift) = 0;
    /// Looks a place of the document up; an empty `what` and `which` leave it to the word
    /// processor.
    virtual void GoTo(std::optional<int> what, std::optional<int> which, int Count) = 0;

    /// Saves the document; the ending chooses the format: ".odt", ".docx", else that of ".doc". An
    /// existing file is replaced whole or not at all. Errors of `writeFileWhole`.
    virtual void SaveAs(const QString& FileName) = 0;
    virtual void Close() = 0;
};

/// Where a word processor is looked for, and how long it is waited for.
struct WordProcessorPlace {
    QString module;  ///< the module that drives it; empty: beside the program, else installed
    QString program; ///< folder of its executable; empty: where it is installed
    std::chrono::milliseconds startLimit{60'000};
    std::chrono::milliseconds callLimit{60'000}; ///< of one call; saving included
};

/// The installed word processor. Error 429 where there is none or its module is missing; the detail
/// says what to install.
std::unique_ptr<WordProcessor> openWordProcessor(const WordProcessorPlace& place = {});

/// Error 429 that says what to install, behind `reason`.
[[noreturn]] void noWordProcessor(const QString& reason);

/// What the module exports under `wordProcessorFactory`.
using WordProcessorFactory = WordProcessor* (*)(const WordProcessorPlace&);
inline constexpr const char* wordProcessorFactory = "ferna_word_processor";

} // namespace ferna
