#include "generator/second/statement_writer.h"

#include "analysis/second/resolved/visit.h"
#include "generator/second/literals.h"
#include "generator/second/operators.h"

namespace pozhil::resolved::writer {

void StatementWriter::write(const Statement& statement) {
    if (dynamic_cast<const Block*>(&statement) == nullptr) {
        comment(statement.place);
    }
    visitStatement(*this, &statement);
}

void StatementWriter::comment(const Place& place) {
    lines_.setPlace(place);
    const std::pair<std::size_t, std::size_t> line(place.file, tables_.places.lineOf(place));
    if (line != commented_) {
        lines_.line(lineComment(tables_.places.description(place)));
        commented_ = line;
    }
}

void StatementWriter::define(const FunctionDefinition& definition) {
    lines_.line(expressions_.nameOf(*definition.variable) + " = " + expressions_.functionValue(*definition.function) +
                ";");
}

void StatementWriter::visit(const Block& block) {
    for (const StatementPtr& statement : block.statements) {
        write(*statement);
    }
}

void StatementWriter::visit(const Evaluation& evaluation) {
    lines_.line(expressions_.write(*evaluation.value) + ";");
}

/// x = a  ->  v_x = a;
void StatementWriter::visit(const Assignment& assignment) {
    const std::string type =
        facts_.isDeclaredBy(assignment) ? std::string(nameOf(typeOf(*assignment.target->variable))) + " " : "";
    lines_.line(type + expressions_.statement(assignment));
}

/// It has been defined at the beginning of the function.
void StatementWriter::visit(const FunctionDefinition&) {}

/// அச்சிடு(a, b)  ->  print({a, b});
void StatementWriter::visit(const Print& print) {
    std::string values;
    for (const ExpressionPtr& value : print.values) {
        values += (values.empty() ? "" : ", ") + expressions_.write(*value);
    }
    lines_.line("print({" + values + "});");
}

void StatementWriter::visit(const Wait& wait) {
    lines_.line("wait(" + expressions_.write(*wait.seconds) + ", " + tables_.places.literal(wait.place) + ");");
}

void StatementWriter::visit(const Return& statement) {
    if (statement.value == nullptr) {
        lines_.line("return Value();");
        return;
    }
    const Type type = typeOf(*scope_.function);
    lines_.line("return " + expressions_.write(*statement.value, type == Type::Value ? Wanted::AsIs : wantedAs(type)) +
                ";");
}

void StatementWriter::visit(const Break&) {
    lines_.line("break;");
}

void StatementWriter::visit(const Continue&) {
    lines_.line("continue;");
}

void StatementWriter::visit(const Pass&) {}

/// எனில் a: ... இல்லை: ...  ->  if (a) { ... } else { ... }
void StatementWriter::visit(const If& statement) {
    lines_.open("if (" + expressions_.condition(*statement.condition) + ") {");
    write(*statement.thenBranch);
    const Statement* rest = statement.elseBranch.get();
    while (const auto* next = dynamic_cast<const If*>(rest)) {
        lines_.setPlace(next->place);
        lines_.reopen("} else if (" + expressions_.condition(*next->condition) + ") {");
        comment(next->place);
        write(*next->thenBranch);
        rest = next->elseBranch.get();
    }
    if (rest != nullptr) {
        lines_.reopen("} else {");
        write(*rest);
    }
    lines_.close();
}

void StatementWriter::writeTurn(const Block& body, const Place& place) {
    if (tables_.isStoppable) {
        lines_.line("step(" + tables_.places.literal(place) + ");");
    }
    write(body);
}

/// சுற்று a: ...  ->  while (a) { ... }
void StatementWriter::visit(const While& loop) {
    lines_.open("while (" + expressions_.condition(*loop.condition) + ") {");
    writeTurn(*loop.body, loop.condition->place);
    lines_.close();
}

void StatementWriter::visit(const CountingLoop& loop) {
    const auto* step = dynamic_cast<const WholeLiteral*>(loop.step.get());
    if (loop.step == nullptr || (step != nullptr && step->value == 1)) {
        countByOne(loop);
    } else {
        countBySteps(loop);
    }
    writeTurn(*loop.body, loop.place);
    lines_.close();
}

/// ஒவ்வொன்றாக எ இல் வரம்பு(a, b): ...  ->  for (Whole v_எ = a, end1 = b; v_எ < end1; ++v_எ) { ... }
void StatementWriter::countByOne(const CountingLoop& loop) {
    const bool isDeclared = facts_.livesInLoops(*loop.variable);
    const std::string counter = isDeclared ? expressions_.nameOf(*loop.variable) : scope_.temporary("i");
    const std::string first = loop.first == nullptr ? "0" : expressions_.wholeNumber(*loop.first);
    std::string last = expressions_.wholeNumber(*loop.last);
    std::string end;
    if (dynamic_cast<const WholeLiteral*>(loop.last.get()) == nullptr) {
        const std::string name = scope_.temporary("end");
        end = ", " + name + " = " + last;
        last = name;
    }
    lines_.open("for (Whole " + counter + " = " + first + end + "; " + counter + " < " + last + "; ++" + counter +
                ") {");
    if (!isDeclared) {
        takeOver(*loop.variable, counter, Type::Whole);
    }
}

/// வரம்பு(a, b, c)  ->  Counting count1{a, b, c}
void StatementWriter::countBySteps(const CountingLoop& loop) {
    const auto* literal = dynamic_cast<const WholeLiteral*>(loop.step.get());
    const std::string first = loop.first == nullptr ? "0" : expressions_.wholeNumber(*loop.first);
    const std::string last = expressions_.wholeNumber(*loop.last);
    const std::string stepText = expressions_.write(*loop.step);
    const std::string step = literal != nullptr && literal->value != 0
                                 ? stepText
                                 : "checkedStep(" + stepText + ", " + tables_.places.literal(loop.step->place) + ")";
    const std::string count = scope_.temporary("count");
    lines_.open("for (Counting " + count + "{" + first + ", " + last + ", " + step + "}; " + count + ".hasNext();) {");
    if (facts_.livesInLoops(*loop.variable)) {
        lines_.line("const Whole " + expressions_.nameOf(*loop.variable) + " = " + count + ".next();");
    } else {
        takeOver(*loop.variable, count + ".next()", Type::Whole);
    }
}

void StatementWriter::takeOver(const Variable& variable, const std::string& holder, Type type) {
    const Type to = typeOf(variable);
    lines_.line(expressions_.nameOf(variable) + " = " + (to == Type::Value ? holder : converted(holder, type, to)) +
                ";");
}

/// ஒவ்வொன்றாக எ இல் a: ...  ->  for (Each each1(a, place); each1.next(v_எ);) { ... }
void StatementWriter::visit(const EachLoop& loop) {
    const std::string iterable = expressions_.write(*loop.iterable);
    const std::string each = scope_.temporary("each");
    const bool isDirect = typeOf(*loop.variable) == Type::Value;
    const std::string holder = isDirect ? expressions_.nameOf(*loop.variable) : scope_.temporary();
    if (!isDirect) {
        lines_.line("Value " + holder + ";");
    }
    lines_.open("for (Each " + each + "(" + iterable + ", " + tables_.places.literal(loop.iterable->place) + "); " +
                each + ".next(" + holder + ");) {");
    if (!isDirect) {
        takeOver(*loop.variable, holder, Type::Value);
    }
    writeTurn(*loop.body, loop.iterable->place);
    lines_.close();
}

/// தேர்வு a: ...  ->  if (equal(a, b)) { ... } else if ...
void StatementWriter::visit(const Switch& statement) {
    const Type type = typeOf(*statement.subject);
    const std::string subject = scope_.temporary("subject");
    lines_.open("{");
    lines_.line("const " + std::string(nameOf(type)) + " " + subject + " = " + expressions_.write(*statement.subject) +
                ";");
    bool isOpen = false;
    for (const Case& one : statement.cases) {
        const Type caseType = typeOf(*one.value);
        const bool isMixed = caseType != type && caseType != Type::Value && type != Type::Value;
        const std::string value = expressions_.write(*one.value, isMixed ? Wanted::Value : Wanted::AsIs);
        lines_.setPlace(one.value->place);
        std::string test = "if (equal(";
        test.append(subject).append(", ").append(value).append(")) {");
        if (isOpen) {
            lines_.reopen("} else " + test);
        } else {
            lines_.open(test);
        }
        isOpen = true;
        comment(one.value->place);
        write(*one.body);
    }
    if (statement.otherwise != nullptr) {
        if (isOpen) {
            lines_.reopen("} else {");
        }
        write(*statement.otherwise);
    }
    if (isOpen) {
        lines_.close();
    }
    lines_.close();
}

/// முயற்சி: ... பிடி(பிழை): ...  ->  try { const Attempt attempt; ... } catch (const Fault& fault) { fault.beginHandler(); ... }
void StatementWriter::visit(const Try& statement) {
    lines_.open("try {");
    lines_.line("const Attempt attempt;");
    write(*statement.body);
    lines_.reopen("} catch (const Fault& fault) {");
    lines_.line("fault.beginHandler();");
    if (statement.variable != nullptr) {
        lines_.line(expressions_.nameOf(*statement.variable) + " = fault.message();");
    }
    write(*statement.handler);
    lines_.close();
}

} // namespace pozhil::resolved::writer
