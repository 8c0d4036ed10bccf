#pragma once

#include "renderer/layout.h"
#include "support/printing.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace ferna::testing {

/// Where a text stands: page index and baseline, mm. Page -1 where no page has it.
struct Place {
    int page = -1;
    QPointF baseline;
};

inline Place find(const pages::Report& report, const QString& text) {
    for (std::size_t i = 0; i < report.pages.size(); ++i)
        for (const pages::Text& candidate : report.pages[i].texts)
            if (candidate.text.startsWith(text))
                return {static_cast<int>(i), candidate.baseline};
    return {};
}

inline int count(const pages::Page& page, const QString& text) {
    int found = 0;
    for (const pages::Text& candidate : page.texts)
        found += candidate.text.startsWith(text) ? 1 : 0;
    return found;
}

/// The rules of the page, for every page: no line from 225 on, no picture past 290, no picture over
/// another, over a text or over the frame, nothing off the sheet.
inline void expectGoodPages(const pages::Report& report) {
    constexpr double hair = 0.011; // mm
    const auto overlap = [](const QRectF& a, const QRectF& b) {
        const QRectF common = a & b;
        return common.width() > hair && common.height() > hair;
    };
    const QRectF frame(0, 0, 177, 30);
    const QRectF onSheet(-20, -5, 210, 297);
    for (const pages::Page& page : report.pages) {
        SCOPED_TRACE("page " + std::to_string(page.number));
        for (const pages::Text& text : page.texts) {
            EXPECT_TRUE(onSheet.contains(text.box())) << text.text.toStdString();
            if (text.baseline.y() > frame.bottom()) {
                EXPECT_LT(text.baseline.y(), 225 + 1) << text.text.toStdString(); // a subscript
            }
        }
        for (std::size_t i = 0; i < page.pictures.size(); ++i) {
            const QRectF rect = page.pictures[i].rect;
            EXPECT_LE(rect.bottom(), 290 + hair);
            EXPECT_TRUE(onSheet.contains(rect));
            EXPECT_FALSE(overlap(rect, frame)) << "picture " << i << " over the frame";
            for (std::size_t j = 0; j < i; ++j)
                EXPECT_FALSE(overlap(rect, page.pictures[j].rect)) << i << " over " << j;
            for (const pages::Text& text : page.texts)
                EXPECT_FALSE(overlap(rect, text.box()))
                    << "picture " << i << " over " << text.text.toStdString();
        }
    }
}

} // namespace ferna::testing
