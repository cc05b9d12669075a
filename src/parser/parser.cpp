#include "parser/parser.h"

#include "parser/file_parse.h"

#include <utility>

namespace pozhil {
namespace {

const SourceLoader& fileLoader() {
    static const FileLoader loader;
    return loader;
}

} // namespace

Parser::Parser(ScannedSource scanned, ParseOptions options)
    : session_(std::make_unique<ParseSession>(
          ParseSession{ImportLoader(options.loader, std::move(options.moduleDirectories)), {}, options.faults})) {
    const SourcePtr source = scanned.source;
    file_ = std::make_unique<FileParse>(*session_, std::move(scanned), source);
}

Parser::Parser(std::vector<Token> tokens, std::string source, std::string filename,
               std::vector<std::string> moduleDirectories)
    : Parser({makeSource(std::move(filename), std::move(source)), std::move(tokens), {}, {}},
             {fileLoader(), std::move(moduleDirectories)}) {}

Parser::~Parser() = default;

Program Parser::parse() {
    return file_->statements.parseProgram();
}

AnimationTargetNode Parser::parseAnimationTarget() {
    return file_->animations.parseAnimationTarget();
}

const FunctionTable& Parser::functions() const {
    return file_->declarations.functions;
}

const StructTable& Parser::structs() const {
    return file_->declarations.structs;
}

const AbstractStructTable& Parser::abstractStructs() const {
    return file_->declarations.abstractStructs;
}

const StatementList& Parser::droppedStatements() const {
    return file_->declarations.droppedStatements;
}

const ScannedSource& Parser::scanned() const {
    return file_->scanned;
}

const NodePlaces& Parser::places() const {
    return session_->places;
}

} // namespace pozhil
