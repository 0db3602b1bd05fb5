#pragma once
// The searches of invoices and titles as a clerk opens them, over a firm with invoices that differ in everything.

#include <functional>
#include <string>
#include <vector>

#include "titles/screens/CenarioDeTelas.h"
#include "titles/screens/TelaBuscaBaixa.h"
#include "titles/screens/TelaBuscaFiltro.h"
#include "titles/screens/TelasDosTitulos.h"

namespace fenvale {

inline void vRegistrarTudo(Telas& telas) {
  vRegistrarTelasDosCadastros(telas);
  vRegistrarTelasDosTitulos(telas);
}

/// One thing typed into a search, the clause that it makes and what is found by it.
template <typename Formulario>
struct Passo {
  std::function<void(Formulario&)> digitar;
  std::string clausula;
  std::vector<std::string> achados;
};

/// The six searches over three invoices that differ in everything.
class CenarioDeBuscas : public CenarioDeTelas {
 protected:
  CenarioDeBuscas() : CenarioDeTelas(&vRegistrarTudo) {}

  /// Three invoices that differ in everything, and their titles.
  void encher() {
    cenario.inserirFatura("300,00", tresVezes, 10);
    cenario.inserirTitulo(1, "000001/001", "100,00", "100,00", "03/31/2026");
    cenario.inserirTitulo(1, "000001/002", "100,00", "0,00", "04/30/2026");
    cenario.inserirTitulo(1, "000001/003", "100,00", "0,00", "05/30/2026");
    cenario.inserirFatura("50,00", umaVez, 20);
    cenario.inserirTitulo(2, "000002/001", "50,00", "0,00", "05/15/2026");
    cenario.inserirFatura("80,00", umaVez, 20);
    cenario.inserirTitulo(3, "d''avulso", "80,00", "0,00", "05/15/2026");
    const std::string mudar = "UPDATE " + lado.sFaturas + " SET lPortador = 2, lCentroCusto = 2, ";
    cenario.executar(mudar + "dtEmissao = #04/15/2026#, fEntrada = 10, " + lado.sChavePessoa + " = 2" +
                     (lado.bVendedor ? ", lVendedor = 2" : "") + " WHERE lCodigo = 2");
    cenario.executar(mudar + "dtEmissao = #04/20/2026# WHERE lCodigo = 3");
    cenario.executar("UPDATE " + lado.sTitulos + " SET lNF = 445 WHERE lCodigo = 4");
    cenario.executar("UPDATE " + lado.sTitulos + " SET dtPagamento = #04/05/2026# WHERE lCodigo = 1");
  }

  /// A user who may do all but that.
  void cadastrarAnaSem(const std::string& sDireito) {
    cenario.programa.executarPrograma(
        "INSERT INTO Usuarios (sNomeUsuario, sLogin, sSenha, bPoderSalvar, bPoderExcluir, bPoderPesquisar, "
        "bPoderImprimir, bPoderAtualizar) VALUES ('Ana', 'ana', 'x', -1, -1, -1, -1, -1)");
    cenario.programa.executarPrograma("UPDATE Usuarios SET " + sDireito + " = 0");
  }

  /// The search for settlement, opened by its key from the title screen.
  void naBaixa(const std::function<void(TelaBuscaBaixa&)>& agir) {
    host.expectScreen(lado.titulos.sBuscaBaixa, [&](Screen& tela) { agir(dynamic_cast<TelaBuscaBaixa&>(tela)); });
    titulos().userKey(Key::f7);
    host.verify();
  }
  void noFiltroDeTitulos(const std::function<void(TelaBuscaTitulos&)>& agir) {
    host.expectScreen(lado.titulos.sBusca, [&](Screen& tela) { agir(dynamic_cast<TelaBuscaTitulos&>(tela)); });
    titulos().userKey(Key::f6);
    host.verify();
  }
  void noFiltroDeFaturas(const std::function<void(TelaBuscaFaturas&)>& agir) {
    host.expectScreen(lado.faturas.sBusca, [&](Screen& tela) { agir(dynamic_cast<TelaBuscaFaturas&>(tela)); });
    faturas().userKey(Key::f6);
    host.verify();
  }
  static void periodo(PeriodoBusca& periodo, std::string_view inicial, std::string_view final) {
    periodo.chk.userClick();
    periodo.dtInicial.userType(inicial);
    periodo.dtFinal.userType(final);
  }

