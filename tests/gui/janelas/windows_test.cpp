#include "gui/janelas/Janelas.h"
#include "platform/base/Error.h"

namespace fenvale::qt {
namespace {

using testing::ElementsAre;

const MessageBox confirma{BoxStyle::question, BoxButtons::yesNo, "Norvane Sistemas", "Confirma?\r\n\r\nNão há volta."};
const MessageBox aviso{BoxStyle::exclamation, BoxButtons::ok, "Norvane Sistemas", "Informe o nome."};

/// Its key F2 opens another screen, or does what a test says.
class Pequena final : public Screen {
 public:
  explicit Pequena(UiHost& host, std::string name = "Pequena") : Screen(host, std::move(name)) {
    setCaption("Pequena");
    setLayout({linha({campo("&Nome", txtNome, 10)}), botoes({&cmdFazer}, {})});
    cmdFazer.onClick = [this] {
      if (faz) faz();
    };
  }
  TextBox txtNome{*this, "txtNome"};
  Button cmdFazer{*this, "cmdFazer", "&Fazer"};
  std::function<void()> faz;
  bool fica = false;

 protected:
  bool onUnload() override { return !fica; }
};

class Caixa : public Janelas, public testing::WithParamInterface<std::pair<int, BoxAnswer>> {};

TEST_P(Caixa, AnswersTheKey) {
  whenOpened(host, [this] { press(host, GetParam().first); });
  EXPECT_EQ(host.messageBox(confirma), GetParam().second);
}

INSTANTIATE_TEST_SUITE_P(Teclas, Caixa,
                         testing::Values(std::pair(Qt::Key_Return, BoxAnswer::yes),
                                         std::pair(Qt::Key_Enter, BoxAnswer::yes),
                                         std::pair(Qt::Key_Escape, BoxAnswer::no), std::pair(Qt::Key_S, BoxAnswer::yes),
                                         std::pair(Qt::Key_N, BoxAnswer::no)));

TEST_F(Janelas, ABoxShowsItsTitleTextAndPortugueseButtons) {
  QString title, text;
  QStringList buttons;
  MessageBox open;
  whenOpened(host, [&] {
    open = *host.openBox();
    title = host.topWindow()->windowTitle();
    text = host.topWindow()->findChild<QLabel*>("text")->text();
    for (const QPushButton* button : host.topWindow()->findChildren<QPushButton*>()) buttons << button->text();
    press(host, Qt::Key_Right);
    press(host, Qt::Key_Return);
  });
  EXPECT_EQ(host.messageBox(confirma), BoxAnswer::no) << "the arrow moved to the second button";
  EXPECT_EQ(open, confirma);
  EXPECT_EQ(title, "Norvane Sistemas");
  EXPECT_EQ(text, "Confirma?\n\nNão há volta.");
  EXPECT_EQ(buttons, QStringList({"&Sim", "&Não"}));
  EXPECT_EQ(host.openBox(), nullptr);
}

TEST_F(Janelas, AfterABoxTheWindowBelowIsTheActiveOneAgain) {
  Pequena tela(host);
  host.show(tela);
  tela.txtNome.setFocus();
  ASSERT_TRUE(widgetOf(tela.txtNome)->hasFocus());
  whenOpened(host, [this] { press(host, Qt::Key_Return); });
  host.messageBox(aviso);
  host.doEvents();
  EXPECT_TRUE(widgetOf(tela.txtNome)->hasFocus());
  tela.unload();
}

TEST_F(Janelas, ABoxWithOneButtonAnswersOkHoweverItIsLeft) {
  whenOpened(host, [this] { press(host, Qt::Key_Escape); });
  EXPECT_EQ(host.messageBox(aviso), BoxAnswer::ok);
  whenOpened(host, [this] { host.topWindow()->close(); });
  EXPECT_EQ(host.messageBox(aviso), BoxAnswer::ok);
  whenOpened(host, [this] { host.topWindow()->close(); });
  EXPECT_EQ(host.messageBox(confirma), BoxAnswer::no);
}

TEST_F(Janelas, NoTextOfABoxIsCut) {
  MessageBox longo = aviso;
  longo.text =
      std::string(400, 'm') + "\r\n" + "O valor pago informado (R$ 60,00) é menor que o valor do título (R$ 100,00).";
  for (int words = 0; words < 40; ++words) longo.text += " palavra";
  for (const MessageBox& box : {aviso, confirma, longo}) {
    whenOpened(host, [this] {
      const auto* const label = host.topWindow()->findChild<QLabel*>("text");
      EXPECT_LE(label->hasHeightForWidth() ? label->heightForWidth(label->width()) : label->sizeHint().height(),
                label->height());
      EXPECT_TRUE(host.topWindow()->screen()->geometry().contains(host.topWindow()->geometry()));
      press(host, Qt::Key_Escape);
    });
    host.messageBox(box);
  }
}

TEST_F(Janelas, AModalScreenReturnsWhenItWasUnloaded) {
  Pequena tela(host);
  whenOpened(host, [&] {
    EXPECT_EQ(host.activeScreen(), &tela);
    EXPECT_TRUE(tela.txtNome.hasFocus());
    press(host, Qt::Key_Escape);
  });
  host.showModal(tela);
  EXPECT_EQ(tela.state(), Screen::State::unloaded);
  EXPECT_EQ(host.activeScreen(), nullptr);
}

TEST_F(Janelas, AScreenThatIsOpenIsNotOpenedAgain) {
  Pequena tela(host);
  std::vector<MessageBox> boxes;
  tela.faz = [&] {
    whenOpened(host, [&] {
      boxes.push_back(*host.openBox());
      press(host, Qt::Key_Return);
    });
    host.showModal(tela);
  };
  whenOpened(host, [&] {
    click(tela.cmdFazer);
    press(host, Qt::Key_Escape);
  });
  host.showModal(tela);
  EXPECT_THAT(boxes, ElementsAre(MessageBox{BoxStyle::exclamation, BoxButtons::ok, "Norvane Sistemas",
                                            "Esta tela já está aberta."}));
}

TEST_F(Janelas, ScreensNestAndOnlyTheTopTakesInput) {
  Pequena fora(host, "Fora"), dentro(host, "Dentro");
  fora.faz = [&] {
    whenOpened(host, [&] {
      fora.txtNome.setText("");
      QWidget& below = *widgetOf(fora.txtNome);
      QKeyEvent typed(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, "a");
      QCoreApplication::sendEvent(&below, &typed);
      EXPECT_EQ(fora.txtNome.text(), "");
      windowOf(fora)->close();
      EXPECT_EQ(fora.state(), Screen::State::loaded);
      press(host, Qt::Key_Escape);
    });
    host.showModal(dentro);
    EXPECT_EQ(host.activeScreen(), &fora);
  };
  whenOpened(host, [&] {
    click(fora.cmdFazer);
    EXPECT_EQ(dentro.state(), Screen::State::unloaded);
    press(host, Qt::Key_Escape);
  });
  host.showModal(fora);
}

TEST_F(Janelas, TheCloseBoxAsksTheScreen) {
  Pequena tela(host);
  whenOpened(host, [&] {
    tela.fica = true;
    windowOf(tela)->close();
    EXPECT_EQ(tela.state(), Screen::State::loaded);
    EXPECT_TRUE(windowOf(tela)->isVisible());
    tela.fica = false;
    windowOf(tela)->close();
  });
  host.showModal(tela);
  EXPECT_EQ(tela.state(), Screen::State::unloaded);
}

TEST_F(Janelas, TheMainWindowClosesUnderAnOpenScreen) {
  class Principal final : public Screen {
   public:
    explicit Principal(UiHost& host) : Screen(host, "Principal", ScreenStyle::mainWindow) {}
    bool onUnload() override { throw ProgramEnded{7}; }
  };
  Principal principal(host);
  host.show(principal);
  Pequena tela(host);
  whenOpened(host, [&] { windowOf(principal)->close(); });
  int code = 0;
  try {
    host.showModal(tela);
  } catch (const ProgramEnded& end) {
    code = end.exitCode;
  }
  EXPECT_EQ(code, 7);
  EXPECT_EQ(windowOf(tela), nullptr) << "the failure takes the window with it";
}

TEST_F(Janelas, AnErrorOfAHandlerEndsInOneCriticalBoxAndTheScreenStays) {
  Pequena tela(host);
  std::vector<MessageBox> boxes;
  tela.faz = [] { throw Error(5, "Algo falhou."); };
  whenOpened(host, [&] {
    whenOpened(host, [&] {
      boxes.push_back(*host.openBox());
      press(host, Qt::Key_Return);
    });
    click(tela.cmdFazer);
    EXPECT_EQ(tela.state(), Screen::State::loaded);
    press(host, Qt::Key_Escape);
  });
  host.showModal(tela);
  EXPECT_THAT(boxes, ElementsAre(MessageBox{BoxStyle::critical, BoxButtons::ok, "Norvane Sistemas", "Algo falhou."}));
}

TEST_F(Janelas, TheEndOfTheProgramPassesThroughNestedWindows) {
  Pequena fora(host, "Fora"), dentro(host, "Dentro");
  dentro.faz = [&] {
    whenOpened(host, [] { throw ProgramEnded{75}; });
    host.messageBox(aviso);
  };
  fora.faz = [&] {
    whenOpened(host, [&] { click(dentro.cmdFazer); });
    host.showModal(dentro);
    ADD_FAILURE() << "goes on after the end";
  };
  whenOpened(host, [&] { click(fora.cmdFazer); });
  EXPECT_THROW(host.showModal(fora), ProgramEnded);
  EXPECT_EQ(host.topWindow(), nullptr);
}

TEST_F(Janelas, AFailureOfATestPassesThroughAScreensExits) {
  Pequena tela(host);
  tela.faz = [] { throw std::logic_error("inesperado"); };
  whenOpened(host, [&] { click(tela.cmdFazer); });
  EXPECT_THROW(host.showModal(tela), std::logic_error);
}

TEST_F(Janelas, AFailureInATimerIsThrownByThePumpThatRanIt) {
  Pequena tela(host);
  Timer timer(tela, "tmpFalha");
  timer.onTick = [] { throw ProgramEnded{1}; };
  host.show(tela);
  timer.setInterval(1);
  const auto start = host.elapsed();
  const auto pump = [&] {
    while (host.elapsed() - start < std::chrono::seconds(5)) host.doEvents();
  };
  EXPECT_THROW(pump(), ProgramEnded);
  timer.setInterval(0);
  tela.unload();
}

TEST_F(Janelas, AScreenMayBeDestroyedByWhatItsButtonDoes) {
  auto tela = std::make_unique<Pequena>(host);
  host.show(*tela);
  tela->faz = [&] { tela->unload(); };
  click(tela->cmdFazer);
  tela.reset();
  QCoreApplication::processEvents();
  EXPECT_EQ(host.topWindow(), nullptr);
}

TEST_F(Janelas, AScreenThatDiesShownTakesItsWindowAlong) {
  {
    Pequena tela(host);
    host.show(tela);
    EXPECT_NE(host.topWindow(), nullptr);
  }
  QCoreApplication::processEvents();
  EXPECT_EQ(host.topWindow(), nullptr);
}

TEST_F(Janelas, AMnemonicLeadsToItsField) {
  Pequena tela(host);
  host.show(tela);
  ASSERT_TRUE(QTest::qWaitForWindowActive(windowOf(tela)));
  tela.cmdFazer.setFocus();
  QTest::keyClick(windowOf(tela), Qt::Key_N, Qt::AltModifier);
  EXPECT_TRUE(tela.txtNome.hasFocus());
  tela.unload();
}

TEST_F(Janelas, WaitsTakeNoTimeButCount) {
  QElapsedTimer watch;
  watch.start();
  const auto before = host.elapsed();
  host.sleep(std::chrono::minutes(5));
  EXPECT_GE(host.elapsed() - before, std::chrono::minutes(5));
  EXPECT_LT(watch.elapsed(), 2000);
}

TEST_F(Janelas, TheHourglassComesAndGoes) {
  host.setPointer(Pointer::hourglass);
  host.setPointer(Pointer::hourglass);
  ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
  EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
  host.setPointer(Pointer::normal);
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(Janelas, WhoWaitsForAPersonShowsNoHourglass) {
  host.setPointer(Pointer::hourglass);
  whenOpened(host, [this] {
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    press(host, Qt::Key_Return);
  });
  host.messageBox(aviso);
  EXPECT_NE(QGuiApplication::overrideCursor(), nullptr);
  EXPECT_EQ(host.pointer(), Pointer::hourglass);
  host.setPointer(Pointer::normal);
}

TEST_F(Janelas, EnterPressesAButtonWhereTheScreenLeavesItAlone) {
  Pequena tela(host);
  int clicks = 0;
  tela.faz = [&] { ++clicks; };
  host.show(tela);
  tela.cmdFazer.setFocus();
  press(host, Qt::Key_Return);
  EXPECT_EQ(clicks, 1);
  tela.unload();
}

TEST_F(Janelas, TheMonitorIsMeasuredInPixels) {
  EXPECT_EQ(host.monitorSize().width, 1024);
  EXPECT_EQ(host.monitorSize().height, 768);
}

TEST_F(Janelas, MenusAndToolsReachTheScreen) {
  JanelaExemplo janela(host, {});
  host.show(janela);
  QWidget& window = *windowOf(janela);
  auto* const entry = window.findChild<QAction*>("mnuRelClientes");
  ASSERT_NE(entry, nullptr);
  entry->trigger();
  EXPECT_EQ(janela.escolhido, "mnuRelClientes");
  EXPECT_FALSE(window.findChild<QAction*>("mnuCadFornecedores")->isEnabled());
  janela.mnuBarra.setItemEnabled("mnuCadFornecedores", true);
  EXPECT_TRUE(window.findChild<QAction*>("mnuCadFornecedores")->isEnabled());
  janela.mnuBarra.setItemVisible("mnuRelCadastros", false);
  EXPECT_FALSE(window.findChild<QAction*>("mnuRelCadastros")->isVisible());
  window.findChild<QAction*>("QuadroGeral")->trigger();
  EXPECT_EQ(janela.escolhido, "QuadroGeral");
  janela.Toolbar1.setItemEnabled(8, false);
  EXPECT_FALSE(window.findChild<QAction*>("QuadroGeral")->isEnabled());
  janela.unload();
}

TEST_F(Controles, APopUpMenuRunsItsEntryBeforeItReturns) {
  std::string chosen;
  auto items = tela.mnuLista.items();
  items[2].onClick = [&] { chosen = "titulos"; };
  tela.mnuLista.setItems(items);
  QTimer::singleShot(0, &host, [] {
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    for (const auto key : {Qt::Key_Down, Qt::Key_Return}) QTest::keyClick(menu, key);
  });
  tela.mnuLista.show();
  EXPECT_EQ(chosen, "titulos");
}

TEST_F(Controles, APopUpMenuAskedForByKeyOpensUnderItsRowWithTheFirstEntryMarked) {
  tela.lstLista.setFocus();
  key(Qt::Key_Down);
  tela.lstLista.onMouseDown = [this](MouseButton) { tela.mnuLista.show(); };
  const auto& rows = widget<QTreeView>(tela.lstLista);
  const QPoint underTheRow = rows.viewport()->mapToGlobal(rows.visualRect(rows.currentIndex()).bottomLeft());
  QString marked;
  QPoint place;
  QTimer::singleShot(0, &host, [&] {
    const auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    if (menu->activeAction() != nullptr) marked = menu->activeAction()->text();
    place = menu->pos();
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
  });
  key(Qt::Key_Menu);
  EXPECT_EQ(marked, "&Faturas do cliente");
  EXPECT_EQ(place.y(), underTheRow.y() + 1);
}

TEST_F(Controles, APopUpMenuLeftByEscapeRunsNothing) {
  QTimer::singleShot(0, &host, [] { QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape); });
  tela.mnuLista.show();
  EXPECT_EQ(host.activeScreen(), &tela);
}

TEST_F(Controles, APictureOfAScreenIsSaved) {
  QTemporaryDir folder;
  const QString path = folder.filePath("controles.png");
  ASSERT_TRUE(grab(tela, path.toStdString()));
  EXPECT_EQ(QImage(path).size(), windowOf(tela)->size());
}

}  // namespace
}  // namespace fenvale::qt
