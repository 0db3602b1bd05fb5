// The rungs of the ladder in Operators.h: each reads the next tighter one and goes on while the operator is its own.

#include <algorithm>

#include "platform/sql/dialect/Lexer.h"
#include "platform/sql/dialect/Parser.h"

namespace fenvale::sql {

class Parser::Nesting {
 public:
  explicit Nesting(Parser& parser) : parser_(parser) {
    if (++parser_.nesting_ > deepestNesting) parser_.fail();
  }
  ~Nesting() { --parser_.nesting_; }
  Nesting(const Nesting&) = delete;
  Nesting& operator=(const Nesting&) = delete;

 private:
  Parser& parser_;
};

ExpressionPointer Parser::parseLadder(Precedence rung) {
  switch (rung) {
    case Precedence::logicalNot:
      return parseNot();
    case Precedence::comparison:
      return parseComparison();
    case Precedence::sign:
      return parseSign();
    case Precedence::operand:
      return parseOperand();
    default:
      break;
  }
  ExpressionPointer left = parseLadder(tighter(rung));
  for (;;) {
    const BinaryOperator* found = findBinaryOperator(current().kind);
    if (found == nullptr || found->precedence != rung) return left;
    ++at_;
    ExpressionPointer right = parseLadder(tighter(rung));
    left = checkDepth(std::make_unique<BinaryExpression>(found->operation, std::move(left), std::move(right)));
  }
}

ExpressionPointer Parser::parseNot() {
  const std::size_t place = current().place;
  if (!accept(TokenKind::Not)) return parseLadder(tighter(Precedence::logicalNot));
  const Nesting nesting(*this);
  return checkDepth(std::make_unique<UnaryExpression>(Operator::logicalNot, parseNot(), place));
}

ExpressionPointer Parser::parseComparison() {
  constexpr Precedence inner = tighter(Precedence::comparison);
  ExpressionPointer left = parseLadder(inner);
  for (;;) {
    if (accept(TokenKind::Between)) {
      ExpressionPointer low = parseLadder(inner);
      expect(TokenKind::And);
      ExpressionPointer high = parseLadder(inner);
      left = checkDepth(std::make_unique<BetweenExpression>(std::move(left), std::move(low), std::move(high)));
    } else if (accept(TokenKind::Is)) {
      const bool negated = accept(TokenKind::Not);
      expect(TokenKind::Null);
      left = checkDepth(std::make_unique<NullTestExpression>(std::move(left), negated));
    } else {
      const BinaryOperator* found = findBinaryOperator(current().kind);
      if (found == nullptr || found->precedence != Precedence::comparison) return left;
      ++at_;
      ExpressionPointer right = parseLadder(inner);
      left = checkDepth(std::make_unique<BinaryExpression>(found->operation, std::move(left), std::move(right)));
    }
  }
}

ExpressionPointer Parser::parseSign() {
  const std::size_t place = current().place;
  if (!accept(TokenKind::Minus)) return parseOperand();
  const Nesting nesting(*this);
  return checkDepth(std::make_unique<UnaryExpression>(Operator::negate, parseSign(), place));
}

ExpressionPointer Parser::parseOperand() {
  switch (current().kind) {
    case TokenKind::Null:
    case TokenKind::True:
    case TokenKind::False: {
      const Token& token = tokens_[at_++];
      return std::make_unique<ConstantExpression>(token.kind, token.place);
    }
    case TokenKind::ParenOpen:
      return parseParentheses();
    default:
      break;
  }
  if (categoryOf(current().kind) == TokenCategory::literal) return parseLiteral();
  return parseNameOrCall();
}

ExpressionPointer Parser::parseLiteral() { return std::make_unique<LiteralExpression>(tokens_[at_++], literals_++); }

ExpressionPointer Parser::parseNameOrCall() {
  if (!atName()) fail();
  if (current().delimiter == 0 && ahead().kind == TokenKind::ParenOpen) return parseCall();
  const std::size_t place = current().place;
  std::string name = parseName();
  if (!accept(TokenKind::Point)) return std::make_unique<NameExpression>("", std::move(name), place);
  std::string column = parseName();
  return std::make_unique<NameExpression>(std::move(name), std::move(column), place);
}

ExpressionPointer Parser::parseCall() {
  const Nesting nesting(*this);
  const std::size_t place = current().place;
  std::string function = parseName();
  expect(TokenKind::ParenOpen);
  std::vector<ExpressionPointer> arguments;
  const bool star = accept(TokenKind::Star);
  if (!star && !at(TokenKind::ParenClose)) {
    do arguments.push_back(parseExpression());
    while (accept(TokenKind::Comma));
  }
  expect(TokenKind::ParenClose);
  return checkDepth(std::make_unique<CallExpression>(std::move(function), std::move(arguments), star, place));
}

ExpressionPointer Parser::parseParentheses() {
  const Nesting nesting(*this);
  const std::size_t place = current().place;
  expect(TokenKind::ParenOpen);
  if (at(TokenKind::Select)) {
    auto select = std::make_unique<const SelectStatement>(parseSelect());
    expect(TokenKind::ParenClose);
    return checkDepth(std::make_unique<SubselectExpression>(std::move(select), place));
  }
  ExpressionPointer expression = parseExpression();
  expect(TokenKind::ParenClose);
  return expression;
}

}  // namespace fenvale::sql
