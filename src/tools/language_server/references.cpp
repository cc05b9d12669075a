#include "tools/language_server/references.h"

#include "front_end/second_imports.h"

#include <algorithm>
#include <set>
#include <string>

namespace pozhil::language_server {
namespace {

/// The sources that may mean the symbol: for one of a function, its own.
std::vector<NamedSource> sourcesFor(const Workspace& workspace, const FoundSymbol& symbol) {
    std::vector<NamedSource> sources = {symbol.file};
    std::set<std::string> seen = {SecondImports::keyOf(symbol.file.source->path)};
    const bool isLocal = symbol.symbol->parent != NO_INDEX && !isMember(*symbol.symbol);
    for (const SourcePtr& open : isLocal ? std::vector<SourcePtr>() : workspace.openSources()) {
        for (const NamedSource& file : visibleSources(workspace, {open, workspace.outlineOf(open)})) {
            if (seen.insert(SecondImports::keyOf(file.source->path)).second) {
                sources.push_back(file);
            }
        }
    }
    return sources;
}

} // namespace

std::vector<Reference> referencesTo(const Workspace& workspace, const FoundSymbol& symbol) {
    std::vector<Reference> references;
    for (const NamedSource& file : sourcesFor(workspace, symbol)) {
        const Outline& outline = *file.outline;
        const std::vector<NamedSource> files = visibleSources(workspace, file);
        for (std::size_t i = 0; i < outline.scanned.tokens.size(); ++i) {
            if (outline.token(i).value != symbol.symbol->name || !outline.isWord(i)) {
                continue;
            }
            const std::vector<FoundSymbol> meanings = meaningsOf(files, i);
            const bool isMeant = std::any_of(meanings.begin(), meanings.end(), [&](const FoundSymbol& found) {
                return found.file.source->path == symbol.file.source->path &&
                       found.symbol->place.begin == symbol.symbol->place.begin;
            });
            if (isMeant) {
                references.push_back({file.source, outline.placeOf(i)});
            }
        }
    }
    return references;
}

} // namespace pozhil::language_server
