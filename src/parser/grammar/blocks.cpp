#include "parser/grammar/blocks.h"

#include "parser/file_parse.h"

#include <utility>

namespace pozhil {

std::unique_ptr<BlockStatement> BlockGrammar::parseBlockStatement(bool inStruct) {
    cursor_.consume(TokenType::NEWLINE, "பொழி-202");
    cursor_.skipNewlines();
    cursor_.consume(TokenType::INDENT, "பொழி-202");
    const std::size_t first = cursor_.position();
    auto block = std::make_unique<BlockStatement>();
    SideBySide siblings(nesting_);
    while (!cursor_.check(TokenType::DEDENT) && !cursor_.isAtEnd()) {
        siblings.next();
        recovery_.attemptStatement([&] {
            StatementPtr statement = parseStatement(inStruct);
            const bool isNull = statement == nullptr;
            if (!isNull) {
                block->statements.push_back(std::move(statement));
            }
            endStatementInBlock(isNull);
        });
    }
    cursor_.consume(TokenType::DEDENT, "பொழி-292");
    return placed(first, std::move(block));
}

void BlockGrammar::endStatementInBlock(bool isNull) {
    if (cursor_.check(TokenType::DEDENT)) {
        return;
    }
    if (!isNull && cursor_.previous().type != TokenType::DEDENT) {
        cursor_.consume(TokenType::NEWLINE, "பொழி-202");
    }
    cursor_.skipNewlines();
}

std::unique_ptr<BlockStatement> BlockGrammar::parseColonAndBlock() {
    cursor_.consume(TokenType::COLON, "பொழி-202");
    return parseBlockStatement(false);
}

void BlockGrammar::parseIndentedHeader(std::int32_t line) {
    cursor_.consume(TokenType::COLON, "பொழி-202", line);
    cursor_.consume(TokenType::NEWLINE, "பொழி-202", line);
    cursor_.skipNewlines();
    cursor_.consume(TokenType::INDENT, "பொழி-202", line);
    cursor_.skipNewlines();
}

} // namespace pozhil
