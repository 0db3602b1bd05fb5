// The functions of the dialect: one table, one small function each.

#include <array>

#include "platform/base/Error.h"
#include "platform/base/Text.h"
#include "platform/sql/dialect/BinderDetail.h"

namespace fenvale::sql {

const ExpressionBinder::Function* ExpressionBinder::findFunction(std::string_view name) {
  using Binder = ExpressionBinder;
  static constexpr std::array<Function, 12> functions = {{
      {"IIF", 3, 3, &Binder::bindChoose},
      {"ISNULL", 1, 1, &Binder::bindNullTest},
      {"FORMAT", 2, 2, &Binder::bindFormat},
      {"MID", 2, 3, &Binder::bindMiddle},
      {"MID$", 2, 3, &Binder::bindMiddle},
      {"DATEPART", 2, 2, &Binder::bindDatePart},
      {"DATEDIFF", 3, 3, &Binder::bindDaysBetween},
      {"DATE", 0, 0, &Binder::bindToday},
      {"COUNT", 1, 1, &Binder::bindCount},
      {"SUM", 1, 1, &Binder::bindSum},
      {"MIN", 1, 1, &Binder::bindMinimum},
      {"MAX", 1, 1, &Binder::bindMaximum},
  }};
  for (const Function& function : functions)
    if (sameName(function.name, name)) return &function;
  return nullptr;
}

std::string ExpressionBinder::fixedText(const CallExpression& call, std::size_t index) {
  const auto* literal = dynamic_cast<const LiteralExpression*>(call.arguments()[index].get());
  if (literal == nullptr || literal->kind() != TokenKind::Text)
    throw Error(errors::syntax, "A função " + call.function() + " exige um texto fixo.");
  LiteralUse& use = context_.use(literal->index());
  use.dependence = LiteralUse::Dependence::value;
  use.text = literal->text();
  return literal->text();
}

void ExpressionBinder::bindChoose(const CallExpression& call) {
  BoundExpression condition = bindCondition(*call.arguments()[0]);
  BoundExpression yes = argument(call, 1);
  BoundExpression no = argument(call, 2);
  const ValueType type = types_.unifyChoice(yes, no);
  become(Operation::choose, type, {std::move(condition), std::move(yes), std::move(no)});
}

void ExpressionBinder::bindNullTest(const CallExpression& call) {
  BoundExpression value = argument(call, 0);
  become(Operation::isNull, ValueType::boolean, {std::move(value)});
}

void ExpressionBinder::bindMiddle(const CallExpression& call) {
  std::vector<BoundExpression> operands;
  operands.push_back(types_.toText(argument(call, 0)));
  for (std::size_t index = 1; index < call.arguments().size(); ++index)
    operands.push_back(types_.convert(argument(call, index), ValueType::integer, call.function()));
  become(Operation::middle, ValueType::text, std::move(operands));
}

void ExpressionBinder::bindFormat(const CallExpression& call) {
  BoundExpression value = argument(call, 0);
  std::string mask = fixedText(call, 1);
  Operation operation = Operation::formatText;
  switch (value.type) {
    case ValueType::decimal:
      value = types_.convert(std::move(value), ValueType::currency, call.function());
      operation = Operation::formatCurrency;
      break;
    case ValueType::currency:
      operation = Operation::formatCurrency;
      break;
    case ValueType::date:
      operation = Operation::formatDate;
      break;
    case ValueType::integer:
    case ValueType::boolean:
      operation = Operation::formatInteger;
      break;
    case ValueType::null:
    case ValueType::text:
      break;
  }
  become(operation, ValueType::text, {std::move(value)});
  result_.text = std::move(mask);
}

void ExpressionBinder::bindDatePart(const CallExpression& call) {
  std::string part = toLower(fixedText(call, 0));
  if (part != "d" && part != "m" && part != "yyyy")
    throw Error(errors::invalidCall, "A parte de data '" + part + "' não existe em DATEPART.");
  BoundExpression date = argument(call, 1);
  if (date.type != ValueType::date && date.type != ValueType::null) failTypes("DATEPART");
  become(Operation::datePart, ValueType::integer, {std::move(date)});
  result_.text = std::move(part);
}

void ExpressionBinder::bindDaysBetween(const CallExpression& call) {
  if (toLower(fixedText(call, 0)) != "d") throw Error(errors::invalidCall, "DATEDIFF só conta dias ('d').");
  BoundExpression first = argument(call, 1);
  BoundExpression second = argument(call, 2);
  for (const BoundExpression* date : {&first, &second})
    if (date->type != ValueType::date && date->type != ValueType::null) failTypes("DATEDIFF");
  become(Operation::daysBetween, ValueType::integer, {std::move(first), std::move(second)});
}

void ExpressionBinder::bindToday(const CallExpression&) {
  Parameter today;
  today.origin = Parameter::Origin::today;
  today.type = ValueType::date;
  become(Operation::parameter, ValueType::date, {});
  result_.source = context_.parameters.size();
  context_.parameters.push_back(std::move(today));
}

void ExpressionBinder::bindCount(const CallExpression& call) {
  if (call.star()) return become(Operation::countRows, ValueType::integer, {});
  BoundExpression value = argument(call, 0);
  become(Operation::count, ValueType::integer, {std::move(value)});
}

void ExpressionBinder::bindSum(const CallExpression& call) {
  if (call.star()) throw Error(errors::syntax, "SUM não aceita *.");
  BoundExpression value = argument(call, 0);
  if (value.type == ValueType::text || value.type == ValueType::date) failTypes("SUM");
  const ValueType type = value.type == ValueType::boolean ? ValueType::integer : value.type;
  become(Operation::sum, type, {std::move(value)});
}

void ExpressionBinder::bindExtreme(const CallExpression& call, Operation operation) {
  if (call.star()) throw Error(errors::syntax, "A função " + call.function() + " não aceita *.");
  BoundExpression value = argument(call, 0);
  const ValueType type = value.type;
  become(operation, type, {std::move(value)});
}

void ExpressionBinder::bindMinimum(const CallExpression& call) { bindExtreme(call, Operation::minimum); }
void ExpressionBinder::bindMaximum(const CallExpression& call) { bindExtreme(call, Operation::maximum); }

}  // namespace fenvale::sql
