#pragma once

// The class "Button": push button, default push button, check box and group box.
void RegisterButtonClass();
