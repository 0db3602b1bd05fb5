#pragma once
// The nodes of an expression as written: small, closed, each able to print itself back. What a name means and which
// type a value has is not known here; the binder finds that out.

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "platform/sql/dialect/Operators.h"
#include "platform/sql/dialect/Token.h"

namespace fenvale::sql {

class Printer;
class ExpressionVisitor;
struct SelectStatement;

class Expression {
 public:
  virtual ~Expression() = default;
  virtual void print(Printer& printer) const = 0;
  virtual void accept(ExpressionVisitor& visitor) const = 0;
  virtual Precedence precedence() const { return Precedence::operand; }
  /// Of its first byte in the statement.
  std::size_t place() const { return place_; }
  /// How many nodes lie between this one and its deepest leaf, both counted.
  std::size_t depth() const { return depth_; }

 protected:
  Expression(std::size_t place, std::size_t depth) : place_(place), depth_(depth) {}

 private:
  std::size_t place_;
  std::size_t depth_;
};

using ExpressionPointer = std::unique_ptr<const Expression>;

/// A number, text or date written in the statement. It knows which of the statement's literals it is, so that another
/// statement of the same shape can supply its own value.
class LiteralExpression final : public Expression {
 public:
  LiteralExpression(const Token& token, std::size_t index);
  void print(Printer& printer) const override;
  void accept(ExpressionVisitor& visitor) const override;
  TokenKind kind() const { return kind_; }
  /// Delimiters and doubling taken off.
  const std::string& text() const { return text_; }
  std::size_t index() const { return index_; }

 private:
  TokenKind kind_;
  std::string text_;
  std::size_t index_;
};

/// NULL, TRUE or FALSE.
class ConstantExpression final : public Expression {
 public:
  ConstantExpression(TokenKind kind, std::size_t place) : Expression(place, 1), kind_(kind) {}
  void print(Printer& printer) const override;
  void accept(ExpressionVisitor& visitor) const override;
  TokenKind kind() const { return kind_; }

 private:
  TokenKind kind_;
};

/// A column, bare or behind its table's name.
class NameExpression final : public Expression {
 public:
  NameExpression(std::string table, std::string column, std::size_t place)
      : Expression(place, 1), table_(std::move(table)), column_(std::move(column)) {}
  void print(Printer& printer) const override;
  void accept(ExpressionVisitor& visitor) const override;
  const std::string& table() const { return table_; }
  const std::string& column() const { return column_; }

 private:
  std::string table_;
  std::string column_;
};

/// NOT a, -a
class UnaryExpression final : public Expression {
 public:
  UnaryExpression(Operator operation, ExpressionPointer operand, std::size_t place);
  void print(Printer& printer) const override;
  void accept(ExpressionVisitor& visitor) const override;
  Precedence precedence() const override;
  Operator operation() const { return operation_; }
  const Expression& operand() const { return *operand_; }

 private:
  Operator operation_;
  ExpressionPointer operand_;
};

class BinaryExpression final : public Expression {
 public:
  BinaryExpression(Operator operation, ExpressionPointer left, ExpressionPointer right);
  void print(Printer& printer) const override;
  void accept(ExpressionVisitor& visitor) const override;
  Precedence precedence() const override { return describe(operation_).precedence; }
  Operator operation() const { return operation_; }
  const Expression& left() const { return *left_; }
  const Expression& right() const { return *right_; }

 private:
  Operator operation_;
  ExpressionPointer left_;
  ExpressionPointer right_;
};

/// a BETWEEN b AND c, both ends included
class BetweenExpression final : public Expression {
 public:
  BetweenExpression(ExpressionPointer value, ExpressionPointer low, ExpressionPointer high);
  void print(Printer& printer) const override;
  void accept(ExpressionVisitor& visitor) const override;
  Precedence precedence() const override { return Precedence::comparison; }
  const Expression& value() const { return *value_; }
  const Expression& low() const { return *low_; }
  const Expression& high() const { return *high_; }

 private:
  ExpressionPointer value_;
  ExpressionPointer low_;
  ExpressionPointer high_;
};

/// a IS NULL, a IS NOT NULL
class NullTestExpression final : public Expression {
 public:
  NullTestExpression(ExpressionPointer value, bool negated);
  void print(Printer& printer) const override;
  void accept(ExpressionVisitor& visitor) const override;
  Precedence precedence() const override { return Precedence::comparison; }
  const Expression& value() const { return *value_; }
  bool negated() const { return negated_; }

 private:
  ExpressionPointer value_;
  bool negated_;
};

/// NAME(a, b), and COUNT(*) as a call without arguments that has a star
class CallExpression final : public Expression {
 public:
  CallExpression(std::string function, std::vector<ExpressionPointer> arguments, bool star, std::size_t place);
  void print(Printer& printer) const override;
  void accept(ExpressionVisitor& visitor) const override;
  const std::string& function() const { return function_; }
  const std::vector<ExpressionPointer>& arguments() const { return arguments_; }
  bool star() const { return star_; }

 private:
  std::string function_;
  std::vector<ExpressionPointer> arguments_;
  bool star_;
};

/// (SELECT ..) as a value
class SubselectExpression final : public Expression {
 public:
  SubselectExpression(std::unique_ptr<const SelectStatement> select, std::size_t place);
  ~SubselectExpression() override;
  void print(Printer& printer) const override;
  void accept(ExpressionVisitor& visitor) const override;
  const SelectStatement& select() const { return *select_; }

 private:
  std::unique_ptr<const SelectStatement> select_;
};

class ExpressionVisitor {
 public:
  virtual ~ExpressionVisitor() = default;
  virtual void visit(const LiteralExpression& node) = 0;
  virtual void visit(const ConstantExpression& node) = 0;
  virtual void visit(const NameExpression& node) = 0;
  virtual void visit(const UnaryExpression& node) = 0;
  virtual void visit(const BinaryExpression& node) = 0;
  virtual void visit(const BetweenExpression& node) = 0;
  virtual void visit(const NullTestExpression& node) = 0;
  virtual void visit(const CallExpression& node) = 0;
  virtual void visit(const SubselectExpression& node) = 0;
};

}  // namespace fenvale::sql
