/// Feeds mutated programs to the formatter, and holds it to what it promises.

#include "formatting_check.h"
#include "fuzzer.h"

#include <utility>

int main(int argc, char** argv) {
    return runFuzzer(argc, argv,
                     [](std::string text) { checkFormatting(pozhil::makeSource("சோதனை.பொழில்", std::move(text))); });
}
