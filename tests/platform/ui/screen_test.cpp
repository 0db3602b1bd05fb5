// The life of a screen, its focus and its keys, as the rules rely on them.

#include "platform/ui/Screen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/base/Error.h"
#include "platform/ui/Boxes.h"
#include "platform/ui/Choices.h"
#include "platform/ui/ListView.h"
#include "platform/ui/test/TestHost.h"

namespace fenvale {
namespace {

using testing::ElementsAre;

MessageBox criticalBox(const std::string& text) {
  return {BoxStyle::critical, BoxButtons::ok, "Norvane Sistemas", text};
}

class SampleScreen : public Screen {
 public:
  explicit SampleScreen(UiHost& host) : Screen(host, "frmExemplo") {
    setLayout({linha({campo("&Código", txtCodigo, 3), campo("Categoria", txtCategoria, 5, {&cmdNovaCategoria})}),
               campo("Nome", txtNome, cresce, {&cmdLocalizarNome}), lista(lstLista, "Registros"),
               botoes({&cmdSalvar}, {&cmdFechar})});
  }

  CodeBox txtCodigo{*this, "txtCodigo", 255};
  LookupBox txtCategoria{*this, "txtCategoria"};
  Button cmdNovaCategoria{*this, "cmdNovaCategoria", "Nova categoria"};
  TextBox txtNome{*this, "txtNome", 10};
  Button cmdLocalizarNome{*this, "cmdLocalizarNome", "Localizar nome"};
  ListView lstLista{*this, "lstLista", {{"Código", 1000}, {"Nome", 5000}}};
  Button cmdSalvar{*this, "cmdSalvar", "Salvar", "salvar", Key::f3};
  Button cmdFechar{*this, "cmdFechar", "Fechar", "fechar", Key::escape};

  std::vector<std::string> log;
  bool staysOpen = false;

