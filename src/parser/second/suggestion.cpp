#include "parser/second/suggestion.h"

#include "base/letters.h"

#include <string>

namespace pozhil::second {

bool suggestNearest(SecondFault& fault, std::string_view word, const std::vector<std::string_view>& known) {
    const std::string written(word);
    const std::string nearest(nearestWord(word, known));
    if (nearest.empty()) {
        return false;
    }
    fault.suggestion = "'" + written + "' என்பது '" + nearest + "' என்று இருக்க வேண்டுமோ?";
    if (isOnlyNearest(word, nearest, known)) {
        fault.mend = {written, nearest};
    }
    return true;
}

} // namespace pozhil::second
