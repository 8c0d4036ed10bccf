#pragma once

#include "runtime/numbers.h"

#include <QHash>
#include <QString>
#include <QStringList>

namespace ferna::sheet {

/// The texts of the sheet in one language, by key.
class Texts {
public:
    /// Language number 0..4 as in the design state; every other number is Polish.
    explicit Texts(Integer Nr_jezyka);

    /// The text of a key, %1, %2 ... being replaced by the arguments. The key itself where the
    /// language has no such text.
    QString operator()(const QString& key, const QStringList& arguments = {}) const;
    /// As HTML names the language: "pl".
    QString language() const { return (*this)(QStringLiteral("language")); }
    QStringList keys() const { return texts_.keys(); }

private:
    QHash<QString, QString> texts_;
};

/// A Polish text in the letters that Polish shares with English.
QString withoutDiacritics(const QString& polish);

} // namespace ferna::sheet
