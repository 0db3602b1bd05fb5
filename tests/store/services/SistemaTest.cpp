#include "store/services/Sistema.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>

#include "platform/base/Error.h"
#include "platform/os/Process.h"
#include "platform/sql/Store.h"
#include "platform/xml/XmlDocument.h"
#include "shell/services/Telas.h"
#include "shell/services/TelasDeApoio.h"
#include "store/services/DBConectar.h"
#include "store/services/Empresas.h"
#include "support/Caixas.h"
#include "support/ProgramaDeTeste.h"

namespace fenvale {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

const MessageBox seraPovoada = informacao(
    "A relação de Cidades será povoada. Esta operação poderá demorar alguns instantes.\r\nPor favor, aguarde...");

class Padroes : public testing::Test {
 protected:
  Padroes() { programa.abrirEmpresa(); }
  void TearDown() override { host.verify(); }
  ProgramaDeTeste programa;
  TestHost& host = programa.hostDeTeste();
  Sistema sistema{programa};
};

TEST_F(Padroes, EachDefaultRowIsMadeOnce) {
  programa.executar("INSERT INTO Categorias (btCodigoInf, sNome) VALUES (7, 'Atacado')");
  EXPECT_EQ(sistema.lGetCategoriaPadrao(), 2);
  EXPECT_EQ(sistema.lGetCategoriaPadrao(), 2);
  EXPECT_THAT(programa.linhas("SELECT lCodigo, btCodigoInf, sNome FROM Categorias"),
              ElementsAre(ElementsAre("1", "7", "Atacado"), ElementsAre("2", "8", "")));
  EXPECT_EQ(sistema.lGetCentroCustoPadrao(), 1);
  EXPECT_EQ(sistema.lGetCentroCustoPadrao(), 1);
  EXPECT_THAT(programa.linhas("SELECT lCodigo, btCodigoInf, sDescricao FROM CentroCusto"),
              ElementsAre(ElementsAre("1", "1", "")));
  EXPECT_EQ(sistema.lGetVendedorPadrao(), 1);
  EXPECT_EQ(sistema.lGetVendedorPadrao(), 1);
  EXPECT_THAT(programa.linhas("SELECT lCodigo, lCodigoInf, sNome FROM Vendedores"),
              ElementsAre(ElementsAre("1", "1", "")));
  EXPECT_EQ(sistema.lGetCondicaoPagamentoPadrao(), 1);
  EXPECT_EQ(sistema.lGetCondicaoPagamentoPadrao(), 1);
  EXPECT_THAT(programa.linhas("SELECT lCodigo, btCodigoInf, iNumeroParcelas, iIntervalo, bitEntrada FROM "
                              "CondicoesPagamento"),
              ElementsAre(ElementsAre("1", "1", "1", "0", "0")));
}

TEST_F(Padroes, OfSeveralConditionsOfOneInstalmentTheFirstByKeyWins) {
  programa.executar(
      "INSERT INTO CondicoesPagamento (btCodigoInf, iNumeroParcelas, iIntervalo, bitEntrada) VALUES (9, 3, 30, 0)");
  programa.executar(
      "INSERT INTO CondicoesPagamento (btCodigoInf, iNumeroParcelas, iIntervalo, bitEntrada) VALUES (5, 1, 15, 0)");
  programa.executar(
      "INSERT INTO CondicoesPagamento (btCodigoInf, iNumeroParcelas, iIntervalo, bitEntrada) VALUES (1, 1, 0, 0)");
  EXPECT_EQ(sistema.lGetCondicaoPagamentoPadrao(), 2);
}

TEST_F(Padroes, TheNextCodeFollowsTheLargest) {
  EXPECT_EQ(sistema.sGetProximoCodigoNumerico("Categorias", "btCodigoInf", 0, true), "1");
  EXPECT_EQ(sistema.sGetProximoCodigoNumerico("Categorias", "btCodigoInf", 100, true), "101");
  programa.executar("INSERT INTO Categorias (btCodigoInf, sNome) VALUES (255, 'Última')");
  EXPECT_EQ(sistema.sGetProximoCodigoNumerico("Categorias", "btCodigoInf", 0, true), "256");
  EXPECT_EQ(sistema.sGetProximoCodigoNumerico("Cidades", "lCodigo", 0, false), "3");
}

TEST_F(Padroes, ACodeBeyondTheByteIsRefusedByTheStoreAndReported) {
  programa.executar("INSERT INTO Categorias (btCodigoInf, sNome) VALUES (255, 'Última')");
  host.expectBox(relatoDeFalha(), BoxAnswer::no);
  EXPECT_EQ(ProgramaDeTeste::codigoDeSaida([&] { sistema.lGetCategoriaPadrao(); }), exitFailure);
  EXPECT_THAT(programa.pasta().ler("Erros/260315143207.err"), HasSubstr("Fun\xE7\xE3o: lGetCategoriaPadrao\r\n"));
}

TEST_F(Padroes, AFieldIsThereWhenTheFirstRowOfTheValueIsAnother) {
  programa.executar("INSERT INTO Categorias (btCodigoInf, sNome) VALUES (1, 'Pau d''Alho')");
  EXPECT_TRUE(sistema.bExisteCampo("Pau d'Alho", "Categorias", "sNome", -1));
  EXPECT_FALSE(sistema.bExisteCampo("Pau d'Alho", "Categorias", "sNome", 1));
  EXPECT_TRUE(sistema.bExisteCampo("PAU D'ALHO  ", "Categorias", "sNome", 2));
  EXPECT_FALSE(sistema.bExisteCampo("Outro", "Categorias", "sNome", -1));
  EXPECT_FALSE(sistema.bExisteCampo("", "Categorias", "sNome", -1));
}

class Sementes : public testing::Test {
 protected:
  Sementes() { programa.abrirEmpresa(); }
  void TearDown() override { host.verify(); }
  void esvaziar() {
    programa.executar("DELETE * FROM Cidades");
    programa.executar("DELETE * FROM Bancos");
    programa.executarPrograma("DELETE * FROM Cidades");
  }
  std::string caminho(const std::string& nome) const { return programa.pasta().arquivo(nome); }
  MessageBox falha(const std::string& sDetalhe) const {
    return critica(
        "Falha ao atualizar o Banco de Dados.\r\nO programa será finalizado.\r\nTente executar o programa mais tarde, "
        "\r\ne se o problema persistir, contate o suporte técnico.\r\ne-mail de suporte: "
        "suporte@norvane.example\r\n\r\n"
        "Informação detalhada: \r\n\r\n" +
        sDetalhe);
  }
  ProgramaDeTeste programa;
  TestHost& host = programa.hostDeTeste();
  Sistema sistema{programa};
};

/// Stands in for the waiting screen.
class Espera final : public Screen, public TelaMensagem {
 public:
  explicit Espera(Contexto& contexto) : Screen(contexto.host(), "frmMensagem"), contexto_(contexto) {}
  void vCarregar(const std::string& sMensagem, bool bEmpresa) override {
    mensagens.push_back(sMensagem);
    Sistema(contexto_).vPovoarRelacaoCidades(contexto_.sGetCaminhoAplicacao() + "/Cidades.XML", bEmpresa);
  }
  void vFechar() override { ++fechamentos; }
  std::vector<std::string> mensagens;
  int fechamentos = 0;

