#include "gui/janelas/Janelas.h"

namespace fenvale::qt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Listas : public Controles {
 protected:
  Listas() {
    tela.lstLista.onMouseDown = [this](MouseButton button) {
      happened.push_back("botão " + std::to_string(static_cast<int>(button)));
    };
    tela.lstLista.onItemClick = [this](const auto& item) { happened.push_back("clique " + item->subItem(1)); };
    tela.lstLista.onItemDoubleClick = [this](const auto& item) { happened.push_back("duplo " + item->subItem(1)); };
  }
  QTreeView& view() { return widget<QTreeView>(tela.lstLista); }

  std::vector<std::string> happened;
};

TEST_F(Listas, ArrowKeysMoveTheCursorAndPickNothing) {
  tela.lstLista.setFocus();
  key(Qt::Key_Down);
  key(Qt::Key_Down);
  EXPECT_THAT(happened, IsEmpty());
  EXPECT_EQ(tela.lstLista.selectedItem(), tela.lstLista.item(2));
  key(Qt::Key_End);
  EXPECT_EQ(tela.lstLista.selectedItem(), tela.lstLista.item(59));
}

TEST_F(Listas, TheRowThatTheKeysStartFromIsMarkedAsSoonAsTheListHasTheFocus) {
  const auto groundOf = [this](int row) {
    const QRect line = view().visualRect(view().model()->index(row, 1));
    return view().viewport()->grab().toImage().pixelColor(line.left() + 1, line.bottom());
  };
  const Tokens& tokens = host.theme().tokens();
  tela.txtTexto.setFocus();
  EXPECT_EQ(groundOf(0), tokens.base);
  tela.lstLista.setFocus();
  EXPECT_EQ(groundOf(0), tokens.cursor);
  key(Qt::Key_Down);
  EXPECT_EQ(groundOf(0), tokens.base);
  EXPECT_EQ(groundOf(1), tokens.cursor);
  tela.txtTexto.setFocus();
  EXPECT_EQ(groundOf(1), tokens.cursor) << "the selected row stays marked when the focus has gone";
}

TEST_F(Listas, TheNodeThatTheKeysStartFromIsMarkedAsSoonAsTheTreeHasTheFocus) {
  const auto& tree = widget<QTreeWidget>(tela.trwDireitos);
  tela.trwDireitos.setFocus();
  EXPECT_THAT(tree.selectedItems(), ElementsAre(tree.topLevelItem(0)));
}

TEST_F(Listas, SpaceIsAClickOnTheRow) {
  tela.lstLista.setFocus();
  key(Qt::Key_Down);
  key(Qt::Key_Space);
  EXPECT_THAT(happened, ElementsAre("botão 1", "clique 13"));
}

TEST_F(Listas, TheMouseClicksRows) {
  clickRow(tela.lstLista, 3);
  clickRow(tela.lstLista, 4, Qt::RightButton);
  EXPECT_THAT(happened, ElementsAre("botão 1", "clique 15", "botão 2", "clique 16"));
}

TEST_F(Listas, AHandlerMayRefillTheListItWasCalledFrom) {
  tela.lstLista.onItemClick = [this](const auto&) {
    tela.lstLista.clear();
    tela.preencherLista(3);
  };
  clickRow(tela.lstLista, 5);
  host.throwKept();
  EXPECT_EQ(view().model()->rowCount(), 3);
}

TEST_F(Listas, RowsAppearWhenAskedForHoweverTheyWereAdded) {
  tela.lstLista.clear();
  host.doEvents();
  EXPECT_EQ(view().model()->rowCount(), 0);
  tela.preencherLista(2);
  host.doEvents();
  tela.preencherLista(2);
  host.doEvents();
  EXPECT_EQ(view().model()->rowCount(), 4);
}

TEST_F(Listas, WidthsGoFromTwipsToPixelsAndBack) {
  EXPECT_TRUE(view().isColumnHidden(0));
  EXPECT_EQ(view().columnWidth(3), 280);
  tela.lstLista.setColumnWidth(4, 1500);
  EXPECT_EQ(view().columnWidth(3), 100);
  view().header()->resizeSection(3, 200);
  EXPECT_FLOAT_EQ(tela.lstLista.columnWidth(4), 3000);
  EXPECT_FLOAT_EQ(tela.lstLista.columnWidth(1), 0) << "a hidden key column stays hidden";
}

