#include "sheet/html_writer.h"

#include "sheet/html_math.h"

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QPainter>

#include <set>

namespace ferna::sheet {

namespace {

/// The value with all its digits.
QString fullValue(double value) {
    constexpr int allDigits = 17;
    return QString::number(value, 'g', allDigits);
}

QString attribute(const char* name, const QString& value) {
    return QStringLiteral(" data-%1=\"%2\"").arg(QLatin1String(name), value.toHtmlEscaped());
}

QByteArray pngOf(const Picture& picture) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    imageOf(picture).save(&buffer, "PNG");
    return bytes;
}

class HtmlWriter {
public:
    HtmlWriter(const Sheet& sheet, HtmlPictures pictures) : sheet_(sheet), pictures_(pictures) {}

    QByteArray all() {
        QFile style(QStringLiteral(":/arkusz/styl.css"));
        const QString css =
            style.open(QIODevice::ReadOnly) ? QString::fromUtf8(style.readAll()) : QString();
        html_ =
            QStringLiteral("<!DOCTYPE html>\n<html lang=\"%1\">\n<head>\n<meta charset=\"utf-8\">"
                           "\n<title>%2</title>\n<style>\n%3</style>\n</head>\n<body>\n")
                .arg(sheet_.language, sheet_.title, css);
        html_ += QStringLiteral("<h1>%1</h1>\n").arg(sheet_.title);
        write(sheet_.blocks);
        writeUnseen();
        html_ += QStringLiteral("<footer>%1</footer>\n</body>\n</html>\n").arg(sheet_.made);
        return html_.toUtf8();
    }

private:
    void write(const Blocks& blocks) {
        for (const Block& block : blocks)
            std::visit([this](const auto& one) { write(one); }, block);
    }

    void write(const Heading& heading) {
        html_ += QStringLiteral("<h%1>%2</h%1>\n").arg(heading.level + 1).arg(heading.text);
    }

    void write(const Paragraph& paragraph) {
        static constexpr std::array<const char*, 4> tones{"", " class=\"small\"",
                                                          " class=\"warning\"", " class=\"quote\""};
        html_ += QStringLiteral("<p%1>%2</p>\n")
                     .arg(QLatin1String(tones.at(static_cast<std::size_t>(paragraph.tone))),
                          paragraph.text);
    }

    void write(const Values& values) {
        QStringList parts;
        for (const Quantity* const number : values.numbers)
            parts += richSymbol(number->symbol) + QStringLiteral(" = ") + withUnit(*number);
        if (!parts.isEmpty())
            html_ += QStringLiteral("<p>%1</p>\n").arg(parts.join(QStringLiteral(",&emsp;")));
    }

    void write(const SignatureFields& fields) {
        html_ += QStringLiteral("<div class=\"sign\">");
        for (const QString& name : fields.names)
            html_ += QStringLiteral("<div>%1</div>").arg(rich(name));
        html_ += QStringLiteral("</div>\n");
    }

    void write(const Picture& picture) {
        if (!picture.painting || pictures_ == HtmlPictures::LeftOut)
            return;
        html_ +=
            QStringLiteral("<img alt=\"\" style=\"width:%1mm\" src=\"data:image/png;base64,%2\">\n")
                .arg(picture.width)
                .arg(QString::fromLatin1(pngOf(picture).toBase64()));
    }

    void write(const std::shared_ptr<const Beside>& beside) {
        const int share = static_cast<int>(100 * beside->leftShare);
        html_ += QStringLiteral("<div class=\"beside\">\n<div style=\"flex:%1\">\n").arg(share);
        write(beside->left);
        html_ += QStringLiteral("</div>\n<div style=\"flex:%1\">\n").arg(100 - share);
        write(beside->right);
        html_ += QStringLiteral("</div>\n</div>\n");
    }

    void write(const Equations& equations) {
        html_ += QStringLiteral("<table class=\"equations\">\n");
        if (equations.twoResults)
            html_ += QStringLiteral("<thead><tr><th></th><th></th><th>%1</th><th>%2</th><th></th>"
                                    "<th></th></tr></thead>\n")
                         .arg(sheet_.search, sheet_.exact);
        for (const Equation& row : equations.rows)
            writeRow(row, equations.twoResults);
        html_ += QStringLiteral("</table>\n");
    }

