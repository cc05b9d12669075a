#pragma once

#include "emit/emitted_block.h"

/// Fixed texts of web programs, each the file of its name in text/, embedded by the build.
namespace pozhil::page_text {

/// Sizes that follow the window, and the head of the frame function, up to the widgets. Holes: leastTextScale, a float;
/// openAlerts, drawing and windowSize, lines of the edition.
extern const Block frame_head;
/// The end of the frame function: overlays, the message bar, input fields that are no longer drawn. Holes: those of
/// MessageBar.
extern const Block frame_tail;
/// main, which calls what the program does before its first frame, init_globals(). Holes: width, height and title of the window, and the fontHost that the font of the page comes from.
extern const Block main;

/// Runs a script before the first frame. Hole: the script's lines.
extern const Block database_setup;
/// The script that loads the libraries of the database. Holes: the host that has them, and the keys of the database.
extern const Block database_loader;
/// Operations, after path_str and json_data.
extern const Block database_insert;
extern const Block database_update;
extern const Block database_delete;
/// A read. Holes: its path, the type of values, and the lines of its body.
extern const Block database_read;

} // namespace pozhil::page_text
