#include <winerror.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "context.h"
#include "fonts.h"

// Drawing objects: made, selected, asked and deleted.

namespace {

constexpr int kThickestPen = 0x7fff;

ObjectTable& Table() {
    return ObjectTable::Instance();
}

HGDIOBJ NoObject(DWORD error = ERROR_INVALID_HANDLE) {
    SetLastError(error);
    return nullptr;
}

template <typename Object>
HGDIOBJ SelectInto(DeviceContext& dc, const Object* current, DrawingObject& next) {
    const HGDIOBJ former = current->handle;
    if (next.handle != former) dc.Select(static_cast<Object&>(next));
    return former;
}

HGDIOBJ SelectBitmap(DeviceContext& dc, DrawingObject& next) {
    const bool fits = dc.MaySelect(static_cast<const Bitmap&>(next));
    return fits ? SelectInto(dc, dc.bitmap, next) : NoObject();
}

// The record of a font is given as far as there is room; that of a bitmap is not cut.
int GiveFont(const Font& font, int size, LPVOID record) {
    constexpr int kSize = sizeof(LOGFONTA);
    if (!record) return kSize;
    const int given = std::clamp(size, 0, kSize);
    std::memcpy(record, &font.record, static_cast<size_t>(given));
    return given;
}

int GiveBitmap(const Bitmap& bitmap, int size, LPVOID record) {
    constexpr int kSize = sizeof(BITMAP);
    constexpr int kSectionSize = sizeof(DIBSECTION);
    if (!record) return kSize;
    if (bitmap.section && size >= kSectionSize) {
        DIBSECTION section{};
        section.dsBm = bitmap.record;
        section.dsBmih = bitmap.header;
        std::memcpy(record, &section, sizeof section);
        return kSectionSize;
    }
    if (size < kSize) return 0;
    std::memcpy(record, &bitmap.record, sizeof bitmap.record);
    return kSize;
}

}  // namespace

HDC WINAPI CreateCompatibleDC(HDC like) {
    const std::lock_guard lock(DrawingMutex());
    if (like && !DeviceContext::Find(like)) return nullptr;
    auto dc = std::make_unique<DeviceContext>(OBJ_MEMDC);
    dc->UpdateClip();
    return static_cast<HDC>(Table().Add(std::move(dc)));
}

BOOL WINAPI DeleteDC(HDC handle) {
    const std::lock_guard lock(DrawingMutex());
    const DeviceContext* dc = DeviceContext::Find(handle);
    if (!dc) return FALSE;
    Table().Remove(*dc);
    return TRUE;
}

HPEN WINAPI CreatePen(int style, int width, COLORREF color) {
    if (style != PS_SOLID && style != PS_NULL) return static_cast<HPEN>(NoObject(ERROR_INVALID_PARAMETER));
    const std::lock_guard lock(DrawingMutex());
    const int thickness = std::abs(std::clamp(width, -kThickestPen, kThickestPen));
    return static_cast<HPEN>(Table().Add(std::make_unique<Pen>(style, thickness, FromColorRef(color))));
}

HBRUSH WINAPI CreateSolidBrush(COLORREF color) {
    const std::lock_guard lock(DrawingMutex());
    return static_cast<HBRUSH>(Table().Add(std::make_unique<Brush>(FromColorRef(color))));
}

HFONT WINAPI CreateFontIndirectA(const LOGFONTA* font) {
    if (!font) return static_cast<HFONT>(NoObject(ERROR_INVALID_PARAMETER));
    const std::lock_guard lock(DrawingMutex());
    return static_cast<HFONT>(Table().Add(std::make_unique<Font>(*font, RealizeFont(*font))));
}

HGDIOBJ WINAPI SelectObject(HDC handle, HGDIOBJ object) {
    const std::lock_guard lock(DrawingMutex());
    DeviceContext* dc = DeviceContext::Find(handle);
    DrawingObject* found = Table().Find(object);
    if (!dc || !found) return NoObject();
    switch (found->type) {
        case OBJ_PEN: return SelectInto(*dc, dc->pen, *found);
        case OBJ_BRUSH: return SelectInto(*dc, dc->brush, *found);
        case OBJ_FONT: return SelectInto(*dc, dc->font, *found);
        case OBJ_BITMAP: return SelectBitmap(*dc, *found);
        default: return NoObject();
    }
}

BOOL WINAPI DeleteObject(HGDIOBJ object) {
    const std::lock_guard lock(DrawingMutex());
    DrawingObject* found = Table().Find(object);
    if (!found) {
        SetLastError(ERROR_INVALID_HANDLE);
        return FALSE;
    }
    if (found->stock) return TRUE;
    if (found->selections > 0)
        found->doomed = true;
    else
        Table().Remove(*found);
    return TRUE;
}

int WINAPI GetObjectA(HANDLE object, int size, LPVOID record) {
    const std::lock_guard lock(DrawingMutex());
    if (const auto* font = Table().Find<Font>(object)) return GiveFont(*font, size, record);
    if (const auto* bitmap = Table().Find<Bitmap>(object)) return GiveBitmap(*bitmap, size, record);
    SetLastError(ERROR_INVALID_HANDLE);
    return 0;
}

DWORD WINAPI GetObjectType(HGDIOBJ object) {
    const std::lock_guard lock(DrawingMutex());
    const DrawingObject* found = Table().Find(object);
    if (!found) SetLastError(ERROR_INVALID_HANDLE);
    return found ? found->type : 0;
}

HGDIOBJ WINAPI GetStockObject(int index) {
    const std::lock_guard lock(DrawingMutex());
    const DrawingObject* object = Table().Stock(index);
    return object ? object->handle : nullptr;
}

HGDIOBJ WINAPI GetCurrentObject(HDC handle, UINT type) {
    const std::lock_guard lock(DrawingMutex());
    const DeviceContext* dc = DeviceContext::Find(handle);
    if (!dc) return nullptr;
    switch (type) {
        case OBJ_PEN: return dc->pen->handle;
        case OBJ_BRUSH: return dc->brush->handle;
        case OBJ_FONT: return dc->font->handle;
        case OBJ_BITMAP:
            // A window's context has no bitmap of its own.
            return dc->bitmap ? dc->bitmap->handle : Table().StockBitmap().handle;
        default: return NoObject(ERROR_INVALID_PARAMETER);
    }
}
