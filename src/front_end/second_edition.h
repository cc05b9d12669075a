#pragma once

#include "diagnostics/second_fault.h"
#include "front_end/front_end.h"
#include "parser/node_places.h"
#include "parser/second/unread.h"
#include "parser/syntax_tree.h"

#include <cstddef>
#include <string>
#include <vector>

namespace pozhil {

struct ImportStatement;

/// Which edition of the language a source is written in.
enum class Edition { First, Second };

/// What the first line of a source says of its edition: "ஃ பொழில் 2", also with ௨, asks for the second.
/// \param[out] faults a number that no edition has, and a line that asks too late, with nothing but comments before it
Edition editionOf(const SourcePtr& source, SecondFaults& faults);

/// Whether a source of the first edition looks as if its first line was to ask for the second.
bool isAlmostMarked(const SourceText& source);

/// One file of a program.
struct SecondFile {
    SourcePtr source;
    Program tree;
    /// Indices among SecondProgram::files of what it imports, in the order of its import statements.
    std::vector<std::size_t> imports;
    /// For each of these, the statement of the tree that brings it.
    std::vector<const ImportStatement*> importStatements;
    /// What of it is missing from the tree, or stands there otherwise than it was meant.
    second::Unread unread;
};

/// A program of the second edition as it is written.
struct SecondProgram {
    /// In the order in which they run: what is imported before who imports it, the program's own file last.
    std::vector<SecondFile> files;
    NodePlaces places;
    /// Whether the program's own file is one of tests.
    bool isTest = false;
    /// In the order of the files and of their texts.
    SecondFaults faults;
};

/// Whether all files of a program were read to their ends, so that what could not be read is known.
bool isReadThrough(const SecondProgram& program);

/// Scans and parses a source and all that it imports. Goes on after faults; the trees then hold what could be parsed.
SecondProgram parseSecondEdition(SourcePtr source, const FrontEndOptions& options);

} // namespace pozhil
