#pragma once

#include "pages/letter_widths.h"
#include "renderer/sample_report.h"

#include <QImage>
#include <QRectF>

#include <gtest/gtest.h>

namespace ferna::testing {

/// A report whose ink stands at known places: the frame, a text, an underlined one and a picture.
inline void sampleOfGeometry(SampleReport& sample) {
    QImage black(53, 35, QImage::Format_RGB32);
    black.fill(Qt::black);
    black.save(sample.path(QStringLiteral("czarny.bmp")));
    sample.projectName = QStringLiteral("HHHHHHHHHH");
    sample.raw(QStringLiteral("5, 10., 35., 52.9, 34.7"));
    sample.raw(sample.path(QStringLiteral("czarny.bmp")));
    sample.line(120, QStringLiteral("HHHHHHHHHH"));
    sample.underlined(130, QStringLiteral("HHHHHHHHHH"));
}

inline constexpr double inkPixelsPerMm = 10; // 254 dots per inch

/// What is dark within an area of an A4 sheet drawn with `inkPixelsPerMm`, all in mm on the sheet.
inline QRectF inkIn(const QImage& sheet, const QRectF& area) {
    int left = sheet.width();
    int top = sheet.height();
    int right = -1;
    int bottom = -1;
    const QRect pixels = QRectF(area.topLeft() * inkPixelsPerMm, area.size() * inkPixelsPerMm)
                             .toRect()
                             .intersected(sheet.rect());
    for (int y = pixels.top(); y <= pixels.bottom(); ++y)
        for (int x = pixels.left(); x <= pixels.right(); ++x)
            if (qGray(sheet.pixel(x, y)) < 128) {
                left = qMin(left, x);
                right = qMax(right, x);
                top = qMin(top, y);
                bottom = qMax(bottom, y);
            }
    if (right < 0)
        return {};
    return QRectF(QPointF(left, top) / inkPixelsPerMm,
                  QPointF(right + 1, bottom + 1) / inkPixelsPerMm);
}

inline void expectInk(const QImage& sheet, const QRectF& area, const QRectF& expected,
                      const char* what) {
    constexpr double near = 0.16; // mm: a pixel and a half
    const QRectF ink = inkIn(sheet, area);
    EXPECT_NEAR(ink.left(), expected.left(), near) << what << ", left";
    EXPECT_NEAR(ink.top(), expected.top(), near) << what << ", top";
    EXPECT_NEAR(ink.right(), expected.right(), near) << what << ", right";
    EXPECT_NEAR(ink.bottom(), expected.bottom(), near) << what << ", bottom";
}

/// Ten letters H from x on, `height` high, on the baseline y.
inline QRectF tenLetters(double x, double y, double height) {
    constexpr double sideBearing = 0.080; // of the letter's height, on either side of an H
    constexpr double capital = 0.688;
    const double width = drawing::textWidth(u"HHHHHHHHHH", height);
    return {x + sideBearing * height, y - capital * height, width - 2 * sideBearing * height,
            capital * height};
}

/// The sample on its sheet: frame from 20 mm and 5 mm, body from 27 mm, everything at 100 %.
inline void expectGeometryOfTheSample(const QImage& drawn) {
    QImage sheet = drawn.convertToFormat(QImage::Format_RGB32);
    ASSERT_NEAR(sheet.width(), 210 * inkPixelsPerMm, 2);
    ASSERT_NEAR(sheet.height(), 297 * inkPixelsPerMm, 2);
    constexpr double pen = 0.5 * 25.4 / 72; // mm
    const QRectF frame(20, 5, 177, 30);
    expectInk(sheet, {18, 8, 5, 5}, {frame.left() - pen / 2, 8, pen, 5}, "left rule");
    expectInk(sheet, {195, 8, 4, 5}, {frame.right() - pen / 2, 8, pen, 5}, "right rule");
    expectInk(sheet, {60, 3, 20, 3}, {60, frame.top() - pen / 2, 20, pen}, "upper rule");
    expectInk(sheet, {60, 33, 20, 4}, {60, frame.bottom() - pen / 2, 20, pen}, "lower rule");
    expectInk(sheet, {60, 19, 20, 2}, {60, 20 - pen / 2, 20, pen}, "middle rule");
    expectInk(sheet, {161, 22, 4, 5}, {163 - pen / 2, 22, pen, 5}, "divider");
    expectInk(sheet, {21, 20.5, 100, 4.5}, tenLetters(23, 24, 3.5), "the project's name");
    EXPECT_NEAR(inkIn(sheet, {164, 24, 30, 6}).left(), 167.2, 0.2) << "page number";
    EXPECT_NEAR(inkIn(sheet, {164, 24, 30, 6}).bottom(), 28.5, 0.2) << "page number";
    expectInk(sheet, {22, 37, 100, 45}, {30, 40, 52.9, 34.7}, "picture");
    expectInk(sheet, {21, 121, 100, 6}, tenLetters(27, 125, 3.2), "body line");
    expectInk(sheet, {21, 131, 100, 4.1}, tenLetters(27, 135, 3.2), "underlined line");
    constexpr double rule = 0.06 * 3.2;
    expectInk(sheet, {21, 135.2, 100, 2},
              {27, 135 + 0.13 * 3.2 - rule / 2, drawing::textWidth(u"HHHHHHHHHH", 3.2), rule},
              "underline");
}

} // namespace ferna::testing
