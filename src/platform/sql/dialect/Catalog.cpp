#include "platform/sql/dialect/Catalog.h"

#include <algorithm>

#include "platform/base/Error.h"
#include "platform/base/Text.h"
#include "platform/sql/dialect/Parser.h"

namespace fenvale::sql {
namespace {

constexpr char lowerOf(char letter) { return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + 32) : letter; }

std::string keyOf(std::string_view name) {
  std::string key(name);
  std::transform(key.begin(), key.end(), key.begin(), lowerOf);
  return key;
}

void requireColumn(const TableDescription& table, std::string_view column) {
  if (table.find(column) == TableDescription::none)
    throw Error(errors::unknownColumn, "A tabela " + table.name + " não tem o campo " + std::string(column) + ".");
}

std::string joined(const std::vector<std::string>& names) {
  std::string text;
  for (const std::string& name : names) text += (text.empty() ? "" : "_") + name;
  return text;
}

bool hasIndex(const TableDescription& table, std::string_view name) {
  return std::any_of(table.indexes.begin(), table.indexes.end(),
                     [&](const IndexDescription& index) { return sameName(index.name, name); });
}

void addIndex(TableDescription& table, IndexDescription index) {
  for (const auto& column : index.columns) requireColumn(table, column.name);
  if (hasIndex(table, index.name))
    throw Error(errors::syntax, "O índice " + index.name + " já existe na tabela " + table.name + ".");
  table.indexes.push_back(std::move(index));
}

std::vector<CreateIndexStatement::Column> ascending(const std::vector<std::string>& names) {
  std::vector<CreateIndexStatement::Column> columns;
  columns.reserve(names.size());
  for (const std::string& name : names) columns.push_back({name, false});
  return columns;
}

}  // namespace

bool sameName(std::string_view first, std::string_view second) {
  return first.size() == second.size() &&
         std::equal(first.begin(), first.end(), second.begin(),
                    [](char left, char right) { return lowerOf(left) == lowerOf(right); });
}

std::size_t TableDescription::find(std::string_view column) const {
  for (std::size_t index = 0; index < columns.size(); ++index)
    if (sameName(columns[index].name, column)) return index;
  return none;
}

std::size_t TableDescription::counter() const {
  for (std::size_t index = 0; index < columns.size(); ++index)
    if (columns[index].type.kind == ColumnKind::counter) return index;
  return none;
}

bool TableDescription::hasPrimaryKey() const {
  return std::any_of(indexes.begin(), indexes.end(), [](const IndexDescription& index) { return index.primary; });
}

bool TableDescription::isUnique(std::string_view column) const {
  const std::size_t place = find(column);
  if (place != none && place == counter()) return true;
  return std::any_of(indexes.begin(), indexes.end(), [&](const IndexDescription& index) {
    return index.unique && !index.partial && index.columns.size() == 1 && sameName(index.columns[0].name, column);
  });
}

std::shared_ptr<const TableDescription> Catalog::find(std::string_view table) const {
  const auto found = tables_.find(keyOf(table));
  return found == tables_.end() ? nullptr : found->second;
}

std::shared_ptr<const TableDescription> Catalog::get(std::string_view table) const {
  if (auto found = find(table)) return found;
  throw Error(errors::unknownTable, "A tabela " + std::string(table) + " não existe.");
}

std::vector<std::string> Catalog::tableNames() const {
  std::vector<std::string> names;
  for (const auto& [key, table] : tables_) names.push_back(table->name);
  return names;
}

void Catalog::put(TableDescription table) {
  std::string key = keyOf(table.name);
  tables_[std::move(key)] = std::make_shared<const TableDescription>(std::move(table));
}

void Catalog::apply(const Statement& definition) {
  if (const auto* table = std::get_if<CreateTableStatement>(&definition)) define(*table);
  if (const auto* index = std::get_if<CreateIndexStatement>(&definition)) define(*index);
  if (const auto* column = std::get_if<AddColumnStatement>(&definition)) define(*column);
  if (const auto* constraint = std::get_if<AddConstraintStatement>(&definition)) define(*constraint);
}

