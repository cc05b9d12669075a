#pragma once

#include "parser/syntax_tree.h"
#include "scanner/token.h"

#include <cstdint>
#include <initializer_list>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace pozhil {

/// Parameters of every function that stands outside all others, by name.
using FunctionTable = std::map<std::string, std::vector<Param>>;
/// Structures by name. The nodes are owned by the program or by the parser.
using StructTable = std::map<std::string, const StructDefinitionStatement*>;
/// Abstract structures by name. The nodes are owned by the program or by the parser.
using AbstractStructTable = std::map<std::string, const AbstractStructDefinitionStatement*>;
/// Ordinals of the members of every enumeration.
using EnumTable = std::map<std::string, std::map<std::string, int>>;

/// Whether \p token can name a variable. Keywords can, so that they read naturally as names.
bool isValidVariableName(const Token& token);

/// Recursive-descent parser of one source file; imported files are parsed by parsers of their own and merged in.
///
/// There is no recovery: the first fault ends the parse.
class Parser {
public:
    /// \param tokens all tokens of the file, ending in END_OF_FILE
    /// \param source the file's text, for the source line of diagnostics
    /// \param filename the path that diagnostics show
    /// \param moduleDirectories where imports are looked for behind the working directory, in order
    Parser(std::vector<Token> tokens, std::string source, std::string filename,
           std::vector<std::string> moduleDirectories = {});

    Parser(const Parser&) = delete;
    Parser& operator=(const Parser&) = delete;

    /// Parses the whole file. The statements of imported files come first, in the order of their imports.
    /// \throws Fault
    Program parse();

    /// Parses the targets of an animation, each by its own word, into the record that holds one field for each. Animation
    /// blocks keep their targets by name instead and don't come here.
    AnimationTargetNode parseAnimationTarget();

    const FunctionTable& functions() const { return functions_; }
    const StructTable& structs() const { return structs_; }
    const AbstractStructTable& abstractStructs() const { return abstractStructs_; }

private:
    class Siblings;

    // Cursor and diagnostics (cursor.cpp).
    const Token& peek() const;
    const Token& peekBehind(std::size_t offset) const;
    const Token& previous() const;
    bool is_at_end() const;
    const Token& advance();
    bool check(TokenType type) const;
    bool checkKeyword(std::string_view text) const;
    bool accept(TokenType type);
    Token consume(TokenType type, const char* code, std::int32_t line = -1);
    Token consumeName(const char* code, std::int32_t line = -1);
    void skipNewlines();
    void skipLayout();
    void handleIndentation(int level);
    bool atListItem(int level);
    bool nextListItem(int level);
    template <class Item> void parseItems(int level, const Item& parseItem, std::int32_t line = -1);
    std::string getLineText(std::int32_t line) const;
    [[noreturn]] void பிழை(const std::string& code, std::int32_t line) const;
    void enterNesting();

    // Statements and blocks (statements.cpp).
    StatementPtr parseStatement(bool inStruct);
    void checkStatementStart();
    bool restOfLineHolds(TokenType type, std::string_view behindText, std::size_t& searchEnd) const;
    StatementPtr parseStatementFromExpression(bool inStruct);
    StatementPtr parseExpressionStatement(ExpressionPtr expression);
    std::unique_ptr<BlockStatement> parseBlockStatement(bool inStruct);
    std::unique_ptr<BlockStatement> parseColonAndBlock();
    void endStatementInBlock(bool isNull);
    void parseIndentedHeader(std::int32_t line = -1);
    template <class Node> StatementPtr parseSingleWord();
    StatementPtr parseSetStateStatement();

    // Control flow (control_flow.cpp).
    StatementPtr parsePrintStatement();
    StatementPtr parseIfStatement();
    StatementPtr parseWhileStatement();
    StatementPtr parseForStatement();
    StatementPtr parseSwitchStatement();
    StatementPtr parseTryCatchStatement();
    StatementPtr parseWaitStatement();
    StatementPtr parseReturnStatement();
    StatementPtr parseVarDeclaration(ExpressionPtr target, bool inStruct);
    StatementPtr parseSetStatement(ExpressionPtr target);
    StatementPtr parseCompoundAssignmentStatement(ExpressionPtr target);
    StatementPtr parseIncrementStatement(ExpressionPtr target);
    VarType declaredType(const Expression& initializer) const;

