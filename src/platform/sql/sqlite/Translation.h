#pragma once
// Statements are translated once per shape: what differs only in the values of its literals shares a translation, and
// these values are bound.

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/sql/dialect/Bound.h"
#include "platform/sql/dialect/Token.h"
#include "platform/sql/sqlite/Database.h"
#include "platform/sql/sqlite/KeyPlan.h"

namespace fenvale::sql {

/// A statement ready to run any number of times with any literals that its translation does not depend on.
struct Translation {
  struct Column {
    std::string name;
    ValueType type;
  };
  enum class Kind { select, write, definition };

  Kind kind = Kind::select;
  std::vector<Column> columns;  ///< of a select
  std::vector<Parameter> parameters;
  std::vector<LiteralUse> literals;
  /// The tables whose change matters: read by a select, touched by a write (cascades included).
  std::vector<std::string> tables;
  bool deletes = false;  ///< of a write: its table is the first of `tables`

  std::string wholeText;  ///< all rows of a select, or the write
  Prepared whole;
  bool keyed = false;  ///< the rows of the select are found by keys, with the texts below
  bool rowIsKey = false;
  std::string keysText, countText, rowText;
  Prepared keys, count, row;

  /// The count answered last, with the values and the state of the store that it holds for.
  struct Counted {
    std::int64_t rows = -1;
    Database::State state;
    std::vector<StoredValue> values;
  };
  Counted counted;
};

/// A translation together with the values of one statement.
struct BoundRun {
  std::shared_ptr<Translation> translation;
  std::vector<StoredValue> values;
};

class TranslationCache {
 public:
  /// Errors of the dialect. A definition comes back with its kind and nothing else.
  BoundRun translate(std::string_view statement, const Catalog& catalog, Date today);
  void clear() { byShape_.clear(); }

 private:
  struct Literal {
    TokenKind kind;
    std::string_view text;
  };
  static bool serves(const Translation& translation, const std::vector<Literal>& literals);
  static std::vector<StoredValue> valuesOf(const Translation& translation, const std::vector<Literal>& literals,
                                           Date today);

  std::map<std::string, std::vector<std::shared_ptr<Translation>>, std::less<>> byShape_;
  // Kept between calls, so that a known shape costs no allocation.
  std::vector<Token> tokens_;
  std::string shape_;
  std::vector<Literal> literals_;
  std::vector<std::string> buffers_;
};

}  // namespace fenvale::sql
