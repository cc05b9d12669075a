#include "analysis/second/test_calls.h"

#include "analysis/second/fault_numbers.h"
#include "analysis/second/model.h"
#include "analysis/second/resolution.h"
#include "front_end/second_edition.h"
#include "language/second/builtins.h"

#include <memory>
#include <string_view>
#include <utility>

namespace pozhil::second {
namespace {

constexpr std::string_view TEST_PREFIX = "சோதி_";

/// What no program can call, so it has no name.
constexpr language::second::Builtin IS_CHOSEN = {
    "", language::second::BuiltinForm::TestCall, 1, 1, "isChosenTest", language::second::ResultKind::Truth, false, {},
    {}};

constexpr language::second::Builtin REQUIRE_CHOSEN = {"",
                                                      language::second::BuiltinForm::TestCall,
                                                      0,
                                                      0,
                                                      "requireChosenTest",
                                                      language::second::ResultKind::Nothing,
                                                      false,
                                                      {},
                                                      {}};

/// Of the program's own file, apart from inner functions and methods.
bool isTest(const Model& model, const resolved::Function& function) {
    return function.file + 1 == model.program.files.size() && function.enclosing == nullptr &&
           function.structure == nullptr && function.name.rfind(TEST_PREFIX, 0) == 0;
}

resolved::ExpressionPtr isChosen(const resolved::Function& test) {
    auto name = makeNode<resolved::TextLiteral>(test.place);
    name->value = test.name;
    auto question = makeNode<resolved::BuiltinCall>(test.place);
    question->builtin = &IS_CHOSEN;
    question->arguments.emplace_back();
    question->arguments.back().value = std::move(name);
    return question;
}

resolved::BlockPtr callOf(const resolved::Function& test) {
    auto call = makeNode<resolved::FunctionCall>(test.place);
    call->function = &test;
    auto statement = makeNode<resolved::Evaluation>(test.place);
    statement->value = std::move(call);
    auto block = makeNode<resolved::Block>(test.place);
    block->statements.push_back(std::move(statement));
    return block;
}

} // namespace

void callTests(Model& model) {
    if (!model.source.isTest) {
        return;
    }
    for (const auto& function : model.program.functions) {
        if (!isTest(model, *function)) {
            continue;
        }
        if (!function->parameters.empty()) {
            model.faults.add(fault::TEST_WITH_PARAMETERS, function->place, {function->name});
            continue;
        }
        model.program.tests.push_back(function.get());
        auto condition = makeNode<resolved::If>(function->place);
        condition->condition = isChosen(*function);
        condition->thenBranch = callOf(*function);
        model.program.files.back().body->statements.push_back(std::move(condition));
    }
    if (!model.program.tests.empty()) {
        auto call = makeNode<resolved::BuiltinCall>(model.program.tests.back()->place);
        call->builtin = &REQUIRE_CHOSEN;
        auto statement = makeNode<resolved::Evaluation>(call->place);
        statement->value = std::move(call);
        model.program.files.back().body->statements.push_back(std::move(statement));
    }
}

} // namespace pozhil::second
