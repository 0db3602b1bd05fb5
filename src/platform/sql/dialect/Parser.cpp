#include "platform/sql/dialect/Parser.h"

#include <algorithm>

#include "platform/base/Error.h"
#include "platform/base/Text.h"
#include "platform/sql/dialect/Lexer.h"

namespace fenvale::sql {
namespace {

std::size_t depthOf(const ExpressionPointer& expression) { return expression ? expression->depth() : 0; }

}  // namespace

Statement parse(std::string_view statement) {
  std::vector<Token> tokens;
  readTokens(statement, tokens);
  return Parser(statement, tokens).parseStatement();
}

ExpressionPointer parseCondition(std::string_view text) {
  std::vector<Token> tokens;
  readTokens(text, tokens);
  return Parser(text, tokens).parseWholeExpression();
}

Statement Parser::parseStatement() {
  const auto whole = [&](Statement statement) {
    accept(TokenKind::Semicolon);
    if (!at(TokenKind::End)) fail();
    return statement;
  };
  switch (current().kind) {
    case TokenKind::Select:
      return whole(parseSelect());
    case TokenKind::Insert:
      return whole(parseInsert());
    case TokenKind::Update:
      return whole(parseUpdate());
    case TokenKind::Delete:
      return whole(parseDelete());
    case TokenKind::Create:
      return whole(parseCreate());
    case TokenKind::Alter:
      return whole(parseAlterTable());
    default:
      fail();
  }
}

ExpressionPointer Parser::parseWholeExpression() {
  ExpressionPointer expression = parseExpression();
  if (!at(TokenKind::End)) fail();
  return expression;
}

SelectStatement Parser::parseSelect() {
  expect(TokenKind::Select);
  SelectStatement select;
  do select.items.push_back(parseItem());
  while (accept(TokenKind::Comma));
  if (accept(TokenKind::From)) select.from = parseFrom();
  select.where = parseOptionalWhere();
  if (accept(TokenKind::Group)) {
    expect(TokenKind::By);
    do select.groupBy.push_back(parseExpression());
    while (accept(TokenKind::Comma));
  }
  if (accept(TokenKind::Order)) {
    expect(TokenKind::By);
    do select.orderBy.push_back(parseOrder());
    while (accept(TokenKind::Comma));
  }
  select.depth = depthOf(select.where);
  for (const SelectItem& item : select.items) select.depth = std::max(select.depth, depthOf(item.expression));
  for (const FromClause::Join& join : select.from.joins)
    if (join.source.select) select.depth = std::max(select.depth, join.source.select->depth);
  ++select.depth;
  return select;
}

SelectItem Parser::parseItem() {
  SelectItem item;
  if (accept(TokenKind::Star)) return item;
  item.expression = parseExpression();
  if (accept(TokenKind::As)) item.alias = parseName();
  return item;
}

OrderItem Parser::parseOrder() {
  OrderItem item;
  item.expression = parseExpression();
  item.descending = accept(TokenKind::Desc);
  if (!item.descending) accept(TokenKind::Asc);
  return item;
}

FromClause Parser::parseFrom() {
  FromClause from;
  if (at(TokenKind::ParenOpen) && ahead().kind != TokenKind::Select) {
    // Joins nest to the left: what stands in parentheses is the part that is joined first.
    std::size_t open = 0;
    while (at(TokenKind::ParenOpen) && ahead().kind != TokenKind::Select) {
      if (++open > deepestNesting) fail();
      ++at_;
    }
    from.joins.push_back({parseSource(), nullptr});
    for (; open > 0; --open) {
      while (at(TokenKind::Inner)) {
        ++at_;
        expect(TokenKind::Join);
        FromSource source = parseSource();
        expect(TokenKind::On);
        from.joins.push_back({std::move(source), parseExpression()});
      }
      expect(TokenKind::ParenClose);
    }
  } else {
    from.joins.push_back({parseSource(), nullptr});
  }
  while (accept(TokenKind::Inner)) {
    expect(TokenKind::Join);
    FromSource source = parseSource();
    expect(TokenKind::On);
    from.joins.push_back({std::move(source), parseExpression()});
  }
  return from;
}

FromSource Parser::parseSource() {
  FromSource source;
  source.place = current().place;
  if (at(TokenKind::ParenOpen)) {
    ++at_;
    if (!at(TokenKind::Select)) fail();
    if (++nesting_ > deepestNesting) fail();
    source.select = std::make_unique<const SelectStatement>(parseSelect());
    --nesting_;
    if (source.select->depth > deepestNesting) fail();
    expect(TokenKind::ParenClose);
  } else {
    source.table = parseName();
  }
  return source;
}

InsertStatement Parser::parseInsert() {
  expect(TokenKind::Insert);
  expect(TokenKind::Into);
  InsertStatement insert;
  insert.table = parseName();
  expect(TokenKind::ParenOpen);
  do {
    const std::size_t place = current().place;
    insert.assignments.push_back({parseName(), nullptr, place});
  } while (accept(TokenKind::Comma));
  expect(TokenKind::ParenClose);
  expect(TokenKind::Values);
  expect(TokenKind::ParenOpen);
  std::size_t count = 0;
  do {
    if (count == insert.assignments.size())
      throw Error(errors::syntax, "A inclusão em " + insert.table + " tem mais valores que campos.");
    insert.assignments[count++].value = parseExpression();
  } while (accept(TokenKind::Comma));
  expect(TokenKind::ParenClose);
  if (count < insert.assignments.size())
    throw Error(errors::syntax, "A inclusão em " + insert.table + " tem menos valores que campos.");
  return insert;
}

UpdateStatement Parser::parseUpdate() {
  expect(TokenKind::Update);
  UpdateStatement update;
  update.table = parseName();
  expect(TokenKind::Set);
  do {
    const std::size_t place = current().place;
    std::string column = parseName();
    expect(TokenKind::Equal);
    update.assignments.push_back({std::move(column), parseExpression(), place});
  } while (accept(TokenKind::Comma));
  update.where = parseOptionalWhere();
  return update;
}

DeleteStatement Parser::parseDelete() {
  expect(TokenKind::Delete);
  accept(TokenKind::Star);
  expect(TokenKind::From);
  DeleteStatement statement;
  statement.table = parseName();
  statement.where = parseOptionalWhere();
  return statement;
}

ExpressionPointer Parser::parseOptionalWhere() {
  return accept(TokenKind::Where) ? parseExpression() : ExpressionPointer();
}

bool Parser::accept(TokenKind kind) {
  if (!at(kind)) return false;
  ++at_;
  return true;
}

void Parser::expect(TokenKind kind) {
  if (!accept(kind)) fail();
}

bool Parser::atName() const { return at(TokenKind::Name) || categoryOf(current().kind) == TokenCategory::softKeyword; }

std::string Parser::parseName() {
  if (!atName()) fail();
  return std::string(tokens_[at_++].text);
}

std::vector<std::string> Parser::parseNames() {
  std::vector<std::string> names;
  expect(TokenKind::ParenOpen);
  do names.push_back(parseName());
  while (accept(TokenKind::Comma));
  expect(TokenKind::ParenClose);
  return names;
}

std::string Parser::sourceText(std::size_t firstToken, std::size_t endToken) const {
  const std::size_t begin = tokens_[firstToken].place;
  return trimRight(statement_.substr(begin, tokens_[endToken].place - begin));
}

void Parser::fail(const Token& token) const { failSyntax(token, statement_); }

ExpressionPointer Parser::checkDepth(ExpressionPointer expression) const {
  if (expression->depth() > deepestNesting) throw Error(errors::syntax, "A instrução é complexa demais.");
  return expression;
}

}  // namespace fenvale::sql
