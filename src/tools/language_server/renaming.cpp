#include "tools/language_server/renaming.h"

#include "base/line_index.h"
#include "front_end/second_imports.h"
#include "platform/paths.h"
#include "scanner/second/normal_form.h"
#include "tools/language_server/changed_texts.h"
#include "tools/language_server/import_graph.h"
#include "tools/language_server/new_name.h"
#include "tools/language_server/protocol.h"
#include "tools/language_server/rename_proof.h"
#include "tools/language_server/surroundings.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <set>
#include <system_error>
#include <utility>

namespace pozhil::language_server {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void refuse(const std::string& reason) {
    throw RequestError(ErrorCode::RequestFailed, reason);
}

std::string inQuotes(std::string_view name) {
    return "'" + std::string(name) + "'";
}

std::string fileName(const SourcePtr& source) {
    return fs::u8path(source->path).filename().u8string();
}

/// "file, line 3"
std::string placeName(const NamedSource& file, ByteRange place) {
    return fileName(file.source) + ", வரி " + std::to_string(LineIndex(file.source->text).lineAt(place.begin));
}

bool isSame(const FoundSymbol& one, const FoundSymbol& other) {
    return one.file.source->path == other.file.source->path && one.symbol->place.begin == other.symbol->place.begin;
}

bool holds(const std::vector<FoundSymbol>& symbols, const FoundSymbol& symbol) {
    return std::any_of(symbols.begin(), symbols.end(), [&](const FoundSymbol& one) { return isSame(one, symbol); });
}

bool isUnder(const std::string& path, const std::string& folder) {
    std::error_code ignored;
    const fs::path inside = fs::weakly_canonical(fs::u8path(path), ignored);
    const fs::path around = fs::weakly_canonical(fs::u8path(folder), ignored);
    return !around.empty() &&
           std::mismatch(around.begin(), around.end(), inside.begin(), inside.end()).first == around.end();
}

bool isShipped(const Workspace& workspace, const std::string& path) {
    const std::vector<std::string>& folders = workspace.frontEndOptions().moduleDirectories;
    return std::any_of(folders.begin(), folders.end(),
                       [&](const std::string& folder) { return isUnder(path, folder); });
}

bool isOpen(const Workspace& workspace, const std::string& path) {
    const std::vector<SourcePtr> open = workspace.openSources();
    const std::string key = SecondImports::keyOf(path);
    return std::any_of(open.begin(), open.end(),
                       [&](const SourcePtr& source) { return SecondImports::keyOf(source->path) == key; });
}

/// An open text is the editor's to save.
void refuseUnwritable(const Workspace& workspace, const SourcePtr& source) {
    if (isShipped(workspace, source->path)) {
        refuse(inQuotes(fileName(source)) + " மொழியோடு வரும் தொகுப்பு; அதை மாற்ற முடியாது.");
    }
    if (isOpen(workspace, source->path)) {
        return;
    }
    if (workspace.folder().empty() || !isUnder(source->path, workspace.folder())) {
        refuse(inQuotes(fileName(source)) + " திறந்துள்ள அடைவுக்கு வெளியே உள்ளது; அதை மாற்ற முடியாது.");
    }
    if (!platform::isWritableFile(fs::u8path(source->path))) {
        refuse(inQuotes(fileName(source)) + " எழுத முடியாத கோப்பு.");
    }
}

/// Finds the places of one name, file by file.
class UseSearch {
public:
    UseSearch(const Workspace& workspace, NameUse& use) : workspace_(workspace), use_(use) {}

    /// \return whether more symbols must be renamed together with those that were known
    bool search() {
        const std::size_t known = use_.symbols.size();
        addFamilies();
        use_.places.clear();
        for (const NamedSource& file : use_.files) {
            searchIn(file);
        }
        return use_.symbols.size() > known;
    }

private:
    /// In the first edition a variable belongs to the whole program, whichever function gives it a value.
    bool isOfProgram(const Symbol& symbol) const {
        return use_.edition == Edition::First && symbol.kind == SymbolKind::Variable;
    }

    void add(const FoundSymbol& symbol) {
        if (!holds(use_.symbols, symbol)) {
            use_.symbols.push_back(symbol);
        }
    }

    void searchIn(const NamedSource& file) {
        const Outline& outline = *file.outline;
        std::vector<NamedSource> visible;
        for (std::size_t i = 0; i < outline.scanned.tokens.size(); ++i) {
            if (outline.token(i).value != use_.name) {
                continue;
            }
            if (outline.isType(i, TokenType::STRING) && isVariableInText(outline, i)) {
                const ByteRange whole = outline.placeOf(i);
                use_.places.push_back({file.source, {whole.begin + 1, whole.end - 1}});
            } else if (outline.isType(i, TokenType::IDENTIFIER) && !isProperty(outline, i)) {
                if (visible.empty()) {
                    visible = visibleSources(workspace_, file);
                }
                searchAt(visible, i);
            }
        }
    }

