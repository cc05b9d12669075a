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

void CodeWriter::block(const Block& block, const Holes& holes, const Holes& standing) {
    writeBlock(out_, block, holes, indentation(), standing);
}

void CodeWriter::blockAtMargin(const Block& block, const Holes& holes) {
    writeBlock(out_, block, holes);
}

void CodeWriter::pattern(const Block& pattern, const WriteHole& writeHole) {
    writeInline(out_, pattern, writeHole);
}

} // namespace pozhil
