#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <filesystem>

#include "access/services/Permissoes.h"
#include "store/screens/ArvoreDiretorios.h"
#include "store/screens/frmEmpresa.h"
#include "store/screens/frmExibirImagem.h"
#include "store/screens/frmLocalizarArquivo.h"
#include "store/screens/frmLocalizarCidades.h"
#include "store/screens/frmMensagem.h"
#include "store/services/Sistema.h"
#include "support/Caixas.h"
#include "support/Espia.h"
#include "support/TelasDoPrograma.h"

namespace fenvale {
namespace {

using std::chrono::milliseconds;
using testing::ElementsAre;
using testing::IsEmpty;

class Buscas : public TelasDoPrograma {
 protected:
  void SetUp() override {}  // the store is opened where the search reads it
};

// Cities.

class Cidades : public Buscas {
 protected:
  void SetUp() override { programa.abrirEmpresa(); }
  void buscar(bool bEmpresa, const std::function<void(frmLocalizarCidades&)>& agir) {
    esperar<frmLocalizarCidades>("frmLocalizarCidades", agir);
    programa.telas().obter<BuscaCidade>("frmLocalizarCidades").vCarregar(bEmpresa);
    host.verify();
  }
  static std::vector<std::string> linhas(const frmLocalizarCidades& tela) {
    std::vector<std::string> textos;
    for (const auto& item : tela.lstLista.items())
      textos.push_back(item->text() + " " + item->subItem(1) + " " + item->subItem(2));
    return textos;
  }
};

TEST_F(Cidades, AllAreListedByStateAndName) {
  programa.executar("INSERT INTO Cidades (sNome, sUF) VALUES ('Apucarana', 'PR')");
  buscar(true, [](frmLocalizarCidades& tela) {
    EXPECT_THAT(linhas(tela), ElementsAre("00003 PR Apucarana", "00001 PR Londrina", "00002 SP São Paulo"));
  });
  buscar(false, [](frmLocalizarCidades& tela) {
    EXPECT_THAT(linhas(tela), ElementsAre("00001 PR Londrina", "00002 SP São Paulo"));
  });
}

TEST_F(Cidades, TheTextTypedNarrowsByTheBeginningOfTheName) {
  programa.executar("INSERT INTO Cidades (sNome, sUF) VALUES ('Santa Bárbara d''Oeste', 'SP')");
  buscar(true, [](frmLocalizarCidades& tela) {
    tela.txtNome.userType("s");
    tela.userKey(Key::f6);
    EXPECT_THAT(linhas(tela), ElementsAre("00003 SP Santa Bárbara d'Oeste", "00002 SP São Paulo"));
    tela.txtNome.userType("santa bárbara d'");
    tela.cmdLocalizar.userClick();
    EXPECT_THAT(linhas(tela), ElementsAre("00003 SP Santa Bárbara d'Oeste"));
    EXPECT_TRUE(tela.cmdLocalizar.enabled());
  });
}

TEST_F(Cidades, OneClickPicksTheCity) {
  buscar(true, [](frmLocalizarCidades& tela) {
    tela.lstLista.userClickRow(1);
    EXPECT_EQ(Screen::State::unloaded, tela.state());
    EXPECT_EQ("São Paulo", tela.cidade().sGetNome());
    EXPECT_EQ("SP", tela.cidade().sGetUF());
    EXPECT_EQ(2, tela.cidade().lGetCodigo());
  });
}

TEST_F(Cidades, LeavingPicksNothing) {
  buscar(true, [](frmLocalizarCidades& tela) { EXPECT_EQ(-1, tela.cidade().lGetCodigo()); });
}

TEST_F(Cidades, WithoutTheRightToSearchItSaysSoOnceAndOpensEmpty) {
  programa.executarPrograma("INSERT INTO Usuarios (sNomeUsuario, sLogin, sSenha) VALUES ('Bia', 'BIA', 'x')");
  programa.permissoes().vSetPermissoes(1);
  host.expectBox(semPermissao());
  buscar(true, [this](frmLocalizarCidades& tela) {
    EXPECT_THAT(linhas(tela), IsEmpty());
    host.expectBox(semPermissao());
    tela.userKey(Key::f6);
  });
}

TEST_F(Cidades, ManyCitiesArePaged) {
  programa.executarPrograma("INSERT INTO Configuracoes (lTamanhoPagina) VALUES (2)");
  for (int numero = 0; numero < 3; ++numero)
    programa.executar("INSERT INTO Cidades (sNome, sUF) VALUES ('Vila " + std::to_string(numero) + "', 'TO')");
  buscar(true, [](frmLocalizarCidades& tela) {
    EXPECT_EQ(2u, tela.lstLista.items().size());
    EXPECT_EQ(2, tela.scrPaginas.maximum());
    tela.scrPaginas.userMove(1);
    EXPECT_THAT(linhas(tela), ElementsAre("00003 TO Vila 0", "00004 TO Vila 1"));
  });
}

TEST_F(Cidades, AFieldTakesWhatTheSearchPicked) {
  host.expectScreen("frmEmpresa", [this](Screen& aberta) {
    auto& tela = dynamic_cast<frmEmpresa&>(aberta);
    host.expectScreen("frmLocalizarCidades",
                      [](Screen& busca) { dynamic_cast<frmLocalizarCidades&>(busca).lstLista.userClickRow(0); });
    tela.campoCidade.cmdBuscarCidades.userClick();
    EXPECT_EQ("Londrina", tela.campoCidade.txtCidade.text());
    EXPECT_EQ("PR", tela.campoCidade.txtUF.text());
    EXPECT_EQ(1, tela.campoCidade.lGetCodigo());
    host.expectScreen("frmLocalizarCidades", [](Screen& busca) { busca.userKey(Key::escape); });
    tela.campoCidade.cmdBuscarCidades.userClick();
    EXPECT_EQ(1, tela.campoCidade.lGetCodigo()) << "nothing picked changes nothing";
    tela.userKey(Key::escape);
  });
  host.showModal(programa.telas().obter("frmEmpresa"));
}

// The waiting screen.

TEST_F(Buscas, TheWaitingScreenSeedsAndStaysItsWait) {
  programa.abrirPrograma();
  programa.executarPrograma("DELETE * FROM Cidades");
  Sistema(programa).vCadastrarCidades(false, true);
  EXPECT_EQ(milliseconds(2150), host.elapsed());
  EXPECT_THAT(host.shown(), IsEmpty());
  EXPECT_THAT(programa.linhasPrograma("SELECT sNome, sUF FROM Cidades ORDER BY lCodigo"),
              ElementsAre(ElementsAre("Londrina", "PR"), ElementsAre("São Paulo", "SP")));
}

TEST_F(Buscas, TheWaitingScreenTellsWhatItDoes) {
  programa.abrirPrograma();
  programa.executarPrograma("DELETE * FROM Cidades");
  auto& tela = programa.telas().obter<frmMensagem>("frmMensagem");
  tela.vCarregar("Aguarde, povoando a relação de Cidades...", false);
  EXPECT_EQ("Gestor Fenvale - Versão ZENIT", tela.lblNomePrograma.caption());
  EXPECT_EQ("Versão 1.0.0", tela.lblVersao.caption());
  EXPECT_EQ("Aguarde, povoando a relação de Cidades...", tela.lblMensagem.caption());
  EXPECT_EQ(0, tela.tmpMensagem.interval());
}

// Files.

class Arquivos : public Buscas {
 protected:
  void SetUp() override {
    for (const char* nome : {"b.MDB", "a.mdb", "nota.txt", "sub/c.MDB", "sub/fundo/d.MDB", "outra/e.MDB"})
      lugar.gravar(nome, "x");
  }
  std::string buscar(const std::string& padrao, const std::function<void(frmLocalizarArquivo&)>& agir) {
    esperar<frmLocalizarArquivo>("frmLocalizarArquivo", [this, agir](frmLocalizarArquivo& tela) {
      tela.drvArvoreDiretorios.userChoose(lugar.caminho());
      agir(tela);
    });
    auto& busca = programa.telas().obter<BuscaArquivo>("frmLocalizarArquivo");
    busca.vCarregar(padrao);
    return busca.sGetArquivo();
  }
  std::vector<std::string> achados(const frmLocalizarArquivo& tela) {
    std::vector<std::string> nomes;
    for (const auto& item : tela.lstLista.items()) nomes.push_back(item->key() + " " + item->text());
    return nomes;
  }
  PastaTemporaria lugar;
};

TEST_F(Arquivos, TheFilesOfOneFolderAreListedAndAClickPicksOne) {
  EXPECT_EQ(lugar.arquivo("b.MDB"), buscar("*.MDB", [this](frmLocalizarArquivo& tela) {
              EXPECT_EQ("Localizar arquivos *.MDB", tela.lbLabel.caption());
              EXPECT_FALSE(tela.flstListaArquivos.visible());
              tela.cmdMostrarImportacoesPossivel.userClick();
              EXPECT_THAT(achados(tela),
                          ElementsAre("00001 " + lugar.arquivo("a.mdb"), "00002 " + lugar.arquivo("b.MDB")));
              EXPECT_EQ(Pointer::normal, host.pointer());
              tela.lstLista.userClickRow(1);
              EXPECT_EQ(Screen::State::unloaded, tela.state());
            }));
}

TEST_F(Arquivos, TheAdvancedSearchWalksTheFoldersBelowParentsFirst) {
  buscar("*.MDB", [this](frmLocalizarArquivo& tela) {
    tela.chkSubDiretorios.userClick();
    tela.userKey(Key::f6);
    EXPECT_THAT(achados(tela),
                ElementsAre("00001 " + lugar.arquivo("a.mdb"), "00002 " + lugar.arquivo("b.MDB"),
                            "00003 " + lugar.arquivo("outra/e.MDB"), "00004 " + lugar.arquivo("sub/c.MDB"),
                            "00005 " + lugar.arquivo("sub/fundo/d.MDB")));
  });
  EXPECT_TRUE(programa.pasta().existe("subDir.txt")) << "the work file stays";
}

TEST_F(Arquivos, TheBarsFollowTheFilesAndTheFoldersUnderTheHourglassWithTheWindowAlive) {
  buscar("*.MDB", [this](frmLocalizarArquivo& tela) {
    EXPECT_EQ("Arquivos", tela.lstLista.columns().front().heading);
    EXPECT_EQ("Exibir item como uma imagem", tela.mnuPopUp.item("mnuExibirImagem").caption);
    EXPECT_EQ(
        "Consulta avançada - Selecionando esta opção, o sistema realizará uma busca avançada pelo local informado, "
        "varrendo os sub-diretórios à procura de arquivos que contenham possíveis importações",
        tela.chkSubDiretorios.caption());
    std::vector<std::string> passos;
    std::vector<int> eventos;
    const Espia arquivos(tela.pbBarra1, [&] {
      EXPECT_EQ(Pointer::hourglass, host.pointer());
      if (tela.pbBarra1.value() == 0) return;
      passos.push_back(std::to_string(tela.pbBarra1.value()) + " de " + std::to_string(tela.pbBarra1.maximum()));
      eventos.push_back(host.eventsLetThrough());
    });
    const Espia pastas(tela.pbBarra2, [&] {
      if (tela.pbBarra2.value() > 0) passos.push_back("pasta " + std::to_string(tela.pbBarra2.value()));
    });
    tela.userKey(Key::f6);
    EXPECT_THAT(passos, ElementsAre("1 de 2", "2 de 2"));
    EXPECT_GT(eventos.at(1), eventos.at(0));
    passos.clear();
    tela.chkSubDiretorios.userClick();
    tela.userKey(Key::f6);
    EXPECT_THAT(passos, ElementsAre("1 de 2", "2 de 2", "pasta 1", "1 de 1", "pasta 2", "1 de 1", "pasta 3", "1 de 1",
                                    "pasta 4"));
    EXPECT_EQ(4, tela.pbBarra2.maximum());
    EXPECT_EQ(0, tela.pbBarra1.value() + tela.pbBarra2.value());
  });
}

TEST_F(Arquivos, SeveralPatternsAreJoined) {
  buscar("*.txt;a.*", [this](frmLocalizarArquivo& tela) {
    tela.userKey(Key::f6);
    EXPECT_THAT(achados(tela), ElementsAre("00001 " + lugar.arquivo("a.mdb"), "00002 " + lugar.arquivo("nota.txt")));
  });
}

TEST_F(Arquivos, LeavingPicksNothing) {
  EXPECT_EQ("", buscar("*.MDB", [](frmLocalizarArquivo& tela) { tela.userKey(Key::f6); }));
}

TEST_F(Arquivos, ADriveThatIsNotReadyIsTold) {
  buscar("*.MDB", [this](frmLocalizarArquivo& tela) {
    host.expectBox(
        aviso("O dispositivo não está pronto.\r\n\r\nInformação detalhada: - A pasta /nada não pode ser "
              "lida."));
    tela.drvlstListaDiretorios.userChoose("/nada");
    EXPECT_EQ(lugar.caminho(), tela.drvArvoreDiretorios.path());
  });
}

TEST_F(Arquivos, AFolderThatVanishedIsToldInTheOtherWords) {
  buscar("*.MDB", [this](frmLocalizarArquivo& tela) {
    tela.drvArvoreDiretorios.userChoose(lugar.arquivo("outra"));
    std::filesystem::remove_all(lugar.arquivo("outra"));
    host.expectBox(aviso("O dispostivo não está pronto.\r\n\r\nInformação detalhada: - A pasta " +
                         lugar.arquivo("outra") + " não pode ser lida."));
    tela.userKey(Key::f6);
  });
}

TEST_F(Arquivos, TheTreeOfFoldersIsWrittenDepthFirst) {
  ArvoreDiretorios arvore(programa);
  arvore.vMontarArvoreTotal(lugar.caminho());
  EXPECT_EQ(lugar.caminho() + "\r\n" + lugar.arquivo("outra") + "\r\n" + lugar.arquivo("sub") + "\r\n" +
                lugar.arquivo("sub/fundo") + "\r\n",
            programa.pasta().ler("subDir.txt"));
}

TEST_F(Arquivos, ALinkThatLeadsBackIsNotFollowed) {
  std::filesystem::create_directory_symlink(lugar.caminho(), lugar.arquivo("sub/volta"));
  ArvoreDiretorios(programa).vMontarArvoreTotal(lugar.arquivo("sub"));
  EXPECT_EQ(lugar.arquivo("sub") + "\r\n" + lugar.arquivo("sub/fundo") + "\r\n", programa.pasta().ler("subDir.txt"));
}

// Pictures.

TEST_F(Arquivos, ARightClickShowsTheFileAsAPicture) {
  lugar.gravar("logo.gif", "GIF89a....");
  buscar("*.gif", [this](frmLocalizarArquivo& tela) {
    tela.userKey(Key::f6);
    host.expectPopup("mnuPopUp", "mnuExibirImagem");
    host.expectScreen("frmExibirImagem", [this](Screen& aberta) {
      auto& imagem = dynamic_cast<frmExibirImagem&>(aberta);
      EXPECT_EQ(lugar.arquivo("logo.gif"), imagem.imgImagem.picture());
      EXPECT_TRUE(imagem.imgImagem.stretchesScreen());
      imagem.imgImagem.userClick();
    });
    tela.lstLista.userClickRow(0, MouseButton::right);
    EXPECT_EQ(Screen::State::loaded, tela.state()) << "a right click picks nothing";
  });
}

TEST_F(Arquivos, AnyKeyClosesThePicture) {
  lugar.gravar("logo.jpg", "\xFF\xD8\xFF\xE0....");
  host.expectScreen("frmExibirImagem", [](Screen& tela) { tela.userKey(Key::space); });
  programa.telas().obter<TelaImagem>("frmExibirImagem").vCarregar(lugar.arquivo("logo.jpg"));
}

TEST_F(Arquivos, APictureThatIsLostOrNoneIsTold) {
  host.expectBox(aviso("O arquivo não foi encontrado no local especificado."));
  programa.telas().obter<TelaImagem>("frmExibirImagem").vCarregar("/nada.bmp");
  host.expectBox(
      aviso("Imagem inválida.\r\n\r\nInformação detalhada: O arquivo não contém uma figura BMP, GIF, JPEG "
            "ou PNG."));
  programa.telas().obter<TelaImagem>("frmExibirImagem").vCarregar(lugar.arquivo("nota.txt"));
  host.verify();
}

}  // namespace
}  // namespace fenvale
