#include "platform/sql/sqlite/Definitions.h"

#include "platform/sql/dialect/Binder.h"
#include "platform/sql/dialect/Parser.h"
#include "platform/sql/dialect/StoredValue.h"
#include "platform/sql/sqlite/Database.h"
#include "platform/sql/sqlite/Emitter.h"

namespace fenvale::sql {
namespace {

std::string columnText(const ColumnDefinition& column) {
  std::string text = sqliteName(column.name);
  switch (column.type.kind) {
    case ColumnKind::counter:
      return text + " INTEGER PRIMARY KEY AUTOINCREMENT";
    case ColumnKind::boolean:
      return text + " INT NOT NULL DEFAULT 0";
    case ColumnKind::date:
      text += " TEXT";
      break;
    case ColumnKind::text:
    case ColumnKind::memo:
      (text += " TEXT COLLATE ") += collationName;
      break;
    // Not "INTEGER": SQLite would take a key of that type for its own row number and fill in what is missing.
    default:
      text += " INT";
  }
  return column.required ? text + " NOT NULL" : text;
}

std::string nameList(const std::vector<std::string>& names) {
  std::string list;
  for (const std::string& name : names) list += (list.empty() ? "" : ", ") + sqliteName(name);
  return "(" + list + ")";
}

std::string relationText(const RelationDescription& relation) {
  return "CONSTRAINT " + sqliteName(relation.name) + " FOREIGN KEY " + nameList(relation.columns) + " REFERENCES " +
         sqliteName(relation.referencedTable) + " " + nameList(relation.referencedColumns) +
         (relation.cascade ? " ON DELETE CASCADE" : "");
}

std::string tableText(const TableDescription& table) {
  std::string text = "CREATE TABLE " + sqliteName(table.name) + " (";
  for (std::size_t index = 0; index < table.columns.size(); ++index)
    text += (index > 0 ? ", " : "") + columnText(table.columns[index]);
  for (const RelationDescription& relation : table.relations) text += ", " + relationText(relation);
  return text + ")";
}

/// A condition as SQLite text. In a definition nothing is bound: every literal is written out.
std::string conditionText(const std::string& condition, const std::shared_ptr<const TableDescription>& table) {
  const ExpressionPointer tree = parseCondition(condition);
  const BoundStatement bound = bindCondition(*tree, table);
  const auto& holder = std::get<BoundDelete>(bound.content);
  SqliteEmitter emitter([&](std::size_t place) -> std::string {
    const Parameter& parameter = bound.parameters[place];
    if (parameter.origin != Parameter::Origin::literal)
      throw Error(errors::syntax, "Uma definição não pode depender do dia.");
    const TokenKind kind = parameter.type == ValueType::date ? TokenKind::Date : TokenKind::Text;
    const StoredValue value = supply(parameter, kind, bound.literals[parameter.literal].text);
    if (const auto* whole = std::get_if<std::int64_t>(&value)) return std::to_string(*whole);
    if (const auto* text = std::get_if<std::string>(&value)) return sqliteText(*text);
    return Value::decimal(std::get<double>(value)).toText();
  });
  return emitter.emitCondition(holder.conditions, holder.target, "");
}

/// The index by its table's name and its own: SQLite's indexes share one room of names.
std::string indexName(const TableDescription& table, const std::string& name) {
  return sqliteName(table.name + "." + name);
}

std::string indexText(const TableDescription& table, const IndexDescription& index) {
  std::string list;
  for (const auto& column : index.columns)
    list += (list.empty() ? "" : ", ") + sqliteName(column.name) + (column.descending ? " DESC" : "");
  return (index.unique ? "CREATE UNIQUE INDEX " : "CREATE INDEX ") + indexName(table, index.name) + " ON " +
         sqliteName(table.name) + " (" + list + ")";
}

class Definer {
 public:
  Definer(Database& database, const Catalog& before, const Catalog& after)
      : database_(database), before_(before), after_(after) {}

  void operator()(const CreateTableStatement& create) {
    const auto table = after_.get(create.table);
    execute(*table, tableText(*table));
    makeIndexes(*table, 0);
    makeRules(table, 0);
  }

  void operator()(const CreateIndexStatement& create) {
    const auto table = after_.get(create.table);
    std::string condition;
    if (create.where) {
      Printer printer;
      printer.expression(*create.where);
      condition = " WHERE " + conditionText(printer.text(), table);
    }
    execute(*table, indexText(*table, table->indexes.back()) + condition);
  }

  void operator()(const AddColumnStatement& alter) {
    const auto table = after_.get(alter.table);
    const auto former = before_.get(alter.table);
    const ColumnDefinition& column = table->columns.back();
    refuseIf(column.required, *table, "SELECT EXISTS (SELECT 1 FROM " + sqliteName(table->name) + ")",
             "O campo " + column.name + " de " + table->name + " não pode ficar vazio nos registros existentes.");
    execute(*table, "ALTER TABLE " + sqliteName(table->name) + " ADD COLUMN " + columnText(column));
    if (table->relations.size() > former->relations.size()) rewrite(*table);
    makeIndexes(*table, former->indexes.size());
    makeRules(table, former->relations.size());
  }

