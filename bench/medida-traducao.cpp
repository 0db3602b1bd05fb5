// How long a statement's way from text to a prepared shape takes, for shapes that were seen before and for new ones.

#include <algorithm>
#include <iostream>

#include "Consultas.h"
#include "medida/Acervo.h"
#include "medida/Medida.h"
#include "platform/base/Error.h"
#include "platform/sql/sqlite/Definitions.h"
#include "platform/sql/sqlite/Translation.h"

namespace fenvale::bancada {
namespace {

using sql::Catalog;
using sql::Database;
using sql::TranslationCache;

/// What the program runs all day: a long list, a settlement, a title, a sum.
std::vector<std::string> comandos(int lugar) {
  const std::string sNumero = std::to_string(lugar);
  return {consultaTitulosAbertos().sPrograma, consultaClientes().sPrograma,
          "UPDATE TitulosReceber SET sCodigoInf = '00" + sNumero +
              "/001', dtVencimento = #03/15/2026#, fValor = " + sNumero +
              ".5, dtPagamento = #03/16/2026#, fValorPago = 1.5, fJuros = 2.25, fDesconto = 3.1, lNF = " + sNumero +
              ", sObs = 'observação', lFaturaCliente = " + sNumero + " WHERE lCodigo = " + sNumero,
          "INSERT INTO TitulosReceber (sCodigoInf, dtVencimento, fValor, dtPagamento, fValorPago, fJuros, fDesconto, "
          "lNF, sObs, lFaturaCliente) VALUES ('00" +
              sNumero + "/002', #04/15/2026#, " + sNumero + ".75, #04/15/2026#, 0, 0, 0, 0, '', " + sNumero + ")",
          "SELECT IIF(ISNULL(SUM(fValorPago)), 0, SUM(fValorPago)) AS ValorPago FROM TitulosReceber WHERE "
          "lFaturaCliente = " +
              sNumero};
}

class Traducao {
 public:
  explicit Traducao(const std::string& sArquivo) : banco_(sArquivo, nullptr), catalogo_(sql::readCatalog(banco_)) {}

  /// The median of one translation, in microseconds, over all statements.
  double microssegundos(bool bNova) {
    constexpr int vezes = 400;
    std::vector<double> tempos;
    for (int i = 1; i <= vezes; ++i) {
      for (const std::string& sComando : comandos(i)) {
        if (bNova) memoria_.clear();
        const auto inicio = std::chrono::steady_clock::now();
        memoria_.translate(sComando, catalogo_, relogio_.today());
        const std::chrono::duration<double, std::micro> tempo = std::chrono::steady_clock::now() - inicio;
        // In the first turn the shapes become known.
        if (bNova || i > 1) tempos.push_back(tempo.count());
      }
    }
    const auto meio = tempos.begin() + static_cast<std::ptrdiff_t>(tempos.size() / 2);
    std::nth_element(tempos.begin(), meio, tempos.end());
    return *meio;
  }

 private:
  RelogioFixo relogio_;
  Database banco_;
  Catalog catalogo_;
  TranslationCache memoria_;
};

int medir() {
  Relatorio relatorio;
  Traducao traducao(sEmpresaGerada(volumePequeno));
  relatorio.vLinha("tradução de forma conhecida", traducao.microssegundos(false), "µs", 20);
  relatorio.vLinha("tradução de forma nova", traducao.microssegundos(true), "µs", 150);
  return 0;
}

}  // namespace
}  // namespace fenvale::bancada

int main(int quantos, char** argumentos) try {
  fenvale::bancada::lerOpcoes(quantos, argumentos);
  return fenvale::bancada::medir();
} catch (const fenvale::Error& falha) {
  std::cerr << argumentos[0] << ": " << falha.description << "\n";
  return 1;
}
