#include "playground/playground.h"

#include <emscripten/bind.h>

using pozhil::playground::Playground;

/// What the worker of the page sees of the module.
EMSCRIPTEN_BINDINGS(playground) {
    emscripten::class_<Playground>("Playground")
        .constructor<>()
        .function("addModule", &Playground::addModule)
        .class_function("editionOf", &Playground::editionOf)
        .function("check", &Playground::check)
        .function("format", &Playground::format)
        .class_function("explain", &Playground::explain);
}
