#include "language/alignments.h"

#include <algorithm>
#include <iterator>

namespace pozhil::language {
namespace {

// clang-format off
constexpr Alignment ALIGNMENTS[] = {
    {"மேல்_இடது", -1.0F, -1.0F},
    {"மேல்_மையம்", 0.0F, -1.0F},
    {"மேல்_வலது", 1.0F, -1.0F},
    {"மைய_இடது", -1.0F, 0.0F},
    {"மையம்", 0.0F, 0.0F},
    {"மைய_வலது", 1.0F, 0.0F},
    {"கீழ்_இடது", -1.0F, 1.0F},
    {"கீழ்_மையம்", 0.0F, 1.0F},
    {"கீழ்_வலது", 1.0F, 1.0F},
};
// clang-format on

} // namespace

Rows<Alignment> alignments() {
    return ALIGNMENTS;
}

const Alignment* findAlignment(std::string_view word) {
    const auto* found = std::find_if(std::begin(ALIGNMENTS), std::end(ALIGNMENTS),
                                     [&](const Alignment& row) { return row.word == word; });
    return found == std::end(ALIGNMENTS) ? nullptr : found;
}

} // namespace pozhil::language
