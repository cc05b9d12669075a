#include "tools/word.h"

#include <algorithm>

namespace pozhil::tools {

const std::vector<const Word*>& words() {
    static const std::vector<const Word*> all = {
        &RUN,
        &NEW,
        &CHECK,
        &FORMAT,
        &TEST,
        &EXPLAIN,
#ifdef POZHIL_LANGUAGE_SERVER
        &LANGUAGE_SERVER,
#endif
        &PUBLISH,
    };
    return all;
}

const Word* findWord(const std::string& name) {
    const auto found = std::find_if(words().begin(), words().end(),
                                    [&](const Word* word) { return name == word->tamil || name == word->english; });
    return found == words().end() ? nullptr : *found;
}

} // namespace pozhil::tools
