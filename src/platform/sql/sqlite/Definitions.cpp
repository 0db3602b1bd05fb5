#include "platform/sql/sqlite/Definitions.h"

#include "platform/base/Error.h"
#include "platform/sql/dialect/Binder.h"
#include "platform/sql/dialect/Lexer.h"
#include "platform/sql/dialect/Parser.h"
#include "platform/sql/dialect/StoredValue.h"
#include "platform/sql/sqlite/Database.h"
#include "platform/sql/sqlite/Emitter.h"

namespace fenvale::sql {
namespace {

using TablePointer = std::shared_ptr<const TableDescription>;

std::string nameList(const std::vector<std::string>& names) {
  std::string list;
  for (const std::string& name : names) list += (list.empty() ? "" : ", ") + sqliteName(name);
  return list;
}

std::string indexName(const TableDescription& table, std::string_view index) {
  return sqliteName(table.name + "." + std::string(index));
}

std::string columnText(const ColumnDefinition& column) {
  const std::string required = column.required ? " NOT NULL" : "";
  switch (column.type.kind) {
    case ColumnKind::counter:
      return "INTEGER PRIMARY KEY AUTOINCREMENT";
    case ColumnKind::boolean:
      return "INTEGER NOT NULL DEFAULT 0";
    case ColumnKind::date:
      return "TEXT" + required;
    case ColumnKind::text:
    case ColumnKind::memo:
      return "TEXT COLLATE " + std::string(collationName) + required;
    default:
      return "INTEGER" + required;
  }
}

std::string relationText(const RelationDescription& relation) {
  return " REFERENCES " + sqliteName(relation.referencedTable) + " (" + nameList(relation.referencedColumns) + ")" +
         (relation.cascade ? " ON DELETE CASCADE" : "");
}

/// SQLite allows no parameters in an index or a trigger: the literals of the condition stand in its text.
std::string inlineLiteral(const Parameter& parameter, std::string_view source) {
  std::vector<Token> tokens;
  readTokens(source, tokens);
  std::size_t literal = 0;
  for (const Token& token : tokens) {
    if (categoryOf(token.kind) != TokenCategory::literal || literal++ != parameter.literal) continue;
    std::string buffer;
    const StoredValue value = supply(parameter, token.kind, textOf(token, buffer));
    if (const auto* whole = std::get_if<std::int64_t>(&value)) return std::to_string(*whole);
    if (const auto* text = std::get_if<std::string>(&value)) return sqliteText(*text);
  }
  throw Error(errors::notSupported, "Esta condição não pode fazer parte de uma definição.");
}

/// `source` is the text whose literals the condition's parameters count.
std::string conditionText(const Expression& condition, const TablePointer& table, std::string_view source) {
  const BoundStatement bound = bindCondition(condition, table);
  const auto& holder = std::get<BoundDelete>(bound.content);
  SqliteEmitter emitter([&](std::size_t index) { return inlineLiteral(bound.parameters[index], source); });
  return emitter.emitCondition(holder.conditions, holder.target, "");
}

class Definer {
 public:
  Definer(Database& database, const Catalog& catalog, std::string_view text)
      : database_(database), catalog_(catalog), text_(text) {}

  void operator()(const CreateTableStatement& create) {
    const TablePointer table = catalog_.get(create.table);
    std::string text;
    for (const ColumnDefinition& column : table->columns)
      text += (text.empty() ? "" : ", ") + sqliteName(column.name) + " " + columnText(column);
    for (const RelationDescription& relation : table->relations)
      text += ", FOREIGN KEY (" + nameList(relation.columns) + ")" + relationText(relation);
    database_.run("CREATE TABLE " + sqliteName(table->name) + " (" + text + ")");
    for (const IndexDescription& index : table->indexes) createUnique(*table, index);
    for (const RelationDescription& relation : table->relations) createRefusal(table, relation);
  }

