#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <memory>
#include <vector>

class QXmlStreamWriter;

namespace ferna::package {

/// A file of a document's package.
struct Part {
    QString name;
    QByteArray bytes;
    bool stored = false; ///< not compressed
};

/// The parts as one zip file, in their order, without times of their own. Error 57.
QByteArray packed(const std::vector<Part>& parts);

/// An XML document with names as they stand ("text:p").
class Xml {
public:
    struct Attribute {
        const char* name;
        QString value;
    };
    using Attributes = std::vector<Attribute>;

    Xml();
    ~Xml();

    /// An element; `inside` writes what is in it.
    void element(const char* name, const Attributes& attributes = {},
                 const std::function<void()>& inside = {});
    void text(const QString& text);
    /// The finished document.
    QByteArray finish();

private:
    QByteArray bytes_;
    std::unique_ptr<QXmlStreamWriter> writer_;
};

/// A number as XML takes it, with a point.
QString decimal(double value);

} // namespace ferna::package
