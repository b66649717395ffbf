#pragma once

// Registers the window classes of the toolkit and of the entry controls, in this module. Calls after the
// first change nothing. To be called before a panel is made. Throws CResourceException when a class is
// refused.
void RegisterEntryClasses();

// Those of the number fields and the slider.
void RegisterToolkitClasses();
