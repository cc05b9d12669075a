#include "tools/language_server/requests/signature_help.h"

#include "tools/language_server/names.h"
#include "tools/language_server/protocol.h"
#include "tools/language_server/surroundings.h"
#include "tools/language_server/vocabulary.h"

#include <string>
#include <vector>

namespace pozhil::language_server {
namespace {

constexpr const char* CONSTRUCTOR = "துவக்கம்";
constexpr const char* SELF = "தான்";

Json signature(const std::string& heading, const std::vector<std::string>& parameters, const std::string& told) {
    Json labels = Json::array();
    for (const std::string& parameter : parameters) {
        labels.push_back({{"label", parameter}});
    }
    return {{"label", heading}, {"parameters", labels}, {"documentation", told}};
}

/// What a call of a symbol gives: of a method not the object itself, of a structure what begins its objects.
Json signatureOf(const std::vector<NamedSource>& files, const FoundSymbol& called) {
    Symbol shown = *called.symbol;
    if (shown.kind == SymbolKind::Structure) {
        for (const FoundSymbol& member : membersOf(files, *called.symbol)) {
            if (member.symbol->name == CONSTRUCTOR && shown.parameters.empty()) {
                shown.parameters = member.symbol->parameters;
            }
        }
    }
    if (!shown.parameters.empty() && shown.parameters.front() == SELF) {
        shown.parameters.erase(shown.parameters.begin());
    }
    std::string heading = shown.name + "(";
    for (std::size_t i = 0; i < shown.parameters.size(); ++i) {
        heading += (i == 0 ? "" : ", ") + shown.parameters[i];
    }
    return signature(heading + ")", shown.parameters, commentAbove(called));
}

Json signatureOf(const LanguageWord& word) {
    const std::string told = std::string(word.description.tamil) + "\n" + std::string(word.description.english);
    return signature(headingOf(word), {word.parameters.begin(), word.parameters.end()}, told);
}

bool isCallable(const Symbol& symbol) {
    return symbol.kind == SymbolKind::Function || symbol.kind == SymbolKind::Method ||
           symbol.kind == SymbolKind::Structure;
}

} // namespace

Json signatureHelp(const Workspace& workspace, const Json& params) {
    const AskedPlace asked = askedPlace(workspace, params);
    const Outline& outline = *asked.file.outline;
    const std::vector<OpenBracket> brackets = openBrackets(outline, asked.offset);
    if (brackets.empty() || brackets.front().word == NO_INDEX) {
        return nullptr;
    }
    const std::size_t word = brackets.front().word;
    const std::vector<NamedSource> files = visibleSources(workspace, asked.file);
    Json signatures = Json::array();
    for (const FoundSymbol& found : meaningsOf(files, word)) {
        if (isCallable(*found.symbol)) {
            signatures.push_back(signatureOf(files, found));
        }
    }
    const std::vector<LanguageWord> words =
        isMemberToken(outline, word) ? memberWords(outline.edition) : functionWords(outline.edition);
    for (const LanguageWord& known : words) {
        if (signatures.empty() && known.word == outline.token(word).value) {
            signatures.push_back(signatureOf(known));
        }
    }
    if (signatures.empty()) {
        return nullptr;
    }
    return {{"signatures", signatures}, {"activeSignature", 0}, {"activeParameter", brackets.front().commas}};
}

} // namespace pozhil::language_server
