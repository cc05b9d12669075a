#include "tools/language_server/names.h"

#include "base/text.h"
#include "front_end/second_imports.h"
#include "parser/import_loader.h"
#include "tools/language_server/protocol.h"

#include <algorithm>
#include <deque>
#include <ios>
#include <set>

namespace pozhil::language_server {
namespace {

constexpr std::string_view COMMENT_SIGN = "ஃ";
constexpr std::string_view SELF = "தான்";
constexpr const char* APPLICATION = "வலைதளம்";

SourcePtr loadImport(const Workspace& workspace, const NamedSource& importer, const std::string& written) {
    const FrontEndOptions& options = workspace.frontEndOptions();
    try {
        if (importer.outline->edition == Edition::Second) {
            return SecondImports(options).load(written, importer.source->path);
        }
        return ImportLoader(*options.loader, options.moduleDirectories).load(ImportLoader::modulePath(written));
    } catch (const std::ios_base::failure&) {
        return nullptr; // opened but not read: as good as missing
    }
}

/// The structure whose method or field a byte stands in; null outside.
const Symbol* structureAt(const Outline& outline, std::size_t offset) {
    std::size_t at = outline.scopeAt(offset);
    while (at != NO_INDEX && outline.symbols[at].kind != SymbolKind::Structure) {
        at = outline.symbols[at].parent;
    }
    return at == NO_INDEX ? nullptr : &outline.symbols[at];
}

/// What stands before the dot of a member, if it has members that are certain: an enumeration or the object itself.
const Symbol* ownerBefore(const std::vector<NamedSource>& files, std::size_t member) {
    const Outline& outline = *files.front().outline;
    if (member < 2 || !outline.isWord(member - 2)) {
        return nullptr;
    }
    const std::string& name = outline.token(member - 2).value;
    const std::size_t offset = outline.placeOf(member - 2).begin;
    if (name == SELF) {
        return structureAt(outline, offset);
    }
    for (const NamedSource& file : files) {
        const Symbol* const found = file.outline->find(name, &file == &files.front() ? offset : 0);
        if (found != nullptr) {
            return found->kind == SymbolKind::Enumeration ? found : nullptr;
        }
    }
    return nullptr;
}

void addMembers(const std::vector<NamedSource>& files, const Symbol& owner, std::set<const Symbol*>& seen,
                std::vector<FoundSymbol>& found) {
    if (!seen.insert(&owner).second) {
        return;
    }
    for (const NamedSource& file : files) {
        for (const Symbol& symbol : file.outline->symbols) {
            if (symbol.parent != NO_INDEX && &file.outline->symbols[symbol.parent] == &owner && isMember(symbol)) {
                found.push_back({file, &symbol});
            } else if (!owner.parentStructure.empty() && symbol.name == owner.parentStructure &&
                       symbol.parent == NO_INDEX && symbol.kind == SymbolKind::Structure) {
                addMembers(files, symbol, seen, found);
            }
        }
    }
}

} // namespace

NamedSource askedSource(const Workspace& workspace, const Json& params, const Document*& document) {
    const std::string uri = documentUri(params);
    document = workspace.find(uri);
    if (document == nullptr) {
        throw RequestError(ErrorCode::InvalidParams, "not open: " + uri);
    }
    return {document->source(), workspace.outlineOf(document->source())};
}

AskedPlace askedPlace(const Workspace& workspace, const Json& params) {
    AskedPlace place;
    place.file = askedSource(workspace, params, place.document);
    place.offset = place.document->sourceOffsetAt(positionFrom(params.at("position")));
    place.token = place.file.outline->tokenAt(place.offset);
    return place;
}

std::vector<NamedSource> visibleSources(const Workspace& workspace, const NamedSource& file) {
    std::vector<NamedSource> files = {file};
    std::set<std::string> seen = {SecondImports::keyOf(file.source->path)};
    for (std::size_t at = 0; at < files.size(); ++at) {
        const NamedSource importer = files[at];
        for (const Import& import : importer.outline->imports) {
            const SourcePtr source = loadImport(workspace, importer, import.path);
            if (source != nullptr && seen.insert(SecondImports::keyOf(source->path)).second) {
                files.push_back({source, workspace.outlineOf(source)});
            }
        }
        if (file.outline->edition == Edition::Second) {
            break;
        }
    }
    return files;
}

std::vector<FoundSymbol> membersBefore(const std::vector<NamedSource>& files, std::size_t member) {
    if (const Symbol* const owner = ownerBefore(files, member)) {
        return membersOf(files, *owner);
    }
    std::vector<FoundSymbol> found;
    for (const NamedSource& file : files) {
        for (const Symbol& symbol : file.outline->symbols) {
            if (isMember(symbol) && symbol.kind != SymbolKind::EnumerationMember) {
                found.push_back({file, &symbol});
            }
        }
    }
    return found;
}

bool isMemberToken(const Outline& outline, std::size_t token) {
    return token != NO_INDEX && token > 0 && outline.isType(token - 1, TokenType::DOT);
}

std::vector<FoundSymbol> membersOf(const std::vector<NamedSource>& files, const Symbol& owner) {
    std::vector<FoundSymbol> found;
    std::set<const Symbol*> seen;
    addMembers(files, owner, seen, found);
    return found;
}

std::vector<FoundSymbol> meaningsOf(const Workspace& workspace, const NamedSource& file, std::size_t token) {
    return meaningsOf(visibleSources(workspace, file), token);
}

std::vector<FoundSymbol> meaningsOf(const std::vector<NamedSource>& files, std::size_t token) {
    const NamedSource& file = files.front();
    const Outline& outline = *file.outline;
    if (!outline.isWord(token)) {
        return {};
    }
    const std::string& name = outline.token(token).value;
    const std::size_t offset = outline.placeOf(token).begin;
    // Where it is declared it means itself.
    for (const Symbol& symbol : outline.symbols) {
        if (symbol.place.begin == offset && symbol.place.end > symbol.place.begin) {
            return {{file, &symbol}};
        }
    }
    if (isMemberToken(outline, token)) {
        std::vector<FoundSymbol> found = membersBefore(files, token);
        found.erase(std::remove_if(found.begin(), found.end(),
                                   [&](const FoundSymbol& member) { return member.symbol->name != name; }),
                    found.end());
        return found;
    }
    for (std::size_t i = 0; i < files.size(); ++i) {
        const Symbol* const symbol = files[i].outline->find(name, i == 0 ? offset : 0);
        if (symbol != nullptr && (i == 0 || symbol->parent == NO_INDEX)) {
            return {{files[i], symbol}};
        }
    }
    return {};
}

std::string headingOf(const Symbol& symbol) {
    switch (symbol.kind) {
    case SymbolKind::Application: return symbol.name == APPLICATION ? symbol.name : APPLICATION + (" " + symbol.name);
    case SymbolKind::Structure:
        return "கட்டமைப்பு " + symbol.name + (symbol.parentStructure.empty() ? "" : "(" + symbol.parentStructure + ")");
    case SymbolKind::AbstractStructure: return "வடிவமைப்பு " + symbol.name;
    case SymbolKind::Enumeration: return "வகை " + symbol.name;
    case SymbolKind::Function:
    case SymbolKind::Method: break;
    default: return symbol.name;
    }
    std::string heading = "செயல் " + symbol.name + "(";
    for (const std::string& parameter : symbol.parameters) {
        heading += (&parameter == &symbol.parameters.front() ? "" : ", ") + parameter;
    }
    return heading + ")";
}

std::string commentAbove(const FoundSymbol& found) {
    const std::string_view text = found.file.source->text;
    const bool isMarked = found.file.outline->edition == Edition::Second;
    std::deque<std::string_view> lines;
    std::size_t lineBegin = text.rfind('\n', found.symbol->whole.begin);
    while (lineBegin != std::string_view::npos) {
        const std::size_t before = lineBegin == 0 ? std::string_view::npos : text.rfind('\n', lineBegin - 1);
        const std::size_t begin = before == std::string_view::npos ? 0 : before + 1;
        std::string_view line = text.substr(begin, lineBegin - begin);
        line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
        const bool isComment = startsWith(line, COMMENT_SIGN) && !(isMarked && begin == 0);
        if (!isComment) {
            break;
        }
        line.remove_prefix(COMMENT_SIGN.size());
        line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
        lines.push_front(line);
        lineBegin = before;
    }
    std::string comment;
    for (const std::string_view line : lines) {
        comment += std::string(line) + "\n";
    }
    return comment;
}

} // namespace pozhil::language_server
