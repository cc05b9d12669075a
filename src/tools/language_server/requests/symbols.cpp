#include "tools/language_server/requests/symbols.h"

#include "tools/language_server/names.h"
#include "tools/language_server/protocol.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace pozhil::language_server {
namespace {

/// As the protocol numbers them.
int numberOf(SymbolKind kind) {
    switch (kind) {
    case SymbolKind::Application: return 2;
    case SymbolKind::Structure: return 5;
    case SymbolKind::Method: return 6;
    case SymbolKind::Field: return 8;
    case SymbolKind::Enumeration: return 10;
    case SymbolKind::AbstractStructure: return 11;
    case SymbolKind::Function: return 12;
    case SymbolKind::EnumerationMember: return 22;
    default: return 13;
    }
}

bool isListed(const Outline& outline, const Symbol& symbol) {
    const bool isInFunction =
        symbol.parent != NO_INDEX && (outline.symbols[symbol.parent].kind == SymbolKind::Function ||
                                      outline.symbols[symbol.parent].kind == SymbolKind::Method);
    return symbol.kind != SymbolKind::Parameter && (symbol.kind != SymbolKind::Variable || !isInFunction);
}

Json jsonOf(const Document& document, const Symbol& symbol) {
    return {{"name", symbol.name},
            {"detail", headingOf(symbol)},
            {"kind", numberOf(symbol.kind)},
            {"range", language_server::jsonOf(document.rangeOf(symbol.whole))},
            {"selectionRange", language_server::jsonOf(document.rangeOf(symbol.place))}};
}

Json reversed(Json list) {
    std::reverse(list.begin(), list.end());
    return list;
}

} // namespace

Json documentSymbols(const Workspace& workspace, const Json& params) {
    const Document* document = nullptr;
    const NamedSource file = askedSource(workspace, params, document);
    const Outline& outline = *file.outline;
    std::vector<Json> nodes(outline.symbols.size());
    Json top = Json::array();
    // Backward: what a symbol holds is complete before it goes into what it stands in.
    for (std::size_t i = outline.symbols.size(); i-- > 0;) {
        const Symbol& symbol = outline.symbols[i];
        if (!isListed(outline, symbol)) {
            continue;
        }
        Json node = jsonOf(*document, symbol);
        if (!nodes[i].is_null()) {
            node["children"] = reversed(std::move(nodes[i]));
        }
        Json& parent = symbol.parent == NO_INDEX ? top : nodes[symbol.parent];
        parent.push_back(std::move(node));
    }
    return reversed(std::move(top));
}

} // namespace pozhil::language_server
