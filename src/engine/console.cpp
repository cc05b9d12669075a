#include "engine/library.h"
#include "engine/memory.h"
#include "engine/output.h"
#include "engine/text.h"

#include <cerrno>
#include <cstdio>
#include <string>

/// Printing and input.

namespace pozhil::engine {

void print(std::initializer_list<Value> values) {
    std::string& out = waitingOutput();
    for (const Value& value : values) {
        appendTextForm(out, value);
    }
    out += '\n';
    endPrinting();
}

Value readLine(Place place) {
    noteGrowth(place);
    flushOutput();
    // Kept from line to line, as getline wants it.
    static char* buffer = nullptr;
    static std::size_t capacity = 0;
    errno = 0;
    const ssize_t size = getline(&buffer, &capacity, stdin);
    if (size < 0 && errno == ENOMEM) {
        raiseOutOfMemory();
    }
    std::string line(buffer, size > 0 ? static_cast<std::size_t>(size) : 0);
    for (const char end : {'\n', '\r'}) {
        if (!line.empty() && line.back() == end) {
            line.pop_back();
        }
    }
    return makeText(std::move(line));
}

Value readLine(const Value& question, Place place) {
    appendTextForm(waitingOutput(), question);
    return readLine(place);
}

} // namespace pozhil::engine