    void writeRow(const Equation& row, bool twoResults) {
        const Quantity* const told = row.result != nullptr ? row.result : row.exact;
        if (told == nullptr)
            return;
        QString way;
        if (told->formula && isWorthPrinting(*told->formula))
            way = QStringLiteral("= %1 = %2")
                      .arg(htmlFormula(*told->formula, Show::Symbols),
                           htmlFormula(*told->formula, Show::Values));
        html_ +=
            QStringLiteral("<tr><td>%1</td><td class=\"way\">%2</td><td class=\"result\">%3</td>")
                .arg(richSymbol(told->symbol), way,
                     row.result != nullptr ? withUnit(*row.result) : QString());
        if (twoResults)
            html_ += QStringLiteral("<td class=\"result\">%1</td>")
                         .arg(row.exact != nullptr ? withUnit(*row.exact) : QString());
        html_ += QStringLiteral("<td>%1</td><td class=\"source\">%2</td></tr>\n")
                     .arg(row.remark, rich(told->source));
    }

    void write(const Table& table) {
        html_ += QStringLiteral("<table>\n");
        if (!table.caption.isEmpty())
            html_ += QStringLiteral("<caption>%1</caption>\n").arg(table.caption);
        if (!table.head.empty()) {
            html_ += QStringLiteral("<thead>\n");
            for (const Row& row : table.head)
                writeCells(row, table, "th");
            html_ += QStringLiteral("</thead>\n");
        }
        for (const Row& row : table.rows)
            writeCells(row, table, "td");
        html_ += QStringLiteral("</table>\n");
    }

    void writeCells(const Row& row, const Table& table, const char* element) {
        html_ += QStringLiteral("<tr>");
        std::size_t column = 0;
        for (const Cell& cell : row) {
            static constexpr std::array<const char*, 3> aligns{"left", "right", "center"};
            const Column::Align align =
                cell.span > 1 ? Column::Align::Centre : table.columns.at(column).align;
            const QString name = QString::fromLatin1(element);
            html_ += QStringLiteral("<%1 style=\"text-align:%2\"%3>%4</%1>")
                         .arg(name, QLatin1String(aligns.at(static_cast<std::size_t>(align))),
                              cell.span > 1 ? QStringLiteral(" colspan=\"%1\"").arg(cell.span)
                                            : QString(),
                              contents(cell));
            column += static_cast<std::size_t>(cell.span);
        }
        html_ += QStringLiteral("</tr>\n");
    }

    QString contents(const Cell& cell) {
        const QString text = cell.number != nullptr ? element(*cell.number) : cell.text;
        return cell.strong ? QStringLiteral("<b>%1</b>").arg(text) : text;
    }

    QString withUnit(const Quantity& number) {
        const QString text = element(number);
        return number.unit.isEmpty() ? text : text + QChar(0x202F) + rich(number.unit);
    }

    /// The number in its element; where it is shown again, a reference to that.
    QString element(const Quantity& number) {
        const QString owner = attribute("case", QString::number(number.caseNumber));
        if (!written_.insert(&number).second)
            return QStringLiteral("<span%1%2>%3</span>")
                .arg(owner, attribute("ref", number.id), htmlNumber(number.text));
        QString attributes = owner + attribute("symbol", number.id)
                             + attribute("value", fullValue(number.value))
                             + attribute("unit", number.unit);
        if (number.formula)
            attributes += attribute("formula", programText(*number.formula));
        if (!number.source.isEmpty())
            attributes += attribute("clause", number.source);
        return QStringLiteral("<span%1>%2</span>").arg(attributes, htmlNumber(number.text));
    }

    /// Numbers that no block shows, as the shares of single anchors in a sum: they take part, so
    /// they stand in a list at the end.
    void writeUnseen() {
        QString list;
        for (const auto& number : sheet_.numbers)
            if (written_.count(number.get()) == 0)
                list += QStringLiteral("<li>%1 = %2</li>\n")
                            .arg(richSymbol(number->symbol), withUnit(*number));
        if (!list.isEmpty())
            html_ += QStringLiteral("<ul class=\"steps\">\n%1</ul>\n").arg(list);
    }

    const Sheet& sheet_;
    HtmlPictures pictures_;
    QString html_;
    std::set<const Quantity*> written_;
};

} // namespace

QImage imageOf(const Picture& picture) {
    constexpr double dotsPerMm = 12;
    QImage image((QSizeF(picture.width, picture.height) * dotsPerMm).toSize(),
                 QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(dotsPerMm, dotsPerMm);
    (*picture.painting)(painter);
    return image;
}

QByteArray htmlOf(const Sheet& sheet, HtmlPictures pictures) {
    return HtmlWriter(sheet, pictures).all();
}

} // namespace ferna::sheet
