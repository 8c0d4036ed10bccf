#include "runtime/run_time_error.h"

#include <array>
#include <utility>

namespace ferna {

namespace {

struct ErrorName {
    int number;
    const char* polish;
    const char* english;
};

constexpr std::array errorNames{
    ErrorName{error::InvalidCall, "Nieprawidłowe wywołanie funkcji lub jej argument",
              "Invalid procedure call or argument"},
    ErrorName{error::Overflow, "Przepełnienie - liczba poza zakresem", "Overflow"},
    ErrorName{error::Subscript, "Indeks poza zakresem tablicy", "Subscript out of range"},
    ErrorName{error::DivisionByZero, "Dzielenie przez zero", "Division by zero"},
    ErrorName{error::TypeMismatch, "Podany ciąg znaków nie tworzy liczby", "Type mismatch"},
    ErrorName{error::Internal, "Błąd wewnętrzny programu", "Internal error"},
    ErrorName{error::BadFileName, "Niewłaściwa nazwa pliku", "Bad file name"},
    ErrorName{error::FileNotFound, "Nie znaleziono pliku", "File not found"},
    ErrorName{error::DeviceIO, "Błąd odczytu lub zapisu", "Device I/O error"},
    ErrorName{error::DiskFull, "Dysk jest pełny", "Disk full"},
    ErrorName{error::InputPastEnd, "Brak dalszych danych w pliku", "Input past end of file"},
    ErrorName{error::PermissionDenied, "Brak prawa dostępu", "Permission denied"},
    ErrorName{error::PathAccess, "Błąd dostępu do ścieżki lub pliku", "Path/File access error"},
    ErrorName{error::PathNotFound, "Nie znaleziono ścieżki", "Path not found"},
    ErrorName{error::NoObject, "Nie można uruchomić innego programu",
              "Another program cannot be started"},
    ErrorName{error::Cancelled, "Wybór pliku został anulowany", "The file question was cancelled"},
};

const ErrorName* find(int number) {
    for (const ErrorName& name : errorNames)
        if (name.number == number)
            return &name;
    return nullptr;
}

} // namespace

QString errorText(int number) {
    const ErrorName* name = find(number);
    return name ? QString::fromUtf8(name->polish) : QStringLiteral("Nieznany błąd");
}

QString errorTextEnglish(int number) {
    const ErrorName* name = find(number);
    return name ? QString::fromUtf8(name->english) : QStringLiteral("Unknown error");
}

RunTimeError::RunTimeError(int number, QString detail)
    : number_(number), detail_(std::move(detail)),
      what_("run-time error " + std::to_string(number) + ": " + text().toStdString()) {}

RunTimeError RunTimeError::of(const std::string& key) const {
    RunTimeError known = *this;
    if (known.key_.empty())
        known.key_ = key;
    return known;
}

QString RunTimeError::text() const {
    return detail_.isEmpty() ? errorText(number_)
                             : errorText(number_) + QStringLiteral(": ") + detail_;
}

} // namespace ferna
