#pragma once

#include "diagnostics/second_fault.h"
#include "parser/node_places.h"
#include "parser/second/unread.h"
#include "parser/tree/program.h"

namespace pozhil::second {

/// Scans and parses one file of the second edition. Imports stay statements of its tree.
///
/// Places are noted for all nodes, and by their addresses for names and operators that are parts of nodes.
/// \param[out] places takes the places of nodes
/// \param[out] faults takes what is wrong, in the order of the text, until it holds MAX_FOUND_FAULTS
/// \param[out] unread takes what could not be read for that
/// \return what could be parsed
Program parseFile(const SourcePtr& source, NodePlaces& places, SecondFaults& faults, Unread& unread);

} // namespace pozhil::second
