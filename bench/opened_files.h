#pragma once

// How often the library has opened a file for reading or writing since the program began.
unsigned long OpenedFiles();
