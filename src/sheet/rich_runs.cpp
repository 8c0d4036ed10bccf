#include "sheet/rich_runs.h"

#include <algorithm>
#include <array>

namespace ferna::sheet {

namespace {

/// What is switched on at a place of the text.
struct Switches {
    int italic = 0;
    int bold = 0;
    int below = 0;
    int above = 0;

    void turn(QStringView name, int step) {
        if (name == u"i")
            italic += step;
        else if (name == u"b")
            bold += step;
        else if (name == u"sub")
            below += step;
        else if (name == u"sup")
            above += step;
    }
    RichRun run(const QString& text) const {
        return {text, italic > 0, bold > 0, below > 0, above > 0};
    }
};

QString withoutEntities(QString text) {
    return text.replace(QStringLiteral("&lt;"), QStringLiteral("<"))
        .replace(QStringLiteral("&gt;"), QStringLiteral(">"))
        .replace(QStringLiteral("&quot;"), QStringLiteral("\""))
        .replace(QStringLiteral("&amp;"), QStringLiteral("&"));
}

bool isTag(QStringView name) {
    static constexpr std::array<QStringView, 9> known{u"i",    u"/i",  u"b",    u"/b", u"sub",
                                                      u"/sub", u"sup", u"/sup", u"br/"};
    return std::find(known.begin(), known.end(), name) != known.end();
}

} // namespace

std::vector<RichRun> runsOf(const Rich& text) {
    std::vector<RichRun> runs;
    Switches on;
    QString letters;
    const auto flush = [&] {
        if (!letters.isEmpty())
            runs.push_back(on.run(withoutEntities(letters)));
        letters.clear();
    };
    for (qsizetype i = 0; i < text.size(); ++i) {
        const qsizetype end = text[i] == u'<' ? text.indexOf(u'>', i) : -1;
        const QStringView name =
            end > 0 ? QStringView(text).sliced(i + 1, end - i - 1) : QStringView();
        if (end < 0 || !isTag(name)) {
            letters += text[i];
            continue;
        }
        flush();
        if (name == u"br/")
            runs.push_back({QString(QChar(QChar::LineSeparator))});
        else if (name.startsWith(u'/'))
            on.turn(name.sliced(1), -1);
        else
            on.turn(name, 1);
        i = end;
    }
    flush();
    return runs;
}

} // namespace ferna::sheet
