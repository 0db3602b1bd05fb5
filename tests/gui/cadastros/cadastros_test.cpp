// The registers in real windows, by keyboard alone.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "access/services/Permissoes.h"
#include "gui/cadastros/CadastrosEmJanelas.h"
#include "gui/support/LookChecks.h"
#include "platform/base/Error.h"
#include "platform/ui/Boxes.h"
#include "platform/ui/Menu.h"
#include "registers/screens/TelaCadastro.h"
#include "registers/screens/frmCadastroClientes.h"
#include "registers/screens/frmCadastroFornecedores.h"

namespace fenvale::qt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Whoever opens a search, and lists nothing.
struct Chamadora final : Screen, TelaComLista {
  explicit Chamadora(UiHost& quem) : Screen(quem, "frmChamadora") {}
  void vMontarLista(std::int16_t, const std::string&) override {}
};

TEST_F(CadastrosEmJanelas, NothingIsCutHiddenOrOutOfReach) {
  for (const char* sTela :
       {"frmCadastroCategorias", "frmCadastroVendedores", "frmCadastroPortadores", "frmCadastroCentroCusto",
        "frmCadastroCondicoesPagamento", "frmCadastroClientes", "frmCadastroFornecedores", "frmLocalizarBancos"}) {
    Screen& tela = abrir(sTela);
    EXPECT_THAT(faultsOf(host, tela), IsEmpty()) << sTela;
    tela.unload();
  }
  Chamadora chamadora(host);
  for (const char* sTela :
       {"frmLocalizarCategorias", "frmLocalizarVendedor", "frmLocalizarPortadores", "frmLocalizarCentroCusto",
        "frmLocalizarCondicoesPagamento", "frmLocalizarClientes", "frmLocalizarFornecedores",
        "frmLocalizarCategoriasRapido", "frmLocalizarVendedoresRapido", "frmLocalizarClientesRapido",
        "frmLocalizarPortadoresRapido", "frmLocalizarFornecedoresRapido", "frmLocalizarCentroCustoRapido",
        "frmLocalizarCondicoesPagamentoRapido"}) {
    whenOpened(host, [&] {
      Screen& busca = programa.telas().obter(sTela);
      EXPECT_THAT(faultsOf(host, busca), IsEmpty()) << sTela;
      busca.unload();
    });
    programa.telas().obter<TelaBusca>(sTela).vLocalizar(chamadora);
  }
}

TEST_F(CadastrosEmJanelas, ARecordIsTypedAndStored) {
  auto& tela = dynamic_cast<TelaCadastro&>(abrir("frmCadastroCategorias"));
  tecla(Qt::Key_Return);
  escrever("Padaria");
  whenOpened(host, [&] { press(host, Qt::Key_Return); });
  tecla(Qt::Key_F3);
  ASSERT_EQ(tela.lstLista.items().size(), 3u);
  EXPECT_EQ(tela.lstLista.item(2)->subItem(1), "Padaria");
  tecla(Qt::Key_Escape);
  EXPECT_EQ(tela.state(), Screen::State::unloaded);
}

TEST_F(CadastrosEmJanelas, TheProposedCodeOfANewRecordIsTypedOverWhereverTheFocusWas) {
  auto& tela = dynamic_cast<TelaCadastro&>(abrir("frmCadastroCategorias"));
  auto& txtCodigoInf = dynamic_cast<TextControl&>(*tela.control("txtCodigoInf"));
  for (const bool bJaNoCodigo : {true, false}) {
    if (!bJaNoCodigo) tecla(Qt::Key_Tab);
    tecla(Qt::Key_F2);
    EXPECT_EQ(txtCodigoInf.text(), "3");
    escrever("41");
    EXPECT_EQ(txtCodigoInf.text(), "41");
  }
}

TEST_F(CadastrosEmJanelas, ACategoryIsPickedByKeys) {
  auto& tela = dynamic_cast<frmCadastroClientes&>(abrir("frmCadastroClientes"));
  tecla(Qt::Key_Tab);
  ASSERT_TRUE(tela.txtCategoria.hasFocus());
  whenOpened(host, [&] {
    escrever("var");
    tecla(Qt::Key_F6);
    escrever("e");  // the box still has the keyboard after the fill
    EXPECT_EQ(dynamic_cast<TextControl&>(*host.activeScreen()->control("txtNome")).text(), "vare");
    tecla(Qt::Key_Tab);
    tecla(Qt::Key_Space);
    tecla(Qt::Key_Space);
  });
  tecla(Qt::Key_Space);
  EXPECT_EQ(tela.txtCategoria.text(), "Varejo");
  EXPECT_TRUE(tela.txtNome.hasFocus());
  tela.unload();
}

