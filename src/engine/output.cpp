#include "engine/output.h"

#include "engine/system.h"

#include <cstddef>

namespace pozhil::engine {
namespace {

constexpr std::size_t ENOUGH = std::size_t{1} << 16U;

bool isTerminal = false;

/// Never destroyed, since values of the program may be printed until its very end.
std::string& buffer() {
    static auto* const text = new std::string;
    return *text;
}

} // namespace

void openStandardStreams() {
    isTerminal = openStreams();
    buffer(); // as long as there is memory for it: a program that prints nothing may end for want of memory
}

std::string& waitingOutput() {
    return buffer();
}

void endPrinting() {
    if (isTerminal || buffer().size() >= ENOUGH) {
        flushOutput();
    }
}

void flushOutput() noexcept {
    writeOutput(buffer());
    buffer().clear();
}

} // namespace pozhil::engine
