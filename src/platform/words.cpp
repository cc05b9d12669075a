#include "platform/process.h"

namespace pozhil::platform {

std::vector<std::string> splitWords(const std::string& text) {
    std::vector<std::string> words;
    bool isInWord = false;
    char quote = 0;
    for (const char c : text) {
        const bool isBlank = c == ' ' || c == '\t' || c == '\n';
        if (quote == 0 && isBlank) {
            isInWord = false;
            continue;
        }
        if (!isInWord) {
            words.emplace_back();
            isInWord = true;
        }
        if (quote == 0 && (c == '"' || c == '\'')) {
            quote = c;
        } else if (quote != 0 && c == quote) {
            quote = 0;
        } else {
            words.back() += c;
        }
    }
    return words;
}

} // namespace pozhil::platform
