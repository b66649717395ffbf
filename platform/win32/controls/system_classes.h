#pragma once

// Registers the classes that windows have from the start: once, before the first class is looked up.
void RegisterSystemClasses();
