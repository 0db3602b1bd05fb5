#pragma once
// The parts of the binder that its sources share.

#include <string>
#include <string_view>
#include <vector>

#include "platform/sql/dialect/Binder.h"
#include "platform/sql/dialect/Expression.h"

namespace fenvale::sql {

/// The sources of one FROM, and the select around it.
struct Scope {
  const Scope* outer = nullptr;
  const std::vector<BoundSource>* sources = nullptr;
};

/// What binding gathers over a whole statement.
struct BindContext {
  const Catalog& catalog;
  std::size_t nextSource = 1;
  std::vector<Parameter> parameters;
  std::vector<LiteralUse> literals;
  std::vector<std::string> tables;

  LiteralUse& use(std::size_t literal);
  void addTable(const std::string& name);
};

BoundSelect bindSelect(const SelectStatement& select, const Scope* outer, BindContext& context);

[[noreturn]] void failTypes(std::string_view what);

/// Brings values to a type, operations to operands that go together. A literal takes the type in the statement's
/// parameters; any other value is wrapped in a conversion.
class TypeRules {
 public:
  explicit TypeRules(BindContext& context) : context_(context) {}

  BoundExpression convert(BoundExpression value, ValueType type, std::string_view what);
  BoundExpression toText(BoundExpression value);
  /// Both to the one type in which they compare.
  void unify(BoundExpression& left, BoundExpression& right, std::string_view what);
  /// The type of a choice between two values; both are brought to it.
  ValueType unifyChoice(BoundExpression& left, BoundExpression& right);
  BoundExpression assign(BoundExpression value, const TableDescription& table, const ColumnDefinition& column);

 private:
  BoundExpression wrap(Operation operation, ValueType type, BoundExpression value) const;
  bool isLiteral(const BoundExpression& value) const;

  BindContext& context_;
};

class ExpressionBinder final : private ExpressionVisitor {
 public:
  ExpressionBinder(const Scope* scope, BindContext& context) : scope_(scope), context_(context), types_(context) {}

  BoundExpression bind(const Expression& expression);
  /// True or false: a boolean or a number, of which any but 0 is true.
  BoundExpression bindCondition(const Expression& expression);
  /// The operands of AND one by one.
  void bindConditions(const Expression& expression, std::vector<BoundExpression>& conditions);
  BoundExpression bindAssignment(const Expression& value, const TableDescription& table,
                                 const ColumnDefinition& column);

 private:
  void visit(const LiteralExpression& node) override;
  void visit(const ConstantExpression& node) override;
  void visit(const NameExpression& node) override;
  void visit(const UnaryExpression& node) override;
  void visit(const BinaryExpression& node) override;
  void visit(const BetweenExpression& node) override;
  void visit(const NullTestExpression& node) override;
  void visit(const CallExpression& node) override;
  void visit(const SubselectExpression& node) override;

  void bindComparison(const BinaryExpression& node);
  void bindArithmetic(const BinaryExpression& node);
  void bindProduct(BoundExpression left, BoundExpression right);
  bool resolve(const NameExpression& node, const std::vector<BoundSource>& sources);
  void keepZero(BoundExpression& value, const BoundExpression& other);
  LiteralUse* literalOf(const BoundExpression& value);
  void passEmptyBeginning(BoundExpression& condition);

  void bindChoose(const CallExpression& call);
  void bindNullTest(const CallExpression& call);
  void bindMiddle(const CallExpression& call);
  void bindFormat(const CallExpression& call);
  void bindDatePart(const CallExpression& call);
  void bindDaysBetween(const CallExpression& call);
  void bindToday(const CallExpression& call);
  void bindCount(const CallExpression& call);
  void bindSum(const CallExpression& call);
  void bindMinimum(const CallExpression& call);
  void bindMaximum(const CallExpression& call);
  void bindExtreme(const CallExpression& call, Operation operation);
  std::string fixedText(const CallExpression& call, std::size_t argument);
  BoundExpression argument(const CallExpression& call, std::size_t index) { return bind(*call.arguments()[index]); }
  void become(Operation operation, ValueType type, std::vector<BoundExpression> operands);

  struct Function {
    std::string_view name;
    std::size_t least;
    std::size_t most;
    void (ExpressionBinder::*bind)(const CallExpression& call);
  };
  static const Function* findFunction(std::string_view name);

  const Scope* scope_;
  BindContext& context_;
  TypeRules types_;
  BoundExpression result_;
};

bool hasAggregate(const BoundExpression& expression);

}  // namespace fenvale::sql
