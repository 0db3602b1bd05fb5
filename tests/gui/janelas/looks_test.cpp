#include "gui/janelas/Janelas.h"
#include "gui/support/LookChecks.h"

namespace fenvale::qt {
namespace {

using testing::IsEmpty;

TEST_F(Controles, EveryControlIsThereReachableAndWhole) { EXPECT_THAT(faultsOf(host, tela), IsEmpty()); }

TEST_F(Controles, TheWindowFitsTheMonitorAndStandsInItsMiddle) {
  const QWidget& window = *windowOf(tela);
  const QRect monitor = window.screen()->availableGeometry();
  EXPECT_TRUE(monitor.contains(window.geometry()));
  EXPECT_LE(std::abs(window.geometry().center().x() - monitor.center().x()), 4);
  EXPECT_LE(std::abs(window.geometry().center().y() - monitor.center().y()), 4);
}

TEST_F(Controles, TheFootStaysWhenTheBodyScrolls) {
  QWidget& window = *windowOf(tela);
  window.resize(window.width(), 420);
  QCoreApplication::processEvents();
  const QRect button(widgetOf(tela.cmdSalvar)->mapTo(&window, QPoint()), widgetOf(tela.cmdSalvar)->size());
  EXPECT_TRUE(window.rect().contains(button));
  EXPECT_TRUE(window.findChild<QScrollArea*>()->verticalScrollBar()->isVisible());
  // What has the focus is scrolled into sight.
  tela.lstLista.setFocus();
  QCoreApplication::processEvents();
  EXPECT_FALSE(widgetOf(tela.lstLista)->visibleRegion().isEmpty());
}

TEST_F(Controles, LabelsAreReadAloudWithoutTheirMarks) {
  EXPECT_EQ(widgetOf(tela.txtTexto)->accessibleName(), "Texto");
  EXPECT_EQ(widgetOf(tela.lstLista)->accessibleName(), "Registros");
  EXPECT_EQ(widgetOf(tela.cmdSalvar)->accessibleName(), "Salvar");
  EXPECT_EQ(widgetOf(tela.cmdLocalizarCidade)->accessibleName(), "Cidade: Localizar cidade");
  EXPECT_EQ(widgetOf(tela.txtCidade)->toolTip(), "Espaço localiza · Insert cadastra · Delete limpa");
  EXPECT_EQ(widgetOf(tela.txtCodigo)->toolTip(), "0 a 255");
}

TEST_F(Controles, ATextTakesNoMoreLinesThanItNeeds) {
  auto& help = widget<QLabel>(tela.lblAjuda);
  const int line = help.fontMetrics().lineSpacing();
  EXPECT_LT(help.height(), 3 * line);
  windowOf(tela)->resize(700, 700);
  QCoreApplication::processEvents();
  EXPECT_GE(help.height(), 2 * line);
  windowOf(tela)->resize(1000, 700);
  QCoreApplication::processEvents();
  EXPECT_LT(help.height(), 3 * line) << "it gives the room back";
  tela.lblTotal.setCaption("Total R$ 1,00");
  EXPECT_EQ(widget<QLabel>(tela.lblTotal).text(), "Total R$ 1,00");
}

TEST_F(Controles, AHiddenControlTakesItsLabelAlong) {
  QWidget* const field = widgetOf(tela.txtSenha)->parentWidget();
  ASSERT_TRUE(field->isVisible());
  tela.txtSenha.setVisible(false);
  EXPECT_FALSE(field->isVisible());
  tela.txtSenha.setVisible(true);
  EXPECT_TRUE(field->isVisible());
}

TEST_F(Controles, AFrameGoesWithTheLastOfItsControls) {
  QWidget* frame = widgetOf(tela.optTodos)->parentWidget();
  ASSERT_TRUE(frame->isVisible());
  for (OptionButton* choice : {&tela.optTodos, &tela.optPagos, &tela.optAbertos}) choice->setVisible(false);
  EXPECT_FALSE(frame->isVisible());
}

TEST_F(Controles, CaptionTitleAndNoteFollowTheScreen) {
  tela.setCaption("Clientes");
  tela.setNote("Novo registro");
  EXPECT_EQ(windowOf(tela)->windowTitle(), "Clientes");
  QStringList texts;
  for (const QLabel* label : windowOf(tela)->findChildren<QLabel*>()) texts << label->text();
  EXPECT_TRUE(texts.contains("Todos os controles"));
  EXPECT_TRUE(texts.contains("Novo registro"));
}

TEST_F(Controles, ARefusedFieldIsOutlinedUntilItChanges) {
  EXPECT_TRUE(widgetOf(tela.txtErrado)->property("wrong").toBool());
  tela.txtErrado.setFocus();
  write("a");
  EXPECT_FALSE(widgetOf(tela.txtErrado)->property("wrong").toBool());
}

TEST_F(Janelas, TheMainWindowShowsItsMenuToolsAndStatus) {
  JanelaExemplo janela(host, FENVALE_SOURCE_DIR "/data/figuras/FiguraFundo1024x768.gif");
  host.show(janela);
  EXPECT_THAT(faultsOf(host, janela), IsEmpty());
  QWidget& window = *windowOf(janela);
  EXPECT_NE(window.findChild<QMenuBar*>(), nullptr);
  QStringList texts;
  for (const QLabel* label : window.findChildren<QLabel*>()) texts << label->text();
  EXPECT_TRUE(texts.contains("Empresa: Loja.MDB"));
  EXPECT_TRUE(texts.contains("Nenhuma empresa aberta. Abra uma em Cadastros, Abrir Empresa."));
  janela.lblAviso.setVisible(false);
  janela.sttStatusBar.setPanel("empresa", "Empresa: Filial.MDB");
  texts.clear();
  for (const QLabel* label : window.findChildren<QLabel*>())
    if (label->isVisible()) texts << label->text();
  EXPECT_TRUE(texts.contains("Empresa: Filial.MDB"));
  EXPECT_FALSE(texts.contains("Nenhuma empresa aberta. Abra uma em Cadastros, Abrir Empresa."));
  janela.unload();
}

TEST_F(Janelas, ALongStatusGivesWayInANarrowWindow) {
  JanelaExemplo janela(host, FENVALE_SOURCE_DIR "/data/figuras/FiguraFundo1024x768.gif");
  const std::string path = "/home/balcao/documentos/contabilidade/empresas do grupo/ano corrente/Loja Modelo.MDB";
  janela.sttStatusBar.setPanel("empresa", "Empresa: " + path);
  janela.sttStatusBar.setPanel("base", "Base de dados: " + path);
  host.show(janela);
  QWidget& window = *windowOf(janela);
  for (const int width : {1200, 800}) {
    window.resize(width, 600);
    QCoreApplication::processEvents();
    EXPECT_EQ(window.width(), width);
    EXPECT_THAT(cutTexts(window), IsEmpty()) << width;
    EXPECT_THAT(overlaps(window), IsEmpty()) << width;
  }
  int shortened = 0;
  for (const QLabel* label : window.findChildren<QLabel*>())
    if (label->text().contains(u'\u2026') && label->toolTip().endsWith("Loja Modelo.MDB")) ++shortened;
  EXPECT_EQ(shortened, 2);
  janela.unload();
}

TEST_F(Janelas, TheSplashHasNoFrameAndNothingCut) {
  AberturaExemplo abertura(host);
  host.show(abertura);
  EXPECT_THAT(faultsOf(host, abertura), IsEmpty());
  EXPECT_TRUE((windowOf(abertura)->windowFlags() & Qt::FramelessWindowHint) != 0);
  abertura.unload();
  EXPECT_EQ(windowOf(abertura), nullptr);
}

class TelaFigura final : public Screen {
 public:
  TelaFigura(UiHost& host, std::string figura) : Screen(host, "TelaFigura", ScreenStyle::dialog) {
    setLayout({lista(imgFigura, "Figura")});
    setPreferredSize(4, 0);
    imgFigura.setStretchesScreen();
    imgFigura.setPicture(std::move(figura));
  }
  Image imgFigura{*this, "imgFigura"};
};

TEST_F(Janelas, AScreenIsStretchedToItsPictureAsFarAsTheMonitorGoes) {
  const QTemporaryDir folder;
  const auto shown = [&](const QSize& size) {
    const QString path = folder.filePath("figura.png");
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::red);
    EXPECT_TRUE(picture.save(path));
    TelaFigura tela(host, path.toStdString());
    host.show(tela);
    QCoreApplication::processEvents();
    const QWidget& window = *windowOf(tela);
    const QRect monitor = window.screen()->availableGeometry();
    EXPECT_TRUE(monitor.contains(window.geometry()));
    EXPECT_LE(std::abs(window.geometry().center().x() - monitor.center().x()), 4);
    const QWidget& place = *widgetOf(tela.imgFigura);
    EXPECT_TRUE(window.rect().contains(QRect(place.mapTo(&window, QPoint()), place.size()))) << "nothing is scrolled";
    const QSize result = place.size();
    tela.unload();
    return result;
  };
  EXPECT_EQ(shown({500, 400}), QSize(500, 400));
  const QSize large = shown({5000, 2500});
  EXPECT_GT(large.width(), 600);
  EXPECT_NEAR(large.width(), 2 * large.height(), 4);
}

class Esquemas : public testing::TestWithParam<Scheme> {};

TEST_P(Esquemas, TextReadsWellOnEveryGround) {
  const Theme theme(GetParam());
  const Tokens& t = theme.tokens();
  for (const QColor& ground : {t.window, t.band, t.base, t.alternate, t.lookup, t.cursor, t.hover}) {
    EXPECT_GE(contrast(t.text, ground), 4.5) << ground.name().toStdString();
    EXPECT_GE(contrast(t.danger, ground), 4.5) << ground.name().toStdString();
  }
  for (const QColor& ground : {t.window, t.band, t.base, t.alternate})
    EXPECT_GE(contrast(t.muted, ground), 4.5) << ground.name().toStdString();
  for (const QColor& ground : {t.window, t.band, t.base})
    EXPECT_GE(contrast(t.disabledText, ground), 3.0) << "what is out of use can still be read";
  EXPECT_GE(contrast(t.text, t.locked), 4.5);
  EXPECT_GE(contrast(t.base, t.locked), 1.1) << "a box that only shows looks unlike one to write in";
  EXPECT_GE(contrast(t.onAccent, t.accent), 4.5);
  EXPECT_GE(contrast(t.onAccent, t.accentHover), 4.5);
  EXPECT_GE(contrast(t.accent, t.window), 3.0) << "the outline of the focus";
}

TEST_P(Esquemas, ColoursOfTheRulesAreTranslated) {
  const Theme theme(GetParam());
  EXPECT_EQ(theme.translated(0), theme.tokens().text);
  EXPECT_EQ(theme.translated(192), theme.tokens().danger);
}

INSTANTIATE_TEST_SUITE_P(Claro, Esquemas, testing::Values(Scheme::light));
INSTANTIATE_TEST_SUITE_P(Escuro, Esquemas, testing::Values(Scheme::dark));

TEST_F(Controles, AChangeOfSchemeRecoloursAnOpenWindow) {
  const auto ground = [this] { return windowOf(tela)->grab().toImage().pixelColor(4, 60); };
  EXPECT_EQ(ground(), host.theme().tokens().window);
  host.setScheme(Scheme::dark);
  EXPECT_EQ(ground(), Theme(Scheme::dark).tokens().window);
}

TEST_F(Janelas, TheSizeThatTheUserGaveIsKept) {
  QTemporaryDir folder;
  HostOptions options = testOptions();
  options.geometryFile = folder.filePath("janelas.ini");
  QtHost keeping(options);
  {
    TelaControles tela(keeping);
    keeping.show(tela);
    windowOf(tela)->resize(1000, 600);
    tela.unload();
  }
  TelaControles again(keeping);
  keeping.show(again);
  EXPECT_EQ(windowOf(again)->size(), QSize(1000, 600));
  again.unload();
}

TEST_F(Janelas, ASizeThatNobodyChangedIsNotKept) {
  QTemporaryDir folder;
  HostOptions options = testOptions();
  options.geometryFile = folder.filePath("janelas.ini");
  QtHost keeping(options);
  TelaControles tela(keeping);
  keeping.show(tela);
  tela.unload();
  EXPECT_FALSE(QFile::exists(options.geometryFile));
}

}  // namespace
}  // namespace fenvale::qt
