#pragma once

#include <string>
#include <vector>

/// The words of the command பொழில், which stands beside the compiler: a tool each.
namespace pozhil::tools {

/// How the command ends.
enum ExitStatus : int {
    DONE = 0,
    FAULT_IN_SOURCE = 1, ///< told as the compiler tells it
    WRONG_USE = 2,       ///< what was asked for makes no sense
    FAILED = 3           ///< something is missing or went wrong on this machine
};

/// A tool: what follows the command's name.
struct Word {
    const char* tamil;
    const char* english;
    /// What it does, a line each for the list of all words
    const char* summary;
    const char* englishSummary;
    /// How it is used, in Tamil and then in English
    const char* help;
    /// Does it, with the arguments after the word.
    int (*run)(const std::vector<std::string>& arguments);
};

/// Builds an application for any web host.
extern const Word PUBLISH;

/// Runs a program.
extern const Word RUN;
/// Makes a folder for a new program.
extern const Word NEW;
/// Tells the faults of sources.
extern const Word CHECK;
/// Sets sources in the one style.
extern const Word FORMAT;
/// Runs the tests of a project.
extern const Word TEST;
/// Explains the number of a fault.
extern const Word EXPLAIN;
/// Tells editors of sources. Only where the build found what it needs.
extern const Word LANGUAGE_SERVER;

/// All words, in the order in which the help lists them.
const std::vector<const Word*>& words();

/// The word of this name in either language; null if there is none.
const Word* findWord(const std::string& name);

} // namespace pozhil::tools