void Catalog::define(const CreateTableStatement& create) {
  if (find(create.table)) throw Error(errors::syntax, "A tabela " + create.table + " já existe.");
  TableDescription table;
  table.name = create.table;
  for (const ColumnDefinition& column : create.columns) {
    if (table.find(column.name) != TableDescription::none)
      throw Error(errors::syntax, "O campo " + column.name + " aparece duas vezes na tabela " + table.name + ".");
    if (column.type.kind == ColumnKind::counter && table.counter() != TableDescription::none)
      throw Error(errors::syntax, "A tabela " + table.name + " tem mais de um campo de numeração automática.");
    table.columns.push_back(column);
  }
  for (const ConstraintDefinition& constraint : create.constraints) addConstraint(table, constraint);
  put(std::move(table));
}

void Catalog::define(const CreateIndexStatement& create) {
  TableDescription table = *get(create.table);
  addIndex(table, {create.name, create.columns, create.unique, false, create.where != nullptr});
  put(std::move(table));
}

void Catalog::define(const AddColumnStatement& alter) {
  TableDescription table = *get(alter.table);
  if (table.find(alter.column.name) != TableDescription::none)
    throw Error(errors::columnExists, "A tabela " + table.name + " já tem o campo " + alter.column.name + ".");
  if (alter.column.type.kind == ColumnKind::counter)
    throw Error(errors::syntax, "Um campo de numeração automática só pode nascer com a tabela " + table.name + ".");
  table.columns.push_back(alter.column);
  for (const ConstraintDefinition& constraint : alter.constraints) addConstraint(table, constraint);
  put(std::move(table));
}

void Catalog::define(const AddConstraintStatement& alter) {
  TableDescription table = *get(alter.table);
  addConstraint(table, alter.constraint);
  put(std::move(table));
}

void Catalog::addConstraint(TableDescription& table, const ConstraintDefinition& constraint) const {
  if (constraint.kind == ConstraintDefinition::Kind::relation) return addRelation(table, constraint);
  const bool primary = constraint.kind == ConstraintDefinition::Kind::primaryKey;
  if (primary && table.hasPrimaryKey())
    throw Error(errors::refused, "A tabela " + table.name + " já tem uma chave primária.");
  const std::string name = !constraint.name.empty() ? constraint.name
                           : primary                ? "PK_" + table.name
                                                    : "UX_" + table.name + "_" + joined(constraint.columns);
  addIndex(table, {name, ascending(constraint.columns), true, primary, false});
  if (!primary) return;
  for (const std::string& column : constraint.columns) table.columns[table.find(column)].required = true;
}

void Catalog::addRelation(TableDescription& table, const ConstraintDefinition& constraint) const {
  const RelationClause& clause = constraint.relation;
  RelationDescription relation{constraint.name, clause.columns,    clause.table,  clause.referencedColumns,
                               clause.cascade,  clause.unlessText, clause.refusal};
  if (relation.name.empty()) relation.name = "FK_" + table.name + "_" + joined(clause.columns);
  for (const RelationDescription& other : table.relations)
    if (sameName(other.name, relation.name))
      throw Error(errors::syntax, "A relação " + relation.name + " já existe na tabela " + table.name + ".");
  for (const std::string& column : relation.columns) requireColumn(table, column);

  const auto stored = sameName(clause.table, table.name) ? nullptr : get(clause.table);
  const TableDescription& referenced = stored ? *stored : table;
  relation.referencedTable = referenced.name;
  if (relation.referencedColumns.empty()) {
    for (const IndexDescription& index : referenced.indexes)
      if (index.primary)
        for (const auto& column : index.columns) relation.referencedColumns.push_back(column.name);
  }
  for (const std::string& column : relation.referencedColumns) requireColumn(referenced, column);
  const bool unique = relation.referencedColumns.size() == 1 && referenced.isUnique(relation.referencedColumns[0]);
  if (relation.columns.size() != 1 || !unique)
    throw Error(errors::refused,
                "A relação " + relation.name + " não aponta para uma chave de " + referenced.name + ".");
  table.relations.push_back(std::move(relation));
}

bool isDefinition(const Statement& statement) { return statement.index() >= 4; }

}  // namespace fenvale::sql
