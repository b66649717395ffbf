#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "platform/canvas.h"

// Drawing objects: selection, deletion, what is told about them, and bad handles.

namespace {

LOGFONTA FontRecord(LONG height) {
    LOGFONTA record{};
    record.lfHeight = height;
    record.lfWeight = FW_NORMAL;
    std::strcpy(record.lfFaceName, "MS Sans Serif");
    return record;
}

HFONT MakeFont(LONG height) {
    const LOGFONTA record = FontRecord(height);
    return CreateFontIndirectA(&record);
}

TEST(GdiObjects, AreToldByTheirKind) {
    const HDC dc = CreateCompatibleDC(nullptr);
    const HPEN pen = CreatePen(PS_SOLID, 1, kBlack);
    const HBRUSH brush = CreateSolidBrush(kBlack);
    const HFONT font = MakeFont(-11);
    const HBITMAP bitmap = CreateCompatibleBitmap(dc, 2, 2);
    EXPECT_EQ(GetObjectType(dc), static_cast<DWORD>(OBJ_MEMDC));
    EXPECT_EQ(GetObjectType(pen), static_cast<DWORD>(OBJ_PEN));
    EXPECT_EQ(GetObjectType(brush), static_cast<DWORD>(OBJ_BRUSH));
    EXPECT_EQ(GetObjectType(font), static_cast<DWORD>(OBJ_FONT));
    EXPECT_EQ(GetObjectType(bitmap), static_cast<DWORD>(OBJ_BITMAP));
    for (const HGDIOBJ object : {HGDIOBJ(pen), HGDIOBJ(brush), HGDIOBJ(font), HGDIOBJ(bitmap)}) {
        EXPECT_TRUE(DeleteObject(object));
        EXPECT_EQ(GetObjectType(object), 0u);
        EXPECT_FALSE(DeleteObject(object));
    }
    EXPECT_TRUE(DeleteDC(dc));
    EXPECT_FALSE(DeleteDC(dc));
}

TEST(GdiObjects, ASelectedObjectIsDeletedWhenItIsNoLongerSelected) {
    const HDC dc = CreateCompatibleDC(nullptr);
    const HGDIOBJ objects[] = {CreatePen(PS_SOLID, 1, kBlack), CreateSolidBrush(kBlack), MakeFont(-11),
                               CreateCompatibleBitmap(dc, 2, 2)};
    for (const HGDIOBJ object : objects) {
        const DWORD type = GetObjectType(object);
        const HGDIOBJ former = SelectObject(dc, object);
        ASSERT_NE(former, nullptr) << type;
        EXPECT_TRUE(DeleteObject(object));
        EXPECT_EQ(GetObjectType(object), type);
        EXPECT_EQ(GetCurrentObject(dc, type), object) << type;
        EXPECT_EQ(SelectObject(dc, former), object) << type;
        EXPECT_EQ(GetObjectType(object), 0u) << type;
    }
    const HBRUSH last = CreateSolidBrush(kBlack);
    SelectObject(dc, last);
    EXPECT_TRUE(DeleteObject(last));
    EXPECT_TRUE(DeleteDC(dc));
    EXPECT_EQ(GetObjectType(last), 0u);
}

TEST(GdiObjects, ABitmapIsInOneContextOnly) {
    const HDC first = CreateCompatibleDC(nullptr);
    const HDC second = CreateCompatibleDC(nullptr);
    const HBITMAP bitmap = CreateCompatibleBitmap(first, 2, 2);
    const HGDIOBJ former = SelectObject(first, bitmap);
    EXPECT_EQ(SelectObject(second, bitmap), nullptr);
    EXPECT_EQ(SelectObject(first, bitmap), bitmap);
    SelectObject(first, former);
    EXPECT_EQ(SelectObject(second, bitmap), former);
    DeleteDC(second);
    EXPECT_EQ(SelectObject(first, bitmap), former);
    DeleteDC(first);
    EXPECT_TRUE(DeleteObject(bitmap));
}

TEST(GdiObjects, StockObjectsStay) {
    for (const int index : {WHITE_BRUSH, LTGRAY_BRUSH, GRAY_BRUSH, DKGRAY_BRUSH, BLACK_BRUSH, NULL_BRUSH,
                            WHITE_PEN, BLACK_PEN, NULL_PEN, SYSTEM_FONT, DEFAULT_GUI_FONT}) {
        const HGDIOBJ object = GetStockObject(index);
        const DWORD type = GetObjectType(object);
        EXPECT_NE(type, 0u) << index;
        EXPECT_TRUE(DeleteObject(object)) << index;
        EXPECT_EQ(GetObjectType(object), type) << index;
    }
    EXPECT_EQ(GetStockObject(-1), nullptr);
    EXPECT_EQ(GetStockObject(9), nullptr);
    EXPECT_EQ(GetStockObject(100), nullptr);

    const HBRUSH face = GetSysColorBrush(COLOR_BTNFACE);
    EXPECT_TRUE(DeleteObject(face));
    EXPECT_EQ(GetObjectType(face), static_cast<DWORD>(OBJ_BRUSH));
    EXPECT_EQ(GetSysColorBrush(-1), nullptr);
    EXPECT_EQ(GetSysColorBrush(100), nullptr);
    EXPECT_EQ(GetSysColor(100), 0u);
}

TEST(GdiObjects, ANewContextHasTheDefaults) {
    const HDC dc = CreateCompatibleDC(nullptr);
    EXPECT_EQ(GetCurrentObject(dc, OBJ_PEN), GetStockObject(BLACK_PEN));
    EXPECT_EQ(GetCurrentObject(dc, OBJ_BRUSH), GetStockObject(WHITE_BRUSH));
    EXPECT_EQ(GetCurrentObject(dc, OBJ_FONT), GetStockObject(SYSTEM_FONT));
    BITMAP bitmap{};
    EXPECT_EQ(GetObjectA(GetCurrentObject(dc, OBJ_BITMAP), sizeof bitmap, &bitmap),
              static_cast<int>(sizeof bitmap));
    EXPECT_EQ(bitmap.bmWidth, 1);
    EXPECT_EQ(bitmap.bmHeight, 1);
    EXPECT_EQ(bitmap.bmBitsPixel, 1);
    EXPECT_EQ(GetBkColor(dc), kWhite);
    EXPECT_EQ(GetTextColor(dc), kBlack);
    EXPECT_EQ(SetBkMode(dc, TRANSPARENT), OPAQUE);
    EXPECT_EQ(SetBkMode(dc, OPAQUE), TRANSPARENT);
    EXPECT_EQ(SetBkMode(dc, 7), 0);
    EXPECT_EQ(GetDeviceCaps(dc, LOGPIXELSX), 96);
    EXPECT_EQ(GetDeviceCaps(dc, LOGPIXELSY), 96);
    DeleteDC(dc);
}

TEST(GdiObjects, AFontGivesItsRecordAsFarAsThereIsRoom) {
    const LOGFONTA record = FontRecord(-17);
    const HFONT font = CreateFontIndirectA(&record);
    const int size = sizeof record;
    EXPECT_EQ(GetObjectA(font, 0, nullptr), size);
    LOGFONTA read{};
    EXPECT_EQ(GetObjectA(font, 200, &read), size);
    EXPECT_EQ(read.lfHeight, -17);
    EXPECT_STREQ(read.lfFaceName, "MS Sans Serif");
    std::memset(&read, 0x55, sizeof read);
    EXPECT_EQ(GetObjectA(font, 8, &read), 8);
    EXPECT_EQ(read.lfHeight, -17);
    EXPECT_EQ(read.lfEscapement, 0x55555555);
    DeleteObject(font);

    EXPECT_EQ(GetObjectA(GetStockObject(DEFAULT_GUI_FONT), size, &read), size);
    EXPECT_EQ(read.lfHeight, -11);
    EXPECT_STREQ(read.lfFaceName, "MS Shell Dlg");
}

TEST(GdiObjects, ABitmapGivesItsRecordWholeOrNotAtAll) {
    const Canvas canvas(5, 3, 24);
    DIBSECTION section{};
    const int whole = sizeof section;
    const int size = sizeof section.dsBm;
    const struct {
        int room, given;
    } cases[] = {{0, 0},         {size - 1, 0},       {size, size}, {whole - 1, size},
                 {whole, whole}, {whole + 100, whole}};
    for (const auto& c : cases)
        EXPECT_EQ(GetObjectA(canvas.Bitmap(), c.room, &section), c.given) << c.room;
    EXPECT_EQ(GetObjectA(canvas.Bitmap(), 0, nullptr), size);
    EXPECT_EQ(section.dsBm.bmWidth, 5);
    EXPECT_EQ(section.dsBm.bmHeight, 3);
    EXPECT_EQ(section.dsBm.bmWidthBytes, 16);
    EXPECT_EQ(section.dsBm.bmBitsPixel, 24);
    EXPECT_EQ(section.dsBm.bmBits, canvas.Bytes());
    EXPECT_EQ(section.dsBmih.biHeight, 3);
    EXPECT_EQ(section.dsBmih.biSizeImage, 48u);

    const HBITMAP compatible = CreateCompatibleBitmap(canvas, 2, 2);
    DeleteObject(compatible);
    EXPECT_EQ(GetObjectA(compatible, size, &section), 0);
}

TEST(GdiObjects, BadHandlesFail) {
    const HBRUSH stale = CreateSolidBrush(kBlack);
    DeleteObject(stale);
    const HDC closed = CreateCompatibleDC(nullptr);
    DeleteDC(closed);
    // The slot of a closed handle has a new owner soon.
    const HBRUSH next = CreateSolidBrush(kWhite);
    const HDC dc = CreateCompatibleDC(nullptr);
    const HGDIOBJ handles[] = {nullptr, stale, reinterpret_cast<HGDIOBJ>(INT_PTR{1234}),
                               INVALID_HANDLE_VALUE};
    for (const HGDIOBJ handle : handles) {
        EXPECT_EQ(GetObjectType(handle), 0u);
        EXPECT_FALSE(DeleteObject(handle));
        EXPECT_EQ(SelectObject(dc, handle), nullptr);
        LOGFONTA record;
        EXPECT_EQ(GetObjectA(handle, sizeof record, &record), 0);
    }
    POINT point{};
    SIZE size{};
    RECT rect{0, 0, 1, 1};
    TEXTMETRICA metrics;
    for (const HDC bad : {HDC(nullptr), closed, reinterpret_cast<HDC>(next)}) {
        EXPECT_EQ(SelectObject(bad, next), nullptr);
        EXPECT_EQ(GetCurrentObject(bad, OBJ_PEN), nullptr);
        EXPECT_EQ(SetBkMode(bad, OPAQUE), 0);
        EXPECT_EQ(SetBkColor(bad, kBlack), CLR_INVALID);
        EXPECT_EQ(SetTextColor(bad, kBlack), CLR_INVALID);
        EXPECT_EQ(GetBkColor(bad), CLR_INVALID);
        EXPECT_FALSE(MoveToEx(bad, 0, 0, &point));
        EXPECT_FALSE(LineTo(bad, 1, 1));
        EXPECT_EQ(SetPixel(bad, 0, 0, kBlack), CLR_INVALID);
        EXPECT_EQ(GetPixel(bad, 0, 0), CLR_INVALID);
        EXPECT_FALSE(PatBlt(bad, 0, 0, 1, 1, PATCOPY));
        EXPECT_FALSE(BitBlt(bad, 0, 0, 1, 1, dc, 0, 0, SRCCOPY));
        EXPECT_FALSE(BitBlt(dc, 0, 0, 1, 1, bad, 0, 0, SRCCOPY));
        EXPECT_FALSE(TextOutA(bad, 0, 0, "a", 1));
        EXPECT_FALSE(ExtTextOutA(bad, 0, 0, ETO_OPAQUE, &rect, "a", 1, nullptr));
        EXPECT_FALSE(GetTextExtentPoint32A(bad, "a", 1, &size));
        EXPECT_FALSE(GetTextMetricsA(bad, &metrics));
        EXPECT_EQ(IntersectClipRect(bad, 0, 0, 1, 1), RGN_ERROR);
        EXPECT_EQ(GetClipBox(bad, &rect), RGN_ERROR);
        EXPECT_EQ(SaveDC(bad), 0);
        EXPECT_FALSE(RestoreDC(bad, -1));
        EXPECT_EQ(GetDeviceCaps(bad, LOGPIXELSX), 0);
        EXPECT_EQ(CreateCompatibleBitmap(bad, 1, 1), nullptr);
        EXPECT_FALSE(DeleteDC(bad == reinterpret_cast<HDC>(next) ? nullptr : bad));
    }
    DeleteDC(dc);
    DeleteObject(next);
}

// More of each than a process may have at once.
TEST(GdiObjects, NothingIsLeftBehind) {
    const HGDIOBJ pen = GetStockObject(BLACK_PEN);
    for (int i = 0; i < 11000; ++i) {
        const HDC dc = CreateCompatibleDC(nullptr);
        const HBITMAP bitmap = CreateCompatibleBitmap(dc, 3, 3);
        const HBRUSH brush = CreateSolidBrush(kBlack);
        const HFONT font = MakeFont(-11);
        const HPEN own = CreatePen(PS_SOLID, 1, kBlack);
        ASSERT_TRUE(dc && bitmap && brush && font && own) << i;
        SelectObject(dc, bitmap);
        SelectObject(dc, brush);
        SelectObject(dc, font);
        SelectObject(dc, own);
        SaveDC(dc);
        SelectObject(dc, pen);
        // Some go before their context, some after it.
        DeleteObject(own);
        DeleteObject(brush);
        DeleteDC(dc);
        DeleteObject(font);
        DeleteObject(bitmap);
    }
}

}  // namespace