  void operator()(const AddConstraintStatement& alter) {
    const auto table = after_.get(alter.table);
    const auto former = before_.get(alter.table);
    if (alter.constraint.kind == ConstraintDefinition::Kind::relation) {
      const RelationDescription& relation = table->relations.back();
      const std::string reference = sqliteName(relation.columns[0]);
      refuseIf(true, *table,
               "SELECT EXISTS (SELECT 1 FROM " + sqliteName(table->name) + " AS t WHERE t." + reference +
                   " IS NOT NULL AND NOT EXISTS (SELECT 1 FROM " + sqliteName(relation.referencedTable) +
                   " AS r WHERE r." + sqliteName(relation.referencedColumns[0]) + " = t." + reference + "))",
               "A tabela " + table->name + " tem registros que apontam para registros que não existem.");
    } else if (alter.constraint.kind == ConstraintDefinition::Kind::primaryKey) {
      for (const std::string& column : alter.constraint.columns)
        refuseIf(
            true, *table,
            "SELECT EXISTS (SELECT 1 FROM " + sqliteName(table->name) + " WHERE " + sqliteName(column) + " IS NULL)",
            "O campo " + column + " de " + table->name + " está vazio em algum registro.");
    }
    rewrite(*table);
    makeIndexes(*table, former->indexes.size());
    makeRules(table, former->relations.size());
  }

  template <typename Other>
  void operator()(const Other&) {}

 private:
  void execute(const TableDescription& table, const std::string& text) {
    database_.speakOf(table.name, false);
    database_.run(text);
  }

  void refuseIf(bool asked, const TableDescription&, const std::string& query, const std::string& refusal) {
    if (asked && database_.number(query) != 0) throw Error(errors::refused, refusal);
  }

  void makeIndexes(const TableDescription& table, std::size_t first) {
    for (std::size_t place = first; place < table.indexes.size(); ++place) {
      const IndexDescription& index = table.indexes[place];
      const std::size_t counter = table.counter();
      const bool own = index.primary && index.columns.size() == 1 && counter != TableDescription::none &&
                       sameName(index.columns[0].name, table.columns[counter].name);
      if (!own) execute(table, indexText(table, index));
    }
  }

  /// What a relation refuses although it would take the rows along.
  void makeRules(const std::shared_ptr<const TableDescription>& table, std::size_t first) {
    for (std::size_t place = first; place < table->relations.size(); ++place) {
      const RelationDescription& relation = table->relations[place];
      if (relation.unless.empty()) continue;
      execute(*table, "CREATE TRIGGER " + indexName(*table, relation.name) + " BEFORE DELETE ON " +
                          sqliteName(relation.referencedTable) + " WHEN EXISTS (SELECT 1 FROM " +
                          sqliteName(table->name) + " WHERE " + sqliteName(relation.columns[0]) + " = OLD." +
                          sqliteName(relation.referencedColumns[0]) + " AND " + conditionText(relation.unless, table) +
                          ") BEGIN SELECT RAISE(ABORT, " + sqliteText(relation.refusal) + "); END");
    }
  }

  /// A constraint added to a table changes its description and no row: SQLite has no statement for that, but lets the
  /// description be written anew.
  void rewrite(const TableDescription& table) {
    const std::int64_t version = database_.number("PRAGMA schema_version");
    execute(table, "PRAGMA writable_schema = ON");
    try {
      execute(table, "UPDATE sqlite_schema SET sql = " + sqliteText(tableText(table)) +
                         " WHERE type = 'table' AND name = " + sqliteText(table.name));
      execute(table, "PRAGMA schema_version = " + std::to_string(version + 1));
    } catch (const Error&) {
      database_.runQuietly("PRAGMA writable_schema = OFF");
      throw;
    }
    execute(table, "PRAGMA writable_schema = RESET");
  }

  Database& database_;
  const Catalog& before_;
  const Catalog& after_;
};

}  // namespace

Catalog readCatalog(const Database& database) {
  Catalog catalog;
  for (const std::string& text : database.texts("SELECT texto FROM " + std::string(catalogTable) + " ORDER BY ordem"))
    catalog.apply(parse(text));
  return catalog;
}

void define(Database& database, Catalog& catalog, const Statement& definition) {
  Catalog changed = catalog;
  changed.apply(definition);
  // The store's own lock before the first step, so that what was found is what is changed.
  const bool whole = !database.inTransaction();
  database.run(whole ? "BEGIN IMMEDIATE" : "SAVEPOINT definicao");
  try {
    std::visit(Definer(database, catalog, changed), definition);
    database.run("INSERT INTO " + std::string(catalogTable) + " (texto) VALUES (" + sqliteText(print(definition)) +
                 ")");
    database.run(whole ? "COMMIT" : "RELEASE definicao");
  } catch (const Error&) {
    database.runQuietly(whole ? "ROLLBACK" : "ROLLBACK TO definicao; RELEASE definicao");
    throw;
  }
  catalog = std::move(changed);
}

}  // namespace fenvale::sql
