#include "sheet/texts.h"

#include <QFile>

#include <array>

namespace ferna::sheet {

namespace {

constexpr Integer withoutMarks = 1; // Polish in plain letters, made of the Polish texts

QString fileOf(Integer Nr_jezyka) {
    constexpr std::array<const char*, 5> names{"pl", "pl", "en", "fr", "de"};
    const auto number = static_cast<std::size_t>(Nr_jezyka);
    const char* const name = number < names.size() ? names[number] : names[0];
    return QStringLiteral(":/arkusz/%1.txt").arg(QString::fromLatin1(name));
}

} // namespace

QString withoutDiacritics(const QString& polish) {
    static const QString marked = QStringLiteral("ąćęłńóśźżĄĆĘŁŃÓŚŹŻ");
    static const QString plain = QStringLiteral("acelnoszzACELNOSZZ");
    QString text = polish;
    for (QChar& letter : text)
        if (const qsizetype at = marked.indexOf(letter); at >= 0)
            letter = plain[at];
    return text;
}

Texts::Texts(Integer Nr_jezyka) {
    QFile file(fileOf(Nr_jezyka));
    if (!file.open(QIODevice::ReadOnly))
        return;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
    for (const QString& line : lines) {
        const qsizetype equals = line.indexOf(u'=');
        if (equals <= 0 || line.startsWith(u'#'))
            continue;
        const QString text = line.mid(equals + 1).trimmed();
        texts_.insert(line.left(equals).trimmed(),
                      Nr_jezyka == withoutMarks ? withoutDiacritics(text) : text);
    }
}

QString Texts::operator()(const QString& key, const QStringList& arguments) const {
    QString text = texts_.value(key, key);
    // From the last place on, so that an argument with a percent sign is left alone.
    QString made;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool place = text[i] == u'%' && i + 1 < text.size() && text[i + 1].isDigit();
        const qsizetype number = place ? text[i + 1].digitValue() - 1 : -1;
        if (number >= 0 && number < arguments.size()) {
            made += arguments[number];
            ++i;
        } else {
            made += text[i];
        }
    }
    return made;
}

} // namespace ferna::sheet
