#include "generator/first/statement_writer.h"

#include "analysis/program_order.h"
#include "generator/web/page/web_emitter.h"
#include "language/operators.h"
#include "parser/tree/visit.h"

namespace pozhil {
namespace {

std::string_view symbolOf(std::string_view word) {
    return language::findOperator(word)->symbol;
}

} // namespace

void StatementWriter::write(const Statement* statement) {
    const CodeWriter::For origin(out_, statement);
    visitStatement(*this, statement);
}

/// A statement that is one line: \p writeText writes what stands between the indentation and the semicolon.
template <class WriteText> void StatementWriter::writeLine(WriteText writeText) {
    out_.indent();
    writeText();
    out_ << ";\n";
}

void StatementWriter::visit(const BlockStatement& node) {
    for (const StatementPtr& statement : node.statements) {
        if (statement != nullptr) {
            write(statement.get());
        }
    }
}

/// A block one level deeper.
void StatementWriter::writeBody(const BlockStatement& block) {
    const CodeWriter::Indented deeper(out_);
    visit(block);
}

/// What an application does before its first frame. Its functions and structures stand outside. A long block is cut into
/// functions, since WebAssembly takes none with as many locals as it would need.
void StatementWriter::visit(const LogicBlockNode& node) {
    constexpr std::size_t MOST_IN_A_FUNCTION = 100;
    const std::vector<const Statement*> statements = carriedOut(node);
    const bool isCut = statements.size() > MOST_IN_A_FUNCTION;
    for (std::size_t index = 0; index < statements.size(); ++index) {
        if (isCut && index % MOST_IN_A_FUNCTION == 0) {
            out_.block(index == 0 ? "[] {\n" : "}();\n[] {\n");
        }
        write(statements[index]);
    }
    if (isCut) {
        out_.block("}();\n");
    }
}

/// A member write that is a statement of its own brings its own line within the line.
void StatementWriter::visit(const ExpressionStatement& node) {
    writeLine([&] {
        const bool bringsLine = nodeCast<SetMemberExpression>(node.expression.get()) != nullptr;
        if (bringsLine) {
            out_.indent();
        }
        expressions_.write(node.expression.get());
        out_ << (bringsLine ? ";\n" : "");
    });
}

/// அச்சிடு a, b  ->  std::cout << fn_any_to_string(a) << fn_any_to_string(b) << std::endl
void StatementWriter::visit(const PrintStatement& node) {
    writeLine([&] {
        out_ << "std::cout";
        for (const ExpressionPtr& argument : node.arguments) {
            out_ << " << fn_any_to_string(";
            expressions_.write(argument.get());
            out_ << ")";
        }
        out_ << " << std::endl";
    });
}

/// x = v  ->  global_vars["x"] = v, or std::any x = v in a function
void StatementWriter::visit(const VarDeclaration& node) {
    const DeclarationFact fact = emission_.facts.declarations.next(&node);
    writeLine([&] {
        out_ << (fact.isNew ? "std::any " : "") << variableAt(fact.place, node.name);
        if (fact.isEmptied) {
            out_ << " = std::any();\n";
        }
        if (fact.isConstruction) {
            writeObjectDeclaration(node, *nodeCast<CallExpression>(node.initializer.get()));
            return;
        }
        out_ << " = ";
        fact.isBare ? expressions_.write(node.initializer.get()) : expressions_.writeAny(node.initializer.get());
    });
}

/// x = T(a)  ->  an object of its own name, filled and constructed before the variable holds it. Unlike the expression
/// form, only a constructor of T itself is called.
void StatementWriter::writeObjectDeclaration(const VarDeclaration& node, const CallExpression& call) {
    const std::string object = "obj_" + node.name;
    const std::string& structure = nodeCast<VariableAccess>(call.callee.get())->name;
    out_.indent();
    out_ << "auto " << object << " = std::make_shared<" << structure << ">();\n";
    expressions_.calls().writeMembers(structure, object);
    if (ownsConstructor(emission_.structures.definition(structure))) {
        expressions_.calls().writeConstructorCall(structure, object, call.arguments);
    }
    out_.indent();
    out_ << (functions_ == 0 ? globalVariable(node.name) : emittedVariableName(node.name))
         << " = std::any(std::static_pointer_cast<_StructBase>(" << object << "))";
}

/// a[i] = v  ->  fn_index_ref(a, i) = v;  a.b = v  ->  a write into the object's properties
void StatementWriter::visit(const SetStatement& node) {
    writeLine([&] {
        if (const auto* element = nodeCast<IndexExpression>(node.target.get())) {
            out_ << "fn_index_ref(";
            expressions_.write(element->object.get());
            out_ << ", ";
            expressions_.writeAny(element->index.get());
            out_ << ") = ";
            expressions_.writeAny(node.value.get());
        } else if (const auto* get = nodeCast<GetExpression>(node.target.get())) {
            out_ << "std::any_cast<std::shared_ptr<_StructBase>>(";
            expressions_.write(get->object.get());
            out_ << ")->properties[\"" << get->member.value << "\"] = ";
            expressions_.writeAny(node.value.get());
        }
    });
}

void StatementWriter::visit(const CompoundAssignmentStatement& node) {
    writeLine([&] {
        expressions_.write(node.target.get());
        out_ << " = std::any(std::any_cast<long long>(";
        expressions_.write(node.target.get());
        out_ << ") " << symbolOf(node.op.value) << " std::any_cast<long long>(";
        expressions_.writeCastOperand(node.value.get());
        out_ << "))";
    });
}

void StatementWriter::visit(const IncrementStatement& node) {
    writeLine([&] {
        expressions_.write(node.target.get());
        out_ << " = std::any(std::any_cast<long long>(";
        expressions_.write(node.target.get());
        out_ << ") " << symbolOf(node.op.value) << ")";
    });
}

/// எனில் a: ... இல்லை: ...  ->  if (a) { ... } else { ... }
void StatementWriter::visit(const IfStatement& node) {
    out_.indent();
    out_ << "if (";
    expressions_.writeCondition(node.condition.get());
    out_ << ") {\n";
    writeBody(*node.thenBranch);
    out_.indent();
    out_ << "}";
    if (const auto* elseIf = nodeCast<IfStatement>(node.elseBranch.get())) {
        out_ << " else ";
        const CodeWriter::For origin(out_, elseIf);
        visit(*elseIf);
    } else if (const auto* elseBlock = nodeCast<BlockStatement>(node.elseBranch.get())) {
        out_ << " else {\n";
        writeBody(*elseBlock);
        out_.block("}\n");
    } else {
        out_ << "\n";
    }
}

/// சுற்று a: ...  ->  while (a) { ... }
void StatementWriter::visit(const WhileStatement& node) {
    out_.indent();
    out_ << "while (";
    expressions_.writeCondition(node.condition.get());
    out_ << ") {\n";
    writeBody(*node.body);
    out_.block("}\n");
}

/// The loop variable is a native variable, at top level too.
void StatementWriter::visit(const ForStatement& node) {
    if (const CallExpression* range = asRange(node)) {
        writeRangeLoop(node, *range);
    } else {
        writeContainerLoop(node);
    }
}

/// ஒவ்வொன்றாக v இல் வரம்பு(a, b):  ->  for (long long v = fn_index(a); v < fn_index(b); ++v) { ... }
void StatementWriter::writeRangeLoop(const ForStatement& loop, const CallExpression& range) {
    const std::string variable = emittedVariableName(loop.variable.value);
    out_.indent();
    out_ << "for (long long " << variable << " = ";
    if (range.arguments.size() == 1) {
        out_ << "0";
    } else {
        out_ << "fn_index(";
        expressions_.write(range.arguments.front().get());
        out_ << ")";
    }
    out_ << "; " << variable << " < fn_index(";
    expressions_.write(range.arguments.back().get());
    out_ << "); ++" << variable << ") {\n";
    writeBody(*loop.body);
    out_.block("}\n");
}

/// ஒவ்வொன்றாக v இல் x:  ->  a loop over the elements of a list and one over the keys of a map, chosen at run time
void StatementWriter::writeContainerLoop(const ForStatement& loop) {
    const std::string element = loop.variable.value + "_any";
    out_.block("{\n");
    {
        const CodeWriter::Indented deeper(out_);
        writeLine([&] {
            out_ << "auto& _iterable = ";
            expressions_.write(loop.iterable.get());
        });
        out_.block("if (_iterable.type() == typeid(std::vector<std::any>)) {\n");
        writeLoopOver(loop, element, "std::vector<std::any>", element);
        out_.block("} else if (_iterable.type() == typeid(std::map<std::string, std::any>)) {\n");
        writeLoopOver(loop, "pair", "std::map<std::string, std::any>", "std::any(pair.first)");
        out_.block("} else {\n    pozhil_runtime_error(\"பொழி-313\", $place);\n}\n",
                   {{"place", emission_.placeArguments(loop.variable.line)}});
    }
    out_.block("}\n");
}

void StatementWriter::writeLoopOver(const ForStatement& loop, std::string_view element, std::string_view container,
                                    const std::string& value) {
    const CodeWriter::Indented inBranch(out_);
    out_.indent();
    out_ << "for (const auto& " << element << " : std::any_cast<const " << container << "&>(_iterable)) {\n";
    {
        const CodeWriter::Indented inLoop(out_);
        out_.indent();
        out_ << "std::any " << emittedVariableName(loop.variable.value) << " = " << value << ";\n";
        visit(*loop.body);
    }
    out_.block("}\n");
}

/// தேர்வு a: நிலை b: ... மற்றவை: ...  ->  a chain of comparisons, so that நிறுத்து leaves the loop around it
void StatementWriter::visit(const SwitchStatement& node) {
    out_.block("{\n");
    {
        const CodeWriter::Indented deeper(out_);
        writeLine([&] {
            out_ << "auto _switch_val = ";
            expressions_.write(node.subject.get());
        });
        writeCases(node);
    }
    out_.block("}\n");
}

void StatementWriter::writeCases(const SwitchStatement& node) {
    bool isFirst = true;
    for (const CaseBlock& caseBlock : node.cases) {
        out_.indent();
        out_ << (isFirst ? "if (" : "else if (") << "fn_compare_any(_switch_val, ";
        expressions_.writeAny(caseBlock.value.get());
        out_ << ", \"==\")) {\n";
        visit(*caseBlock.body);
        out_.block("}\n");
        isFirst = false;
    }
    if (node.defaultBlock != nullptr) {
        out_.block(isFirst ? "{\n" : "else {\n");
        visit(*node.defaultBlock);
        out_.block("}\n");
    }
}

/// முயற்சி: ... பிடி (e): ...  ->  try { ... } catch; the message always lands in a global variable
void StatementWriter::visit(const TryCatchStatement& node) {
    out_.block("try {\n");
    writeBody(*node.tryBlock);
    out_.block("} catch (const std::exception& e) {\n    $variable = std::any(std::string(e.what()));\n",
               {{"variable", globalVariable(node.errorName)}});
    writeBody(*node.catchBlock);
    out_.block("}\n");
}

void StatementWriter::visit(const WaitStatement& node) {
    writeLine([&] {
        out_ << "std::this_thread::sleep_for(std::chrono::milliseconds(static_cast<long long>(fn_get_double(";
        expressions_.write(node.duration.get());
        out_ << ") * 1000)))";
    });
}

void StatementWriter::visit(const ReturnStatement& node) {
    writeLine([&] {
        if (functions_ == 0) {
            out_ << "return 0; // C++ main requires int";
        } else if (node.value == nullptr) {
            out_ << "return std::any()";
        } else {
            out_ << "return ";
            expressions_.writeAny(node.value.get());
        }
    });
}

void StatementWriter::visit(const BreakStatement&) {
    out_.block("break;\n");
}

void StatementWriter::visit(const ContinueStatement&) {
    out_.block("continue;\n");
}

void StatementWriter::visit(const PassStatement&) {
    out_.block("(void)0;\n");
}

void StatementWriter::visit(const SetStateStatement&) {
    out_.block("// UI-ஐப் புதுப்பித்தல்\nupdateUI();\n");
}

/// What only web programs have stands in the same text in every edition.
void StatementWriter::writeForWeb(const Statement& statement) {
    emission_.web.writeStatement(&statement);
}

void StatementWriter::visit(const RTDBReadStatement& node) {
    writeForWeb(node);
}

void StatementWriter::visit(const WebAppNode& node) {
    writeForWeb(node);
}

void StatementWriter::visit(const WidgetNode& node) {
    writeForWeb(node);
}

} // namespace pozhil
