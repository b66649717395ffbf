#pragma once

#include <string>

// Picture files of `side` by `side` pixels: flat runs of up to 80 pixels between stretches of noise of up to
// 16, the same in every format. Coded ones are as an encoder writes them.

std::string GenerateBmp(int side, int bits);
std::string GenerateTga(int side, int bits, bool coded);
std::string GeneratePcx(int side, int planes, bool coded);
