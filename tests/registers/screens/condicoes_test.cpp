// The register of payment conditions and its searches.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Cadastros.h"
#include "registers/screens/frmCadastroCondicoesPagamento.h"
#include "registers/screens/frmLocalizarCondicoesPagamento.h"
#include "support/Rotulos.h"

namespace fenvale {
namespace {

using testing::ElementsAre;

class Condicoes : public Cadastros {
 protected:
  std::int32_t condicao(int iCodigo, int iParcelas, int iIntervalo, bool bEntrada) {
    return inserir("CondicoesPagamento", "btCodigoInf, iNumeroParcelas, iIntervalo, bitEntrada",
                   std::to_string(iCodigo) + ", " + std::to_string(iParcelas) + ", " + std::to_string(iIntervalo) +
                       (bEntrada ? ", -1" : ", 0"));
  }
  frmCadastroCondicoesPagamento& abrirCondicoes() {
    return dynamic_cast<frmCadastroCondicoesPagamento&>(abrir("frmCadastroCondicoesPagamento"));
  }
  std::vector<std::string> guardadas() {
    return linhas(
        "SELECT btCodigoInf, iNumeroParcelas, iIntervalo, bitEntrada FROM CondicoesPagamento ORDER BY lCodigo");
  }
};

TEST_F(Condicoes, HeadingsAndStatements) {
  auto& tela = abrirCondicoes();
  EXPECT_EQ(tela.caption(), "Condições de pagamento");
  EXPECT_EQ(tela.title(), "Cadastro de condições de pagamento");
  EXPECT_THAT(formularioDe(tela),
              ElementsAre("Código: txtCodigoInf <= 255", "Número de parcelas: txtNumeroParcelas <= 32767",
                          "Intervalo de vencimento: txtIntervalo <= 32767"));
  EXPECT_THAT(cabecalhos(tela.lstLista),
              ElementsAre("Código", "Número de parcelas", "Intervalo de vecimento", "Com entrada"));
  EXPECT_EQ(tela.sConsulta("WHERE btCodigoInf = 1 "),
            "SELECT lCodigo, btCodigoInf, iNumeroParcelas, iIntervalo, IIF(bitEntrada = 0, 'Não', 'Sim') AS ComEntrada "
            "FROM CondicoesPagamento WHERE btCodigoInf = 1  ORDER BY btCodigoInf ");
  EXPECT_EQ(
      tela.sInclusao(),
      "INSERT INTO CondicoesPagamento (btCodigoInf, iNumeroParcelas, iIntervalo, bitEntrada) VALUES (1, 0, 0, 0)");
}

TEST_F(Condicoes, TheForm) {
  auto& tela = abrirCondicoes();
  EXPECT_THAT(rotulos(tela), ElementsAre("Código", "Número de parcelas", "Intervalo de vencimento"));
  EXPECT_EQ(tela.chkEntrada.caption(), "Com &entrada");
  condicao(9, 1, 0, false);
  tela.userKey(Key::f2);
  EXPECT_EQ(tela.lstLista.item(0)->key(), "000001");
  EXPECT_EQ(tela.txtCodigoInf.text(), "10");
}

TEST_F(Condicoes, StoresWhatWasTyped) {
  auto& tela = abrirCondicoes();
  EXPECT_EQ(tela.txtCodigoInf.text(), "1");
  tela.txtNumeroParcelas.userType("3");
  tela.txtIntervalo.userType("30");
  tela.chkEntrada.userClick();
  host.expectBox(informacao("Operação concluída."));
  tela.userKey(Key::f3);
  EXPECT_THAT(guardadas(), ElementsAre("1|3|30|-1"));
  EXPECT_THAT(listados(tela.lstLista), ElementsAre("1|3|30|Sim"));
  EXPECT_FALSE(tela.chkEntrada.checked());
}

TEST_F(Condicoes, NoInstalmentIsSilentlyOneAndNoIntervalIsKept) {
  for (const char* sParcelas : {"", "0"}) {
    auto& tela = abrirCondicoes();
    tela.txtNumeroParcelas.userType(sParcelas);
    host.expectBox(informacao("Operação concluída."));
    tela.userKey(Key::f3);
    fechar(tela);
  }
  EXPECT_THAT(guardadas(), ElementsAre("1|1|0|0", "2|1|0|0"));
}

TEST_F(Condicoes, AMissingCodeIsAskedForBeforeTheInstalmentsAreMended) {
  auto& tela = abrirCondicoes();
  tela.txtCodigoInf.userType("");
  salvarRecusado(host, tela, aviso("Informe o código."), tela.txtCodigoInf);
  EXPECT_EQ(tela.txtNumeroParcelas.text(), "");
}

TEST_F(Condicoes, ALoadedRowIsStoredAgain) {
  const std::int32_t lChave = condicao(4, 2, 15, true);
  auto& tela = abrirCondicoes();
  tela.lstLista.userClickRow(0);
  EXPECT_EQ(tela.txtNumeroParcelas.text(), "2");
  EXPECT_EQ(tela.txtIntervalo.text(), "15");
  EXPECT_TRUE(tela.chkEntrada.checked());
  EXPECT_EQ(
      tela.sAlteracao(),
      "UPDATE CondicoesPagamento SET btCodigoInf = 4, iNumeroParcelas = 2, iIntervalo = 15, bitEntrada = -1 WHERE "
      "lCodigo = " +
          std::to_string(lChave));
  tela.chkEntrada.userClick();
  host.expectBox(informacao("Operação concluída."));
  tela.userKey(Key::f3);
  EXPECT_THAT(guardadas(), ElementsAre("4|2|15|0"));
}

TEST_F(Condicoes, ARepeatedCodeIsRefusedInTwoLines) {
  condicao(1, 1, 0, false);
  auto& tela = abrirCondicoes();
  tela.txtCodigoInf.userType("1");
  std::string sTexto;
  try {
    condicao(1, 2, 0, false);
  } catch (const Error& recusa) {
    sTexto = recusa.description;
  }
  host.expectBox(critica("Os dados informados já existem no sistema.\r\nInformação detalhada: " + sTexto));
  tela.userKey(Key::f3);
  EXPECT_TRUE(tela.txtCodigoInf.hasFocus());
  EXPECT_THAT(guardadas(), ElementsAre("1|1|0|0"));
}

TEST_F(Condicoes, AConditionInUseStays) {
  programaComFatura();
  auto& tela = abrirCondicoes();
  host.expectBox(aviso("Selecione o registro que deseja excluir."));
  tela.userKey(Key::f4);
  EXPECT_TRUE(tela.lstLista.hasFocus());
  tela.lstLista.userClickRow(0);
  const std::string sTexto = recusaDoBanco(tela.sExclusao());
  host.expectBox(pergunta("Confirma a remoção do registro?"), BoxAnswer::yes);
  host.expectBox(critica("O registro não pode ser excluído.\r\nInformação detalhada: " + sTexto));
  tela.userKey(Key::f4);
  EXPECT_TRUE(tela.txtCodigoInf.hasFocus());
  EXPECT_EQ(guardadas().size(), 1u);
}

TEST_F(Condicoes, TheFullSearchAlwaysFiltersByTheEntry) {
  condicao(1, 1, 0, false);
  condicao(2, 3, 30, true);
  condicao(3, 3, 15, true);
  auto& tela = abrirCondicoes();
  host.expectScreen("frmLocalizarCondicoesPagamento", [&](Screen& aberta) {
    auto& busca = dynamic_cast<frmLocalizarCondicoesPagamento&>(aberta);
    EXPECT_EQ(busca.caption(), "Localizar condição de pagamento");
    EXPECT_EQ(formularioDe(busca), formularioDe(tela));
    EXPECT_EQ(busca.sClausula(), "WHERE bitEntrada = 0 ");
    EXPECT_THAT(listados(tela.lstLista), ElementsAre("1|1|0|Não")) << "searched once at opening";
    busca.chkEntrada.userClick();
    busca.userKey(Key::f6);
    EXPECT_THAT(listados(tela.lstLista), ElementsAre("2|3|30|Sim", "3|3|15|Sim"));
    busca.txtNumeroParcelas.userType("3");
    busca.txtIntervalo.userType("15");
    busca.txtCodigoInf.userType("3");
    EXPECT_EQ(busca.sClausula(),
              "WHERE bitEntrada = -1 AND btCodigoInf = 3 AND iNumeroParcelas = 3 AND iIntervalo = 15 ");
    busca.userKey(Key::f6);
    EXPECT_THAT(listados(tela.lstLista), ElementsAre("3|3|15|Sim"));
    busca.txtNumeroParcelas.userType("0");
    busca.txtIntervalo.userType("");
    EXPECT_EQ(busca.sClausula(), "WHERE bitEntrada = -1 AND btCodigoInf = 3 ");
    busca.userKey(Key::escape);
  });
  tela.userKey(Key::f6);
}

}  // namespace
}  // namespace fenvale
