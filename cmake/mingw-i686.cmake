# The product: 32-bit Windows. Its tests run under Wine.
set(CMAKE_SYSTEM_PROCESSOR i686)
# Floats are computed as on every other target, not in the wider registers of the x87 unit.
set(CMAKE_CXX_FLAGS_INIT "-msse2 -mfpmath=sse")
include(${CMAKE_CURRENT_LIST_DIR}/mingw.cmake)