 private:
  Contexto& contexto_;
};

TEST_F(Sementes, ATableThatHoldsSomethingIsLeftAlone) {
  sistema.vCadastrarCidades(true, false);
  sistema.vCadastrarCidades(false, true);
  sistema.vCadastrarBancos();
  EXPECT_EQ(programa.linhas("SELECT * FROM Cidades").size(), 2U);
  EXPECT_EQ(programa.linhas("SELECT * FROM Bancos").size(), 2U);
}

TEST_F(Sementes, TheCompanysCitiesAreToldAndTheCaptionComesBack) {
  esvaziar();
  const std::string sLegenda = programa.janelaDeTeste().sGetLegenda();
  programa.janelaDeTeste().legendas.clear();
  host.expectBox(seraPovoada);
  sistema.vCadastrarCidades(true, false);
  EXPECT_THAT(programa.linhas("SELECT sNome, sUF FROM Cidades ORDER BY lCodigo"),
              ElementsAre(ElementsAre("Londrina", "PR"), ElementsAre("São Paulo", "SP")));
  EXPECT_THAT(programa.janelaDeTeste().legendas,
              ElementsAre(sLegenda + " - Aguarde, povoando a relação de Cidades...", sLegenda));
  EXPECT_EQ(programa.linhasPrograma("SELECT * FROM Cidades").size(), 0U);
}

TEST_F(Sementes, TheBanksComeWithoutABox) {
  esvaziar();
  const std::string sLegenda = programa.janelaDeTeste().sGetLegenda();
  programa.janelaDeTeste().legendas.clear();
  sistema.vCadastrarBancos();
  EXPECT_THAT(programa.linhas("SELECT sNome, iCodigoInf FROM Bancos ORDER BY lCodigo"),
              ElementsAre(ElementsAre("Banco do Brasil S.A.", "1"), ElementsAre("Caixa Econômica Federal", "104")));
  EXPECT_THAT(programa.janelaDeTeste().legendas,
              ElementsAre(sLegenda + " - Aguarde, povoando a relação de Bancos...", sLegenda));
}

TEST_F(Sementes, TheProgramsCitiesComeBehindTheWaitingScreen) {
  esvaziar();
  programa.telas().registrar<Espera>("frmMensagem");
  sistema.vCadastrarCidades(false, true);
  auto& espera = programa.telas().obter<Espera>("frmMensagem");
  EXPECT_THAT(espera.mensagens, ElementsAre("Aguarde, povoando a relação de Cidades..."));
  EXPECT_EQ(espera.fechamentos, 1);
  EXPECT_EQ(programa.linhasPrograma("SELECT * FROM Cidades").size(), 2U);
  EXPECT_EQ(programa.linhas("SELECT * FROM Cidades").size(), 0U);
}

TEST_F(Sementes, AnApostropheGetsThroughAndAnElementWithoutChildrenIsSkipped) {
  esvaziar();
  programa.pasta().gravar("Cidades.XML",
                          "<root><Cid/><Cid><uf>PE</uf><nome>Pau d'Alho</nome></Cid><outro>x</outro></root>");
  sistema.vPovoarRelacaoCidades(caminho("Cidades.XML"), true);
  EXPECT_THAT(programa.linhas("SELECT sNome, sUF FROM Cidades"), ElementsAre(ElementsAre("Pau d'Alho", "PE")));
}

TEST_F(Sementes, AMissingSeedFileStopsTheProgram) {
  esvaziar();
  std::filesystem::remove(caminho("Bancos.XML"));
  host.expectBox(falha("O arquivo " + caminho("Bancos.XML") + " não foi localizado."));
  EXPECT_EQ(ProgramaDeTeste::codigoDeSaida([&] { sistema.vCadastrarBancos(); }), exitFailure);
}

TEST_F(Sementes, AnIncompleteElementLeavesNothingBehind) {
  esvaziar();
  programa.pasta().gravar("Cidades.XML", "<r><Cid><uf>PR</uf><nome>Londrina</nome></Cid><Cid><uf>SP</uf></Cid></r>");
  host.expectBox(falha("O elemento Cid está incompleto."));
  EXPECT_EQ(ProgramaDeTeste::codigoDeSaida([&] { sistema.vPovoarRelacaoCidades(caminho("Cidades.XML"), true); }),
            exitFailure);
  EXPECT_EQ(programa.linhas("SELECT * FROM Cidades").size(), 0U);
  EXPECT_EQ(programa.dbEmpresa().Dados().transactionLevel(), 0);
}

TEST_F(Sementes, ABankThatIsThereTwiceLeavesNothingBehind) {
  esvaziar();
  programa.pasta().gravar(
      "Bancos.XML", "<r><bc><n>001</n><s>Um</s></bc><bc><n>104</n><s>Dois</s></bc><bc><n>1</n><s>Três</s></bc></r>");
  std::string sRecusa;
  try {
    programa.executar("INSERT INTO Bancos (sNome, iCodigoInf) VALUES ('Um', 1)");
    programa.executar("INSERT INTO Bancos (sNome, iCodigoInf) VALUES ('Três', '1')");
  } catch (const Error& recusa) {
    sRecusa = recusa.description;
  }
  programa.executar("DELETE * FROM Bancos");
  host.expectBox(falha(sRecusa));
  EXPECT_EQ(ProgramaDeTeste::codigoDeSaida([&] { sistema.vPovoarRelacaoBancos(caminho("Bancos.XML")); }), exitFailure);
  EXPECT_EQ(programa.linhas("SELECT * FROM Bancos").size(), 0U);
}

TEST_F(Sementes, ANumberThatIsNoneIsReported) {
  esvaziar();
  programa.pasta().gravar("Bancos.XML", "<r><bc><n>um</n><s>Banco</s></bc></r>");
  host.expectBox(relatoDeFalha(), BoxAnswer::no);
  EXPECT_EQ(ProgramaDeTeste::codigoDeSaida([&] { sistema.vPovoarRelacaoBancos(caminho("Bancos.XML")); }), exitFailure);
  EXPECT_THAT(programa.pasta().ler("Erros/260315143207.err"), HasSubstr("Fun\xE7\xE3o: vPovoarRelacaoBancos\r\n"));
  EXPECT_EQ(programa.linhas("SELECT * FROM Bancos").size(), 0U);
}

TEST_F(Sementes, ANoToTheRepairGivesNoRowsAndTheNextTimeAsksAgain) {
  esvaziar();
  programa.pasta().gravar("Cidades.XML", "<r><Cid><uf>PR</uf><nome>Ibipor\xE3</nome></Cid></r>");
  for (int vez = 0; vez < 2; ++vez) {
    const XmlParseError erro = XmlDocument::load(caminho("Cidades.XML")).parseError();
    host.expectBox(pergunta("O documento \r\n" + caminho("Cidades.XML") + "\r\nestá mal formatado.\r\n\r\n" +
                            "Informação detalhada:\r\nerrorCode: " + std::to_string(erro.code) +
                            "\r\nfilepos: " + std::to_string(erro.filePosition) + "\r\nLine: 1\r\nlinepos: " +
                            std::to_string(erro.column) + "\r\nulr: " + erro.url + "\r\nreason: " + erro.reason +
                            "\r\n\r\nDeseja revisar a formatação e tentar processar novamente o arquivo?"),
                   BoxAnswer::no);
    sistema.vPovoarRelacaoCidades(caminho("Cidades.XML"), true);
    EXPECT_EQ(programa.linhas("SELECT * FROM Cidades").size(), 0U);
  }
}

TEST_F(Sementes, TheShippedFilesFillACompanyInUnderASecondOfWork) {
  esvaziar();
  const std::string dados = std::string(FENVALE_SOURCE_DIR) + "/data/";
  const auto copiar = [&](const char* nome) {
    std::filesystem::copy_file(dados + nome, caminho(nome), std::filesystem::copy_options::overwrite_existing);
  };
  copiar("Cidades.XML");
  copiar("Bancos.XML");
  const auto inicio = std::chrono::steady_clock::now();
  host.expectBox(seraPovoada);
  sistema.vCadastrarCidades(true, false);
  sistema.vCadastrarBancos();
  const std::chrono::duration<double> gasto = std::chrono::steady_clock::now() - inicio;
  EXPECT_EQ(programa.linhas("SELECT COUNT(lCodigo) AS Cont FROM Cidades"),
            (std::vector<std::vector<std::string>>{{"5571"}}));
  EXPECT_EQ(programa.linhas("SELECT COUNT(lCodigo) AS Cont FROM Bancos"),
            (std::vector<std::vector<std::string>>{{"463"}}));
  EXPECT_EQ(programa.linhas("SELECT sUF FROM Cidades WHERE sNome = 'São Paulo'").at(0).at(0), "SP");
  EXPECT_GT(host.eventsLetThrough(), 6000);
  RecordProperty("seconds", std::to_string(gasto.count()));
#ifdef NDEBUG
  EXPECT_LT(gasto.count(), 1.0);
#endif
}

}  // namespace
}  // namespace fenvale
