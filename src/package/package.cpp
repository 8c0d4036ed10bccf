#include "package/package.h"

#include "runtime/run_time_error.h"

#include <QXmlStreamWriter>

#include <zip.h>

#include <memory>

namespace ferna::package {

namespace {

[[noreturn]] void fail(const char* what) {
    throw RunTimeError(error::DeviceIO,
                       QStringLiteral("nie można złożyć dokumentu (%1)").arg(QLatin1String(what)));
}

/// Adds a part under the first day that a zip file knows: its own time would change the bytes.
void add(zip_t* archive, const Part& part) {
    constexpr zip_uint16_t midnight = 0;
    constexpr zip_uint16_t firstDay = 1U << 5U | 1U; // of 1980
    zip_source_t* source = zip_source_buffer(archive, part.bytes.constData(),
                                             static_cast<zip_uint64_t>(part.bytes.size()), 0);
    if (source == nullptr)
        fail(zip_strerror(archive));
    const zip_int64_t index =
        zip_file_add(archive, part.name.toUtf8().constData(), source, ZIP_FL_ENC_UTF_8);
    if (index < 0) {
        zip_source_free(source);
        fail(zip_strerror(archive));
    }
    const auto place = static_cast<zip_uint64_t>(index);
    zip_set_file_compression(archive, place, part.stored ? ZIP_CM_STORE : ZIP_CM_DEFLATE, 0);
    zip_file_set_dostime(archive, place, midnight, firstDay, 0);
}

QByteArray bytesOf(zip_source_t* target) {
    if (zip_source_open(target) < 0)
        fail("zip");
    zip_source_seek(target, 0, SEEK_END);
    QByteArray bytes(zip_source_tell(target), Qt::Uninitialized);
    zip_source_seek(target, 0, SEEK_SET);
    const zip_int64_t read =
        zip_source_read(target, bytes.data(), static_cast<zip_uint64_t>(bytes.size()));
    zip_source_close(target);
    if (read != bytes.size())
        fail("zip");
    return bytes;
}

} // namespace

QByteArray packed(const std::vector<Part>& parts) {
    zip_error_t problem;
    zip_error_init(&problem);
    const std::unique_ptr<zip_source_t, decltype(&zip_source_free)> target(
        zip_source_buffer_create(nullptr, 0, 0, &problem), &zip_source_free);
    if (target == nullptr)
        fail("zip");
    zip_source_keep(target.get()); // it outlives the archive
    std::unique_ptr<zip_t, decltype(&zip_discard)> archive(
        zip_open_from_source(target.get(), ZIP_TRUNCATE, &problem), &zip_discard);
    if (archive == nullptr)
        fail("zip");
    for (const Part& part : parts)
        add(archive.get(), part);
    if (zip_close(archive.get()) < 0)
        fail(zip_strerror(archive.get()));
    (void)archive.release(); // closed
    return bytesOf(target.get());
}

Xml::Xml() : writer_(std::make_unique<QXmlStreamWriter>(&bytes_)) {
    writer_->writeStartDocument();
}

Xml::~Xml() = default;

void Xml::element(const char* name, const Attributes& attributes,
                  const std::function<void()>& inside) {
    const QString element = QString::fromLatin1(name);
    if (inside)
        writer_->writeStartElement(element);
    else
        writer_->writeEmptyElement(element);
    for (const Attribute& attribute : attributes)
        writer_->writeAttribute(QString::fromLatin1(attribute.name), attribute.value);
    if (!inside)
        return;
    inside();
    writer_->writeEndElement();
}

void Xml::text(const QString& text) {
    writer_->writeCharacters(text);
}

QByteArray Xml::finish() {
    writer_->writeEndDocument();
    return bytes_;
}

QString decimal(double value) {
    constexpr int digits = 6;
    return QString::number(value, 'g', digits);
}

} // namespace ferna::package
