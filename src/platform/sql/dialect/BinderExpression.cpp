// Names, operators and values.

#include <algorithm>

#include "platform/base/Error.h"
#include "platform/sql/dialect/BinderDetail.h"
#include "platform/sql/dialect/Printer.h"

namespace fenvale::sql {
namespace {

std::string written(const Expression& expression) {
  Printer printer;
  printer.expression(expression);
  return "\"" + printer.text() + "\"";
}

Operation comparisonOf(Operator operation) {
  switch (operation) {
    case Operator::equal:
      return Operation::equal;
    case Operator::notEqual:
      return Operation::notEqual;
    case Operator::less:
      return Operation::less;
    case Operator::greater:
      return Operation::greater;
    case Operator::lessEqual:
      return Operation::lessEqual;
    default:
      return Operation::greaterEqual;
  }
}

bool isNumeric(ValueType type) {
  return type == ValueType::integer || type == ValueType::boolean || type == ValueType::currency ||
         type == ValueType::decimal || type == ValueType::null;
}

std::size_t columnOf(const BoundSource& source, const std::string& name) {
  if (source.table) return source.table->find(name);
  const auto& columns = source.select->columns;
  for (std::size_t index = 0; index < columns.size(); ++index)
    if (sameName(columns[index].name, name)) return index;
  return TableDescription::none;
}

ValueType typeOf(const BoundSource& source, std::size_t column) {
  return source.table ? valueTypeOf(source.table->columns[column].type.kind)
                      : source.select->columns[column].value.type;
}

}  // namespace

bool hasAggregate(const BoundExpression& expression) {
  if (expression.operation >= Operation::count && expression.operation <= Operation::maximum) return true;
  return std::any_of(expression.operands.begin(), expression.operands.end(), hasAggregate);
}

LiteralUse& BindContext::use(std::size_t literal) {
  if (literals.size() <= literal) literals.resize(literal + 1);
  return literals[literal];
}

void BindContext::addTable(const std::string& name) {
  if (std::find(tables.begin(), tables.end(), name) == tables.end()) tables.push_back(name);
}

BoundExpression ExpressionBinder::bind(const Expression& expression) {
  expression.accept(*this);
  return std::move(result_);
}

BoundExpression ExpressionBinder::bindCondition(const Expression& expression) {
  BoundExpression condition = bind(expression);
  if (!isNumeric(condition.type)) failTypes(written(expression));
  return condition;
}

void ExpressionBinder::bindConditions(const Expression& expression, std::vector<BoundExpression>& conditions) {
  const auto* binary = dynamic_cast<const BinaryExpression*>(&expression);
  if (binary != nullptr && binary->operation() == Operator::logicalAnd) {
    bindConditions(binary->left(), conditions);
    bindConditions(binary->right(), conditions);
  } else {
    conditions.push_back(bindCondition(expression));
    passEmptyBeginning(conditions.back());
  }
}

BoundExpression ExpressionBinder::bindAssignment(const Expression& value, const TableDescription& table,
                                                 const ColumnDefinition& column) {
  return types_.assign(bind(value), table, column);
}

void ExpressionBinder::become(Operation operation, ValueType type, std::vector<BoundExpression> operands) {
  result_ = BoundExpression();
  result_.operation = operation;
  result_.type = type;
  result_.operands = std::move(operands);
}

void ExpressionBinder::visit(const LiteralExpression& node) {
  LiteralUse& use = context_.use(node.index());
  use.text = node.text();
  use.zero = node.kind() == TokenKind::Integer && node.text().find_first_not_of('0') == std::string::npos;
  Parameter parameter;
  parameter.literal = node.index();
  switch (node.kind()) {
    case TokenKind::Integer:
      parameter.type = ValueType::integer;
      break;
    case TokenKind::Decimal:
      parameter.type = ValueType::decimal;
      break;
    case TokenKind::Date:
      parameter.type = ValueType::date;
      break;
    default:
      parameter.type = ValueType::text;
  }
  become(Operation::parameter, parameter.type, {});
  result_.source = context_.parameters.size();
  context_.parameters.push_back(std::move(parameter));
}

void ExpressionBinder::visit(const ConstantExpression& node) {
  switch (node.kind()) {
    case TokenKind::True:
      return become(Operation::trueValue, ValueType::boolean, {});
    case TokenKind::False:
      return become(Operation::falseValue, ValueType::boolean, {});
    default:
      return become(Operation::null, ValueType::null, {});
  }
}

bool ExpressionBinder::resolve(const NameExpression& node, const std::vector<BoundSource>& sources) {
  for (const BoundSource& source : sources) {
    if (!node.table().empty() && (!source.table || !sameName(source.table->name, node.table()))) continue;
    const std::size_t column = columnOf(source, node.column());
    if (column == TableDescription::none) continue;
    become(Operation::column, typeOf(source, column), {});
    result_.source = source.number;
    result_.column = column;
    return true;
  }
  return false;
}

void ExpressionBinder::visit(const NameExpression& node) {
  for (const Scope* scope = scope_; scope != nullptr; scope = scope->outer)
    if (resolve(node, *scope->sources)) return;
  throw Error(errors::unknownColumn, "O campo " + written(node) + " não existe nas tabelas da instrução.");
}

void ExpressionBinder::visit(const UnaryExpression& node) {
  if (node.operation() == Operator::logicalNot) {
    BoundExpression operand = bindCondition(node.operand());
    return become(Operation::logicalNot, ValueType::boolean, {std::move(operand)});
  }
  BoundExpression operand = bind(node.operand());
  if (!isNumeric(operand.type)) failTypes(written(node));
  if (operand.operation == Operation::parameter) {
    context_.parameters[operand.source].negated = !context_.parameters[operand.source].negated;
    result_ = std::move(operand);
    return;
  }
  const ValueType type = operand.type == ValueType::boolean ? ValueType::integer : operand.type;
  become(Operation::negate, type, {std::move(operand)});
}

void ExpressionBinder::visit(const BinaryExpression& node) {
  if (isComparison(node.operation())) return bindComparison(node);
  if (node.operation() != Operator::logicalAnd && node.operation() != Operator::logicalOr) return bindArithmetic(node);
  BoundExpression left = bindCondition(node.left());
  BoundExpression right = bindCondition(node.right());
  const bool both = node.operation() == Operator::logicalAnd;
  become(both ? Operation::logicalAnd : Operation::logicalOr, ValueType::boolean, {std::move(left), std::move(right)});
}

/// The zero of `fValorPago <= 0` stays written out in the translation: the engine must see it to know that an index of
/// the rows with that condition serves.
void ExpressionBinder::keepZero(BoundExpression& value, const BoundExpression& other) {
  if (value.operation != Operation::parameter || other.operation != Operation::column) return;
  const Parameter& parameter = context_.parameters[value.source];
  if (parameter.origin != Parameter::Origin::literal || parameter.type == ValueType::text) return;
  LiteralUse& use = context_.use(parameter.literal);
  use.dependence = LiteralUse::Dependence::whetherZero;
  if (!use.zero) return;
  value = BoundExpression();
  value.operation = Operation::zero;
  value.type = other.type;
}

/// The literal that a value is in the statement as it was written; nothing when it is computed.
LiteralUse* ExpressionBinder::literalOf(const BoundExpression& value) {
  if (value.operation != Operation::parameter) return nullptr;
  const Parameter& parameter = context_.parameters[value.source];
  if (parameter.origin != Parameter::Origin::literal || parameter.negated) return nullptr;
  return &context_.use(parameter.literal);
}

/// `MID(sNome, 1, 0) = ''`, what a search with an empty box asks for, holds for every text. Asked whether there is a
/// text at all, the engine need not cut the beginning off each row. That is so where rows are chosen only: there an
/// unknown answer and a no are one.
void ExpressionBinder::passEmptyBeginning(BoundExpression& condition) {
  if (condition.operation != Operation::equal || condition.operands[0].operation != Operation::middle) return;
  std::vector<BoundExpression>& cut = condition.operands[0].operands;
  if (cut.size() != 3 || cut[0].operation != Operation::column) return;
  LiteralUse* const start = literalOf(cut[1]);
  LiteralUse* const count = literalOf(cut[2]);
  LiteralUse* const wanted = literalOf(condition.operands[1]);
  if (start == nullptr || count == nullptr || wanted == nullptr) return;
  count->dependence = LiteralUse::Dependence::whetherZero;
  if (!count->zero) return;
  start->dependence = LiteralUse::Dependence::value;
  wanted->dependence = LiteralUse::Dependence::value;
  if (start->text != "1" || !wanted->text.empty()) return;
  BoundExpression column = std::move(cut[0]);
  condition.operation = Operation::isNotNull;
  condition.operands.clear();
  condition.operands.push_back(std::move(column));
}

void ExpressionBinder::bindComparison(const BinaryExpression& node) {
  BoundExpression left = bind(node.left());
  BoundExpression right = bind(node.right());
  types_.unify(left, right, written(node));
  keepZero(left, right);
  keepZero(right, left);
  become(comparisonOf(node.operation()), ValueType::boolean, {std::move(left), std::move(right)});
}

void ExpressionBinder::bindArithmetic(const BinaryExpression& node) {
  BoundExpression left = bind(node.left());
  BoundExpression right = bind(node.right());
  const bool text = left.type == ValueType::text || right.type == ValueType::text;
  if (node.operation() == Operator::join || (node.operation() == Operator::add && text)) {
    const Operation join = node.operation() == Operator::join ? Operation::joinLoose : Operation::joinStrict;
    left = types_.toText(std::move(left));
    right = types_.toText(std::move(right));
    return become(join, ValueType::text, {std::move(left), std::move(right)});
  }
  if (!isNumeric(left.type) || !isNumeric(right.type)) failTypes(written(node));
  if (node.operation() == Operator::multiply) return bindProduct(std::move(left), std::move(right));
  if (node.operation() == Operator::divide) {
    left = types_.convert(std::move(left), ValueType::decimal, written(node));
    right = types_.convert(std::move(right), ValueType::decimal, written(node));
    return become(Operation::divide, ValueType::decimal, {std::move(left), std::move(right)});
  }
  types_.unify(left, right, written(node));
  ValueType type = left.type == ValueType::null ? right.type : left.type;
  if (type == ValueType::boolean) type = ValueType::integer;
  if (left.type == ValueType::decimal || right.type == ValueType::decimal) type = ValueType::decimal;
  const Operation operation = node.operation() == Operator::add ? Operation::add : Operation::subtract;
  become(operation, type, {std::move(left), std::move(right)});
}

void ExpressionBinder::bindProduct(BoundExpression left, BoundExpression right) {
  const bool leftMoney = left.type == ValueType::currency;
  const bool rightMoney = right.type == ValueType::currency;
  if ((leftMoney && right.type == ValueType::decimal) || (rightMoney && left.type == ValueType::decimal)) {
    left = types_.convert(std::move(left), ValueType::currency, "*");
    right = types_.convert(std::move(right), ValueType::currency, "*");
    return become(Operation::multiplyCurrencies, ValueType::currency, {std::move(left), std::move(right)});
  }
  if (leftMoney && rightMoney)
    return become(Operation::multiplyCurrencies, ValueType::currency, {std::move(left), std::move(right)});
  ValueType type = ValueType::integer;
  if (leftMoney || rightMoney) type = ValueType::currency;  // a whole number of times an amount needs no scaling
  if (left.type == ValueType::decimal || right.type == ValueType::decimal) type = ValueType::decimal;
  become(Operation::multiply, type, {std::move(left), std::move(right)});
}

void ExpressionBinder::visit(const BetweenExpression& node) {
  BoundExpression value = bind(node.value());
  BoundExpression low = bind(node.low());
  BoundExpression high = bind(node.high());
  const bool money =
      value.type == ValueType::currency || low.type == ValueType::currency || high.type == ValueType::currency;
  if (money) value = types_.convert(std::move(value), ValueType::currency, written(node));
  types_.unify(value, low, written(node));
  types_.unify(value, high, written(node));
  become(Operation::between, ValueType::boolean, {std::move(value), std::move(low), std::move(high)});
}

void ExpressionBinder::visit(const NullTestExpression& node) {
  BoundExpression value = bind(node.value());
  become(node.negated() ? Operation::isNotNull : Operation::isNull, ValueType::boolean, {std::move(value)});
}

void ExpressionBinder::visit(const CallExpression& node) {
  const Function* function = findFunction(node.function());
  if (function == nullptr) throw Error(errors::syntax, "A função " + node.function() + " não existe.");
  const std::size_t count = node.star() ? 1 : node.arguments().size();
  if (count < function->least || count > function->most)
    throw Error(errors::syntax,
                "A função " + node.function() + " não aceita " + std::to_string(count) + " argumentos.");
  (this->*function->bind)(node);
}

void ExpressionBinder::visit(const SubselectExpression& node) {
  auto select = std::make_shared<BoundSelect>(bindSelect(node.select(), scope_, context_));
  if (select->columns.size() != 1)
    throw Error(errors::syntax, "Uma subconsulta usada como valor deve ter um só campo.");
  become(Operation::subselect, select->columns[0].value.type, {});
  result_.select = std::move(select);
}

}  // namespace fenvale::sql
