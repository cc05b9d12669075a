#pragma once

#include <string>

/// Feeds mutated programs to \p work. A run may end well or with a fault, but never by a signal, by a sanitizer, by leaving
/// the process, or not at all, and it gives back all memory that it took.
///
///   <program> <inputs> <seed> <corpus folder>...
///
/// A failing input is kept beside the current directory as failure-<number>.பொழில்.
/// \return the exit status of the program
int runFuzzer(int argc, char** argv, void (*work)(std::string text));
