#pragma once

#include "runtime/typed_value.h"

#include <QString>

#include <exception>
#include <string>

namespace ferna {

/// The classic numbers of the run-time errors that the program can meet.
namespace error {
inline constexpr int InvalidCall = 5;     ///< also the root of a negative number
inline constexpr int Overflow = 6;        ///< also a value that is not finite
inline constexpr int Subscript = 9;       ///< an index outside its array
inline constexpr int DivisionByZero = 11; ///< whatever the dividend
inline constexpr int TypeMismatch = 13;   ///< a text that is not a number
inline constexpr int Internal = 51;       ///< a state that cannot be
inline constexpr int BadFileName = 52;
inline constexpr int FileNotFound = 53;
inline constexpr int DeviceIO = 57; ///< reading or writing failed, a damaged file
inline constexpr int DiskFull = 61;
inline constexpr int InputPastEnd = 62; ///< a file or a line of it is too short
inline constexpr int PermissionDenied = 70;
inline constexpr int PathAccess = 75;
inline constexpr int PathNotFound = 76;
inline constexpr int NoObject = 429;    ///< another program cannot be started
inline constexpr int Cancelled = 32755; ///< a file question was cancelled
} // namespace error

/// Polish text of a run-time error, as the stop of a form shows it; never empty.
QString errorText(int number);

/// English text of a run-time error, for the results of the batch companion; never empty.
QString errorTextEnglish(int number);

/// A run-time error that ends the command under way. `detail` says what was met and where
/// (a file with its line, a field); it is shown behind the text of the number.
class RunTimeError : public std::exception {
public:
    explicit RunTimeError(int number, QString detail = {});

    int number() const noexcept { return number_; }
    const QString& detail() const noexcept { return detail_; }
    /// The typed value that could not be taken; `Value::None` where it was none.
    const TypedValue& value() const noexcept { return value_; }
    void setValue(const TypedValue& value) noexcept { value_ = value; }
    /// Which value of the task was at fault, by its key ("Przypadki[0].N"); empty where none is
    /// known.
    const std::string& key() const noexcept { return key_; }
    /// The same error with the key of the value at fault, unless it has one already.
    RunTimeError of(const std::string& key) const;
    /// Polish: the text of the number, and behind a colon the detail where there is one.
    QString text() const;
    const char* what() const noexcept override { return what_.c_str(); }

private:
    int number_;
    QString detail_;
    TypedValue value_;
    std::string what_;
    std::string key_;
};

/// Takes a typed value; an error that this raises tells which it was. Gives what `take` gives.
template <typename Take>
decltype(auto) taking(const TypedValue& value, const Take& take) {
    try {
        return take();
    } catch (RunTimeError& failure) {
        if (failure.value().value == Value::None)
            failure.setValue(value);
        throw;
    }
}

} // namespace ferna
