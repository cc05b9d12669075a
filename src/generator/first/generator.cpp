#include "generator/first/generator.h"

#include "analysis/program_order.h"
#include "generator/first/first_edition.h"
#include "generator/first/runtime_text.h"

#include <utility>

namespace pozhil {
namespace {

constexpr std::string_view START_PAGE_PLACEHOLDER = "@START_PAGE@";
constexpr std::string_view SOURCE_PATH_PLACEHOLDER = "@SOURCE_PATH@";

/// \p text with the first \p placeholder in it replaced by \p value.
std::string fillPlaceholder(std::string_view text, std::string_view placeholder, std::string_view value) {
    std::string filled(text);
    filled.replace(filled.find(placeholder), placeholder.size(), value);
    return filled;
}

} // namespace

Generator::Generator(const Program& program, const FunctionTable& functions, const StructTable& structs,
                     const AbstractStructTable& abstractStructs, std::string source, std::string filePath)
    : program_(program), functions_(functions), structures_(structs), abstracts_(abstractStructs),
      source_(std::move(source)), path_(std::move(filePath)) {}

std::string Generator::generate() {
    FirstEdition edition(program_, functions_, structures_, abstracts_, path_, source_);
    writeRuntime(edition);
    runtimeLength_ = edition.out().length();
    writeDefinitions(edition);
    writeSetUp(edition);
    if (applications(program_).empty()) {
        writeConsoleMain(edition);
    } else {
        edition.web().writeProgram();
    }
    origins_ = edition.out().origins();
    return edition.out().text();
}

/// The sections that are the same in every program but for the start page and the source path.
void Generator::writeRuntime(FirstEdition& edition) const {
    edition.out() << runtime::standard_headers << runtime::web_text_layer << runtime::global_state
                  << fillPlaceholder(runtime::navigation, START_PAGE_PLACEHOLDER, edition.web().startPage())
                  << runtime::input_state << "#ifdef __EMSCRIPTEN__\n"
                  << runtime::canvas_keys << "#endif\n"
                  << runtime::web_bridge << runtime::value_types << runtime::error_box << runtime::value_texts
                  << fillPlaceholder(runtime::value_functions, SOURCE_PATH_PLACEHOLDER, path_)
                  << runtime::animation_engine << runtime::library << runtime::scrolling << runtime::web_boilerplate
                  << runtime::input_fields << runtime::media_elements << "#ifdef __EMSCRIPTEN__\n"
                  << runtime::frame_helpers << "#endif\n";
}

/// All structures stand before all functions, which make objects of them.
void Generator::writeDefinitions(FirstEdition& edition) const {
    const std::vector<const Statement*> statements = outermostStatements(program_);
    for (const Statement* statement : statements) {
        if (const auto* structure = nodeCast<StructDefinitionStatement>(statement)) {
            edition.writeStructure(*structure);
        }
    }
    for (const Statement* statement : statements) {
        if (nodeCast<FunctionDefinitionStatement>(statement) != nullptr) {
            edition.writeStatement(statement);
        }
    }
}

/// What a web application does before its first frame; a console program has nothing to set up.
void Generator::writeSetUp(FirstEdition& edition) const {
    edition.out() << "void init_globals() {\n";
    {
        const CodeWriter::Indented deeper(edition.out());
        edition.web().writeDatabaseSetup();
        for (const WebAppNode* application : applications(program_)) {
            if (const LogicBlockNode* logic = logicOf(*application)) {
                edition.writeStatement(logic);
            }
        }
    }
    edition.out() << "}\n\n";
}

void Generator::writeConsoleMain(FirstEdition& edition) const {
    edition.out() << "int main() {\n";
    {
        const CodeWriter::Indented deeper(edition.out());
        for (const Statement* statement : carriedOut(program_)) {
            edition.writeStatement(statement);
        }
    }
    edition.out() << "return 0;\n}\n";
}

} // namespace pozhil
