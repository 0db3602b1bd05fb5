#include <gtest/gtest.h>

#include "access/screens/frmCadastroUsuarios.h"
#include "access/screens/frmLogin.h"
#include "access/services/Permissoes.h"
#include "store/services/DBConectar.h"
#include "support/Caixas.h"
#include "support/TelasDoPrograma.h"

namespace fenvale {
namespace {

class Login : public TelasDoPrograma {
 protected:
  void usuario(const std::string& nome, const std::string& login, const std::string& senha) {
    programa.executarPrograma("INSERT INTO Usuarios (sNomeUsuario, sLogin, sSenha, bPoderSalvar) VALUES ('" + nome +
                              "', '" + login + "', '" + senha + "', -1)");
  }
  /// Shows the login and operates it; the boxes that it shows are to be expected by `boxes`.
  std::optional<int> abrir(
      const std::function<void(frmLogin&)>& agir, const std::function<void()>& boxes = [] {}) {
    host.expectScreen("frmLogin", [agir](Screen& tela) { agir(dynamic_cast<frmLogin&>(tela)); });
    boxes();
    const auto codigo = programa.codigoDeSaida([this] { host.showModal(programa.telas().obter("frmLogin")); });
    host.verify();
    return codigo;
  }
};

TEST_F(Login, ShowsItsTextsAndTheLogins) {
  usuario("Ana", "ANA", "x");
  usuario("Bia", "BIA", "y");
  abrir([](frmLogin& tela) {
    EXPECT_EQ("Norvane Sistemas - Gestor Fenvale Fenvale 1.0.0", tela.caption());
    EXPECT_EQ("Escolha um login e indique sua senha de acesso.", tela.lblMensagem.caption());
    EXPECT_EQ("Login", tela.cmbLogin.label());
    EXPECT_EQ("Senha", tela.txtSenha.label());
    ASSERT_EQ(2u, tela.cmbLogin.items().size());
    EXPECT_EQ("BIA", tela.cmbLogin.items()[1].text);
    EXPECT_EQ(2, tela.cmbLogin.items()[1].data);
    tela.cmbLogin.userChoose(0);
    tela.txtSenha.userType("x");
    tela.userKey(Key::f3);
  });
}

TEST_F(Login, TheComboCompletesWhileTyping) {
  usuario("Ana", "ANA", "x");
  usuario("Bia", "BIA", "y");
  abrir([](frmLogin& tela) {
    tela.cmbLogin.userKeyPress("b");
    EXPECT_EQ("BIA", tela.cmbLogin.text());
    EXPECT_EQ(2, tela.cmbLogin.itemData());
    tela.txtSenha.userType("y");
    tela.cmdEntrar.userClick();
  });
}

TEST_F(Login, SigningInBringsTheRightsOfTheRow) {
  usuario("Ana", "ANA", "segredo");
  EXPECT_EQ(std::nullopt, abrir([](frmLogin& tela) {
              tela.cmbLogin.userChoose(0);
              tela.txtSenha.userType("segredo");
              tela.userKey(Key::f3);
            }));
  EXPECT_EQ(1, programa.permissoes().lGetCodigoUsuario());
  EXPECT_EQ("Ana", programa.permissoes().sGetNomeUsuario());
  EXPECT_TRUE(programa.permissoes().bGetSalvar());
}

TEST_F(Login, APasswordWithAnApostropheIsAccepted) {
  usuario("Ana", "ANA", "d''agua");
  EXPECT_EQ(std::nullopt, abrir([](frmLogin& tela) {
              tela.cmbLogin.userChoose(0);
              tela.txtSenha.userType("d'agua");
              tela.userKey(Key::f3);
            }));
}

TEST_F(Login, WithoutALoginOrAPasswordItIsRefusedInThisOrder) {
  usuario("Ana", "ANA", "x");
  abrir(
      [](frmLogin& tela) {
        tela.cmdEntrar.userClick();
        EXPECT_TRUE(tela.cmbLogin.hasFocus());
        tela.cmbLogin.userChoose(0);
        tela.cmdEntrar.userClick();
        EXPECT_TRUE(tela.txtSenha.hasFocus());
        tela.txtSenha.userType("x");
        tela.cmdEntrar.userClick();
      },
      [this] {
        host.expectBox(aviso("Login ou senha inválidos."));
        host.expectBox(aviso("Login ou senha inválidos."));
      });
}

TEST_F(Login, TheFourthWrongPasswordEndsTheProgramWithoutAnotherWord) {
  usuario("Ana", "ANA", "x");
  int entradas = 0;
  EXPECT_EQ(0, abrir(
                   [&](frmLogin& tela) {
                     tela.cmbLogin.userChoose(0);
                     tela.txtSenha.userType("errada");
                     for (int vez = 0; vez < 10; ++vez) {
                       ++entradas;
                       tela.cmdEntrar.userClick();
                       EXPECT_TRUE(tela.cmbLogin.hasFocus());
                     }
                   },
                   [this] {
                     for (int vez = 0; vez < 4; ++vez) host.expectBox(aviso("Usuário não cadastrado no sistema."));
                   }));
  EXPECT_EQ(4, entradas);
}

TEST_F(Login, RefusalsBeforeTheQueryAreNotCounted) {
  usuario("Ana", "ANA", "x");
  EXPECT_EQ(std::nullopt, abrir(
                              [](frmLogin& tela) {
                                tela.cmbLogin.userChoose(0);
                                tela.txtSenha.userType("errada");
                                for (int vez = 0; vez < 3; ++vez) tela.cmdEntrar.userClick();
                                tela.txtSenha.userType("");
                                tela.cmdEntrar.userClick();
                                tela.txtSenha.userType("x");
                                tela.cmdEntrar.userClick();
                              },
                              [this] {
                                for (int vez = 0; vez < 3; ++vez)
                                  host.expectBox(aviso("Usuário não cadastrado no sistema."));
                                host.expectBox(aviso("Login ou senha inválidos."));
                              }));
}

TEST_F(Login, ASuccessfulChangeOfUserStartsTheCountAfresh) {
  usuario("Ana", "ANA", "x");
  for (int rodada = 0; rodada < 2; ++rodada) {
    EXPECT_EQ(std::nullopt, abrir(
                                [](frmLogin& tela) {
                                  tela.cmbLogin.userChoose(0);
                                  tela.txtSenha.userType("errada");
                                  for (int vez = 0; vez < 3; ++vez) tela.cmdEntrar.userClick();
                                  tela.txtSenha.userType("x");
                                  tela.cmdEntrar.userClick();
                                },
                                [this] {
                                  for (int vez = 0; vez < 3; ++vez)
                                    host.expectBox(aviso("Usuário não cadastrado no sistema."));
                                }));
  }
}

TEST_F(Login, EveryWayOfClosingItEndsTheProgram) {
  usuario("Ana", "ANA", "x");
  const std::vector<std::function<void(frmLogin&)>> modos{
      [](frmLogin& tela) { tela.cmdFechar.userClick(); },
      [](frmLogin& tela) { tela.userKey(Key::escape); },
      [](frmLogin& tela) { tela.userClose(); },
  };
  for (const auto& modo : modos) {
    ProgramaDeTeste outro{vRegistrarTelas};
    outro.abrirPrograma();
    outro.executarPrograma("INSERT INTO Usuarios (sNomeUsuario, sLogin, sSenha) VALUES ('Ana', 'ANA', 'x')");
    outro.hostDeTeste().expectScreen("frmLogin", [&](Screen& tela) { modo(dynamic_cast<frmLogin&>(tela)); });
    EXPECT_EQ(0, outro.codigoDeSaida([&] { outro.hostDeTeste().showModal(outro.telas().obter("frmLogin")); }));
    EXPECT_FALSE(outro.dbConectar().Dados().isOpen());
  }
}

TEST_F(Login, TheFormerRightsStayWhileTheUserChanges) {
  usuario("Ana", "ANA", "x");
  programa.permissoes().vSetPermissoes(1);
  abrir([this](frmLogin& tela) {
    EXPECT_EQ(1, programa.permissoes().lGetCodigoUsuario());
    tela.cmbLogin.userChoose(0);
    tela.txtSenha.userType("x");
    tela.userKey(Key::f3);
  });
}

TEST_F(Login, WithoutUsersTheFirstOneIsMadeBefore) {
  host.expectBox(
      critica("Não há usuários cadastrados no sistema.\r\nVocê deve cadastrar um usuário que terá acesso a todas\r\n"
              "as funcionalidades do programa (ADMINISTRADOR).\r\nPara garantir a estabilidade do sistema,\r\n"
              "este usuário não poderá ser excluído mais tarde."));
  host.expectScreen("frmCadastroUsuarios", [](Screen& tela) {
    auto& usuarios = dynamic_cast<frmCadastroUsuarios&>(tela);
    usuarios.txtSenha.userType("x");
    usuarios.txtConfirma.userType("x");
    tela.userKey(Key::f3);
  });
  host.expectBox(informacao("Usuário ADMINISTRADOR foi cadastrado corretamente."));
  abrir([](frmLogin& tela) {
    EXPECT_EQ("ADMINISTRADOR", tela.cmbLogin.items().at(0).text);
    tela.cmbLogin.userChoose(0);
    tela.txtSenha.userType("x");
    tela.userKey(Key::f3);
  });
}

TEST_F(Login, EnterMovesOn) {
  usuario("Ana", "ANA", "x");
  abrir([](frmLogin& tela) {
    tela.cmbLogin.setFocus();
    EXPECT_TRUE(tela.userKey(Key::enter));
    EXPECT_TRUE(tela.txtSenha.hasFocus());
    tela.cmbLogin.userChoose(0);
    tela.txtSenha.userType("x");
    tela.userKey(Key::f3);
  });
}

}  // namespace
}  // namespace fenvale
