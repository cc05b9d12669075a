#pragma once

#include "base/source_loader.h"
#include "diagnostics/fault_log.h"
#include "parser/declarations.h"
#include "parser/node_places.h"
#include "parser/syntax_tree.h"
#include "scanner/scanned_source.h"

#include <memory>
#include <string>
#include <vector>

namespace pozhil {

struct FileParse;
struct ParseSession;

/// How a file is parsed.
struct ParseOptions {
    /// Reads what is imported.
    const SourceLoader& loader;
    /// Where imports are looked for after the working directory, in order.
    std::vector<std::string> moduleDirectories{};
    /// Takes the faults that the parse goes on after; null to throw the first one.
    FaultLog* faults = nullptr;
};

/// The stage that turns the tokens of a source file into a tree; imported files are parsed on the spot and merged in.
///
/// The first fault ends the parse, unless somebody asks for more of them.
class Parser {
public:
    /// \param scanned the file and its tokens
    /// \param options whose loader and fault log outlive the parser
    Parser(ScannedSource scanned, ParseOptions options);

    /// A parser of tokens without places, which reads imports from files.
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
    /// \throws Fault if no log takes them
    /// \throws FaultLog::Full if a log takes no more
    Program parse();

    /// Parses the targets of an animation, each by its own word, into the record that holds one field for each. Animation
    /// blocks keep their targets by name instead and don't come here.
    AnimationTargetNode parseAnimationTarget();

    const FunctionTable& functions() const;
    const StructTable& structs() const;
    const AbstractStructTable& abstractStructs() const;
    /// What stands in structures and is neither field nor method: no part of the program, and without effect.
    const StatementList& droppedStatements() const;

    /// The file with its tokens.
    const ScannedSource& scanned() const;

    /// Where the nodes of the tree stand, those of imported files too.
    const NodePlaces& places() const;

private:
    std::unique_ptr<ParseSession> session_;
    std::unique_ptr<FileParse> file_;
};

} // namespace pozhil
