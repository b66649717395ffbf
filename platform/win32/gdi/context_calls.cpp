#include <algorithm>
#include <utility>

#include "../errors.h"
#include "context.h"

// The attributes of contexts.

namespace {

// What a range of calls does: looks a context up and sets a word of it, giving the former one.
template <typename Value>
Value Exchange(HDC handle, Value ContextAttributes::*slot, Value next, Value failure) {
    const std::lock_guard lock(DrawingMutex());
    DeviceContext* dc = DeviceContext::Find(handle);
    return dc ? std::exchange(dc->attributes.*slot, next) : failure;
}

// Encoded colours are their own inverse, except for the failure.
COLORREF ExchangeColor(HDC handle, uint32_t ContextAttributes::*slot, COLORREF next) {
    const uint32_t former = Exchange(handle, slot, FromColorRef(next), CLR_INVALID);
    return former == CLR_INVALID ? CLR_INVALID : ToColorRef(former);
}

int KindOf(const Region& region) {
    if (region.Empty()) return NULLREGION;
    return region.Rects().size() == 1 ? SIMPLEREGION : COMPLEXREGION;
}

}  // namespace

int WINAPI SetBkMode(HDC dc, int mode) {
    if (mode != OPAQUE && mode != TRANSPARENT) return Fail(ERROR_INVALID_PARAMETER);
    return Exchange(dc, &ContextAttributes::backgroundMode, mode, 0);
}

COLORREF WINAPI SetBkColor(HDC dc, COLORREF color) {
    return ExchangeColor(dc, &ContextAttributes::background, color);
}

COLORREF WINAPI SetTextColor(HDC dc, COLORREF color) {
    return ExchangeColor(dc, &ContextAttributes::text, color);
}

COLORREF WINAPI GetBkColor(HDC handle) {
    const std::lock_guard lock(DrawingMutex());
    const DeviceContext* dc = DeviceContext::Find(handle);
    return dc ? ToColorRef(dc->attributes.background) : CLR_INVALID;
}

COLORREF WINAPI GetTextColor(HDC handle) {
    const std::lock_guard lock(DrawingMutex());
    const DeviceContext* dc = DeviceContext::Find(handle);
    return dc ? ToColorRef(dc->attributes.text) : 0;
}

int WINAPI IntersectClipRect(HDC handle, int left, int top, int right, int bottom) {
    const std::lock_guard lock(DrawingMutex());
    DeviceContext* dc = DeviceContext::Find(handle);
    if (!dc) return RGN_ERROR;
    const RECT ordered{std::min(left, right), std::min(top, bottom), std::max(left, right),
                       std::max(top, bottom)};
    const RECT target = dc->ToTarget(ordered);
    Region clip(target);
    clip.Offset(-dc->origin.x, -dc->origin.y);
    auto& current = dc->attributes.clip;
    if (current) clip.Intersect(*current);
    current = std::move(clip);
    dc->UpdateClip();
    return KindOf(*current);
}

int WINAPI GetClipBox(HDC handle, LPRECT box) {
    const std::lock_guard lock(DrawingMutex());
    const DeviceContext* dc = DeviceContext::Find(handle);
    if (!dc) return RGN_ERROR;
    if (!box) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return RGN_ERROR;
    }
    RECT bounds = dc->Clip().Bounds();
    // The box of nothing lies at the origin of the device.
    if (dc->Clip().Empty()) bounds = {dc->origin.x, dc->origin.y, dc->origin.x, dc->origin.y};
    const POINT origin = dc->ToTarget(0, 0);
    *box = {bounds.left - origin.x, bounds.top - origin.y, bounds.right - origin.x, bounds.bottom - origin.y};
    return KindOf(dc->Clip());
}

int WINAPI SaveDC(HDC handle) {
    const std::lock_guard lock(DrawingMutex());
    DeviceContext* dc = DeviceContext::Find(handle);
    if (!dc) return 0;
    dc->Save();
    return static_cast<int>(dc->SavedStates());
}

BOOL WINAPI RestoreDC(HDC handle, int saved) {
    const std::lock_guard lock(DrawingMutex());
    DeviceContext* dc = DeviceContext::Find(handle);
    if (!dc) return FALSE;
    // Numbers count from 1; a negative one counts back from the latest.
    const int64_t states = static_cast<int64_t>(dc->SavedStates());
    const int64_t number = saved < 0 ? states + 1 + saved : saved;
    if (number < 1 || number > states) return Fail(ERROR_INVALID_PARAMETER);
    dc->Restore(static_cast<size_t>(number - 1));
    return TRUE;
}

int WINAPI GetDeviceCaps(HDC handle, int index) {
    const std::lock_guard lock(DrawingMutex());
    if (!DeviceContext::Find(handle)) return 0;
    return index == LOGPIXELSX || index == LOGPIXELSY ? 96 : 0;
}
