#include "parser/grammar/imports.h"

#include "parser/file_parse.h"
#include "scanner/lexer.h"
#include "scanner/second/edition_marker.h"

#include <iterator>
#include <utility>

namespace pozhil {
namespace {

/// Whether the first line asks for the second edition, which means other things by the same words.
bool isOfSecondEdition(const SourceText& source) {
    return second::markedEdition(lineOf(source.text, 1)) == second::SECOND_EDITION;
}

} // namespace

StatementPtr ImportGrammar::parseImportStatement() {
    const std::int32_t line = cursor_.advance().line;
    const std::string path = ImportLoader::modulePath(cursor_.consume(TokenType::STRING, "பொழி-281").value);
    if (!parse_.session.importLoader.isFirstImport(path)) {
        return nullptr;
    }
    const SourcePtr source = parse_.session.importLoader.load(path);
    if (source == nullptr) {
        cursor_.பிழை("பொழி-281", line);
    }
    if (isOfSecondEdition(*source)) {
        cursor_.பிழை("பொழி-283", line);
    }
    recovery_.noteScanFaults();
    parseImportedFile(source);
    return nullptr;
}

/// Faults of the grammar in it name no file: the importing file isn't to blame, and a name without its source line would
/// mislead.
void ImportGrammar::parseImportedFile(const SourcePtr& source) {
    const FaultLog* faults = parse_.session.faults;
    ScannedSource scanned = Lexer(source).scan(faults == nullptr ? 0 : faults->limit());
    FileParse imported(parse_.session, std::move(scanned), makeSource("", ""), nesting_.height());
    Program program = imported.statements.parseProgram();
    declarations_.merge(std::move(imported.declarations));
    statements_.insert(statements_.end(), std::make_move_iterator(program.statements.begin()),
                       std::make_move_iterator(program.statements.end()));
}

StatementList ImportGrammar::takeStatements() {
    return std::exchange(statements_, {});
}

} // namespace pozhil