TEST_F(CadastrosEmJanelas, ASupplierIsTypedPickedAndStoredByKeysAlone) {
  auto& tela = dynamic_cast<frmCadastroFornecedores&>(abrir("frmCadastroFornecedores"));
  ASSERT_TRUE(tela.txtCodigoInf.hasFocus());
  escrever("41");
  escolher(tela.txtCategoria, "ata", 2);
  ASSERT_TRUE(tela.txtNome.hasFocus());
  escrever("Frigorífico Aurora");
  tecla(Qt::Key_Return);
  ASSERT_TRUE(tela.txtEndereco.hasFocus()) << "Enter goes on";
  escrever("Rodovia SP-304, km 10");
  escolher(tela.cidade.txtCidade, "Londr", 1);
  EXPECT_EQ(tela.cidade.txtUF.text(), "PR");
  irPara(tela.txtCEP);
  escrever("86010370");
  irPara(tela.txtCNPJ);
  escrever("11444777000161");
  escolher(tela.banco.txtBanco, "Caixa", 2);
  ASSERT_TRUE(tela.txtAgencia.hasFocus()) << "a picked bank leads on to its branch";
  escrever("0296-8");
  tecla(Qt::Key_Return);
  ASSERT_TRUE(tela.txtConta.hasFocus());
  escrever("103.456-7");
  whenOpened(host, [&] { press(host, Qt::Key_Return); });
  tecla(Qt::Key_F3);
  ASSERT_EQ(tela.lstLista.items().size(), 1u);
  std::vector<std::string> celulas;
  for (std::size_t i = 1; i <= tela.lstLista.item(0)->subItemCount(); ++i)
    celulas.push_back(tela.lstLista.item(0)->subItem(i));
  EXPECT_THAT(celulas, ElementsAre("1", "1", "Frigorífico Aurora", "Rodovia SP-304, km 10", "Londrina", "PR",
                                   "86010-370", "", "", "", "", "", "11.444.777/0001-61", "", "",
                                   "Caixa Econômica Federal", "0296-8", "103.456-7", ""));
  EXPECT_EQ(tela.txtCodigoInf.text(), "42");
  tecla(Qt::Key_Escape);
  EXPECT_EQ(tela.state(), Screen::State::unloaded);
}

