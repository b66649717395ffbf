#pragma once

// The class "SysTabControl32": a strip of tabs over a raised area.
void RegisterTabControlClass();
