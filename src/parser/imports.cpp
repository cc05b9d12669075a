#include "base/source_text.h"
#include "parser/parser.h"
#include "scanner/lexer.h"

#include <iterator>
#include <utility>

namespace pozhil {
namespace {

/// The web module has a short name.
constexpr std::string_view WEB_MODULE = "வலைதளம்";
constexpr std::string_view WEB_MODULE_PATH = "தொகுப்புகள்/வலைதளம்/வலைதளம்.பொழில்";

bool endsWith(std::string_view text, std::string_view ending) {
    return text.size() >= ending.size() && text.substr(text.size() - ending.size()) == ending;
}

std::string modulePath(std::string_view written) {
    std::string path(written == WEB_MODULE ? WEB_MODULE_PATH : written);
    if (!endsWith(path, ".pozhil") && !endsWith(path, ".பொழில்")) {
        path += ".பொழில்";
    }
    return path;
}

} // namespace

/// நூஇறக்கி "path": parses the file now and keeps its statements for the front of the program. A file that has been
/// imported under this very spelling before is passed over, which also ends circular imports.
StatementPtr Parser::parseImportStatement() {
    const std::int32_t line = advance().line;
    const std::string path = modulePath(consume(TokenType::STRING, "பொழி-281").value);
    if (!importedFiles_.insert(path).second) {
        return nullptr;
    }
    std::vector<std::string> candidates = {path};
    for (const std::string& directory : moduleDirectories_) {
        candidates.push_back(directory);
        candidates.back().append("/").append(path);
    }
    for (const std::string& candidate : candidates) {
        if (auto text = readSourceText(candidate)) {
            parseImportedFile(candidate, std::move(*text));
            return nullptr;
        }
    }
    பிழை("பொழி-281", line);
}

void Parser::parseImportedFile(const std::string& path, std::string text) {
    // Diagnostics of the nested parser name no file: the importing file isn't to blame, and a name without its source
    // line would mislead.
    Parser nested(Lexer(std::move(text), path).tokenize(), "", "", moduleDirectories_);
    nested.importedFiles_ = std::move(importedFiles_);
    nested.nesting_ = nesting_;
    Program program = nested.parse();

    functions_.merge(nested.functions_);
    structs_.merge(nested.structs_);
    abstractStructs_.merge(nested.abstractStructs_);
    enums_.merge(nested.enums_);
    importedFiles_ = std::move(nested.importedFiles_);
    importedStatements_.insert(importedStatements_.end(), std::make_move_iterator(program.statements.begin()),
                               std::make_move_iterator(program.statements.end()));
    droppedStatements_.insert(droppedStatements_.end(), std::make_move_iterator(nested.droppedStatements_.begin()),
                              std::make_move_iterator(nested.droppedStatements_.end()));
}

} // namespace pozhil
