#pragma once

#include <QString>
#include <QStringList>

namespace ferna::wyd {

/// What was passed over while a report was read, one Polish line each: file, line, reason.
class Complaints {
public:
    void add(const QString& path, int line, const QString& what);
    const QStringList& lines() const { return lines_; }

private:
    QStringList lines_;
};

} // namespace ferna::wyd
