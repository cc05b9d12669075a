#pragma once

#include "front_end/second_edition.h"

#include <chrono>
#include <string>
#include <string_view>

namespace pozhil {

/// Prints the banner of a native build.
/// \param edition of the language that the program is written in
void printBanner(Edition edition);

/// Prints the line that tells which file is compiled, byte by byte.
/// \param delay pause after each byte
void animateCompilation(const std::string& file, std::chrono::milliseconds delay);

/// Whether an argument asks for the version, of any command of the installation.
bool isVersionSwitch(std::string_view argument);

/// Prints the version screen.
void printVersionScreen();

} // namespace pozhil
