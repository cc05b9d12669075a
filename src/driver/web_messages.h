#pragma once

namespace pozhil {

/// Tells that a web build begins and that the source is being analysed.
void printWebStart();

/// Tells that the analysis is done and the user interface is being made.
void printWebGeneration();

} // namespace pozhil
