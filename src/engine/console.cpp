#include "engine/library.h"
#include "engine/memory.h"
#include "engine/output.h"
#include "engine/system.h"
#include "engine/text.h"

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
    return makeText(inputLine(place));
}

Value readLine(const Value& question, Place place) {
    appendTextForm(waitingOutput(), question);
    return readLine(place);
}

} // namespace pozhil::engine
