// What the registers of customers and suppliers have in common, each through the same cases.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Pessoas.h"
#include "registers/screens/TelaBuscaCompleta.h"
#include "shell/services/Contexto.h"

namespace fenvale {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Repetido {
  const char* sCaixa;
  const char* sTexto;
  const char* sMensagem;
};

struct Caso {
  const char* sTela;
  const char* sTabela;
  const char* sTitulo;
  const char* sBusca;
  const char* sTelaTitulos;
  const char* sCampoTitulos;
  /// The texts that no two of them share, in the order of their checks.
  std::vector<Repetido> repetidos;
};

void PrintTo(const Caso& caso, std::ostream* saida) { *saida << caso.sTela; }

class Pessoa : public Pessoas, public testing::WithParamInterface<Caso> {
 protected:
  TelaCadastro& abrirTela() { return abrirCadastro(caso.sTela); }
  std::int32_t pessoa(int iCodigo, const std::string& sNome) { return cadastrar(caso.sTela, iCodigo, sNome); }
  std::string quantos() { return valor(std::string("SELECT COUNT(lCodigo) AS Cont FROM ") + caso.sTabela); }
  void preencherRepetidos(TelaCadastro& tela) {
    for (const Repetido& repetido : caso.repetidos) caixa(tela, repetido.sCaixa).userType(repetido.sTexto);
  }

