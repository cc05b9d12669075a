#include "parser/second/suggestion.h"

#include "base/letters.h"

namespace pozhil::second {

std::string suggestionOf(std::string_view word, const std::vector<std::string_view>& known) {
    const std::string_view nearest = nearestWord(word, known);
    return nearest.empty() ? ""
                           : "'" + std::string(word) + "' என்பது '" + std::string(nearest) + "' என்று இருக்க வேண்டுமோ?";
}

} // namespace pozhil::second
