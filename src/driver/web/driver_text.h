#pragma once

#include "emit/emitted_block.h"

/// Fixed texts of served pages, each the file of its name in text/, embedded by the build.
namespace pozhil::driver_text {

/// The script that keeps what the program's variables hold while the page is reloaded.
extern const Block kept_state;

/// The script that reloads the page when the server tells of a newer build. Hole: the version of this page.
extern const Block reload;

/// The script that shows in the page why the last build failed.
extern const Block build_fault;

} // namespace pozhil::driver_text