  void operator()(const CreateIndexStatement& create) {
    const TablePointer table = catalog_.get(create.table);
    std::string columns;
    for (const auto& column : create.columns)
      columns += (columns.empty() ? "" : ", ") + sqliteName(column.name) + (column.descending ? " DESC" : "");
    database_.run("CREATE " + std::string(create.unique ? "UNIQUE " : "") + "INDEX " + indexName(*table, create.name) +
                  " ON " + sqliteName(table->name) + " (" + columns + ")" +
                  (create.where ? " WHERE " + conditionText(*create.where, table, text_) : ""));
  }

  void operator()(const AddColumnStatement& alter) {
    const TablePointer table = catalog_.get(alter.table);
    std::string text = columnText(alter.column);
    const auto& relations = table->relations;
    for (const RelationDescription& relation : relations)
      if (sameName(relation.columns.front(), alter.column.name)) text += relationText(relation);
    database_.run("ALTER TABLE " + sqliteName(table->name) + " ADD COLUMN " + sqliteName(alter.column.name) + " " +
                  text);
    for (const IndexDescription& index : table->indexes)
      if (index.columns.size() == 1 && sameName(index.columns[0].name, alter.column.name)) createUnique(*table, index);
    for (const RelationDescription& relation : relations)
      if (sameName(relation.columns.front(), alter.column.name)) createRefusal(table, relation);
  }

  void operator()(const AddConstraintStatement& alter) {
    const TablePointer table = catalog_.get(alter.table);
    // SQLite takes no relation up later; a table is told its relations when it is made.
    if (alter.constraint.kind == ConstraintDefinition::Kind::relation)
      throw Error(errors::notSupported,
                  "Uma relação da tabela " + table->name + " só pode nascer com a tabela ou o campo.");
    createUnique(*table, table->indexes.back());
  }

  template <typename NoDefinition>
  void operator()(const NoDefinition&) {}

 private:
  void createUnique(const TableDescription& table, const IndexDescription& index) {
    const std::size_t counter = table.counter();
    if (index.primary && counter != TableDescription::none &&
        sameName(index.columns[0].name, table.columns[counter].name))
      return;  // the counter is the key itself
    std::vector<std::string> names;
    for (const auto& column : index.columns) names.push_back(column.name);
    database_.run("CREATE UNIQUE INDEX " + indexName(table, index.name) + " ON " + sqliteName(table.name) + " (" +
                  nameList(names) + ")");
  }

  /// A referenced row takes its rows with it, but not while one of them fulfils the relation's condition.
  void createRefusal(const TablePointer& table, const RelationDescription& relation) {
    if (relation.unless.empty()) return;
    database_.run("CREATE TRIGGER " + indexName(*table, relation.name) + " BEFORE DELETE ON " +
                  sqliteName(relation.referencedTable) + " WHEN EXISTS (SELECT 1 FROM " + sqliteName(table->name) +
                  " WHERE " + sqliteName(relation.columns[0]) + " = OLD." + sqliteName(relation.referencedColumns[0]) +
                  " AND " + conditionText(*parseCondition(relation.unless), table, relation.unless) +
                  ") BEGIN SELECT RAISE(ABORT, " + sqliteText(relation.refusal) + "); END");
  }

  Database& database_;
  const Catalog& catalog_;
  std::string_view text_;
};

}  // namespace

Catalog readCatalog(const Database& database) {
  Catalog catalog;
  for (const std::string& text : database.texts("SELECT texto FROM " + std::string(catalogTable) + " ORDER BY ordem"))
    catalog.apply(parse(text));
  return catalog;
}

void define(Database& database, Catalog& catalog, const Statement& definition, std::string_view text) {
  Catalog changed = catalog;
  changed.apply(definition);
  database.run("SAVEPOINT definicao");
  try {
    std::visit(Definer(database, changed, text), definition);
    database.run("INSERT INTO " + std::string(catalogTable) + " (texto) VALUES (" + sqliteText(text) + ")");
    database.run("RELEASE definicao");
  } catch (const Error&) {
    database.run("ROLLBACK TO definicao");
    database.run("RELEASE definicao");
    throw;
  }
  catalog = std::move(changed);
}

}  // namespace fenvale::sql
