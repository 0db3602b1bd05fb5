#include "shell/services/TratadorExcessoes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "platform/base/Error.h"
#include "platform/sql/Store.h"
#include "shell/services/DadosPC.h"
#include "store/services/DBConectar.h"
#include "support/Caixas.h"
#include "support/ProgramaDeTeste.h"

namespace fenvale {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;

constexpr const char* sRelatorio = "Erros/260315143207.err";

class Relatorio : public testing::Test {
 protected:
  void TearDown() override { host.verify(); }
  std::optional<int> relatar(int iOpcao = 1, const std::string& sDescricao = "Algo falhou.") {
    return ProgramaDeTeste::codigoDeSaida([&] {
      programa.tratadorExcessoes().vExibirGravarLogErro(Error(-2147217865, sDescricao), "frmSistema", "cmdSalvar_Click",
                                                        iOpcao);
    });
  }
  void configurar(const std::string& campos, const std::string& valores) {
    programa.abrirPrograma();
    programa.executarPrograma("INSERT INTO Configuracoes (" + campos + ") VALUES (" + valores + ")");
  }
  ProgramaDeTeste programa;
  TestHost& host = programa.hostDeTeste();
};

TEST_F(Relatorio, IsAFileOfTheMomentWithEveryLine) {
  host.expectBox(relatoDeFalha(), BoxAnswer::no);
  EXPECT_EQ(relatar(), exitFailure);
  EXPECT_EQ(programa.pasta().ler(sRelatorio), "Gestor Fenvale - Vers\xE3o ZENIT " FENVALE_VERSION
                                              "\r\n"
                                              "Nome do programa: Gestor Fenvale " FENVALE_VERSION
                                              "\r\n"
                                              "IP: 192.168.0.7\r\n"
                                              "Host: balcao\r\n"
                                              "Data: 15/03/2026\r\n"
                                              "Hora: 14:32:07\r\n"
                                              "Formul\xE1rio: frmSistema\r\n"
                                              "Fun\xE7\xE3o: cmdSalvar_Click\r\n"
                                              "N\xFAmero do erro: -2147217865\r\n"
                                              "Descri\xE7\xE3o do erro: Algo falhou.\r\n"
                                              "\r\n"
                                              "\r\n");
  EXPECT_THAT(programa.pasta().nomes("Erros"), ElementsAre("260315143207.err"));
}

TEST_F(Relatorio, CarriesTheInstallersNotesByteForByte) {
  programa.pasta().gravar("Sistema.ini", "Balc\xE3o da loja\r\nsegunda linha\nsem fim \x80");
  host.expectBox(relatoDeFalha(), BoxAnswer::no);
  relatar();
  EXPECT_THAT(programa.pasta().ler(sRelatorio),
              EndsWith("Algo falhou.\r\n\r\n\r\nBalc\xE3o da loja\r\nsegunda linha\r\nsem fim \x80\r\n"));
}

TEST_F(Relatorio, ASecondFailureWithinASecondReplacesTheFirst) {
  host.expectBox(relatoDeFalha(), BoxAnswer::no);
  host.expectBox(relatoDeFalha(), BoxAnswer::no);
  relatar(2, "A primeira, que era bem mais comprida.");
  relatar(2, "A segunda.");
  EXPECT_THAT(programa.pasta().nomes("Erros"), ElementsAre("260315143207.err"));
  EXPECT_THAT(programa.pasta().ler(sRelatorio), EndsWith("Descri\xE7\xE3o do erro: A segunda.\r\n\r\n\r\n"));
}

TEST_F(Relatorio, WithTheOptionTwoTheProgramGoesOn) {
  host.expectBox(relatoDeFalha(), BoxAnswer::no);
  EXPECT_EQ(relatar(2), std::nullopt);
}

TEST_F(Relatorio, WithoutSettingsNothingIsSentAndTheProgramEndsAllTheSame) {
  programa.abrirPrograma();
  host.expectBox(relatoDeFalha(), BoxAnswer::yes);
  host.expectBox(critica("As configurações do e-mail estão incompletas."));
  EXPECT_EQ(relatar(), exitFailure);
  EXPECT_THAT(programa.correioDeTeste().enviados, IsEmpty());
}

TEST_F(Relatorio, EveryMissingSettingCounts) {
  const std::vector<std::string> incompletas{"'', 'loja@norvane.example', 0, '', ''",
                                             "'smtp.norvane.example', '', 0, '', ''",
                                             "'smtp.norvane.example', 'loja@norvane.example', -1, '', 'segredo'",
                                             "'smtp.norvane.example', 'loja@norvane.example', -1, 'loja', ''"};
  for (const std::string& valores : incompletas) {
    configurar("sSMTP, sEmailRementente, bitAutenticacao, sUID, sPWD", valores);
    host.expectBox(relatoDeFalha(), BoxAnswer::yes);
    host.expectBox(critica("As configurações do e-mail estão incompletas."));
    EXPECT_EQ(relatar(2), std::nullopt) << valores;
    programa.executarPrograma("DELETE * FROM Configuracoes");
  }
  EXPECT_THAT(programa.correioDeTeste().enviados, IsEmpty());
}

TEST_F(Relatorio, IsMailedToTheSupportWhenTheUserWantsIt) {
  configurar("sSMTP, sEmailRementente, bitAutenticacao, sUID, sPWD",
             "'smtp.norvane.example', 'loja@norvane.example', -1, 'loja', 'segredo'");
  host.expectBox(relatoDeFalha(), BoxAnswer::yes);
  host.expectBox(informacao("Mensagem enviada para suporte@norvane.example"));
  EXPECT_EQ(relatar(), exitFailure);
  ASSERT_EQ(programa.correioDeTeste().enviados.size(), 1U);
  const Mail& mail = programa.correioDeTeste().enviados.front();
  EXPECT_EQ(mail.server, "smtp.norvane.example");
  EXPECT_EQ(mail.sender, "loja@norvane.example");
  EXPECT_EQ(mail.recipient, "suporte@norvane.example");
  EXPECT_EQ(mail.subject, "Erro no programa Gestor Fenvale - Versão ZENIT " FENVALE_VERSION);
  EXPECT_THAT(mail.body, testing::HasSubstr("Formulário: frmSistema\r\n"));
  EXPECT_EQ(mail.user, "loja");
  EXPECT_EQ(mail.password, "segredo");
}

TEST_F(Relatorio, WithoutAuthenticationUserAndPasswordAreNotRead) {
  configurar("sSMTP, sEmailRementente, bitAutenticacao, sUID, sPWD",
             "' smtp.norvane.example ', 'loja@norvane.example', 0, 'loja', 'segredo'");
  host.expectBox(relatoDeFalha(), BoxAnswer::yes);
  host.expectBox(informacao("Mensagem enviada para suporte@norvane.example"));
  EXPECT_EQ(relatar(2), std::nullopt);
  const Mail& mail = programa.correioDeTeste().enviados.at(0);
  EXPECT_EQ(mail.server, "smtp.norvane.example");
  EXPECT_EQ(mail.user + mail.password, "");
}

TEST_F(Relatorio, AMailThatFailsIsTold) {
  configurar("sSMTP, sEmailRementente", "'smtp.norvane.example', 'loja@norvane.example'");
  programa.correioDeTeste().falha = "O servidor não respondeu.";
  host.expectBox(relatoDeFalha(), BoxAnswer::yes);
  host.expectBox(critica("Erro ao enviar mensagem para suporte@norvane.example\r\n\r\nO servidor não respondeu."));
  EXPECT_EQ(relatar(), exitFailure);
}

TEST_F(Relatorio, WithoutANetworkItIsWrittenWithEmptyLines) {
  programa.redeDeTeste().nome.clear();
  host.expectBox(critica("Erro no Windows Socket. 10050", "Erro"));
  host.expectBox(critica("Erro no Windows Socket. 10050", "Erro"));
  host.expectBox(relatoDeFalha(), BoxAnswer::no);
  EXPECT_EQ(relatar(), exitFailure);
  EXPECT_THAT(programa.pasta().ler(sRelatorio), testing::HasSubstr("\r\nIP: \r\nHost: \r\nData: "));
}

TEST_F(Relatorio, AFolderThatCannotBeMadeIsTheReportersOwnFailure) {
  programa.pasta().gravar("Erros", "um arquivo no lugar da pasta");
  const std::string sPasta = programa.pasta().arquivo("Erros");
  host.then([] {});
  host.expectBox(critica(
      "Erro no tratador de excessões.\r\nNão foi possível criar a pasta " + sPasta + ": " + "o caminho não existe.",
      "Erro"));
  EXPECT_EQ(relatar(), std::nullopt);
}

TEST_F(Relatorio, SettingsThatCannotBeReadAreTheReportersOwnFailure) {
  programa.abrirPrograma();
  programa.dbConectar().Dados().close();
  host.expectBox(relatoDeFalha(), BoxAnswer::yes);
  std::string sDescricao;
  try {
    programa.executarPrograma("SELECT * FROM Configuracoes ");
  } catch (const Error& falha) {
    sDescricao = falha.description;
  }
  host.expectBox(critica("Erro no tratador de excessões.\r\n" + sDescricao, "Erro"));
  host.expectBox(critica("As configurações do e-mail estão incompletas."));
  EXPECT_EQ(relatar(), exitFailure);
}

TEST(ArquivosTemporarios, GoWithTheReporter) {
  PastaTemporaria copia;
  {
    ProgramaDeTeste programa;
    programa.pasta().gravar("a.tmp", "x");
    programa.pasta().gravar("B.TMP", "x");
    programa.pasta().gravar("c.txt", "x");
    { const TratadorExcessoes tratador(programa); }
    EXPECT_FALSE(programa.pasta().existe("a.tmp"));
    EXPECT_FALSE(programa.pasta().existe("B.TMP"));
    EXPECT_TRUE(programa.pasta().existe("c.txt"));
    programa.pasta().gravar("pasta.tmp/x", "x");
    { const TratadorExcessoes tratador(programa); }
    EXPECT_TRUE(programa.pasta().existe("pasta.tmp"));
  }
}

class Maquina : public testing::Test {
 protected:
  void TearDown() override { host.verify(); }
  ProgramaDeTeste programa;
  TestHost& host = programa.hostDeTeste();
  RedeDeTeste& rede = programa.redeDeTeste();
  DadosPC dados{programa};
};

TEST_F(Maquina, TellsItsAddressAndName) {
  EXPECT_EQ(dados.sVerificarIP(), "192.168.0.7");
  EXPECT_EQ(dados.sVerificarHost(), "balcao");
  EXPECT_EQ(rede.partidas, 2);
  EXPECT_EQ(rede.paradas, 2);
}

TEST_F(Maquina, ANameThatCannotBeResolvedIsTold) {
  rede.endereco.clear();
  host.expectBox(critica("Winsock.dll não está respondendo.", "Erro"));
  EXPECT_EQ(dados.sVerificarIP(), "");
  EXPECT_EQ(rede.paradas, 1);
}

TEST_F(Maquina, ASocketLibraryThatIsOfNoUseIsTold) {
  rede.biblioteca = SocketLibrary{10091};
  host.expectBox(critica("Winsock.dll is not responding.", "Erro"));
  EXPECT_EQ(dados.sVerificarHost(), "");
  rede.biblioteca = SocketLibrary{0, 0x0900};
  host.expectBox(critica("Windows Sockets version 0.9 is not supported by winsock.dll ", "Erro"));
  EXPECT_FALSE(dados.SocketsInitialize());
  rede.biblioteca = SocketLibrary{0, 0x0101, 0};
  host.expectBox(critica("This application requires a minimum of 1 supported sockets.", "Erro"));
  EXPECT_FALSE(dados.SocketsInitialize());
  rede.falhaAoParar = 10093;
  host.expectBox(critica("Socket error 10093 occurred in Cleanup ", "Erro"));
  dados.SocketsCleanup();
}

TEST_F(Maquina, HalvesOfANumber) {
  EXPECT_EQ(DadosPC::hibyte(0x0102), 1);
  EXPECT_EQ(DadosPC::lobyte(0x0102), 2);
}

}  // namespace
}  // namespace fenvale
