#pragma once

#include <cstddef>

// How long the resource is that begins at an address; 0 when none does.
size_t ResourceSizeAt(const void* data);
