#pragma once

#include "analysis/second/resolved/node.h"
#include "language/second/builtins.h"

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace pozhil::resolved {

struct Function;
struct Structure;
struct Variable;

// Values that stand in the source.

struct WholeLiteral : Expression {
    std::int64_t value = 0;
};

struct DecimalLiteral : Expression {
    double value = 0;
};

struct TruthLiteral : Expression {
    bool value = false;
};

/// A text, its escapes resolved, in NFC.
struct TextLiteral : Expression {
    std::string value;
};

/// வெறுமை
struct NothingLiteral : Expression {};

struct ListLiteral : Expression {
    ExpressionList elements;
};

struct MapLiteral : Expression {
    std::vector<std::pair<ExpressionPtr, ExpressionPtr>> entries;
};

// Names.

struct VariableRead : Expression {
    Variable* variable = nullptr;
    /// The read is checked: on some way to it the variable has no value.
    bool isChecked = false;
};

/// A function as a value: one of a file by its name, one inside another where it is defined, or a lambda.
struct FunctionValue : Expression {
    const Function* function = nullptr;
};

/// A function that comes with the language, as a value.
struct BuiltinValue : Expression {
    const language::second::Builtin* builtin = nullptr;
};

// Operators.

enum class UnaryOperator : std::uint8_t { Not, Minus, Plus, BitNot };

struct Unary : Expression {
    UnaryOperator op = UnaryOperator::Not;
    ExpressionPtr operand;
    /// இல்லை stands before a comparison without brackets, so that it may look as if it denied all of that.
    bool deniesComparison = false;
};

enum class BinaryOperator : std::uint8_t {
    Add,
    Subtract,
    Multiply,
    Divide,
    Remainder,
    Join,
    Equal,
    NotEqual,
    Less,
    LessEqual,
    Greater,
    GreaterEqual,
    BitAnd,
    BitOr,
    BitXor,
    ShiftLeft,
    ShiftRight
};

struct Binary : Expression {
    BinaryOperator op = BinaryOperator::Add;
    ExpressionPtr left;
    ExpressionPtr right;
};

/// மற்றும், அல்லது: the right side is evaluated only if it matters. Both are truth values.
struct Logical : Expression {
    bool isAnd = false;
    ExpressionPtr left;
    ExpressionPtr right;
};

/// condition ? value : value
struct Conditional : Expression {
    ExpressionPtr condition;
    ExpressionPtr thenValue;
    ExpressionPtr elseValue;
    /// The first value is a comparison: other languages have the condition there.
    bool mayBeReversed = false;
};

// Parts of values.

struct ElementRead : Expression {
    ExpressionPtr container;
    ExpressionPtr index;
};

/// A member of an object, or of another value that has some, such as the year of a time.
struct MemberRead : Expression {
    ExpressionPtr object;
    std::string member;
    /// The structure in whose method this stands, which decides what of ரகசிய it may see; null outside.
    const Structure* inside = nullptr;
};

// Places: what can be written.

/// What is written: a variable, an element or a member. An element's container is a place itself, so that writing reaches
/// the list or map that is held there; a member's object is a value, since objects are shared.
struct TargetPlace {
    enum class Form : std::uint8_t { Variable, Element, Member };
    Form form = Form::Variable;
    Place place;
    /// Form::Variable
    Variable* variable = nullptr;
    bool isChecked = false;
    /// Form::Element
    std::unique_ptr<TargetPlace> container;
    ExpressionPtr index;
    /// Form::Member
    ExpressionPtr object;
    std::string member;
    const Structure* inside = nullptr;
};

using TargetPtr = std::unique_ptr<TargetPlace>;

/// place = value inside of an expression; its value is the value.
struct AssignmentValue : Expression {
    TargetPtr target;
    /// Set for கூட்டிசேர் and its kin.
    bool isCompound = false;
    BinaryOperator op = BinaryOperator::Add;
    ExpressionPtr value;
};

// Calls.

/// What a call gives for a parameter: a value, or a place for one that is மாற்று.
struct Argument {
    ExpressionPtr value;
    /// Set where the argument is a place and what is called takes one, or may take one. The value is set too.
    TargetPtr target;
};

using Arguments = std::vector<Argument>;

/// A function that is known: of a file, or inside of another without captured variables, or a method of a certain
/// structure whose object comes first.
struct FunctionCall : Expression {
    const Function* function = nullptr;
    Arguments arguments;
};

/// A function that a value holds.
struct ValueCall : Expression {
    ExpressionPtr callee;
    Arguments arguments;
};

/// object.member(…): a method, a field that holds a function, or what texts, lists, maps and times can do.
struct MethodCall : Expression {
    /// The place is set where there is one: methods of lists and maps such as சேர் write to it.
    Argument object;
    std::string member;
    Arguments arguments;
    const Structure* inside = nullptr;
};

/// A new object.
struct Construction : Expression {
    const Structure* structure = nullptr;
    /// Of its துவக்கம், without the object.
    Arguments arguments;
};

/// A function that comes with the language.
struct BuiltinCall : Expression {
    const language::second::Builtin* builtin = nullptr;
    Arguments arguments;
};

} // namespace pozhil::resolved