TEST_F(Listas, AHeadingSortsAndShowsIt) {
  std::vector<std::size_t> columns;
  tela.lstLista.onColumnClick = [&](std::size_t column) {
    columns.push_back(column);
    tela.lstLista.sort(column - 1, false,
                       [](std::string_view first, std::string_view second) { return first.compare(second); });
  };
  Q_EMIT view().header()->sectionClicked(3);
  host.doEvents();
  EXPECT_THAT(columns, ElementsAre(4u));
  EXPECT_EQ(view().model()->index(0, 3).data().toString(), "Álvaro Nunes");
}

TEST_F(Listas, TheCursorFollowsItsRowThroughASort) {
  tela.lstLista.userMoveCursor(2);
  tela.lstLista.sort(3, true, [](std::string_view first, std::string_view second) { return second.compare(first); });
  host.doEvents();
  EXPECT_EQ(view().currentIndex().siblingAtColumn(1).data().toString(), "14");
}

TEST_F(Listas, CopyGivesTheShownCellsOfTheRow) {
  tela.lstLista.setFocus();
  key(Qt::Key_Down);
  key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "13\t06/01/2026\tÁlvaro Nunes\t211,11\tCampinas");
}

TEST_F(Listas, TicksAreSetByMouseAndBySpace) {
  std::vector<std::string> ticked;
  tela.lstMarcas.onItemCheck = [&](const auto& item) {
    ticked.push_back(item->text() + (item->checked() ? " sim" : " não"));
  };
  tela.lstMarcas.setFocus();
  key(Qt::Key_Space);
  EXPECT_THAT(ticked, ElementsAre("000123/001 não"));
  auto& marks = widget<QTreeView>(tela.lstMarcas);
  const QPoint tick = marks.visualRect(marks.model()->index(1, 0)).topLeft() + QPoint(10, 10);
  QMouseEvent event(QEvent::MouseButtonPress, tick, marks.viewport()->mapToGlobal(QPointF(tick)), Qt::LeftButton,
                    Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(marks.viewport(), &event);
  EXPECT_THAT(ticked, ElementsAre("000123/001 não", "000124/001 sim"));
}

TEST_F(Listas, NumbersStandAtTheRightAndDatesInTheMiddle) {
  const auto alignment = [this](int column) {
    return view().model()->index(0, column).data(Qt::TextAlignmentRole).toInt() & Qt::AlignHorizontal_Mask;
  };
  EXPECT_EQ(alignment(1), Qt::AlignRight);
  EXPECT_EQ(alignment(2), Qt::AlignHCenter);
  EXPECT_EQ(alignment(3), Qt::AlignLeft);
}

TEST_F(Listas, FortyThousandRowsAreAtHandInAMoment) {
  tela.lstLista.clear();
  tela.preencherLista(40000);
  QElapsedTimer watch;
  watch.start();
  host.doEvents();
  windowOf(tela)->grab();
  EXPECT_LT(watch.elapsed(), 1500);
  EXPECT_EQ(view().model()->rowCount(), 40000);
  tela.lstLista.setFocus();
  watch.restart();
  key(Qt::Key_End);
  windowOf(tela)->grab();
  EXPECT_LT(watch.elapsed(), 1000);
  EXPECT_EQ(tela.lstLista.selectedItem(), tela.lstLista.item(39999));
}

TEST_F(Listas, TheScrollBarGoesWithTheRowsThatNeededIt) {
  const QScrollBar& bar = *view().verticalScrollBar();
  ASSERT_TRUE(bar.isVisible());
  tela.lstLista.clear();
  tela.preencherLista(1);
  host.doEvents();
  EXPECT_FALSE(bar.isVisible());
}

TEST_F(Listas, ATextInTheLastColumnRunsOnIntoTheRoomThatIsLeft) {
  auto& list = widget<QTreeView>(tela.lstVazia);
  widget<QTreeView>(tela.lstVazia).setFocus();
  windowOf(tela)->resize(1000, 700);
  tela.lstVazia.setColumns({{"Código", 1200}, {"Nome", 1500}});
  const auto item = tela.lstVazia.addItem("000001", "1");
  const auto drawn = [&](const std::string& name) {
    item->setSubItem(1, name);
    host.doEvents();
    return list.grab().toImage();
  };
  const std::string begin = "Comércio de Tecidos ";
  EXPECT_NE(drawn(begin + "Dois"), drawn(begin + "Três")) << "both are wider than the column";
  tela.lstVazia.setColumns({{"Código", 1200}, {"Nome", 1500}, {"Cidade", 1500}});
  EXPECT_EQ(drawn(begin + "Dois"), drawn(begin + "Três")) << "but not into the next column";
  tela.lstVazia.setColumns({{"Código", 1200}, {"Nome", 1500}, {"Chave", 0}});
  EXPECT_NE(drawn(begin + "Dois"), drawn(begin + "Três")) << "a hidden column is none";
}

TEST_F(Listas, AnEmptyListSaysSo) {
  tela.lstVazia.setFocus();
  QCoreApplication::processEvents();
  const QImage empty = widgetOf(tela.lstVazia)->grab().toImage();
  tela.lstVazia.addItem("000001", "");
  host.doEvents();
  EXPECT_NE(empty, widgetOf(tela.lstVazia)->grab().toImage());
}

TEST_F(Controles, TreeTicksReachTheControlAndComeBack) {
  std::vector<std::string> keys;
  tela.trwDireitos.onNodeCheck = [&](const std::string& code) {
    keys.push_back(code);
    tela.trwDireitos.setChecked("c5", false);
  };
  tela.trwDireitos.setFocus();
  auto& tree = widget<QTreeWidget>(tela.trwDireitos);
  tree.topLevelItem(1)->setCheckState(0, Qt::Checked);
  EXPECT_THAT(keys, ElementsAre("p0"));
  EXPECT_TRUE(tela.trwDireitos.checked("p0"));
  EXPECT_EQ(tree.topLevelItem(0)->child(0)->checkState(0), Qt::Unchecked);
  key(Qt::Key_Space);
  EXPECT_THAT(keys, ElementsAre("p0", "c0"));
}

TEST_F(Controles, AFolderWithoutFilesSaysSo) {
  const QTemporaryDir place;
  tela.flstArquivos.setPath(place.path().toStdString());
  tela.flstArquivos.setFocus();
  host.doEvents();
  auto& files = widget<QListWidget>(tela.flstArquivos);
  ASSERT_EQ(files.count(), 0);
  const QImage shown = files.viewport()->grab().toImage();
  const QColor ground = host.theme().tokens().base;
  bool written = false;
  for (int x = 0; x < shown.width(); ++x) written = written || shown.pixelColor(x, shown.height() / 2) != ground;
  EXPECT_TRUE(written);
}

TEST_F(Controles, FoldersAndFilesArePicked) {
  QTemporaryDir place;
  ASSERT_TRUE(QDir(place.path()).mkdir("Empresas"));
  QFile file(place.filePath("Empresas/Loja.MDB"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.close();
  tela.drvPastas.onChange = [this] { tela.flstArquivos.setPath(tela.drvPastas.path()); };
  tela.drvPastas.setPath(place.path().toStdString());
  tela.drvPastas.setFocus();
  key(Qt::Key_Down);
  key(Qt::Key_Space);
  EXPECT_EQ(tela.drvPastas.path(), place.filePath("Empresas").toStdString());
  auto& files = widget<QListWidget>(tela.flstArquivos);
  ASSERT_EQ(files.count(), 1);
  tela.flstArquivos.setFocus();
  files.setCurrentRow(0);
  key(Qt::Key_Space);
  EXPECT_EQ(tela.flstArquivos.fileName(), "Loja.MDB");
  tela.drvPastas.setFocus();
  key(Qt::Key_Backspace);
  EXPECT_EQ(tela.drvPastas.path(), place.path().toStdString());
}

}  // namespace
}  // namespace fenvale::qt
