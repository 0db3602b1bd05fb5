#pragma once
// Bound statements as SQLite text. Parameter n of the statement is ?(n+1); money counts ten-thousandths, dates are ISO
// text, truth is -1; functions and the collation go by names of our own (Functions.h, Collation.h).

#include <functional>
#include <string>

#include "platform/sql/dialect/Bound.h"

namespace fenvale::sql {

/// Quotes for names and texts: nothing is joined into a statement but through them.
std::string sqliteName(std::string_view name);
std::string sqliteText(std::string_view text);

inline constexpr std::string_view collationName = "FENVALE";

class SqliteEmitter {
 public:
  /// Supplies the text of a parameter where a definition takes no parameters.
  using InlineParameter = std::function<std::string(std::size_t)>;

  SqliteEmitter() = default;
  explicit SqliteEmitter(InlineParameter inlineParameter) : inlineParameter_(std::move(inlineParameter)) {}

  std::string emit(const BoundSelect& select);
  std::string emit(const BoundInsert& insert);
  std::string emit(const BoundUpdate& update);
  std::string emit(const BoundDelete& statement);
  /// A condition on the columns of one table, which goes by `prefix` ("" for bare columns, "OLD." in a trigger).
  std::string emitCondition(const std::vector<BoundExpression>& conditions, const BoundSource& source,
                            const std::string& prefix);

 private:
  struct KnownSource {
    std::size_t number;
    const BoundSource* source;
    std::string prefix;
  };

  void select(const BoundSelect& select, bool nested);
  void from(const BoundSelect& select);
  void where(const std::vector<BoundExpression>& conditions);
  void know(const BoundSource& source);
  void know(const BoundSource& source, std::string prefix);
  const KnownSource& find(std::size_t number) const;

  void value(const BoundExpression& expression);
  void condition(const BoundExpression& expression);
  void column(const BoundExpression& expression);
  void comparison(const BoundExpression& expression);
  void between(const BoundExpression& expression);
  void infix(const BoundExpression& expression, std::string_view sign, bool conditions);
  void call(std::string_view function, const BoundExpression& expression);
  void assign(const BoundExpression& expression);
  void collated(const BoundExpression& expression);
  bool bareText(const BoundExpression& expression) const;

  InlineParameter inlineParameter_;
  std::vector<KnownSource> sources_;
  std::string text_;
};

}  // namespace fenvale::sql
