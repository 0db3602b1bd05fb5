#include "platform/sql/sqlite/Failures.h"

#include <sqlite3.h>

#include <string>

#include "platform/base/Error.h"

namespace fenvale::sql {
namespace {

/// SQLite names the columns behind its sentence: "UNIQUE constraint failed: Clientes.lCodigoInf".
std::string columnsOf(const std::string& message) {
  const std::size_t place = message.rfind(": ");
  return place == std::string::npos ? message : message.substr(place + 2);
}

[[noreturn]] void refuse(int extended, const std::string& message) {
  switch (extended) {
    case SQLITE_CONSTRAINT_UNIQUE:
    case SQLITE_CONSTRAINT_PRIMARYKEY:
    case SQLITE_CONSTRAINT_ROWID:
      throw Error(errors::refused, "Já existe um registro com o mesmo valor em " + columnsOf(message) + ".");
    case SQLITE_CONSTRAINT_NOTNULL:
      throw Error(errors::refused, "O campo " + columnsOf(message) + " não pode ficar sem valor.");
    case SQLITE_CONSTRAINT_FOREIGNKEY:
      throw Error(errors::refused, "O registro está em uso por outro registro ou aponta para um que não existe.");
    default:
      throw Error(errors::refused, message);  // a rule of the store, in the store's own words
  }
}

}  // namespace

void fail(sqlite3* database, int code) {
  const std::string message = database == nullptr ? "" : sqlite3_errmsg(database);
  switch (code & 0xFF) {
    case SQLITE_CONSTRAINT:
      refuse(code > 0xFF ? code : sqlite3_extended_errcode(database), message);
    case SQLITE_NOTADB:
      throw Error(errors::fileNotStore, "O arquivo não é um banco de dados do programa.");
    case SQLITE_CORRUPT:
      throw Error(errors::storeDamaged, "O banco de dados está danificado.");
    case SQLITE_READONLY:
      throw Error(errors::storeReadOnly, "O banco de dados só pode ser lido, não gravado.");
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      throw Error(errors::storeLocked, "O banco de dados está em uso por outro programa.");
    case SQLITE_FULL:
      throw Error(errors::diskFull, "O disco está cheio: nada foi gravado.");
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
    case SQLITE_AUTH:
      throw Error(errors::storeNotOpened, "O banco de dados não pode ser aberto.");
    case SQLITE_IOERR:
      throw Error(errors::storeNotOpened, "O banco de dados não pode ser lido ou gravado no disco.");
    case SQLITE_NOMEM:
      throw Error(errors::storeNotOpened, "A memória acabou.");
    case SQLITE_TOOBIG:
      throw Error(errors::valueOutOfRange, "O valor é grande demais para o banco de dados.");
    default:
      throw Error(errors::syntax, "O comando não pode ser executado: " + message + ".");
  }
}

}  // namespace fenvale::sql
