#pragma once

#include <windef.h>

#include <cstdint>
#include <memory>
#include <mutex>
#include <vector>

#include "region.h"

// Pixels that contexts draw into, 0x00RRGGBB, rows from the top. Every top-level window has one, which its
// children share.
struct Surface {
    Surface(int columns, int rows);

    int width;
    int height;
    std::vector<uint32_t> pixels;
};

// Guards the pixels of all surfaces and the drawing objects. Nothing is called back while it is held. Drawing
// calls and the functions below take it themselves; who reads or writes `pixels` directly holds it meanwhile.
std::mutex& DrawingMutex();

// A context that draws into `surface` with its origin at `origin`, inside `clip` (in the surface's own
// coordinates). Every attribute is as in a new context. It counts as a context until it is closed. Null when
// there are too many drawing objects.
HDC OpenSurfaceContext(std::shared_ptr<Surface> surface, POINT origin, Region clip);
void CloseSurfaceContext(HDC dc);

// Moves pixels of `surface` by dx, dy, where both the old and the new place lie inside `clip`. Gives what
// must be painted anew: the part of `clip` to which nothing was moved.
Region ScrollSurface(Surface& surface, const Region& clip, int dx, int dy);

// Pens, brushes, fonts, bitmaps and contexts that are alive, stock objects left out.
unsigned CountDrawingObjects();
