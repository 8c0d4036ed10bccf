#pragma once

#include <QString>

#include <gtest/gtest.h>

#include <ostream>

// GoogleTest prints Qt texts as text.
QT_BEGIN_NAMESPACE
inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}
QT_END_NAMESPACE
