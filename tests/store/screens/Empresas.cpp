#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "access/services/Permissoes.h"
#include "platform/os/Process.h"
#include "platform/sql/Store.h"
#include "shell/services/JanelaPrincipal.h"
#include "store/screens/TelasDeEmpresas.h"
#include "store/screens/frmEmpresa.h"
#include "store/screens/frmEmpresaAbrir.h"
#include "store/screens/frmEmpresaNova.h"
#include "store/screens/frmLocalizarArquivo.h"
#include "store/services/DBConectar.h"
#include "store/services/Empresas.h"
#include "support/Caixas.h"

namespace fenvale {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Opening a company.

class Abrir : public TelasDeEmpresas {
 protected:
  std::optional<int> tela(const std::function<void(frmEmpresaAbrir&)>& agir) {
    return abrir<frmEmpresaAbrir>("frmEmpresaAbrir", agir);
  }
  void comDados(const std::string& nome) {
    programa.criarEmpresa(nome);
    Connection conexao(StoreEnvironment{programa.relogio()});
    conexao.setConnectionString("Provider=x;Data Source=" + programa.pasta().arquivo(nome));
    conexao.open();
    const Recordset inclusao("INSERT INTO DadosEmpresa (sNome, lCidade) VALUES ('Loja', 1)", conexao);
    conexao.close();
    referencia(nome, pasta());
  }
};

TEST_F(Abrir, ListsTheCompaniesByNameAndPlace) {
  referencia("b.MDB", "/z/");
  referencia("b.MDB", "/a/");
  referencia("a.MDB", "/z/");
  tela([](frmEmpresaAbrir& t) {
    EXPECT_EQ("Empresa", t.caption());
    EXPECT_EQ("Selecione a empresa que deseja abrir", t.lblMensagem.caption());
    EXPECT_THAT(linhas(t.lstLista), ElementsAre("00003 a.MDB /z/", "00002 b.MDB /a/", "00001 b.MDB /z/"));
    EXPECT_EQ("Nome do arquivo", t.lstLista.columns()[1].heading);
    EXPECT_EQ("Caminho", t.lstLista.columns()[2].heading);
    EXPECT_TRUE(t.cmdEmitir.enabled());
  });
}

TEST_F(Abrir, OneCompanyAtMostIsTicked) {
  referencia("a.MDB", "/z/");
  referencia("b.MDB", "/z/");
  tela([](frmEmpresaAbrir& t) {
    const auto marcas = [&] { return std::vector<bool>{t.lstLista.item(0)->checked(), t.lstLista.item(1)->checked()}; };
    t.lstLista.userCheckRow(0, true);
    EXPECT_THAT(marcas(), ElementsAre(true, false));
    t.lstLista.userCheckRow(1, true);
    EXPECT_THAT(marcas(), ElementsAre(false, true));
    EXPECT_EQ("/z/b.MDB", t.txtCampo.text());
    t.lstLista.userClickRow(0);
    EXPECT_THAT(marcas(), ElementsAre(true, false));
    t.lstLista.userCheckRow(0, false);
    EXPECT_THAT(marcas(), ElementsAre(false, false));
  });
}

TEST_F(Abrir, WithoutATickItIsRefused) {
  referencia("a.MDB", "/z/");
  tela([this](frmEmpresaAbrir& t) {
    salvarRecusado(host, t, aviso("Selecione uma empresa.", "Norvane sistemas"), t.lstLista);
  });
}

TEST_F(Abrir, ARowWhoseCodeIsNotAboveZeroCountsAsNone) {
  programa.abrirEmpresa("aberta.MDB");
  programa.executarPrograma("INSERT INTO Empresas (lCodigo, sNomeArquivo, sCaminho) VALUES (0, 'a.MDB', '/z/')");
  tela([this](frmEmpresaAbrir& t) {
    ASSERT_EQ("00000", t.lstLista.item(0)->text());
    t.lstLista.userClickRow(0);
    host.expectBox(aviso("Selecione uma empresa.", "Norvane sistemas"));
    t.userKey(Key::f3);
    EXPECT_TRUE(t.lstLista.hasFocus());
  });
  EXPECT_TRUE(programa.empresas().bSelecionouEmpresa(false)) << "the open one stays open";
}

TEST_F(Abrir, AnUpToDateCompanyIsAnnouncedOnceAndTheScreenCloses) {
  comDados("loja.MDB");
  tela([this](frmEmpresaAbrir& t) {
    t.lstLista.userClickRow(0);
    host.then([this] { EXPECT_EQ(Pointer::hourglass, host.pointer()); });
    host.expectBox(informacao("Empresa selecionada com sucesso."));
    t.userKey(Key::f3);
    EXPECT_EQ(Screen::State::unloaded, t.state());
  });
  EXPECT_TRUE(programa.empresas().bSelecionouEmpresa(false));
  EXPECT_EQ(Pointer::normal, host.pointer());
  EXPECT_EQ("Gestor Fenvale - Versão ZENIT   -     Empresa: loja.MDB     -     Caminho: " + pasta(),
            programa.janelaPrincipal().sGetLegenda());
}

TEST_F(Abrir, ALostFileIsToldAndTheScreenStays) {
  referencia("sumiu.MDB", "/nada/");
  tela([this](frmEmpresaAbrir& t) {
    t.lstLista.userClickRow(0);
    host.expectBox(aviso("/nada/sumiu.MDB\r\n\r\nO arquivo não foi localizado."));
    t.userKey(Key::f3);
    EXPECT_EQ(Screen::State::loaded, t.state());
  });
}

TEST_F(Abrir, TheFirstOpeningBringsTheFileUpToDateAndEndsTheRun) {
  createStore(programa.pasta().arquivo("nova.MDB"));
  referencia("nova.MDB", pasta());
  host.expectScreen("frmEmpresaAbrir", [](Screen& aberta) {
    auto& t = dynamic_cast<frmEmpresaAbrir&>(aberta);
    t.lstLista.userClickRow(0);
    t.userKey(Key::f3);
  });
  host.expectBox(informacao("Banco de Dados atualizado.\r\nExecute o programa novamente para concluir a atualização."));
  EXPECT_EQ(exitRestart, programa.codigoDeSaida([this] { host.showModal(programa.telas().obter("frmEmpresaAbrir")); }));
}

TEST_F(Abrir, WithoutItsDataTheCompanyAsksForThemUntilTheyAreThere) {
  programa.criarEmpresa("loja.MDB");
  referencia("loja.MDB", pasta());
  tela([this](frmEmpresaAbrir& t) {
    t.lstLista.userClickRow(0);
    host.expectBox(informacao("Empresa selecionada com sucesso."));
    host.expectBox(aviso("Informe os dados da empresa."));
    host.expectScreen("frmEmpresa", [](Screen& dados) { dados.userKey(Key::escape); });
    host.expectBox(aviso("Informe os dados da empresa."));
    host.expectScreen("frmEmpresa", [](Screen& aberta) {
      auto& dados = dynamic_cast<frmEmpresa&>(aberta);
      dados.txtNome.userType("Loja");
      dados.campoCidade.txtCidade.userType("Londrina");
      dados.campoCidade.txtUF.userType("PR");
      dados.campoCidade.txtUF.setFocus();
      dados.userKey(Key::f3);
    });
    host.expectBox(informacao("Operação concluída."));
    t.userKey(Key::f3);
    EXPECT_EQ(Screen::State::unloaded, t.state());
  });
}

TEST_F(Abrir, ARowFollowsAFileThatWasMoved) {
  referencia("outra.MDB", "/velho/");
  referencia("loja.MDB", "/velho/");
  programa.pasta().gravar("novo/casa.MDB", "x");
  tela([this](frmEmpresaAbrir& t) {
    host.expectPopup("mnuPopUp", "mnuEditarEmpresa");
    esperarArquivo(programa.pasta().arquivo("novo"), "casa.MDB");
    host.expectBox(
        pergunta("O registro loja.MDB será autalizado para\r\n" + pasta() + "novo/casa.MDB\r\nConfirma a operação?"),
        BoxAnswer::yes);
    t.lstLista.userClickRow(0, MouseButton::right);
    EXPECT_THAT(linhas(t.lstLista), ElementsAre("00002 casa.MDB " + pasta() + "novo/", "00001 outra.MDB /velho/"));
  });
  EXPECT_THAT(referencias(),
              ElementsAre(ElementsAre("outra.MDB", "/velho/"), ElementsAre("casa.MDB", pasta() + "novo/")));
}

TEST_F(Abrir, AFileWhoseFolderGoesBeforeItIsTakenIsRefused) {
  referencia("loja.MDB", "/velho/");
  programa.pasta().gravar("novo/casa.MDB", "x");
  tela([this](frmEmpresaAbrir& t) {
    host.expectPopup("mnuPopUp", "mnuEditarEmpresa");
    esperarArquivo(programa.pasta().arquivo("novo"), "casa.MDB", "*.MDB",
                   [this] { std::filesystem::remove_all(programa.pasta().arquivo("novo")); });
    host.expectBox(aviso("O caminho\r\n" + pasta() + "novo/\r\né inválido."));
    t.lstLista.userClickRow(0, MouseButton::right);
  });
  EXPECT_THAT(referencias(), ElementsAre(ElementsAre("loja.MDB", "/velho/")));
}

TEST_F(Abrir, EditingWithoutAFileOrAgainstOnesWillChangesNothing) {
  referencia("loja.MDB", "/velho/");
  programa.pasta().gravar("novo/casa.MDB", "x");
  tela([this](frmEmpresaAbrir& t) {
    host.expectPopup("mnuPopUp", "mnuEditarEmpresa");
    esperarNenhumArquivo();
    host.expectBox(aviso("Localize um arquivo."));
    t.lstLista.userClickRow(0, MouseButton::right);
    host.expectPopup("mnuPopUp", "mnuEditarEmpresa");
    esperarArquivo(programa.pasta().arquivo("novo"), "casa.MDB");
    host.expectBox(
        pergunta("O registro loja.MDB será autalizado para\r\n" + pasta() + "novo/casa.MDB\r\nConfirma a operação?"),
        BoxAnswer::no);
    t.lstLista.userClickRow(0, MouseButton::right);
  });
  EXPECT_THAT(referencias(), ElementsAre(ElementsAre("loja.MDB", "/velho/")));
}

TEST_F(Abrir, TheStoreRefusesTwoRowsForOneFile) {
  programa.pasta().gravar("novo/casa.MDB", "x");
  referencia("loja.MDB", "/velho/");
  referencia("casa.MDB", pasta() + "novo/");
  tela([this](frmEmpresaAbrir& t) {
    host.expectPopup("mnuPopUp", "mnuEditarEmpresa");
    esperarArquivo(programa.pasta().arquivo("novo"), "casa.MDB");
    host.expectBox(
        pergunta("O registro loja.MDB será autalizado para\r\n" + pasta() + "novo/casa.MDB\r\nConfirma a operação?"),
        BoxAnswer::yes);
    EXPECT_THROW(t.lstLista.userClickRow(1, MouseButton::right), TestHost::Unexpected);
    EXPECT_TRUE(host.boxes().back().text.starts_with(
        "Os dados informados já existem no sistema.\r\n\r\nInformação detalhada: "));
    EXPECT_EQ(BoxStyle::exclamation, host.boxes().back().style);
  });
}

// Making a company.

class Nova : public TelasDeEmpresas {
 protected:
  std::optional<int> tela(const std::function<void(frmEmpresaNova&)>& agir) {
    return abrir<frmEmpresaNova>("frmEmpresaNova", agir);
  }
  void preencher(frmEmpresaNova& t, const std::string& nome) {
    t.txtNomeArquivo.userType(nome);
    t.txtCaminho.userType(programa.pasta().caminho());
  }