  /// What the title searches ask for, one thing at a time, with `situacao` in the place of the titles' state.
  std::vector<Passo<FormularioBuscaTitulos>> passosDosTitulos(const std::string& situacao,
                                                              const std::vector<std::string>& todos) {
    using Busca = FormularioBuscaTitulos;
    const std::string inicio = "WHERE MID(sCodigoInf, 1, 0) = '' AND " + situacao;
    const std::string avulso = "d'avulso";
    std::vector<Passo<Busca>> passos{
        {[](Busca&) {}, inicio, todos},
        {[](Busca& tela) { tela.txtNumeroFatura.userType("20"); },
         "WHERE lNumeroFatura = 20 AND MID(sCodigoInf, 1, 0) = '' AND " + situacao,
         {"000002/001", avulso}},
        {[](Busca& tela) { tela.txtCodigoInf.userType("000001"); },
         "WHERE MID(sCodigoInf, 1, 6) = '000001' AND " + situacao,
         {"000001/002", "000001/003"}},
        {[](Busca& tela) { tela.txtCodigoInf.userType("D'a"); },
         "WHERE MID(sCodigoInf, 1, 3) = 'D''a' AND " + situacao,
         {avulso}},
        {[](Busca& tela) { tela.txtNF.userType("445,00"); },
         "WHERE MID(sCodigoInf, 1, 0) = '' AND lNF = 445 AND " + situacao,
         {"000002/001"}},
        {[](Busca& tela) { tela.txtNF.userType("0,99"); }, inicio, todos},
        {[](Busca& tela) { tela.txtNF.userType("1,00"); },
         "WHERE MID(sCodigoInf, 1, 0) = '' AND lNF = 1 AND " + situacao,
         {}},
        {[](Busca& tela) { tela.entidades.pessoa.busca.vSet(2, "Bar do Élio"); },
         inicio + "AND " + lado.sChavePessoa + " = 2 ",
         {"000002/001"}},
        {[](Busca& tela) { tela.entidades.portador.busca.vSet(2, "Banco do Brasil"); },
         inicio + "AND lPortador = 2 ",
         {"000002/001", avulso}},
        {[](Busca& tela) { tela.entidades.centroCusto.busca.vSet(1, "Loja"); },
         inicio + (lado.bVendedor ? "AND FaturasCliente.lCentroCusto = 1 " : "AND lCentroCusto = 1 "),
         {"000001/002", "000001/003"}},
        {[](Busca& tela) { periodo(tela.emissao, "15/04/2026", "16/04/2026"); },
         inicio + "AND dtEmissao BETWEEN #04/15/2026# AND #04/16/2026# ",
         {"000002/001"}},
        {[](Busca& tela) { periodo(tela.vencimento, "01/04/2026", "15/05/2026"); },
         inicio + "AND dtVencimento BETWEEN #04/01/2026# AND #05/15/2026# ",
         {"000001/002", "000002/001", avulso}},
        {[](Busca& tela) { periodo(tela.pagamento, "30/04/2026", "30/04/2026"); },
         inicio + "AND dtPagamento BETWEEN #04/30/2026# AND #04/30/2026# ",
         {"000001/002"}},
        {[](Busca& tela) {
           periodo(tela.pagamento, "30/04/2026", "30/04/2026");
           tela.pagamento.chk.userClick();
         },
         inicio, todos},
    };
    if (lado.bVendedor)
      passos.push_back({[](Busca& tela) { tela.entidades.vendedor->busca.vSet(2, "João Batista"); },
                        inicio + "AND FaturasCliente.lVendedor = 2 ",
                        {"000002/001"}});
    passos.push_back({[](Busca& tela) {
                        periodo(tela.pagamento, "01/05/2026", "31/05/2026");
                        periodo(tela.vencimento, "01/05/2026", "31/05/2026");
                        periodo(tela.emissao, "01/04/2026", "30/04/2026");
                        tela.entidades.centroCusto.busca.vSet(2, "Depósito");
                        if (tela.entidades.vendedor) tela.entidades.vendedor->busca.vSet(1, "Maria Aparecida");
                        tela.entidades.portador.busca.vSet(2, "Banco do Brasil");
                        tela.entidades.pessoa.busca.vSet(1, "Açougue São João Ltda.");
                        tela.txtCodigoInf.userType("d");
                        tela.txtNumeroFatura.userType("20");
                      },
                      "WHERE lNumeroFatura = 20 AND MID(sCodigoInf, 1, 1) = 'd' AND " + situacao + "AND " +
                          lado.sChavePessoa + " = 1 AND lPortador = 2 " +
                          (lado.bVendedor ? "AND FaturasCliente.lVendedor = 1 AND FaturasCliente.lCentroCusto = 2 "
                                          : "AND lCentroCusto = 2 ") +
                          "AND dtEmissao BETWEEN #04/01/2026# AND #04/30/2026# AND dtVencimento BETWEEN #05/01/2026# "
                          "AND #05/31/2026# AND dtPagamento BETWEEN #05/01/2026# AND #05/31/2026# ",
                      {avulso}});
    return passos;
  }

  const std::vector<std::string> abertos{"000001/002", "000001/003", "000002/001", "d'avulso"};
};

}  // namespace fenvale
