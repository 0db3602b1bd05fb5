#include "platform/sql/sqlite/KeyPlan.h"

#include <algorithm>
#include <set>

#include "platform/sql/dialect/Catalog.h"

namespace fenvale::sql {
namespace {

using SourceNumbers = std::set<std::size_t>;

void collectSources(const BoundSelect& select, SourceNumbers& numbers);

void collectSources(const BoundExpression& expression, SourceNumbers& numbers) {
  if (expression.operation == Operation::column) numbers.insert(expression.source);
  if (expression.select) collectSources(*expression.select, numbers);
  for (const BoundExpression& operand : expression.operands) collectSources(operand, numbers);
}

void collectSources(const BoundSelect& select, SourceNumbers& numbers) {
  for (const auto& column : select.columns) collectSources(column.value, numbers);
  for (const BoundExpression& condition : select.conditions) collectSources(condition, numbers);
  for (const BoundExpression& key : select.groupBy) collectSources(key, numbers);
  for (const BoundOrder& order : select.orderBy) collectSources(order.expression, numbers);
  for (const BoundSource& source : select.sources)
    if (source.select) collectSources(*source.select, numbers);
}

/// One table's unique column equals a column of another: the second's row determines the first's.
struct Link {
  std::size_t condition;
  std::size_t determined;  ///< places in the FROM
  std::size_t by;
  bool losesNoRow;  ///< an enforced relation from a required column: the determined row is always there
};

const TableDescription& tableOf(const BoundSelect& select, std::size_t place) { return *select.sources[place].table; }

std::size_t placeOf(const BoundSelect& select, std::size_t number) {
  for (std::size_t place = 0; place < select.sources.size(); ++place)
    if (select.sources[place].number == number) return place;
  return select.sources.size();
}

bool enforced(const TableDescription& from, const ColumnDefinition& column, const TableDescription& to,
              std::string_view key) {
  return column.required && std::any_of(from.relations.begin(), from.relations.end(), [&](const auto& relation) {
           return sameName(relation.columns[0], column.name) && sameName(relation.referencedTable, to.name) &&
                  sameName(relation.referencedColumns[0], key);
         });
}

void addLink(const BoundSelect& select, std::size_t condition, const BoundExpression& key, const BoundExpression& by,
             std::vector<Link>& links) {
  const std::size_t determined = placeOf(select, key.source);
  const std::size_t from = placeOf(select, by.source);
  if (determined == from || determined >= select.sources.size() || from >= select.sources.size()) return;
  const TableDescription& target = tableOf(select, determined);
  const std::string& keyName = target.columns[key.column].name;
  if (!target.isUnique(keyName)) return;
  const TableDescription& origin = tableOf(select, from);
  links.push_back({condition, determined, from, enforced(origin, origin.columns[by.column], target, keyName)});
}

std::vector<Link> linksOf(const BoundSelect& select) {
  std::vector<Link> links;
  for (std::size_t index = 0; index < select.conditions.size(); ++index) {
    const BoundExpression& condition = select.conditions[index];
    if (condition.operation != Operation::equal) continue;
    const BoundExpression& left = condition.operands[0];
    const BoundExpression& right = condition.operands[1];
    if (left.operation != Operation::column || right.operation != Operation::column) continue;
    addLink(select, index, left, right, links);
    addLink(select, index, right, left, links);
  }
  return links;
}

/// The links by which every other source is determined from `driver`, in that order; nothing when one is not.
std::optional<std::vector<Link>> chainFrom(std::size_t driver, const BoundSelect& select,
                                           const std::vector<Link>& links) {
  std::vector<bool> known(select.sources.size(), false);
  known[driver] = true;
  std::vector<Link> chain;
  for (bool found = true; found;) {
    found = false;
    for (const Link& link : links) {
      if (!known[link.by] || known[link.determined]) continue;
      known[link.determined] = found = true;
      chain.push_back(link);
    }
  }
  if (!std::all_of(known.begin(), known.end(), [](bool one) { return one; })) return std::nullopt;
  return chain;
}

BoundExpression keyOf(const BoundSource& source) {
  BoundExpression key;
  key.operation = Operation::column;
  key.type = ValueType::integer;
  key.source = source.number;
  key.column = source.table->counter();
  return key;
}

/// Takes the sources away that nothing but a join without loss needs, from the end of the chain.
void prune(BoundSelect& select, std::vector<Link> chain, const SourceNumbers& orderSources) {
  std::vector<bool> gone(select.conditions.size(), false);
  SourceNumbers left;
  for (const BoundSource& source : select.sources) left.insert(source.number);
  for (auto link = chain.rbegin(); link != chain.rend(); ++link) {
    const std::size_t number = select.sources[link->determined].number;
    if (!link->losesNoRow || orderSources.contains(number)) continue;
    SourceNumbers used;
    for (std::size_t index = 0; index < select.conditions.size(); ++index)
      if (index != link->condition && !gone[index]) collectSources(select.conditions[index], used);
    if (used.contains(number)) continue;
    gone[link->condition] = true;
    left.erase(number);
  }
  std::vector<BoundExpression> conditions;
  for (std::size_t index = 0; index < select.conditions.size(); ++index)
    if (!gone[index]) conditions.push_back(std::move(select.conditions[index]));
  select.conditions = std::move(conditions);
  std::erase_if(select.sources, [&](const BoundSource& source) { return !left.contains(source.number); });
}

/// The lookup that answers a subselect for one value by the unique column of one table; nothing for any other.
std::optional<BoundSelect::Lookup> lookupOf(const BoundExpression& value) {
  if (value.operation != Operation::subselect) return std::nullopt;
  const BoundSelect& select = *value.select;
  if (select.sources.size() != 1 || !select.sources[0].table || select.conditions.size() != 1 || select.aggregated ||
      select.columns[0].value.operation != Operation::column)
    return std::nullopt;
  const BoundSource& source = select.sources[0];
  const BoundExpression& condition = select.conditions[0];
  if (condition.operation != Operation::equal) return std::nullopt;
  const auto isColumn = [](const BoundExpression& side) { return side.operation == Operation::column; };
  const auto isOwn = [&](const BoundExpression& side) { return side.source == source.number; };
  const BoundExpression& left = condition.operands[0];
  const BoundExpression& right = condition.operands[1];
  if (!isColumn(left) || !isColumn(right) || isOwn(left) == isOwn(right) || !isOwn(select.columns[0].value))
    return std::nullopt;
  if (!source.table->isUnique(source.table->columns[(isOwn(left) ? left : right).column].name)) return std::nullopt;
  return BoundSelect::Lookup{source, condition};
}

bool sameColumn(const BoundExpression& first, const BoundExpression& second) {
  return first.source == second.source && first.column == second.column;
}

/// Whether two lookups find the same row: the same columns on both sides, but for the number of their own source.
bool sameRow(const BoundSelect::Lookup& first, BoundSelect::Lookup second) {
  if (first.source.table != second.source.table) return false;
  for (BoundExpression& side : second.condition.operands)
    if (side.source == second.source.number) side.source = first.source.number;
  const auto& mine = first.condition.operands;
  const auto& theirs = second.condition.operands;
  return (sameColumn(mine[0], theirs[0]) && sameColumn(mine[1], theirs[1])) ||
         (sameColumn(mine[0], theirs[1]) && sameColumn(mine[1], theirs[0]));
}

/// Values that are looked up one by one, as a city's name and its state, become columns of one lookup.
void gatherLookups(BoundSelect& row) {
  for (BoundSelect::Column& column : row.columns) {
    std::optional<BoundSelect::Lookup> lookup = lookupOf(column.value);
    if (!lookup) continue;
    const auto known = std::find_if(row.lookups.begin(), row.lookups.end(),
                                    [&](const BoundSelect::Lookup& one) { return sameRow(one, *lookup); });
    BoundExpression value = column.value.select->columns[0].value;
    value.source = known == row.lookups.end() ? lookup->source.number : known->source.number;
    if (known == row.lookups.end()) row.lookups.push_back(std::move(*lookup));
    column.value = std::move(value);
  }
}

}  // namespace

std::optional<KeyPlan> planKeys(const BoundSelect& select, std::size_t parameters) {
  if (select.aggregated || select.sources.empty()) return std::nullopt;
  for (const BoundSource& source : select.sources)
    if (!source.table) return std::nullopt;

  const std::vector<Link> links = linksOf(select);
  std::optional<std::vector<Link>> chain;
  std::size_t driver = 0;
  for (; driver < select.sources.size() && !chain; ++driver)
    if (tableOf(select, driver).counter() != TableDescription::none) chain = chainFrom(driver, select, links);
  if (!chain) return std::nullopt;
  --driver;
  const BoundExpression key = keyOf(select.sources[driver]);

  KeyPlan plan;
  plan.keys = select;
  plan.keys.columns = {{"key", key}};
  // Without an order of its own a select comes in the order of its first table's keys.
  if (plan.keys.orderBy.empty() && tableOf(select, 0).counter() != TableDescription::none)
    plan.keys.orderBy.push_back({keyOf(select.sources[0]), false});
  if (plan.keys.orderBy.empty()) return std::nullopt;
  plan.keys.orderBy.push_back({key, false});  // ties have one sequence, however the rows are searched for
  SourceNumbers orderSources;
  for (const BoundOrder& order : plan.keys.orderBy) collectSources(order.expression, orderSources);
  prune(plan.keys, *chain, orderSources);

  plan.count = select;
  plan.count.orderBy.clear();
  BoundExpression rows;
  rows.operation = Operation::countRows;
  rows.type = ValueType::integer;
  plan.count.columns = {{"rows", rows}};
  plan.count.aggregated = true;
  prune(plan.count, *chain, {key.source});

  plan.row = select;
  plan.row.orderBy.clear();
  plan.row.aggregated = true;  // one row needs no order
  plan.row.conditions.clear();
  for (const Link& link : *chain) plan.row.conditions.push_back(select.conditions[link.condition]);
  BoundExpression parameter;
  parameter.operation = Operation::parameter;
  parameter.type = ValueType::integer;
  parameter.source = parameters;
  BoundExpression isKey;
  isKey.operation = Operation::equal;
  isKey.type = ValueType::boolean;
  isKey.operands = {key, parameter};
  plan.row.conditions.push_back(std::move(isKey));
  gatherLookups(plan.row);
  plan.rowIsKey = std::all_of(select.columns.begin(), select.columns.end(), [&](const BoundSelect::Column& column) {
    return column.value.operation == Operation::column && column.value.source == key.source &&
           column.value.column == key.column;
  });
  return plan;
}

}  // namespace fenvale::sql
