#include "analysis/hints/tree_hints.h"

#include "analysis/hints/recursion_hints.h"
#include "analysis/hints/tree_parts.h"
#include "analysis/structures.h"
#include "language/operators.h"
#include "parser/tree/shapes.h"

#include <array>
#include <string>

namespace pozhil {
namespace {

constexpr std::string_view INDEX_ASSIGNMENT = "_set_index_internal";
constexpr std::string_view VISIBILITY = "காட்சி_நிலை";
constexpr std::string_view COLOURS = "நிறம்";
constexpr std::string_view RANGE = "வரம்பு";
constexpr std::string_view INPUT = "உள்ளீடு";
constexpr std::string_view LENGTH = "நீளம்";
/// What a database has answered.
constexpr std::string_view ANSWER = "தரவு";
/// What a page sets before each frame.
constexpr std::array<std::string_view, 2> SCREEN_SIZE = {"திரை_அகலம்", "திரை_உயரம்"};

/// Whether the program has a function or structure of its own of this name.
bool isDefined(const Parser& parser, std::string_view name) {
    return parser.functions().count(std::string(name)) != 0 || parser.structs().count(std::string(name)) != 0;
}

/// The name that is called, empty for whatever else stands before the bracket.
std::string_view calledName(const CallExpression* call) {
    const auto* callee = call == nullptr ? nullptr : nodeCast<VariableAccess>(call->callee.get());
    return callee == nullptr ? std::string_view() : std::string_view(callee->name);
}

/// அ, or தான்.அ, as the source writes it; empty for anything else.
std::string plainText(const Expression* node) {
    if (const auto* name = nodeCast<VariableAccess>(node)) {
        return name->name;
    }
    const auto* get = nodeCast<GetExpression>(node);
    const auto* object = get == nullptr ? nullptr : nodeCast<VariableAccess>(get->object.get());
    return object == nullptr ? "" : object->name + "." + get->member.value;
}

bool isLength(const Expression* node) {
    const auto* call = nodeCast<CallExpression>(withoutBrackets(node));
    return calledName(call) == LENGTH && call->arguments.size() == 1;
}

/// Whether an index is what நீளம் gives, or calculated from it.
bool holdsLength(const Expression* index) {
    const auto* binary = nodeCast<BinaryExpression>(withoutBrackets(index));
    const bool calculates =
        binary != nullptr && language::findOperator(binary->op.value, language::OperatorKind::Arithmetic) != nullptr;
    return isLength(index) || (calculates && (holdsLength(binary->left.get()) || holdsLength(binary->right.get())));
}

/// Whether what is written is the element after the last one.
bool isWrittenAtLength(const CallExpression& write) {
    const Expression* index = withoutBrackets(write.arguments[1].get());
    const std::string list = plainText(write.arguments[0].get());
    return isLength(index) && !list.empty() &&
           plainText(nodeCast<CallExpression>(index)->arguments.front().get()) == list;
}

/// Whether the operator is a call of the runtime, whose arguments g++ evaluates from right to left.
bool isFromRightToLeft(const BinaryExpression& node) {
    return node.op.value == "கூட்டு" || node.op.value == "வகு" || isComparison(node) ||
           language::findOperator(node.op.value, language::OperatorKind::Join) != nullptr;
}

/// Whether a value that is assigned in a condition may be a truth value on purpose.
bool mayBeTruth(const Expression* value) {
    value = withoutBrackets(value);
    return nodeCast<CallExpression>(value) != nullptr || nodeCast<LogicalExpression>(value) != nullptr ||
           nodeCast<UnaryExpression>(value) != nullptr || isComparison(*value);
}

/// What an assignment in a condition assigns, null for any other condition.
const Expression* assignedValue(const Expression* condition) {
    if (const auto* assignment = nodeCast<AssignmentExpression>(condition)) {
        return assignment->op.type == TokenType::ASSIGN ? assignment->value.get() : nullptr;
    }
    if (const auto* member = nodeCast<SetMemberExpression>(condition)) {
        return member->value.get();
    }
    const auto* call = nodeCast<CallExpression>(condition);
    return calledName(call) == INDEX_ASSIGNMENT ? call->arguments.back().get() : nullptr;
}

} // namespace

TreeHints::TreeHints(const Parser& parser, HintList& found)
    : parser_(parser), found_(found), hasInput_(!isDefined(parser, INPUT)), hasLength_(!isDefined(parser, LENGTH)) {}

void TreeHints::find(const Program& program) {
    for (const StatementPtr& statement : program.statements) {
        (*this)(statement.get());
    }
    for (const CallExpression* write : lengthWrites_) {
        tellLengthWrite(*write);
    }
    for (const FunctionDefinitionStatement* function : recursive_) {
        findSharedInRecursion(*function, names_, found_);
    }
    findUnassigned(names_, members_, parser_, found_);
    findUnsetMembers(members_, found_);
    findTwins(names_, members_, found_);
    tellDropped();
}

/// What else a structure can't hold is refused, or has an effect all the same.
void TreeHints::tellDropped() {
    for (const StatementPtr& statement : parser_.droppedStatements()) {
        const bool isHarmless = nodeCast<PassStatement>(statement.get()) != nullptr ||
                                nodeCast<StructDefinitionStatement>(statement.get()) != nullptr ||
                                nodeCast<AbstractStructDefinitionStatement>(statement.get()) != nullptr;
        if (!isHarmless) {
            found_.add(HintKind::DroppedStatement, *statement,
                       "கட்டமைப்பில் பண்புகளும் செயல்களும் மட்டுமே இருக்கலாம்; இந்தக் கூற்று நடக்காது. இதை ஒரு செயலுக்குள் எழுதவும்.");
        }
    }
}

void TreeHints::operator()(const Expression* node) {
    visitExpression(*this, node);
}

void TreeHints::operator()(const Statement* node) {
    visitStatement(*this, node);
}

template <class Node> void TreeHints::visit(const Node& node) {
    TreeParts(*this).visit(node);
}

// Names.

void TreeHints::visit(const VariableAccess& node) {
    names_.read(node.name, node);
}

/// A compound assignment calculates with what the variable holds already.
void TreeHints::visit(const AssignmentExpression& node) {
    (*this)(node.value.get());
    if (node.op.type == TokenType::ASSIGN) {
        names_.assign(node.name, node, *node.value);
    } else {
        names_.read(node.name, node);
    }
}

void TreeHints::visit(const VarDeclaration& node) {
    (*this)(node.initializer.get());
    names_.assign(node.name);
}

void TreeHints::visit(const LambdaExpression& node) {
    const std::size_t outer = names_.depth();
    const std::size_t inputs = inputs_;
    for (const Token& parameter : node.parameters) {
        names_.addNative(parameter.value);
    }
    (*this)(node.body.get());
    names_.leave(outer);
    inputs_ = inputs;
}

void TreeHints::visit(const ForStatement& node) {
    (*this)(node.iterable.get());
    const std::size_t outer = names_.depth();
    names_.addNative(node.variable.value);
    (*this)(node.body.get());
    names_.leave(outer);
}

/// The name of the error is a variable of the program, whatever function it stands in. A fault may be what is tried.
void TreeHints::visit(const TryCatchStatement& node) {
    ++tries_;
    (*this)(node.tryBlock.get());
    --tries_;
    names_.assign(node.errorName);
    (*this)(node.catchBlock.get());
}

void TreeHints::visit(const FunctionDefinitionStatement& node) {
    const bool isNested = names_.function != nullptr;
    const std::size_t outer = names_.depth();
    names_.function = isNested ? names_.function : &node;
    for (const Param& param : node.params) {
        names_.addNative(param.name.value);
    }
    (*this)(node.body.get());
    names_.leave(outer);
    if (isNested) {
        names_.addNative(node.name.value);
    } else {
        names_.function = nullptr;
    }
}

void TreeHints::visit(const StructDefinitionStatement& node) {
    for (const auto& field : node.fields) {
        members_[field->name].isSet = true;
        (*this)(field->initializer.get());
    }
    for (const auto& method : node.methods) {
        members_[method->name.value].isSet = true;
        visit(*method);
    }
}

void TreeHints::visit(const RTDBReadStatement& node) {
    names_.assign(ANSWER);
    TreeParts(*this).visit(node);
}

void TreeHints::visit(const WebAppNode& node) {
    for (const std::string_view name : SCREEN_SIZE) {
        names_.assign(name);
    }
    TreeParts(*this).visit(node);
}

/// A bare word may be one that the widget knows, and a text the identifier under which it keeps its state.
void TreeHints::visit(const WidgetNode& node) {
    for (const auto& [key, value] : node.properties) {
        if (const auto* text = nodeCast<StringLiteral>(value.get())) {
            names_.assign(text->value);
        } else if (nodeCast<VariableAccess>(value.get()) == nullptr) {
            (*this)(value.get());
        }
    }
    for (const StatementList* statements : {&node.children, &node.eventStatements}) {
        for (const StatementPtr& statement : *statements) {
            (*this)(statement.get());
        }
    }
}

// Members.

void TreeHints::visit(const GetExpression& node) {
    const auto* object = nodeCast<VariableAccess>(node.object.get());
    const bool isVariable = object != nullptr && object->name != VISIBILITY && object->name != COLOURS;
    if (object == nullptr || isVariable) {
        MemberUse& use = members_[node.member.value];
        use.mention = use.mention == nullptr ? &node : use.mention;
        use.read = use.read == nullptr && tries_ == 0 ? &node : use.read;
    }
    walkObject(node.object.get());
}

void TreeHints::visit(const SetMemberExpression& node) {
    const auto* object = nodeCast<VariableAccess>(node.object.get());
    if (object != nullptr && object->name == VISIBILITY) {
        names_.assign(node.member.value);
    } else {
        MemberUse& use = members_[node.member.value];
        use.mention = use.mention == nullptr ? &node : use.mention;
        use.isSet = true;
    }
    walkObject(node.object.get());
    (*this)(node.value.get());
}

/// What stands before a dot is refused unless it holds an object, or names something that is no variable.
void TreeHints::walkObject(const Expression* object) {
    if (const auto* name = nodeCast<VariableAccess>(object)) {
        names_.mention(name->name, *name);
    } else {
        (*this)(object);
    }
}

// Conditions.

void TreeHints::visit(const IfStatement& node) {
    checkCondition(node.condition.get());
    TreeParts(*this).visit(node);
}

void TreeHints::visit(const WhileStatement& node) {
    checkCondition(node.condition.get());
    TreeParts(*this).visit(node);
}

void TreeHints::visit(const TernaryExpression& node) {
    checkCondition(node.condition.get());
    TreeParts(*this).visit(node);
}

void TreeHints::checkCondition(const Expression* condition) {
    condition = withoutBrackets(condition);
    if (const auto* both = nodeCast<LogicalExpression>(condition)) {
        checkCondition(both->left.get());
        checkCondition(both->right.get());
        return;
    }
    const Expression* value = assignedValue(condition);
    if (value != nullptr && !mayBeTruth(value)) {
        found_.add(HintKind::AssignmentCondition, *condition,
                   "நிபந்தனையில் '=' ஒப்பிடாது, மதிப்பை வைத்துவிடும்; ஒப்பிட 'சமம்' என்று எழுதவும்.", {"=", "சமம்"});
    }
}

// Calls, operators and elements.

void TreeHints::visit(const CallExpression& node) {
    const std::string_view name = calledName(&node);
    if (name.empty()) {
        (*this)(node.callee.get());
    } else {
        names_.mention(name, *node.callee);
    }
    walkArguments(node);
    if (name == INPUT && hasInput_) {
        ++inputs_;
    }
    if (name == INDEX_ASSIGNMENT && hasLength_ && isWrittenAtLength(node)) {
        lengthWrites_.push_back(&node);
    }
    const bool isRecursive = names_.function != nullptr && isSelfCall(node, *names_.function);
    if (isRecursive && (recursive_.empty() || recursive_.back() != names_.function)) {
        recursive_.push_back(names_.function);
    }
}

/// A range is the one call whose arguments are carried out in their order.
void TreeHints::walkArguments(const CallExpression& call) {
    const std::string_view name = calledName(&call);
    std::size_t asking = 0;
    for (const ExpressionPtr& argument : call.arguments) {
        const std::size_t before = inputs_;
        const bool isTarget = name == INDEX_ASSIGNMENT && argument == call.arguments.front();
        isTarget ? walkElement(argument.get()) : (*this)(argument.get());
        asking += inputs_ > before ? 1 : 0;
    }
    if (name != RANGE) {
        checkInputOrder(call, asking);
    }
}

void TreeHints::visit(const BinaryExpression& node) {
    const std::size_t before = inputs_;
    (*this)(node.left.get());
    const std::size_t between = inputs_;
    (*this)(node.right.get());
    if (isFromRightToLeft(node) && between > before && inputs_ > between) {
        checkInputOrder(node, 2);
    }
}

/// \param asking how many parts of the expression call உள்ளீடு
void TreeHints::checkInputOrder(const Expression& node, std::size_t asking) {
    if (asking > 1) {
        found_.add(HintKind::InputOrder, node,
                   "ஒரே கூற்றில் உள்ள இரண்டு 'உள்ளீடு' அழைப்புகளில் வலப்பக்கத்தில் உள்ளதே முதலில் கேட்கப்படும்; ஒவ்வொன்றையும் தனித்தனி "
                   "மாறியில் வாங்கவும்.");
    }
}

/// What நீளம் gives is no index that can be read, not after a calculation either.
void TreeHints::visit(const IndexExpression& node) {
    TreeParts(*this).visit(node);
    if (tries_ > 0 || !hasLength_ || !holdsLength(node.index.get())) {
        return;
    }
    const std::string object = plainText(node.object.get());
    const std::string list = object.empty() ? "அ" : object;
    found_.add(HintKind::LengthAsIndex, node,
               "'நீளம்' தரும் எண் சுட்டெண் ஆகாது; கடைசி உறுப்பை '" + list + "[கீழ்எண்(நீளம்(" + list +
                   ") கூட்டு குறை 1)]' என்று எழுதவும்.");
}

/// The target of a write, where another kind of number does for an index.
void TreeHints::walkElement(const Expression* target) {
    if (const auto* element = nodeCast<IndexExpression>(target)) {
        walkElement(element->object.get());
        (*this)(element->index.get());
    } else {
        (*this)(target);
    }
}

/// A map takes any number for a key, so the variable must never hold anything but a list.
void TreeHints::tellLengthWrite(const CallExpression& write) {
    const std::string list = plainText(write.arguments.front().get());
    const NameUse* use = names_.find(list);
    if (use != nullptr && use->isAssigned && use->holdsListsOnly && !use->wasNative) {
        found_.add(HintKind::LengthAsIndex, write,
                   "'" + list + "[நீளம்(" + list + ")]' என்ற உறுப்பு இன்னும் இல்லை; புதிய உறுப்பைச் சேர்க்க '" + list +
                       ".சேர்(...)' என்று எழுதவும்.");
    }
}

} // namespace pozhil
