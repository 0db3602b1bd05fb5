#pragma once
// The types that a column can be declared with.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/sql/Value.h"

namespace fenvale::sql {

enum class ColumnKind : std::uint8_t { counter, longInteger, shortInteger, byte, currency, date, boolean, text, memo };

struct ColumnType {
  ColumnKind kind = ColumnKind::longInteger;
  std::size_t limit = 0;  ///< of a text: how many characters it holds
  bool operator==(const ColumnType&) const = default;
};

inline constexpr std::size_t longestText = 255;

/// By any of its names: COUNTER, AUTOINCREMENT; LONG, INTEGER; SHORT; BYTE; CURRENCY, MONEY; DATETIME, DATE; YESNO,
/// BIT, LOGICAL; TEXT, VARCHAR; MEMO, LONGTEXT.
std::optional<ColumnKind> findColumnKind(std::string_view name);
/// The first of its names.
std::string_view nameOf(ColumnKind kind);
std::string describe(const ColumnType& type);

/// The type of a value read from such a column.
ValueType valueTypeOf(ColumnKind kind);

}  // namespace fenvale::sql
