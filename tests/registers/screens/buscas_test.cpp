// The full searches, the quick searches and the list of banks.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Cadastros.h"
#include "registers/screens/BuscaCodigoNome.h"
#include "registers/screens/TelaBuscaRapida.h"
#include "registers/screens/frmLocalizarBancos.h"
#include "registers/screens/frmLocalizarClientes.h"
#include "registers/screens/frmLocalizarFornecedores.h"
#include "registers/services/Cidade.h"
#include "registers/services/Vendedor.h"
#include "shell/services/Contexto.h"

namespace fenvale {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct CasoCompleta {
  const char* sCadastro;
  const char* sBusca;
  const char* sLegenda;
  const char* sTabela;
  const char* sCodigo;
  const char* sTexto;
  bool bLinhaPadrao;
};
void PrintTo(const CasoCompleta& caso, std::ostream* saida) { *saida << caso.sBusca; }

class BuscaCompleta : public Cadastros, public testing::WithParamInterface<CasoCompleta> {};

TEST_P(BuscaCompleta, NarrowsTheRegistersList) {
  const CasoCompleta& caso = GetParam();
  const std::string sColunas = std::string(caso.sCodigo) + ", " + caso.sTexto;
  inserir(caso.sTabela, sColunas, "1, ''");
  inserir(caso.sTabela, sColunas, "2, 'Ana D''Ávila'");
  inserir(caso.sTabela, sColunas, "3, 'Anabela'");
  inserir(caso.sTabela, sColunas, "4, 'Bruno'");
  auto& tela = abrirCadastro(caso.sCadastro);
  const std::string sVisivel = caso.bLinhaPadrao ? std::string("AND ") + caso.sTexto + " <> '' " : "";

  host.expectScreen(caso.sBusca, [&](Screen& aberta) {
    auto& busca = dynamic_cast<BuscaCodigoNome&>(aberta);
    EXPECT_EQ(busca.caption(), caso.sLegenda);
    EXPECT_EQ(formularioDe(busca), formularioDe(tela));
    EXPECT_EQ(busca.sClausula(), std::string("WHERE MID(") + caso.sTexto + ", 1, 0) = '' " + sVisivel);
    EXPECT_EQ(tela.lstLista.items().size(), caso.bLinhaPadrao ? 3u : 4u) << "every row, once, at opening";

    busca.txtNome.userType("ana d'á");
    EXPECT_EQ(busca.sClausula(), std::string("WHERE MID(") + caso.sTexto + ", 1, 7) = 'ana d''á' " + sVisivel);
    busca.userKey(Key::f6);
    EXPECT_THAT(listados(tela.lstLista), ElementsAre("2|Ana D'Ávila"));
    EXPECT_TRUE(busca.cmdLocalizar.enabled());

    busca.txtNome.userType("Ana");
    busca.txtCodigoInf.userType("3");
    EXPECT_EQ(busca.sClausula(), std::string("WHERE MID(") + caso.sTexto + ", 1, 3) = 'Ana' " + sVisivel + "AND " +
                                     caso.sCodigo + " = 3 ");
    busca.userKey(Key::f6);
    EXPECT_THAT(listados(tela.lstLista), ElementsAre("3|Anabela"));
    EXPECT_TRUE(busca.userKey(Key::enter));
    busca.userKey(Key::escape);
  });
  tela.userKey(Key::f6);
  EXPECT_THAT(listados(tela.lstLista), ElementsAre("3|Anabela")) << "what was found stays when the search closes";
}

INSTANTIATE_TEST_SUITE_P(
    Todas, BuscaCompleta,
    testing::Values(CasoCompleta{"frmCadastroCategorias", "frmLocalizarCategorias", "Localizar categoria", "Categorias",
                                 "btCodigoInf", "sNome", true},
                    CasoCompleta{"frmCadastroPortadores", "frmLocalizarPortadores", "Localizar portador", "Portadores",
                                 "btCodigoInf", "sNome", false},
                    CasoCompleta{"frmCadastroVendedores", "frmLocalizarVendedor", "Localizar vendedor", "Vendedores",
                                 "lCodigoInf", "sNome", true},
                    CasoCompleta{"frmCadastroCentroCusto", "frmLocalizarCentroCusto", "Localizar centro de custo",
                                 "CentroCusto", "btCodigoInf", "sDescricao", true}),
    [](const auto& caso) { return std::string(caso.param.sTabela); });

struct CasoDeTela {
  const char* sCadastro;
  const char* sBusca;
  const char* sLegenda;
};
void PrintTo(const CasoDeTela& caso, std::ostream* saida) { *saida << caso.sBusca; }

/// The full search of every register.
class TelaDeBusca : public Cadastros, public testing::WithParamInterface<CasoDeTela> {};

TEST_P(TelaDeBusca, SearchesOnceAtItsOpeningAndLeavesTheRegisterAsFound) {
  auto& tela = abrirCadastro(GetParam().sCadastro);
  host.expectScreen(GetParam().sBusca, [&](Screen& busca) {
    EXPECT_EQ(busca.caption(), GetParam().sLegenda);
    EXPECT_EQ(busca.title(), GetParam().sLegenda);
    EXPECT_TRUE(botao(busca, "cmdLocalizar").enabled());
    busca.userKey(Key::f6);
    busca.userKey(Key::escape);
    EXPECT_EQ(busca.state(), Screen::State::unloaded);
  });
  tela.userKey(Key::f6);
  EXPECT_EQ(tela.state(), Screen::State::loaded);
}

TEST_P(TelaDeBusca, AsksItsCallerForTheFirstPageOnceAndIsBusyMeanwhile) {
  struct Dirigida : Screen, TelaComLista {
    explicit Dirigida(UiHost& quem) : Screen(quem, "frmDirigida") {}
    void vMontarLista(std::int16_t iInicio, const std::string& sWhere) override {
      pedidas.push_back(std::to_string(iInicio) + "|" + sWhere);
      aoListar();
    }
    std::vector<std::string> pedidas;
    std::function<void()> aoListar;
  } dirigida(host);
  dirigida.aoListar = [&] { EXPECT_FALSE(botao(programa.telas().obter(GetParam().sBusca), "cmdLocalizar").enabled()); };
  std::string sTudo;
  for (int vez = 0; vez < 2; ++vez) {
    dirigida.pedidas.clear();
    host.expectScreen(GetParam().sBusca, [&](Screen& aberta) {
      auto& busca = dynamic_cast<TelaBuscaCompleta&>(aberta);
      if (vez == 0) sTudo = busca.sClausula();
      EXPECT_EQ(busca.sClausula(), sTudo) << "every opening begins with empty boxes";
      EXPECT_THAT(dirigida.pedidas, ElementsAre("0|" + sTudo));
      caixa(busca, "txtCodigoInf").userType("7");
      busca.cmdLocalizar.setFocus();
      busca.userKey(Key::f6);
      EXPECT_THAT(dirigida.pedidas, ElementsAre("0|" + sTudo, "0|" + busca.sClausula()));
      EXPECT_NE(busca.sClausula(), sTudo);
      EXPECT_TRUE(busca.cmdLocalizar.enabled());
      EXPECT_TRUE(busca.cmdLocalizar.hasFocus());
      EXPECT_TRUE(busca.userKey(Key::enter));
      EXPECT_FALSE(busca.cmdLocalizar.hasFocus()) << "Enter goes on";
      busca.unload();
    });
    programa.telas().obter<TelaBusca>(GetParam().sBusca).vLocalizar(dirigida);
  }
}

TEST_P(TelaDeBusca, WithoutTheRightItDoesNothing) {
  auto& tela = abrirCadastro(GetParam().sCadastro);
  host.expectScreen(GetParam().sBusca, [&](Screen& busca) {
    entrarSem("bPoderPesquisar");
    host.expectBox(semPermissao());
    busca.userKey(Key::f6);
    EXPECT_TRUE(botao(busca, "cmdLocalizar").enabled());
    busca.unload();
  });
  tela.userKey(Key::f6);
}

TEST_P(TelaDeBusca, WithNobodyToDriveItReportsAFailureAndStays) {
  host.expectScreen(GetParam().sBusca, [&](Screen& busca) {
    host.expectBox(relatoDeFalha(), BoxAnswer::no);
    busca.userKey(Key::f6);
    EXPECT_EQ(busca.state(), Screen::State::loaded);
    busca.unload();
  });
  host.showModal(programa.telas().obter(GetParam().sBusca));
}

INSTANTIATE_TEST_SUITE_P(
    Todas, TelaDeBusca,
    testing::Values(CasoDeTela{"frmCadastroCategorias", "frmLocalizarCategorias", "Localizar categoria"},
                    CasoDeTela{"frmCadastroPortadores", "frmLocalizarPortadores", "Localizar portador"},
                    CasoDeTela{"frmCadastroVendedores", "frmLocalizarVendedor", "Localizar vendedor"},
                    CasoDeTela{"frmCadastroCentroCusto", "frmLocalizarCentroCusto", "Localizar centro de custo"},
                    CasoDeTela{"frmCadastroClientes", "frmLocalizarClientes", "Localizar cliente"},
                    CasoDeTela{"frmCadastroFornecedores", "frmLocalizarFornecedores", "Localizar fornecedor"},
                    CasoDeTela{"frmCadastroCondicoesPagamento", "frmLocalizarCondicoesPagamento",
                               "Localizar condição de pagamento"}),
    [](const auto& caso) { return std::string(caso.param.sBusca); });

TEST_F(Cadastros, TheSearchOfSuppliersHasALineForEveryBoxInItsOrder) {
  auto& busca = dynamic_cast<frmLocalizarFornecedores&>(abrir("frmLocalizarFornecedores"));
  EXPECT_EQ(busca.sClausula(), "WHERE MID(Fornecedores.sNome, 1, 0) = '' ");
  const auto lCampinas = cidade("Campinas", "SP");
  for (TextControl* caixaDeTexto :
       std::vector<TextControl*>{&busca.txtNome, &busca.txtEndereco, &busca.txtContato, &busca.txtEMail,
                                 &busca.txtHomePage, &busca.txtObs, &busca.txtAgencia, &busca.txtConta})
    caixaDeTexto->userType("d'á");
  busca.txtCodigoInf.userType("8");
  for (MaskBox* caixaComMascara :
       {&busca.txtCEP, &busca.txtTelefone, &busca.txtFax, &busca.txtCPF, &busca.txtIE, &busca.txtCNPJ})
    caixaComMascara->userType("13");
  busca.vSetCategoria(4, "Atacado");
  busca.cidade.vSetEstado2("Campinas", "SP");
  busca.banco.vSetEstado2("Caixa Econômica Federal");
  EXPECT_EQ(busca.sClausula(),
            "WHERE MID(Fornecedores.sNome, 1, 3) = 'd''á' AND lCodigoInf = 8 AND MID(sEndereco, 1, 3) = 'd''á' AND "
            "MID(sCEP, 1, 2) = '13' AND MID(sTelefone, 1, 3) = '(13' AND MID(sFax, 1, 3) = '(13' AND MID(sContato, 1, "
            "3) = 'd''á' AND MID(sCPF, 1, 2) = '13' AND MID(sIE, 1, 2) = '13' AND MID(sCNPJ, 1, 2) = '13' AND "
            "MID(sEmail, 1, 3) = 'd''á' AND MID(sHomePage, 1, 3) = 'd''á' AND MID(txtObs, 1, 3) = 'd''á' AND "
            "MID(sAgencia, 1, 3) = 'd''á' AND MID(sConta, 1, 3) = 'd''á' AND lCategoria = 4 AND lCidade = " +
                std::to_string(lCampinas) + " AND lBanco = 2 ");

  // The clause is one that the register's own query takes.
  auto& tela = abrirCadastro("frmCadastroFornecedores");
  tela.vMontarLista(0, busca.sClausula());
  EXPECT_THAT(tela.lstLista.items(), IsEmpty());

  busca.banco.txtBanco.setFocus();
  busca.userKey(Key::del);
  EXPECT_THAT(busca.sClausula(), testing::Not(testing::HasSubstr("lBanco")));
}

TEST_F(Cadastros, TheSearchOfSuppliersHasTheBoxesOfTheirRegister) {
  EXPECT_THAT(formularioDe(abrir("frmLocalizarFornecedores")),
              ElementsAre("Código: txtCodigoInf <= 2147483647", "Categoria: txtCategoria + cmdBuscarCategoria",
                          "Nome: txtNome 50", "Endereço: txtEndereco 255", "Cidade: txtCidade + cmdBuscarCidade",
                          "UF: txtUF", "CEP: txtCEP 00000-000", "Telefone: txtTelefone (00) 0000-00009",
                          "Fax: txtFax (00) 0000-00009", "Contato: txtContato 50", "CPF: txtCPF 000.000.000-00",
                          "IE: txtIE AAAAAAAAAAAAAA", "CNPJ: txtCNPJ AA.AAA.AAA/AAAA-00", "e-Mail: txtEMail 50",
                          "Home Page: txtHomePage 50", "Observação: txtObs", "Banco: txtBanco + cmdBuscarBancos",
                          "Agência: txtAgencia 6", "Conta: txtConta 15"));
}

class BuscaDeClientes : public Cadastros {
 protected:
  frmLocalizarClientes& abrirBusca() { return dynamic_cast<frmLocalizarClientes&>(abrir("frmLocalizarClientes")); }
};

TEST_F(BuscaDeClientes, TheClauseHasALineForEveryBoxInItsOrder) {
  auto& busca = abrirBusca();
  EXPECT_EQ(busca.sClausula(), "WHERE MID(Clientes.sNome, 1, 0) = '' ");
  const auto lCampinas = cidade("Campinas", "SP");
  for (TextControl* caixaDeTexto : std::vector<TextControl*>{
           &busca.txtNome, &busca.txtEndereco, &busca.txtBairro, &busca.txtContato, &busca.txtRG, &busca.txtPai,
           &busca.txtMae, &busca.txtEMail, &busca.txtHomePage, &busca.txtObs, &busca.txtEnderecoEntrega,
           &busca.txtBairroEntrega, &busca.txtEnderecoCobranca, &busca.txtBairroCobranca})
    caixaDeTexto->userType("á");
  busca.txtCodigoInf.userType("8");
  for (MaskBox* caixaComMascara : {&busca.txtCEP, &busca.txtCEPEntrega, &busca.txtCEPCobranca, &busca.txtTelefone,
                                   &busca.txtFax, &busca.txtCPF, &busca.txtIE, &busca.txtCNPJ})
    caixaComMascara->userType("13");
  busca.chkNascimento.userClick();
  busca.dtNascimentoInicial.userType("01/02/1970");
  busca.dtNascimentoFinal.userType("28/02/1970");
  busca.vSetCategoria(4, "Atacado");
  busca.vSetVendedor(6, "Maria");
  busca.cidade.vSetEstado2("Campinas", "SP");
  busca.cidadeEntrega.vSetEstado2("Campinas", "SP");
  busca.cidadeCobranca.vSetEstado2("Campinas", "SP");
  const std::string sCampinas = std::to_string(lCampinas) + " ";
  EXPECT_EQ(busca.sClausula(),
            "WHERE MID(Clientes.sNome, 1, 1) = 'á' AND lCodigoInf = 8 AND MID(sEndereco, 1, 1) = 'á' AND MID(sBairro, "
            "1, 1) = 'á' AND MID(sCEP, 1, 2) = '13' AND MID(sTelefone, 1, 3) = '(13' AND MID(sFax, 1, 3) = '(13' AND "
            "MID(sContato, 1, 1) = 'á' AND MID(sRG, 1, 1) = 'á' AND MID(sCPF, 1, 2) = '13' AND MID(sIE, 1, 2) = '13' "
            "AND MID(sCNPJ, 1, 2) = '13' AND MID(sPai, 1, 1) = 'á' AND MID(sMae, 1, 1) = 'á' AND MID(sEmail, 1, 1) = "
            "'á' AND dtNascimento BETWEEN #02/01/1970# AND #02/28/1970# AND MID(sHomePage, 1, 1) = 'á' AND MID(txtObs, "
            "1, 1) = 'á' AND MID(sEnderecoEntrega, 1, 1) = 'á' AND MID(sBairroEntrega, 1, 1) = 'á' AND "
            "MID(sCEPEntrega, 1, 2) = '13' AND MID(sEnderecoCobranca, 1, 1) = 'á' AND MID(sBairroCobranca, 1, 1) = 'á' "
            "AND MID(sCEPCobranca, 1, 2) = '13' AND lCategoria = 4 AND lCidade = " +
                sCampinas + "AND lVendedor = 6 AND lCidadeEntrega = " + sCampinas +
                "AND lCidadeCobranca = " + sCampinas);

  // The clause is one that the register's own query takes.
  auto& tela = abrirCadastro("frmCadastroClientes");
  tela.vMontarLista(0, busca.sClausula());
  EXPECT_THAT(tela.lstLista.items(), IsEmpty());
}

TEST_F(BuscaDeClientes, HasTheBoxesOfTheRegisterInTheSamePlaces) {
  EXPECT_THAT(
      formularioDe(abrirBusca()),
      ElementsAre("[Dados gerais]", "Código: txtCodigoInf <= 2147483647",
                  "Categoria: txtCategoria + cmdBuscarCategoria", "Nome: txtNome 50", "Endereço: txtEndereco 100",
                  "Bairro: txtBairro 50", "Cidade: txtCidade + cmdBuscarCidade", "UF: txtUF", "CEP: txtCEP 00000-000",
                  "Telefone: txtTelefone (00) 0000-00009", "Fax: txtFax (00) 0000-00009", "Contato: txtContato 50",
                  "Vendedor: txtVendedor + cmdBuscarVendedor", "RG: txtRG 255", "CPF: txtCPF 000.000.000-00",
                  "IE: txtIE AAAAAAAAAAAAAA", "CNPJ: txtCNPJ AA.AAA.AAA/AAAA-00", "De: dtNascimentoInicial",
                  "Até: dtNascimentoFinal", "e-Mail: txtEMail 50", "Home Page: txtHomePage 50", "Observação: txtObs",
                  "[Filiação]", "Nome do pai: txtPai 50", "Nome da mãe: txtMae 50", "[Local de entrega]",
                  "Endereço: txtEnderecoEntrega 100", "Bairro: txtBairroEntrega 50",
                  "Cidade: txtCidadeEntrega + cmdBuscaCidadeEntrega", "UF: txtUFEntrega",
                  "CEP: txtCEPEntrega 00000-000", "[Local de cobrança]", "Endereço: txtEnderecoCobranca 100",
                  "Bairro: txtBairroCobranca 50", "Cidade: txtCidadeCobranca + cmdBuscaCidadeCobranca",
                  "UF: txtUFCobranca", "CEP: txtCEPCobranca 00000-000"));
}

TEST_F(BuscaDeClientes, DeleteOnAnyOfItsPickedBoxesDropsItsLine) {
  auto& busca = abrirBusca();
  const std::string sTudo = busca.sClausula();
  cidade("Campinas", "SP");
  struct Caso {
    std::function<void()> escolher;
    std::vector<TextControl*> caixas;
    const char* sCampo;
  };
  for (const Caso& caso : {Caso{[&] { busca.vSetVendedor(6, "Maria"); }, {&busca.txtVendedor}, "AND lVendedor = 6 "},
                           Caso{[&] { busca.cidadeEntrega.vSetEstado2("Campinas", "SP"); },
                                {&busca.cidadeEntrega.txtCidade, &busca.cidadeEntrega.txtUF},
                                "AND lCidadeEntrega = "},
                           Caso{[&] { busca.cidadeCobranca.vSetEstado2("Campinas", "SP"); },
                                {&busca.cidadeCobranca.txtCidade, &busca.cidadeCobranca.txtUF},
                                "AND lCidadeCobranca = "}})
    for (TextControl* picada : caso.caixas) {
      caso.escolher();
      EXPECT_THAT(busca.sClausula(), testing::StartsWith(sTudo + caso.sCampo));
      picada->setFocus();
      busca.userKey(Key::insert);
      EXPECT_NE(busca.sClausula(), sTudo) << "a search registers nothing";
      busca.userKey(Key::del);
      EXPECT_EQ(busca.sClausula(), sTudo);
      EXPECT_EQ(picada->text(), "");
      EXPECT_TRUE(picada->hasFocus());
    }
}

TEST_F(BuscaDeClientes, TheMagnifiersOpenTheQuickSearches) {
  const auto lCategoria = inserir("Categorias", "btCodigoInf, sNome", "3, 'Atacado'");
  vendedores(1);
  auto& busca = abrirBusca();
  const auto escolherAPrimeira = [](Screen& aberta) {
    auto& lst = dynamic_cast<ListView&>(*aberta.control("lstLista"));
    lst.userClickRow(0);
    lst.userClickRow(0);
  };
  host.expectScreen("frmLocalizarCategoriasRapido", escolherAPrimeira);
  botao(busca, "cmdBuscarCategoria").userClick();
  host.expectScreen("frmLocalizarVendedoresRapido", escolherAPrimeira);
  botao(busca, "cmdBuscarVendedor").userClick();
  EXPECT_EQ(busca.txtCategoria.text() + "|" + busca.txtVendedor.text(), "Atacado|Vendedor 001");
  EXPECT_THAT(busca.sClausula(),
              testing::EndsWith("AND lCategoria = " + std::to_string(lCategoria) + " AND lVendedor = 1 "));
}

TEST_F(BuscaDeClientes, TheBirthdaysAreChosenOnlyWithTheirTick) {
  auto& busca = abrirBusca();
  EXPECT_EQ(busca.dtNascimentoInicial.value(), programa.relogio().today());
  EXPECT_EQ(busca.dtNascimentoFinal.value(), programa.relogio().today());
  EXPECT_FALSE(busca.dtNascimentoInicial.enabled());
  EXPECT_FALSE(busca.dtNascimentoFinal.enabled());
  busca.chkNascimento.userClick();
  EXPECT_TRUE(busca.dtNascimentoInicial.enabled());
  EXPECT_TRUE(busca.dtNascimentoFinal.enabled());
  busca.chkNascimento.userClick();
  EXPECT_FALSE(busca.dtNascimentoInicial.enabled());
  EXPECT_FALSE(busca.dtNascimentoFinal.enabled());
  EXPECT_EQ(busca.sClausula(), "WHERE MID(Clientes.sNome, 1, 0) = '' ");
}

/// Opens quick searches and takes whatever they pick.
struct Recebedora : Screen,
                    ReceptorCategoria,
                    ReceptorVendedor,
                    ReceptorCliente,
                    ReceptorPortador,
                    ReceptorFornecedor,
                    ReceptorCentroCusto,
                    ReceptorCondicaoPagamento {
  explicit Recebedora(UiHost& host) : Screen(host, "frmRecebedora") {}
  void vSetCategoria(std::int32_t lCodigo, const std::string& sNome) override { receber("categoria", lCodigo, sNome); }
  void vSetVendedor(std::int32_t lCodigo, const std::string& sNome) override { receber("vendedor", lCodigo, sNome); }
  void vSetCliente(std::int32_t lCodigo, const std::string& sNome) override { receber("cliente", lCodigo, sNome); }
  void vSetPortador(std::int32_t lCodigo, const std::string& sNome) override { receber("portador", lCodigo, sNome); }
  void vSetFornecedor(std::int32_t lCodigo, const std::string& sNome) override {
    receber("fornecedor", lCodigo, sNome);
  }
  void vSetCentroCusto(std::int32_t lCodigo, const std::string& sDescricao) override {
    receber("centro", lCodigo, sDescricao);
  }
  void vSetCondicaoPagamento(std::int32_t lCodigo, std::int32_t btCodigoInf, std::int32_t iNumeroParcelas,
                             std::int32_t iIntervalo, std::int32_t bitEntrada) override {
    receber("condicao", lCodigo,
            std::to_string(btCodigoInf) + "/" + std::to_string(iNumeroParcelas) + "/" + std::to_string(iIntervalo) +
                "/" + std::to_string(bitEntrada));
  }
  void receber(const std::string& sQue, std::int32_t lCodigo, const std::string& sTexto) {
    recebido = sQue + "|" + std::to_string(lCodigo) + "|" + sTexto;
    if (aoReceber) aoReceber();
  }
  std::function<void()> aoReceber;
  std::string recebido;
};

struct CasoRapida {
  const char* sBusca;
  const char* sLegenda;
  const char* sTabela;
  const char* sCodigo;
  const char* sTexto;
  bool bLinhaPadrao;
  const char* sQue;
  const char* sOutrasColunas;
  const char* sOutrosValores;
};
void PrintTo(const CasoRapida& caso, std::ostream* saida) { *saida << caso.sBusca; }

class BuscaRapida : public Cadastros, public testing::WithParamInterface<CasoRapida> {
 protected:
  BuscaRapida() {
    cidade("Campinas", "SP");
    if (caso.sOutrasColunas[0] != 0) {  // rows that refer to others
      inserir("Categorias", "btCodigoInf, sNome", "1, 'Varejo'");
      inserir("Vendedores", "lCodigoInf, sNome", "1, 'Maria'");
    }
  }
  std::int32_t linha(int iCodigo, const std::string& sNome) {
    return inserir(caso.sTabela, std::string(caso.sCodigo) + ", " + caso.sTexto + caso.sOutrasColunas,
                   std::to_string(iCodigo) + ", '" + sNome + "'" + caso.sOutrosValores);
  }
  void localizar(const std::function<void(TelaBuscaRapida&)>& agir) {
    host.expectScreen(caso.sBusca, [agir](Screen& aberta) { agir(dynamic_cast<TelaBuscaRapida&>(aberta)); });
    programa.telas().obter<TelaBusca>(caso.sBusca).vLocalizar(chamadora);
  }

