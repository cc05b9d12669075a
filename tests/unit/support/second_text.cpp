#include "support/tree_writer.h"

namespace pozhil::test {

std::string TreeWriter::secondEdition(const Expression* expression) {
    const std::int32_t line = expression->line;
    if (const auto* map = as<KeyedMapLiteral>(expression)) {
        std::string entries;
        for (const auto& [key, value] : map->entries) {
            append(entries, "(" + part(key) + " " + part(value) + ")");
        }
        return node("Map", line, entries);
    }
    if (const auto* function = as<FunctionExpression>(expression)) {
        return node("Function", line, bracketed(function->parameters), function->body);
    }
    if (const auto* assignment = as<PlaceAssignment>(expression)) {
        return node("Assign", line, assignment->target, assignment->op, assignment->value);
    }
    return "";
}

std::string TreeWriter::secondEdition(const Statement* statement) {
    const std::int32_t line = statement->line;
    if (const auto* variables = as<FileVariablesStatement>(statement)) {
        return node("FileVariables", line, variables->names);
    }
    if (const auto* import = as<ImportStatement>(statement)) {
        return node("Import", line, quoted(import->path));
    }
    if (const auto* enumeration = as<EnumerationStatement>(statement)) {
        return node("Enumeration", line, enumeration->name, bracketed(enumeration->members));
    }
    return "";
}

} // namespace pozhil::test
