#include "tools/language_server/vocabulary.h"

#include "language/builtins.h"
#include "language/keywords.h"
#include "language/operators.h"
#include "language/second/builtins.h"
#include "language/widgets.h"

#include <algorithm>

namespace pozhil::language_server {
namespace {

/// \param skipped how many of them stand before the dot
template <class Names> std::vector<std::string_view> parametersOf(const Names& names, std::size_t skipped) {
    std::vector<std::string_view> parameters;
    for (std::size_t i = skipped; i < names.size(); ++i) {
        if (!names[i].empty()) {
            parameters.push_back(names[i]);
        }
    }
    return parameters;
}

bool isCalledByName(language::BuiltinForm form) {
    return form == language::BuiltinForm::Call || form == language::BuiltinForm::ElementWrite ||
           form == language::BuiltinForm::LoopRange;
}

std::vector<LanguageWord> firstBuiltins(bool members) {
    std::vector<LanguageWord> words;
    for (const language::Builtin& row : language::builtins()) {
        // Names that say nothing of themselves are of no use to anybody.
        if (isCalledByName(row.form) != members && !row.description.tamil.empty()) {
            words.push_back({row.name, members ? WordKind::Member : WordKind::Function, parametersOf(row.parameters, 0),
                             row.description, row.remark});
        }
    }
    return words;
}

std::vector<LanguageWord> secondBuiltins(bool members) {
    using Form = language::second::BuiltinForm;
    std::vector<LanguageWord> words;
    for (const language::second::Builtin& row : language::second::builtins()) {
        const bool isCall = row.form == Form::Call || row.form == Form::PageCall || row.form == Form::PageWord;
        const bool hasValueBefore = row.form == Form::Method || row.form == Form::Part || row.form == Form::FieldPart ||
                                    row.form == Form::FieldMethod;
        if (isCall != members) {
            words.push_back({row.name, members ? WordKind::Member : WordKind::Function,
                             parametersOf(row.parameters, hasValueBefore ? 1 : 0), row.description});
        }
    }
    return words;
}

} // namespace

std::vector<LanguageWord> functionWords(Edition edition) {
    return edition == Edition::Second ? secondBuiltins(false) : firstBuiltins(false);
}

std::vector<LanguageWord> memberWords(Edition edition) {
    return edition == Edition::Second ? secondBuiltins(true) : firstBuiltins(true);
}

std::vector<LanguageWord> memberWords(Edition edition, unsigned owners) {
    std::vector<LanguageWord> words = memberWords(edition);
    const auto isOfOthers = [&](const LanguageWord& word) {
        const auto second = language::second::builtins();
        const auto first = language::builtins();
        if (edition == Edition::Second) {
            return std::none_of(second.begin(), second.end(),
                                [&](const auto& row) { return row.name == word.word && (row.owners & owners) != 0; });
        }
        return owners == language::second::owner::LIST &&
               std::none_of(first.begin(), first.end(), [&](const auto& row) {
                   return row.name == word.word && row.form == language::BuiltinForm::ListMethod;
               });
    };
    words.erase(std::remove_if(words.begin(), words.end(), isOfOthers), words.end());
    return words;
}

std::vector<LanguageWord> widgetWords() {
    std::vector<LanguageWord> words;
    for (const language::Widget& widget : language::widgets()) {
        const WordKind kind = widget.role == language::WidgetRole::Style ? WordKind::Style : WordKind::Widget;
        words.push_back({widget.word, kind, {}, widget.description});
    }
    return words;
}

std::vector<LanguageWord> statementWords() {
    std::vector<LanguageWord> words;
    for (const language::Keyword& keyword : language::keywords()) {
        if (keyword.group == language::KeywordGroup::Statement || keyword.group == language::KeywordGroup::Condition) {
            words.push_back({keyword.word, WordKind::Keyword});
        }
    }
    for (const language::Operator& row : language::operators()) {
        words.push_back({row.word, WordKind::Operator});
    }
    return words;
}

const LanguageWord* findWord(const std::vector<LanguageWord>& words, std::string_view name) {
    const auto found = std::find_if(words.begin(), words.end(), [&](const auto& word) { return word.word == name; });
    return found == words.end() ? nullptr : &*found;
}

std::string headingOf(const LanguageWord& word) {
    std::string heading(word.word);
    if (word.parameters.empty()) {
        return heading;
    }
    heading += "(";
    for (std::size_t i = 0; i < word.parameters.size(); ++i) {
        heading += (i == 0 ? "" : ", ") + std::string(word.parameters[i]);
    }
    return heading + ")";
}

} // namespace pozhil::language_server
