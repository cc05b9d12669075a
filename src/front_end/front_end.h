#pragma once

#include "base/source_loader.h"
#include "diagnostics/fault_log.h"
#include "front_end/stage.h"
#include "parser/parser.h"
#include "parser/syntax_tree.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace pozhil {

/// How sources are read and parsed.
struct FrontEndOptions {
    /// Where imports are looked for after the working directory, in order.
    std::vector<std::string> moduleDirectories{};
    /// Reads the source and what it imports; null for the files themselves.
    const SourceLoader* loader = nullptr;
    /// Whether the source is a file of tests (second edition).
    bool isTest = false;
    /// How many faults to go on after, of scanner and parser together; with 0 the first one is thrown.
    std::size_t maxFaults = 0;
};

/// A source and what the front end made of it.
struct ParsedSource {
    SourcePtr source;
    /// Holds the tokens, the tables of functions and structures, and the places of the tree's nodes.
    std::unique_ptr<Parser> parser;
    /// The whole program; what could be parsed of it if there are faults.
    Program program;
    /// In the order of the text, those of an imported file at its import. Empty unless faults were to be gone on after.
    std::vector<FoundFault> faults{};
};

/// Reads the source at \p path.
/// \return null if it can't be read
SourcePtr loadSource(const std::string& path, const FrontEndOptions& options);

/// Scans and parses a source and all that it imports.
/// \throws Fault if the first one isn't to be gone on after
/// \throws StageFailure
ParsedSource parseSource(SourcePtr source, const FrontEndOptions& options);

/// Whether the program declares an application at top level, and so is for the web.
bool isWebProgram(const Program& program);

} // namespace pozhil
