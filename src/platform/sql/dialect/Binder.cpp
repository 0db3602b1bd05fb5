#include "platform/sql/dialect/Binder.h"

#include <algorithm>

#include "platform/base/Error.h"
#include "platform/sql/dialect/BinderDetail.h"

namespace fenvale::sql {
namespace {

BoundSource bindTable(const std::string& name, BindContext& context) {
  BoundSource source;
  source.table = context.catalog.get(name);
  source.number = context.nextSource++;
  context.addTable(source.table->name);
  return source;
}

BoundSource bindSource(const FromSource& from, const Scope* outer, BindContext& context) {
  if (!from.select) return bindTable(from.table, context);
  BoundSource source;
  source.select = std::make_shared<const BoundSelect>(bindSelect(*from.select, outer, context));
  source.number = context.nextSource++;
  return source;
}

/// Every column of every source, in their order.
void addStar(BoundSelect& select) {
  for (const BoundSource& source : select.sources) {
    const std::size_t count = source.table ? source.table->columns.size() : source.select->columns.size();
    for (std::size_t column = 0; column < count; ++column) {
      BoundExpression value;
      value.operation = Operation::column;
      value.source = source.number;
      value.column = column;
      value.type = source.table ? valueTypeOf(source.table->columns[column].type.kind)
                                : source.select->columns[column].value.type;
      select.columns.push_back(
          {source.table ? source.table->columns[column].name : source.select->columns[column].name, std::move(value)});
    }
  }
}

/// The name under which the program asks for a column: its alias, else the bare name of the field, else a number.
std::string outputName(const SelectItem& item, std::size_t place) {
  if (!item.alias.empty()) return item.alias;
  if (const auto* name = dynamic_cast<const NameExpression*>(item.expression.get())) return name->column();
  return "Expr" + std::to_string(1000 + place);
}

/// Two output columns of one name are told apart by their tables.
void qualifyDoubles(BoundSelect& select, const std::vector<bool>& bareNames) {
  std::vector<std::size_t> doubled;
  for (std::size_t first = 0; first < select.columns.size(); ++first)
    for (std::size_t second = 0; second < select.columns.size(); ++second)
      if (first != second && bareNames[first] && bareNames[second] &&
          sameName(select.columns[first].name, select.columns[second].name)) {
        doubled.push_back(first);
        break;
      }
  for (const std::size_t column : doubled)
    for (const BoundSource& source : select.sources)
      if (source.table && source.number == select.columns[column].value.source)
        select.columns[column].name = source.table->name + "." + select.columns[column].name;
}

void bindFrom(const FromClause& from, const Scope* outer, BindContext& context, BoundSelect& select) {
  for (const FromClause::Join& join : from.joins) {
    select.sources.push_back(bindSource(join.source, outer, context));
    if (!join.condition) continue;
    const Scope scope{outer, &select.sources};
    ExpressionBinder(&scope, context).bindConditions(*join.condition, select.conditions);
  }
}

/// Groups come in the order of their keys, which a grouping by sorting gives and the position reports rest on.
void completeOrder(BoundSelect& select) {
  for (const BoundExpression& key : select.groupBy) select.orderBy.push_back({key, false});
}

void refuseAggregates(const std::vector<BoundExpression>& expressions, const char* where) {
  if (std::any_of(expressions.begin(), expressions.end(), hasAggregate))
    throw Error(errors::syntax, std::string("Uma função de agregação não pode estar em ") + where + ".");
}

BoundInsert bindInsert(const InsertStatement& insert, BindContext& context) {
  BoundInsert bound;
  bound.table = context.catalog.get(insert.table);
  context.addTable(bound.table->name);
  ExpressionBinder binder(nullptr, context);
  for (const Assignment& assignment : insert.assignments) {
    const std::size_t place = bound.table->find(assignment.column);
    if (place == TableDescription::none)
      throw Error(errors::syntax, "A tabela " + bound.table->name + " não tem o campo " + assignment.column + ".");
    const ColumnDefinition& column = bound.table->columns[place];
    for (const BoundAssignment& other : bound.assignments)
      if (other.column == column.name)
        throw Error(errors::syntax,
                    "O campo " + column.name + " aparece duas vezes na inclusão em " + bound.table->name + ".");
    bound.assignments.push_back({column.name, binder.bindAssignment(*assignment.value, *bound.table, column)});
  }
  return bound;
}

BoundUpdate bindUpdate(const UpdateStatement& update, BindContext& context) {
  BoundUpdate bound;
  bound.target = bindTable(update.table, context);
  const std::vector<BoundSource> sources{bound.target};
  const Scope scope{nullptr, &sources};
  ExpressionBinder binder(&scope, context);
  const TableDescription& table = *bound.target.table;
  for (const Assignment& assignment : update.assignments) {
    const std::size_t place = table.find(assignment.column);
    if (place == TableDescription::none)
      throw Error(errors::unknownColumn, "A tabela " + table.name + " não tem o campo " + assignment.column + ".");
    const ColumnDefinition& column = table.columns[place];
    bound.assignments.push_back({column.name, binder.bindAssignment(*assignment.value, table, column)});
  }
  if (update.where) binder.bindConditions(*update.where, bound.conditions);
  return bound;
}

BoundDelete bindDelete(const DeleteStatement& statement, BindContext& context) {
  BoundDelete bound;
  bound.target = bindTable(statement.table, context);
  const std::vector<BoundSource> sources{bound.target};
  const Scope scope{nullptr, &sources};
  if (statement.where) ExpressionBinder(&scope, context).bindConditions(*statement.where, bound.conditions);
  return bound;
}

BoundStatement finished(BindContext& context) {
  BoundStatement bound;
  bound.parameters = std::move(context.parameters);
  bound.literals = std::move(context.literals);
  bound.tables = std::move(context.tables);
  return bound;
}

}  // namespace

BoundSelect bindSelect(const SelectStatement& statement, const Scope* outer, BindContext& context) {
  BoundSelect select;
  bindFrom(statement.from, outer, context, select);
  refuseAggregates(select.conditions, "ON");
  const Scope scope{outer, &select.sources};
  ExpressionBinder binder(&scope, context);
  std::vector<bool> bareNames;
  for (const SelectItem& item : statement.items) {
    if (!item.expression) {
      addStar(select);
      bareNames.resize(select.columns.size(), true);
      continue;
    }
    BoundExpression value = binder.bind(*item.expression);
    bareNames.push_back(item.alias.empty() && value.operation == Operation::column);
    select.columns.push_back({outputName(item, select.columns.size()), std::move(value)});
  }
  qualifyDoubles(select, bareNames);
  if (statement.where) binder.bindConditions(*statement.where, select.conditions);
  refuseAggregates(select.conditions, "WHERE");
  for (const ExpressionPointer& key : statement.groupBy) select.groupBy.push_back(binder.bind(*key));
  refuseAggregates(select.groupBy, "GROUP BY");
  for (const OrderItem& item : statement.orderBy)
    select.orderBy.push_back({binder.bind(*item.expression), item.descending});
  select.aggregated = !select.groupBy.empty() ||
                      std::any_of(select.columns.begin(), select.columns.end(),
                                  [](const BoundSelect::Column& column) { return hasAggregate(column.value); });
  completeOrder(select);
  return select;
}

BoundStatement bind(const Statement& statement, const Catalog& catalog) {
  BindContext context{catalog, 1, {}, {}, {}};
  std::variant<BoundSelect, BoundInsert, BoundUpdate, BoundDelete> content;
  if (const auto* select = std::get_if<SelectStatement>(&statement)) {
    content = bindSelect(*select, nullptr, context);
  } else if (const auto* insert = std::get_if<InsertStatement>(&statement)) {
    content = bindInsert(*insert, context);
  } else if (const auto* update = std::get_if<UpdateStatement>(&statement)) {
    content = bindUpdate(*update, context);
  } else if (const auto* remove = std::get_if<DeleteStatement>(&statement)) {
    content = bindDelete(*remove, context);
  }
  BoundStatement bound = finished(context);
  bound.content = std::move(content);
  return bound;
}

BoundStatement bindCondition(const Expression& condition, std::shared_ptr<const TableDescription> table) {
  Catalog none;
  BindContext context{none, 1, {}, {}, {}};
  BoundDelete holder;
  holder.target.table = std::move(table);
  holder.target.number = context.nextSource++;
  const std::vector<BoundSource> sources{holder.target};
  const Scope scope{nullptr, &sources};
  ExpressionBinder(&scope, context).bindConditions(condition, holder.conditions);
  BoundStatement bound = finished(context);
  bound.content = std::move(holder);
  return bound;
}

}  // namespace fenvale::sql