    // Definitions (functions.cpp, structures.cpp, imports.cpp).
    StatementPtr parseFunctionDefinitionStatement(bool inStruct);
    std::vector<Param> parseParameters(std::int32_t line, bool mutableMayBeName);
    std::unique_ptr<BlockStatement> parseFunctionBody();
    StatementPtr parseVagaiStatement();
    StatementPtr parseStructDefinitionStatement();
    void parseStructMember(StructDefinitionStatement& structure);
    void parseMethod(StructDefinitionStatement& structure);
    void parseVisibilityGroup(StructDefinitionStatement& structure, bool isPrivate);
    void parseSingleMember(StructDefinitionStatement& structure, bool isPrivate);
    void addMember(StructDefinitionStatement& structure, StatementPtr member, bool isPrivate);
    StatementPtr parseFieldDeclaration();
    void checkParent(const StructDefinitionStatement& structure) const;
    StatementPtr parseAbstractStructStatement();
    AbstractMethod parseAbstractMethod();
    StatementPtr parseImportStatement();
    void parseImportedFile(const std::string& path, std::string text);

    // Applications (application.cpp).
    StatementPtr parseWebApp();
    StatementPtr parseHeader();
    void parseHeaderItem(PropertyMap& properties);
    StatementPtr parseUIBody();
    StatementPtr parseDefinition();
    StatementPtr parseDatabaseManager();
    StatementPtr parseFirebaseConfig();

    // Widgets: the dispatch, and what their lists share (widgets.cpp).
    using WidgetPtr = std::unique_ptr<WidgetNode>;
    using WidgetParser = WidgetPtr (Parser::*)(const Token& word);
    using TokenKinds = std::initializer_list<TokenType>;
    static WidgetParser widgetParser(const Token& word);
    WidgetPtr parseWidget();
    bool isWidgetAhead() const;
    ExpressionPtr parseWidgetExpression();
    void openBracket();
    bool openFurtherBracket();
    bool checkName(std::string_view text) const;
    bool checkWord(TokenType type, std::string_view text) const;
    bool checkOneOf(TokenKinds kinds) const;
    bool isKeyAhead(TokenKinds kinds) const;
    bool isSectionWord() const;
    ExpressionPtr parsePropertyValue();
    void parseProperty(PropertyMap& properties, const std::string& name);
    void parseAlignment(WidgetNode& widget);
    bool parsedAnimation(WidgetNode& widget);
    void parseStyleBlock(WidgetNode& widget, TokenKinds kinds);

    // Widgets of the general form, their styles and handlers (generic_widget.cpp, text_style.cpp).
    enum class PressForm { Value, ValueOrStatements };
    WidgetPtr parseGenericWidget(const Token& word);
    void parseGenericItem(WidgetNode& widget, int& positionals);
    bool parsedGenericStyle(WidgetNode& widget);
    void parseButtonStyle(WidgetNode& widget);
    void parseTextStyle(WidgetNode& widget);
    void parsePressHandler(WidgetNode& widget, PressForm form);

    // Widgets that lay out others (layout_widgets.cpp).
    WidgetPtr parseColumn(const Token& word);
    WidgetPtr parseRow(const Token& word);
    WidgetPtr parsePlainLayout(const Token& word);
    WidgetPtr parseListView(const Token& word);
    void parseLayout(WidgetNode& widget, const Token& word);
    void parseChildren(WidgetNode& widget, std::int32_t line, int level);
    WidgetPtr parseGridView(const Token& word);
    void parseGridProperty(GridViewNode& grid);
    void parseGridGaps(GridViewNode& grid);
    WidgetPtr parseExpanded(const Token& word);
    WidgetPtr parseFlexible(const Token& word);
    template <class ParsedShare> void parseFlexItems(WidgetNode& widget, const ParsedShare& parsedShare);
    WidgetPtr parseSpacer(const Token& word);
    WidgetPtr parsePadding(const Token& word);

