#include "context.h"

#include <winerror.h>

#include <algorithm>
#include <utility>

namespace {

// Far outside of every target, and far from the ends of the type.
constexpr int64_t kFar = 0x0fff'ffff;

LONG Place(int64_t sum) {
    return static_cast<LONG>(std::clamp(sum, -kFar, kFar));
}

template <typename Object>
void Exchange(Object*& slot, Object& next) {
    Hold(next);
    Object* former = slot;
    slot = &next;
    if (former) Drop(*former);
}

}  // namespace

DeviceContext::DeviceContext(DWORD kind) : DrawingObject(kind) {
    auto& table = ObjectTable::Instance();
    pen = static_cast<Pen*>(table.Stock(BLACK_PEN));
    brush = static_cast<Brush*>(table.Stock(WHITE_BRUSH));
    font = static_cast<Font*>(table.Stock(SYSTEM_FONT));
    if (kind == OBJ_MEMDC) bitmap = &table.StockBitmap();
    for (DrawingObject* object : Selected()) {
        if (object) Hold(*object);
    }
}

DeviceContext::~DeviceContext() {
    if (bitmap) bitmap->context = nullptr;
    for (DrawingObject* object : Selected()) {
        if (object) Drop(*object);
    }
}

DeviceContext* DeviceContext::Find(HDC dc) {
    DrawingObject* object = ObjectTable::Instance().Find(dc);
    if (object && (object->type == OBJ_DC || object->type == OBJ_MEMDC))
        return static_cast<DeviceContext*>(object);
    SetLastError(ERROR_INVALID_HANDLE);
    return nullptr;
}

PixelView DeviceContext::Target() const {
    return bitmap ? bitmap->view : ViewOf(*surface);
}

void DeviceContext::UpdateClip() {
    const PixelView target = Target();
    drawable_ = Region(RECT{0, 0, target.width, target.height});
    if (surface) drawable_.Intersect(visible);
    if (!attributes.clip) return;
    Region clip = *attributes.clip;
    clip.Offset(origin.x, origin.y);
    drawable_.Intersect(clip);
}

POINT DeviceContext::ToTarget(int x, int y) const {
    return {Place(int64_t{x} + origin.x), Place(int64_t{y} + origin.y)};
}

RECT DeviceContext::ToTarget(const RECT& rect) const {
    const POINT start = ToTarget(rect.left, rect.top);
    const POINT end = ToTarget(rect.right, rect.bottom);
    return {start.x, start.y, end.x, end.y};
}

void DeviceContext::Select(Pen& next) {
    Exchange(pen, next);
}
void DeviceContext::Select(Brush& next) {
    Exchange(brush, next);
}
void DeviceContext::Select(Font& next) {
    Exchange(font, next);
}

void DeviceContext::Select(Bitmap& next) {
    bitmap->context = nullptr;
    if (!next.stock) next.context = this;
    Exchange(bitmap, next);
    UpdateClip();
}

bool DeviceContext::MaySelect(const Bitmap& next) const {
    return bitmap && (!next.context || next.context == this);
}

void DeviceContext::Save() {
    Saved state{{}, attributes};
    const auto selected = Selected();
    for (size_t i = 0; i < selected.size(); ++i)
        state.objects[i] = selected[i] ? selected[i]->handle : nullptr;
    saved_.push_back(std::move(state));
}

void DeviceContext::Restore(size_t index) {
    const Saved back = std::move(saved_[index]);
    saved_.resize(index);
    const auto& table = ObjectTable::Instance();
    if (auto* object = table.Find<Pen>(back.objects[0])) Select(*object);
    if (auto* object = table.Find<Brush>(back.objects[1])) Select(*object);
    if (auto* object = table.Find<Font>(back.objects[2])) Select(*object);
    auto* picture = table.Find<Bitmap>(back.objects[3]);
    if (picture && MaySelect(*picture)) Select(*picture);
    attributes = back.attributes;
    UpdateClip();
}

void FillClipped(const DeviceContext& dc, const RECT& rect, uint32_t color) {
    const PixelView target = dc.Target();
    const uint32_t value = Encode(target, color);
    for (const RECT& clip : dc.Clip().Rects())
        FillRect(target, Intersection(rect, clip), value);
}

void InvertClipped(const DeviceContext& dc, const RECT& rect, uint32_t mask) {
    const PixelView target = dc.Target();
    for (const RECT& clip : dc.Clip().Rects())
        InvertRect(target, Intersection(rect, clip), mask);
}

RECT Intersection(const RECT& a, const RECT& b) {
    RECT common{std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
                std::min(a.bottom, b.bottom)};
    if (IsEmpty(common)) common = {};
    return common;
}
