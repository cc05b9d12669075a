#include "generator/first/generator.h"

#include "base/source_text.h"
#include "diagnostics/fault.h"
#include "generator/first/runtime_text.h"
#include "generator/web/page/start_page.h"

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

bool isDefinition(const Statement* statement) {
    return nodeCast<StructDefinitionStatement>(statement) != nullptr ||
           nodeCast<FunctionDefinitionStatement>(statement) != nullptr ||
           nodeCast<AbstractStructDefinitionStatement>(statement) != nullptr;
}

} // namespace

Generator::Generator(const Program& program, const FunctionTable& functions, const StructTable& structs,
                     const AbstractStructTable& abstractStructs, std::string source, std::string filePath)
    : program_(program), structDefs_(structs), abstractStructDefs_(abstractStructs), functionParams_(functions),
      sourceCode_(std::move(source)), fileName_(std::move(filePath)) {
    for (const StatementPtr& statement : program_.statements) {
        if (const auto* app = nodeCast<WebAppNode>(statement.get())) {
            webApps_.push_back(app);
        }
    }
    for (const auto& entry : structDefs_) {
        for (const auto& field : entry.second->fields) {
            if (field->isPrivate) {
                privateFields_.insert(field->name);
            }
        }
    }
}

std::string Generator::generate() {
    emitRuntime();
    runtimeLength_ = static_cast<std::size_t>(out_.tellp());
    emitStructures();
    emitFunctions();
    emitInitGlobals();
    if (webApps_.empty()) {
        emitConsoleMain();
    } else {
        emitWebProgram();
    }
    return out_.str();
}

/// The sections that are the same in every program but for the start page and the source path.
void Generator::emitRuntime() {
    out_ << runtime::standard_headers << runtime::web_text_layer << runtime::global_state
         << fillPlaceholder(runtime::navigation, START_PAGE_PLACEHOLDER, findStartPage(program_))
         << runtime::input_state << "#ifdef __EMSCRIPTEN__\n"
         << runtime::canvas_keys << "#endif\n"
         << runtime::web_bridge << runtime::value_types << runtime::error_box << runtime::value_texts
         << fillPlaceholder(runtime::value_functions, SOURCE_PATH_PLACEHOLDER, fileName_) << runtime::animation_engine
         << runtime::library << runtime::scrolling << runtime::web_boilerplate << runtime::input_fields
         << runtime::media_elements << "#ifdef __EMSCRIPTEN__\n"
         << runtime::frame_helpers << "#endif\n";
}

/// Runs \p visit over the statements outside all blocks, then over those that the applications define.
template <class Visit> void Generator::forEachDefinition(Visit visit) const {
    for (const StatementPtr& statement : program_.statements) {
        visit(statement.get());
    }
    for (const WebAppNode* app : webApps_) {
        const auto* logic = nodeCast<LogicBlockNode>(app->definition.get());
        if (logic != nullptr && logic->block != nullptr) {
            for (const StatementPtr& statement : logic->block->statements) {
                visit(statement.get());
            }
        }
    }
}

void Generator::emitStructures() {
    forEachDefinition([this](const Statement* statement) {
        if (const auto* structure = nodeCast<StructDefinitionStatement>(statement)) {
            visitStructDefinitionStatement(structure);
        }
    });
}

void Generator::emitFunctions() {
    forEachDefinition([this](const Statement* statement) {
        if (const auto* function = nodeCast<FunctionDefinitionStatement>(statement)) {
            visitFunctionDefinitionStatement(function);
        }
    });
}

/// The set-up of a web application; a console program has nothing to set up.
void Generator::emitInitGlobals() {
    out_ << "void init_globals() {\n";
    ++indentLevel_;
    for (const WebAppNode* app : webApps_) {
        if (const auto* manager = nodeCast<DatabaseManagerNode>(app->databaseManager.get())) {
            visitDatabaseManagerNode(manager);
        }
    }
    for (const WebAppNode* app : webApps_) {
        if (const auto* logic = nodeCast<LogicBlockNode>(app->definition.get())) {
            visitLogicBlockNode(logic);
        }
    }
    --indentLevel_;
    out_ << "}\n\n";
}

/// What an application does before its first frame. Its functions and structures stand outside. A long block is cut into
/// functions, since WebAssembly takes none with as many locals as it would need.
void Generator::visitLogicBlockNode(const LogicBlockNode* node) {
    constexpr std::size_t MOST_IN_A_FUNCTION = 100;
    if (node->block == nullptr) {
        return;
    }
    std::vector<const Statement*> statements;
    for (const StatementPtr& statement : node->block->statements) {
        if (statement != nullptr && !isDefinition(statement.get())) {
            statements.push_back(statement.get());
        }
    }
    const bool isCut = statements.size() > MOST_IN_A_FUNCTION;
    for (std::size_t index = 0; index < statements.size(); ++index) {
        if (isCut && index % MOST_IN_A_FUNCTION == 0) {
            indent();
            out_ << (index == 0 ? "[] {\n" : "}();\n" + std::string(indentation(), ' ') + "[] {\n");
        }
        visitStatement(statements[index]);
    }
    if (isCut) {
        indent();
        out_ << "}();\n";
    }
}

void Generator::emitConsoleMain() {
    out_ << "int main() {\n";
    ++indentLevel_;
    for (const StatementPtr& statement : program_.statements) {
        if (statement != nullptr && !isDefinition(statement.get())) {
            visitStatement(statement.get());
        }
    }
    --indentLevel_;
    indent();
    out_ << "return 0;\n}\n";
}

void Generator::indent() {
    out_ << std::string(indentation(), ' ');
}

/// Blanks in front of a line of the present level.
std::size_t Generator::indentation() const {
    constexpr std::size_t BLANKS_PER_LEVEL = 4;
    return BLANKS_PER_LEVEL * static_cast<std::size_t>(indentLevel_);
}

void Generator::பிழை(const std::string& code, std::int32_t line, const std::string& extra) const {
    throw Fault{பிழைவகை::பொருள்_பிழை, code, fileName_, line, extra, std::string(lineOf(sourceCode_, line))};
}

/// A fault that is told without its place.
void Generator::placelessFault(const std::string& code, std::int32_t line, const std::string& extra) const {
    throw Fault{பிழைவகை::பொருள்_பிழை, code, fileName_, line, extra, std::string(lineOf(sourceCode_, line)),
                FaultForm::StageLine};
}

} // namespace pozhil