    // Boxes and messages (box_widgets.cpp, message_widgets.cpp).
    WidgetPtr parseContainer(const Token& word);
    void parseContainerItem(ContainerNode& container);
    WidgetPtr parseCard(const Token& word);
    WidgetPtr parseListTile(const Token& word);
    WidgetPtr parseTextButton(const Token& word);
    void parseTextButtonItem(WidgetNode& button);
    ExpressionPtr parseTextButtonText();
    bool isTextButtonStyleAhead() const;
    void parseTextButtonStyle(WidgetNode& button);
    WidgetPtr parseAlert(const Token& word);
    void parseAlertItems(WidgetNode& alert);
    WidgetPtr parseSnackBar(const Token& word);
    void parseSnackBarValue(SnackBarNode& bar, const std::string& key);

    // Animations (animation.cpp).
    std::unique_ptr<AnimationNode> parseAnimation();
    void parseAnimationItem(AnimationNode& animation);
    void openAnimationValue();
    void parseAnimationTargets(AnimationNode& animation);
    AnimationAmount parseAnimationAmount();

    // The realtime database (database.cpp).
    ExpressionPtr parseDatabaseExpression();
    ExpressionPtr parseDatabasePath(std::int32_t line);
    template <class Node> ExpressionPtr parseRTDBWrite();
    ExpressionPtr parseRTDBDeleteExpression();
    StatementPtr parseRTDBReadStatement();

    // Expressions (expressions.cpp, primary.cpp).
    enum class KeyLayout { Kept, Skipped };
    ExpressionPtr parseExpression();
    ExpressionPtr parseAssignment();
    ExpressionPtr parseAssignedValue(ExpressionPtr left);
    bool isArrowAt(std::size_t offset) const;
    bool isArrowFunctionAhead();
    std::size_t bracketEnd();
    ExpressionPtr parseArrowFunction();
    ExpressionPtr parseTernary();
    ExpressionPtr parseBinary(int loosestLevel);
    ExpressionPtr parseUnary();
    ExpressionPtr parseCall();
    ExpressionPtr parseMember(ExpressionPtr object);
    ExpressionList parseArguments(std::int32_t line);
    ExpressionPtr parseIndexExpression(ExpressionPtr object, std::int32_t line);
    ExpressionPtr parsePrimary();
    ExpressionPtr parseLiteral();
    ExpressionPtr parseName();
    ExpressionPtr parseListLiteral(std::int32_t line);
    std::unique_ptr<MapLiteral> parseMapLiteral(std::int32_t line);
    void parseMapEntries(MapLiteral& map, KeyLayout behindKey);
    ExpressionPtr parseLambdaExpression();

    FunctionTable functions_;
    StructTable structs_;
    AbstractStructTable abstractStructs_;
    std::set<std::string> importedFiles_;
    StatementList importedStatements_;
    /// Members of structures that are neither field nor method.
    StatementList droppedStatements_;
    std::vector<Token> tokens_;
    std::string source_;
    std::string filename_;
    std::size_t current_ = 0;
    EnumTable enums_;
    int functionDepth_ = 0;
    std::vector<std::string> moduleDirectories_;
    /// Indents that are open at the cursor.
    int indentation_ = 0;
    /// Height that the tree under construction has reached at most.
    int nesting_ = 0;
    /// Where the search for a closing bracket that began at bracketSearchStart_ ended.
    std::size_t bracketSearchStart_ = 1;
    std::size_t bracketSearchEnd_ = 0;
    /// Where the searches of checkStatementStart along the line ended without a find.
    std::size_t functionSearchEnd_ = 0;
    std::size_t listSearchEnd_ = 0;
};

} // namespace pozhil
