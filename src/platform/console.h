#pragma once

namespace pozhil::platform {

/// Prepares the console for UTF-8 text. A system without a UTF-8 locale goes on with the classic one.
void setUpConsole();

/// Whether standard output is a terminal.
bool isTerminalOutput();

} // namespace pozhil::platform
