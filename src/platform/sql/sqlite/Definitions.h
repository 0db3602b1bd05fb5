#pragma once
// Definitions of tables, indexes and relations, carried out on SQLite and kept in the catalogue.

#include "platform/sql/dialect/Catalog.h"

namespace fenvale::sql {

class Database;

/// The catalogue as the store's own table tells it.
Catalog readCatalog(const Database& database);

/// Carries out one definition and adds it to `catalog`; all or nothing, inside an open transaction or one of its own.
void define(Database& database, Catalog& catalog, const Statement& definition);

}  // namespace fenvale::sql
