#pragma once

#include "emit/origins.h"
#include "parser/parser.h"
#include "parser/syntax_tree.h"

#include <cstddef>
#include <string>

namespace pozhil {

class FirstEdition;

/// Translates a program into one C++17 text that holds the whole runtime of the language and the program itself.
///
/// An object is used once.
class Generator {
public:
    /// \param program the tree; it and the tables outlive the generator
    /// \param functions parameters of the functions that stand outside all others
    /// \param structs structures of the program
    /// \param abstractStructs abstract structures of the program
    /// \param source text of the source file, for the source line of diagnostics
    /// \param filePath the source path as the user gave it; it is written into the text as it stands
    Generator(const Program& program, const FunctionTable& functions, const StructTable& structs,
              const AbstractStructTable& abstractStructs, std::string source, std::string filePath);

    Generator(const Generator&) = delete;
    Generator& operator=(const Generator&) = delete;

    /// The whole text. The same program gives the same bytes.
    /// \throws Fault for what is wrong in the program at sight
    std::string generate();

    /// How many bytes at the head of the generated text are the runtime. They change with the start page and the source
    /// path only.
    std::size_t runtimeLength() const { return runtimeLength_; }

    /// Which node of the program each part of the generated text was written for.
    const Origins& origins() const { return origins_; }

private:
    void writeRuntime(FirstEdition& edition) const;
    void writeDefinitions(FirstEdition& edition) const;
    void writeSetUp(FirstEdition& edition) const;
    void writeConsoleMain(FirstEdition& edition) const;

    const Program& program_;
    const FunctionTable& functions_;
    const StructTable& structures_;
    const AbstractStructTable& abstracts_;
    const std::string source_;
    const std::string path_;
    std::size_t runtimeLength_ = 0;
    Origins origins_;
};

} // namespace pozhil
