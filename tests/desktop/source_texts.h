#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/// Reads the texts out of C++ sources, as far as the test of the help's messages needs it.
namespace ferna::testing {

/// A piece of a source: a name, a text between double quotes, or one other character.
struct Token {
    enum class Kind { Name, Text, Other };
    Kind kind;
    QString text; ///< of a text: what it says, escapes resolved; neighbouring texts are joined
};

/// The tokens of a source without its comments.
std::vector<Token> tokensOf(const QString& source);

/// All texts of a source.
QStringList textsOf(const std::vector<Token>& tokens);

/// The texts handed to the calls (or initialisers) of the given names, nested ones included.
QStringList textsHandedTo(const std::vector<Token>& tokens, const QStringList& names);

/// Paths of all .cpp, .h and .ui files under src/.
QStringList sourceFiles();

} // namespace ferna::testing
