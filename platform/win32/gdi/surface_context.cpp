#include <utility>

#include "context.h"

HDC OpenSurfaceContext(std::shared_ptr<Surface> surface, POINT origin, Region clip) {
    if (!surface) return nullptr;
    const std::lock_guard lock(DrawingMutex());
    auto dc = std::make_unique<DeviceContext>(OBJ_DC);
    dc->surface = std::move(surface);
    dc->origin = origin;
    dc->visible = std::move(clip);
    dc->UpdateClip();
    return static_cast<HDC>(ObjectTable::Instance().Add(std::move(dc)));
}

void CloseSurfaceContext(HDC dc) {
    const std::lock_guard lock(DrawingMutex());
    const DeviceContext* context = DeviceContext::Find(dc);
    if (context && context->surface) ObjectTable::Instance().Remove(*context);
}
