#pragma once

#include <QtGlobal>

/// Numbers of the EMF format, as far as reports need them. All fields are little-endian.
namespace ferna::emf {

enum Type : quint32 {
    Header = 1,
    PolyPolygon = 8,
    SetWindowExtEx = 9,
    SetWindowOrgEx = 10,
    SetViewportExtEx = 11,
    SetViewportOrgEx = 12,
    Eof = 14,
    SetMapMode = 17,
    SetBkMode = 18,
    SetPolyFillMode = 19,
    SetStretchBltMode = 21,
    SetTextAlign = 22,
    SetTextColor = 24,
    MoveToEx = 27,
    SelectObject = 37,
    CreatePen = 38,
    CreateBrushIndirect = 39,
    DeleteObject = 40,
    Rectangle = 43,
    LineTo = 54,
    StretchDiBits = 81,
    ExtCreateFontIndirectW = 82,
    ExtTextOutW = 84,
    ExtCreatePen = 95,
};

inline constexpr quint32 signature = 0x464D4520; // " EMF"

inline constexpr quint32 stockObject = 0x80000000;
inline constexpr quint32 whiteBrush = stockObject | 0;
inline constexpr quint32 blackBrush = stockObject | 4;
inline constexpr quint32 nullBrush = stockObject | 5;
inline constexpr quint32 blackPen = stockObject | 7;
inline constexpr quint32 nullPen = stockObject | 8;

inline constexpr quint32 mapModeText = 1;
inline constexpr quint32 fillAlternate = 1;
inline constexpr quint32 fillWinding = 2;
inline constexpr quint32 backgroundTransparent = 1;
inline constexpr quint32 stretchHalftone = 4;
inline constexpr quint32 alignBaseline = 24;

inline constexpr quint32 penGeometric = 0x10000;
inline constexpr quint32 penNull = 5;
inline constexpr quint32 penStyleMask = 0xF;
inline constexpr quint32 capMask = 0xF00;
inline constexpr quint32 capRound = 0x000;
inline constexpr quint32 capSquare = 0x100;
inline constexpr quint32 capFlat = 0x200;
inline constexpr quint32 joinMiter = 0x2000;

inline constexpr quint32 sourceCopy = 0x00CC0020; // raster operation

} // namespace ferna::emf
