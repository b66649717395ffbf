#pragma once

// The class "Static": text that is shown and not used.
void RegisterStaticClass();