    void searchAt(const std::vector<NamedSource>& files, std::size_t token) {
        const NamedSource& file = files.front();
        const std::vector<FoundSymbol> meanings = meaningsOf(files, token);
        const bool isOwn = std::any_of(meanings.begin(), meanings.end(), [&](const FoundSymbol& found) {
            return holds(use_.symbols, found) || (isProgramVariable() && isOfProgram(*found.symbol));
        });
        // Variables of the modules that come with the language keep their names: the proof tells whether they are others.
        if (isProgramVariable() && isShipped(workspace_, file.source->path)) {
            return;
        }
        const bool isElsewhere = meanings.empty() && isProgramVariable() && !isMemberToken(*file.outline, token);
        if (isOwn || isElsewhere) {
            use_.places.push_back({file.source, file.outline->placeOf(token)});
            std::for_each(meanings.begin(), meanings.end(), [&](const FoundSymbol& found) { add(found); });
        }
    }

    bool isProgramVariable() const { return isOfProgram(*use_.symbols.front().symbol); }

    static bool isProperty(const Outline& outline, std::size_t token) {
        if (!outline.isType(token + 1, TokenType::COLON)) {
            return false;
        }
        const auto brackets = openBrackets(outline, outline.placeOf(token).begin);
        return findProperty(propertiesAt(outline, brackets), outline.token(token).value) != nullptr;
    }

    bool isKnownInTexts() const {
        const FoundSymbol& first = use_.symbols.front();
        const std::size_t around = first.symbol->parent;
        const bool isOfFile = around == NO_INDEX || first.file.outline->symbols[around].kind == SymbolKind::Application;
        return first.symbol->kind == SymbolKind::Variable && (isOfFile || isProgramVariable());
    }

    /// Whether a text is the name of a variable, as some properties of widgets have it.
    bool isVariableInText(const Outline& outline, std::size_t token) const {
        if (!isKnownInTexts() || token < 2 || !outline.isType(token - 1, TokenType::COLON)) {
            return false;
        }
        const auto brackets = openBrackets(outline, outline.placeOf(token).begin);
        const auto* const property = findProperty(propertiesAt(outline, brackets), outline.token(token - 2).value);
        return property != nullptr && property->kind == language::ValueKind::Variable;
    }

    /// A member of a structure is that of its parents and children too.
    void addFamilies() {
        std::set<std::string> family;
        for (const FoundSymbol& member : use_.symbols) {
            if (isMember(*member.symbol) && member.symbol->kind != SymbolKind::EnumerationMember &&
                member.symbol->parent != NO_INDEX) {
                family.insert(member.file.outline->symbols[member.symbol->parent].name);
            }
        }
        for (bool grows = !family.empty(); grows;) {
            const std::size_t size = family.size();
            eachStructure([&](const Symbol& structure) {
                if (family.count(structure.name) != 0 || family.count(structure.parentStructure) != 0) {
                    family.insert(structure.name);
                    family.insert(structure.parentStructure);
                    family.erase("");
                }
            });
            grows = family.size() > size;
        }
        for (const NamedSource& file : use_.files) {
            for (const Symbol& symbol : file.outline->symbols) {
                if (symbol.name == use_.name && isMember(symbol) && symbol.parent != NO_INDEX &&
                    family.count(file.outline->symbols[symbol.parent].name) != 0) {
                    add({file, &symbol});
                }
            }
        }
    }

    template <class Visit> void eachStructure(Visit visit) const {
        for (const NamedSource& file : use_.files) {
            for (const Symbol& symbol : file.outline->symbols) {
                if (symbol.kind == SymbolKind::Structure || symbol.kind == SymbolKind::AbstractStructure) {
                    visit(symbol);
                }
            }
        }
    }

