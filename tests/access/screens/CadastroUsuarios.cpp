#include "access/screens/frmCadastroUsuarios.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "access/screens/frmLocalizarUsuarios.h"
#include "access/services/Permissoes.h"
#include "support/Caixas.h"
#include "support/Gestos.h"
#include "support/TelasDoPrograma.h"

namespace fenvale {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* sPrimeiro =
    "Não há usuários cadastrados no sistema.\r\nVocê deve cadastrar um usuário que terá acesso a todas\r\n"
    "as funcionalidades do programa (ADMINISTRADOR).\r\nPara garantir a estabilidade do sistema,\r\n"
    "este usuário não poderá ser excluído mais tarde.";
const std::string sInsert =
    "INSERT INTO Usuarios (sNomeUsuario, sLogin, sSenha, bPoderSalvar, bPoderExcluir, bPoderPesquisar, "
    "bPoderImprimir, bPoderAtualizar) VALUES ";

class Usuarios : public TelasDoPrograma {
 protected:
  void administrador() {
    programa.executarPrograma(sInsert + "('ADMINISTRADOR', 'ADMINISTRADOR', 'x', -1, -1, -1, -1, -1)");
  }
  std::optional<int> abrir(const std::function<void(frmCadastroUsuarios&)>& agir) {
    return TelasDoPrograma::abrir<frmCadastroUsuarios>("frmCadastroUsuarios", agir);
  }
  static void preencher(frmCadastroUsuarios& tela, const std::string& nome, const std::string& login,
                        const std::string& senha) {
    tela.txtNome.userType(nome);
    tela.txtLogin.userType(login);
    tela.txtSenha.userType(senha);
    tela.txtConfirma.userType(senha);
  }
  auto usuarios(const std::string& campos = "sNomeUsuario, sLogin, sSenha") {
    return programa.linhasPrograma("SELECT " + campos + " FROM Usuarios ORDER BY lCodigo");
  }
  static void escolher(frmCadastroUsuarios& tela, TestHost& host, std::size_t linha) {
    host.expectScreen("frmLocalizarUsuarios", [linha](Screen& busca) {
      dynamic_cast<frmLocalizarUsuarios&>(busca).lstLista.userClickRow(linha);
    });
    tela.userKey(Key::f6);
  }
};

// The first run.

TEST_F(Usuarios, TheFirstRunMakesTheAdministratorWithEveryRight) {
  host.expectBox(critica(sPrimeiro));
  EXPECT_EQ(std::nullopt, abrir([this](frmCadastroUsuarios& tela) {
              EXPECT_EQ("Cadastrando o usuário ADMINISTRADOR", tela.caption());
              EXPECT_FALSE(tela.trwMenu.enabled());
              EXPECT_EQ(66u, tela.trwMenu.nodes().size());
              for (const auto& no : tela.trwMenu.nodes()) EXPECT_TRUE(no.checked) << no.key;
              for (const TextBox* caixa : {&tela.txtNome, &tela.txtLogin}) {
                EXPECT_EQ("ADMINISTRADOR", caixa->text());
                EXPECT_TRUE(caixa->locked());
              }
              for (const Button* botao : {&tela.cmdNovo, &tela.cmdExcluir, &tela.cmdLocalizar})
                EXPECT_FALSE(botao->enabled()) << botao->name();
              for (const CheckBox* caixa :
                   {&tela.chkSalvar, &tela.chkExcluir, &tela.chkPesquisar, &tela.chkImprimir, &tela.chkAtualizar}) {
                EXPECT_TRUE(caixa->checked()) << caixa->name();
                EXPECT_FALSE(caixa->enabled()) << caixa->name();
              }
              EXPECT_EQ(Pointer::normal, host.pointer());
              tela.txtSenha.userType("segredo");
              tela.txtConfirma.userType("segredo");
              host.expectBox(informacao("Usuário ADMINISTRADOR foi cadastrado corretamente."));
              tela.userKey(Key::f3);
              EXPECT_EQ(Screen::State::unloaded, tela.state());
            }));
  EXPECT_THAT(usuarios(), ElementsAre(ElementsAre("ADMINISTRADOR", "ADMINISTRADOR", "segredo")));
  EXPECT_THAT(usuarios("bPoderSalvar, bPoderExcluir, bPoderPesquisar, bPoderImprimir, bPoderAtualizar, c0, e2d, l4f"),
              ElementsAre(ElementsAre("-1", "-1", "-1", "-1", "-1", "-1", "-1", "-1")));
}

TEST_F(Usuarios, LeavingTheFirstRunWithoutSavingEndsTheProgram) {
  host.expectBox(critica(sPrimeiro));
  host.expectScreen("frmCadastroUsuarios", [](Screen& tela) { tela.userKey(Key::escape); });
  host.expectBox(critica("Nenhum usuário foi cadatrado."));
  EXPECT_EQ(0, programa.codigoDeSaida([this] { host.showModal(programa.telas().obter("frmCadastroUsuarios")); }));
}

// The tree.

TEST_F(Usuarios, TheTreeHoldsEveryKeyUnderItsMenu) {
  administrador();
  abrir([](frmCadastroUsuarios& tela) {
    const auto& nos = tela.trwMenu.nodes();
    std::vector<std::string> raizes;
    for (const auto& no : nos)
      if (no.parent.empty()) raizes.push_back(no.key + " " + no.text);
    EXPECT_THAT(raizes, ElementsAre("c0 Cadastros", "p0 Processamentos", "e0 Emissões", "l0 Listagens"));
    std::map<std::string, std::string> pais;
    for (const auto& no : nos) pais[no.key] = no.parent;
    EXPECT_EQ("c0", pais["c18"]);
    EXPECT_EQ("p0", pais["p3"]);
    EXPECT_EQ("e0", pais["e2"]);
    EXPECT_EQ("e2", pais["e2d"]);
    EXPECT_EQ("e3", pais["e3a"]);
    EXPECT_EQ("e0", pais["e4"]);
    EXPECT_EQ("l0", pais["l4"]);
    EXPECT_EQ("l1", pais["l1l"]);
    EXPECT_EQ("l4", pais["l4f"]);
    for (const auto& no : nos) EXPECT_FALSE(no.checked) << no.key;
  });
}

TEST_F(Usuarios, ATickOnAParentLeavesItsChildrenAlone) {
  administrador();
  abrir([](frmCadastroUsuarios& tela) {
    tela.trwMenu.userCheck("c0", true);
    EXPECT_TRUE(tela.trwMenu.checked("c0"));
    EXPECT_FALSE(tela.trwMenu.checked("c1"));
  });
}

// Saving.

TEST_F(Usuarios, ChecksComeInTheirOrder) {
  administrador();
  abrir([this](frmCadastroUsuarios& tela) {
    const auto recusa = [&](const char* texto, const Control& foco) { salvarRecusado(host, tela, aviso(texto), foco); };
    recusa("O nome do usuário deve ser informado.", tela.txtNome);
    tela.txtNome.userType("Ana");
    recusa("O login do usuário deve ser informado.", tela.txtLogin);
    tela.txtLogin.userType("ana maria");
    recusa("O nome para login não pode conter espaços.", tela.txtLogin);
    tela.txtLogin.userType("ana");
    recusa("A senha do usuário deve ser informada.", tela.txtSenha);
    tela.txtSenha.userType("a");
    recusa("A senha do usuário deve ser confirmada.", tela.txtConfirma);
    tela.txtConfirma.userType("b");
    recusa("A senha confirmada não corresponde a que foi informada.", tela.txtConfirma);
  });
  EXPECT_EQ(1u, usuarios().size());
}

TEST_F(Usuarios, ANewUserIsStoredWithCapitalLoginAndTickedNodes) {
  administrador();
  abrir([this](frmCadastroUsuarios& tela) {
    preencher(tela, "Ana", "ana", "d'agua");
    tela.txtLogin.setFocus();
    tela.chkSalvar.userClick();
    tela.trwMenu.userCheck("c5", true);
    tela.trwMenu.userCheck("l4f", true);
    host.expectBox(informacao("Operação concluída."));
    const int antes = host.eventsLetThrough();
    tela.userKey(Key::f3);
    EXPECT_GE(host.eventsLetThrough() - antes, 66);
    EXPECT_EQ("", tela.txtNome.text());
    EXPECT_FALSE(tela.chkSalvar.checked());
    EXPECT_FALSE(tela.trwMenu.checked("c5"));
    EXPECT_TRUE(tela.txtNome.hasFocus());
  });
  EXPECT_THAT(usuarios("sNomeUsuario, sLogin, sSenha, bPoderSalvar, bPoderExcluir, c4, c5, l4f").at(1),
              ElementsAre("Ana", "ANA", "d'agua", "-1", "0", "0", "-1", "-1"));
}

TEST_F(Usuarios, AStoredUserIsLoadedAndRewritten) {
  administrador();
  programa.executarPrograma(sInsert + "('Ana', 'ana', 'x', -1, 0, -1, 0, 0)");
  programa.executarPrograma("UPDATE Usuarios SET p2 = -1 WHERE lCodigo = 2");
  abrir([this](frmCadastroUsuarios& tela) {
    escolher(tela, host, 0);
    EXPECT_EQ("2", tela.txtCodigo.text());
    EXPECT_EQ("Ana", tela.txtNome.text());
    EXPECT_EQ("ANA", tela.txtLogin.text());
    EXPECT_EQ("x", tela.txtSenha.text());
    EXPECT_EQ("x", tela.txtConfirma.text());
    EXPECT_TRUE(tela.chkSalvar.checked());
    EXPECT_FALSE(tela.chkExcluir.checked());
    EXPECT_TRUE(tela.chkPesquisar.checked());
    EXPECT_TRUE(tela.trwMenu.checked("p2"));
    tela.chkAtualizar.userClick();
    tela.trwMenu.userCheck("p2", false);
    host.expectBox(informacao("Operação concluída."));
    tela.userKey(Key::f3);
  });
  EXPECT_THAT(usuarios("sNomeUsuario, sLogin, bPoderAtualizar, p2").at(1), ElementsAre("Ana", "ANA", "-1", "0"));
}

TEST_F(Usuarios, SavingOneselfTellsToLeaveFirst) {
  administrador();
  programa.executarPrograma(sInsert + "('Ana', 'ANA', 'x', -1, -1, -1, -1, -1)");
  programa.permissoes().vSetPermissoes(2);
  abrir([this](frmCadastroUsuarios& tela) {
    escolher(tela, host, 0);
    host.expectBox(critica("Você deve sair do sistema para que as alterações entrem em vigor."));
    host.expectBox(informacao("Operação concluída."));
    tela.userKey(Key::f3);
  });
}

TEST_F(Usuarios, TwoUsersCannotShareALogin) {
  administrador();
  abrir([this](frmCadastroUsuarios& tela) {
    preencher(tela, "Outro", "administrador", "x");
    EXPECT_THROW(tela.userKey(Key::f3), TestHost::Unexpected);
    const MessageBox& caixa = host.boxes().back();
    EXPECT_EQ(BoxStyle::exclamation, caixa.style);
    EXPECT_TRUE(caixa.text.starts_with("Os dados informados já existem no sistema.\r\n\r\nInformação detalhada: "));
    EXPECT_EQ("Outro", tela.txtNome.text());
  });
  EXPECT_EQ(1u, usuarios().size());
}

TEST_F(Usuarios, ASecondAdministratorCanBeSavedAndVanishesFromTheSearch) {
  administrador();
  abrir([this](frmCadastroUsuarios& tela) {
    preencher(tela, "ADMINISTRADOR", "OUTRO", "x");
    host.expectBox(informacao("Operação concluída."));
    tela.userKey(Key::f3);
    host.expectScreen("frmLocalizarUsuarios", [](Screen& busca) {
      EXPECT_THAT(dynamic_cast<frmLocalizarUsuarios&>(busca).lstLista.items(), IsEmpty());
      busca.userKey(Key::escape);
    });
    tela.userKey(Key::f6);
  });
  EXPECT_EQ(2u, usuarios().size());
}

// Deleting.

TEST_F(Usuarios, WithoutAChosenUserNothingIsDeleted) {
  administrador();
  abrir([this](frmCadastroUsuarios& tela) {
    host.expectBox(aviso("Selecione o registro que deseja excluir."));
    tela.userKey(Key::f4);
  });
}

TEST_F(Usuarios, NobodyDeletesHisOwnAccount) {
  administrador();
  programa.executarPrograma(sInsert + "('Ana', 'ANA', 'x', -1, -1, -1, -1, -1)");
  programa.permissoes().vSetPermissoes(2);
  abrir([this](frmCadastroUsuarios& tela) {
    escolher(tela, host, 0);
    host.expectBox(critica("Você não tem privilégios para excluir esta conta."));
    tela.userKey(Key::f4);
    EXPECT_EQ("", tela.txtCodigo.text());
    EXPECT_TRUE(tela.txtNome.hasFocus());
  });
  EXPECT_EQ(2u, usuarios().size());
}

TEST_F(Usuarios, ADeletionIsAskedFor) {
  administrador();
  programa.executarPrograma(sInsert + "('Ana', 'ANA', 'x', -1, -1, -1, -1, -1)");
  abrir([this](frmCadastroUsuarios& tela) {
    escolher(tela, host, 0);
    host.expectBox(pergunta("Você deseja mesmo excluir este usuário?", "Excluir"), BoxAnswer::no);
    tela.userKey(Key::f4);
    EXPECT_EQ("Ana", tela.txtNome.text());
    host.expectBox(pergunta("Você deseja mesmo excluir este usuário?", "Excluir"), BoxAnswer::yes);
    tela.userKey(Key::f4);
    EXPECT_EQ("", tela.txtNome.text());
  });
  EXPECT_EQ(1u, usuarios().size());
}

TEST_F(Usuarios, NewClearsTheForm) {
  administrador();
  abrir([](frmCadastroUsuarios& tela) {
    preencher(tela, "Ana", "ana", "x");
    tela.chkImprimir.userClick();
    tela.trwMenu.userCheck("c1", true);
    tela.userKey(Key::f2);
    EXPECT_EQ("", tela.txtNome.text() + tela.txtLogin.text() + tela.txtSenha.text() + tela.txtConfirma.text());
    EXPECT_FALSE(tela.chkImprimir.checked());
    EXPECT_FALSE(tela.trwMenu.checked("c1"));
    EXPECT_TRUE(tela.txtNome.hasFocus());
  });
}

// Rights: which one a command asks for, and how many boxes a missing one shows.

TEST_F(Usuarios, EachCommandAsksForItsRightOnce) {
  administrador();
  programa.executarPrograma(sInsert + "('Ana', 'ANA', 'x', -1, -1, -1, -1, -1)");
  programa.executarPrograma(sInsert + "('Bia', 'BIA', 'x', 0, 0, 0, 0, 0)");
  struct Caso {
    Key tecla;
    const char* direito;  ///< the only one that is given
    bool bEscolhido;      ///< whether a stored user is in the form
    int caixas;
  };
  const std::vector<Caso> casos{
      {Key::f2, "", false, 0},
      {Key::f3, "", false, 1},
      {Key::f3, "", true, 1},
      {Key::f3, "bPoderAtualizar", false, 1},
      {Key::f3, "bPoderSalvar", true, 1},
      {Key::f4, "bPoderSalvar", true, 1},
      {Key::f6, "bPoderSalvar", false, 1},
      {Key::escape, "", false, 0},
  };
  for (const Caso& caso : casos) {
    programa.permissoes().vSetPermissoes(0);
    abrir([&](frmCadastroUsuarios& tela) {
      if (caso.bEscolhido) escolher(tela, host, 0);
      programa.executarPrograma(
          "UPDATE Usuarios SET bPoderSalvar = 0, bPoderExcluir = 0, bPoderPesquisar = 0, bPoderImprimir = 0, "
          "bPoderAtualizar = 0 WHERE lCodigo = 3");
      if (*caso.direito != '\0')
        programa.executarPrograma(std::string("UPDATE Usuarios SET ") + caso.direito + " = -1 WHERE lCodigo = 3");
      programa.permissoes().vSetPermissoes(3);
      for (int caixa = 0; caixa < caso.caixas; ++caixa) host.expectBox(semPermissao());
      tela.userKey(caso.tecla);
    });
  }
}

// The search.

TEST_F(Usuarios, TheSearchListsByTheBeginningOfTheNameAndNeverTheAdministrator) {
  administrador();
  for (const char* nome : {"Carla", "Ana", "Anita"})
    programa.executarPrograma(sInsert + "('" + nome + "', '" + nome + "', 'x', 0, 0, 0, 0, 0)");
  abrir([this](frmCadastroUsuarios& tela) {
    host.expectScreen("frmLocalizarUsuarios", [](Screen& aberta) {
      auto& busca = dynamic_cast<frmLocalizarUsuarios&>(aberta);
      const auto linhas = [&] {
        std::vector<std::string> textos;
        for (const auto& item : busca.lstLista.items())
          textos.push_back(item->text() + " " + item->subItem(1) + " " + item->subItem(2));
        return textos;
      };
      EXPECT_THAT(linhas(), ElementsAre("00003 Ana Ana", "00004 Anita Anita", "00002 Carla Carla"));
      busca.txtNome.userType("an");
      busca.userKey(Key::f6);
      EXPECT_THAT(linhas(), ElementsAre("00003 Ana Ana", "00004 Anita Anita"));
      busca.txtNome.userType("an'");
      busca.userKey(Key::f6);
      EXPECT_THAT(linhas(), IsEmpty());
      EXPECT_TRUE(busca.cmdEmitir.enabled());
      busca.userKey(Key::escape);
    });
    tela.userKey(Key::f6);
    EXPECT_EQ("", tela.txtCodigo.text());
  });
}

TEST_F(Usuarios, TheSearchKeepsItsColumnWidths) {
  administrador();
  const auto buscar = [this](const std::function<void(frmLocalizarUsuarios&)>& agir) {
    abrir([this, agir](frmCadastroUsuarios& tela) {
      host.expectScreen("frmLocalizarUsuarios", [agir](Screen& busca) {
        agir(dynamic_cast<frmLocalizarUsuarios&>(busca));
        busca.userKey(Key::escape);
      });
      tela.userKey(Key::f6);
    });
  };
  buscar([](frmLocalizarUsuarios& busca) { busca.lstLista.userResizeColumn(2, 3333); });
  EXPECT_NE(std::string::npos, programa.pasta().ler("list/frmLocalizarUsuarios.lstList.XML").find("<size>3333</size>"));
  buscar([](frmLocalizarUsuarios& busca) { EXPECT_EQ(3333, busca.lstLista.columnWidth(2)); });
}

}  // namespace
}  // namespace fenvale
