#pragma once

#include <windef.h>

// Drawing into memory: device contexts, objects, text and bitmaps. Colours are 0x00BBGGRR. Texts are in the
// code page Windows-1252.

#define RGB(r, g, b)                                                                                    \
    (static_cast<COLORREF>(static_cast<BYTE>(r)) | (static_cast<COLORREF>(static_cast<BYTE>(g)) << 8) | \
     (static_cast<COLORREF>(static_cast<BYTE>(b)) << 16))
#define GetRValue(color) (static_cast<BYTE>(color))
#define GetGValue(color) (static_cast<BYTE>((color) >> 8))
#define GetBValue(color) (static_cast<BYTE>((color) >> 16))
#define CLR_INVALID 0xffffffffu

#define TRANSPARENT 1
#define OPAQUE 2

#define PS_SOLID 0
#define PS_NULL 5

#define BI_RGB 0
#define DIB_RGB_COLORS 0u
#define DIB_PAL_COLORS 1u

#define SRCCOPY 0x00CC0020u
#define PATCOPY 0x00F00021u
#define PATINVERT 0x005A0049u
#define DSTINVERT 0x00550009u

#define WHITE_BRUSH 0
#define LTGRAY_BRUSH 1
#define GRAY_BRUSH 2
#define DKGRAY_BRUSH 3
#define BLACK_BRUSH 4
#define NULL_BRUSH 5
#define WHITE_PEN 6
#define BLACK_PEN 7
#define NULL_PEN 8
#define SYSTEM_FONT 13
#define DEFAULT_GUI_FONT 17

#define OBJ_PEN 1
#define OBJ_BRUSH 2
#define OBJ_DC 3
#define OBJ_FONT 6
#define OBJ_BITMAP 7
#define OBJ_MEMDC 10

#define NULLREGION 1
#define SIMPLEREGION 2
#define COMPLEXREGION 3
#define RGN_ERROR 0

#define ETO_OPAQUE 0x2u
#define ETO_CLIPPED 0x4u

#define LF_FACESIZE 32
#define FW_NORMAL 400
#define FW_BOLD 700
#define ANSI_CHARSET 0
#define DEFAULT_CHARSET 1

#define LOGPIXELSX 88
#define LOGPIXELSY 90

typedef struct tagLOGFONTA {
    LONG lfHeight;
    LONG lfWidth;
    LONG lfEscapement;
    LONG lfOrientation;
    LONG lfWeight;
    BYTE lfItalic;
    BYTE lfUnderline;
    BYTE lfStrikeOut;
    BYTE lfCharSet;
    BYTE lfOutPrecision;
    BYTE lfClipPrecision;
    BYTE lfQuality;
    BYTE lfPitchAndFamily;
    CHAR lfFaceName[LF_FACESIZE];
} LOGFONTA, *LPLOGFONTA;

typedef struct tagTEXTMETRICA {
    LONG tmHeight;
    LONG tmAscent;
    LONG tmDescent;
    LONG tmInternalLeading;
    LONG tmExternalLeading;
    LONG tmAveCharWidth;
    LONG tmMaxCharWidth;
    LONG tmWeight;
    LONG tmOverhang;
    LONG tmDigitizedAspectX;
    LONG tmDigitizedAspectY;
    BYTE tmFirstChar;
    BYTE tmLastChar;
    BYTE tmDefaultChar;
    BYTE tmBreakChar;
    BYTE tmItalic;
    BYTE tmUnderlined;
    BYTE tmStruckOut;
    BYTE tmPitchAndFamily;
    BYTE tmCharSet;
} TEXTMETRICA, *LPTEXTMETRICA;

typedef struct tagBITMAP {
    LONG bmType;
    LONG bmWidth;
    LONG bmHeight;
    LONG bmWidthBytes;
    WORD bmPlanes;
    WORD bmBitsPixel;
    LPVOID bmBits;
} BITMAP;

typedef struct tagBITMAPINFOHEADER {
    DWORD biSize;
    LONG biWidth;
    LONG biHeight;
    WORD biPlanes;
    WORD biBitCount;
    DWORD biCompression;
    DWORD biSizeImage;
    LONG biXPelsPerMeter;
    LONG biYPelsPerMeter;
    DWORD biClrUsed;
    DWORD biClrImportant;
} BITMAPINFOHEADER;

typedef struct tagRGBQUAD {
    BYTE rgbBlue;
    BYTE rgbGreen;
    BYTE rgbRed;
    BYTE rgbReserved;
} RGBQUAD;

typedef struct tagBITMAPINFO {
    BITMAPINFOHEADER bmiHeader;
    RGBQUAD bmiColors[1];
} BITMAPINFO, *LPBITMAPINFO;

typedef struct tagDIBSECTION {
    BITMAP dsBm;
    BITMAPINFOHEADER dsBmih;
    DWORD dsBitfields[3];
    HANDLE dshSection;
    DWORD dsOffset;
} DIBSECTION;

