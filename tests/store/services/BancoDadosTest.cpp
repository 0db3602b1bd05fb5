#include "store/services/BancoDados.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "platform/base/Error.h"
#include "platform/os/Process.h"
#include "platform/sql/Store.h"
#include "shell/services/Telas.h"
#include "store/services/DBConectar.h"
#include "support/Caixas.h"
#include "support/ProgramaDeTeste.h"

namespace fenvale {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

const MessageBox atualizado =
    informacao("Banco de Dados atualizado.\r\nExecute o programa novamente para concluir a atualização.");

MessageBox falhaAoAtualizar(const std::string& sDetalhe) {
  return critica(
      "Falha ao atualizar o Banco de Dados.\r\nO programa será finalizado.\r\nTente executar o programa mais tarde, "
      "\r\ne se o problema persistir, contate o suporte técnico.\r\ne-mail de suporte: suporte@norvane.example\r\n\r\n"
      "Informação detalhada: \r\n\r\n" +
      sDetalhe);
}

class Atualizacao : public testing::Test {
 protected:
  void TearDown() override { host.verify(); }
  std::string caminho(const std::string& nome) const { return programa.pasta().arquivo(nome); }
  void roteiro(const std::string& elementos) {
    programa.pasta().gravar("SQL.xmlSQL", "<root>" + elementos + "</root>");
  }
  std::optional<int> atualizar() {
    return ProgramaDeTeste::codigoDeSaida([&] { banco.vAtualizarBD(caminho("SQL.xmlSQL"), false); });
  }
  ProgramaDeTeste programa;
  TestHost& host = programa.hostDeTeste();
  BancoDados banco{programa};
};

TEST_F(Atualizacao, AStoreIsMadeOnceAndShutToOthers) {
  EXPECT_TRUE(banco.bCriarArquivoMDB(caminho("Dados.MDB")));
  struct stat estado {};
  ASSERT_EQ(::stat(caminho("Dados.MDB").c_str(), &estado), 0);
  EXPECT_EQ(estado.st_mode & 07, 0U);
  EXPECT_FALSE(banco.bCriarArquivoMDB(caminho("Dados.MDB")));
  EXPECT_FALSE(banco.bCriarArquivoMDB(programa.pasta().caminho() + "\\dados.mdb"));
}

TEST_F(Atualizacao, AStoreThatCannotBeMadeIsReported) {
  host.expectBox(relatoDeFalha(), BoxAnswer::no);
  EXPECT_EQ(ProgramaDeTeste::codigoDeSaida([&] { banco.bCriarArquivoMDB(caminho("nada/Dados.MDB")); }), exitFailure);
  EXPECT_THAT(programa.pasta().ler("Erros/260315143207.err"), HasSubstr("Fun\xE7\xE3o: bCriarArquivoMDB\r\n"));
}

TEST_F(Atualizacao, TheFirstRunBringsTheStoreUpToDateAndEnds) {
  banco.bCriarArquivoMDB(caminho("Dados.MDB"));
  host.expectBox(atualizado);
  EXPECT_EQ(atualizar(), exitRestart);
  EXPECT_FALSE(programa.dbConectar().Dados().isOpen());
  EXPECT_EQ(atualizar(), std::nullopt);
  EXPECT_TRUE(programa.dbConectar().Dados().isOpen());
  EXPECT_EQ(programa.linhasPrograma("SELECT * FROM Usuarios").size(), 0U);
}

TEST_F(Atualizacao, OfManyStatementsTheNewOneTakesEffectOnce) {
  programa.abrirPrograma();
  std::string elementos;
  for (int i = 0; i < 300; ++i) {
    const std::string sTabela = "T" + std::to_string(i);
    elementos += "<SQL>CREATE TABLE " + sTabela + " (lCodigo COUNTER)</SQL>";
    if (i != 150) programa.executarPrograma("CREATE TABLE " + sTabela + " (lCodigo COUNTER)");
  }
  roteiro(elementos);
  host.expectBox(atualizado);
  EXPECT_EQ(atualizar(), exitRestart);
  EXPECT_EQ(atualizar(), std::nullopt);
}

TEST_F(Atualizacao, TheStatementThatOpensTheConnectionDoesNotCount) {
  banco.bCriarArquivoMDB(caminho("Dados.MDB"));
  roteiro("<SQL>CREATE TABLE A (lCodigo COUNTER)</SQL>");
  EXPECT_EQ(atualizar(), std::nullopt);
  EXPECT_TRUE(programa.dbConectar().Dados().isOpen());
  EXPECT_EQ(programa.linhasPrograma("SELECT * FROM A").size(), 0U);
}

TEST_F(Atualizacao, AnElementCountsByItsOnlyChild) {
  programa.abrirPrograma();
  roteiro(
      "<SQL/><SQL>a<b/></SQL><SQL><b>CREATE TABLE A (lCodigo COUNTER)</b></SQL>"
      "<grupo><SQL><![CDATA[CREATE TABLE B (lCodigo COUNTER)]]></SQL></grupo>");
  host.expectBox(atualizado);
  EXPECT_EQ(atualizar(), exitRestart);
  programa.dbConectar().Dados().open();
  EXPECT_EQ(programa.linhasPrograma("SELECT * FROM A").size(), 0U);
  EXPECT_EQ(programa.linhasPrograma("SELECT * FROM B").size(), 0U);
}

TEST_F(Atualizacao, RepairsRunAtEveryStartAndNeverCount) {
  programa.abrirPrograma();
  roteiro("<UPDATE>UPDATE Cidades SET sUF = 'XX' WHERE sNome = 'Londrina'</UPDATE><UPDATE/>");
  EXPECT_EQ(atualizar(), std::nullopt);
  EXPECT_THAT(programa.linhasPrograma("SELECT sUF FROM Cidades WHERE sNome = 'Londrina'"),
              ElementsAre(ElementsAre("XX")));
}

TEST_F(Atualizacao, RepairsWaitForTheUpdateToBeOver) {
  programa.abrirPrograma();
  roteiro("<UPDATE>UPDATE Cidades SET sUF = 'XX'</UPDATE><SQL>CREATE TABLE A (lCodigo COUNTER)</SQL>");
  host.expectBox(atualizado);
  EXPECT_EQ(atualizar(), exitRestart);
  programa.dbConectar().Dados().open();
  EXPECT_EQ(programa.linhasPrograma("SELECT sUF FROM Cidades WHERE sUF = 'XX'").size(), 0U);
}

TEST_F(Atualizacao, RepairsOfACompanysScriptTouchTheProgramsStore) {
  programa.abrirEmpresa();
  programa.pasta().gravar("outro.xmlSQL", "<root><UPDATE>UPDATE Cidades SET sUF = 'XX'</UPDATE></root>");
  banco.vAtualizarBD(caminho("outro.xmlSQL"), true);
  EXPECT_EQ(programa.linhasPrograma("SELECT sUF FROM Cidades WHERE sUF = 'XX'").size(), 2U);
  EXPECT_EQ(programa.linhas("SELECT sUF FROM Cidades WHERE sUF = 'XX'").size(), 0U);
}

TEST_F(Atualizacao, AStatementThatFailsInAnotherWayIsReported) {
  programa.abrirPrograma();
  roteiro("<SQL>CREATE UNIQUE INDEX I ON NaoHa (x)</SQL>");
  host.expectBox(relatoDeFalha(), BoxAnswer::no);
  EXPECT_EQ(atualizar(), exitFailure);
  EXPECT_THAT(programa.pasta().ler("Erros/260315143207.err"), HasSubstr("Fun\xE7\xE3o: iExecutarAtualizacoesBD\r\n"));
}

TEST_F(Atualizacao, AScriptThatIsNotThereStopsTheProgram) {
  programa.abrirPrograma();
  host.expectBox(falhaAoAtualizar("O arquivo " + caminho("nada.xmlSQL") + " não foi localizado."));
  EXPECT_EQ(ProgramaDeTeste::codigoDeSaida([&] { banco.vAtualizarBD(caminho("nada.xmlSQL"), false); }), exitFailure);
  EXPECT_FALSE(programa.dbConectar().Dados().isOpen());
}

TEST_F(Atualizacao, AFileThatIsNoStoreStopsTheProgram) {
  programa.pasta().gravar("Dados.MDB", std::string(5000, 'x'));
  std::string sCausa;
  try {
    programa.dbConectar().Dados().open();
  } catch (const Error& falha) {
    EXPECT_EQ(falha.number, errors::fileNotStore);
    sCausa = falha.description;
  }
  host.expectBox(falhaAoAtualizar(sCausa));
  EXPECT_EQ(atualizar(), exitFailure);
  EXPECT_EQ(programa.pasta().ler("Dados.MDB"), std::string(5000, 'x'));
}

TEST_F(Atualizacao, ClosingTwiceIsNoFailure) {
  programa.abrirPrograma();
  banco.vFecharConexaoADO();
  banco.vFecharConexaoADO();
  EXPECT_FALSE(programa.dbConectar().Dados().isOpen());
}

class Abertura : public testing::Test {
 protected:
  void TearDown() override { host.verify(); }
  std::string caminho(const std::string& nome) const { return programa.pasta().arquivo(nome); }
  ProgramaDeTeste programa;
  TestHost& host = programa.hostDeTeste();
};

/// Stands in for the screen that asks for the store's place.
class LocalizarBD final : public Screen {
 public:
  explicit LocalizarBD(Contexto& contexto) : Screen(contexto.host(), "frmLocalizarBD") {}
};

TEST_F(Abertura, WithoutIniTheStoreBesideTheProgramIsUsed) {
  programa.pasta().gravar("dados.mdb", "x");
  EXPECT_EQ(programa.dbConectar().Dados().connectionString(),
            "Provider=Microsoft.Jet.OLEDB.4.0;Persist Security Info=False;Data Source=" + caminho("dados.mdb"));
  EXPECT_EQ(programa.dbConectar().sGetCaminhoBD(), caminho("dados.mdb"));
  EXPECT_FALSE(programa.dbConectar().Dados().isOpen());
}

TEST_F(Abertura, TheIniNamesAnotherPlace) {
  programa.pasta().gravar("Rede/Dados.MDB", "x");
  programa.pasta().gravar("Dados.MDB", "y");
  programa.pasta().gravar("init.ini", programa.pasta().caminho() + "\\rede\\dados.mdb\r\nsegunda linha\r\n");
  EXPECT_EQ(programa.dbConectar().Dados().dataSource(), caminho("Rede/Dados.MDB"));
  EXPECT_EQ(programa.dbConectar().sVerificarConteudoIni(), programa.pasta().caminho() + "\\rede\\dados.mdb");
}

TEST_F(Abertura, AnIniThatNamesALostFileIsRemoved) {
  programa.pasta().gravar("Dados.MDB", "y");
  programa.pasta().gravar("init.ini", "/nada/Dados.MDB\r\n");
  EXPECT_EQ(programa.dbConectar().Dados().dataSource(), caminho("Dados.MDB"));
  EXPECT_FALSE(programa.pasta().existe("init.ini"));
}

TEST_F(Abertura, WithoutAnyStoreThePlaceIsAskedForUntilOneIsFound) {
  programa.telas().registrar<LocalizarBD>("frmLocalizarBD");
  programa.pasta().gravar("Rede/Dados.MDB", "x");
  host.expectScreen("frmLocalizarBD", [](Screen& tela) { tela.unload(); });
  host.expectScreen("frmLocalizarBD", [&](Screen& tela) {
    programa.pasta().gravar("init.ini", caminho("Rede/nada.MDB"));
    tela.unload();
  });
  host.expectScreen("frmLocalizarBD", [&](Screen& tela) {
    programa.pasta().gravar("init.ini", caminho("Rede/Dados.MDB"));
    tela.unload();
  });
  EXPECT_EQ(programa.dbConectar().Dados().dataSource(), caminho("Rede/Dados.MDB"));
}

TEST_F(Abertura, AMissingIniIsAnEmptyText) { EXPECT_EQ(programa.dbConectar().sVerificarConteudoIni(), ""); }

}  // namespace
}  // namespace fenvale