TEST_F(CadastrosEmJanelas, ACustomerIsTypedAcrossItsTabsAndItsTitlesAreAskedForByKeysAlone) {
  auto& tela = dynamic_cast<frmCadastroClientes&>(abrir("frmCadastroClientes"));
  const auto proxima = [&](Control& esperada, std::string_view sTexto) {
    tecla(Qt::Key_Return);
    ASSERT_TRUE(esperada.hasFocus()) << esperada.name();
    escrever(sTexto);
  };
  escrever("41");
  escolher(tela.txtCategoria, "ata", 2);
  ASSERT_TRUE(tela.txtNome.hasFocus());
  escrever("Açougue São João");
  proxima(tela.txtLimiteCredito, "1500,00");
  proxima(tela.txtEndereco, "Rua Sergipe, 100");
  proxima(tela.txtBairro, "Centro");
  escolher(tela.cidade.txtUF, "Londr", 1);
  ASSERT_TRUE(tela.txtCEP.hasFocus()) << "a picked city leads on to the post code";
  escrever("86010370");
  proxima(tela.txtTelefone, "4333221100");
  proxima(tela.txtFax, "4333221101");
  proxima(tela.txtContato, "João");
  escolher(tela.txtVendedor, "Vend", 2);
  ASSERT_TRUE(tela.txtRG.hasFocus()) << "a picked salesperson leads on to the identity card";
  escrever("22.333.444-X");
  proxima(tela.txtCPF, "11144477735");
  proxima(tela.txtIE, "ISENTO");
  proxima(tela.txtCNPJ, "");
  proxima(tela.dtNascimento, "12081975");
  proxima(tela.txtEMail, "joao@acougue.com.br");
  proxima(tela.txtHomePage, "www.acougue.com.br");
  proxima(tela.txtObs, "Paga na segunda");
  auto* const abas = windowOf(tela)->findChild<QTabWidget*>();
  ASSERT_NE(abas, nullptr);
  irPara(tela.txtPai);
  EXPECT_EQ(abas->currentIndex(), 1);
  escrever("Pedro");
  proxima(tela.txtMae, "Glória");
  irPara(tela.txtEnderecoEntrega);
  EXPECT_EQ(abas->currentIndex(), 2);
  escrever("Rua 3");
  proxima(tela.txtBairroEntrega, "Vila Rica");
  escolher(tela.cidadeEntrega.txtCidade, "São", 1);
  ASSERT_TRUE(tela.txtEnderecoCobranca.hasFocus()) << "a picked place of delivery leads on to the next tab";
  EXPECT_EQ(abas->currentIndex(), 3);
  escrever("Rua 4");
  escolher(tela.cidadeCobranca.txtCidade, "São", 1);
  EXPECT_TRUE(tela.cidadeCobranca.txtCidade.hasFocus());
  EXPECT_EQ(tela.cidadeCobranca.txtUF.text(), "SP");
  whenOpened(host, [&] { press(host, Qt::Key_Return); });
  tecla(Qt::Key_F3);
  EXPECT_EQ(abas->currentIndex(), 0) << "back at the code of the next record";
  EXPECT_TRUE(tela.txtCodigoInf.hasFocus());
  ASSERT_EQ(tela.lstLista.items().size(), 1u);
  std::vector<std::string> celulas;
  for (std::size_t i = 2; i <= tela.lstLista.item(0)->subItemCount(); ++i)
    celulas.push_back(tela.lstLista.item(0)->subItem(i));
  EXPECT_THAT(celulas, ElementsAre("1", "Açougue São João", "1.500,00", "Rua Sergipe, 100", "Centro", "Londrina", "PR",
                                   "86010-370", "(43) 3322-1100", "(43) 3322-1101", "João", "1", "Vendedor",
                                   "22.333.444-X", "111.444.777-35", "ISENTO", "", "12/08/1975", "joao@acougue.com.br",
                                   "www.acougue.com.br", "Paga na segunda", "Pedro", "Glória", "Rua 3", "Vila Rica", "",
                                   "São Paulo", "SP", "Rua 4", "", "", "São Paulo", "SP"));

  irPara(tela.lstLista);
  tecla(Qt::Key_Space);
  EXPECT_EQ(tela.note(), "Editando o registro 41");
  QTimer aEspera;
  QObject::connect(&aEspera, &QTimer::timeout, [&] {
    if (QApplication::activePopupWidget() == nullptr) return;
    aEspera.stop();
    for (int iTecla : {Qt::Key_Down, Qt::Key_Return}) press(host, iTecla);
  });
  aEspera.start(1);
  std::string sAberta;
  whenOpened(host, [&] {
    sAberta = host.activeScreen()->sGetName();
    press(host, Qt::Key_Escape);
  });
  tecla(Qt::Key_Menu);
  EXPECT_EQ(sAberta, "frmCadastroTitulosReceber");
  EXPECT_EQ(tela.lGetCodigo(), -1);
  EXPECT_TRUE(tela.txtCodigoInf.hasFocus());
  tecla(Qt::Key_Escape);
  EXPECT_EQ(tela.state(), Screen::State::unloaded);
}

TEST_F(CadastrosEmJanelas, MenuAndToolbarLeadToTheSuppliers) {
  programa.permissoes().vSetPermissoes(0);
  Screen& janela = abrir("frmMDIPrincipal");
  auto& mnuPrincipal = dynamic_cast<Menu&>(*janela.control("mnuPrincipal"));
  EXPECT_TRUE(mnuPrincipal.reachable("mnuCadFornecedores"));
  std::string sAberta;
  for (const bool bBarra : {false, true}) {
    sAberta.clear();
    whenOpened(host, [&] {
      sAberta = host.activeScreen()->sGetName();
      press(host, Qt::Key_Escape);
    });
    if (bBarra) {
      dynamic_cast<ToolBar&>(*janela.control("Toolbar1")).userClick("CadastroFornecedores");
    } else {
      mnuPrincipal.userChoose("mnuCadFornecedores");
    }
    EXPECT_EQ(sAberta, "frmCadastroFornecedores");
  }
  EXPECT_THROW(
      {
        janela.unload();
        host.throwKept();
      },
      ProgramEnded);
}

