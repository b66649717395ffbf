#pragma once

// Share modes for _fsopen.
#define _SH_DENYNO 0x40
