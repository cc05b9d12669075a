#pragma once

#include "generator/second/emitted_lines.h"
#include "generator/second/program_tables.h"

#include <cstddef>
#include <string>
#include <vector>

namespace pozhil::resolved::writer {

/// Puts the whole text of a program together.
class ProgramWriter {
public:
    explicit ProgramWriter(const Program& program) : program_(program), tables_(program) {}

    EmittedLines write();
    /// How many bytes at its head are the runtime of pages.
    std::size_t runtimeLength() const { return runtimeLength_; }

private:
    void writeFunctions();
    void writeStructures();
    /// The statements of a file, several functions if they are many: g++ takes longer than linear time for one.
    void writeStart(std::size_t file);
    void writeVariables();
    /// Names that come up while the rest is written: members, texts, built-ins that are values.
    void writeConstants();
    void writeMembers();
    void writeTexts();
    void writeBuiltinValues();
    /// What the engine is told of the program, and main.
    void writeProgram();
    /// The braces of what the engine is told.
    std::string programInfo() const;
    void writeSources();
    void writeSources(bool withTexts);

    const Program& program_;
    ProgramTables tables_;
    EmittedLines constants_;
    EmittedLines variables_;
    EmittedLines declarations_;
    EmittedLines definitions_;
    EmittedLines ending_;
    /// Of an application; empty in a console program.
    EmittedLines pages_;
    std::size_t runtimeLength_ = 0;
    /// The functions that carry out the statements of all files, in their order.
    std::vector<std::string> starts_;
};

} // namespace pozhil::resolved::writer
