#pragma once

#include "analysis/hints/hint_list.h"
#include "analysis/hints/name_hints.h"
#include "analysis/hints/name_uses.h"

#include <cstddef>
#include <string>
#include <vector>

namespace pozhil {

/// Looks for hints in the tree of a program, of imported files too. One walk finds what a node shows by itself and
/// notes the uses of all names; what follows from them is told after it.
class TreeHints {
public:
    /// \param parser of the program; like \p found, it outlives the object
    TreeHints(const Parser& parser, HintList& found);

    void find(const Program& program);

    void operator()(const Expression* node);
    void operator()(const Statement* node);

    // Called by the dispatch (parser/tree/visit.h).
    template <class Node> void visit(const Node& node);
    void visit(const VariableAccess& node);
    void visit(const AssignmentExpression& node);
    void visit(const CallExpression& node);
    void visit(const GetExpression& node);
    void visit(const SetMemberExpression& node);
    void visit(const IndexExpression& node);
    void visit(const BinaryExpression& node);
    void visit(const TernaryExpression& node);
    void visit(const LambdaExpression& node);
    void visit(const IfStatement& node);
    void visit(const WhileStatement& node);
    void visit(const ForStatement& node);
    void visit(const TryCatchStatement& node);
    void visit(const VarDeclaration& node);
    void visit(const FunctionDefinitionStatement& node);
    void visit(const StructDefinitionStatement& node);
    void visit(const RTDBReadStatement& node);
    void visit(const WebAppNode& node);
    void visit(const WidgetNode& node);

private:
    void checkCondition(const Expression* condition);
    void checkInputOrder(const Expression& node, std::size_t asking);
    void walkArguments(const CallExpression& call);
    void walkObject(const Expression* object);
    void walkElement(const Expression* target);
    void tellLengthWrite(const CallExpression& write);
    void tellDropped();

    const Parser& parser_;
    HintList& found_;
    NameUses names_;
    MemberUses members_;
    /// Functions that call themselves.
    std::vector<const FunctionDefinitionStatement*> recursive_;
    /// Writes to an element whose number is the length of the list.
    std::vector<const CallExpression*> lengthWrites_;
    /// Whether உள்ளீடு and நீளம் are the built-in functions.
    const bool hasInput_;
    const bool hasLength_;
    /// Calls of உள்ளீடு so far that are carried out where they stand.
    std::size_t inputs_ = 0;
    int tries_ = 0;
};

} // namespace pozhil
