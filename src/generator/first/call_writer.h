#pragma once

#include "generator/first/emission.h"
#include "parser/syntax_tree.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace pozhil {

class ExpressionWriter;

/// Writes calls, members that are not an object's, and the construction of objects.
class CallWriter {
public:
    CallWriter(Emission& emission, ExpressionWriter& expressions) : emission_(emission), expressions_(expressions) {}

    void write(const CallExpression& call);

    /// id.name of an input widget, whatever a variable of that name holds.
    void writeInputProperty(const GetExpression& get);

    /// A number out of a time value.
    void writeTimePart(const GetExpression& get);

    /// Statements that fill a new object: the parents' members first, so that those of the child replace them.
    void writeMembers(const std::string& structure, const std::string& object);

    /// The call of the constructor of \p owner.
    void writeConstructorCall(const std::string& owner, const std::string& object, const ExpressionList& arguments);

private:
    /// Writes what stands in the hole of an argument; a cast operand where a std::any_cast is around it.
    using WriteArgument = std::function<void(std::size_t argument, bool isCastOperand)>;

    void writeInputMethod(const CallExpression& call, const language::Builtin& method);
    void writeFunctionValueCall(const CallExpression& call);
    void writeGuarded(const CallExpression& call);
    void writeAppend(const CallExpression& call);
    void writeTimeText(const GetExpression& get);
    void writeUserFunctionCall(const CallExpression& call);
    void writeConstruction(const CallExpression& call);
    void writeIndexAssignment(const CallExpression& call);
    void writeElementReference(const Expression* target);
    void writeArguments(std::string_view text, const CallExpression& call, const std::string& id = {});
    void fill(std::string_view text, std::int32_t line, const std::string& id, const WriteArgument& writeArgument);
    void writeMethod(const std::string& structure, const FunctionDefinitionStatement& method,
                     const std::string& object);

    Emission& emission_;
    ExpressionWriter& expressions_;
    int constructions_ = 0;
};

} // namespace pozhil