  const MessageBox jaReferida = pergunta(
      "Já existe uma referência para a empresa loja.MDB.\r\nDeseja remover essa referência e criar um novo arquivo?");
};

TEST_F(Nova, MakesAnEmptyFileAndKnowsIt) {
  tela([this](frmEmpresaNova& t) {
    preencher(t, "loja");
    host.expectBox(informacao("Empresa criada com sucesso."));
    t.userKey(Key::f3);
    EXPECT_EQ("", t.txtNomeArquivo.text());
    EXPECT_THAT(linhas(t.lstLista), ElementsAre("00001 loja.MDB " + pasta()));
  });
  EXPECT_TRUE(programa.pasta().existe("loja.MDB"));
  EXPECT_THAT(referencias(), ElementsAre(ElementsAre("loja.MDB", pasta())));
  EXPECT_FALSE(programa.empresas().bSelecionouEmpresa(false)) << "it is not opened";
  EXPECT_EQ(0, programa.dbConectar().Dados().transactionLevel());
}

TEST_F(Nova, AnExtensionInSmallLettersIsOne) {
  tela([this](frmEmpresaNova& t) {
    preencher(t, "loja.mdb");
    host.expectBox(informacao("Empresa criada com sucesso."));
    t.userKey(Key::f3);
  });
  EXPECT_TRUE(programa.pasta().existe("loja.mdb"));
}

TEST_F(Nova, ChecksComeInTheirOrder) {
  programa.pasta().gravar("ja.MDB", "x");
  tela([this](frmEmpresaNova& t) { recusarNomeECaminho(t, programa.pasta().caminho()); });
  EXPECT_THAT(referencias(), IsEmpty());
}

TEST_F(Nova, AnOldReferenceIsRemovedWhenTheUserWantsIt) {
  referencia("loja.MDB", pasta());
  tela([this](frmEmpresaNova& t) {
    preencher(t, "loja");
    host.expectBox(jaReferida, BoxAnswer::yes);
    host.expectBox(informacao("Empresa criada com sucesso."));
    t.userKey(Key::f3);
  });
  EXPECT_THAT(referencias(), ElementsAre(ElementsAre("loja.MDB", pasta())));
  EXPECT_TRUE(programa.pasta().existe("loja.MDB"));
}

TEST_F(Nova, AllReferencesOfThatNameAreRemovedWhateverTheirFolder) {
  referencia("loja.MDB", pasta());
  referencia("loja.MDB", "/outra/");
  referencia("filial.MDB", pasta());
  tela([this](frmEmpresaNova& t) {
    preencher(t, "loja");
    host.expectBox(jaReferida, BoxAnswer::yes);
    host.expectBox(informacao("Empresa criada com sucesso."));
    t.userKey(Key::f3);
  });
  EXPECT_THAT(referencias(), ElementsAre(ElementsAre("filial.MDB", pasta()), ElementsAre("loja.MDB", pasta())));
}

TEST_F(Nova, AnOldReferenceThatStaysAsksForAnotherName) {
  referencia("loja.MDB", pasta());
  tela([this](frmEmpresaNova& t) {
    preencher(t, "loja");
    host.expectBox(jaReferida, BoxAnswer::no);
    host.expectBox(aviso("Informe outro nome para a empresa."));
    t.userKey(Key::f3);
  });
  EXPECT_FALSE(programa.pasta().existe("loja.MDB"));
  EXPECT_EQ(0, programa.dbConectar().Dados().transactionLevel());
}

TEST_F(Nova, AFileThatCannotBeMadeTakesItsReferenceBack) {
  programa.pasta().gravar("loja.MDB/x", "x");  // a folder of that name
  tela([this](frmEmpresaNova& t) {
    preencher(t, "loja");
    host.expectBox(aviso("Erro ao criar a empresa."));
    t.userKey(Key::f3);
    EXPECT_EQ("loja.MDB", t.txtNomeArquivo.text());
  });
  EXPECT_THAT(referencias(), IsEmpty());
  EXPECT_EQ(0, programa.dbConectar().Dados().transactionLevel());
}

TEST_F(Nova, FolderTreeAndPathFollowEachOther) {
  programa.pasta().gravar("sub/x", "x");
  tela([this](frmEmpresaNova& t) {
    EXPECT_EQ(t.drvArvoreDiretorios.path(), t.txtCaminho.text());
    t.drvArvoreDiretorios.userChoose(programa.pasta().arquivo("sub"));
    EXPECT_EQ(programa.pasta().arquivo("sub"), t.txtCaminho.text());
    t.txtCaminho.setFocus();
    t.txtCaminho.userType(pasta());
    t.txtNomeArquivo.setFocus();
    EXPECT_EQ(programa.pasta().caminho(), t.drvArvoreDiretorios.path());
    t.drvlstListaDiretorios.userChoose("/");
    EXPECT_EQ("/", t.txtCaminho.text());
  });
}

TEST_F(Nova, SavingAsksForTheRightOnce) {
  programa.executarPrograma("INSERT INTO Usuarios (sNomeUsuario, sLogin, sSenha) VALUES ('Bia', 'BIA', 'x')");
  programa.permissoes().vSetPermissoes(1);
  tela([this](frmEmpresaNova& t) {
    preencher(t, "loja");
    host.expectBox(semPermissao());
    t.userKey(Key::f3);
    EXPECT_EQ("loja", t.txtNomeArquivo.text());
  });
}

TEST_F(Nova, AnExistingFileBecomesKnown) {
  programa.pasta().gravar("sub/casa.MDB", "x");
  tela([this](frmEmpresaNova& t) {
    esperarArquivo(programa.pasta().arquivo("sub"), "casa.MDB");
    host.expectBox(pergunta("O arquivo " + pasta() +
                            "sub/casa.MDB será incluído no sistema, criando referência a uma nova empresa.\r\n"
                            "Confirma a operação?"),
                   BoxAnswer::yes);
    t.userKey(Key::f6);
    EXPECT_THAT(linhas(t.lstLista), ElementsAre("00001 casa.MDB " + pasta() + "sub/"));
  });
}

TEST_F(Nova, AgainstOnesWillOrTwiceAnExistingFileDoesNotBecomeKnown) {
  programa.pasta().gravar("sub/casa.MDB", "x");
  const auto caixa = pergunta("O arquivo " + pasta() +
                              "sub/casa.MDB será incluído no sistema, criando referência a uma nova empresa.\r\n"
                              "Confirma a operação?");
  tela([&](frmEmpresaNova& t) {
    esperarArquivo(programa.pasta().arquivo("sub"), "casa.MDB");
    host.expectBox(caixa, BoxAnswer::no);
    t.userKey(Key::f6);
    EXPECT_THAT(linhas(t.lstLista), IsEmpty());
    referencia("casa.MDB", pasta() + "sub/");
    esperarArquivo(programa.pasta().arquivo("sub"), "casa.MDB");
    host.expectBox(caixa, BoxAnswer::yes);
    EXPECT_THROW(t.userKey(Key::f6), TestHost::Unexpected);
    EXPECT_THAT(host.boxes().back().text, testing::StartsWith("Os dados informados já existem no sistema.\r\n\r\n"
                                                              "Informação detalhada: "));
    EXPECT_EQ(BoxStyle::exclamation, host.boxes().back().style);
  });
  EXPECT_EQ(1u, referencias().size());
}

TEST_F(Nova, WithoutARowTheMenuOnlyOffersToFindACompany) {
  referencia("casa.MDB", pasta());
  tela([this](frmEmpresaNova& t) {
    host.expectPopup("mnuPopUp", "");
    t.lstLista.userRightClickEmpty();
    EXPECT_TRUE(t.mnuPopUp.item("mnuLocalizarEmpresa").visible);
    EXPECT_FALSE(t.mnuPopUp.item("mnuSep1").visible);
    EXPECT_FALSE(t.mnuPopUp.item("mnuExcluirEmpresa").visible);
    host.expectPopup("mnuPopUp", "");
    t.lstLista.userClickRow(0, MouseButton::right);
    EXPECT_TRUE(t.mnuPopUp.item("mnuSep1").visible);
    EXPECT_TRUE(t.mnuPopUp.item("mnuExcluirEmpresa").visible);
  });
}

TEST_F(Nova, NoFileToKnowIsTold) {
  tela([this](frmEmpresaNova& t) {
    esperarNenhumArquivo();
    host.expectBox(aviso("Localize um arquivo."));
    t.userKey(Key::f6);
  });
}

TEST_F(Nova, AReferenceIsRemovedAndItsFileStays) {
  programa.pasta().gravar("casa.MDB", "x");
  referencia("casa.MDB", pasta());
  referencia("outra.MDB", pasta());
  const auto caixa = pergunta(
      "A referência ao registro casa.MDB será removida do sistema.\r\nConfirma a operação?\r\nObservação: apenas a "
      "referência será removida.\r\nO arquivo continuará no seu local atual, podendo ser referenciado novamente mais "
      "tarde.");
  tela([&](frmEmpresaNova& t) {
    host.expectPopup("mnuPopUp", "mnuExcluirEmpresa");
    host.expectBox(caixa, BoxAnswer::no);
    t.lstLista.userClickRow(0, MouseButton::right);
    EXPECT_EQ(2u, referencias().size());
    host.expectPopup("mnuPopUp", "mnuExcluirEmpresa");
    host.expectBox(caixa, BoxAnswer::yes);
    t.lstLista.userClickRow(0, MouseButton::right);
    EXPECT_THAT(linhas(t.lstLista), ElementsAre("00002 outra.MDB " + pasta()));
  });
  EXPECT_THAT(referencias(), ElementsAre(ElementsAre("outra.MDB", pasta())));
  EXPECT_TRUE(programa.pasta().existe("casa.MDB"));
}

TEST_F(Nova, AReferenceToALostFolderIsAskedForInOtherWords) {
  referencia("casa.MDB", "/nada/");
  tela([this](frmEmpresaNova& t) {
    host.expectPopup("mnuPopUp", "mnuExcluirEmpresa");
    host.expectBox(pergunta("O caminho\r\n/nada/\r\né inválido.\r\nDeseja prosseguir e remover a referência?"),
                   BoxAnswer::yes);
    t.lstLista.userClickRow(0, MouseButton::right);
  });
  EXPECT_THAT(referencias(), IsEmpty());
}

// The company's own data.

class DadosDaEmpresa : public TelasDeEmpresas {
 protected:
  void SetUp() override { programa.abrirEmpresa(); }
  std::optional<int> tela(const std::function<void(frmEmpresa&)>& agir) {
    return abrir<frmEmpresa>("frmEmpresa", agir);
  }
  static void cidade(frmEmpresa& t) {
    t.campoCidade.txtCidade.setFocus();
    t.campoCidade.txtCidade.userType("Londrina");
    t.campoCidade.txtUF.setFocus();
    t.campoCidade.txtUF.userType("PR");
    t.txtCEP.setFocus();
  }
};

TEST_F(DadosDaEmpresa, ARowIsWrittenAndReadBack) {
  tela([this](frmEmpresa& t) {
    EXPECT_EQ("Empresa", t.caption());
    EXPECT_EQ("Informações da empresa", t.title());
    t.txtNome.userType("Loja d'Oeste");
    t.txtEndereco.userType("Rua A, 1");
    t.txtBairro.userType("Centro");
    t.txtCEP.userType("86010000");
    cidade(t);
    t.txtTelefone.userType("4333001000");
    t.txtEMail.userType("a@b.c");
    t.txtCNPJ.userType("11444777000161");
    t.txtCPF.userType("11144477735");
    t.txtCaminhoFigura.userType("/figuras/logo.bmp");
    host.expectBox(informacao("Operação concluída."));
    t.userKey(Key::f3);
    EXPECT_EQ(Screen::State::unloaded, t.state());
  });
  EXPECT_THAT(programa.linhas("SELECT sNome, sCEP, lCidade, sCNPJ, sTelefone, sFax, sCPF, txtCaminhoFigura, "
                              "txtFiguraPromissoria FROM DadosEmpresa"),
              ElementsAre(ElementsAre("Loja d'Oeste", "86010-000", "1", "11.444.777/0001-61", "(43) 3300-1000", "",
                                      "111.444.777-35", "/figuras/logo.bmp", "")));
  tela([](frmEmpresa& t) {
    EXPECT_EQ("Loja d'Oeste", t.txtNome.text());
    EXPECT_EQ("Londrina", t.campoCidade.txtCidade.text());
    EXPECT_EQ("PR", t.campoCidade.txtUF.text());
    EXPECT_EQ(1, t.campoCidade.lGetCodigo());
    EXPECT_EQ("111.444.777-35", t.txtCPF.text());
  });
}

TEST_F(DadosDaEmpresa, ASaveReplacesTheRow) {
  for (const char* nome : {"Primeira", "Segunda"}) {
    tela([this, nome](frmEmpresa& t) {
      t.txtNome.userType(nome);
      cidade(t);
      host.expectBox(informacao("Operação concluída."));
      t.userKey(Key::f3);
    });
  }
  EXPECT_THAT(programa.linhas("SELECT sNome FROM DadosEmpresa"), ElementsAre(ElementsAre("Segunda")));
}

TEST_F(DadosDaEmpresa, ChecksComeInTheirOrder) {
  tela([this](frmEmpresa& t) {
    t.txtCPF.userType("11144477736");
    t.txtCNPJ.userType("11444777000162");
    t.txtEMail.userType("a@");
    salvarRecusado(host, t, aviso("O nome deve ser informado."), t.txtNome);
    t.txtNome.userType("Loja");
    salvarRecusado(host, t, pergunta("CPF inválido. Deseja continuar?"), t.txtCPF, BoxAnswer::no);
    host.expectBox(pergunta("CPF inválido. Deseja continuar?"), BoxAnswer::yes);
    salvarRecusado(host, t, pergunta("CNPJ inválido. Deseja continuar?"), t.txtCNPJ, BoxAnswer::no);
    host.expectBox(pergunta("CPF inválido. Deseja continuar?"), BoxAnswer::yes);
    host.expectBox(pergunta("CNPJ inválido. Deseja continuar?"), BoxAnswer::yes);
    salvarRecusado(host, t, aviso("O e-Mail informado é inválido."), t.txtEMail);
    t.txtEMail.userType("");
    t.txtCPF.userType("");
    t.txtCNPJ.userType("");
    salvarRecusado(host, t, aviso("Informe a cidade."), t.campoCidade.txtCidade);
  });
  EXPECT_THAT(programa.linhas("SELECT sNome FROM DadosEmpresa"), IsEmpty());
}

TEST_F(DadosDaEmpresa, APairThatIsNoCityCountsAsNone) {
  tela([this](frmEmpresa& t) {
    t.txtNome.userType("Loja");
    cidade(t);
    t.campoCidade.txtUF.setFocus();
    t.campoCidade.txtUF.userType("SP");
    host.expectBox(aviso("Informe a cidade."));
    t.userKey(Key::f3);
  });
}

TEST_F(DadosDaEmpresa, PicturesArePickedAndTheirPathsStayUnchecked) {
  programa.pasta().gravar("figuras/logo.GIF", "x");
  tela([this](frmEmpresa& t) {
    esperarArquivo(programa.pasta().arquivo("figuras"), "logo.GIF", "*.bmp;*.jpg;*.gif;*.jpeg");
    t.cmdLocalizarLogotipo.userClick();
    EXPECT_EQ(programa.pasta().arquivo("figuras/logo.GIF"), t.txtCaminhoFigura.text());
    esperarNenhumArquivo();
    t.cmdLocalizarImagemPromissoria.userClick();
    EXPECT_EQ("", t.txtFiguraPromissoria.text());
  });
}

}  // namespace
}  // namespace fenvale