    const Workspace& workspace_;
    NameUse& use_;
};

/// Pages are also asked for by texts, which may be put together while the program runs.
void refusePageInTexts(const NameUse& use) {
    if (use.symbols.front().symbol->kind != SymbolKind::Application) {
        return;
    }
    for (const NamedSource& file : use.files) {
        const ScannedSource& scanned = file.outline->scanned;
        for (std::size_t i = 0; i < scanned.tokens.size(); ++i) {
            if (scanned.tokens[i].type == TokenType::STRING && scanned.tokens[i].value == use.name) {
                refuse(inQuotes(use.name) + " என்ற பக்கத்தின் பெயர் ஓர் உரையிலும் உள்ளது (" +
                       placeName(file, scanned.places[i]) + "); அதை மாற்ற முடியாது.");
            }
        }
    }
}

void refuseOtherKindOfName(const NameUse& use, const std::string& newName) {
    if (use.edition == Edition::Second && isTestName(use.name) != isTestName(newName)) {
        refuse("சோதனைச் செயலின் பெயர் 'சோதி_' என்றே தொடங்க வேண்டும்; மற்றவை அப்படித் தொடங்கக் கூடாது.");
    }
}

/// Tells the first thing of this name that is known where the old name stands, or among the same members.
void refuseKnownName(const Workspace& workspace, const NameUse& use, const std::string& newName) {
    const bool isOfMember = isMember(*use.symbols.front().symbol);
    const bool isOfPage = use.symbols.front().symbol->kind == SymbolKind::Application;
    for (const NamedSource& file : use.files) {
        for (const Symbol& symbol : file.outline->symbols) {
            if (isOfMember && isMember(symbol) && symbol.name == newName) {
                refuse(inQuotes(newName) + " என்ற பெயர் ஏற்கெனவே உள்ளது (" + placeName(file, symbol.place) + ").");
            }
        }
    }
    std::vector<NamedSource> visible;
    for (const Reference& place : isOfMember ? std::vector<Reference>() : use.places) {
        // They come file by file.
        if (visible.empty() || visible.front().source->path != place.source->path) {
            visible = visibleSources(workspace, {place.source, workspace.outlineOf(place.source)});
        }
        for (const NamedSource& file : visible) {
            const bool isHere = file.source->path == place.source->path;
            const Symbol* const symbol = file.outline->find(newName, isHere ? place.place.begin : 0);
            // Pages have names of their own.
            const bool isAlike = symbol != nullptr && (symbol->kind == SymbolKind::Application) == isOfPage;
            if (isAlike && (isHere || symbol->parent == NO_INDEX)) {
                refuse(inQuotes(newName) + " என்ற பெயர் ஏற்கெனவே உள்ளது (" + placeName(file, symbol->place) + ").");
            }
        }
    }
}

/// Gives the texts the other name.
void changeName(const NameUse& use, const std::string& newName, ChangedTexts& texts) {
    std::map<std::string, std::pair<SourcePtr, std::vector<ByteRange>>> places;
    for (const Reference& place : use.places) {
        auto& file = places[place.source->path];
        file.first = place.source;
        file.second.push_back(place.place);
    }
    for (auto& [path, file] : places) {
        texts.change(file.first, std::move(file.second), newName);
    }
}

} // namespace

NameUse renamedAt(const Workspace& workspace, const NamedSource& file, std::size_t token) {
    const Outline& outline = *file.outline;
    if (!outline.isWord(token)) {
        refuse("இங்கே மாற்றக்கூடிய பெயர் எதுவும் இல்லை.");
    }
    NameUse use;
    use.edition = outline.edition;
    use.name = outline.token(token).value;
    if (isNameWithMeaning(use.name)) {
        refuse(inQuotes(use.name) + " மொழியே தரும் பெயர்; அதை மாற்ற முடியாது.");
    }
    use.symbols =
        outline.isType(token, TokenType::IDENTIFIER) ? meaningsOf(workspace, file, token) : std::vector<FoundSymbol>();
    if (use.symbols.empty()) {
        const bool isOfLanguage = !objectionTo(use.name, use.edition).empty();
        refuse(inQuotes(use.name) +
               (isOfLanguage ? " மொழியின் சொல்; அதை மாற்ற முடியாது." : " என்ற பெயர் எங்கே அறிவிக்கப்பட்டது என்று தெரியவில்லை."));
    }
    for (const FoundSymbol& symbol : use.symbols) {
        refuseUnwritable(workspace, symbol.file.source);
    }
    return use;
}

void findUses(const Workspace& workspace, NameUse& use) {
    ImportGraph graph(workspace);
    for (bool isMore = true; isMore;) {
        std::set<std::string> keys;
        for (const FoundSymbol& symbol : use.symbols) {
            graph.add(symbol.file);
            keys.insert(SecondImports::keyOf(symbol.file.source->path));
        }
        ImportGraph::Programs found = graph.programsWith(keys);
        use.programs = std::move(found.programs);
        use.files = std::move(found.files);
        isMore = UseSearch(workspace, use).search();
    }
    std::set<std::string> seen;
    for (const Reference& place : use.places) {
        if (seen.insert(place.source->path).second) {
            refuseUnwritable(workspace, place.source);
        }
    }
}

void checkNewName(const Workspace& workspace, const NameUse& use, const std::string& newName) {
    const std::string name = use.edition == Edition::Second ? second::normalForm(newName) : newName;
    if (name == use.name) {
        return;
    }
    if (const std::string objection = objectionTo(name, use.edition); !objection.empty()) {
        refuse(objection);
    }
    refuseOtherKindOfName(use, name);
    refusePageInTexts(use);
    refuseKnownName(workspace, use, name);
    ChangedTexts renamed(workspace);
    changeName(use, newName, renamed);
    for (const NamedSource& program : use.programs) {
        const auto before = compiledText(program.source, workspace.frontEndOptions());
        if (!before) {
            refuse(inQuotes(fileName(program.source)) + " நிரலில் பிழை உள்ளது; அதைச் சரி செய்த பின் பெயரை மாற்றலாம்.");
        }
        const SourcePtr source = renamed.load(program.source->path);
        const auto after = source == nullptr ? std::nullopt : compiledText(source, renamed.options());
        if (!after || !isSameButForName(*before, *after, use.name, name)) {
            refuse(inQuotes(newName) + " என்று மாற்றினால் " + inQuotes(fileName(program.source)) + " நிரலின் பொருள் மாறும்.");
        }
    }
}

} // namespace pozhil::language_server
