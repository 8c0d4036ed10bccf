#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace ferna {

/// What the renderer tells the program that started it while it works, a line each on its standard
/// output: that it opens and closes a window of its own, and which files it has written. It tells
/// only where the environment variable `variable` is set; its value is the number of the window of
/// the program over which its own windows stand, 0 for none.
namespace news {
inline constexpr const char* variable = "WYD_DRK_OKNO";

QByteArray windowOpens();
QByteArray windowCloses();
QByteArray fileWritten(const QString& path);
} // namespace news

/// The news read so far.
class RendererNews {
public:
    /// Takes what has come on the standard output, also where a line is cut. Other lines are passed
    /// over.
    void read(const QByteArray& output);

    bool showsWindow() const { return windows_ > 0; }
    const QStringList& written() const { return written_; }

private:
    void readLine(const QByteArray& line);

    QByteArray begun_; ///< line whose end has not come yet
    int windows_ = 0;
    QStringList written_;
};

} // namespace ferna
