#include "store/services/Empresas.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "platform/base/Error.h"
#include "platform/os/Process.h"
#include "platform/sql/Store.h"
#include "platform/ui/Choices.h"
#include "platform/xml/XmlDocument.h"
#include "shell/services/Telas.h"
#include "store/services/DBConectar.h"
#include "support/Caixas.h"
#include "support/ProgramaDeTeste.h"

namespace fenvale {
namespace {

using testing::ElementsAre;

constexpr const char* sPrograma = "Gestor Fenvale - Versão ZENIT";

class Abertas : public testing::Test {
 protected:
  Abertas() { programa.abrirPrograma(); }
  void TearDown() override { host.verify(); }
  std::string pasta() const { return programa.pasta().caminho() + "/"; }
  bool aberta() { return programa.dbEmpresa().Dados().isOpen(); }
  ProgramaDeTeste programa;
  TestHost& host = programa.hostDeTeste();
  Empresas& empresas = programa.empresas();
};

TEST_F(Abertas, AtFirstThereIsNone) {
  EXPECT_EQ(empresas.lGetCodigo(), 0);
  EXPECT_EQ(empresas.sGetNomeArquivo() + empresas.sGetCaminho(), "");
  EXPECT_FALSE(empresas.bSelecionouEmpresa(false));
  host.expectBox(aviso("Selecione uma empresa."));
  EXPECT_FALSE(empresas.bSelecionouEmpresa(true));
}

TEST_F(Abertas, OneIsOpenedAndTheWindowSaysSo) {
  programa.criarEmpresa("loja.MDB");
  host.expectBox(informacao("Empresa selecionada com sucesso."));
  EXPECT_TRUE(empresas.bSetEmpresa(7, "loja.MDB", pasta(), true));
  EXPECT_TRUE(aberta());
  EXPECT_TRUE(empresas.bSelecionouEmpresa(true));
  EXPECT_EQ(empresas.lGetCodigo(), 7);
  EXPECT_EQ(programa.janelaDeTeste().sGetLegenda(),
            std::string(sPrograma) + "   -     Empresa: loja.MDB     -     Caminho: " + pasta());
  EXPECT_EQ(programa.dbEmpresa().Dados().connectionString(),
            "Provider=Microsoft.Jet.OLEDB.4.0;Persist Security Info=False;Data Source=" + pasta() + "loja.MDB");
}

TEST_F(Abertas, APathOfTheOldSystemIsOpenedAsWell) {
  programa.criarEmpresa("Loja.mdb");
  std::string sCaminho = pasta();
  std::replace(sCaminho.begin(), sCaminho.end(), '/', '\\');
  EXPECT_TRUE(empresas.bSetEmpresa(1, "LOJA.MDB", sCaminho, false));
  EXPECT_EQ(programa.dbEmpresa().Dados().dataSource(), pasta() + "Loja.mdb");
  EXPECT_EQ(empresas.sGetCaminho(), sCaminho);
}

TEST_F(Abertas, AKeyBelowOneClosesWithoutAWord) {
  programa.abrirEmpresa();
  EXPECT_FALSE(empresas.bSetEmpresa(0, "x", "y", true));
  EXPECT_FALSE(aberta());
  EXPECT_EQ(empresas.lGetCodigo(), 0);
  EXPECT_EQ(empresas.sGetNomeArquivo() + empresas.sGetCaminho(), "");
  EXPECT_EQ(programa.janelaDeTeste().sGetLegenda(), sPrograma);
}

TEST_F(Abertas, AFileThatIsGoneIsToldWithItsPath) {
  programa.abrirEmpresa();
  host.expectBox(aviso(pasta() + "outra.MDB\r\n\r\nO arquivo não foi localizado."));
  EXPECT_FALSE(empresas.bSetEmpresa(5, "outra.MDB", pasta(), false));
  EXPECT_FALSE(aberta());
  EXPECT_EQ(empresas.lGetCodigo(), 5);
  EXPECT_EQ(empresas.sGetNomeArquivo(), "outra.MDB");
}

TEST_F(Abertas, AFileThatIsNoStoreIsToldWithTheCause) {
  const std::string lixo(3000, 'x');
  programa.pasta().gravar("lixo.MDB", lixo);
  Connection tentativa(StoreEnvironment{programa.relogio()});
  tentativa.setConnectionString("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + pasta() + "lixo.MDB");
  std::string sCausa;
  try {
    tentativa.open();
  } catch (const Error& falha) {
    sCausa = falha.description;
  }
  ASSERT_FALSE(sCausa.empty());
  host.expectBox(aviso(pasta() + "lixo.MDB\r\n\r\n" + sCausa));
  EXPECT_FALSE(empresas.bSetEmpresa(5, "lixo.MDB", pasta(), true));
  EXPECT_FALSE(aberta());
  EXPECT_EQ(programa.pasta().ler("lixo.MDB"), lixo);
}

TEST_F(Abertas, ACompanyThatGetsItsTablesEndsTheRun) {
  createStore(pasta() + "nova.MDB");
  host.expectBox(informacao("Banco de Dados atualizado.\r\nExecute o programa novamente para concluir a atualização."));
  EXPECT_EQ(ProgramaDeTeste::codigoDeSaida([&] { empresas.bSetEmpresa(1, "nova.MDB", pasta(), true); }), exitRestart);
}

TEST_F(Abertas, AChangeOfCompanyLeavesTheProgramsStoreAlone) {
  programa.abrirEmpresa("a.MDB");
  programa.executar("INSERT INTO Categorias (btCodigoInf, sNome) VALUES (1, 'Da primeira')");
  programa.abrirEmpresa("b.MDB");
  EXPECT_EQ(programa.linhas("SELECT sNome FROM Categorias").size(), 0U);
  EXPECT_TRUE(programa.dbConectar().Dados().isOpen());
  EXPECT_TRUE(empresas.bSetEmpresa(1, "a.MDB", pasta(), false));
  EXPECT_THAT(programa.linhas("SELECT sNome FROM Categorias"), ElementsAre(ElementsAre("Da primeira")));
}

TEST_F(Abertas, TheLastOneIsWrittenInSevenLines) {
  programa.criarEmpresa("Ação & Cia.MDB");
  EXPECT_TRUE(empresas.bSetEmpresa(12, "Ação & Cia.MDB", pasta(), false));
  empresas.vSetUltimaEmpresaSelecionada();
  EXPECT_EQ(programa.pasta().ler("Empresa.XML"),
            "<root>\r\n<emp>\r\n<cod>12</cod>\r\n<file>A&#231;&#227;o &#38; Cia.MDB</file>\r\n<path>" + pasta() +
                "</path>\r\n</emp>\r\n</root>\r\n");
}

TEST_F(Abertas, WithNoneTheFileIsWrittenEmptyAndOpensNothing) {
  empresas.vSetUltimaEmpresaSelecionada();
  EXPECT_EQ(programa.pasta().ler("Empresa.XML"),
            "<root>\r\n<emp>\r\n<cod>0</cod>\r\n<file></file>\r\n<path></path>\r\n</emp>\r\n</root>\r\n");
  EXPECT_FALSE(empresas.bSetEmpresaXML());
  EXPECT_FALSE(aberta());
}

TEST_F(Abertas, AnyNameComesBackFromTheFile) {
  for (const std::string sNome : {"Loja.MDB", "Ção €.MDB", "Ω <&> \"x\" 'y'.MDB", "a\xC2\xA0z.MDB"}) {
    programa.criarEmpresa(sNome);
    EXPECT_TRUE(empresas.bSetEmpresa(3, sNome, pasta(), false));
    empresas.vSetUltimaEmpresaSelecionada();
    empresas.bSetEmpresa(0, "", "", false);
    EXPECT_TRUE(empresas.bSetEmpresaXML()) << sNome;
    EXPECT_EQ(empresas.sGetNomeArquivo(), sNome);
    EXPECT_EQ(empresas.sGetCaminho(), pasta());
    EXPECT_EQ(empresas.lGetCodigo(), 3);
  }
}

TEST_F(Abertas, WithoutTheFileNothingIsOpened) {
  EXPECT_FALSE(empresas.bSetEmpresaXML());
  EXPECT_FALSE(aberta());
}

TEST_F(Abertas, TheChildrenOfTheFileCountByTheirPlace) {
  programa.criarEmpresa("loja.MDB");
  programa.pasta().gravar("Empresa.XML", "<x><emp><a>4</a><b>loja.MDB</b><c>" + pasta() + "</c></emp><emp/></x>");
  EXPECT_TRUE(empresas.bSetEmpresaXML());
  EXPECT_EQ(empresas.lGetCodigo(), 4);
  empresas.bSetEmpresa(0, "", "", false);
  programa.pasta().gravar("Empresa.XML", "<x><emp><a>4</a><b>loja.MDB</b></emp></x>");
  EXPECT_FALSE(empresas.bSetEmpresaXML());
}

TEST_F(Abertas, ALostCompanyIsToldAtTheStartAndTheRunGoesOn) {
  programa.pasta().gravar("Empresa.XML",
                          "<root><emp><cod>2</cod><file>sumiu.MDB</file><path>" + pasta() + "</path></emp></root>");
  host.expectBox(aviso(pasta() + "sumiu.MDB\r\n\r\nO arquivo não foi localizado."));
  EXPECT_FALSE(empresas.bSetEmpresaXML());
}

/// Stands in for the screen of the company's own data.
class DadosDaEmpresa final : public Screen {
 public:
  explicit DadosDaEmpresa(Contexto& contexto) : Screen(contexto.host(), "frmEmpresa") {}
};

TEST_F(Abertas, TheCompanysDataAreAskedForUntilTheyAreThere) {
  programa.abrirEmpresa();
  programa.telas().registrar<DadosDaEmpresa>("frmEmpresa");
  host.expectBox(aviso("Informe os dados da empresa."));
  host.expectScreen("frmEmpresa", [](Screen& tela) { tela.unload(); });
  host.expectBox(aviso("Informe os dados da empresa."));
  host.expectScreen("frmEmpresa", [&](Screen& tela) {
    programa.executar("INSERT INTO DadosEmpresa (sNome, lCidade) VALUES ('Loja', 1)");
    tela.unload();
  });
  empresas.vVerificarDadosEmpresa();
  empresas.vVerificarDadosEmpresa();
}

TEST_F(Abertas, TheLogoIsLoadedWhenItsFileExists) {
  programa.abrirEmpresa();
  DadosDaEmpresa tela(programa);
  Image imagem(tela, "imgLogo");
  empresas.vGetLogo(imagem, "txtCaminhoFigura");
  EXPECT_EQ(imagem.picture(), "");
  programa.pasta().gravar("logo.gif", "x");
  programa.executar(
      "INSERT INTO DadosEmpresa (sNome, lCidade, txtCaminhoFigura, txtFiguraPromissoria) VALUES ('Loja', 1, '" +
      pasta() + "LOGO.GIF', '" + pasta() + "nada.gif')");
  empresas.vGetLogo(imagem, "txtCaminhoFigura");
  EXPECT_EQ(imagem.picture(), pasta() + "logo.gif");
  imagem.setPicture("");
  empresas.vGetLogo(imagem, "txtFiguraPromissoria");
  EXPECT_EQ(imagem.picture(), "");
}

}  // namespace
}  // namespace fenvale
