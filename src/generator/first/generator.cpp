#include "generator/first/generator.h"

#include "analysis/program_order.h"
#include "emit/placeholder.h"
#include "generator/first/first_edition.h"
#include "generator/first/runtime_text.h"
#include "generator/web/page/runtime_text.h"

#include <utility>

namespace pozhil {
namespace {

namespace page = page_runtime;

constexpr std::string_view SOURCE_PATH_PLACEHOLDER = "@SOURCE_PATH@";
constexpr std::string_view DATABASE_ANSWER = "        global_vars[\"தரவு\"] = global_vars[\"_temp_rtdb\"];\n";
constexpr const char* FENCE = "#ifdef __EMSCRIPTEN__\n";
constexpr const char* FENCE_END = "#endif\n";

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
    const std::string startPage = edition.literal(edition.web().startPage());
    edition.out() << runtime::standard_headers << page::web_text_layer << runtime::global_variables << page::page_state
                  << runtime::return_value << page::overlays << runtime::call_guard << page::navigationFrom(startPage)
                  << page::input_state << FENCE << page::canvas_keys << FENCE_END
                  << page::bridgeWith(runtime::database_entries, DATABASE_ANSWER) << runtime::value_types
                  << runtime::error_box << runtime::value_texts
                  << withPlaceholder(runtime::value_functions, SOURCE_PATH_PLACEHOLDER, path_) << page::animation_engine
                  << runtime::library << page::scrolling << runtime::scroll_function << page::web_boilerplate
                  << page::input_fields << page::media_elements << FENCE << page::frame_helpers << FENCE_END;
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
