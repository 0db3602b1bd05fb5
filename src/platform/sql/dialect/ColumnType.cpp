#include "platform/sql/dialect/ColumnType.h"

#include <array>

#include "platform/base/Text.h"

namespace fenvale::sql {
namespace {

struct TypeName {
  std::string_view name;
  ColumnKind kind;
};

constexpr std::array<TypeName, 17> typeNames = {{
    {"COUNTER", ColumnKind::counter},
    {"AUTOINCREMENT", ColumnKind::counter},
    {"LONG", ColumnKind::longInteger},
    {"INTEGER", ColumnKind::longInteger},
    {"SHORT", ColumnKind::shortInteger},
    {"BYTE", ColumnKind::byte},
    {"CURRENCY", ColumnKind::currency},
    {"MONEY", ColumnKind::currency},
    {"DATETIME", ColumnKind::date},
    {"DATE", ColumnKind::date},
    {"YESNO", ColumnKind::boolean},
    {"BIT", ColumnKind::boolean},
    {"LOGICAL", ColumnKind::boolean},
    {"TEXT", ColumnKind::text},
    {"VARCHAR", ColumnKind::text},
    {"MEMO", ColumnKind::memo},
    {"LONGTEXT", ColumnKind::memo},
}};

}  // namespace

std::optional<ColumnKind> findColumnKind(std::string_view name) {
  for (const TypeName& entry : typeNames)
    if (equalsNoCase(entry.name, name)) return entry.kind;
  return std::nullopt;
}

std::string_view nameOf(ColumnKind kind) {
  for (const TypeName& entry : typeNames)
    if (entry.kind == kind) return entry.name;
  return {};
}

std::string describe(const ColumnType& type) {
  std::string text(nameOf(type.kind));
  if (type.kind == ColumnKind::text) text += "(" + std::to_string(type.limit) + ")";
  return text;
}

ValueType valueTypeOf(ColumnKind kind) {
  switch (kind) {
    case ColumnKind::counter:
    case ColumnKind::longInteger:
    case ColumnKind::shortInteger:
    case ColumnKind::byte:
      return ValueType::integer;
    case ColumnKind::currency:
      return ValueType::currency;
    case ColumnKind::date:
      return ValueType::date;
    case ColumnKind::boolean:
      return ValueType::boolean;
    case ColumnKind::text:
    case ColumnKind::memo:
      return ValueType::text;
  }
  return ValueType::null;
}

}  // namespace fenvale::sql
