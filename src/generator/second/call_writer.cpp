#include "generator/second/call_writer.h"

#include "generator/second/evaluation_order.h"

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

bool isMutable(const Function* function, std::size_t parameter) {
    return function != nullptr && parameter < function->parameters.size() && function->parameters[parameter].isMutable;
}

/// Whether some method that comes with the language has this name and writes to its value.
bool isWritingMethod(const std::string& member) {
    const language::second::Builtin* row = language::second::findBuiltin(language::second::BuiltinForm::Method, member);
    return row != nullptr && row->writesFirst;
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

std::string CallWriter::giveBack(const Returned& returned) const {
    const TargetPlace& target = *returned.target;
    const Type type = target.form == TargetPlace::Form::Variable ? typeOf(*target.variable) : Type::Value;
    return operands_.place(target, returned.operand, true) + " = " + converted(returned.holder, Type::Value, type) +
           ";";
}

void CallWriter::addArguments(const Arguments& arguments) {
    for (const Argument& argument : arguments) {
        operands_.add(*argument.value, Wanted::AsIs);
    }
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
    std::vector<std::size_t> numbers;
    std::vector<Returned> returned;
    for (std::size_t index = 0; index < arguments.size(); ++index) {
        const Argument& argument = arguments[index];
        const std::size_t parameter = index + skipped;
        numbers.push_back(operands_.count());
        if (!isMutable(function, parameter) || argument.target == nullptr) {
            const Type type = typeOf(*function->parameters[parameter].variable);
            operands_.add(*argument.value, type == Type::Value ? Wanted::AsIs : wantedAs(type));
        } else if (!isReference(*argument.target)) {
            operands_.addPlace(*argument.target, true);
            returned.push_back({argument.target.get(), numbers.back(), writer_.temporary(), index});
        }
    }
    operands_.evaluate();
    std::string texts;
    for (std::size_t index = 0; index < arguments.size(); ++index) {
        const TargetPlace* target = arguments[index].target.get();
        const auto held =
            std::find_if(returned.begin(), returned.end(), [&](const Returned& one) { return one.argument == index; });
        if (held != returned.end()) {
            operands_.before("Value " + held->holder + " = " + operands_.place(*target, held->operand) + ";");
            texts += held->holder;
        } else if (!isMutable(function, index + skipped)) {
            texts += operands_.takenText(numbers[index]);
        } else if (target != nullptr) {
            texts += operands_.place(*target, numbers[index]);
        } else {
            // What the parameter has in the end is of no use to anybody.
            const std::string holder = writer_.temporary();
            operands_.before("Value " + holder + " = " + operands_.text(numbers[index]) + ";");
            texts += holder;
        }
        texts += ", ";
    }
    const std::string callText = name + "(" + texts + writer_.placeOf(place) + ")";
    if (returned.empty()) {
        return operands_.whole(callText);
    }
    const std::string resultName = writer_.temporary();
    operands_.before("const " + std::string(nameOf(result)) + " " + resultName + " = " + callText + ";");
    for (const Returned& one : returned) {
        operands_.before(giveBack(one));
    }
    return operands_.whole(resultName);
}

std::string CallWriter::argumentArray(const Arguments& arguments, std::size_t first) {
    std::string array = writer_.temporary();
    if (arguments.empty()) {
        operands_.before("Value* " + array + " = nullptr;");
    } else {
        operands_.before("Value " + array + "[] = {" + operands_.list(first) + "};");
    }
    return array;
}

std::string CallWriter::callWithPlaces(const Arguments& arguments, const std::string& array,
                                       const std::string& callText, const std::string& maskText) {
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
        if (target == nullptr) {
            continue;
        }
        Operands place(writer_);
        place.addPlace(*target);
        place.evaluate();
        const Type type = target->form == TargetPlace::Form::Variable ? typeOf(*target->variable) : Type::Value;
        const std::string value = converted(array + "[" + std::to_string(index) + "]", Type::Value, type);
        operands_.before("if (" + mask + " & " + std::to_string(1U << index) + "U) " +
                         place.statement(place.place(*target, 0, true) + " = " + value));
    }
    return operands_.whole(result);
}

/// வ(a)  ->  call(v_வ, {a}, place)
std::string CallWriter::write(const ValueCall& call) {
    const std::string place = writer_.placeOf(call.place);
    const bool withPlaces = hasPlaces(call.arguments);
    operands_.add(*call.callee, Wanted::AsIs, withPlaces);
    operands_.beginBraces();
    addArguments(call.arguments);
    operands_.evaluate();
    const std::string callee = operands_.text(0);
    if (!withPlaces) {
        return operands_.whole("call(" + callee + ", {" + operands_.list(1) + "}, " + place + ")");
    }
    const std::string array = argumentArray(call.arguments, 1);
    const std::string count = std::to_string(call.arguments.size());
    return callWithPlaces(call.arguments, array,
                          "callValue(" + callee + ", " + array + ", " + count + ", " + place + ")",
                          "mutableParameters(" + callee + ")");
}

