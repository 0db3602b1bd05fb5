#pragma once
// What must hold for any text that is taken for a statement: it is refused with one of the known numbers, or it prints
// itself back as a statement of the same meaning, and its translation can be made.

#include <string>
#include <vector>

#include "platform/base/Error.h"
#include "platform/sql/dialect/Binder.h"
#include "platform/sql/dialect/Parser.h"
#include "platform/sql/sqlite/Emitter.h"

namespace fenvale::fuzz {

inline const sql::Catalog& statementCatalog() {
  static const sql::Catalog catalog = [] {
    sql::Catalog made;
    for (const char* definition :
         {"CREATE TABLE T (k COUNTER PRIMARY KEY, n LONG, f CURRENCY, s TEXT(20), m MEMO, d DATETIME, b YESNO, y BYTE)",
          "CREATE TABLE U (k COUNTER PRIMARY KEY, t LONG NOT NULL REFERENCES T (k), s TEXT)"})
      made.apply(sql::parse(definition));
    return made;
  }();
  return catalog;
}

/// An answer that tells what went wrong; empty when all is well.
inline std::string sqlStatement(const std::string& text) {
  try {
    const sql::Statement first = sql::parse(text);
    const std::string printed = sql::print(first);
    const sql::Statement second = sql::parse(printed);
    if (!sql::equal(first, second)) return "not the same when printed: " + printed;
    if (sql::isDefinition(first)) {
      sql::Catalog catalog = statementCatalog();
      catalog.apply(first);
      return {};
    }
    const sql::BoundStatement bound = sql::bind(first, statementCatalog());
    std::visit([](const auto& content) { sql::SqliteEmitter().emit(content); }, bound.content);
  } catch (const Error& failure) {
    for (const std::int32_t known : {errors::syntax, errors::unknownTable, errors::unknownColumn, errors::valueMismatch,
                                     errors::columnExists, errors::refused, errors::invalidCall})
      if (failure.number == known) return {};
    return "unexpected number " + std::to_string(failure.number) + ": " + failure.description;
  }
  return {};
}

}  // namespace fenvale::fuzz
