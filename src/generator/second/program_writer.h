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
    void writeSources();

    const Program& program_;
    ProgramTables tables_;
    EmittedLines constants_;
    EmittedLines variables_;
    EmittedLines declarations_;
    EmittedLines definitions_;
    EmittedLines ending_;
    /// The functions that carry out the statements of all files, in their order.
    std::vector<std::string> starts_;
};

} // namespace pozhil::resolved::writer
