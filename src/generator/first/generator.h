#pragma once

#include "emit/code_writer.h"
#include "generator/web/page/web_emitter.h"
#include "parser/parser.h"
#include "parser/syntax_tree.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace pozhil {

/// Translates a program into one C++17 text that holds the whole runtime of the language and the program itself.
///
/// An object is used once.
class Generator : private Edition {
public:
    /// \param program the tree; it outlives the generator
    /// \param functions parameters of the functions that stand outside all others
    /// \param structs structures of the program
    /// \param abstractStructs abstract structures of the program
    /// \param source text of the source file, for the source line of diagnostics
    /// \param filePath the source path as the user gave it; it is written into the text as it stands
    Generator(const Program& program, const FunctionTable& functions, const StructTable& structs,
              const AbstractStructTable& abstractStructs, std::string source, std::string filePath);

    Generator(const Generator&) = delete;
    Generator& operator=(const Generator&) = delete;

    /// The whole text. The same program gives the same bytes.
    /// \throws Fault for what is wrong in the program at sight
    std::string generate();

    /// How many bytes at the head of the generated text are the runtime. They change with the start page and the source
    /// path only.
    std::size_t runtimeLength() const { return runtimeLength_; }

private:
    /// What an inference found, and when: an assignment in between can change what a name holds.
    struct InferredType {
        std::uint64_t epoch;
        VarType type;
    };

    // Frame (generator.cpp).
    void emitRuntime();
    void emitStructures();
    void emitFunctions();
    void emitInitGlobals();
    void visitLogicBlockNode(const LogicBlockNode* node);
    void emitConsoleMain();
    template <class Visit> void forEachDefinition(Visit visit) const;
    [[noreturn]] void placelessFault(const std::string& code, std::int32_t line, const std::string& extra) const;
    [[noreturn]] void பிழை(const std::string& code, std::int32_t line, const std::string& extra) const;

    // Statements (statements.cpp).
    void visitStatement(const Statement* statement);
    template <class Node> bool visitOwn(const Statement* statement, void (Generator::*visit)(const Node*));
    template <class Node> bool visitFramed(const Statement* statement, void (Generator::*visit)(const Node*));
    void visitBlockStatement(const BlockStatement* block);
    void emitBody(const BlockStatement* block);
    void emitCondition(const Expression* condition);
    void visitPrintStatement(const PrintStatement* node);
    void visitIfStatement(const IfStatement* node);
    void visitWhileStatement(const WhileStatement* node);
    void visitSwitchStatement(const SwitchStatement* node);
    void emitCases(const SwitchStatement* node);
    void visitTryCatchStatement(const TryCatchStatement* node);
    void visitWaitStatement(const WaitStatement* node);
    void visitReturnStatement(const ReturnStatement* node);
    void checkReturnType(const ReturnStatement* node);
    void visitBreakStatement(const BreakStatement* node);
    void visitContinueStatement(const ContinueStatement* node);
    void visitPassStatement(const PassStatement* node);
    void visitSetStateStatement(const SetStateStatement* node);
    template <class Node> void visitNestedDefinition(const Node* node);
    void visitExpressionStatement(const ExpressionStatement* node);

    // Loops over a range, list or map (for_loop.cpp).
    void visitForStatement(const ForStatement* node);
    void emitRangeLoop(const ForStatement* node, const CallExpression& range);
    void emitContainerLoop(const ForStatement* node);
    void emitLoops(const ForStatement* node);
    void emitLoopBody(const ForStatement* node);

    // Declarations and writes that stand as statements (declarations.cpp).
    void visitVarDeclaration(const VarDeclaration* node);
    void emitObjectDeclaration(const VarDeclaration* node, const CallExpression& call, const std::string& structName);
    void visitSetStatement(const SetStatement* node);
    void visitCompoundAssignmentStatement(const CompoundAssignmentStatement* node);
    void visitIncrementStatement(const IncrementStatement* node);

    // Functions and structures (functions.cpp, structures.cpp).
    void visitFunctionDefinitionStatement(const FunctionDefinitionStatement* node);
    void emitFunction(const FunctionDefinitionStatement* node);
    void emitNestedFunction(const FunctionDefinitionStatement* node);
    void emitFunctionBody(const FunctionDefinitionStatement* node, std::string_view fallThrough);
    void visitStructDefinitionStatement(const StructDefinitionStatement* node);
    std::string baseOf(const StructDefinitionStatement* node) const;
    void emitMemberComments(const StructDefinitionStatement* node, bool isPrivate);
    void bindPropertiesAndMethods(const std::string& structName, const std::string& object);
    void checkConstructionDepth(std::int32_t line);
    void bindMethod(const std::string& structName, const FunctionDefinitionStatement& method,
                    const std::string& object);
    std::vector<const StructDefinitionStatement*> lineage(const std::string& structName) const;
    std::string constructorOwner(const std::string& structName) const;
    void emitConstructorCall(const std::string& owner, const std::string& object, const ExpressionList& arguments);

