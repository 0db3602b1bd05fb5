#pragma once
// What a store knows of its tables. The catalogue is the sum of the definition statements that were applied to it, kept
// in the store as dialect text: nothing here depends on the engine beneath.

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/sql/dialect/Statement.h"

namespace fenvale::sql {

struct IndexDescription {
  std::string name;
  std::vector<CreateIndexStatement::Column> columns;
  bool unique = false;
  bool primary = false;
  bool partial = false;
};

struct RelationDescription {
  std::string name;
  std::vector<std::string> columns;
  std::string referencedTable;
  std::vector<std::string> referencedColumns;
  bool cascade = false;
  std::string unless;   ///< dialect text of the condition on a referencing row that forbids the cascade
  std::string refusal;  ///< told then
};

struct TableDescription {
  std::string name;
  std::vector<ColumnDefinition> columns;
  std::vector<IndexDescription> indexes;  ///< the primary key among them, but for a counter's
  std::vector<RelationDescription> relations;

  /// The place of a column, matched without case, or `none`.
  std::size_t find(std::string_view column) const;
  static constexpr std::size_t none = static_cast<std::size_t>(-1);
  /// The column that the engine counts up, or `none`.
  std::size_t counter() const;
  bool hasPrimaryKey() const;
  /// No two rows share the value of this column.
  bool isUnique(std::string_view column) const;
};

class Catalog {
 public:
  /// The table, its name matched without case; null when there is none.
  std::shared_ptr<const TableDescription> find(std::string_view table) const;
  /// The same; Error 0x80040E37 when there is none.
  std::shared_ptr<const TableDescription> get(std::string_view table) const;

  /// Takes a definition up. Error 0x80040E14 for a table, index or relation that exists, 0x80040E37 for a table that
  /// does not, 0x80040E10 for a column that does not, 0x80040E21 for a column that exists, 0x80004005 for a second
  /// primary key. After an error the catalogue is as it was.
  void apply(const Statement& definition);

  std::vector<std::string> tableNames() const;

 private:
  void define(const CreateTableStatement& create);
  void define(const CreateIndexStatement& create);
  void define(const AddColumnStatement& alter);
  void define(const AddConstraintStatement& alter);
  void addConstraint(TableDescription& table, const ConstraintDefinition& constraint) const;
  void addRelation(TableDescription& table, const ConstraintDefinition& constraint) const;
  void put(TableDescription table);

  std::map<std::string, std::shared_ptr<const TableDescription>, std::less<>> tables_;  ///< by lower-case name
};

bool isDefinition(const Statement& statement);
bool sameName(std::string_view first, std::string_view second);

}  // namespace fenvale::sql
