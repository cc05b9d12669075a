#pragma once

#include "parser/parser.h"
#include "parser/syntax_tree.h"

#include <cstddef>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace pozhil {

/// The stages between source and output text.
enum class Stage { Scan, Parse, Generate };

/// A stage failed by something that has no box: a fault without a place, or an exception.
class StageFailure : public std::runtime_error {
public:
    StageFailure(Stage failedStage, const std::string& what) : std::runtime_error(what), stage(failedStage) {}

    const Stage stage;
};

/// A source file and what became of it so far.
struct SourceFile {
    std::string path;
    std::string text;
    /// Stays alive behind the tree: its tables of functions and structures are needed for the output text.
    std::unique_ptr<Parser> parser;
    Program program;
};

/// The output text of a program.
struct OutputText {
    std::string text;
    /// How many bytes at its head are the runtime
    std::size_t runtimeLength = 0;
};

/// Scans and parses \p source.text, imported files included.
/// \throws Fault
/// \throws StageFailure
void parseSource(SourceFile& source, const std::vector<std::string>& moduleDirectories);

/// Translates a parsed source into the output text.
/// \throws Fault
/// \throws StageFailure
OutputText generateText(const SourceFile& source);

/// Whether the program declares an application at top level, and so is for the web.
bool isWebProgram(const Program& program);

/// Tells of a failure in the first compile, on standard error.
void reportFirstFailure(const StageFailure& failure);

/// Tells of a failure while a console program is watched, on standard error.
void reportWatchFailure(const StageFailure& failure);

/// Tells of a failure while an application is watched, on standard error.
void reportWebWatchFailure(const StageFailure& failure);

} // namespace pozhil