TEST_F(CadastrosEmJanelas, ARefusalBringsTheTabOfItsBoxToTheFront) {
  auto& tela = dynamic_cast<frmCadastroClientes&>(abrir("frmCadastroClientes"));
  tela.txtMae.setFocus();
  auto* const abas = windowOf(tela)->findChild<QTabWidget*>();
  ASSERT_NE(abas, nullptr);
  EXPECT_EQ(abas->currentIndex(), 1);
  whenOpened(host, [&] { press(host, Qt::Key_Return); });
  tecla(Qt::Key_F3);
  EXPECT_EQ(abas->currentIndex(), 0);
  escrever("Zulmira");
  EXPECT_EQ(tela.txtNome.text(), "Zulmira");
  tela.unload();
}

TEST_F(CadastrosEmJanelas, PagesAreTurnedByTheArrowsAndTheSelectorKeepsTheFocus) {
  auto& tela = dynamic_cast<TelaCadastro&>(abrir("frmCadastroVendedores"));
  tela.scrPaginas.setFocus();
  tecla(Qt::Key_Right);
  EXPECT_EQ(tela.lstLista.item(0)->text(), "11");
  tecla(Qt::Key_Right);
  EXPECT_EQ(tela.lstLista.item(0)->text(), "21");
  tecla(Qt::Key_Left);
  EXPECT_EQ(tela.lstLista.item(0)->text(), "11");
  EXPECT_TRUE(tela.scrPaginas.hasFocus());
  tela.unload();
}

TEST_F(CadastrosEmJanelas, ARightClickLeadsToTheTitlesOfTheRow) {
  executar(
      "INSERT INTO Clientes (lCodigoInf, sNome, fLimiteCredito, dtNascimento, lCategoria, lCidade, lVendedor, "
      "lCidadeEntrega, lCidadeCobranca) VALUES (12, 'Bar do Élio', 0, #08/12/1975#, 1, 1, 1, 1, 1)");
  executar(
      "INSERT INTO Fornecedores (lCodigoInf, sNome, lCategoria, lCidade, lBanco) VALUES (12, 'Bar do Élio', 1, 1, 1)");
  for (const auto& [sTela, sTitulos] : {std::pair{"frmCadastroClientes", "frmCadastroTitulosReceber"},
                                        std::pair{"frmCadastroFornecedores", "frmCadastroTitulosPagar"}}) {
    auto& tela = dynamic_cast<TelaCadastro&>(abrir(sTela));
    const auto& txtNome = dynamic_cast<TextControl&>(*tela.control("txtNome"));
    const auto noMenu = [&](const std::vector<int>& teclas) {
      QTimer aEspera;
      QObject::connect(&aEspera, &QTimer::timeout, [&] {
        if (QApplication::activePopupWidget() == nullptr) return;
        aEspera.stop();
        for (int iTecla : teclas) press(host, iTecla);
      });
      aEspera.start(1);
      clickRow(tela.lstLista, 0, Qt::RightButton);
      host.throwKept();
    };
    noMenu({Qt::Key_Escape});
    EXPECT_EQ(txtNome.text(), "Bar do Élio") << "loaded before the menu opens";

    std::string sAberta;
    whenOpened(host, [&] {
      sAberta = host.activeScreen()->sGetName();
      press(host, Qt::Key_Escape);
    });
    noMenu({Qt::Key_Down, Qt::Key_Return});
    EXPECT_EQ(sAberta, sTitulos);
    EXPECT_EQ(txtNome.text(), "") << "the form is cleared when the titles close";
    tela.unload();
  }
}

TEST_F(CadastrosEmJanelas, SearchingAgainAndAgainFromItsButtonClosesNothing) {
  abrir("frmCadastroCategorias");
  for (const char* sTela : {"frmLocalizarCategorias", "frmLocalizarCategoriasRapido"}) {
    whenOpened(host, [&] {
      Screen& busca = *host.activeScreen();
      busca.control("cmdLocalizar")->setFocus();
      for (int i = 0; i < 3; ++i) tecla(Qt::Key_Space);
      EXPECT_EQ(busca.state(), Screen::State::loaded) << sTela;
      EXPECT_TRUE(busca.control("cmdLocalizar")->hasFocus()) << sTela;
      busca.unload();
    });
    programa.telas().obter<TelaBusca>(sTela).vLocalizar(programa.telas().obter("frmCadastroCategorias"));
  }
  programa.telas().obter("frmCadastroCategorias").unload();
}

}  // namespace
}  // namespace fenvale::qt
