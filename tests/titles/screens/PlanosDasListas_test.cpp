// What a list costs: every list without a filter is walked in the order of an index, however many rows it has.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/sql/sqlite/Definitions.h"
#include "platform/sql/sqlite/Translation.h"
#include "registers/screens/CadastroCodigoNome.h"
#include "registers/screens/TelaBuscaRapida.h"
#include "titles/screens/CenarioDeTelas.h"
#include "titles/screens/TelaBuscaBaixa.h"
#include "titles/screens/TelasDosTitulos.h"

namespace fenvale {
namespace {

using testing::AllOf;
using testing::AnyOf;
using testing::Each;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class PlanosDasListas : public CenarioDeTelas {
 protected:
  PlanosDasListas()
      : CenarioDeTelas([](Telas& telas) {
          vRegistrarTelasDosCadastros(telas);
          vRegistrarTelasDosTitulos(telas);
        }) {}

  /// How the engine finds the keys of a statement's rows, step by step.
  std::vector<std::string> plano(const std::string& sConsulta) {
    sql::Database banco(caminho(), nullptr);
    const auto traducao =
        sql::TranslationCache().translate(sConsulta, sql::readCatalog(banco), data("10/05/2026")).translation;
    EXPECT_TRUE(traducao->keyed) << sConsulta;
    std::vector<std::string> passos;
    sql::Prepared explicacao = banco.prepare("EXPLAIN QUERY PLAN " + traducao->keysText);
    while (explicacao.step()) passos.push_back(explicacao.value(3, ValueType::text).toText());
    return passos;
  }
  std::string caminho() {
    const std::string& sConexao = cenario.programa.dbEmpresa().Dados().connectionString();
    const std::string sInicio = "Data Source=";
    const std::size_t lugar = sConexao.find(sInicio) + sInicio.size();
    return sConexao.substr(lugar, sConexao.find(';', lugar) - lugar);
  }
};

TEST_P(PlanosDasListas, NoListIsSorted) {
  const std::string sBaixa = carregada<TelaBuscaBaixa>(lado.titulos.sBuscaBaixa).sConsulta();
  std::vector<std::string> consultas{faturas().sConsulta({}),
                                     titulos().sConsulta({}),
                                     sBaixa,
                                     carregada<TelaCadastro>("frmCadastroClientes").sConsulta({}),
                                     carregada<TelaCadastro>("frmCadastroFornecedores").sConsulta({}),
                                     carregada<TelaCadastro>("frmCadastroCondicoesPagamento").sConsulta({}),
                                     carregada<TelaEscolha>("frmLocalizarBancos").sConsulta(),
                                     "SELECT lCodigo, sUF, sNome FROM Cidades ORDER BY sUF, sNome"};
  for (const auto& cadastro : cadastrosCodigoNome())
    consultas.push_back(carregada<TelaCadastro>(cadastro.sNome).sConsulta({}));
  for (const auto& busca : buscasRapidas()) consultas.push_back(carregada<TelaEscolha>(busca.sNome).sConsulta());
  for (const std::string& sConsulta : consultas) {
    const auto passos = plano(sConsulta);
    EXPECT_THAT(passos, ElementsAre(AllOf(AnyOf(StartsWith("SCAN "), StartsWith("SEARCH ")), HasSubstr(" INDEX "))))
        << sConsulta;
  }
}

TEST_P(PlanosDasListas, TheTitlesOfOneInvoiceOrPersonAreSearchedFor) {
  const std::string sDaFatura = "WHERE " + lado.sTitulos + "." + lado.sLigacao + " = 1 ";
  const std::string sDaPessoa = "WHERE " + lado.sFaturas + "." + lado.sChavePessoa + " = 1 ";
  for (const std::string& sClausula : {sDaFatura, sDaFatura + "AND (fValorPago <= 0) ", sDaPessoa,
                                       sDaPessoa + "AND (fValorPago > 0) ", sDaPessoa + "AND (fValorPago <= 0) "})
    EXPECT_THAT(plano(titulos().sConsulta(sClausula)), Each(Not(StartsWith("SCAN ")))) << sClausula;
}

INSTANTIATE_TEST_SUITE_P(Lados, PlanosDasListas, testing::Values(&ladoReceber, &ladoPagar), nomeDoLado);

}  // namespace
}  // namespace fenvale
