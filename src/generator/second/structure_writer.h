#pragma once

#include "generator/second/emitted_lines.h"
#include "generator/second/program_tables.h"

namespace pozhil::resolved::writer {

/// Writes structures: what the engine knows of them, how their objects begin, and how they are constructed.
class StructureWriter {
public:
    explicit StructureWriter(ProgramTables& tables) : tables_(tables) {}

    /// Its fields, methods and itself.
    void declare(const Structure& structure, EmittedLines& lines);
    /// What gives its fields their first values, and what constructs an object.
    void define(const Structure& structure, EmittedLines& lines);

private:
    void declareMembers(const Structure& structure, EmittedLines& lines);
    void defineInitializer(const Structure& structure, EmittedLines& lines);
    void defineConstruction(const Structure& structure, EmittedLines& lines);
    /// "Value v_a, Value& v_b, Place at" of its துவக்கம், and "v_a, v_b".
    struct Construction {
        std::string parameters;
        std::string arguments;
    };
    Construction constructionOf(const Structure& structure) const;
    std::string constructionHead(const Structure& structure) const;

    ProgramTables& tables_;
};

} // namespace pozhil::resolved::writer
