#include "platform/sql/dialect/Statement.h"

#include "platform/sql/dialect/Literals.h"

namespace fenvale::sql {
namespace {

/// Prints what `one` prints for each element, with commas between.
template <typename List, typename One>
void printList(Printer& printer, const List& list, One one) {
  bool first = true;
  for (const auto& element : list) {
    if (!first) printer << ", ";
    first = false;
    one(element);
  }
}

void printNames(Printer& printer, const std::vector<std::string>& names) {
  printer << " (";
  printList(printer, names, [&](const std::string& name) { printer.name(name); });
  printer << ")";
}

void printSource(Printer& printer, const FromSource& source) {
  if (!source.select) {
    printer.name(source.table);
    return;
  }
  printer << "(";
  print(*source.select, printer);
  printer << ")";
}

void printFrom(Printer& printer, const FromClause& from) {
  printer << " FROM ";
  for (std::size_t open = 2; open < from.joins.size(); ++open) printer << "(";
  for (std::size_t index = 0; index < from.joins.size(); ++index) {
    const FromClause::Join& join = from.joins[index];
    if (index > 0) printer << " INNER JOIN ";
    printSource(printer, join.source);
    if (join.condition) {
      printer << " ON ";
      printer.expression(*join.condition);
      if (index + 1 < from.joins.size()) printer << ")";
    }
  }
}

void printWhere(Printer& printer, const ExpressionPointer& where) {
  if (!where) return;
  printer << " WHERE ";
  printer.expression(*where);
}

void printAssignments(Printer& printer, const std::vector<Assignment>& assignments) {
  printList(printer, assignments, [&](const Assignment& assignment) {
    printer.name(assignment.column) << " = ";
    printer.expression(*assignment.value);
  });
}

void printConstraint(Printer& printer, const ConstraintDefinition& constraint) {
  if (!constraint.name.empty()) (printer << "CONSTRAINT ").name(constraint.name) << " ";
  if (constraint.kind != ConstraintDefinition::Kind::relation) {
    printer << (constraint.kind == ConstraintDefinition::Kind::primaryKey ? "PRIMARY KEY" : "UNIQUE");
    return printNames(printer, constraint.columns);
  }
  const RelationClause& relation = constraint.relation;
  printer << "FOREIGN KEY";
  printNames(printer, relation.columns);
  (printer << " REFERENCES ").name(relation.table);
  printNames(printer, relation.referencedColumns);
  if (relation.cascade) printer << " ON DELETE CASCADE";
  if (relation.unless) {
    printer << " UNLESS (";
    printer.expression(*relation.unless);
    printer << ") " << quotedText(relation.refusal);
  }
}

void printColumn(Printer& printer, const ColumnDefinition& column) {
  printer.name(column.name) << " " << describe(column.type) << (column.required ? " NOT NULL" : "");
}

struct StatementPrinter {
  Printer& printer;

  void operator()(const SelectStatement& select) const { print(select, printer); }

  void operator()(const InsertStatement& insert) const {
    (printer << "INSERT INTO ").name(insert.table) << " (";
    printList(printer, insert.assignments, [&](const Assignment& item) { printer.name(item.column); });
    printer << ") VALUES (";
    printList(printer, insert.assignments, [&](const Assignment& item) { printer.expression(*item.value); });
    printer << ")";
  }

  void operator()(const UpdateStatement& update) const {
    (printer << "UPDATE ").name(update.table) << " SET ";
    printAssignments(printer, update.assignments);
    printWhere(printer, update.where);
  }

  void operator()(const DeleteStatement& statement) const {
    (printer << "DELETE FROM ").name(statement.table);
    printWhere(printer, statement.where);
  }

  void operator()(const CreateTableStatement& create) const {
    (printer << "CREATE TABLE ").name(create.table) << " (";
    printList(printer, create.columns, [&](const ColumnDefinition& column) { printColumn(printer, column); });
    for (const ConstraintDefinition& constraint : create.constraints) {
      printer << ", ";
      printConstraint(printer, constraint);
    }
    printer << ")";
  }

  void operator()(const CreateIndexStatement& create) const {
    (printer << (create.unique ? "CREATE UNIQUE INDEX " : "CREATE INDEX ")).name(create.name) << " ON ";
    printer.name(create.table) << " (";
    printList(printer, create.columns, [&](const CreateIndexStatement::Column& column) {
      printer.name(column.name) << (column.descending ? " DESC" : "");
    });
    printer << ")";
    printWhere(printer, create.where);
  }

  void operator()(const AddColumnStatement& alter) const {
    (printer << "ALTER TABLE ").name(alter.table) << " ADD COLUMN ";
    printColumn(printer, alter.column);
    for (const ConstraintDefinition& constraint : alter.constraints) printColumnConstraint(constraint);
  }

  void operator()(const AddConstraintStatement& alter) const {
    (printer << "ALTER TABLE ").name(alter.table) << " ADD ";
    printConstraint(printer, alter.constraint);
  }

  /// Behind a column its constraint leaves the column's name out.
  void printColumnConstraint(const ConstraintDefinition& constraint) const {
    printer << " ";
    if (!constraint.name.empty()) (printer << "CONSTRAINT ").name(constraint.name) << " ";
    switch (constraint.kind) {
      case ConstraintDefinition::Kind::primaryKey:
        printer << "PRIMARY KEY";
        break;
      case ConstraintDefinition::Kind::unique:
        printer << "UNIQUE";
        break;
      case ConstraintDefinition::Kind::relation:
        (printer << "REFERENCES ").name(constraint.relation.table);
        printNames(printer, constraint.relation.referencedColumns);
        if (constraint.relation.cascade) printer << " ON DELETE CASCADE";
        break;
    }
  }
};

}  // namespace

void print(const SelectStatement& select, Printer& printer) {
  printer << "SELECT ";
  printList(printer, select.items, [&](const SelectItem& item) {
    if (!item.expression) {
      printer << "*";
      return;
    }
    printer.expression(*item.expression);
    if (!item.alias.empty()) (printer << " AS ").name(item.alias);
  });
  if (!select.from.joins.empty()) printFrom(printer, select.from);
  printWhere(printer, select.where);
  if (!select.groupBy.empty()) {
    printer << " GROUP BY ";
    printList(printer, select.groupBy, [&](const ExpressionPointer& key) { printer.expression(*key); });
  }
  if (!select.orderBy.empty()) {
    printer << " ORDER BY ";
    printList(printer, select.orderBy,
              [&](const OrderItem& item) { printer.expression(*item.expression) << (item.descending ? " DESC" : ""); });
  }
}

std::string print(const Statement& statement, Parentheses parentheses) {
  Printer printer(parentheses);
  std::visit(StatementPrinter{printer}, statement);
  return printer.text();
}

bool equal(const Statement& first, const Statement& second) {
  return print(first, Parentheses::all) == print(second, Parentheses::all);
}

}  // namespace fenvale::sql
