#include "support/places.h"

namespace places {

namespace {

QString path(const char* folder, const char* below) {
    return QString::fromUtf8(folder) + QString::fromUtf8(below);
}

} // namespace

QString data(const char* below) {
    return path(FERNA_SOURCE_DIR "/data", below);
}

QString golden(const char* below) {
    return path(FERNA_SOURCE_DIR "/tests/golden", below);
}

QString bin(const char* below) {
    return path(FERNA_BIN_DIR, below);
}

QString source(const char* below) {
    return path(FERNA_SOURCE_DIR, below);
}

} // namespace places
