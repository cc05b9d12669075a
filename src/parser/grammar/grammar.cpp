#include "parser/grammar/grammar.h"

#include "parser/file_parse.h"

namespace pozhil {

Grammar::Grammar(FileParse& parse)
    : parse_(parse), cursor_(parse.cursor), nesting_(parse.nesting), recovery_(parse.recovery),
      declarations_(parse.declarations), isInList_(parse.isInList) {}

ExpressionPtr Grammar::parseExpression() {
    return parse_.expressions.parseExpression();
}

StatementPtr Grammar::parseStatement(bool inStruct) {
    return parse_.statements.parseStatement(inStruct);
}

WidgetPtr Grammar::parseWidget() {
    return parse_.widgets.parseWidget();
}

ExpressionPtr Grammar::parsePropertyValue() {
    cursor_.consume(TokenType::COLON, "பொழி-202");
    return parseExpression();
}

void Grammar::parseProperty(PropertyMap& properties, std::string_view name) {
    cursor_.advance();
    properties.insert_or_assign(std::string(name), parsePropertyValue());
}

void Grammar::notePlace(const void* node, std::size_t first) {
    if (!parse_.scanned.places.empty()) {
        parse_.session.places.add(node, parse_.sourceNumber, cursor_.rangeFrom(first));
    }
}

} // namespace pozhil
