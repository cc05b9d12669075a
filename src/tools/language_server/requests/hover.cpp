#include "tools/language_server/requests/hover.h"

#include "tools/language_server/names.h"
#include "tools/language_server/protocol.h"
#include "tools/language_server/surroundings.h"
#include "tools/language_server/vocabulary.h"

#include <filesystem>
#include <string>

namespace pozhil::language_server {
namespace {

std::string code(const std::string& text) {
    return "```pozhil\n" + text + "\n```\n";
}

std::string bothLanguages(const language::Bilingual& told) {
    return told.tamil.empty() ? "" : "\n" + std::string(told.tamil) + "\n\n" + std::string(told.english) + "\n";
}

std::string describe(const FoundSymbol& found, const NamedSource& here) {
    std::string text = code(headingOf(*found.symbol));
    if (found.file.source->path != here.source->path) {
        text += "\n" + std::filesystem::u8path(found.file.source->path).filename().u8string() + "\n";
    }
    const std::string comment = commentAbove(found);
    return comment.empty() ? text : text + "\n" + comment;
}

std::string describe(const LanguageWord& word) {
    const char* const kind = word.kind == WordKind::Keyword ? "மொழியின் சொல் · a word of the language"
                             : word.kind == WordKind::Operator ? "செயற்சொல் · an operator"
                                                               : "";
    std::string text = code(headingOf(word)) + bothLanguages(word.description) + bothLanguages(word.remark);
    return *kind == '\0' ? text : text + "\n" + kind + "\n";
}

/// What the language says of a word, the property or widget that it is there before anything else.
std::string describeWord(const AskedPlace& asked, const std::string& word) {
    const Outline& outline = *asked.file.outline;
    if (isMemberToken(outline, asked.token)) {
        const std::vector<LanguageWord> members = memberWords(outline.edition);
        const LanguageWord* const member = findWord(members, word);
        return member == nullptr ? "" : describe(*member);
    }
    if (outline.isType(asked.token + 1, TokenType::COLON)) {
        const std::size_t begin = outline.placeOf(asked.token).begin;
        const auto* const property = findProperty(propertiesAt(outline, openBrackets(outline, begin)), word);
        if (property != nullptr) {
            return code(word + ":") + bothLanguages(property->description);
        }
    }
    const bool isInApplication = hasApplication(outline);
    for (const auto& words : {isInApplication ? widgetWords() : std::vector<LanguageWord>(),
                              functionWords(outline.edition), statementWords()}) {
        if (const LanguageWord* const found = findWord(words, word)) {
            return describe(*found);
        }
    }
    return "";
}

} // namespace

Json hover(const Workspace& workspace, const Json& params) {
    const AskedPlace asked = askedPlace(workspace, params);
    if (asked.token == NO_INDEX || !asked.file.outline->isWord(asked.token)) {
        return nullptr;
    }
    std::string text;
    const std::vector<FoundSymbol> meanings = meaningsOf(workspace, asked.file, asked.token);
    for (const FoundSymbol& found : meanings) {
        text += (text.empty() ? "" : "\n---\n") + describe(found, asked.file);
    }
    if (meanings.empty() || isMemberToken(*asked.file.outline, asked.token)) {
        text += describeWord(asked, asked.file.outline->token(asked.token).value);
    }
    if (text.empty()) {
        return nullptr;
    }
    return {{"contents", {{"kind", "markdown"}, {"value", text}}},
            {"range", jsonOf(asked.document->rangeOf(asked.file.outline->placeOf(asked.token)))}};
}

} // namespace pozhil::language_server
