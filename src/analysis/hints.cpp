#include "analysis/hints.h"

#include "analysis/hints/hint_list.h"
#include "analysis/hints/token_hints.h"
#include "analysis/hints/tree_hints.h"

namespace pozhil {

std::vector<Hint> hintsOf(const Program& program, const Parser& parser) {
    HintList found(parser);
    findTokenHints(parser.scanned(), found);
    TreeHints(parser, found).find(program);
    return found.take();
}

} // namespace pozhil
