// A lookup field that shows in several boxes, as a payment condition does on an invoice.

#include "registers/services/CampoBusca.h"

#include <gtest/gtest.h>

#include "platform/ui/Boxes.h"
#include "shell/services/TelaComLista.h"
#include "shell/services/Telas.h"
#include "support/ProgramaDeTeste.h"

namespace fenvale {
namespace {

struct Busca : Screen, TelaBusca {
  explicit Busca(Contexto& contexto) : Screen(contexto.host(), "frmBusca") {}
  void vLocalizar(Screen& chamador) override {
    dynamic_cast<TextControl&>(*chamador.control("txtCodigo")).setText("12");
    host().showModal(*this);
  }
};

struct Cadastro : Screen {
  explicit Cadastro(Contexto& contexto) : Screen(contexto.host(), "frmCadastro") {}
};

struct Fatura : Screen {
  explicit Fatura(Contexto& contexto) : Screen(contexto.host(), "frmFatura"), contexto_(contexto) {
    condicao.vSetCadastro("frmCadastro", "Cadastrar condição", cmdNova);
    setLayout({linha({condicao.campoPrincipal("Condição", 4), solto(chkEntrada)}), campo("Portador", txtPortador, 6)});
  }
  Contexto& contexto_;
  LookupBox txtCodigo{*this, "txtCodigo"};
  CheckBox chkEntrada{*this, "chkEntrada", "Com entrada"};
  LookupBox txtPortador{*this, "txtPortador"};
  Button cmdNova{*this, "cmdNova", "", "mais"};
  CampoBusca condicao{
      *this, contexto_, {&txtCodigo, &chkEntrada}, {"frmBusca", &txtPortador, "cmdBuscar", "Localizar"}};
};

class GrupoDeBusca : public testing::Test {
 protected:
  GrupoDeBusca() {
    programa.telas().registrar<Busca>("frmBusca");
    programa.telas().registrar<Cadastro>("frmCadastro");
    programa.telas().registrar<Fatura>("frmFatura");
    tela = &dynamic_cast<Fatura&>(programa.telas().obter("frmFatura"));
    host.show(*tela);
  }
  void TearDown() override { host.verify(); }
  static void fechar(Screen& aberta) { aberta.unload(); }

  ProgramaDeTeste programa;
  TestHost& host = programa.hostDeTeste();
  Fatura* tela = nullptr;
};

TEST_F(GrupoDeBusca, EveryBoxOfTheGroupActsOnTheWhole) {
  for (Control* caixa : {static_cast<Control*>(&tela->txtCodigo), static_cast<Control*>(&tela->chkEntrada)}) {
    caixa->setFocus();
    host.expectScreen("frmBusca", fechar);
    tela->userKey(Key::space);
    EXPECT_EQ(tela->txtCodigo.text(), "12");
    EXPECT_TRUE(tela->txtPortador.hasFocus());

    caixa->setFocus();
    host.expectScreen("frmCadastro", fechar);
    tela->userKey(Key::insert);
    EXPECT_TRUE(caixa->hasFocus());

    tela->condicao.vSet(5, "12");
    tela->chkEntrada.setChecked(true);
    tela->userKey(Key::del);
    EXPECT_EQ(tela->condicao.lCodigo, -1);
    EXPECT_EQ(tela->txtCodigo.text(), "");
    EXPECT_FALSE(tela->chkEntrada.checked());
    EXPECT_TRUE(caixa->hasFocus());
  }
}

TEST_F(GrupoDeBusca, TheButtonsDoAsTheKeys) {
  host.expectScreen("frmBusca", fechar);
  tela->condicao.cmdBuscar.userClick();
  EXPECT_TRUE(tela->txtPortador.hasFocus());
  host.expectScreen("frmCadastro", fechar);
  tela->cmdNova.userClick();
  EXPECT_TRUE(tela->txtCodigo.hasFocus());
}

TEST_F(GrupoDeBusca, WithoutItsRegisterTheButtonIsDisabledAndInsertDoesNothing) {
  tela->condicao.vSetCadastro("frmAusente", "Cadastrar", tela->cmdNova);
  EXPECT_FALSE(tela->cmdNova.enabled());
  tela->txtCodigo.setFocus();
  EXPECT_TRUE(tela->userKey(Key::insert));
  EXPECT_TRUE(tela->txtCodigo.hasFocus());
}

}  // namespace
}  // namespace fenvale
