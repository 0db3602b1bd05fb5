#pragma once
// The operators and how tightly they bind.
//
//   tightest  8  -a                        sign
//             7  a * b   a / b             left to right
//             6  a + b   a - b             left to right
//             5  a & b                     left to right
//             4  a = b   <> < > <= >=      left to right
//                a BETWEEN b AND c   a IS [NOT] NULL
//             3  NOT a
//             2  a AND b                   left to right
//   loosest   1  a OR b                    left to right

#include <array>
#include <cstdint>
#include <string_view>

#include "platform/sql/dialect/Token.h"

namespace fenvale::sql {

enum class Operator : std::uint8_t {
  logicalOr,
  logicalAnd,
  logicalNot,
  equal,
  notEqual,
  less,
  greater,
  lessEqual,
  greaterEqual,
  join,
  add,
  subtract,
  multiply,
  divide,
  negate,
};

enum class Precedence : std::uint8_t {
  logicalOr = 1,
  logicalAnd,
  logicalNot,
  comparison,
  join,
  sum,
  product,
  sign,
  operand,
};

struct BinaryOperator {
  TokenKind token;
  Operator operation;
  Precedence precedence;
};

// clang-format off
inline constexpr std::array<BinaryOperator, 13> binaryOperators = {{
    {TokenKind::Or,           Operator::logicalOr,    Precedence::logicalOr},
    {TokenKind::And,          Operator::logicalAnd,   Precedence::logicalAnd},
    {TokenKind::Equal,        Operator::equal,        Precedence::comparison},
    {TokenKind::NotEqual,     Operator::notEqual,     Precedence::comparison},
    {TokenKind::Less,         Operator::less,         Precedence::comparison},
    {TokenKind::Greater,      Operator::greater,      Precedence::comparison},
    {TokenKind::LessEqual,    Operator::lessEqual,    Precedence::comparison},
    {TokenKind::GreaterEqual, Operator::greaterEqual, Precedence::comparison},
    {TokenKind::Ampersand,    Operator::join,         Precedence::join},
    {TokenKind::Plus,         Operator::add,          Precedence::sum},
    {TokenKind::Minus,        Operator::subtract,     Precedence::sum},
    {TokenKind::Star,         Operator::multiply,     Precedence::product},
    {TokenKind::Slash,        Operator::divide,       Precedence::product},
}};
// clang-format on

constexpr const BinaryOperator* findBinaryOperator(TokenKind token) {
  for (const BinaryOperator& entry : binaryOperators)
    if (entry.token == token) return &entry;
  return nullptr;
}

constexpr const BinaryOperator& describe(Operator operation) {
  for (const BinaryOperator& entry : binaryOperators)
    if (entry.operation == operation) return entry;
  return binaryOperators[0];
}

constexpr bool isComparison(Operator operation) {
  return operation >= Operator::equal && operation <= Operator::greaterEqual;
}

constexpr Precedence tighter(Precedence precedence) {
  return static_cast<Precedence>(static_cast<std::uint8_t>(precedence) + 1);
}

}  // namespace fenvale::sql