extern "C" {

// A memory context; `like` is null or open, and not looked at. It holds a 1 by 1 bitmap at first.
WINGDIAPI HDC WINAPI CreateCompatibleDC(HDC like);
WINGDIAPI BOOL WINAPI DeleteDC(HDC dc);
// Differs: colours copied to or from a bitmap of one bit are black and white; the context's own do not count.
WINGDIAPI HBITMAP WINAPI CreateCompatibleBitmap(HDC like, int width, int height);

WINGDIAPI HGDIOBJ WINAPI SelectObject(HDC dc, HGDIOBJ object);
// An object that is selected somewhere is deleted as soon as it no longer is. Stock objects stay.
WINGDIAPI BOOL WINAPI DeleteObject(HGDIOBJ object);
// Differs: fonts and bitmaps only.
WINGDIAPI int WINAPI GetObjectA(HANDLE object, int size, LPVOID record);
WINGDIAPI DWORD WINAPI GetObjectType(HGDIOBJ object);
// Differs: those that are named above; null for others.
WINGDIAPI HGDIOBJ WINAPI GetStockObject(int index);
WINGDIAPI HGDIOBJ WINAPI GetCurrentObject(HDC dc, UINT type);

// Differs: solid pens and none; another style fails. A line wider than a pixel has square ends.
WINGDIAPI HPEN WINAPI CreatePen(int style, int width, COLORREF color);
WINGDIAPI HBRUSH WINAPI CreateSolidBrush(COLORREF color);
// Differs: every font is one typeface, slightly narrowed. Of the record height and weight count; weights from
// 600 on are bold.
WINGDIAPI HFONT WINAPI CreateFontIndirectA(const LOGFONTA* font);

WINGDIAPI int WINAPI SetBkMode(HDC dc, int mode);
WINGDIAPI COLORREF WINAPI SetBkColor(HDC dc, COLORREF color);
WINGDIAPI COLORREF WINAPI SetTextColor(HDC dc, COLORREF color);
WINGDIAPI COLORREF WINAPI GetBkColor(HDC dc);
WINGDIAPI COLORREF WINAPI GetTextColor(HDC dc);

// The last point of a line is not drawn.
WINGDIAPI BOOL WINAPI MoveToEx(HDC dc, int x, int y, LPPOINT former);
WINGDIAPI BOOL WINAPI LineTo(HDC dc, int x, int y);
WINGDIAPI COLORREF WINAPI SetPixel(HDC dc, int x, int y, COLORREF color);
WINGDIAPI COLORREF WINAPI GetPixel(HDC dc, int x, int y);
// Differs: the operations that are named above; others fail.
WINGDIAPI BOOL WINAPI PatBlt(HDC dc, int x, int y, int width, int height, DWORD operation);
WINGDIAPI BOOL WINAPI BitBlt(HDC to, int x, int y, int width, int height, HDC from, int fromX, int fromY,
                             DWORD operation);

WINGDIAPI BOOL WINAPI TextOutA(HDC dc, int x, int y, LPCSTR text, int length);
WINGDIAPI BOOL WINAPI ExtTextOutA(HDC dc, int x, int y, UINT options, const RECT* rect, LPCSTR text,
                                  UINT length, const INT* widths);
WINGDIAPI BOOL WINAPI GetTextExtentPoint32A(HDC dc, LPCSTR text, int length, LPSIZE size);
WINGDIAPI BOOL WINAPI GetTextMetricsA(HDC dc, LPTEXTMETRICA metrics);

WINGDIAPI int WINAPI IntersectClipRect(HDC dc, int left, int top, int right, int bottom);
WINGDIAPI int WINAPI GetClipBox(HDC dc, LPRECT box);
WINGDIAPI int WINAPI SaveDC(HDC dc);
WINGDIAPI BOOL WINAPI RestoreDC(HDC dc, int saved);
// Differs: LOGPIXELSX and LOGPIXELSY; 0 for others.
WINGDIAPI int WINAPI GetDeviceCaps(HDC dc, int index);

// Differs: uncompressed pixels of 8, 24 and 32 bits; `section` is null. Contexts have the default palette.
WINGDIAPI HBITMAP WINAPI CreateDIBSection(HDC dc, const BITMAPINFO* info, UINT usage, LPVOID* bits,
                                          HANDLE section, DWORD offset);
// Differs: uncompressed pixels of 8, 24 and 32 bits.
WINGDIAPI int WINAPI SetDIBitsToDevice(HDC dc, int x, int y, DWORD width, DWORD height, int fromX, int fromY,
                                       UINT startScan, UINT scanLines, LPCVOID bits, const BITMAPINFO* info,
                                       UINT usage);
WINGDIAPI BOOL WINAPI GdiFlush();
}
