#include "platform/sql/dialect/Expression.h"

#include <algorithm>

#include "platform/sql/dialect/Literals.h"
#include "platform/sql/dialect/Printer.h"
#include "platform/sql/dialect/Statement.h"

namespace fenvale::sql {
namespace {

std::size_t deepest(const std::vector<ExpressionPointer>& nodes) {
  std::size_t depth = 0;
  for (const auto& node : nodes) depth = std::max(depth, node->depth());
  return depth;
}

}  // namespace

Printer& Printer::name(std::string_view name) { return *this << quotedName(name); }

Printer& Printer::operand(const Expression& expression, Precedence least) {
  const bool operation = expression.precedence() != Precedence::operand;
  const bool wrapped = operation && (parentheses_ == Parentheses::all || expression.precedence() < least);
  if (wrapped) *this << "(";
  expression.print(*this);
  if (wrapped) *this << ")";
  return *this;
}

LiteralExpression::LiteralExpression(const Token& token, std::size_t index)
    : Expression(token.place, 1), kind_(token.kind), index_(index) {
  std::string buffer;
  text_ = textOf(token, buffer);
}

void LiteralExpression::print(Printer& printer) const {
  switch (kind_) {
    case TokenKind::Text:
      printer << quotedText(text_);
      break;
    case TokenKind::Date:
      printer << "#" << text_ << "#";
      break;
    default:
      printer << text_;
  }
}

void ConstantExpression::print(Printer& printer) const { printer << spellingOf(kind_); }

void NameExpression::print(Printer& printer) const {
  if (!table_.empty()) printer.name(table_) << ".";
  printer.name(column_);
}

UnaryExpression::UnaryExpression(Operator operation, ExpressionPointer operand, std::size_t place)
    : Expression(place, operand->depth() + 1), operation_(operation), operand_(std::move(operand)) {}

Precedence UnaryExpression::precedence() const {
  return operation_ == Operator::logicalNot ? Precedence::logicalNot : Precedence::sign;
}

void UnaryExpression::print(Printer& printer) const {
  printer << (operation_ == Operator::logicalNot ? "NOT " : "-");
  printer.operand(*operand_, precedence());
}

BinaryExpression::BinaryExpression(Operator operation, ExpressionPointer left, ExpressionPointer right)
    : Expression(left->place(), std::max(left->depth(), right->depth()) + 1),
      operation_(operation),
      left_(std::move(left)),
      right_(std::move(right)) {}

void BinaryExpression::print(Printer& printer) const {
  printer.operand(*left_, precedence()) << " " << spellingOf(describe(operation_).token) << " ";
  printer.operand(*right_, tighter(precedence()));
}

BetweenExpression::BetweenExpression(ExpressionPointer value, ExpressionPointer low, ExpressionPointer high)
    : Expression(value->place(), std::max({value->depth(), low->depth(), high->depth()}) + 1),
      value_(std::move(value)),
      low_(std::move(low)),
      high_(std::move(high)) {}

void BetweenExpression::print(Printer& printer) const {
  printer.operand(*value_, Precedence::comparison) << " BETWEEN ";
  printer.operand(*low_, Precedence::join) << " AND ";
  printer.operand(*high_, Precedence::join);
}

NullTestExpression::NullTestExpression(ExpressionPointer value, bool negated)
    : Expression(value->place(), value->depth() + 1), value_(std::move(value)), negated_(negated) {}

void NullTestExpression::print(Printer& printer) const {
  printer.operand(*value_, Precedence::comparison) << (negated_ ? " IS NOT NULL" : " IS NULL");
}

CallExpression::CallExpression(std::string function, std::vector<ExpressionPointer> arguments, bool star,
                               std::size_t place)
    : Expression(place, deepest(arguments) + 1),
      function_(std::move(function)),
      arguments_(std::move(arguments)),
      star_(star) {}

void CallExpression::print(Printer& printer) const {
  printer << function_ << "(" << (star_ ? "*" : "");
  for (std::size_t index = 0; index < arguments_.size(); ++index) {
    printer << (index > 0 ? ", " : "");
    printer.expression(*arguments_[index]);
  }
  printer << ")";
}

SubselectExpression::SubselectExpression(std::unique_ptr<const SelectStatement> select, std::size_t place)
    : Expression(place, select->depth + 1), select_(std::move(select)) {}

SubselectExpression::~SubselectExpression() = default;

void SubselectExpression::print(Printer& printer) const {
  printer << "(";
  sql::print(*select_, printer);
  printer << ")";
}

void LiteralExpression::accept(ExpressionVisitor& visitor) const { visitor.visit(*this); }
void ConstantExpression::accept(ExpressionVisitor& visitor) const { visitor.visit(*this); }
void NameExpression::accept(ExpressionVisitor& visitor) const { visitor.visit(*this); }
void UnaryExpression::accept(ExpressionVisitor& visitor) const { visitor.visit(*this); }
void BinaryExpression::accept(ExpressionVisitor& visitor) const { visitor.visit(*this); }
void BetweenExpression::accept(ExpressionVisitor& visitor) const { visitor.visit(*this); }
void NullTestExpression::accept(ExpressionVisitor& visitor) const { visitor.visit(*this); }
void CallExpression::accept(ExpressionVisitor& visitor) const { visitor.visit(*this); }
void SubselectExpression::accept(ExpressionVisitor& visitor) const { visitor.visit(*this); }

}  // namespace fenvale::sql
