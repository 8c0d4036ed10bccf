#pragma once

#include <array>

namespace ferna {

/// What a check of the plate takes in the plate section of the report.
struct PlateBlockForm {
    int check;          ///< 1..8
    int lines;          ///< lines of the section
    int image;          ///< delivered picture 1..7 of its sketch; 0: no sketch
    const char* sketch; ///< file name of its sketch in the report; empty where there is none
};

/// The blocks in the order of the section.
inline constexpr std::array<PlateBlockForm, 8> plateBlockForms{{
    {1, 4, 1, "Szkic1.bmp"},
    {2, 4, 2, "Szkic2.bmp"},
    {3, 5, 3, "Szkic31.bmp"},
    {4, 4, 0, ""},
    {5, 5, 4, "Szkic32.bmp"},
    {6, 5, 5, "Szkic33.bmp"},
    {7, 5, 6, "Szkic51.bmp"},
    {8, 6, 7, "Szkic52.bmp"}, // its last line is empty
}};

/// Lines of the section in front of its blocks: an empty one, the heading, an empty one.
inline constexpr int plateHeadLines = 3;

} // namespace ferna
