#pragma once

#include "generator/second/emitted_lines.h"
#include "generator/second/program_tables.h"

#include <cstddef>

namespace pozhil {
class CodeWriter;
}

namespace pozhil::resolved::writer {

/// Writes what an application has besides the functions of its program: the runtime of pages before them, and its pages
/// after them.
class PageProgram {
public:
    /// \param program has pages
    PageProgram(const Program& program, ProgramTables& tables) : program_(program), tables_(tables) {}

    /// All up to the program: the runtime of pages, the engine, and what pages give their programs.
    EmittedLines head() const;

    /// What keeps the program's variables while the page is reloaded; empty if its author doesn't want that.
    EmittedLines keptState() const;

    /// The frame function and main, which calls init_globals first.
    EmittedLines pages();

private:
    void writePageNames(CodeWriter& out) const;

    const Program& program_;
    ProgramTables& tables_;
};

} // namespace pozhil::resolved::writer
