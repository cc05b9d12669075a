#include "parser/parser.h"

#include "parser/file_parse.h"

#include <utility>

namespace pozhil {

Parser::Parser(std::vector<Token> tokens, std::string source, std::string filename,
               std::vector<std::string> moduleDirectories)
    : session_(std::make_unique<ParseSession>(ParseSession{ImportLoader(std::move(moduleDirectories))})),
      file_(std::make_unique<FileParse>(*session_, std::move(tokens),
                                        makeSource(std::move(filename), std::move(source)))) {}

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

} // namespace pozhil
