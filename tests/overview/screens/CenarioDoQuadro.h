#pragma once
// The small firm of Cenario on 10 May 2026 with titles on both sides, the accounts overview, and what a clerk does at
// it.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "access/services/Permissoes.h"
#include "app/Registro.h"
#include "overview/screens/frmMostrarContas.h"
#include "overview/services/QuadroGeralContas.h"
#include "shell/services/TelaComLista.h"
#include "shell/services/Telas.h"
#include "titles/Cenario.h"

namespace fenvale {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

inline constexpr const char* hoje = "05/10/2026";
inline constexpr const char* ontem = "05/09/2026";
inline constexpr const char* amanha = "05/11/2026";

inline std::vector<std::string> celulas(const ListItem& item) {
  std::vector<std::string> textos{item.text()};
  for (std::size_t i = 1; i <= item.subItemCount(); ++i) textos.push_back(item.subItem(i));
  return textos;
}

inline std::vector<std::string> codigos(const ListView& lista) {
  std::vector<std::string> textos;
  for (const auto& item : lista.items()) textos.push_back(item->text());
  return textos;
}

class CenarioDoQuadro : public testing::Test {
 protected:
  explicit CenarioDoQuadro(void (*registrar)(Telas&) = &vRegistrarTelas) : cenario(ladoReceber(), registrar) {}
  void TearDown() override { EXPECT_NO_THROW(host.verify()); }

  /// One invoice for each title, of the first person; the title's key.
  int inserir(const Lado& lado, const std::string& codigo, const std::string& vencimento,
              std::string_view valor = "100,00", std::string_view pago = "0,00") {
    const std::string sTotal = reais(valor).toDecimal();
    const std::string fatura = std::to_string(++faturas_);
    cenario.executar("INSERT INTO " + lado.sFaturas + " (lNumeroFatura, dtEmissao, fTotal, fEntrada, " +
                     lado.sChavePessoa + ", lCondicoesPagamento, lPortador, " + (lado.bVendedor ? "lVendedor, " : "") +
                     "lCentroCusto) VALUES (" + fatura + ", #03/01/2026#, " + sTotal + ", 0, 1, 1, 1, " +
                     (lado.bVendedor ? "1, " : "") + "1)");
    cenario.executar("INSERT INTO " + lado.sTitulos +
                     " (sCodigoInf, dtVencimento, fValor, dtPagamento, fValorPago, fJuros, fDesconto, lNF, sObs, " +
                     (lado.bFilial ? "sFilial, " : "") + lado.sLigacao + ") VALUES ('" + codigo + "', #" + vencimento +
                     "#, " + sTotal + ", #" + vencimento + "#, " + reais(pago).toDecimal() + ", 0, 0, 445, 'Na porta'" +
                     (lado.bFilial ? ", 'MTZ', " : ", ") + cenario.valor("SELECT MAX(lCodigo) FROM " + lado.sFaturas) +
                     ")");
    return std::stoi(cenario.valor("SELECT MAX(lCodigo) FROM " + lado.sTitulos));
  }
  int receber(const std::string& codigo, const std::string& vencimento, std::string_view valor = "100,00",
              std::string_view pago = "0,00") {
    return inserir(ladoReceber(), codigo, vencimento, valor, pago);
  }
  int pagar(const std::string& codigo, const std::string& vencimento, std::string_view valor = "100,00",
            std::string_view pago = "0,00") {
    return inserir(ladoPagar(), codigo, vencimento, valor, pago);
  }
  /// One title in each list, in the order of the tabs: P1, R1, P2, R2.
  void umEmCadaLista() {
    pagar("P1", hoje);
    receber("R1", hoje);
    pagar("P2", ontem);
    receber("R2", ontem);
  }
  void ligar(const std::string& colunas) { cenario.programa.executarPrograma("UPDATE Sistema SET " + colunas); }

  QuadroGeralContas& opcoes() { return cenario.programa.quadroGeralContas(); }
  /// As the main window opens it, all four lists on offer.
  frmMostrarContas& quadro() {
    opcoes().vSetMotrarTodas(true);
    return aberto();
  }
  frmMostrarContas& aberto() {
    auto& tela = telas.obter<frmMostrarContas>("frmMostrarContas");
    host.show(tela);
    return tela;
  }
  static std::vector<std::vector<std::string>> todos(const frmMostrarContas& tela) {
    return {codigos(tela.lstPagarDia), codigos(tela.lstReceberDia), codigos(tela.lstPagarVencidas),
            codigos(tela.lstReceberVencidas)};
  }
  static std::vector<std::string> totais(const frmMostrarContas& tela) {
    return {tela.lblContasPagarDia.caption(), tela.lblContasReceberDia.caption(), tela.lblContasPagarVencidas.caption(),
            tela.lblContasReceberVencidas.caption()};
  }
  /// A user without the right of that name.
  void semDireito(const std::string& direito) {
    cenario.programa.executarPrograma(
        "INSERT INTO Usuarios (sNomeUsuario, sLogin, sSenha, bPoderSalvar, bPoderExcluir, bPoderPesquisar, "
        "bPoderImprimir, bPoderAtualizar) VALUES ('Ana', 'ana', 'x', -1, -1, -1, -1, -1)");
    cenario.programa.executarPrograma("UPDATE Usuarios SET " + direito + " = 0");
    cenario.programa.permissoes().vSetPermissoes(1);
  }

  Cenario cenario;
  TestHost& host = cenario.programa.hostDeTeste();
  Telas& telas = cenario.programa.telas();

 private:
  int faturas_ = 0;
};

}  // namespace fenvale
