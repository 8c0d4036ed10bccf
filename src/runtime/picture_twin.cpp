#include "runtime/picture_twin.h"

#include <xxhash.h>

#include <new>

namespace ferna {

namespace {

PictureSum sumOf(const QByteArray& bitmap) {
    PictureSum sum;
    sum.add(bitmap);
    return sum;
}

} // namespace

QString twinPath(const QString& bitmap) {
    const qsizetype point = bitmap.lastIndexOf(u'.');
    return bitmap.first(point < 0 ? bitmap.size() : point) + QStringLiteral(".svg");
}

void PictureSum::Free::operator()(XXH3_state_s* state) const {
    XXH3_freeState(state);
}

PictureSum::PictureSum() : state_(XXH3_createState()) {
    if (state_ == nullptr)
        throw std::bad_alloc();
    XXH3_128bits_reset(state_.get());
}

void PictureSum::add(QByteArrayView bytes) {
    XXH3_128bits_update(state_.get(), bytes.data(), static_cast<std::size_t>(bytes.size()));
}

QByteArray PictureSum::mark() const {
    XXH128_canonical_t sum;
    XXH128_canonicalFromHash(&sum, XXH3_128bits_digest(state_.get()));
    return "<!-- xxh128 "
           + QByteArray(reinterpret_cast<const char*>(sum.digest), sizeof sum.digest).toHex()
           + " -->\n";
}

QByteArray twinOf(const QByteArray& svg, const QByteArray& bitmap) {
    return svg + sumOf(bitmap).mark();
}

bool isTwinOf(const QByteArray& svg, const PictureSum& bitmap) {
    return svg.endsWith(bitmap.mark());
}

bool isTwinOf(const QByteArray& svg, const QByteArray& bitmap) {
    return isTwinOf(svg, sumOf(bitmap));
}

} // namespace ferna
