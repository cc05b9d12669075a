#include "tools/language_server/requests.h"

#include "tools/language_server/requests/code_actions.h"
#include "tools/language_server/requests/colours.h"
#include "tools/language_server/requests/completion.h"
#include "tools/language_server/requests/definition.h"
#include "tools/language_server/requests/folding.h"
#include "tools/language_server/requests/formatting.h"
#include "tools/language_server/requests/hover.h"
#include "tools/language_server/requests/rename.h"
#include "tools/language_server/requests/semantic_tokens.h"
#include "tools/language_server/requests/signature_help.h"
#include "tools/language_server/requests/symbols.h"
#include "tools/language_server/requests/synchronization.h"

#include <map>

namespace pozhil::language_server {
namespace {

/// As the protocol numbers it: edits, not whole texts.
constexpr int INCREMENTAL = 2;

} // namespace

RequestHandler findRequest(const std::string& method) {
    static const std::map<std::string, RequestHandler> handlers = {
        {"textDocument/codeAction", codeActions},
        {"textDocument/colorPresentation", colourPresentations},
        {"textDocument/completion", completion},
        {"textDocument/definition", definition},
        {"textDocument/documentColor", documentColours},
        {"textDocument/documentHighlight", documentHighlights},
        {"textDocument/documentSymbol", documentSymbols},
        {"textDocument/foldingRange", foldingRanges},
        {"textDocument/formatting", formatting},
        {"textDocument/hover", hover},
        {"textDocument/prepareRename", prepareRename},
        {"textDocument/references", references},
        {"textDocument/rename", rename},
        {"textDocument/semanticTokens/full", semanticTokens},
        {"textDocument/signatureHelp", signatureHelp},
    };
    const auto found = handlers.find(method);
    return found == handlers.end() ? nullptr : found->second;
}

NotificationHandler findNotification(const std::string& method) {
    static const std::map<std::string, NotificationHandler> handlers = {
        {"textDocument/didOpen", didOpen},
        {"textDocument/didChange", didChange},
        {"textDocument/didClose", didClose},
        {"workspace/didChangeWatchedFiles", filesChanged},
    };
    const auto found = handlers.find(method);
    return found == handlers.end() ? nullptr : found->second;
}

Json capabilities(Encoding encoding) {
    return {
        {"positionEncoding", encoding == Encoding::Utf8 ? "utf-8" : "utf-16"},
        {"textDocumentSync", {{"openClose", true}, {"change", INCREMENTAL}}},
        {"codeActionProvider", {{"codeActionKinds", {"quickfix"}}}},
        {"colorProvider", true},
        {"completionProvider", {{"triggerCharacters", {".", "\"", ":"}}}},
        {"definitionProvider", true},
        {"documentFormattingProvider", true},
        {"documentHighlightProvider", true},
        {"documentSymbolProvider", true},
        {"foldingRangeProvider", true},
        {"hoverProvider", true},
        {"referencesProvider", true},
        {"renameProvider", {{"prepareProvider", true}}},
        {"semanticTokensProvider", {{"legend", semanticTokenLegend()}, {"full", true}}},
        {"signatureHelpProvider", {{"triggerCharacters", {"(", ","}}}},
    };
}

} // namespace pozhil::language_server
