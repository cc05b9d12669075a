#pragma once

#include "parser/siblings.h"

namespace pozhil {

/// Takes the items of a list whose bracket is open, and the closing bracket.
/// \param level of the line that opened the list
/// \param parseItem takes one item
/// \param line where a missing bracket is reported, -1 being the current line
template <class Item> void Parser::parseItems(int level, const Item& parseItem, std::int32_t line) {
    Siblings siblings(*this);
    while (nextListItem(level)) {
        siblings.next();
        parseItem();
    }
    consume(TokenType::RPAREN, "பொழி-204", line);
}

} // namespace pozhil
