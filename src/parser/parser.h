#pragma once

#include "base/source_text.h"
#include "parser/declarations.h"
#include "parser/syntax_tree.h"
#include "scanner/token.h"

#include <memory>
#include <string>
#include <vector>

namespace pozhil {

struct FileParse;
struct ParseSession;

/// The stage that turns the tokens of a source file into a tree; imported files are parsed on the spot and merged in.
///
/// There is no recovery: the first fault ends the parse.
class Parser {
public:
    /// \param tokens all tokens of the file, ending in END_OF_FILE
    /// \param source the file's text, for the source line of diagnostics
    /// \param filename the path that diagnostics show
    /// \param moduleDirectories where imports are looked for after the working directory, in order
    Parser(std::vector<Token> tokens, std::string source, std::string filename,
           std::vector<std::string> moduleDirectories = {});
    ~Parser();

    Parser(const Parser&) = delete;
    Parser& operator=(const Parser&) = delete;

    /// Parses the whole file. The statements of imported files come first, in the order of their imports.
    /// \throws Fault
    Program parse();

    /// Parses the targets of an animation, each by its own word, into the record that holds one field for each. Animation
    /// blocks keep their targets by name instead and don't come here.
    AnimationTargetNode parseAnimationTarget();

    const FunctionTable& functions() const;
    const StructTable& structs() const;
    const AbstractStructTable& abstractStructs() const;

private:
    std::unique_ptr<ParseSession> session_;
    std::unique_ptr<FileParse> file_;
};

} // namespace pozhil
