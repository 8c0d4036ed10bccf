#pragma once

#include <QChar>
#include <QString>
#include <QStringList>

#include <optional>
#include <string>
#include <variant>

namespace ferna::batch {

/// What the command line asks for.
struct Options {
    QString catalogue;                ///< --katalog
    std::optional<QChar> decimalSign; ///< --dziesietny; the locale's without it
    QStringList reports;              ///< --raport, in order
    QStringList sheets;               ///< --arkusz, in order
    QStringList views;                ///< --podglad, in order
    QString result;                   ///< --wynik; standard output without it
    bool lines = false;               ///< --linie
    QString combinations;             ///< --kombinacje: a file, or "-" for standard input
    bool capacity = false;            ///< --nosnosc
    QString range;                    ///< --dobierz: the file of the range
    int threads = 1;                  ///< --watki
    QString task;                     ///< the task file of a single run; of "-" standard input's
};

/// Text to print and the exit code to leave with.
struct Leave {
    std::string text;
    int exitCode;
};

/// Reads the arguments behind the program's name.
std::variant<Options, Leave> readOptions(const QStringList& arguments);

} // namespace ferna::batch
