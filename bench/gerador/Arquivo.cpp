#include "gerador/Arquivo.h"

#include <sqlite3.h>

#include "platform/base/Error.h"
#include "platform/sql/sqlite/Functions.h"

namespace fenvale::bancada {
namespace {

void exigir(bool bFeito, sqlite3* banco) {
  if (!bFeito) throw Error(errors::refused, sqlite3_errmsg(banco));
}

}  // namespace

void Comando::Soltar::operator()(sqlite3_stmt* comando) const { sqlite3_finalize(comando); }

Comando::Comando(sqlite3* banco, const std::string& sSQL) {
  sqlite3_stmt* comando = nullptr;
  const int resposta = sqlite3_prepare_v2(banco, sSQL.c_str(), static_cast<int>(sSQL.size()), &comando, nullptr);
  comando_.reset(comando);
  exigir(resposta == SQLITE_OK, banco);
}

void Comando::ligarUm(int lugar, std::int64_t valor) { sqlite3_bind_int64(comando_.get(), lugar, valor); }

void Comando::ligarUm(int lugar, std::string_view texto) {
  sqlite3_bind_text(comando_.get(), lugar, texto.data(), static_cast<int>(texto.size()), SQLITE_STATIC);
}

bool Comando::proximo() {
  const int resposta = sqlite3_step(comando_.get());
  if (resposta == SQLITE_ROW) return true;
  exigir(resposta == SQLITE_DONE, sqlite3_db_handle(comando_.get()));
  encerrar();
  return false;
}

void Comando::executar() {
  while (proximo()) {
  }
}

void Comando::encerrar() { sqlite3_reset(comando_.get()); }

std::int64_t Comando::inteiro(int coluna) const { return sqlite3_column_int64(comando_.get(), coluna); }

std::string_view Comando::texto(int coluna) const {
  const auto* bytes = sqlite3_column_text(comando_.get(), coluna);
  if (bytes == nullptr) return {};
  const auto tamanho = static_cast<std::size_t>(sqlite3_column_bytes(comando_.get(), coluna));
  return {reinterpret_cast<const char*>(bytes), tamanho};
}

void Arquivo::Fechar::operator()(sqlite3* banco) const { sqlite3_close_v2(banco); }

Arquivo::Arquivo(const std::string& sCaminho) : recusa_(std::make_unique<std::optional<Error>>()) {
  sqlite3* banco = nullptr;
  const int resposta = sqlite3_open_v2(sCaminho.c_str(), &banco, SQLITE_OPEN_READWRITE, nullptr);
  banco_.reset(banco);
  exigir(resposta == SQLITE_OK, banco);
  sql::registerFunctions(banco, *recusa_);
}

void Arquivo::executar(const std::string& sSQL) {
  exigir(sqlite3_exec(banco_.get(), sSQL.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK, banco_.get());
}

std::int64_t Arquivo::inteiro(const std::string& sSQL) {
  Comando comando = preparar(sSQL);
  return comando.proximo() ? comando.inteiro(0) : 0;
}

std::string Arquivo::texto(const std::string& sSQL) {
  Comando comando = preparar(sSQL);
  return comando.proximo() ? std::string(comando.texto(0)) : std::string();
}

}  // namespace fenvale::bancada
