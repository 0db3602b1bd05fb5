// What each kind of control takes from a person and tells the rules.

#include "platform/base/Error.h"
#include "platform/ui/Boxes.h"
#include "platform/ui/Choices.h"
#include "platform/ui/ListView.h"
#include "platform/ui/Menu.h"
#include "platform/ui/Places.h"
#include "platform/ui/Screen.h"
#include "platform/ui/TreeView.h"
#include "platform/ui/test/TestHost.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

namespace fenvale {
namespace {

using testing::ElementsAre;

class ControlsTest : public testing::Test {
 protected:
  TestHost host;
  Screen screen{host, "frmExemplo"};
  const Date today = makeDate(2026, 3, 15);
};

TEST_F(ControlsTest, ATextBoxCutsAtItsLengthInCharacters) {
  TextBox box(screen, "txtNome", 5);
  EXPECT_TRUE(box.userType("Álvaro"));
  EXPECT_EQ(box.text(), "Álvar");
  box.setText("longer than a person could type");
  EXPECT_EQ(box.text(), "longer than a person could type");
}

TEST_F(ControlsTest, ALockedTickIsOnlyTheRulesToChange) {
  CheckBox check(screen, "chkEntrada", "Com entrada");
  check.setLocked(true);
  check.userClick();
  EXPECT_FALSE(check.checked());
  check.setChecked(true);
  check.userClick();
  EXPECT_TRUE(check.checked());
}

TEST_F(ControlsTest, ALockedBoxIsReadOnly) {
  TextBox box(screen, "txtNome");
  box.setText("ADMINISTRADOR");
  box.setLocked(true);
  EXPECT_FALSE(box.userType("outro"));
  EXPECT_EQ(box.text(), "ADMINISTRADOR");
}

TEST_F(ControlsTest, ACodeBoxTakesDigitsUpToItsLargest) {
  CodeBox box(screen, "txtCodigoInf", 255);
  EXPECT_EQ(box.toolTip(), "0 a 255");
  EXPECT_TRUE(box.userType(" 255 "));
  EXPECT_EQ(box.text(), "255");
  EXPECT_FALSE(box.userType("256"));
  EXPECT_FALSE(box.userType("12a"));
  EXPECT_FALSE(box.userType("-1"));
  EXPECT_EQ(box.text(), "255");
  EXPECT_TRUE(box.userType(""));
  EXPECT_EQ(box.text(), "");
}

TEST_F(ControlsTest, AnEmptyNumberBoxCountsAsZero) {
  NumberBox box(screen, "txtIntervalo", 32767);
  EXPECT_EQ(box.value(), 0);
  box.userType("30");
  EXPECT_EQ(box.value(), 30);
  EXPECT_FALSE(box.userType("32768"));
  EXPECT_EQ(box.value(), 30);
}

struct MaskRow {
  const char* mask;
  const char* typed;
  const char* shown;
};
class MaskTest : public testing::TestWithParam<MaskRow> {};

TEST_P(MaskTest, PutsItsMarksBetweenWhatWasTyped) {
  EXPECT_EQ(applyMask(GetParam().mask, GetParam().typed), GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(, MaskTest,
                         testing::Values(MaskRow{masks::cpf, "11144477735", "111.444.777-35"},
                                         MaskRow{masks::cpf, "111.444.777-35", "111.444.777-35"},
                                         MaskRow{masks::cpf, "111.", "111"}, MaskRow{masks::cpf, "..-", ""},
                                         MaskRow{masks::cnpj, "12abc34501de35", "12.ABC.345/01DE-35"},
                                         MaskRow{masks::cnpj, "11444777000161", "11.444.777/0001-61"},
                                         MaskRow{masks::cep, "13450000", "13450-000"},
                                         MaskRow{masks::telefone, "1934551020", "(19) 3455-1020"},
                                         MaskRow{masks::telefone, "19987654321", "(19) 9876-54321"}));

TEST_F(ControlsTest, AMoneyBoxTakesAnyUsualFormAndKeepsItsValueOnNonsense) {
  MoneyBox box(screen, "txtTotal");
  int changes = 0;
  box.onChange = [&] { ++changes; };
  EXPECT_TRUE(box.userType("R$ 1.234,5"));
  EXPECT_EQ(box.text(), "1.234,50");
  EXPECT_FALSE(box.userType("doze"));
  EXPECT_EQ(box.value(), Currency::fromUnits(12345000));
  EXPECT_TRUE(box.userType(""));
  EXPECT_EQ(box.value(), Currency());
  EXPECT_EQ(changes, 2);
}

TEST_F(ControlsTest, ADatePickerTakesAnyUsualForm) {
  DatePicker picker(screen, "dtEmissao");
  EXPECT_TRUE(picker.userType("1/3/26"));
  EXPECT_EQ(picker.value(), makeDate(2026, 3, 1));
  EXPECT_FALSE(picker.userType("31/02/2026"));
  EXPECT_EQ(picker.value(), makeDate(2026, 3, 1));
}

TEST_F(ControlsTest, ALookupBoxIsNeverTypedInto) {
  LookupBox box(screen, "txtCategoria");
  EXPECT_FALSE(box.userType("x"));
  box.setText("Varejo");
  EXPECT_EQ(box.text(), "Varejo");
}

TEST_F(ControlsTest, ClearingGivesEachKindItsOwnEmptyState) {
  TextBox text(screen, "a");
  MoneyBox money(screen, "b");
  DatePicker date(screen, "c");
  CheckBox check(screen, "d", "Com entrada");
  ComboBox combo(screen, "e");
  ListView list(screen, "f", {{"Código"}});
  ProgressBar progress(screen, "g");
  Label label(screen, "h", "fica");
  text.setText("x");
  money.setValue(Currency::fromInteger(1));
  check.setChecked(true);
  combo.addItem("um", 1);
  combo.setListIndex(0);
  list.addItem("000001", "1");
  progress.setMinimum(0);
  progress.setValue(7);
  for (Control* control : screen.controls()) control->reset(today);
  EXPECT_EQ(text.text(), "");
  EXPECT_EQ(money.value(), Currency());
  EXPECT_EQ(date.value(), today);
  EXPECT_FALSE(check.checked());
  EXPECT_EQ(combo.listIndex(), -1);
  EXPECT_EQ(combo.text(), "");
  EXPECT_EQ(combo.items().size(), 1U);
  EXPECT_TRUE(list.items().empty());
  EXPECT_EQ(progress.value(), 0);
  EXPECT_EQ(label.caption(), "fica");
}

TEST_F(ControlsTest, TheRedOutlineGoesWithTheFirstChange) {
  TextBox box(screen, "txtNome");
  box.markWrong();
  EXPECT_TRUE(box.wrong());
  box.userType("M");
  EXPECT_FALSE(box.wrong());
}

TEST_F(ControlsTest, AComboChoosesByEntryAndAnswersTheNumberBehindIt) {
  ComboBox combo(screen, "cmbLogin");
  combo.addItem("MARIA", 7);
  combo.addItem("MARIANA", 9);
  EXPECT_EQ(combo.itemData(), 0);
  combo.userChoose(1);
  EXPECT_EQ(combo.itemData(), 9);
  EXPECT_EQ(combo.text(), "MARIANA");
  combo.setText("MAR");
  EXPECT_EQ(combo.listIndex(), -1);
  EXPECT_THROW(combo.setListIndex(2), Error);
}

TEST_F(ControlsTest, ACharacterThatBeginsNoEntryIsRefused) {
  ComboBox combo(screen, "cmbLogin");
  combo.addItem("MARIA", 7);
  combo.userKeyPress("m");
  combo.userKeyPress("x");
  EXPECT_EQ(combo.text(), "m");
  EXPECT_EQ(combo.selectionStart(), 1U);
}

TEST_F(ControlsTest, OnlyOneOptionOfAGroupIsChosen) {
  OptionButton first(screen, "optA", "A", 1), second(screen, "optB", "B", 1), other(screen, "optC", "C", 2);
  other.userClick();
  first.userClick();
  second.userClick();
  EXPECT_FALSE(first.chosen());
  EXPECT_TRUE(second.chosen());
  EXPECT_TRUE(other.chosen());
}

TEST_F(ControlsTest, TheArrowsGoRoundTheOptionsOfAGroup) {
  OptionButton first(screen, "optA", "A", 1), other(screen, "optC", "C", 2), second(screen, "optB", "B", 1),
      hidden(screen, "optD", "D", 1);
  hidden.setVisible(false);
  other.choose();
  first.setFocus();
  first.userMove(1);
  EXPECT_TRUE(second.chosen());
  EXPECT_TRUE(second.hasFocus());
  second.userMove(1);
  EXPECT_TRUE(first.chosen());
  first.userMove(-1);
  EXPECT_TRUE(second.chosen());
  EXPECT_TRUE(other.chosen());
  hidden.userMove(1);
  EXPECT_TRUE(second.chosen());
}

TEST_F(ControlsTest, ThePageSelectorRaisesItsChangeAlsoWhenTheRulesMoveIt) {
  PageScroll pages(screen, "scrPaginas");
  int changes = 0;
  pages.onChange = [&] { ++changes; };
  pages.setMaximum(3);
  pages.setValue(2);
  pages.setValue(2);
  EXPECT_EQ(changes, 1);
  pages.setMaximum(1);
  EXPECT_EQ(pages.value(), 1);
  EXPECT_EQ(changes, 2);
  EXPECT_THROW(pages.setValue(2), Error);
  pages.userMove(9);
  EXPECT_EQ(pages.value(), 1);
}

TEST_F(ControlsTest, AProgressBarRefusesAValueOutsideItsRange) {
  ProgressBar progress(screen, "pbBarrra");
  progress.setMaximum(10);
  EXPECT_THROW(progress.setValue(11), Error);
  progress.setValue(10);
  progress.setMaximum(4);
  EXPECT_EQ(progress.value(), 4);
}

TEST_F(ControlsTest, AListRowIsHeldAcrossARefillOnlyWeakly) {
  ListView list(screen, "lstLista", {{"Código"}, {"Nome"}});
  ListItemReference remembered = list.addItem("000001", "1");
  list.item(0)->setSubItem(1, "Varejo");
  EXPECT_EQ(list.item(0)->subItem(1), "Varejo");
  EXPECT_EQ(list.item(0)->subItem(9), "");
  list.clear();
  EXPECT_TRUE(remembered.expired());
}

TEST_F(ControlsTest, TheCursorPicksNothingAndAClickDoes) {
  ListView list(screen, "lstLista", {{"Código"}});
  list.addItem("000001", "1");
  list.addItem("000002", "2");
  std::vector<std::string> clicks;
  list.onMouseDown = [&](MouseButton button) { clicks.push_back(button == MouseButton::right ? "right" : "left"); };
  list.onItemClick = [&](const std::shared_ptr<ListItem>& item) { clicks.push_back(item->key()); };
  list.userMoveCursor(1);
  EXPECT_EQ(list.selectedItem()->key(), "000002");
  EXPECT_TRUE(clicks.empty());
  list.userClickRow(0, MouseButton::right);
  EXPECT_THAT(clicks, ElementsAre("right", "000001"));
}

TEST_F(ControlsTest, ARowMayComeWithAllItsCells) {
  ListView list(screen, "lstLista", {{"Código"}, {"Nome"}, {"Cidade"}});
  const auto row = list.addItem("000001", std::vector<std::string>{"1", "Varejo", "Santos"});
  EXPECT_EQ(row->text(), "1");
  EXPECT_EQ(row->subItemCount(), 2U);
  EXPECT_EQ(row->subItem(2), "Santos");
}

TEST_F(ControlsTest, TheRulesPutTheCursorOnARowOrOnTheLastOne) {
  ListView list(screen, "lstLista", {{"Código"}});
  list.onItemClick = [](const std::shared_ptr<ListItem>&) { FAIL() << "nothing is picked"; };
  list.moveCursor(0);
  EXPECT_EQ(list.selectedItem(), nullptr);
  for (const char* key : {"000001", "000002"}) list.addItem(key, key);
  list.moveCursor(0);
  EXPECT_EQ(list.selectedItem()->key(), "000001");
  list.moveCursor(7);
  EXPECT_EQ(list.selectedItem()->key(), "000002");
}

TEST_F(ControlsTest, SortingIsStableAndByTheTextOfTheCells) {
  ListView list(screen, "lstLista", {{"Código"}, {"Nome"}});
  for (const char* row : {"b1", "a1", "b2"}) list.addItem(row, row)->setSubItem(1, std::string(1, row[0]));
  list.sort(1, true, [](std::string_view a, std::string_view b) { return a.compare(b); });
  EXPECT_EQ(list.item(0)->key(), "a1");
  EXPECT_EQ(list.item(1)->key(), "b1");
  list.sort(1, false, [](std::string_view a, std::string_view b) { return a.compare(b); });
  EXPECT_EQ(list.item(0)->key(), "b1");
  EXPECT_EQ(list.item(2)->key(), "a1");
}

TEST_F(ControlsTest, ColumnWidthsCountFromOne) {
  ListView list(screen, "lstLista", {{"Código", 1000}, {"Nome", 5000}});
  list.setColumnWidth(2, 1440);
  EXPECT_EQ(list.columnWidth(2), 1440);
  try {
    list.setColumnWidth(3, 1);
    FAIL() << "no error";
  } catch (const Error& failure) {
    EXPECT_EQ(failure.number, 35600);
  }
}

TEST_F(ControlsTest, AnEntryBelowADisabledMenuCannotBeReached) {
  MenuBar menu(screen, "menu");
  int chosen = 0;
  menu.setItems({{"mnuCadastroS", "&Cadastros", {{"mnuCadClientes", "Clientes", {}, [&] { ++chosen; }, {}}}, {}, {}}});
  menu.userChoose("mnuCadClientes");
  menu.setItemEnabled("mnuCadastroS", false);
  EXPECT_FALSE(menu.reachable("mnuCadClientes"));
  menu.userChoose("mnuCadClientes");
  EXPECT_EQ(chosen, 1);
  EXPECT_THROW(menu.setItemEnabled("mnuOutra", true), Error);
}

TEST_F(ControlsTest, AToolbarButtonCountsItsPlaceWithTheSeparators) {
  ToolBar bar(screen, "Toolbar1", {{"a", "A", {}, {}}, {}, {"b", "B", {}, {}}});
  std::vector<std::string> keys;
  bar.onButtonClick = [&](const std::string& key) { keys.push_back(key); };
  bar.setItemEnabled(3, false);
  bar.userClick("a");
  bar.userClick("b");
  EXPECT_THAT(keys, ElementsAre("a"));
  EXPECT_THROW(bar.setItemEnabled(4, true), Error);
}

TEST_F(ControlsTest, ATreeTicksNodesOneByOne) {
  TreeView tree(screen, "trwMenu", true);
  tree.setNodes({{"c0", "Cadastros", "", "", false}, {"c1", "Nova Empresa", "c0", "", false}});
  tree.userCheck("c0", true);
  EXPECT_TRUE(tree.checked("c0"));
  EXPECT_FALSE(tree.checked("c1"));
  EXPECT_THROW(tree.setChecked("zz", true), Error);
}

TEST_F(ControlsTest, PatternsMatchFileNamesWithoutCase) {
  EXPECT_TRUE(matchesPattern("loja.mdb", "*.MDB"));
  EXPECT_TRUE(matchesPattern("Foto.JPG", "*.bmp;*.jpg"));
  EXPECT_TRUE(matchesPattern("README", "*.*"));
  EXPECT_FALSE(matchesPattern("loja.mdb.bak", "*.mdb"));
  EXPECT_FALSE(matchesPattern("loja.mdb", ""));
}

TEST_F(ControlsTest, FoldersAndFilesAreListedSortedAndFollowTheirPath) {
  const auto folder = std::filesystem::temp_directory_path() / ("fenvale-places-" + std::to_string(::getpid()));
  std::filesystem::create_directories(folder / "b");
  std::filesystem::create_directories(folder / "A");
  std::ofstream(folder / "Loja.MDB") << "x";
  std::ofstream(folder / "nota.txt") << "x";
  FolderTree tree(screen, "drvArvoreDiretorios");
  FileList files(screen, "flstLista", "*.mdb");
  tree.onChange = [&] { files.setPath(tree.path()); };
  tree.userChoose(folder.string() + "/");
  EXPECT_EQ(tree.path(), folder.string());
  EXPECT_THAT(tree.folders(), ElementsAre("A", "b"));
  EXPECT_THAT(files.files(), ElementsAre("Loja.MDB"));
  EXPECT_THROW(tree.setPath((folder / "nada").string()), Error);
  std::filesystem::remove_all(folder);
}

TEST_F(ControlsTest, TimersRunWhileTheTestsTimePasses) {
  Timer timer(screen, "tmpMensagem");
  int ticks = 0;
  timer.onTick = [&] { ++ticks; };
  host.show(screen);
  timer.setInterval(650);
  host.sleep(std::chrono::milliseconds(1300));
  timer.setInterval(0);
  host.sleep(std::chrono::milliseconds(1300));
  EXPECT_EQ(ticks, 2);
}

}  // namespace
}  // namespace fenvale
