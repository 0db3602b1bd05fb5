#pragma once
// Turns a tree back into dialect text.

#include <string>
#include <string_view>

#include "platform/sql/dialect/Operators.h"

namespace fenvale::sql {

class Expression;

/// How many parentheses a printed tree carries: as few as its reading needs, or one pair around every operation, so
/// that two trees are equal exactly when their explicit texts are.
enum class Parentheses { needed, all };

class Printer {
 public:
  explicit Printer(Parentheses parentheses = Parentheses::needed) : parentheses_(parentheses) {}

  Printer& operator<<(std::string_view text) {
    text_ += text;
    return *this;
  }
  Printer& name(std::string_view name);
  /// An operand of an operation that binds its operands at least as tightly as `least`.
  Printer& operand(const Expression& expression, Precedence least);
  Printer& expression(const Expression& expression) { return operand(expression, Precedence::logicalOr); }

  const std::string& text() const { return text_; }

 private:
  Parentheses parentheses_;
  std::string text_;
};

}  // namespace fenvale::sql
