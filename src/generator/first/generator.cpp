#include "generator/first/generator.h"

#include "base/source_text.h"
#include "diagnostics/fault.h"
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

bool isDefinition(const Statement* statement) {
    return nodeCast<StructDefinitionStatement>(statement) != nullptr ||
           nodeCast<FunctionDefinitionStatement>(statement) != nullptr ||
           nodeCast<AbstractStructDefinitionStatement>(statement) != nullptr;
}

} // namespace

Generator::Generator(const Program& program, const FunctionTable& functions, const StructTable& structs,
                     const AbstractStructTable& abstractStructs, std::string source, std::string filePath)
    : program_(program), structDefs_(structs), abstractStructDefs_(abstractStructs), functionParams_(functions),
      sourceCode_(std::move(source)), fileName_(std::move(filePath)), web_(out_, *this, program) {
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
    runtimeLength_ = out_.length();
    emitStructures();
    emitFunctions();
    emitInitGlobals();
    if (web_.applications().empty()) {
        emitConsoleMain();
    } else {
        web_.writeProgram();
    }
    return out_.text();
}

/// The sections that are the same in every program but for the start page and the source path.
void Generator::emitRuntime() {
    out_ << runtime::standard_headers << runtime::web_text_layer << runtime::global_state
         << fillPlaceholder(runtime::navigation, START_PAGE_PLACEHOLDER, web_.startPage()) << runtime::input_state
         << "#ifdef __EMSCRIPTEN__\n"
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
    for (const WebAppNode* app : web_.applications()) {
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
    {
        const CodeWriter::Indented deeper(out_);
        web_.writeDatabaseSetup();
        for (const WebAppNode* app : web_.applications()) {
            if (const auto* logic = nodeCast<LogicBlockNode>(app->definition.get())) {
                visitLogicBlockNode(logic);
            }
        }
    }
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
            out_.indent();
            out_ << (index == 0 ? "[] {\n" : "}();\n" + std::string(out_.indentation(), ' ') + "[] {\n");
        }
        visitStatement(statements[index]);
    }
    if (isCut) {
        out_.indent();
        out_ << "}();\n";
    }
}

void Generator::emitConsoleMain() {
    out_ << "int main() {\n";
    {
        const CodeWriter::Indented deeper(out_);
        for (const StatementPtr& statement : program_.statements) {
            if (statement != nullptr && !isDefinition(statement.get())) {
                visitStatement(statement.get());
            }
        }
    }
    out_.indent();
    out_ << "return 0;\n}\n";
}

void Generator::writeExpression(const Expression* expression) {
    visitExpression(expression);
}

void Generator::writeStatement(const Statement* statement) {
    visitStatement(statement);
}

void Generator::writeBody(const StatementList& statements) {
    const std::size_t outerLocals = localsLog_.size();
    for (const StatementPtr& statement : statements) {
        visitStatement(statement.get());
    }
    dropLocalsBehind(outerLocals);
}

void Generator::பிழை(const std::string& code, std::int32_t line, const std::string& extra) const {
    throw Fault{பிழைவகை::பொருள்_பிழை, code, fileName_, line, extra, std::string(lineOf(sourceCode_, line))};
}

void Generator::placelessFault(const std::string& code, std::int32_t line, const std::string& extra) const {
    throw faultWithoutPlace(code, line, extra);
}

Fault Generator::faultWithoutPlace(const std::string& code, std::int32_t line, const std::string& details) const {
    return Fault{பிழைவகை::பொருள்_பிழை, code, fileName_, line, details, std::string(lineOf(sourceCode_, line)),
                 FaultForm::StageLine};
}

} // namespace pozhil
