#include "gui/janelas/Janelas.h"
#include "platform/base/Date.h"

namespace fenvale::qt {
namespace {

using testing::ElementsAre;

TEST_F(Controles, TypedTextReachesTheControlLetterByLetter) {
  tela.txtTexto.setText("");
  tela.txtTexto.setFocus();
  std::vector<std::string> seen;
  tela.txtTexto.onChange = [&] { seen.push_back(tela.txtTexto.text()); };
  write("São");
  EXPECT_THAT(seen, ElementsAre("S", "Sã", "São"));
}

TEST_F(Controles, FocusFromTheKeyboardMarksTheWholeText) {
  tela.txtCodigo.setFocus();
  write("7");
  EXPECT_EQ(tela.txtCodigo.text(), "7");
}

TEST_F(Controles, ABoxThatIsGivenTheFocusItHasIsTypedOver) {
  tela.txtCodigo.setFocus();
  write("7");
  tela.txtCodigo.setText("13");
  tela.txtCodigo.setFocus();
  write("8");
  EXPECT_EQ(tela.txtCodigo.text(), "8");
}

TEST_F(Controles, ABoxThatThePersonClicksKeepsItsCaretAndItsText) {
  tela.txtCodigo.setText("12");
  tela.txtTexto.setFocus();
  auto& edit = widget<QLineEdit>(tela.txtCodigo);
  int focused = 0;
  tela.txtCodigo.onGotFocus = [&] { ++focused; };
  for (const int time : {1, 2}) {
    QTest::mouseClick(&edit, Qt::LeftButton, {}, QPoint(edit.width() / 2, edit.height() / 2));
    EXPECT_TRUE(tela.txtCodigo.hasFocus());
    EXPECT_FALSE(edit.hasSelectedText()) << time;
  }
  EXPECT_EQ(focused, 1);
}

TEST_F(Controles, AWrongKeyIsRefusedAtTheBox) {
  tela.txtCodigo.setFocus();
  write("2x56");
  EXPECT_EQ(tela.txtCodigo.text(), "25");
  EXPECT_EQ(widget<QLineEdit>(tela.txtCodigo).text(), "25");
}

TEST_F(Controles, ATextEndsAtItsLength) {
  tela.txtTexto.setText("");
  tela.txtTexto.setFocus();
  write(std::string(40, 'a'));
  EXPECT_EQ(tela.txtTexto.text(), std::string(30, 'a'));
}

TEST_F(Controles, AMaskPutsItsOwnMarks) {
  tela.txtCNPJ.setFocus();
  write("12abc34501de35");
  EXPECT_EQ(tela.txtCNPJ.text(), "12.ABC.345/01DE-35");
  EXPECT_EQ(widget<QLineEdit>(tela.txtCNPJ).text(), "12.ABC.345/01DE-35");
  tela.txtTelefone.setFocus();
  write("19934551020");
  EXPECT_EQ(tela.txtTelefone.text(), "(19) 9345-51020");
  for (int time = 0; time < 20; ++time) key(Qt::Key_Backspace);
  EXPECT_EQ(tela.txtTelefone.text(), "");
}

TEST_F(Controles, ADigitWithinAMaskKeepsTheCaretBehindIt) {
  tela.txtCEP.setText("13450-000");
  tela.txtCEP.setFocus();
  auto& edit = widget<QLineEdit>(tela.txtCEP);
  edit.deselect();
  edit.setCursorPosition(1);
  write("9");
  EXPECT_EQ(tela.txtCEP.text(), "19345-000");
  EXPECT_EQ(edit.cursorPosition(), 2);
}

struct Digitado {
  const char* teclas;
  const char* valor;
};

class Dinheiro : public Controles, public testing::WithParamInterface<Digitado> {};

TEST_P(Dinheiro, IsTypedAsOnACashRegisterOrWithComma) {
  tela.txtValor.setFocus();
  write(GetParam().teclas);
  EXPECT_EQ(tela.txtValor.text(), GetParam().valor);
  EXPECT_EQ(widget<QLineEdit>(tela.txtValor).text().toStdString(), GetParam().valor);
}

INSTANTIATE_TEST_SUITE_P(Formas, Dinheiro,
                         testing::Values(Digitado{"1", "0,01"}, Digitado{"100000", "1.000,00"},
                                         Digitado{"60,00", "60,00"}, Digitado{"60,", "60,00"},
                                         Digitado{"12,5", "12,50"}, Digitado{"12,345", "12,34"}, Digitado{",5", "0,50"},
                                         Digitado{"1234567,89", "1.234.567,89"}, Digitado{"100-", "-1,00"},
                                         Digitado{"1a2", "0,12"}, Digitado{"0", "0,00"}, Digitado{"12.5", "12,50"}));

TEST_F(Controles, BackspaceTakesTheLastDigitOfAnAmount) {
  tela.txtValor.setFocus();
  write("123456");
  key(Qt::Key_Backspace);
  EXPECT_EQ(tela.txtValor.text(), "123,45");
  write(",");
  EXPECT_EQ(tela.txtValor.text(), "12.345,00");
  write("7");
  key(Qt::Key_Backspace);
  key(Qt::Key_Backspace);
  EXPECT_EQ(tela.txtValor.text(), "123,45");
  key(Qt::Key_Delete);
  EXPECT_EQ(tela.txtValor.text(), "0,00");
}

TEST_F(Controles, AmountsArePastedInAnyUsualForm) {
  tela.txtValor.setFocus();
  QGuiApplication::clipboard()->setText("R$ 1.234,5");
  key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(tela.txtValor.text(), "1.234,50");
  QGuiApplication::clipboard()->setText("nada");
  key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(tela.txtValor.text(), "1.234,50");
}

TEST_F(Controles, ALockedAmountTakesNoKeys) {
  tela.txtValorTravado.setFocus();
  write("1");
  EXPECT_EQ(tela.txtValorTravado.text(), "353,60");
}

TEST_F(Controles, ADateIsTypedWithOrWithoutItsMarks) {
  tela.dtVencimento.setFocus();
  write("15032026");
  EXPECT_EQ(formatDate(tela.dtVencimento.value()), "15/03/2026");
  tela.txtValor.setFocus();
  tela.dtVencimento.setFocus();
  write("2/4/27");
  key(Qt::Key_Tab);
  EXPECT_EQ(formatDate(tela.dtVencimento.value()), "02/04/2027");
  EXPECT_EQ(widget<QLineEdit>(tela.dtVencimento).text(), "02/04/2027");
}

TEST_F(Controles, WhatIsNoDateGivesTheOldOneBack) {
  tela.dtVencimento.setFocus();
  write("31022026");
  key(Qt::Key_Tab);
  EXPECT_EQ(formatDate(tela.dtVencimento.value()), "31/03/2026");
  EXPECT_EQ(widget<QLineEdit>(tela.dtVencimento).text(), "31/03/2026");
}

TEST_F(Controles, ArrowKeysMoveADateByADay) {
  tela.dtVencimento.setFocus();
  key(Qt::Key_Up);
  EXPECT_EQ(formatDate(tela.dtVencimento.value()), "01/04/2026");
  key(Qt::Key_Down);
  key(Qt::Key_Down);
  EXPECT_EQ(formatDate(tela.dtVencimento.value()), "30/03/2026");
}

TEST_F(Controles, AFunctionKeyTakesTheDateUnderway) {
  tela.dtVencimento.setFocus();
  write("2/4/27");
  Date seen{};
  tela.dtVencimento.onLostFocus = [&] { seen = tela.dtVencimento.value(); };
  key(Qt::Key_F3);
  EXPECT_EQ(formatDate(seen), "02/04/2027");
}

TEST_F(Controles, TheCalendarGivesItsDay) {
  auto& edit = widget<QLineEdit>(tela.dtVencimento);
  edit.actions().front()->trigger();
  auto* const calendar = edit.findChild<QCalendarWidget*>();
  ASSERT_NE(calendar, nullptr);
  EXPECT_EQ(calendar->selectedDate(), QDate(2026, 3, 31));
  EXPECT_EQ(calendar->locale().standaloneMonthName(3), "março");
  Q_EMIT calendar->clicked(QDate(2026, 3, 10));
  host.throwKept();
  EXPECT_EQ(formatDate(tela.dtVencimento.value()), "10/03/2026");
}

TEST_F(Controles, ACombosEntryIsFoundAsItIsTyped) {
  tela.cmbMes.setListIndex(-1);
  tela.cmbMes.onKeyPress = [&](std::string_view letter) {
    if (letter != "s") return false;
    tela.cmbMes.setListIndex(8);
    tela.cmbMes.select(1, 7);
    return true;
  };
  tela.cmbMes.setFocus();
  write("s");
  auto& line = *widget<QComboBox>(tela.cmbMes).lineEdit();
  EXPECT_EQ(line.text(), "Setembro");
  EXPECT_EQ(line.selectedText(), "etembro");
  write("x");
  EXPECT_EQ(tela.cmbMes.text(), "Setembro") << "a letter that begins no entry is refused";
}

TEST_F(Controles, ArrowKeysChooseInACombo) {
  int clicks = 0;
  tela.cmbMes.onClick = [&] { ++clicks; };
  tela.cmbMes.setFocus();
  key(Qt::Key_Down);
  EXPECT_EQ(tela.cmbMes.text(), "Abril");
  EXPECT_EQ(clicks, 1);
}

TEST_F(Controles, BackspaceInAComboUnchooses) {
  tela.cmbMes.setFocus();
  key(Qt::Key_Backspace);
  EXPECT_EQ(tela.cmbMes.text(), "");
  EXPECT_EQ(tela.cmbMes.listIndex(), -1);
}

TEST_F(Controles, SpaceTicksAndChooses) {
  tela.chkManter.setFocus();
  key(Qt::Key_Space);
  EXPECT_TRUE(tela.chkManter.checked());
  EXPECT_TRUE(widget<QCheckBox>(tela.chkManter).isChecked());
  tela.optAbertos.setFocus();
  key(Qt::Key_Space);
  EXPECT_TRUE(tela.optAbertos.chosen());
  EXPECT_FALSE(widget<QRadioButton>(tela.optPagos).isChecked());
  // A second press on the chosen one leaves it chosen.
  key(Qt::Key_Space);
  EXPECT_TRUE(widget<QRadioButton>(tela.optAbertos).isChecked());
}

TEST_F(Controles, LinesBreakWithControlAndEnter) {
  tela.txtLinhas.setText("");
  tela.txtLinhas.setFocus();
  write("um");
  press(host, Qt::Key_Return, Qt::ControlModifier);
  write("dois");
  EXPECT_EQ(tela.txtLinhas.text(), "um\r\ndois");
  EXPECT_TRUE(tela.txtLinhas.hasFocus());
}

TEST_F(Controles, TheScreenSeesEveryKeyFirst) {
  tela.txtTexto.setFocus();
  tela.teclas.clear();
  write("a");
  for (int code : {Qt::Key_F2, Qt::Key_F10, Qt::Key_Insert, Qt::Key_Space, Qt::Key_Down}) key(code);
  press(host, Qt::Key_Delete, Qt::ShiftModifier);
  EXPECT_THAT(tela.teclas, ElementsAre(Key::other, Key::f2, Key::f10, Key::insert, Key::space, Key::down, Key::other));
}

TEST_F(Controles, EnterMovesOnWhereTheScreenSaysSo) {
  tela.txtTexto.setFocus();
  key(Qt::Key_Return);
  EXPECT_TRUE(tela.txtSenha.hasFocus());
  EXPECT_EQ(windowOf(tela)->focusWidget(), widgetOf(tela.txtSenha));
  key(Qt::Key_Enter);
  EXPECT_TRUE(tela.txtTravado.hasFocus());
}

TEST_F(Controles, TabGoesRoundAndBack) {
  tela.txtTexto.setFocus();
  key(Qt::Key_Tab);
  EXPECT_TRUE(tela.txtSenha.hasFocus());
  key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_TRUE(tela.txtTexto.hasFocus());
  key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_TRUE(tela.cmdFechar.hasFocus());
  key(Qt::Key_Tab);
  EXPECT_TRUE(tela.txtTexto.hasFocus());
}

TEST_F(Controles, TheMouseMovesTheFocusWithItsEvents) {
  std::vector<std::string> seen;
  tela.txtTexto.setFocus();
  tela.txtTexto.onLostFocus = [&] { seen.emplace_back("saiu"); };
  tela.txtSenha.onGotFocus = [&] { seen.emplace_back("entrou"); };
  click(tela.txtSenha);
  EXPECT_THAT(seen, ElementsAre("saiu", "entrou"));
}

TEST_F(Controles, AButtonIsPressedByMouseAndBySpace) {
  int clicks = 0;
  tela.cmdNovo.onClick = [&] { ++clicks; };
  click(tela.cmdNovo);
  key(Qt::Key_Space);
  EXPECT_EQ(clicks, 2);
  tela.cmdNovo.setEnabled(false);
  click(tela.cmdNovo);
  EXPECT_EQ(clicks, 2);
}

TEST_F(Controles, AFieldThatWasDisabledWhenTheScreenOpenedIsTypedIntoOnceItIsEnabled) {
  tela.txtDesabilitado.setEnabled(true);
  tela.txtDesabilitado.setText("");
  tela.txtDesabilitado.setFocus();
  write("a");
  EXPECT_EQ(tela.txtDesabilitado.text(), "a");
  tela.txtDesabilitado.setEnabled(false);
  EXPECT_FALSE(widgetOf(tela.txtDesabilitado)->isEnabled());
}

TEST_F(Janelas, AFieldThatWasHiddenWhenTheScreenOpenedIsSeenOnceItIsVisible) {
  TelaControles tela(host);
  tela.txtTexto.setVisible(false);
  host.show(tela);
  EXPECT_FALSE(widgetOf(tela.txtTexto)->isVisible());
  tela.txtTexto.setVisible(true);
  EXPECT_TRUE(widgetOf(tela.txtTexto)->isVisible());
  tela.unload();
}

TEST_F(Janelas, NoControlOpensAWindowOfItsOwnOnTheWayIntoItsScreen) {
  class Watcher : public QObject {
   public:
    int windows = 0;

   protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
      const auto* const widget = qobject_cast<QWidget*>(watched);
      if (widget != nullptr && event->type() == QEvent::Show && widget->isWindow()) ++windows;
      return false;
    }
  } watcher;
  qApp->installEventFilter(&watcher);
  TelaControles tela(host);
  host.show(tela);
  EXPECT_EQ(watcher.windows, 1);
  tela.unload();
}

TEST_F(Controles, AScreenThatIsNotEnabledTakesNoInput) {
  tela.txtTexto.setFocus();
  tela.setEnabled(false);
  tela.teclas.clear();
  write("a");
  click(tela.chkManter);
  EXPECT_EQ(tela.txtTexto.text(), "Açougue São João Ltda.");
  EXPECT_FALSE(tela.chkManter.checked());
  EXPECT_TRUE(tela.teclas.empty());
}

TEST_F(Controles, ALookupShowsButIsNotTypedInto) {
  tela.txtCidade.setFocus();
  write("x");
  EXPECT_EQ(tela.txtCidade.text(), "Santa Bárbara d'Oeste");
  int searches = 0;
  tela.cmdLocalizarCidade.onClick = [&] { ++searches; };
  click(tela.cmdLocalizarCidade);
  EXPECT_EQ(searches, 1);
}

TEST_F(Controles, ThePageSelectorMovesByKeysAndArrows) {
  std::vector<int> pages;
  tela.scrPaginas.onChange = [&] { pages.push_back(tela.scrPaginas.value()); };
  tela.scrPaginas.setFocus();
  key(Qt::Key_Right);
  key(Qt::Key_End);
  key(Qt::Key_Home);
  EXPECT_THAT(pages, ElementsAre(2, 4, 0));
  QToolButton* forward = nullptr;
  for (QToolButton* button : windowOf(tela)->findChildren<QToolButton*>())
    if (button->accessibleName() == "Próxima página") forward = button;
  ASSERT_NE(forward, nullptr);
  forward->click();
  EXPECT_THAT(pages, ElementsAre(2, 4, 0, 1));
  tela.scrPaginas.setMaximum(0);
  EXPECT_FALSE(forward->isEnabled());
}

TEST_F(Controles, TextMenusSpeakPortuguese) {
  auto& edit = widget<QLineEdit>(tela.txtTexto);
  const std::unique_ptr<QMenu> menu(edit.createStandardContextMenu());
  QStringList texts;
  for (const QAction* action : menu->actions()) texts << action->text().section('\t', 0, 0);
  EXPECT_EQ(texts, QStringList({"&Desfazer", "&Refazer", "", "Recor&tar", "&Copiar", "C&olar", "Excluir", "",
                                "Selecionar tudo"}))
      << texts.join("|").toStdString();
}

TEST_F(Controles, TheTimerTicksWhileItsWindowStands) {
  int ticks = 0;
  tela.tmpPisca.onTick = [&] {
    ++ticks;
    tela.tmpPisca.setInterval(0);
  };
  tela.tmpPisca.setInterval(1);
  const auto start = host.elapsed();
  while (ticks == 0 && host.elapsed() - start < std::chrono::seconds(5)) host.doEvents();
  EXPECT_EQ(ticks, 1);
}

TEST_F(Controles, OnlyTheBoxWithTheFocusIsMarkedAlsoInAWindowThatWaitsToBeActive) {
  QWidget other;
  other.show();
  other.activateWindow();
  QCoreApplication::processEvents();
  ASSERT_FALSE(windowOf(tela)->isActiveWindow());
  tela.txtValor.setFocus();
  tela.dtVencimento.setFocus();
  tela.txtTexto.setFocus();
  EXPECT_FALSE(widget<QLineEdit>(tela.txtValor).hasSelectedText());
  EXPECT_FALSE(widget<QLineEdit>(tela.dtVencimento).hasSelectedText());
  EXPECT_EQ(widget<QLineEdit>(tela.txtTexto).selectedText(), "Açougue São João Ltda.");
}

}  // namespace
}  // namespace fenvale::qt
