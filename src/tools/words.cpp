#include "tools/word.h"

namespace pozhil::tools {

const std::vector<const Word*>& words() {
    static const std::vector<const Word*> all = {&RUN, &NEW, &CHECK, &FORMAT, &EXPLAIN, &PUBLISH};
    return all;
}

} // namespace pozhil::tools
