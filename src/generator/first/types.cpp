#include "generator/first/generator.h"
#include "generator/first/names.h"

#include <string_view>
#include <unordered_map>

namespace pozhil {
namespace {

using TypeMap = std::unordered_map<std::string_view, VarType>;

/// Built-in functions whose result is known, whatever else has their name.
const TypeMap& firmResults() {
    static const TypeMap results = {
        {"உள்ளீடு", VarType::Text},      {"நீளம்", VarType::Integer},   {"எடு", VarType::Any},
        {"வர்க்கமூலம்", VarType::Double}, {"அடுக்கு", VarType::Double}, {"சைன்", VarType::Double},
        {"காஸ்", VarType::Double},      {"டேன்", VarType::Double},    {"மடக்கு", VarType::Double},
        {"மேல்எண்", VarType::Integer},   {"கீழ்எண்", VarType::Integer},  {"இப்போதுநேரம்", VarType::Time},
        {"வரம்பு", VarType::Any},
    };
    return results;
}

/// Built-in functions whose result is known unless a structure has their name.
const TypeMap& weakResults() {
    static const TypeMap results = {
        {"பிளவு", VarType::List},        {"பதில்", VarType::Text},      {"பெரியஎ", VarType::Text},
        {"சிறியஎ", VarType::Text},       {"கோப்பு_படி", VarType::Text}, {"கோப்பு_உள்ளதா", VarType::Boolean},
        {"கோப்பு_அழி", VarType::Boolean},
    };
    return results;
}

bool yieldsTruth(std::string_view word) {
    return word == "சமம்" || word == "சமமில்லை" || word == "பெரிது" || word == "சிறிது" || word == "பெரிதுசமம்" ||
           word == "சிறிதுசமம்" || word == "மற்றும்" || word == "அல்லது";
}

template <class Node> bool isA(const Expression* expression) {
    return nodeCast<Node>(expression) != nullptr;
}

} // namespace

/// The best guess at a value's type before the program runs; Any is the usual answer. Operators ask for their operands'
/// types again and again on the way down, so answers are remembered until a name changes its type.
VarType Generator::inferExpressionType(const Expression* expression) {
    if (isA<NumberLiteral>(expression)) {
        return VarType::Integer;
    }
    if (isA<DoubleLiteral>(expression)) {
        return VarType::Double;
    }
    if (isA<StringLiteral>(expression)) {
        return VarType::Text;
    }
    if (isA<BooleanLiteral>(expression)) {
        return VarType::Boolean;
    }
    if (isA<ListLiteral>(expression)) {
        return VarType::List;
    }
    if (isA<MapLiteral>(expression)) {
        return VarType::Map;
    }
    if (isA<LambdaExpression>(expression)) {
        return VarType::Object;
    }
    if (const auto* call = nodeCast<CallExpression>(expression)) {
        return inferCallType(*call);
    }
    if (const auto* name = nodeCast<VariableAccess>(expression)) {
        return inferNameType(*name);
    }
    if (const auto* get = nodeCast<GetExpression>(expression)) {
        return inferMemberType(*get);
    }
    if (const auto* binary = nodeCast<BinaryExpression>(expression)) {
        return inferBinaryType(*binary);
    }
    if (const auto* ternary = nodeCast<TernaryExpression>(expression)) {
        return inferExpressionType(ternary->thenBranch.get());
    }
    return VarType::Any;
}

VarType Generator::inferCallType(const CallExpression& call) {
    if (const auto* get = nodeCast<GetExpression>(call.callee.get())) {
        const std::string& member = get->member.value;
        const auto* object = nodeCast<VariableAccess>(get->object.get());
        if (object != nullptr && object->name == "நேரம்" && (member == "வினாடிகள்" || member == "உருவாக்கு")) {
            return member == "வினாடிகள்" ? VarType::Double : VarType::Time;
        }
        return member == "தேதி" || member == "நேரம்" || member == "முழுவதும்" ? VarType::Text : VarType::Any;
    }
    const auto* callee = nodeCast<VariableAccess>(call.callee.get());
    if (callee == nullptr) {
        return VarType::Any;
    }
    if (callee->name == "தனிமதிப்பு") {
        return call.arguments.empty() ? VarType::Any : inferExpressionType(call.arguments.front().get());
    }
    const auto firm = firmResults().find(callee->name);
    if (firm != firmResults().end()) {
        return firm->second;
    }
    if (knownStructs_.count(callee->name) != 0) {
        return VarType::Object;
    }
    const auto weak = weakResults().find(callee->name);
    return weak == weakResults().end() ? VarType::Any : weak->second;
}

VarType Generator::inferNameType(const VariableAccess& name) const {
    if (isSelfName(name.name)) {
        if (currentStruct_.empty()) {
            பிழை("பொழி-325", name.line, "");
        }
        return VarType::Object;
    }
    if (localVars_.count(name.name) != 0) {
        return VarType::Any;
    }
    const auto known = varTypes_.find(name.name);
    return known == varTypes_.end() ? VarType::Any : known->second;
}

VarType Generator::inferMemberType(const GetExpression& get) const {
    const auto* object = nodeCast<VariableAccess>(get.object.get());
    if (object == nullptr) {
        return VarType::Any;
    }
    const auto known = varTypes_.find(object->name);
    const bool isTime = known != varTypes_.end() && known->second == VarType::Time;
    return isTime && isTimePart(get.member.value) ? VarType::Integer : VarType::Any;
}

/// The order of the rules matters to programs: a comparison of two whole numbers counts as a whole number.
VarType Generator::inferBinaryType(const BinaryExpression& binary) {
    const auto remembered = inferredTypes_.find(&binary);
    if (remembered != inferredTypes_.end() && remembered->second.epoch == typeEpoch_) {
        return remembered->second.type;
    }
    const VarType left = inferExpressionType(binary.left.get());
    const VarType right = inferExpressionType(binary.right.get());
    const auto either = [&](VarType type) { return left == type || right == type; };
    const std::string& word = binary.op.value;
    VarType type = VarType::Any;
    if ((word == "கூட்டு" || word == "இணை") && either(VarType::Text)) {
        type = VarType::Text;
    } else if (either(VarType::Double)) {
        type = VarType::Double;
    } else if (left == VarType::Integer && right == VarType::Integer) {
        type = VarType::Integer;
    } else if (yieldsTruth(word)) {
        type = VarType::Boolean;
    }
    inferredTypes_[&binary] = {typeEpoch_, type};
    return type;
}

void Generator::setVarType(const std::string& name, VarType type) {
    varTypes_[name] = type;
    ++typeEpoch_;
}

void Generator::setLocal(const std::string& name) {
    if (localVars_.insert(name).second) {
        localsLog_.push_back(name);
    }
    ++typeEpoch_;
}

/// Only the first \p count names that entered are native variables from here on. A scope is left so in time that goes
/// with its own names, however many stand outside.
void Generator::dropLocalsBehind(std::size_t count) {
    for (; localsLog_.size() > count; localsLog_.pop_back()) {
        localVars_.erase(localsLog_.back());
    }
    ++typeEpoch_;
}

} // namespace pozhil
