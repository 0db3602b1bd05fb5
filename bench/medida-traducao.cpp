// How long a statement's way from text to a prepared shape takes, for shapes that were seen before and for new ones.

#include <algorithm>

#include "Consultas.h"
#include "medida/Acervo.h"
#include "medida/Medida.h"
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

  /// The median of one translation, in microseconds, of the statement that takes the longest.
  double microssegundos(bool bNova) {
    constexpr int vezes = 400;
    std::vector<std::vector<double>> tempos(comandos(1).size());
    for (int i = 0; i <= vezes; ++i) {
      const std::vector<std::string> todos = comandos(i + 1);
      for (std::size_t qual = 0; qual < todos.size(); ++qual) {
        if (bNova) memoria_.clear();
        const auto inicio = std::chrono::steady_clock::now();
        memoria_.translate(todos[qual], catalogo_, relogio_.today());
        const std::chrono::duration<double, std::micro> tempo = std::chrono::steady_clock::now() - inicio;
        if (i > 0) tempos[qual].push_back(tempo.count());  // in the first turn the shapes become known
      }
    }
    double maior = 0;
    for (std::vector<double>& um : tempos) {
      const auto meio = um.begin() + static_cast<std::ptrdiff_t>(um.size() / 2);
      std::nth_element(um.begin(), meio, um.end());
      maior = std::max(maior, *meio);
    }
    return maior;
  }

 private:
  RelogioFixo relogio_;
  Database banco_;
  Catalog catalogo_;
  TranslationCache memoria_;
};

void medir(const Opcoes&, Relatorio& relatorio) {
  Traducao traducao(sEmpresaGerada(volumePequeno));
  relatorio.vLinha("tradução de forma conhecida", traducao.microssegundos(false), "µs", 20);
  relatorio.vLinha("tradução de forma nova", traducao.microssegundos(true), "µs", 150);
}

}  // namespace
}  // namespace fenvale::bancada

int main(int quantos, char** argumentos) {
  return fenvale::bancada::executar(quantos, argumentos, fenvale::bancada::medir);
}
