#pragma once

// The class "Edit": text of one line or of several that the user changes.
void RegisterEditClass();

// The class "Edit".
void RegisterEditClass();