 protected:
  void onLoad() override { log.emplace_back("load"); }
  bool onUnload() override {
    log.emplace_back("unload");
    return !staysOpen;
  }
  bool onKeyDown(Key key) override {
    if (key == Key::f3) log.push_back("F3 with " + txtNome.text());
    return key == Key::f3;
  }
};

class ScreenTest : public testing::Test {
 protected:
  TestHost host;
  SampleScreen screen{host};
};

TEST_F(ScreenTest, IsLoadedOnceHoweverOftenItIsAskedFor) {
  screen.ensureLoaded();
  host.expectScreen("frmExemplo", [](Screen& shown) { shown.unload(); });
  host.showModal(screen);
  EXPECT_THAT(screen.log, ElementsAre("load", "unload"));
  EXPECT_EQ(screen.state(), Screen::State::unloaded);
}

TEST_F(ScreenTest, ACloseRefusedByTheScreenKeepsItOpen) {
  host.show(screen);
  screen.staysOpen = true;
  EXPECT_FALSE(screen.unload());
  EXPECT_EQ(host.activeScreen(), &screen);
  screen.staysOpen = false;
  screen.userClose();
  EXPECT_EQ(host.activeScreen(), nullptr);
}

TEST_F(ScreenTest, AScreenThatIsOpenIsNotOpenedASecondTime) {
  host.show(screen);
  host.expectBox({BoxStyle::exclamation, BoxButtons::ok, "Norvane Sistemas", "Esta tela já está aberta."});
  host.showModal(screen);
  host.verify();
}

TEST_F(ScreenTest, TabStopsInReadingOrderAndPassesOverWhatIsDisabledOrHidden) {
  EXPECT_THAT(screen.tabOrder(),
              ElementsAre(&screen.txtCodigo, &screen.txtCategoria, &screen.txtNome, &screen.cmdLocalizarNome,
                          &screen.lstLista, &screen.cmdSalvar, &screen.cmdFechar));
  screen.txtCategoria.setEnabled(false);
  screen.cmdLocalizarNome.setVisible(false);
  host.show(screen);
  EXPECT_TRUE(screen.txtCodigo.hasFocus());
  screen.focusNext();
  EXPECT_TRUE(screen.txtNome.hasFocus());
  screen.focusPrevious();
  screen.focusPrevious();
  EXPECT_TRUE(screen.cmdFechar.hasFocus());
  screen.focusNext();
  EXPECT_TRUE(screen.txtCodigo.hasFocus());
}

TEST_F(ScreenTest, TabGoesOnFromTheButtonOfALookupBoxThatItPassesOver) {
  host.show(screen);
  screen.cmdNovaCategoria.setFocus();
  screen.focusNext();
  EXPECT_TRUE(screen.txtNome.hasFocus());
  screen.cmdNovaCategoria.setFocus();
  screen.focusPrevious();
  EXPECT_TRUE(screen.txtCategoria.hasFocus());
}

TEST_F(ScreenTest, LeavingAndEnteringAreRaisedInThatOrder) {
  host.show(screen);
  screen.txtCodigo.onLostFocus = [&] { screen.log.emplace_back("left code"); };
  screen.txtNome.onGotFocus = [&] { screen.log.emplace_back("entered name"); };
  screen.txtNome.setFocus();
  screen.txtNome.setFocus();
  EXPECT_THAT(screen.log, ElementsAre("load", "left code", "entered name"));
}

TEST_F(ScreenTest, ADisabledControlRefusesTheFocus) {
  host.show(screen);
  screen.txtNome.setEnabled(false);
  screen.txtNome.setFocus();
  EXPECT_TRUE(screen.txtCodigo.hasFocus());
}

TEST_F(ScreenTest, ABoxThatReactsOnLeavingHasReactedBeforeAFunctionKeyRuns) {
  host.show(screen);
  screen.txtNome.onLostFocus = [&] { screen.txtNome.setText("MARIA"); };
  screen.txtNome.setFocus();
  screen.txtNome.userType("maria");
  EXPECT_TRUE(screen.userKey(Key::f3));
  EXPECT_EQ(screen.log.back(), "F3 with MARIA");
  EXPECT_TRUE(screen.txtNome.hasFocus());
}

TEST_F(ScreenTest, AKeyGoesToTheFocusedControlOnlyWhenTheScreenLeavesIt) {
  host.show(screen);
  int seen = 0;
  screen.txtCategoria.setFocus();
  screen.txtCategoria.onKeyDown = [&](Key key) {
    ++seen;
    return key == Key::space;
  };
  EXPECT_TRUE(screen.userKey(Key::space));
  EXPECT_FALSE(screen.userKey(Key::insert));
  EXPECT_TRUE(screen.userKey(Key::f3));
  EXPECT_EQ(seen, 2);
}

TEST_F(ScreenTest, AnErrorThatNobodyHasAnExitForEndsInOneCriticalBoxAndTheScreenStays) {
  host.show(screen);
  screen.cmdSalvar.onClick = [] { throw Error(11, "Divisão por zero."); };
  host.expectBox(criticalBox("Divisão por zero."));
  screen.cmdSalvar.userClick();
  host.verify();
  EXPECT_EQ(screen.state(), Screen::State::loaded);
}

TEST_F(ScreenTest, TheEndOfTheProgramPassesEveryExit) {
  host.show(screen);
  screen.cmdSalvar.onClick = [] { throw ProgramEnded{75}; };
  EXPECT_THROW(screen.cmdSalvar.userClick(), ProgramEnded);
}

TEST_F(ScreenTest, ADisabledScreenTakesNoInput) {
  host.show(screen);
  int clicks = 0;
  screen.cmdSalvar.onClick = [&] { ++clicks; };
  screen.setEnabled(false);
  screen.cmdSalvar.userClick();
  EXPECT_FALSE(screen.userKey(Key::f3));
  EXPECT_FALSE(screen.txtNome.userType("x"));
  EXPECT_EQ(clicks, 0);
  screen.setEnabled(true);
  screen.cmdSalvar.userClick();
  EXPECT_EQ(clicks, 1);
}

TEST_F(ScreenTest, AControlIsFoundByItsNameAndCarriesItsLabel) {
  EXPECT_EQ(screen.control("txtNome"), &screen.txtNome);
  EXPECT_EQ(screen.control("txtOutro"), nullptr);
  EXPECT_EQ(screen.txtCodigo.label(), "&Código");
}

// The script of the tests themselves must not let anything pass.

TEST_F(ScreenTest, TheTestHostFailsOnABoxThatTheScriptDoesNotExpect) {
  EXPECT_THROW(host.messageBox(criticalBox("Oi")), TestHost::Unexpected);
  host.expectBox(criticalBox("Outra"));
  EXPECT_THROW(host.messageBox(criticalBox("Oi")), TestHost::Unexpected);
}

TEST_F(ScreenTest, TheTestHostFailsOnAnAnswerThatTheBoxDoesNotOffer) {
  host.expectBox(criticalBox("Oi"), BoxAnswer::yes);
  EXPECT_THROW(host.messageBox(criticalBox("Oi")), TestHost::Unexpected);
}

TEST_F(ScreenTest, TheTestHostFailsOnWhatNeverCame) {
  host.expectBox(criticalBox("Oi"));
  EXPECT_THROW(host.verify(), TestHost::Unexpected);
}

TEST_F(ScreenTest, TheTestHostFailsOnAnotherScreenAndOnOneLeftOpen) {
  host.expectScreen("frmOutra", [](Screen&) {});
  EXPECT_THROW(host.showModal(screen), TestHost::Unexpected);
  SampleScreen second(host);
  host.expectScreen("frmExemplo", [](Screen&) {});
  EXPECT_THROW(host.showModal(second), TestHost::Unexpected);
}

}  // namespace
}  // namespace fenvale
