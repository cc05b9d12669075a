#pragma once

#include "analysis/facts.h"
#include "analysis/structures.h"
#include "emit/code_writer.h"
#include "generator/first/names.h"
#include "parser/parser.h"

#include <cstdint>
#include <string>

namespace pozhil {

class WebEmitter;

/// What the writers of expressions, calls and statements share.
struct Emission {
    CodeWriter& out;
    /// What analysis found out, to be read visit by visit.
    Facts& facts;
    const Structures& structures;
    const FunctionTable& functions;
    /// The source path as the user gave it.
    const std::string& path;
    WebEmitter& web;

    /// The arguments that tell a function of the runtime where it is called: "path", line
    std::string placeArguments(std::int32_t line) const { return "\"" + path + "\", " + std::to_string(line); }
};

/// The variable of the program with that name.
inline std::string globalVariable(const std::string& name) {
    return "global_vars[\"" + name + "\"]";
}

/// A variable where it lives.
inline std::string variableAt(Place place, const std::string& name) {
    return place == Place::Native ? emittedVariableName(name) : globalVariable(name);
}

} // namespace pozhil
