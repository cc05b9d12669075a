#include "generator/second/program_writer.h"

#include "generator/second/function_writer.h"
#include "generator/second/generator.h"
#include "generator/second/literals.h"
#include "generator/second/local_facts.h"
#include "generator/second/pages/page_program.h"
#include "generator/second/statement_writer.h"
#include "generator/second/structure_writer.h"
#include "generator/second/tree_walk.h"

#include <algorithm>

namespace pozhil::resolved::writer {
namespace {

constexpr std::size_t STATEMENTS_OF_A_PART = 100;

/// Finds loops, whatever they stand in.
class LoopSearch : public TreeWalk {
public:
    bool isFound = false;

protected:
    void onStatement(const Statement& statement) override {
        isFound = isFound || dynamic_cast<const While*>(&statement) != nullptr ||
                  dynamic_cast<const EachLoop*>(&statement) != nullptr ||
                  dynamic_cast<const CountingLoop*>(&statement) != nullptr;
    }
};

bool hasLoop(const Statement& statement) {
    LoopSearch search;
    search.walk(&statement);
    return search.isFound;
}

/// Statements that run once and those that loop come into different functions, so that g++ doesn't optimise the former.
std::size_t endOfPart(const std::vector<StatementPtr>& statements, std::size_t begin) {
    std::size_t end = begin;
    while (end < statements.size() && end - begin < STATEMENTS_OF_A_PART &&
           hasLoop(*statements[end]) == hasLoop(*statements[begin])) {
        ++end;
    }
    return end;
}

} // namespace

EmittedLines ProgramWriter::write() {
    writeVariables();
    writeStructures();
    writeFunctions();
    for (std::size_t file = 0; file < program_.files.size(); ++file) {
        writeStart(file);
    }
    PageProgram pages(program_, tables_);
    const bool hasPages = !program_.pages.empty();
    if (hasPages) {
        pages_ = pages.pages();
    }
    writeConstants();
    writeProgram();

    EmittedLines whole;
    const std::string path = tables_.places.sources().front()->path;
    whole.line(lineComment(path));
    if (hasPages) {
        whole.append(pages.head());
        runtimeLength_ = whole.text().size();
    } else {
        whole.line("#include \"engine/program.h\"");
        whole.line("using namespace pozhil::engine;");
        whole.line("");
    }
    for (EmittedLines* part : {&constants_, &variables_, &declarations_, &definitions_}) {
        part->gap();
        whole.append(*part);
    }
    whole.append(ending_);
    whole.append(pages_);
    return whole;
}

void ProgramWriter::writeVariables() {
    for (const File& file : program_.files) {
        for (const Variable* variable : file.variables) {
            variables_.setPlace(variable->place);
            const Type type = typeOf(*variable);
            const std::string first = type != Type::Value ? "" : (variable->mayBeUnset ? " = Value::unset()" : "");
            variables_.line("static " + std::string(nameOf(type)) + " " + tables_.names.of(*variable) + first + ";");
        }
    }
}

void ProgramWriter::writeFunctions() {
    FunctionWriter writer(tables_);
    for (const auto& function : program_.functions) {
        writer.define(*function, definitions_);
    }
}

void ProgramWriter::writeStructures() {
    FunctionWriter functions(tables_);
    for (const auto& function : program_.functions) {
        functions.declare(*function, declarations_);
    }
    declarations_.gap();
    StructureWriter writer(tables_);
    for (const auto& structure : program_.structures) {
        writer.declare(*structure, declarations_);
        writer.define(*structure, definitions_);
    }
}

void ProgramWriter::writeStart(std::size_t file) {
    const Block& body = *program_.files[file].body;
    CallScope scope;
    const LocalFacts facts(nullptr, body);
    StatementWriter writer(tables_, scope, facts, definitions_);
    const std::string name = "start_" + std::to_string(file + 1);
    std::size_t number = 0;
    for (std::size_t begin = 0; begin == 0 || begin < body.statements.size(); ++number) {
        const std::size_t end = endOfPart(body.statements, begin);
        const bool runsOnce = begin == end || !hasLoop(*body.statements[begin]);
        starts_.push_back(number == 0 ? name : name + "_" + std::to_string(number + 1));
        definitions_.open((runsOnce ? "[[gnu::cold]] static void " : "static void ") + starts_.back() + "() {");
        for (std::size_t index = begin; index < end; ++index) {
            writer.write(*body.statements[index]);
        }
        definitions_.close();
        definitions_.gap();
        if (end == body.statements.size()) {
            return;
        }
        begin = end;
    }
}

void ProgramWriter::writeConstants() {
    writeMembers();
    writeTexts();
    writeBuiltinValues();
}

void ProgramWriter::writeMembers() {
    const std::vector<Members::Row>& rows = tables_.members.rows();
    if (rows.empty()) {
        return;
    }
    constants_.open("enum : Member {");
    for (const Members::Row& row : rows) {
        constants_.line(row.emitted + ",");
    }
    constants_.close(";");
    constants_.open("static const char* const members[] = {");
    for (const Members::Row& row : rows) {
        constants_.line(textLiteral(row.member) + ",");
    }
    constants_.close(";");
    constants_.gap();
}

/// The engine makes values of them before the program starts; a variable for each would be much code.
void ProgramWriter::writeTexts() {
    const std::vector<std::string>& texts = tables_.texts.rows();
    if (texts.empty()) {
        return;
    }
    constants_.open("static const TextLiteral literals[] = {");
    for (std::size_t index = 0; index < texts.size(); ++index) {
        constants_.line("/* " + std::to_string(index) + " */ " + textLiteral(texts[index]) + ",");
    }
    constants_.close(";");
    constants_.line("static Value texts[" + std::to_string(texts.size()) + "];");
    constants_.gap();
}

void ProgramWriter::writeBuiltinValues() {
    const auto& rows = tables_.builtinValues.rows();
    for (std::size_t index = 0; index < rows.size(); ++index) {
        const language::second::Builtin& row = *rows[index];
        const std::string name = "builtin_" + std::to_string(index);
        std::string arguments;
        for (int argument = 0; argument < row.fewestArguments; ++argument) {
            arguments += "arguments[" + std::to_string(argument) + "], ";
        }
        constants_.open("static Value call_" + name + "(const Closure&, Value*" +
                        (arguments.empty() ? "" : " arguments") + ", Place at) {");
        constants_.line("return " + std::string(row.engineFunction) + "(" + arguments + "at);");
        constants_.close();
        std::string info = "static const FunctionInfo ";
        info.append(name).append(" = {").append(textLiteral(row.name)).append(", call_").append(name).append(", ");
        info.append(std::to_string(row.fewestArguments)).append(row.writesFirst ? ", 1};" : ", 0};");
        constants_.line(info);
    }
}

/// A page that is published tells its faults without the lines of the source: these would be a good part of what visitors
/// fetch, and are nobody else's to read.
void ProgramWriter::writeSources() {
    if (program_.pages.empty()) {
        writeSources(true);
        return;
    }
    ending_.line("#ifdef POZHIL_PUBLISHED");
    writeSources(false);
    ending_.line("#else");
    writeSources(true);
    ending_.line("#endif");
}

void ProgramWriter::writeSources(bool withTexts) {
    ending_.open("static const Source sources[] = {");
    for (const SourceText* source : tables_.places.sources()) {
        if (!withTexts) {
            ending_.line("{" + textLiteral(source->path) + ", nullptr, 0},");
            continue;
        }
        ending_.line("{" + textLiteral(source->path) + ",");
        ending_.line(textLiteral(source->text) + ",");
        ending_.line(std::to_string(source->text.size()) + "},");
    }
    ending_.close(";");
}

void ProgramWriter::writeProgram() {
    ending_.open("static void start() {");
    for (const std::string& start : starts_) {
        ending_.line(start + "();");
    }
    ending_.close();
    ending_.gap();
    writeSources();
    if (!program_.structures.empty()) {
        ending_.open("static Structure* const structures[] = {");
        for (const auto& structure : program_.structures) {
            ending_.line("&" + tables_.names.of(*structure) + ",");
        }
        ending_.close(";");
    }
    ending_.gap();
    if (program_.pages.empty()) {
        ending_.open("int main() {");
        ending_.line("return run(" + programInfo() + ");");
    } else {
        ending_.append(PageProgram(program_, tables_).keptState());
        ending_.open("static void init_globals() {");
        ending_.line("static const ProgramInfo program = " + programInfo() + ";");
        ending_.line("tellFaultsBy(page::tellFault);");
        ending_.line("startPage(program);");
    }
    ending_.close();
}

std::string ProgramWriter::programInfo() const {
    const std::size_t memberCount = tables_.members.rows().size();
    const std::size_t structureCount = program_.structures.size();
    const std::size_t textCount = tables_.texts.rows().size();
    return "{start, sources, " + std::to_string(program_.files.size()) + ", " +
           (memberCount > 0 ? "members" : "nullptr") + ", " + std::to_string(memberCount) + ", " +
           (structureCount > 0 ? "structures" : "nullptr") + ", " + std::to_string(structureCount) + ", " +
           (textCount > 0 ? "texts, literals" : "nullptr, nullptr") + ", " + std::to_string(textCount) + "}";
}

} // namespace pozhil::resolved::writer

namespace pozhil {

SecondText writeSecondEdition(const resolved::Program& program) {
    resolved::writer::ProgramWriter writer(program);
    const resolved::writer::EmittedLines lines = writer.write();
    return {lines.text(), lines.origins(), lines.deepestLevel(), writer.runtimeLength()};
}

} // namespace pozhil
