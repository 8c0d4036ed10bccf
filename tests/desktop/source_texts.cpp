#include "desktop/source_texts.h"

#include "support/places.h"

#include <QDirIterator>

namespace ferna::testing {

namespace {

class Reader {
public:
    explicit Reader(const QString& source) : source_(source) {}

    std::vector<Token> read() {
        while (position_ < source_.size()) {
            const QChar c = source_[position_];
            if (source_.mid(position_, 2) == u"//")
                skipTo(u"\n");
            else if (source_.mid(position_, 2) == u"/*")
                skipTo(u"*/");
            else if (c == u'"')
                text();
            else if (c == u'\'')
                character();
            else if (c.isLetterOrNumber() || c == u'_')
                name();
            else if (!c.isSpace())
                other(c);
            else
                ++position_;
        }
        return tokens_;
    }

private:
    void skipTo(QStringView end) {
        const qsizetype at = source_.indexOf(end, position_);
        position_ = at < 0 ? source_.size() : at + end.size();
    }

    void text() {
        QString says;
        for (++position_; position_ < source_.size() && source_[position_] != u'"'; ++position_) {
            if (source_[position_] != u'\\') {
                says += source_[position_];
                continue;
            }
            const QChar escaped = source_[++position_];
            says += escaped == u'n' ? u'\n' : escaped == u'r' ? u'\r' : escaped;
        }
        ++position_;
        if (!tokens_.empty() && tokens_.back().kind == Token::Kind::Text)
            tokens_.back().text += says;
        else
            tokens_.push_back({Token::Kind::Text, says});
    }

    void character() {
        const qsizetype from =
            source_.mid(position_ + 1, 1) == u"\\" ? position_ + 3 : position_ + 2;
        const qsizetype end = source_.indexOf(u'\'', from);
        position_ = end < 0 ? source_.size() : end + 1;
        tokens_.push_back({Token::Kind::Other, QStringLiteral("'")});
    }

    void name() {
        const qsizetype start = position_;
        const bool number = source_[start].isDigit(); // may hold ' between its digits
        while (position_ < source_.size()
               && (source_[position_].isLetterOrNumber() || source_[position_] == u'_'
                   || (number && source_[position_] == u'\'')))
            ++position_;
        const QString word = source_.mid(start, position_ - start);
        const bool prefixOfAText = position_ < source_.size()
                                   && (source_[position_] == u'"' || source_[position_] == u'\'')
                                   && (word == u"u" || word == u"u8" || word == u"L");
        if (!prefixOfAText)
            tokens_.push_back({Token::Kind::Name, word});
    }

    void other(QChar c) {
        tokens_.push_back({Token::Kind::Other, QString(c)});
        ++position_;
    }

    const QString& source_;
    qsizetype position_ = 0;
    std::vector<Token> tokens_;
};

bool opens(const Token& token) {
    return token.kind == Token::Kind::Other && (token.text == u"(" || token.text == u"{");
}

bool closes(const Token& token) {
    return token.kind == Token::Kind::Other && (token.text == u")" || token.text == u"}");
}

} // namespace

std::vector<Token> tokensOf(const QString& source) {
    return Reader(source).read();
}

QStringList textsOf(const std::vector<Token>& tokens) {
    QStringList texts;
    for (const Token& token : tokens)
        if (token.kind == Token::Kind::Text)
            texts += token.text;
    return texts;
}

QStringList textsHandedTo(const std::vector<Token>& tokens, const QStringList& names) {
    QStringList texts;
    for (std::size_t i = 0; i + 1 < tokens.size(); ++i) {
        if (tokens[i].kind != Token::Kind::Name || !names.contains(tokens[i].text)
            || !opens(tokens[i + 1]))
            continue;
        int depth = 0;
        for (std::size_t j = i + 1; j < tokens.size(); ++j) {
            depth += opens(tokens[j]) ? 1 : closes(tokens[j]) ? -1 : 0;
            if (depth == 0)
                break;
            if (tokens[j].kind == Token::Kind::Text)
                texts += tokens[j].text;
        }
    }
    return texts;
}

QStringList sourceFiles() {
    QStringList files;
    QDirIterator walk(places::source("/src"),
                      {QStringLiteral("*.cpp"), QStringLiteral("*.h"), QStringLiteral("*.ui")},
                      QDir::Files, QDirIterator::Subdirectories);
    while (walk.hasNext())
        files += walk.next();
    return files;
}

} // namespace ferna::testing
