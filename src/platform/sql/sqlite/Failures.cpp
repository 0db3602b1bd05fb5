#include "platform/sql/sqlite/Failures.h"

#include <sqlite3.h>

#include <string_view>
#include <vector>

namespace fenvale::sql {
namespace {

constexpr std::int32_t outOfMemory = 7;

/// "T.a, T.b" of "UNIQUE constraint failed: T.a, T.b" as its column names.
std::vector<std::string> columnsOf(std::string_view message) {
  std::vector<std::string> columns;
  std::size_t place = message.find(": ");
  while (place != std::string_view::npos) {
    place += 2;
    const std::size_t end = message.find(", ", place);
    const std::string_view field = message.substr(place, end == std::string_view::npos ? end : end - place);
    const std::size_t point = field.rfind('.');
    columns.emplace_back(point == std::string_view::npos ? field : field.substr(point + 1));
    place = end;
  }
  return columns;
}

std::string listed(const std::vector<std::string>& names) {
  std::string text;
  for (std::size_t index = 0; index < names.size(); ++index)
    text += (index == 0 ? "" : index + 1 < names.size() ? ", " : " e ") + names[index];
  return text;
}

Error constraint(int code, const std::string& message, const FailureContext& context) {
  switch (code) {
    case SQLITE_CONSTRAINT_UNIQUE:
    case SQLITE_CONSTRAINT_PRIMARYKEY:
    case SQLITE_CONSTRAINT_ROWID:
      return {errors::refused, "Já existe um registro em " + context.table + " com o mesmo valor de " +
                                   listed(columnsOf(message)) + "."};
    case SQLITE_CONSTRAINT_NOTNULL:
      return {errors::refused,
              "O campo " + listed(columnsOf(message)) + " de " + context.table + " não pode ficar vazio."};
    case SQLITE_CONSTRAINT_FOREIGNKEY:
      return {errors::refused, context.deletes
                                   ? "O registro de " + context.table + " está em uso por outros registros."
                                   : "O registro de " + context.table + " aponta para um registro que não existe."};
    case SQLITE_CONSTRAINT_TRIGGER:
      return {errors::refused, message};  // the refusal that the script gives
    default:
      return {errors::refused, "O registro de " + context.table + " foi recusado."};
  }
}

Error inputOutput(int code, const FailureContext& context) {
  switch (code) {
    case SQLITE_IOERR_LOCK:
    case SQLITE_IOERR_RDLOCK:
    case SQLITE_IOERR_BLOCKED:
    case SQLITE_IOERR_UNLOCK:
    case SQLITE_IOERR_CHECKRESERVEDLOCK:
      return {errors::storeLocked, "O banco de dados " + context.path + " não pôde ser reservado para uso."};
    case SQLITE_IOERR_READ:
    case SQLITE_IOERR_SHORT_READ:
    case SQLITE_IOERR_CORRUPTFS:
      return {errors::storeDamaged, "O banco de dados " + context.path + " não pôde ser lido: o disco falhou."};
    default:
      return {errors::diskFull,
              "O banco de dados " + context.path + " não pôde ser gravado: o disco está cheio ou falhou."};
  }
}

}  // namespace

Error failureOf(sqlite3* database, int code, const FailureContext& context) {
  return failureOf(database != nullptr ? sqlite3_extended_errcode(database) : code,
                   database != nullptr ? sqlite3_errmsg(database) : "", context);
}

Error failureOf(int extendedCode, const std::string& message, const FailureContext& context) {
  switch (extendedCode & 0xFF) {
    case SQLITE_CONSTRAINT:
      return constraint(extendedCode, message, context);
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
    case SQLITE_PROTOCOL:
      return {errors::storeLocked, "O banco de dados " + context.path + " está em uso por outro programa."};
    case SQLITE_NOTADB:
      return {errors::fileNotStore, "O arquivo " + context.path + " não é um banco de dados do sistema."};
    case SQLITE_CORRUPT:
      return {errors::storeDamaged, "O banco de dados " + context.path + " está danificado."};
    case SQLITE_READONLY:
      return {errors::storeReadOnly, "O banco de dados " + context.path + " só pode ser lido."};
    case SQLITE_FULL:
      return {errors::diskFull, "O banco de dados " + context.path + " não pôde ser gravado: o disco está cheio."};
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
    case SQLITE_AUTH:
      return {errors::storeNotOpened, "O banco de dados " + context.path + " não pode ser aberto."};
    case SQLITE_IOERR:
      return inputOutput(extendedCode, context);
    case SQLITE_TOOBIG:
      return {errors::valueOutOfRange, "Um texto é longo demais para ser gravado."};
    case SQLITE_NOMEM:
      return {outOfMemory, "Falta memória para executar a instrução."};
    default:
      // An integer sum beyond 64 bits is the one failure of evaluation that SQLite itself finds.
      if (message.find("integer overflow") != std::string::npos) return {errors::overflow, "Estouro de capacidade."};
      return {errors::invalidCall, "A instrução não pôde ser executada: " + message + "."};
  }
}

}  // namespace fenvale::sql
