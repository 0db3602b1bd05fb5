#pragma once
// A store's file reached past the program, by the C interface of SQLite: what writes a million rows in seconds, and
// what a statement written by hand for this one engine is measured with.

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/base/Error.h"

struct sqlite3;
struct sqlite3_stmt;

namespace fenvale::bancada {

/// A prepared statement, used again and again. Every failure is an Error with SQLite's own sentence.
class Comando {
 public:
  Comando(sqlite3* banco, const std::string& sSQL);

  /// Binds from the first parameter on. Texts must live until the next step.
  template <typename... Valores>
  Comando& ligar(const Valores&... valores) {
    int lugar = 0;
    (ligarUm(++lugar, valores), ...);
    return *this;
  }
  /// The next row; false behind the last one, and the statement is ready to run again.
  bool proximo();
  /// Runs to the end.
  void executar();
  void encerrar();

  std::int64_t inteiro(int coluna) const;
  std::string_view texto(int coluna) const;

 private:
  void ligarUm(int lugar, std::int64_t valor);
  void ligarUm(int lugar, std::int32_t valor) { ligarUm(lugar, std::int64_t{valor}); }
  void ligarUm(int lugar, std::uint32_t valor) { ligarUm(lugar, std::int64_t{valor}); }
  void ligarUm(int lugar, std::string_view texto);
  void ligarUm(int lugar, const std::string& texto) { ligarUm(lugar, std::string_view(texto)); }

  struct Soltar {
    void operator()(sqlite3_stmt* comando) const;
  };
  std::unique_ptr<sqlite3_stmt, Soltar> comando_;
};

class Arquivo {
 public:
  /// With the collation and the functions that the store's tables name.
  explicit Arquivo(const std::string& sCaminho);

  void executar(const std::string& sSQL);
  Comando preparar(const std::string& sSQL) { return Comando(banco_.get(), sSQL); }
  std::int64_t inteiro(const std::string& sSQL);
  std::string texto(const std::string& sSQL);

 private:
  struct Fechar {
    void operator()(sqlite3* banco) const;
  };
  std::unique_ptr<std::optional<Error>> recusa_;  ///< where a function of the store leaves its refusal
  std::unique_ptr<sqlite3, Fechar> banco_;
};

}  // namespace fenvale::bancada
