#pragma once

// The class "msctls_updown32": two arrows that count, for a window beside them.
void RegisterUpDownClass();
