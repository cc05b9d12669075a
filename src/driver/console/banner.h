#pragma once

#include <string>

namespace pozhil {

/// Prints the banner of a native build.
void printBanner();

/// Prints the line that tells which file is compiled, byte by byte at the pace of the settings.
void animateCompilation(const std::string& file);

/// Prints the version screen.
void printVersionScreen();

} // namespace pozhil