  const Caso& caso = GetParam();
};

TEST_P(Pessoa, ANewRecordHasTheNextCodeAndNothingElse) {
  pessoa(41, "Álvaro Nunes");
  TelaCadastro& tela = abrirTela();
  FormularioPessoa& form = formulario(tela);
  EXPECT_EQ(tela.title(), caso.sTitulo);
  tela.lstLista.userClickRow(0);
  EXPECT_EQ(form.txtCodigoInf.text(), "41");
  EXPECT_EQ(form.cidade.lGetCodigo(), lCampinas);
  EXPECT_GT(form.categoria.lCodigo, 0);
  tela.userKey(Key::f2);
  EXPECT_EQ(form.txtCodigoInf.text(), "42");
  EXPECT_TRUE(form.txtCodigoInf.hasFocus());
  EXPECT_EQ(tela.lGetCodigo(), -1);
  EXPECT_EQ(form.categoria.lCodigo, -1);
  EXPECT_EQ(form.cidade.lGetCodigo(), -1);
  for (Control* controle : tela.controls()) {
    const auto* texto = dynamic_cast<TextControl*>(controle);
    if (texto == nullptr || texto == &form.txtCodigoInf) continue;
    EXPECT_EQ(texto->text(), "") << texto->name();
  }
}

TEST_P(Pessoa, ACityThatIsNoLongerFoundIsAskedForAgain) {
  pessoa(1, "José Pereira");
  TelaCadastro& tela = abrirTela();
  FormularioPessoa& form = formulario(tela);
  executar("UPDATE Cidades SET sNome = 'Outra' WHERE lCodigo = " + std::to_string(lCampinas));
  tela.lstLista.userClickRow(0);
  EXPECT_EQ(form.cidade.txtCidade.text(), "Campinas");
  EXPECT_EQ(form.cidade.lGetCodigo(), -1);
  host.expectBox(aviso("Informe a cidade."));
  tela.userKey(Key::f3);
  EXPECT_TRUE(form.cidade.txtCidade.hasFocus());
}

TEST_P(Pessoa, ANameOfBlanksPassesTheCheck) {
  pessoa(1, "   ");
  EXPECT_EQ(quantos(), "1");
}

TEST_P(Pessoa, AnEditedRecordWhoseCodeWasEmptiedIsNotStored) {
  pessoa(7, "José Pereira");
  TelaCadastro& tela = abrirTela();
  tela.lstLista.userClickRow(0);
  formulario(tela).txtNome.userType("Outro");
  formulario(tela).txtCodigoInf.userType("");
  host.expectBox(aviso("Informe o código."));
  tela.userKey(Key::f3);
  EXPECT_EQ(valor(std::string("SELECT lCodigoInf, sNome FROM ") + caso.sTabela), "7|José Pereira");
}

TEST_P(Pessoa, TheNumbersOfOthersAreRefusedInTheirOrder) {
  TelaCadastro& tela = abrirTela();
  preencher(tela, "Primeiro");
  preencherRepetidos(tela);
  salvar(tela);

  preencher(tela, "Segundo");
  preencherRepetidos(tela);
  for (const Repetido& repetido : caso.repetidos) {
    host.expectBox(aviso(repetido.sMensagem));
    tela.userKey(Key::f3);
    TextControl& recusada = caixa(tela, repetido.sCaixa);
    EXPECT_TRUE(recusada.hasFocus()) << repetido.sMensagem;
    recusada.userType("");
  }
  salvar(tela);
  EXPECT_EQ(quantos(), "2");
  preencher(tela, "Terceiro");
  salvar(tela);
  EXPECT_EQ(quantos(), "3") << "no number is the number of nobody else";
}

TEST_P(Pessoa, OnesOwnNumbersAreNoDuplicates) {
  TelaCadastro& tela = abrirTela();
  preencher(tela, "Primeiro");
  preencherRepetidos(tela);
  salvar(tela);
  tela.lstLista.userClickRow(0);
  salvar(tela);
  EXPECT_EQ(quantos(), "1");
}

TEST_P(Pessoa, ARepeatedCodeIsRefusedAndTheFormStays) {
  pessoa(1, "Primeiro");
  const std::int32_t lSegundo = pessoa(2, "Segundo");
  TelaCadastro& tela = abrirTela();
  FormularioPessoa& form = formulario(tela);
  tela.lstLista.userClickRow(1);
  form.txtNome.userType("Outro");
  form.txtCodigoInf.userType("1");
  const std::string sTexto = recusaDoBanco(tela.sAlteracao());
  ASSERT_NE(sTexto, "");
  host.expectBox(critica("Os dados informados já existem no sistema.\r\n\r\nInformação detalhada: \r\n\r\n" + sTexto));
  tela.userKey(Key::f3);
  EXPECT_TRUE(form.txtCodigoInf.hasFocus());
  EXPECT_EQ(form.txtNome.text(), "Outro");
  EXPECT_EQ(tela.lGetCodigo(), lSegundo);
  EXPECT_EQ(valor(std::string("SELECT sNome FROM ") + caso.sTabela + " WHERE lCodigoInf = 2"), "Segundo");
}

TEST_P(Pessoa, IsRemovedAfterAQuestion) {
  pessoa(1, "Primeiro");
  TelaCadastro& tela = abrirTela();
  host.expectBox(aviso("Selecione o registro que deseja excluir."));
  tela.userKey(Key::f4);
  EXPECT_TRUE(tela.lstLista.hasFocus());
  tela.lstLista.userClickRow(0);
  EXPECT_EQ(tela.sExclusao(),
            std::string("DELETE * FROM ") + caso.sTabela + " WHERE lCodigo = " + std::to_string(tela.lGetCodigo()));
  host.expectBox(pergunta("Confirma a remoção do registro?"), BoxAnswer::yes);
  tela.userKey(Key::f4);
  EXPECT_THAT(tela.lstLista.items(), IsEmpty());
  EXPECT_EQ(quantos(), "0");
}

TEST_P(Pessoa, WithInvoicesItStays) {
  programaComFatura();
  TelaCadastro& tela = abrirTela();
  tela.lstLista.userClickRow(0);
  const std::string sTexto = recusaDoBanco(tela.sExclusao());
  ASSERT_NE(sTexto, "");
  host.expectBox(pergunta("Confirma a remoção do registro?"), BoxAnswer::yes);
  host.expectBox(critica("O registro não pode ser excluído.\r\n\r\nInformação detalhada: \r\n\r\n" + sTexto));
  tela.userKey(Key::f4);
  EXPECT_EQ(quantos(), "1");
  EXPECT_TRUE(formulario(tela).txtCodigoInf.hasFocus());
  EXPECT_GT(tela.lGetCodigo(), 0);
}

TEST_P(Pessoa, TheCategoryTakesNoTextButThreeKeys) {
  const std::int32_t lCategoria = lAtacado();
  TelaCadastro& tela = abrirTela();
  FormularioPessoa& form = formulario(tela);
  EXPECT_FALSE(form.txtCategoria.userType("Atacado"));
  form.txtCategoria.setFocus();
  host.expectScreen("frmLocalizarCategoriasRapido", [](Screen& busca) {
    auto& lst = dynamic_cast<ListView&>(*busca.control("lstLista"));
    lst.userClickRow(0);
    lst.userClickRow(0);
  });
  tela.userKey(Key::space);
  EXPECT_EQ(form.categoria.lCodigo, lCategoria);
  EXPECT_EQ(form.txtCategoria.text(), "Atacado");
  EXPECT_TRUE(form.txtNome.hasFocus());

  form.txtCategoria.setFocus();
  host.expectScreen("frmCadastroCategorias", [](Screen& cadastro) { cadastro.unload(); });
  tela.userKey(Key::insert);
  EXPECT_TRUE(form.txtCategoria.hasFocus());
  EXPECT_EQ(form.categoria.lCodigo, lCategoria) << "the register fills nothing in";
  tela.userKey(Key::del);
  EXPECT_EQ(form.categoria.lCodigo, -1);
  EXPECT_EQ(form.txtCategoria.text(), "");
  EXPECT_TRUE(form.txtCategoria.hasFocus());
}

TEST_P(Pessoa, TheButtonOpensTheCategoriesAndGivesTheFocusBack) {
  TelaCadastro& tela = abrirTela();
  host.expectScreen("frmCadastroCategorias", [](Screen& cadastro) { cadastro.unload(); });
  botao(tela, "cmdNovaCategoria").userClick();
  EXPECT_TRUE(formulario(tela).txtCategoria.hasFocus());
}

TEST_P(Pessoa, CityBoxesSearchAndEmptyThemselves) {
  TelaCadastro& tela = abrirTela();
  FormularioPessoa& form = formulario(tela);
  for (TextControl* aberta : {&form.cidade.txtCidade, &form.cidade.txtUF}) {
    EXPECT_FALSE(aberta->userType("x"));
    escolherCidade(*aberta, "Campinas");
    EXPECT_EQ(form.cidade.txtCidade.text(), "Campinas");
    EXPECT_EQ(form.cidade.txtUF.text(), "SP");
    EXPECT_EQ(form.cidade.lGetCodigo(), lCampinas);
    aberta->setFocus();
    tela.userKey(Key::insert);
    EXPECT_EQ(form.cidade.lGetCodigo(), lCampinas);
    tela.userKey(Key::del);
    EXPECT_EQ(form.cidade.lGetCodigo(), -1);
    EXPECT_EQ(form.cidade.txtCidade.text() + form.cidade.txtUF.text(), "");
    EXPECT_TRUE(aberta->hasFocus());
  }
}

TEST_P(Pessoa, PrintsItsListAcross) {
  struct Opcoes : Screen, OpcoesRelatorioLista {
    explicit Opcoes(Contexto& contexto) : Screen(contexto.host(), "frmOpcoesRelList") {}
    void vCarregar(const std::string& sTitulo, std::int16_t iColunas, ListView& lst) override {
      host().messageBox(informacao(sTitulo + "|" + std::to_string(iColunas) + "|" + lst.item(0)->text()));
    }
  };
  programa.telas().registrar<Opcoes>("frmOpcoesRelList");
  pessoa(7, "José Pereira");
  TelaCadastro& tela = abrirTela();
  host.expectBox(informacao(std::string(caso.sTitulo) + "|130|7"));
  tela.userKey(Key::f5);
}

TEST_P(Pessoa, EveryCommandAsksForItsRight) {
  pessoa(1, "Primeiro");
  TelaCadastro& tela = abrirTela();
  struct Pedido {
    const char* sDireito;
    Key tecla;
    bool bCarregado;
  };
  for (const Pedido& pedido : {Pedido{"bPoderSalvar", Key::f3, false}, Pedido{"bPoderAtualizar", Key::f3, true},
                               Pedido{"bPoderExcluir", Key::f4, true}, Pedido{"bPoderPesquisar", Key::f6, false}}) {
    programa.permissoes().vSetPermissoes(0);
    tela.userKey(Key::f2);
    if (pedido.bCarregado) tela.lstLista.userClickRow(0);
    formulario(tela).txtNome.userType("Outro");
    entrarSem(pedido.sDireito);
    const std::size_t iAntes = host.boxes().size();
    host.expectBox(semPermissao());
    tela.userKey(pedido.tecla);
    EXPECT_EQ(host.boxes().size(), iAntes + 1) << pedido.sDireito;
    EXPECT_EQ(valor(std::string("SELECT sNome FROM ") + caso.sTabela), "Primeiro");
    EXPECT_EQ(formulario(tela).txtNome.text(), "Outro") << "the form stays";
  }
}

TEST_P(Pessoa, ARightClickLoadsTheRowAndThenOffersItsTitles) {
  fingirTitulos(caso.sTelaTitulos);
  const std::string sDe =
      std::string("0|WHERE ") + caso.sCampoTitulos + " = " + std::to_string(pessoa(7, "Zulmira Antunes")) + " ";
  TelaCadastro& tela = abrirTela();
  FormularioPessoa& form = formulario(tela);
  for (const char* sEntrada : {"mnuVerificarTitulos", "mnuMostrarPagos", "mnuMostrarNaoPagos"}) {
    host.then([&] { EXPECT_EQ(form.txtNome.text(), "Zulmira Antunes"); });
    host.expectPopup("mnuPopUp", sEntrada);
    host.expectScreen(caso.sTelaTitulos, [](Screen& titulos) { titulos.unload(); });
    tela.lstLista.userClickRow(0, MouseButton::right);
    EXPECT_EQ(tela.lGetCodigo(), -1) << "the form is cleared when the titles close";
    EXPECT_EQ(form.txtNome.text(), "");
  }
  EXPECT_THAT(pedidas, ElementsAre(sDe, sDe + "AND (fValorPago > 0) ", sDe + "AND (fValorPago <= 0) "));
}

TEST_P(Pessoa, TitlesThatCannotBeListedAreReportedAndTheRowStays) {
  programa.telas().registrar(caso.sTelaTitulos, [](Contexto&) -> std::unique_ptr<Screen> {
    throw Error(errors::typeMismatch, "Tipo incompatível.");
  });
  pessoa(7, "Zulmira Antunes");
  TelaCadastro& tela = abrirTela();
  host.expectPopup("mnuPopUp", "mnuMostrarPagos");
  host.expectBox(relatoDeFalha(), BoxAnswer::no);
  tela.lstLista.userClickRow(0, MouseButton::right);
  EXPECT_THAT(relato(),
              testing::HasSubstr(std::string("Formulário: ") + caso.sTela + "\r\nFunção: mnuMostrarPagos_Click\r\n"));
  EXPECT_EQ(formulario(tela).txtNome.text(), "Zulmira Antunes");
}

TEST_P(Pessoa, ALeftClickOpensNoMenu) {
  fingirTitulos(caso.sTelaTitulos);
  pessoa(7, "Zulmira Antunes");
  TelaCadastro& tela = abrirTela();
  host.expectPopup("mnuPopUp", "");
  tela.lstLista.userClickRow(0, MouseButton::right);
  tela.lstLista.userClickRow(0);
  EXPECT_EQ(formulario(tela).txtNome.text(), "Zulmira Antunes");
  const auto& itens = dynamic_cast<PopupMenu&>(*tela.control("mnuPopUp")).items();
  EXPECT_THAT((std::vector<std::string>{itens[0].caption, itens[1].caption, itens[2].caption}),
              ElementsAre("Mostrar todos os títulos", "Mostrar somente os títulos pagos",
                          "Mostrar somente os títulos não pagos"));
}

TEST_P(Pessoa, WithoutATitleScreenTheMenuCannotBeChosenFrom) {
  pessoa(7, "Zulmira Antunes");
  TelaCadastro& tela = abrirTela();
  host.expectPopup("mnuPopUp", "");
  tela.lstLista.userClickRow(0, MouseButton::right);
  EXPECT_FALSE(dynamic_cast<PopupMenu&>(*tela.control("mnuPopUp")).reachable("mnuVerificarTitulos"));
}

TEST_P(Pessoa, TheFullSearchFindsThemInTheRegister) {
  pessoa(1, "Açougue São João");
  pessoa(2, "Padaria D'Ávila");
  TelaCadastro& tela = abrirTela();
  host.expectScreen(caso.sBusca, [&](Screen& aberta) {
    auto& busca = dynamic_cast<TelaBuscaCompleta&>(aberta);
    FormularioPessoa& form = formulario(aberta);
    EXPECT_EQ(tela.lstLista.items().size(), 2u);
    form.txtNome.userType("Acougue");
    busca.userKey(Key::f6);
    EXPECT_THAT(tela.lstLista.items(), IsEmpty()) << "accents count";
    form.txtNome.userType("PADARIA D'");
    busca.userKey(Key::f6);
    EXPECT_EQ(tela.lstLista.items().size(), 1u) << "capitals do not";
    form.txtNome.userType("");
    form.txtCodigoInf.userType("1");
    busca.userKey(Key::f6);
    ASSERT_EQ(tela.lstLista.items().size(), 1u);
    EXPECT_EQ(tela.lstLista.item(0)->text(), "1");
    busca.unload();
  });
  tela.userKey(Key::f6);
}

TEST_P(Pessoa, DeleteOnABoxOfTheSearchDropsItsLine) {
  Screen& aberta = abrir(caso.sBusca);
  auto& busca = dynamic_cast<TelaBuscaCompleta&>(aberta);
  const std::string sTudo = std::string("WHERE MID(") + caso.sTabela + ".sNome, 1, 0) = '' ";
  EXPECT_EQ(busca.sClausula(), sTudo);
  formulario(aberta).vSetCategoria(4, "Atacado");
  EXPECT_EQ(busca.sClausula(), sTudo + "AND lCategoria = 4 ");
  formulario(aberta).txtCategoria.setFocus();
  busca.userKey(Key::del);
  EXPECT_EQ(busca.sClausula(), sTudo);
  escolherCidade(formulario(aberta).cidade.txtUF, "Campinas");
  EXPECT_EQ(busca.sClausula(), sTudo + "AND lCidade = " + std::to_string(lCampinas) + " ");
  formulario(aberta).cidade.txtCidade.setFocus();
  busca.userKey(Key::del);
  EXPECT_EQ(busca.sClausula(), sTudo);
}

const Repetido repetidoCPF{"txtCPF", "11144477735", "O CPF informado já existe no sistema."};
const Repetido repetidaIE{"txtIE", "606123456110", "A IE informada já existe no sistema."};
const Repetido repetidoCNPJ{"txtCNPJ", "11444777000161", "O CNPJ informado já existe no sistema."};

INSTANTIATE_TEST_SUITE_P(Todas, Pessoa,
                         testing::Values(Caso{"frmCadastroClientes",
                                              "Clientes",
                                              "Cadastro de clientes",
                                              "frmLocalizarClientes",
                                              "frmCadastroTitulosReceber",
                                              "FaturasCliente.lCliente",
                                              {{"txtRG", "1", "O RG informado já existe no sistema."},
                                               repetidoCPF,
                                               repetidaIE,
                                               repetidoCNPJ}},
                                         Caso{"frmCadastroFornecedores",
                                              "Fornecedores",
                                              "Cadastro de fornecedores",
                                              "frmLocalizarFornecedores",
                                              "frmCadastroTitulosPagar",
                                              "FaturasFornecedor.lFornecedor",
                                              {repetidoCPF, repetidaIE, repetidoCNPJ}}),
                         [](const auto& caso) { return std::string(caso.param.sTabela); });

}  // namespace
}  // namespace fenvale
