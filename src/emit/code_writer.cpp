#include "emit/code_writer.h"

namespace pozhil {
namespace {

constexpr std::size_t BLANKS_PER_LEVEL = 4;

} // namespace

std::size_t CodeWriter::indentation() const {
    return BLANKS_PER_LEVEL * static_cast<std::size_t>(level_);
}

void CodeWriter::indent() {
    out_ << std::string(indentation(), ' ');
}

void CodeWriter::block(std::string_view text, const Holes& holes) {
    writeBlock(out_, text, holes, indentation());
}

void CodeWriter::blockAtMargin(std::string_view text, const Holes& holes) {
    writeBlock(out_, text, holes);
}

} // namespace pozhil
