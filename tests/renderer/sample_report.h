#pragma once

#include <QString>
#include <QStringList>

namespace ferna::testing {

/// Writes command files as the program does, with pictures of their own, into a folder.
class SampleReport {
public:
    explicit SampleReport(QString folder);

    QString jobPath() const { return path(QStringLiteral("W_KK.txt")); }
    QString path(const QString& name) const;

    // The body, in the program's record forms; y as a number with one decimal.
    void line(double y, const QString& text);
    void underlined(double y, const QString& text);
    /// A sentence that ends in omega with a subscript and goes on behind it.
    void exceedance(double y, const QString& text, const QString& value);
    void picture(double x, double y, double width, double height, const QString& file);
    /// Any record or text as it stands.
    void raw(const QString& text) { body_ += text; }
    void newPage(); ///< record 10 and the frame again

    /// The two fixed pictures and body lines as for that many anchors and cases; the next y.
    double calculation(int anchors, int cases, int resultLines);
    /// The plate section from y on with the blocks of that set (1 to 8); the next y.
    double plateSection(double y, const QList<int>& blocks);
    double anchorSection(double y);

    /// Writes both command files and the job; the path of the job.
    QString write(const QString& mode, int firstPage) const;

    QString projectName = QStringLiteral("Hala magazynowa – Żółkiew, oś B/7");
    QStringList frame(int page) const;

private:
    void makePicture(const QString& file, double width, double height) const;

    QString folder_;
    QStringList body_;
};

} // namespace ferna::testing
