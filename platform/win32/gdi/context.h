#pragma once

#include <array>
#include <optional>

#include "objects.h"

struct ContextAttributes {
    int backgroundMode = OPAQUE;
    uint32_t background = 0xffffff;
    uint32_t text = 0;
    POINT position{};
    std::optional<Region> clip;  // in coordinates of the context
};

// Coordinates: one of the context plus its origin is one of the target, the surface or bitmap that is drawn
// to.
struct DeviceContext : DrawingObject {
    explicit DeviceContext(DWORD kind);  // OBJ_DC or OBJ_MEMDC
    ~DeviceContext() override;

    // Null where the handle is no context; the error is set.
    static DeviceContext* Find(HDC dc);

    PixelView Target() const;
    // What may be drawn to, in coordinates of the target.
    const Region& Clip() const { return drawable_; }
    // To be called when the clip, the bitmap or the visible part has changed.
    void UpdateClip();

    // From logical coordinates to the target's. Far away stays far away, without overflow.
    POINT ToTarget(int x, int y) const;
    RECT ToTarget(const RECT& rect) const;

    void Select(Pen& next);
    void Select(Brush& next);
    void Select(Font& next);
    void Select(Bitmap& next);
    // False for one that another context has.
    bool MaySelect(const Bitmap& next) const;
    size_t SavedStates() const { return saved_.size(); }
    void Save();
    // Back to the state with that index; the later ones are forgotten. Objects that are gone since, or in use
    // elsewhere, are not selected again.
    void Restore(size_t index);

    std::shared_ptr<Surface> surface;
    POINT origin{};
    Region visible;  // of a surface's context, in its coordinates
    Pen* pen = nullptr;
    Brush* brush = nullptr;
    Font* font = nullptr;
    Bitmap* bitmap = nullptr;  // of a memory context only
    ContextAttributes attributes;

private:
    struct Saved {
        std::array<HANDLE, 4> objects;
        ContextAttributes attributes;
    };

    std::array<DrawingObject*, 4> Selected() const { return {pen, brush, font, bitmap}; }

    Region drawable_;
    std::vector<Saved> saved_;
};

// Fills a rectangle given in the target's coordinates, as far as the clip lets it.
void FillClipped(const DeviceContext& dc, const RECT& rect, uint32_t color);
void InvertClipped(const DeviceContext& dc, const RECT& rect, uint32_t mask);

// The part of `a` in `b`; empty ones have no width or height.
RECT Intersection(const RECT& a, const RECT& b);
inline bool IsEmpty(const RECT& rect) {
    return rect.left >= rect.right || rect.top >= rect.bottom;
}