    // Expressions (expressions.cpp, operators.cpp, members.cpp).
    void visitExpression(const Expression* expression);
    template <class Node> bool visitAs(const Expression* expression, void (Generator::*visit)(const Node*));
    void visitNumberLiteral(const NumberLiteral* node);
    void visitDoubleLiteral(const DoubleLiteral* node);
    void visitStringLiteral(const StringLiteral* node);
    void visitCharLiteral(const CharLiteral* node);
    void visitBooleanLiteral(const BooleanLiteral* node);
    void visitListLiteral(const ListLiteral* node);
    void visitMapLiteral(const MapLiteral* node);
    void visitGroupingExpression(const GroupingExpression* node);
    void visitVariableAccess(const VariableAccess* node);
    void visitAssignmentExpression(const AssignmentExpression* node);
    void visitTernaryExpression(const TernaryExpression* node);
    void visitLambdaExpression(const LambdaExpression* node);
    void visitIndexExpression(const IndexExpression* node);
    void visitBinaryExpression(const BinaryExpression* node);
    void checkOperandTypes(const BinaryExpression* node, VarType left, VarType right) const;
    void emitNativeArithmetic(const BinaryExpression* node, VarType left, VarType right);
    void visitLogicalExpression(const LogicalExpression* node);
    void visitUnaryExpression(const UnaryExpression* node);
    std::string mapOperator(const std::string& word) const;
    void visitGetExpression(const GetExpression* node);
    bool emitInputMember(const GetExpression* node);
    void emitTimeMember(const GetExpression* node);
    void emitMemberText(std::string_view text, const GetExpression& get);
    void visitSetMemberExpression(const SetMemberExpression* node);
    void checkMemberWrite(const SetMemberExpression* node);
    void checkPrivacy(const Expression* object, const Token& member, std::int32_t line) const;
    void emitAny(const Expression* expression);
    void emitCastOperand(const Expression* expression);
    void emitAnyList(const ExpressionList& expressions);

    // Calls (calls.cpp, builtin_calls.cpp).
    void visitCallExpression(const CallExpression* node);
    bool emitInputMethod(const CallExpression* node);
    void emitFunctionValueCall(const CallExpression* node, std::size_t parameterCount);
    void emitMethodCall(const CallExpression* node, const GetExpression& callee);
    void emitGuardedCall(const CallExpression* node);
    void emitTimeMethod(const CallExpression* node, const GetExpression& callee);
    void emitAppend(const CallExpression* node, const GetExpression& callee);
    void emitNamedCall(const CallExpression* node, const std::string& name);
    void emitUserFunctionCall(const CallExpression* node, const std::string& name, const std::vector<Param>& params);
    void emitConstruction(const CallExpression* node, const std::string& structName);
    bool emitBuiltinCall(const CallExpression* node, const std::string& name);
    void emitPattern(std::string_view pattern, const CallExpression* node, const std::string& id);
    void checkWrittenPlace(const CallExpression* node) const;
    void emitIndexAssignment(const CallExpression* node);
    void emitElementReference(const Expression* target);

    // What pages ask of the edition (generator.cpp).
    void writeExpression(const Expression* expression) override;
    void writeStatement(const Statement* statement) override;
    void writeBody(const StatementList& statements) override;
    Fault faultWithoutPlace(const std::string& code, std::int32_t line, const std::string& details) const override;

    // Static types (types.cpp).
    VarType inferExpressionType(const Expression* expression);
    VarType inferCallType(const CallExpression& call);
    VarType inferNameType(const VariableAccess& name) const;
    VarType inferMemberType(const GetExpression& get) const;
    VarType inferBinaryType(const BinaryExpression& binary);
    void setVarType(const std::string& name, VarType type);
    void setLocal(const std::string& name);
    void dropLocalsBehind(std::size_t count);

    const Program& program_;
    CodeWriter out_;
    std::size_t runtimeLength_ = 0;
    std::map<std::string, VarType> varTypes_;
    std::set<std::string> knownStructs_;
    std::set<std::string> constantNames_;
    StructTable structDefs_;
    /// Fields that any structure keeps private.
    std::set<std::string> privateFields_;
    AbstractStructTable abstractStructDefs_;
    std::string currentStruct_;
    FunctionTable functionParams_;
    std::string currentFunction_;
    std::string sourceCode_;
    std::string fileName_;
    std::set<std::string> localVars_;
    /// What entered localVars_, in order. Names that left it again may still stand here.
    std::vector<std::string> localsLog_;
    int containerLoopDepth_ = 0;
    int constructionDepth_ = 0;
    std::uint64_t typeEpoch_ = 0;
    std::unordered_map<const Expression*, InferredType> inferredTypes_;
    WebEmitter web_;
};

} // namespace pozhil
