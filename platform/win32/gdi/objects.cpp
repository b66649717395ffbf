#include "objects.h"

#include <cstring>

#include "context.h"
#include "fonts.h"

namespace {

constexpr UINT_PTR kHandleMark = 0x4000'0000;
constexpr UINT_PTR kSlotMask = 0xffff;
constexpr UINT_PTR kUsesMask = 0x3fff;
// What a process may have, as in the system.
constexpr unsigned kMostObjects = 10000;
constexpr int kStockObjects = 20;

std::unique_ptr<Brush> MakeBrush(uint32_t color, bool hollow = false) {
    auto brush = std::make_unique<Brush>(color);
    brush->hollow = hollow;
    return brush;
}

std::unique_ptr<Font> StockFont(LONG height, LONG weight, const char* face) {
    LOGFONTA record{};
    record.lfHeight = height;
    record.lfWeight = weight;
    std::strcpy(record.lfFaceName, face);
    return std::make_unique<Font>(record, RealizeFont(record));
}

}  // namespace

ObjectTable& ObjectTable::Instance() {
    // Never destroyed: contexts are closed as late as in a program's own static destructors.
    static ObjectTable& table = *new ObjectTable;
    return table;
}

ObjectTable::ObjectTable() : stock_(kStockObjects) {
    AddStock(WHITE_BRUSH, MakeBrush(0xffffff));
    AddStock(LTGRAY_BRUSH, MakeBrush(0xc0c0c0));
    AddStock(GRAY_BRUSH, MakeBrush(0x808080));
    AddStock(DKGRAY_BRUSH, MakeBrush(0x404040));
    AddStock(BLACK_BRUSH, MakeBrush(0));
    AddStock(NULL_BRUSH, MakeBrush(0, true));
    AddStock(WHITE_PEN, std::make_unique<Pen>(PS_SOLID, 0, 0xffffff));
    AddStock(BLACK_PEN, std::make_unique<Pen>(PS_SOLID, 0, 0));
    AddStock(NULL_PEN, std::make_unique<Pen>(PS_NULL, 0, 0));
    AddStock(SYSTEM_FONT, StockFont(16, FW_BOLD, "System"));
    AddStock(DEFAULT_GUI_FONT, StockFont(-11, FW_NORMAL, "MS Shell Dlg"));
    for (int i = 0; i < kSystemColors; ++i)
        systemBrushes_.push_back(AddLasting(MakeBrush(SystemColor(i))));
    auto bitmap = MakeBitmap(1, 1, PixelFormat::kIndex8, true, {0, 0xffffff});
    if (!bitmap) throw std::bad_alloc();
    bitmap->record.bmBitsPixel = 1;
    bitmap->record.bmWidthBytes = 2;
    stockBitmap_ = AddLasting(std::move(bitmap));
}

template <typename Object>
Object* ObjectTable::AddLasting(std::unique_ptr<Object> object) {
    object->stock = true;
    return static_cast<Object*>(&Place(std::move(object)));
}

void ObjectTable::AddStock(int index, std::unique_ptr<DrawingObject> object) {
    stock_[static_cast<size_t>(index)] = AddLasting(std::move(object));
}

HANDLE ObjectTable::Add(std::unique_ptr<DrawingObject> object) {
    if (alive_ >= kMostObjects) return nullptr;
    ++alive_;
    return Place(std::move(object)).handle;
}

DrawingObject& ObjectTable::Place(std::unique_ptr<DrawingObject> object) {
    // The slot that has been free for longest, so that an old handle stays unknown for long.
    if (free_.empty()) {
        free_.push_back(slots_.size());
        slots_.emplace_back();
    }
    const size_t index = free_.front();
    free_.pop_front();
    Slot& slot = slots_[index];
    object->handle = reinterpret_cast<HANDLE>(kHandleMark | (slot.uses & kUsesMask) << 16 | index);
    slot.object = std::move(object);
    return *slot.object;
}

DrawingObject* ObjectTable::Find(HANDLE handle) const {
    const size_t index = reinterpret_cast<UINT_PTR>(handle) & kSlotMask;
    if (index >= slots_.size()) return nullptr;
    DrawingObject* object = slots_[index].object.get();
    return object && object->handle == handle ? object : nullptr;
}

void ObjectTable::Remove(const DrawingObject& object) {
    const size_t index = reinterpret_cast<UINT_PTR>(object.handle) & kSlotMask;
    Slot& slot = slots_[index];
    slot.object.reset();
    ++slot.uses;
    free_.push_back(index);
    --alive_;
}

DrawingObject* ObjectTable::Stock(int index) const {
    return index >= 0 && index < kStockObjects ? stock_[static_cast<size_t>(index)] : nullptr;
}

void Hold(DrawingObject& object) {
    ++object.selections;
}

void Drop(DrawingObject& object) {
    if (--object.selections == 0 && object.doomed) ObjectTable::Instance().Remove(object);
}

Brush* FindBrush(HBRUSH brush) {
    auto& table = ObjectTable::Instance();
    const UINT_PTR number = reinterpret_cast<UINT_PTR>(brush);
    if (number >= 1 && number <= kSystemColors) return &table.SystemBrush(static_cast<int>(number) - 1);
    return table.Find<Brush>(brush);
}

unsigned CountDrawingObjects() {
    const std::lock_guard lock(DrawingMutex());
    return ObjectTable::Instance().Count();
}
