#pragma once

// The class "#32770" of all dialogs.
void RegisterDialogClass();