  const CasoRapida& caso = GetParam();
  Recebedora chamadora{host};
};

TEST_P(BuscaRapida, ListsByTheBeginningOfTheName) {
  linha(1, "");
  linha(2, "Ana");
  linha(3, "Bruno");
  localizar([&](TelaBuscaRapida& busca) {
    EXPECT_EQ(busca.caption(), caso.sLegenda);
    EXPECT_EQ(busca.lstLista.items().size(), caso.bLinhaPadrao ? 2u : 3u);
    caixa(busca, "txtNome").userType("an");
    EXPECT_EQ(busca.sConsulta(), std::string("SELECT lCodigo, ") + caso.sCodigo + ", " + caso.sTexto + " FROM " +
                                     caso.sTabela + " WHERE MID(" + caso.sTexto + ", 1, 2) = 'an' " +
                                     (caso.bLinhaPadrao ? std::string("AND ") + caso.sTexto + " <> '' " : "") +
                                     "ORDER BY " + caso.sCodigo + ", " + caso.sTexto + " ");
    busca.userKey(Key::f6);
    EXPECT_THAT(listados(busca.lstLista), ElementsAre("2|Ana"));
    busca.userKey(Key::escape);
  });
  EXPECT_EQ(chamadora.recebido, "");
}

TEST_P(BuscaRapida, TwoClicksOnTheSameRowPickIt) {
  const auto lAna = linha(2, "Ana");
  const auto lBruno = linha(3, "Bruno");
  programa.configuracoes().vSetClickAnterior(lAna);  // left behind by a list of another screen
  localizar([&](TelaBuscaRapida& busca) {
    EXPECT_EQ(programa.configuracoes().lGetClickAnterior(), -1);
    busca.lstLista.userClickRow(0);
    EXPECT_EQ(busca.state(), Screen::State::loaded);
    busca.lstLista.userClickRow(1);
    EXPECT_EQ(chamadora.recebido, "") << "a click on another row begins anew";
    busca.lstLista.userMoveCursor(0);
    chamadora.aoReceber = [&] { EXPECT_EQ(busca.state(), Screen::State::loaded) << "it closes afterwards"; };
    busca.lstLista.userClickRow(1);
    EXPECT_EQ(busca.state(), Screen::State::unloaded);
  });
  EXPECT_EQ(chamadora.recebido, std::string(caso.sQue) + "|" + std::to_string(lBruno) + "|Bruno");
}

TEST_P(BuscaRapida, HasOneBoxTwoColumnsAndWidthsOfItsOwn) {
  const std::string sRotulo = std::string(caso.sTexto) == "sDescricao" ? "Descrição" : "Nome";
  localizar([&](TelaBuscaRapida& busca) {
    EXPECT_EQ(busca.title(), caso.sLegenda);
    EXPECT_THAT(formularioDe(busca), ElementsAre(sRotulo + ": txtNome 50"));
    EXPECT_THAT(cabecalhos(busca.lstLista), ElementsAre("Código", sRotulo));
    EXPECT_EQ(busca.pbBarrra.value(), 0);
    busca.lstLista.userResizeColumn(1, 1234);
    EXPECT_TRUE(busca.userKey(Key::enter));
    busca.userKey(Key::escape);
  });
  EXPECT_TRUE(programa.pasta().existe(std::string("list/") + caso.sBusca + ".lstList.XML"));
  localizar([&](TelaBuscaRapida& busca) {
    EXPECT_EQ(busca.lstLista.columnWidth(1), 1234);
    busca.unload();
  });
}

TEST_P(BuscaRapida, WithNobodyToCallBackItReportsAFailureAndStays) {
  linha(2, "Ana");
  host.expectScreen(caso.sBusca, [&](Screen& aberta) {
    auto& busca = dynamic_cast<TelaBuscaRapida&>(aberta);
    busca.userKey(Key::f6);
    host.expectBox(relatoDeFalha(), BoxAnswer::no);
    busca.lstLista.userClickRow(0);
    busca.lstLista.userClickRow(0);
    EXPECT_EQ(busca.state(), Screen::State::loaded);
    busca.unload();
  });
  host.showModal(programa.telas().obter(caso.sBusca));
}

TEST_P(BuscaRapida, PagesKeepWhatWasTyped) {
  tamanhoDaPagina(2);
  for (int i = 1; i <= 7; ++i) linha(i, (i == 4 ? "Outro" : "Ana " + std::to_string(i)));
  localizar([&](TelaBuscaRapida& busca) {
    caixa(busca, "txtNome").userType("Ana");
    busca.userKey(Key::f6);
    busca.scrPaginas.userMove(1);
    EXPECT_THAT(listados(busca.lstLista), ElementsAre("3|Ana 3", "5|Ana 5"));
    busca.lstLista.userClickColumn(1);
    busca.lstLista.userClickColumn(1);
    EXPECT_THAT(listados(busca.lstLista), ElementsAre("5|Ana 5", "3|Ana 3"));
    busca.unload();
  });
}

TEST_P(BuscaRapida, WithoutTheRightItOpensEmpty) {
  linha(2, "Ana");
  entrarSem("bPoderPesquisar");
  host.expectBox(semPermissao());
  localizar([&](TelaBuscaRapida& busca) {
    EXPECT_THAT(busca.lstLista.items(), IsEmpty());
    busca.unload();
  });
}

TEST_P(BuscaRapida, ACallerThatCannotTakeTheRowIsReported) {
  linha(2, "Ana");
  struct Surda : Screen {
    explicit Surda(UiHost& quem) : Screen(quem, "frmSurda") {}
  } surda(host);
  host.expectScreen(caso.sBusca, [&](Screen& busca) {
    auto& lst = dynamic_cast<TelaBuscaRapida&>(busca).lstLista;
    lst.userClickRow(0);
    host.expectBox(relatoDeFalha(), BoxAnswer::no);
    lst.userClickRow(0);
    busca.unload();
  });
  programa.telas().obter<TelaBusca>(caso.sBusca).vLocalizar(surda);
}

INSTANTIATE_TEST_SUITE_P(
    Todas, BuscaRapida,
    testing::Values(CasoRapida{"frmLocalizarCategoriasRapido", "Localizar categoria", "Categorias", "btCodigoInf",
                               "sNome", true, "categoria", "", ""},
                    CasoRapida{"frmLocalizarVendedoresRapido", "Localizar vendedores", "Vendedores", "lCodigoInf",
                               "sNome", true, "vendedor", "", ""},
                    CasoRapida{"frmLocalizarClientesRapido", "Localizar clientes", "Clientes", "lCodigoInf", "sNome",
                               false, "cliente", ", lCategoria, lCidade, lVendedor, lCidadeEntrega, lCidadeCobranca",
                               ", 1, 1, 1, 1, 1"},
                    CasoRapida{"frmLocalizarPortadoresRapido", "Localizar portadores", "Portadores", "btCodigoInf",
                               "sNome", false, "portador", "", ""},
                    CasoRapida{"frmLocalizarFornecedoresRapido", "Localizar fornecedores", "Fornecedores", "lCodigoInf",
                               "sNome", false, "fornecedor", ", lCategoria, lCidade, lBanco", ", 1, 1, 1"},
                    CasoRapida{"frmLocalizarCentroCustoRapido", "Localizar centros de custo", "CentroCusto",
                               "btCodigoInf", "sDescricao", true, "centro", "", ""}),
    [](const auto& caso) { return std::string(caso.param.sTabela); });

TEST_F(Cadastros, TheQuickSearchOfConditionsIsByTheExactCode) {
  inserir("CondicoesPagamento", "btCodigoInf, iNumeroParcelas, iIntervalo, bitEntrada", "1, 1, 0, 0");
  const auto lChave =
      inserir("CondicoesPagamento", "btCodigoInf, iNumeroParcelas, iIntervalo, bitEntrada", "12, 3, 30, -1");
  Recebedora chamadora(host);
  host.expectScreen("frmLocalizarCondicoesPagamentoRapido", [&](Screen& aberta) {
    auto& busca = dynamic_cast<TelaBuscaRapida&>(aberta);
    EXPECT_EQ(busca.caption(), "Localizar condições de pagamento");
    EXPECT_THAT(formularioDe(busca), ElementsAre("Código: txtCodigoInf <= 255"));
    EXPECT_THAT(cabecalhos(busca.lstLista),
                ElementsAre("Código", "Número de parcelas", "Intervalo de vecimento", "Com entrada"));
    const std::string sInicio =
        "SELECT lCodigo, btCodigoInf, iNumeroParcelas, iIntervalo, IIF(bitEntrada = 0, 'Não', 'Sim') AS ComEntrada "
        "FROM CondicoesPagamento ";
    EXPECT_EQ(busca.sConsulta(), sInicio + "ORDER BY btCodigoInf ");
    EXPECT_EQ(busca.lstLista.items().size(), 2u);
    caixa(busca, "txtCodigoInf").userType("12");
    EXPECT_EQ(busca.sConsulta(), sInicio + "WHERE btCodigoInf = 12 ORDER BY btCodigoInf ");
    busca.userKey(Key::f6);
    EXPECT_THAT(listados(busca.lstLista), ElementsAre("12|3|30|Sim"));
    busca.lstLista.userClickRow(0);
    busca.lstLista.userClickRow(0);
  });
  programa.telas().obter<TelaBusca>("frmLocalizarCondicoesPagamentoRapido").vLocalizar(chamadora);
  EXPECT_EQ(chamadora.recebido, "condicao|" + std::to_string(lChave) + "|12/3/30/-1");
}

TEST_F(Cadastros, TheSearchOfSalespeopleFillsAnObjectAndABoxForACallerWithoutACallback) {
  vendedores(2);
  struct Chamadora : Screen {
    explicit Chamadora(UiHost& quem) : Screen(quem, "frmChamadora") {}
    LookupBox txtVendedor{*this, "txtVendedor"};
  } chamadora(host);
  Vendedor vendedor;
  EXPECT_EQ(vendedor.lGetCodigo(), -1);
  EXPECT_STREQ(Vendedor::sGetName(), "Vendedor");
  const auto segundaLinhaDuasVezes = [&](Screen& aberta) {
    auto& busca = dynamic_cast<TelaBuscaRapida&>(aberta);
    EXPECT_THAT(listados(busca.lstLista), ElementsAre("1|Vendedor 001", "2|Vendedor 002"));
    busca.lstLista.userClickRow(1);
    EXPECT_EQ(busca.state(), Screen::State::loaded);
    busca.lstLista.userClickRow(1);
  };
  host.expectScreen("frmLocalizarVendedoresRapido", segundaLinhaDuasVezes);
  programa.telas()
      .obter<TelaBuscaVendedores>("frmLocalizarVendedoresRapido")
      .vLocalizarOBJ(vendedor, chamadora.txtVendedor);
  EXPECT_EQ(vendedor.lGetCodigo(), 2);
  EXPECT_EQ(vendedor.sGetNome(), "Vendedor 002");
  EXPECT_EQ(chamadora.txtVendedor.text(), "Vendedor 002");

  Recebedora outra(host);
  host.expectScreen("frmLocalizarVendedoresRapido", segundaLinhaDuasVezes);
  vendedor.vSetEstado(-1, "");
  programa.telas().obter<TelaBusca>("frmLocalizarVendedoresRapido").vLocalizar(outra);
  EXPECT_EQ(outra.recebido, "vendedor|2|Vendedor 002");
  EXPECT_EQ(vendedor.lGetCodigo(), -1);
}

class Bancos : public Cadastros {
 protected:
  Bancos() {
    executar("DELETE * FROM Bancos");
    inserir("Bancos", "iCodigoInf, sNome", "341, 'Banco Azul'");
    lVerde = inserir("Bancos", "iCodigoInf, sNome", "1, 'Banco Verde'");
  }
  struct Chamadora : Screen {
    explicit Chamadora(UiHost& quem) : Screen(quem, "frmChamadora") {}
    LookupBox txtBanco{*this, "txtBanco"};
  };
  std::int32_t lVerde = 0;
  Chamadora chamadora{host};
  Banco banco;
};

TEST_F(Bancos, TwoClicksPickABank) {
  host.expectScreen("frmLocalizarBancos", [&](Screen& aberta) {
    auto& busca = dynamic_cast<frmLocalizarBancos&>(aberta);
    EXPECT_THAT(listados(busca.lstLista), ElementsAre("1|Banco Verde", "341|Banco Azul"));
    EXPECT_EQ(busca.lstLista.item(0)->key(), "00000" + std::to_string(lVerde));
    busca.txtNome.userType("banco v");
    EXPECT_EQ(busca.sConsulta(),
              "SELECT lCodigo, iCodigoInf, sNome FROM Bancos WHERE Mid$(sNome, 1, 7) = 'banco v' "
              "ORDER BY iCodigoInf, sNome ");
    busca.userKey(Key::f6);
    busca.lstLista.userClickRow(0);
    EXPECT_EQ(banco.lGetCodigo(), -1) << "the first click only selects";
    EXPECT_EQ(programa.configuracoes().lGetClickAnterior(), lVerde);
    busca.lstLista.userClickRow(0);
    EXPECT_EQ(busca.state(), Screen::State::unloaded);
  });
  dynamic_cast<frmLocalizarBancos&>(programa.telas().obter("frmLocalizarBancos"))
      .vLocalizarBanco(chamadora, banco, chamadora.txtBanco);
  EXPECT_EQ(banco.lGetCodigo(), lVerde);
  EXPECT_EQ(banco.iGetCodigoInf(), 1);
  EXPECT_EQ(banco.sGetNome(), "Banco Verde");
  EXPECT_EQ(chamadora.txtBanco.text(), "Banco Verde");
}

TEST_F(Bancos, SearchOnceAtTheirOpeningWithTheRight) {
  entrarSem("bPoderPesquisar");
  host.expectBox(semPermissao());
  host.expectScreen("frmLocalizarBancos", [&](Screen& aberta) {
    auto& busca = dynamic_cast<frmLocalizarBancos&>(aberta);
    EXPECT_THAT(busca.lstLista.items(), IsEmpty());
    EXPECT_EQ(busca.title(), "Localizar bancos");
    EXPECT_THAT(formularioDe(busca), ElementsAre("Nome: txtNome 50"));
    EXPECT_THAT(cabecalhos(busca.lstLista), ElementsAre("Código", "Nome"));
    busca.lstLista.userResizeColumn(1, 1234);
    busca.unload();
  });
  dynamic_cast<frmLocalizarBancos&>(programa.telas().obter("frmLocalizarBancos"))
      .vLocalizarBanco(chamadora, banco, chamadora.txtBanco);
  EXPECT_EQ(banco.lGetCodigo(), -1);
  EXPECT_TRUE(programa.pasta().existe("list/frmLocalizarBancos.lstList.XML"));
  programa.permissoes().vSetPermissoes(0);
  EXPECT_EQ(dynamic_cast<frmLocalizarBancos&>(abrir("frmLocalizarBancos")).lstLista.columnWidth(1), 1234);
}

TEST_F(Bancos, OpenedToBeLookedAtTheyPickNothing) {
  auto& busca = dynamic_cast<frmLocalizarBancos&>(abrir("frmLocalizarBancos"));
  EXPECT_EQ(busca.lstLista.items().size(), 2u);
  busca.lstLista.userClickRow(0);
  busca.lstLista.userClickRow(0);
  EXPECT_EQ(busca.state(), Screen::State::unloaded);
}

TEST_F(Bancos, ANameWithoutARowIsNoBank) {
  banco.vSetEstado2(programa, "Banco Verde");
  EXPECT_EQ(banco.lGetCodigo(), lVerde);
  banco.vSetEstado2(programa, "Banco Cinza");
  EXPECT_EQ(banco.lGetCodigo(), -1);
}

}  // namespace
}  // namespace fenvale
