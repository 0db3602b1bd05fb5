#include <gmock/gmock.h>
#include <sqlite3.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <fstream>

#include "access/services/Permissoes.h"
#include "platform/base/Text.h"
#include "platform/os/Process.h"
#include "shell/services/JanelaPrincipal.h"
#include "shell/services/TelasDeApoio.h"
#include "store/screens/TelasDeEmpresas.h"
#include "store/screens/frmEmpresaAbrir.h"
#include "store/screens/frmEmpresaBackup.h"
#include "store/screens/frmEmpresaNova.h"
#include "store/services/Empresas.h"
#include "support/Caixas.h"
#include "support/Espia.h"
#include "support/Rodada.h"

namespace fenvale {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* sLegendaFechada = "Gestor Fenvale - Versão ZENIT";

class Backup : public TelasDeEmpresas {
 protected:
  Backup() { fs::create_directory(programa.pasta().arquivo("copias")); }

  std::optional<int> tela(const std::function<void(frmEmpresaBackup&)>& agir) {
    return abrir<frmEmpresaBackup>("frmEmpresaBackup", agir);
  }
  std::string copias(const std::string& nome = {}) { return pasta() + "copias/" + nome; }
  std::vector<std::string> nomesDasCopias() { return programa.pasta().nomes("copias"); }
  /// The row is ticked and the folder of the copies typed.
  void preparar(frmEmpresaBackup& t, std::size_t linha = 0) {
    t.lstLista.userCheckRow(linha, true);
    t.txtCaminho.userType(copias());
  }
  void copiar(std::size_t linha = 0) {
    tela([&](frmEmpresaBackup& t) {
      preparar(t, linha);
      host.expectBox(informacao("Operação concluída."));
      t.userKey(Key::f3);
    });
  }
  /// Saves, sees the copy fail, and gives back the report that was written.
  std::string falhar(const std::function<void(frmEmpresaBackup&)>& antes = {}) {
    host.expectScreen("frmEmpresaBackup", [&](Screen& aberta) {
      auto& t = dynamic_cast<frmEmpresaBackup&>(aberta);
      preparar(t);
      if (antes) antes(t);
      host.expectBox(relatoDeFalha(), BoxAnswer::no);
      t.userKey(Key::f3);
    });
    EXPECT_EQ(exitFailure,
              programa.codigoDeSaida([this] { host.showModal(programa.telas().obter("frmEmpresaBackup")); }));
    host.verify();
    EXPECT_FALSE(programa.dbEmpresa().Dados().isOpen()) << "the run ends with the company closed";
    EXPECT_EQ(Pointer::normal, host.pointer());
    return fromWindows1252(programa.pasta().ler("Erros/260315143207.err"));
  }
  /// A customer's city more in the open company.
  void incluirCidade(const std::string& nome) {
    programa.executar("INSERT INTO Cidades (sNome, sUF) VALUES ('" + nome + "', 'PR')");
  }
  std::vector<std::string> cidadesDe(const std::string& arquivo) {
    Connection conexao(StoreEnvironment{programa.relogio()});
    conexao.setConnectionString("Provider=x;Data Source=" + arquivo);
    conexao.open();
    std::vector<std::string> nomes;
    for (Recordset rs("SELECT sNome FROM Cidades ORDER BY lCodigo", conexao); !rs.eof(); rs.moveNext())
      nomes.push_back(rs["sNome"].toText());
    return nomes;
  }
  /// Some megabytes more.
  void encher() {
    programa.dbEmpresa().Dados().beginTrans();
    for (int i = 0; i < 10000; ++i)
      programa.executar("INSERT INTO Bancos (iCodigoInf, sNome) VALUES (" + std::to_string(1000 + i) + ", '" +
                        std::string(200, 'b') + "')");
    programa.dbEmpresa().Dados().commitTrans();
  }
};

TEST_F(Backup, ShowsTheCompaniesWithTicksAndWhereTheCopyWillBe) {
  referencia("b.MDB", "/z/");
  referencia("a.MDB", "/z/");
  tela([](frmEmpresaBackup& t) {
    EXPECT_EQ("Empresa", t.caption());
    EXPECT_EQ("Informe o local onde será criado o arquivo de backup da empresa", t.lblLocal.caption());
    EXPECT_TRUE(t.lstLista.hasCheckBoxes());
    EXPECT_THAT(linhas(t.lstLista), ElementsAre("00002 a.MDB /z/", "00001 b.MDB /z/"));
    EXPECT_EQ("Nome do arquivo", t.lstLista.columns()[1].heading);
    EXPECT_EQ("Caminho", t.lstLista.columns()[2].heading);
    EXPECT_EQ("", t.txtNomeArquivo.text());
    EXPECT_EQ(t.drvArvoreDiretorios.path(), t.txtCaminho.text());
  });
}

TEST_F(Backup, ATickProposesTheNameAndUnticksTheOthers) {
  referencia("Loja.MDB", "/z/");
  referencia("filial.mdb", "/z/");
  referencia("velha", "/z/");
  tela([this](frmEmpresaBackup& t) {
    const auto marcas = [&] {
      std::vector<bool> todas;
      for (const auto& item : t.lstLista.items()) todas.push_back(item->checked());
      return todas;
    };
    t.lstLista.userCheckRow(1, true);
    EXPECT_EQ("Loja_260315_143207.MDB", t.txtNomeArquivo.text());
    programa.relogioDeTeste().momento += std::chrono::seconds(1);
    t.lstLista.userCheckRow(0, true);
    EXPECT_EQ("filial_260315_143208.MDB", t.txtNomeArquivo.text());
    EXPECT_THAT(marcas(), ElementsAre(true, false, false));
    t.lstLista.userCheckRow(2, true);
    EXPECT_EQ("velha_260315_143208.MDB", t.txtNomeArquivo.text());
    EXPECT_THAT(marcas(), ElementsAre(false, false, true));
    t.lstLista.userCheckRow(2, false);
    EXPECT_EQ("velha_260315_143208.MDB", t.txtNomeArquivo.text());
    t.lstLista.userClickRow(0);
    EXPECT_THAT(marcas(), ElementsAre(false, false, false));
  });
}

TEST_F(Backup, ChecksComeInTheirOrder) {
  referencia("loja.MDB", pasta());
  programa.pasta().gravar("copias/ja.MDB", "x");
  tela([this](frmEmpresaBackup& t) {
    recusarNomeECaminho(t, programa.pasta().arquivo("copias"));
    t.txtNomeArquivo.userType("outra.mdb");
    salvarRecusado(host, t, aviso("Selecione uma empresa.", "Norvane sistemas"), t.lstLista);
    EXPECT_EQ("outra.mdb", t.txtNomeArquivo.text());
  });
  EXPECT_THAT(nomesDasCopias(), ElementsAre("ja.MDB"));
}

TEST_F(Backup, TheOpenCompanyIsCopiedAndOpenAgain) {
  programa.abrirEmpresa();
  incluirCidade("Maringá");
  const std::string sLegenda = programa.janelaPrincipal().sGetLegenda();
  const auto nomes = programa.pasta().nomes();
  tela([&](frmEmpresaBackup& t) {
    preparar(t);
    host.then([&] {
      EXPECT_THAT(nomesDasCopias(), ElementsAre("loja_260315_143207.MDB"));
      EXPECT_TRUE(programa.empresas().bSelecionouEmpresa(false)) << "all is done when it is said to be";
      EXPECT_EQ(Pointer::normal, host.pointer());
      EXPECT_EQ(0, t.pbBarrra.value());
    });
    host.expectBox(informacao("Operação concluída."));
    t.userKey(Key::f3);
    EXPECT_EQ("", t.txtNomeArquivo.text());
    EXPECT_FALSE(t.lstLista.item(0)->checked());
    EXPECT_EQ(0, t.pbBarrra.value());
    EXPECT_EQ(Screen::State::loaded, t.state());
    EXPECT_EQ(nomes, programa.pasta().nomes()) << "nothing is left beside the original";
  });
  EXPECT_TRUE(programa.empresas().bSelecionouEmpresa(false));
  EXPECT_EQ(1, programa.empresas().lGetCodigo());
  EXPECT_EQ(sLegenda, programa.janelaPrincipal().sGetLegenda());
  EXPECT_EQ(Pointer::normal, host.pointer());
  EXPECT_THAT(nomesDasCopias(), ElementsAre("loja_260315_143207.MDB"));
  EXPECT_THAT(cidadesDe(copias("loja_260315_143207.MDB")), ElementsAre("Londrina", "São Paulo", "Maringá"));
}

TEST_F(Backup, AnotherCompanyIsCopiedAndTheOpenOneClosesAndOpensAllTheSame) {
  programa.abrirEmpresa("aberta.MDB");
  programa.criarEmpresa("outra.MDB");
  referencia("outra.MDB", pasta());
  tela([this](frmEmpresaBackup& t) {
    preparar(t, 1);
    bool bFechou = false;
    const Espia espia(t.pbBarrra, [&] {
      if (programa.dbEmpresa().Dados().isOpen()) return;
      bFechou = true;
      EXPECT_EQ(Pointer::hourglass, host.pointer());
    });
    host.expectBox(informacao("Operação concluída."));
    t.userKey(Key::f3);
    EXPECT_TRUE(bFechou);
  });
  EXPECT_TRUE(programa.empresas().bSelecionouEmpresa(false));
  EXPECT_EQ(1, programa.empresas().lGetCodigo());
  EXPECT_EQ("aberta.MDB", programa.empresas().sGetNomeArquivo());
  EXPECT_EQ(pasta(), programa.empresas().sGetCaminho());
  EXPECT_THAT(nomesDasCopias(), ElementsAre("outra_260315_143207.MDB"));
}

TEST_F(Backup, WithNoCompanyOpenNoneIsAfterwards) {
  programa.criarEmpresa("loja.MDB");
  referencia("loja.MDB", pasta());
  programa.janelaPrincipal().vSetLegenda("outra coisa");
  copiar();
  EXPECT_FALSE(programa.empresas().bSelecionouEmpresa(false));
  EXPECT_EQ(0, programa.empresas().lGetCodigo());
  EXPECT_EQ(sLegendaFechada, programa.janelaPrincipal().sGetLegenda());
  EXPECT_THAT(nomesDasCopias(), ElementsAre("loja_260315_143207.MDB"));
}

TEST_F(Backup, AsksForNoRight) {
  programa.criarEmpresa("loja.MDB");
  referencia("loja.MDB", pasta());
  programa.executarPrograma("INSERT INTO Usuarios (sNomeUsuario, sLogin, sSenha) VALUES ('Bia', 'BIA', 'x')");
  programa.permissoes().vSetPermissoes(1);
  copiar();
  EXPECT_THAT(nomesDasCopias(), ElementsAre("loja_260315_143207.MDB"));
}

TEST_F(Backup, ASecondOneInTheSameSecondIsRefused) {
  programa.criarEmpresa("loja.MDB");
  referencia("loja.MDB", pasta());
  tela([this](frmEmpresaBackup& t) {
    preparar(t);
    host.expectBox(informacao("Operação concluída."));
    t.userKey(Key::f3);
    t.lstLista.userCheckRow(0, true);
    host.expectBox(aviso(copias("loja_260315_143207.MDB") + "\r\n\r\nO arquivo já existe no local especificado."));
    t.userKey(Key::f3);
    programa.relogioDeTeste().momento += std::chrono::seconds(1);
    t.lstLista.userCheckRow(0, false);
    t.lstLista.userCheckRow(0, true);
    host.expectBox(informacao("Operação concluída."));
    t.userKey(Key::f3);
  });
  EXPECT_THAT(nomesDasCopias(), ElementsAre("loja_260315_143207.MDB", "loja_260315_143208.MDB"));
}

TEST_F(Backup, OfABigFileMovesTheBarAndKeepsTheWindowAlive) {
  programa.abrirEmpresa();
  encher();
  std::vector<std::int32_t> valores;
  std::vector<int> eventos;  // let through until each value on the way
  tela([&](frmEmpresaBackup& t) {
    preparar(t);
    host.expectBox(informacao("Operação concluída."));
    const Espia espia(t.pbBarrra, [&] {
      valores.push_back(t.pbBarrra.value());
      if (valores.back() > 0 && valores.back() < 1000) eventos.push_back(host.eventsLetThrough());
    });
    t.userKey(Key::f3);
  });
  EXPECT_NE(std::find(valores.begin(), valores.end(), 1000), valores.end());
  ASSERT_GT(eventos.size(), 5u);
  EXPECT_GE(eventos.back() - eventos.front(), static_cast<int>(eventos.size()) - 1);
}

TEST_F(Backup, ACopyComesBackAsACompany) {
  programa.abrirEmpresa();
  programa.executar("INSERT INTO DadosEmpresa (sNome, lCidade) VALUES ('Loja', 1)");
  incluirCidade("Maringá");
  copiar();
  programa.executar("DELETE * FROM Cidades WHERE sNome = 'Maringá'");
  EXPECT_THAT(cidadesDe(pasta() + "loja.MDB"), ElementsAre("Londrina", "São Paulo"));
  const std::string sCopia = "loja_260315_143207.MDB";
  abrir<frmEmpresaNova>("frmEmpresaNova", [&](frmEmpresaNova& t) {
    esperarArquivo(programa.pasta().arquivo("copias"), sCopia);
    host.expectBox(pergunta("O arquivo " + copias(sCopia) +
                            " será incluído no sistema, criando referência a uma nova empresa.\r\n"
                            "Confirma a operação?"),
                   BoxAnswer::yes);
    t.userKey(Key::f6);
  });
  abrir<frmEmpresaAbrir>("frmEmpresaAbrir", [&](frmEmpresaAbrir& t) {
    t.lstLista.userClickRow(1);
    host.expectBox(informacao("Empresa selecionada com sucesso."));
    t.userKey(Key::f3);
  });
  EXPECT_EQ(sCopia, programa.empresas().sGetNomeArquivo());
  EXPECT_EQ("3", programa.valor("SELECT COUNT(lCodigo) FROM Cidades"));
  incluirCidade("Cambé");
  EXPECT_EQ("4", programa.valor("SELECT COUNT(lCodigo) FROM Cidades"));
}

TEST_F(Backup, TheListIsPrintedUnderItsTitle) {
  struct Opcoes final : Screen, OpcoesRelatorioLista {
    explicit Opcoes(Contexto& contexto) : Screen(contexto.host(), "frmOpcoesRelList") {}
    void vCarregar(const std::string& sTitulo, std::int16_t iColunas, ListView& lst) override {
      pedido = sTitulo + " | " + std::to_string(iColunas) + " | " + std::to_string(lst.items().size());
    }
    std::string pedido;
  };
  programa.telas().registrar<Opcoes>("frmOpcoesRelList");
  referencia("loja.MDB", pasta());
  tela([](frmEmpresaBackup& t) {
    EXPECT_TRUE(t.cmdEmitir.enabled());
    t.userKey(Key::f5);
  });
  EXPECT_EQ("Empresas criadas | 80 | 1", programa.telas().obter<Opcoes>("frmOpcoesRelList").pedido);
}

// Copies that fail: the report tells the cause, no half file is left, the run ends with the company closed.

TEST_F(Backup, ALostCompanyFileIsReported) {
  referencia("sumiu.MDB", "/nada/");
  const std::string sRelato = falhar();
  EXPECT_THAT(sRelato, HasSubstr("Formulário: frmEmpresaBackup\r\nFunção: cmdSalvar_Click\r\n"));
  EXPECT_THAT(sRelato, HasSubstr("Descrição do erro: O banco de dados /nada/sumiu.MDB não foi encontrado.\r\n"));
  EXPECT_THAT(nomesDasCopias(), IsEmpty());
}

TEST_F(Backup, AFileThatIsNoCompanyIsReported) {
  programa.pasta().gravar("texto.MDB", "isto não é um banco de dados");
  referencia("texto.MDB", pasta());
  EXPECT_THAT(falhar(), HasSubstr("Descrição do erro: O arquivo " + pasta() +
                                  "texto.MDB não é um banco de dados do sistema.\r\n"));
  EXPECT_THAT(nomesDasCopias(), IsEmpty());
}

TEST_F(Backup, ADamagedCompanyIsReportedAndNotCopied) {
  programa.abrirEmpresa();
  encher();
  programa.dbEmpresa().Dados().close();
  std::fstream arquivo(pasta() + "loja.MDB", std::ios::binary | std::ios::in | std::ios::out);
  arquivo.seekp(static_cast<std::streamoff>(fs::file_size(pasta() + "loja.MDB") / 8192 * 4096));
  arquivo << std::string(4096, 'x');
  arquivo.close();
  EXPECT_THAT(falhar(), HasSubstr("Número do erro: 3049\r\nDescrição do erro: O banco de dados " + pasta() +
                                  "loja.MDB está danificado.\r\n"));
  EXPECT_THAT(nomesDasCopias(), IsEmpty());
}

TEST_F(Backup, ACompanyThatAnotherProgramHasForItselfIsReported) {
  programa.abrirEmpresa();
  int pronto[2];
  ASSERT_EQ(0, ::pipe(pronto));
  const pid_t outro = ::fork();
  if (outro == 0) {
    sqlite3* banco = nullptr;
    sqlite3_open((pasta() + "loja.MDB").c_str(), &banco);
    const bool bPronto = sqlite3_exec(banco, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr) == SQLITE_OK &&
                         ::write(pronto[1], "!", 1) == 1;
    if (bPronto) ::pause();
    ::_exit(1);
  }
  char sinal = 0;
  ASSERT_EQ(1, ::read(pronto[0], &sinal, 1));
  const std::string sRelato = falhar();
  ::kill(outro, SIGKILL);
  ::waitpid(outro, nullptr, 0);
  EXPECT_THAT(sRelato, HasSubstr("Número do erro: 3218\r\nDescrição do erro: O banco de dados " + pasta() +
                                 "loja.MDB está em uso por outro programa.\r\n"));
  EXPECT_THAT(nomesDasCopias(), IsEmpty());
}

TEST_F(Backup, AFolderThatGoesOnTheWayIsReported) {
  programa.abrirEmpresa();
  encher();
  std::optional<Espia> espia;
  const std::string sRelato = falhar([&](frmEmpresaBackup& t) {
    espia.emplace(t.pbBarrra, [&] {
      if (t.pbBarrra.value() > 100) fs::remove_all(programa.pasta().arquivo("copias"));
    });
  });
  EXPECT_THAT(sRelato, HasSubstr("Descrição do erro: Não foi possível gravar o arquivo " +
                                 copias("loja_260315_143207.MDB") + ": o caminho não existe.\r\n"));
}

TEST_F(Backup, AFolderThatTakesNoFilesIsReported) {
  programa.abrirEmpresa();
  // Not even the machine's owner makes files there.
  const std::string sRelato = falhar([](frmEmpresaBackup& t) { t.txtCaminho.userType("/sys"); });
  const std::string sCausa = "Descrição do erro: Não foi possível gravar o arquivo /sys/loja_260315_143207.MDB: ";
  EXPECT_THAT(sRelato, testing::AnyOf(HasSubstr(sCausa + "permissão negada.\r\n"),
                                      HasSubstr(sCausa + "o local permite somente leitura.\r\n")));
}

TEST_F(Backup, AProgramThatIsKilledOnTheWayLeavesNoCopyAndTheNextRunMakesIt) {
  programa.abrirEmpresa();
  encher();
  programa.empresas().vSetUltimaEmpresaSelecionada();
  programa.dbEmpresa().Dados().close();
  programa.dbConectar().Dados().close();
  /// One run that opens the company as the last one left it, and saves.
  const auto rodar = [this](const std::function<void(frmEmpresaBackup&, TestHost&)>& salvar) {
    Rodada rodada(programa.pasta(), vRegistrarTelas);
    rodada.dbConectar().Dados().open();
    EXPECT_TRUE(rodada.empresas().bSetEmpresaXML());
    rodada.hostDeTeste().expectScreen("frmEmpresaBackup", [&](Screen& aberta) {
      auto& t = dynamic_cast<frmEmpresaBackup&>(aberta);
      preparar(t);
      salvar(t, rodada.hostDeTeste());
      t.unload();
    });
    rodada.hostDeTeste().showModal(rodada.telas().obter("frmEmpresaBackup"));
  };
  const pid_t morta = ::fork();
  if (morta == 0) {
    rodar([](frmEmpresaBackup& t, TestHost&) {
      const Espia espia(t.pbBarrra, [&] {
        if (t.pbBarrra.value() > 300) ::kill(::getpid(), SIGKILL);
      });
      t.userKey(Key::f3);
    });
    ::_exit(1);
  }
  int iEstado = 0;
  ::waitpid(morta, &iEstado, 0);
  ASSERT_TRUE(WIFSIGNALED(iEstado));
  ASSERT_THAT(nomesDasCopias(), ElementsAre(testing::StartsWith("loja_260315_143207.MDB.novo-")));

  rodar([](frmEmpresaBackup& t, TestHost& outro) {
    outro.expectBox(informacao("Operação concluída."));
    t.userKey(Key::f3);
    outro.verify();
  });
  EXPECT_THAT(cidadesDe(copias("loja_260315_143207.MDB")), ElementsAre("Londrina", "São Paulo"));
}

TEST_F(Backup, ADiskThatTakesNoMoreIsReportedAndTheCompanyIsAsItWas) {
  programa.abrirEmpresa();
  encher();
  void (*const antes)(int) = std::signal(SIGXFSZ, SIG_IGN);
  rlimit limite{};
  ::getrlimit(RLIMIT_FSIZE, &limite);
  const rlimit curto{1 << 20, limite.rlim_max};
  ::setrlimit(RLIMIT_FSIZE, &curto);
  const std::string sRelato = falhar();
  ::setrlimit(RLIMIT_FSIZE, &limite);
  std::signal(SIGXFSZ, antes);
  EXPECT_THAT(sRelato, HasSubstr("Número do erro: 3183\r\nDescrição do erro: O banco de dados " +
                                 copias("loja_260315_143207.MDB") + " não pôde ser gravado: o disco está cheio"));
  EXPECT_THAT(nomesDasCopias(), IsEmpty());
  EXPECT_EQ(2u, cidadesDe(pasta() + "loja.MDB").size());
}

}  // namespace
}  // namespace fenvale
