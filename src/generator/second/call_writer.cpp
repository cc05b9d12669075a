#include "generator/second/call_writer.h"

#include "generator/second/evaluation_order.h"
#include "generator/second/literals.h"

#include <algorithm>

namespace pozhil::resolved::writer {
namespace {

constexpr const char* CONSTRUCTOR = "துவக்கம்";

bool hasPlaces(const Arguments& arguments) {
    return std::any_of(arguments.begin(), arguments.end(),
                       [](const Argument& argument) { return argument.target != nullptr; });
}

/// A variable that the emitted text can hand over by reference.
bool isReference(const TargetPlace& target) {
    return target.form == TargetPlace::Form::Variable && typeOf(*target.variable) == Type::Value;
}

/// Whether a மாற்று parameter can refer to the argument as it is.
bool isReady(const Argument& argument) {
    return argument.target != nullptr && isReference(*argument.target) && !argument.target->isChecked;
}

/// Whether it shows that arguments from number \p first on have been evaluated.
bool leaveTraces(const Arguments& arguments, std::size_t first) {
    return std::any_of(arguments.begin() + static_cast<std::ptrdiff_t>(first), arguments.end(),
                       [](const Argument& argument) { return leavesTraces(*argument.value); });
}

/// Whether arguments from number \p first on have to do with what \p target stands in.
bool meddle(const Arguments& arguments, std::size_t first, const TargetPlace& target) {
    return std::any_of(arguments.begin() + static_cast<std::ptrdiff_t>(first), arguments.end(),
                       [&](const Argument& argument) { return mustComeBeforePlace(*argument.value, target); });
}

/// Whether some method that comes with the language has this name and writes to its value.
bool isWritingMethod(const std::string& member) {
    const language::second::Builtin* row = language::second::findBuiltin(language::second::BuiltinForm::Method, member);
    return row != nullptr && row->writesFirst;
}

/// The name of a variable that is called and hides a function of the language; null if it hides none.
const std::string* hiddenBuiltin(const Expression& callee) {
    using namespace language::second;
    const auto* const read = dynamic_cast<const VariableRead*>(&callee);
    const bool hides = read != nullptr && findBuiltin(BuiltinForm::Call, read->variable->name) != nullptr;
    return hides ? &read->variable->name : nullptr;
}

} // namespace

const Function* constructorOf(const Structure& structure) {
    for (const Structure* one = &structure; one != nullptr; one = one->parent) {
        for (const Function* method : one->methods) {
            if (method->name == CONSTRUCTOR) {
                return method;
            }
        }
    }
    return nullptr;
}

std::string CallWriter::giveBack(const TargetPlace& target, std::size_t operand, const std::string& holder) const {
    const Type type = target.form == TargetPlace::Form::Variable ? typeOf(*target.variable) : Type::Value;
    return operands_.place(target, operand, true) + " = " + converted(holder, Type::Value, type) + ";";
}

/// f(a, b)  ->  f_f(a, b, place)
std::string CallWriter::write(const FunctionCall& call) {
    return knownCall(writer_.tables_.names.of(*call.function), call.function, 0, call.arguments, typeOf(*call.function),
                     call.place);
}

std::string CallWriter::write(const Construction& construction) {
    const Function* constructor = constructorOf(*construction.structure);
    return knownCall(writer_.tables_.names.of(*construction.structure, "new_"), constructor, 1, construction.arguments,
                     Type::Value, construction.place);
}

std::string CallWriter::knownCall(const std::string& name, const Function* function, std::size_t skipped,
                                  const Arguments& arguments, Type result, const Place& place) {
    std::vector<Parameter> parameters;
    if (function != nullptr) {
        parameters.assign(function->parameters.begin() + static_cast<std::ptrdiff_t>(skipped),
                          function->parameters.end());
    }
    const std::vector<Given> given = giveTo(parameters, arguments);
    const std::string texts = listed(given) + (given.empty() ? "" : ", ");
    const std::string callText = name + "(" + texts + writer_.placeOf(place) + ")";
    std::string returned;
    for (std::size_t index = 0; index < arguments.size(); ++index) {
        const TargetPlace* target = arguments[index].target.get();
        if (parameters[index].isMutable && target != nullptr && !isReference(*target)) {
            returned += giveBack(*target, given[index].operand, given[index].text) + " ";
        }
    }
    if (returned.empty()) {
        return operands_.whole(callText);
    }
    const std::string resultName = writer_.temporary();
    operands_.before("const " + std::string(nameOf(result)) + " " + resultName + " = " + callText + ";");
    returned.pop_back();
    operands_.before(returned);
    return operands_.whole(resultName);
}

std::vector<CallWriter::Given> CallWriter::giveTo(const std::vector<Parameter>& parameters,
                                                  const Arguments& arguments) {
    // A place is looked up at its turn, so what stands before it can't wait for the call.
    bool someWait = false;
    for (std::size_t index = 0; index < arguments.size(); ++index) {
        someWait = someWait || (parameters[index].isMutable && !isReady(arguments[index]));
    }
    std::vector<Given> given;
    for (std::size_t index = 0; index < arguments.size(); ++index) {
        const Argument& argument = arguments[index];
        given.push_back({operands_.count(), {}});
        if (!parameters[index].isMutable) {
            const Type type = typeOf(*parameters[index].variable);
            operands_.add(*argument.value, type == Type::Value ? Wanted::AsIs : wantedAs(type), someWait);
        } else {
            given.back().text = isReady(argument) ? writer_.nameOf(*argument.target->variable) : reference(argument);
        }
    }
    operands_.evaluate();
    for (std::size_t index = 0; index < arguments.size(); ++index) {
        Given& one = given[index];
        if (!parameters[index].isMutable) {
            one.text = givenText(*arguments[index].value, one.operand, typeOf(*parameters[index].variable));
        }
    }
    return given;
}

std::string CallWriter::reference(const Argument& argument) {
    const std::size_t first = operands_.count();
    std::string source;
    if (argument.target == nullptr) {
        // What the parameter has in the end is of no use to anybody.
        operands_.add(*argument.value, Wanted::AsIs);
        operands_.evaluate();
        source = operands_.text(first);
    } else {
        operands_.addPlace(*argument.target, true);
        operands_.evaluate();
        source = operands_.place(*argument.target, first);
        if (isReference(*argument.target)) {
            operands_.before(source + ";");
            return writer_.nameOf(*argument.target->variable);
        }
    }
    std::string holder = writer_.temporary();
    operands_.before("Value " + holder + " = " + source + ";");
    return holder;
}

std::string CallWriter::givenText(const Expression& argument, std::size_t number, Type parameter) const {
    const auto* read = dynamic_cast<const VariableRead*>(&argument);
    const bool isLast = parameter == Type::Value && read != nullptr && writer_.scope_.lastUses.count(read) != 0;
    return isLast ? "moved(" + operands_.text(number) + ")" : operands_.takenText(number);
}

std::vector<CallWriter::Given> CallWriter::give(const Arguments& arguments) {
    const bool hasLookup = std::any_of(arguments.begin(), arguments.end(), [](const Argument& argument) {
        return argument.target != nullptr && argument.target->form != TargetPlace::Form::Variable;
    });
    std::vector<Given> given;
    for (const Argument& argument : arguments) {
        given.push_back({operands_.count(), {}});
        if (argument.target == nullptr || argument.target->form == TargetPlace::Form::Variable) {
            operands_.add(*argument.value, Wanted::AsIs, hasLookup);
            continue;
        }
        operands_.addPlace(*argument.target, true);
        operands_.evaluate();
        const std::string holder = writer_.temporary();
        operands_.before("Value " + holder + " = " + operands_.valueOf(*argument.target, given.back().operand) + ";");
        given.back().text = "moved(" + holder + ")";
    }
    operands_.evaluate();
    for (Given& one : given) {
        one.text = one.text.empty() ? operands_.takenText(one.operand) : one.text;
    }
    return given;
}

std::string CallWriter::listed(const std::vector<Given>& given) {
    std::string texts;
    for (const Given& one : given) {
        texts += (texts.empty() ? "" : ", ") + one.text;
    }
    return texts;
}

std::string CallWriter::argumentArray(const std::vector<Given>& given) {
    std::string array = writer_.temporary();
    operands_.before("Value " + array + "[] = {" + listed(given) + "};");
    return array;
}

std::string CallWriter::callWithPlaces(const Arguments& arguments, const std::vector<Given>& given,
                                       const std::string& array, const std::string& callText,
                                       const std::string& maskText) {
    if (!hasPlaces(arguments)) {
        return operands_.whole(callText);
    }
    // Asked before the call, which may put another function into the variable.
    const std::string mask = writer_.temporary();
    operands_.before("const unsigned " + mask + " = " + maskText + ";");
    const std::string result = writer_.temporary();
    operands_.before("const Value " + result + " = " + callText + ";");
    for (std::size_t index = 0; index < arguments.size(); ++index) {
        const TargetPlace* target = arguments[index].target.get();
        if (target != nullptr) {
            const std::string holder = array + "[" + std::to_string(index) + "]";
            operands_.before("if (" + mask + " & " + std::to_string(1U << index) + "U) " +
                             giveBack(*target, given[index].operand, holder));
        }
    }
    return operands_.whole(result);
}

/// வ(a)  ->  call(v_வ, {a}, place)
std::string CallWriter::write(const ValueCall& call) {
    const std::string place = writer_.placeOf(call.place);
    const bool withPlaces = hasPlaces(call.arguments);
    operands_.add(*call.callee, Wanted::AsIs, withPlaces);
    operands_.beginBraces();
    const std::vector<Given> given = give(call.arguments);
    std::string callee = operands_.text(0);
    if (const std::string* const name = hiddenBuiltin(*call.callee)) {
        callee = "calledVariable(" + textLiteral(*name) + ", " + callee + ", " + place + ")";
    }
    if (!withPlaces) {
        return operands_.whole("call(" + callee + ", {" + listed(given) + "}, " + place + ")");
    }
    const std::string array = argumentArray(given);
    const std::string count = std::to_string(call.arguments.size());
    return callWithPlaces(call.arguments, given, array,
                          "callValue(" + callee + ", " + array + ", " + count + ", " + place + ")",
                          "mutableParameters(" + callee + ")");
}

std::string CallWriter::write(const MethodCall& call) {
    return call.object.target != nullptr && isWritingMethod(call.member) ? methodOfPlace(call) : methodOfValue(call);
}

/// a.சேர்(b)  ->  callMethod(v_a, m_சேர், {b}, place)
std::string CallWriter::methodOfPlace(const MethodCall& call) {
    const TargetPlace& target = *call.object.target;
    const bool withPlaces = hasPlaces(call.arguments);
    const bool meddles = withPlaces || meddle(call.arguments, 0, target);
    const bool isFoundFirst = mayBeMissing(target) && leaveTraces(call.arguments, 0);
    operands_.addPlace(target, withPlaces || isFoundFirst);
    std::string object;
    if (isFoundFirst) {
        object = operands_.placeFoundFirst(target, 0, meddles);
    }
    operands_.beginBraces();
    const std::vector<Given> given = give(call.arguments);
    std::string arguments = "{" + listed(given) + "}";
    std::string array;
    if (meddles) {
        array = argumentArray(given);
        arguments = array + ", " + std::to_string(given.size());
    }
    if (!isFoundFirst) {
        object = operands_.place(target, 0);
    }
    if (target.form == TargetPlace::Form::Variable && typeOf(*target.variable) != Type::Value) {
        // A number has no method, as the engine will tell.
        const std::string holder = writer_.temporary();
        operands_.before("Value " + holder + " = " + object + ";");
        object = holder;
    }
    const std::string member = writer_.tables_.members.of(call.member);
    const std::string rest = writer_.memberArguments(call.member, call.place, call.inside).substr(member.size());
    return callWithPlaces(call.arguments, given, array,
                          "callMethod(" + object + ", " + member + ", " + arguments + rest + ")",
                          "mutableParameters(" + object + ", " + member + ")");
}

/// a.பேசு(b)  ->  callMethodOf(a, m_பேசு, {b}, place)
std::string CallWriter::methodOfValue(const MethodCall& call) {
    const bool withPlaces = hasPlaces(call.arguments);
    operands_.add(*call.object.value, Wanted::AsIs, withPlaces);
    operands_.beginBraces();
    const std::vector<Given> given = give(call.arguments);
    const std::string member = writer_.tables_.members.of(call.member);
    const std::string rest = writer_.memberArguments(call.member, call.place, call.inside).substr(member.size());
    if (!withPlaces) {
        return operands_.whole("callMethodOf(" + operands_.text(0) + ", " + member + ", {" + listed(given) + "}" +
                               rest + ")");
    }
    const std::string object = writer_.temporary();
    operands_.before("Value " + object + " = " + operands_.takenText(0) + ";");
    const std::string array = argumentArray(given);
    const std::string count = std::to_string(call.arguments.size());
    return callWithPlaces(call.arguments, given, array,
                          "callMethod(" + object + ", " + member + ", " + array + ", " + count + rest + ")",
                          "mutableParameters(" + object + ", " + member + ")");
}

/// நீளம்(a)  ->  length(a, place)
std::string CallWriter::write(const BuiltinCall& call) {
    if (call.builtin->writesFirst) {
        return writingBuiltin(call);
    }
    const bool isOverloaded = call.builtin->result == language::second::ResultKind::OfFirstArgument;
    for (const Argument& argument : call.arguments) {
        operands_.add(*argument.value, isOverloaded ? Wanted::NumberOrValue : Wanted::AsIs);
    }
    operands_.evaluate();
    return operands_.whole(engineCall(call, operands_.list()));
}

/// நீக்கு(a, b)  ->  removeFrom(v_a, b, place)
std::string CallWriter::writingBuiltin(const BuiltinCall& call) {
    const Arguments& arguments = call.arguments;
    const TargetPlace* target = arguments.front().target.get();
    const bool isFoundFirst = target != nullptr && mayBeMissing(*target) && leaveTraces(arguments, 1);
    std::string written;
    if (target == nullptr) {
        operands_.add(*arguments.front().value, Wanted::AsIs);
    } else {
        operands_.addPlace(*target, isFoundFirst);
    }
    if (isFoundFirst) {
        written = operands_.placeFoundFirst(*target, 0, meddle(arguments, 1, *target));
    }
    const std::size_t first = operands_.count();
    for (std::size_t index = 1; index < arguments.size(); ++index) {
        const Expression& value = *arguments[index].value;
        operands_.add(value, Wanted::AsIs, target != nullptr && mustComeBeforePlace(value, *target));
    }
    operands_.evaluate();
    if (!isFoundFirst) {
        written = target != nullptr ? operands_.place(*target, 0) : operands_.text(0);
    }
    if (target == nullptr || (target->form == TargetPlace::Form::Variable && !isReference(*target))) {
        const std::string holder = writer_.temporary();
        operands_.before("Value " + holder + " = " + written + ";");
        written = holder;
    }
    const std::string others = operands_.list(first);
    return operands_.whole(engineCall(call, written + (others.empty() ? "" : ", ") + others));
}

std::string CallWriter::engineCall(const BuiltinCall& call, const std::string& arguments) const {
    return std::string(call.builtin->engineFunction) + "(" + arguments + (arguments.empty() ? "" : ", ") +
           writer_.placeOf(call.place) + ")";
}

} // namespace pozhil::resolved::writer