std::string CallWriter::write(const MethodCall& call) {
    return call.object.target != nullptr && isWritingMethod(call.member) ? methodOfPlace(call) : methodOfValue(call);
}

/// a.சேர்(b)  ->  callMethod(v_a, m_சேர், {b}, place)
std::string CallWriter::methodOfPlace(const MethodCall& call) {
    const TargetPlace& target = *call.object.target;
    operands_.addPlace(target, hasPlaces(call.arguments));
    const std::size_t first = operands_.count();
    operands_.beginBraces();
    addArguments(call.arguments);
    operands_.evaluate();
    const std::size_t arity = call.arguments.size();
    const bool meddles = hasPlaces(call.arguments) ||
                         std::any_of(call.arguments.begin(), call.arguments.end(),
                                     [&](const Argument& one) { return mustComeBeforePlace(*one.value, target); });
    std::string arguments = "{" + operands_.list(first) + "}";
    std::string array;
    if (meddles) {
        array = argumentArray(call.arguments, first);
        arguments = array + ", " + std::to_string(arity);
    }
    std::string object = operands_.place(target, 0);
    if (target.form == TargetPlace::Form::Variable && typeOf(*target.variable) != Type::Value) {
        // A number has no method, as the engine will tell.
        const std::string holder = writer_.temporary();
        operands_.before("Value " + holder + " = " + object + ";");
        object = holder;
    }
    const std::string member = writer_.tables_.members.of(call.member);
    const std::string rest = writer_.memberArguments(call.member, call.place, call.inside).substr(member.size());
    return callWithPlaces(call.arguments, array, "callMethod(" + object + ", " + member + ", " + arguments + rest + ")",
                          "mutableParameters(" + object + ", " + member + ")");
}

/// a.பேசு(b)  ->  callMethodOf(a, m_பேசு, {b}, place)
std::string CallWriter::methodOfValue(const MethodCall& call) {
    const bool withPlaces = hasPlaces(call.arguments);
    operands_.add(*call.object.value, Wanted::AsIs);
    operands_.beginBraces();
    addArguments(call.arguments);
    operands_.evaluate();
    const std::string member = writer_.tables_.members.of(call.member);
    const std::string rest = writer_.memberArguments(call.member, call.place, call.inside).substr(member.size());
    if (!withPlaces) {
        return operands_.whole("callMethodOf(" + operands_.text(0) + ", " + member + ", {" + operands_.list(1) + "}" +
                               rest + ")");
    }
    const std::string object = writer_.temporary();
    operands_.before("Value " + object + " = " + operands_.text(0) + ";");
    const std::string array = argumentArray(call.arguments, 1);
    const std::string count = std::to_string(call.arguments.size());
    return callWithPlaces(call.arguments, array,
                          "callMethod(" + object + ", " + member + ", " + array + ", " + count + rest + ")",
                          "mutableParameters(" + object + ", " + member + ")");
}

/// நீளம்(a)  ->  length(a, place)
std::string CallWriter::write(const BuiltinCall& call) {
    const std::string name(call.builtin->engineFunction);
    const std::string place = writer_.placeOf(call.place);
    const bool isOverloaded = call.builtin->result == language::second::ResultKind::OfFirstArgument;
    const Arguments& arguments = call.arguments;
    const TargetPlace* target =
        call.builtin->writesFirst && !arguments.empty() ? arguments.front().target.get() : nullptr;
    std::size_t first = 0;
    if (target != nullptr) {
        operands_.addPlace(*target);
        first = operands_.count();
    }
    for (std::size_t index = target == nullptr ? 0 : 1; index < arguments.size(); ++index) {
        const Expression& value = *arguments[index].value;
        const bool isKept = target != nullptr && mustComeBeforePlace(value, *target);
        operands_.add(value, isOverloaded ? Wanted::NumberOrValue : Wanted::AsIs, isKept);
    }
    operands_.evaluate();
    std::string texts = operands_.list(first);
    if (call.builtin->writesFirst) {
        std::string written = target != nullptr ? operands_.place(*target, 0) : operands_.text(0);
        const bool hasReference =
            target != nullptr && (target->form != TargetPlace::Form::Variable || isReference(*target));
        if (!hasReference) {
            const std::string holder = writer_.temporary();
            operands_.before("Value " + holder + " = " + written + ";");
            written = holder;
            texts = operands_.list(target == nullptr ? 1 : first);
        }
        texts = written + (texts.empty() ? "" : ", " + texts);
    }
    return operands_.whole(name + "(" + texts + (texts.empty() ? "" : ", ") + place + ")");
}

} // namespace pozhil::resolved::writer
