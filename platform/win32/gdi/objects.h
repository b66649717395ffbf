#pragma once

#include <wingdi.h>

#include <cstdlib>
#include <deque>
#include <memory>
#include <vector>

#include "pixels.h"

class FontFace;

// What a drawing handle stands for. All of it is guarded by DrawingMutex.
struct DrawingObject {
    explicit DrawingObject(DWORD kind) : type(kind) {}
    virtual ~DrawingObject() = default;
    DrawingObject(const DrawingObject&) = delete;
    DrawingObject& operator=(const DrawingObject&) = delete;

    const DWORD type;  // OBJ_...
    HANDLE handle = nullptr;
    bool stock = false;
    bool doomed = false;  // deleted while selected: goes with its last selection
    int selections = 0;   // in contexts and in their saved states
};

struct Pen : DrawingObject {
    static constexpr DWORD kType = OBJ_PEN;
    Pen(int penStyle, int penWidth, uint32_t penColor)
        : DrawingObject(kType), style(penStyle), width(penWidth), color(penColor) {}

    const int style;
    const int width;
    const uint32_t color;
};

struct Brush : DrawingObject {
    static constexpr DWORD kType = OBJ_BRUSH;
    explicit Brush(uint32_t brushColor) : DrawingObject(kType), color(brushColor) {}

    const uint32_t color;
    bool hollow = false;
};

struct Font : DrawingObject {
    static constexpr DWORD kType = OBJ_FONT;
    Font(const LOGFONTA& logical, FontFace& realized)
        : DrawingObject(kType), record(logical), face(realized) {}

    const LOGFONTA record;
    FontFace& face;
};

struct Bitmap : DrawingObject {
    static constexpr DWORD kType = OBJ_BITMAP;
    Bitmap() : DrawingObject(kType) {}

    struct Release {
        void operator()(void* block) const { std::free(block); }
    };
    std::unique_ptr<void, Release> memory;
    Palette palette;
    PixelView view;
    BITMAP record{};
    bool section = false;  // the caller has a pointer to the pixels
    BITMAPINFOHEADER header{};
    // A bitmap is selected in one context only; the stock one in any.
    const DrawingObject* context = nullptr;
};

// A handle is a number with the slot and the number of uses that the slot has seen, so that one which has
// been closed is told from its slot's next owner.
class ObjectTable {
public:
    // The table of this process, with the stock objects.
    static ObjectTable& Instance();

    // Null when there are as many as the system allows.
    HANDLE Add(std::unique_ptr<DrawingObject> object);
    // Null for what is no drawing handle, or none any more.
    DrawingObject* Find(HANDLE handle) const;
    template <typename Object>
    Object* Find(HANDLE handle) const {
        DrawingObject* object = Find(handle);
        return object && object->type == Object::kType ? static_cast<Object*>(object) : nullptr;
    }
    void Remove(const DrawingObject& object);
    // Stock objects left out.
    unsigned Count() const { return alive_; }
    // Null for an index without one.
    DrawingObject* Stock(int index) const;
    Brush& SystemBrush(int index) const { return *systemBrushes_[static_cast<size_t>(index)]; }
    Bitmap& StockBitmap() const { return *stockBitmap_; }

private:
    struct Slot {
        std::unique_ptr<DrawingObject> object;
        UINT_PTR uses = 0;
    };

    ObjectTable();
    DrawingObject& Place(std::unique_ptr<DrawingObject> object);
    void AddStock(int index, std::unique_ptr<DrawingObject> object);
    template <typename Object>
    Object* AddLasting(std::unique_ptr<Object> object);

    std::vector<Slot> slots_;
    std::deque<size_t> free_;
    unsigned alive_ = 0;
    std::vector<DrawingObject*> stock_;
    std::vector<Brush*> systemBrushes_;
    Bitmap* stockBitmap_ = nullptr;
};

// A selection begins or ends. The end of the last one takes a deleted object away.
void Hold(DrawingObject& object);
void Drop(DrawingObject& object);

// The colour of a part of the screen, and how many parts there are.
inline constexpr int kSystemColors = 31;
uint32_t SystemColor(int index);

// The object of FillRect's brush: a handle, or a system colour's index plus one. Null for neither.
Brush* FindBrush(HBRUSH brush);

// A bitmap of cleared pixels; null when there is no memory for it.
std::unique_ptr<Bitmap> MakeBitmap(int width, int height, PixelFormat format, bool topDown, Palette palette);
