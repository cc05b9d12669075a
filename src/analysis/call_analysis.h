#pragma once

#include "analysis/walk.h"

#include <cstddef>
#include <set>
#include <string>
#include <string_view>

namespace pozhil {

class ExpressionAnalysis;

/// Decides what a call is, and visits what stands in it.
class CallAnalysis {
public:
    CallAnalysis(Walk& walk, ExpressionAnalysis& expressions) : walk_(walk), expressions_(expressions) {}

    /// What stands before the bracket decides; the first match wins.
    void analyse(const CallExpression& call);

    /// What fills a new object: the fields of the structure and its parents, in the order in which they are written.
    void analyseFields(const std::string& structure);

    /// The arguments of a constructor.
    /// \param owner the structure whose constructor is called, null where there is none
    void analyseConstructor(const StructDefinitionStatement* owner, const std::string& structure,
                            const ExpressionList& arguments, std::int32_t line);

private:
    bool analysedInputMethod(const CallExpression& call);
    void analyseFunctionValue(const CallExpression& call);
    void analyseMethod(const CallExpression& call, const GetExpression& callee);
    void analyseAppend(const CallExpression& call, const GetExpression& callee);
    void analyseTimeMethod(const CallExpression& call, const GetExpression& callee);
    void analyseNamed(const CallExpression& call, const std::string& name);
    void analyseUserFunction(const CallExpression& call, const std::string& name, const std::vector<Param>& params);
    void analyseConstruction(const CallExpression& call, const std::string& structure);
    bool analysedBuiltin(const CallExpression& call, const std::string& name);
    void analyseElementWrite(const CallExpression& call);
    void analyseIndexAssignment(const CallExpression& call);
    void analyseElementReference(const Expression* target);
    void analyseArguments(const CallExpression& call, std::string_view text);
    void checkConstruction(const std::string& structure, std::int32_t line) const;
    void note(const CallExpression& call, CallKind kind, const language::Builtin* builtin = nullptr);

    Walk& walk_;
    ExpressionAnalysis& expressions_;
    /// Structures whose fields are being visited, from the outermost on.
    std::multiset<std::string> filling_;
    /// Fields and methods of the objects made by fields, in what is visited now.
    std::size_t nestedMembers_ = 0;
};

} // namespace pozhil
