// What a place on a screen writes into a statement, and what it makes of a list's cell.

#include "registers/services/Ligacao.h"

#include <gtest/gtest.h>

#include "platform/base/Error.h"
#include "platform/ui/Boxes.h"
#include "platform/ui/Choices.h"
#include "platform/ui/Screen.h"
#include "platform/ui/test/TestHost.h"

namespace fenvale {
namespace {

struct Formulario : Screen {
  explicit Formulario(UiHost& quem) : Screen(quem, "frmFormulario") {}
  CodeBox txtCodigo{*this, "txtCodigo"};
  NumberBox txtNumero{*this, "txtNumero"};
  TextBox txtNome{*this, "txtNome"};
  MaskBox txtCEP{*this, "txtCEP", masks::cep};
  LookupBox txtCidade{*this, "txtCidade"};
  MoneyBox txtValor{*this, "txtValor"};
  DatePicker dtDia{*this, "dtDia"};
  CheckBox chkEntrada{*this, "chkEntrada", "Com entrada"};
  std::int32_t lChave = -1;
};

class Ligacoes : public testing::Test {
 protected:
  static std::int32_t numeroDa(const std::function<void()>& acao) {
    try {
      acao();
    } catch (const Error& falha) {
      return falha.number;
    }
    return 0;
  }
  const Date hoje = makeDate(2026, 5, 10);
  TestHost host;
  Formulario tela{host};
};

TEST_F(Ligacoes, LiteralsByKindOfPlace) {
  tela.txtCodigo.setText("12");
  tela.txtNome.setText("D'Ávila  ");
  tela.txtCEP.setText("13450-000");
  tela.txtCidade.setText("Santa Bárbara d'Oeste");
  tela.txtValor.setValue(Currency::fromDecimal("1234.5"));
  tela.dtDia.setValue(makeDate(2026, 3, 5));
  tela.lChave = 7;
  EXPECT_EQ(Ligacao(tela.txtCodigo).sLiteral(), "12");
  EXPECT_EQ(Ligacao(tela.txtNome).sLiteral(), "'D''Ávila'");
  EXPECT_EQ(Ligacao(tela.txtCEP).sLiteral(), "'13450-000'");
  EXPECT_EQ(Ligacao(tela.txtCidade).sLiteral(), "'Santa Bárbara d''Oeste'");
  EXPECT_EQ(Ligacao(tela.txtValor).sLiteral(), "1234.5");
  EXPECT_EQ(Ligacao(tela.dtDia).sLiteral(), "#03/05/2026#");
  EXPECT_EQ(Ligacao(tela.chkEntrada).sLiteral(), "0");
  tela.chkEntrada.setChecked(true);
  EXPECT_EQ(Ligacao(tela.chkEntrada).sLiteral(), "-1");
  EXPECT_EQ(Ligacao(tela.lChave).sLiteral(), "7");
  EXPECT_EQ(Ligacao(std::function<std::int32_t()>([] { return 9; })).sLiteral(), "9");
}

TEST_F(Ligacoes, AnEmptyNumberIsZeroAndAnEmptyTextIsEmpty) {
  EXPECT_EQ(Ligacao(tela.txtCodigo).sLiteral(), "0");
  EXPECT_EQ(Ligacao(tela.txtNumero).sLiteral(), "0");
  EXPECT_EQ(Ligacao(tela.txtNome).sLiteral(), "''");
}

TEST_F(Ligacoes, CellsAreReadAsTheyAreShown) {
  Ligacao(tela.txtNome).vCarregar("Norte", hoje);
  Ligacao(tela.txtValor).vCarregar("1.234,50", hoje);
  Ligacao(tela.dtDia).vCarregar("05/03/2026", hoje);
  Ligacao(tela.chkEntrada).vCarregar("Sim", hoje);
  Ligacao(tela.lChave).vCarregar("42", hoje);
  Ligacao().vCarregar("nada", hoje);
  EXPECT_EQ(tela.txtNome.text(), "Norte");
  EXPECT_EQ(tela.txtValor.value(), Currency::fromDecimal("1234.5"));
  EXPECT_EQ(tela.dtDia.value(), makeDate(2026, 3, 5));
  EXPECT_TRUE(tela.chkEntrada.checked());
  EXPECT_EQ(tela.lChave, 42);
  Ligacao(tela.chkEntrada).vCarregar("Não", hoje);
  EXPECT_FALSE(tela.chkEntrada.checked());
}

TEST_F(Ligacoes, ACellOfAnotherKindIsRefused) {
  EXPECT_EQ(numeroDa([&] { Ligacao(tela.dtDia).vCarregar("32/01/2026", hoje); }), errors::typeMismatch);
  EXPECT_EQ(numeroDa([&] { Ligacao(tela.txtValor).vCarregar("muito", hoje); }), errors::typeMismatch);
}

TEST_F(Ligacoes, AnEmptyCellEmptiesItsPlaceAndADayBecomesToday) {
  tela.txtNome.setText("Norte");
  tela.txtValor.setValue(Currency::fromDecimal("10"));
  tela.dtDia.setValue(makeDate(1975, 8, 12));
  tela.chkEntrada.setChecked(true);
  Ligacao(tela.txtNome).vCarregar("", hoje);
  Ligacao(tela.txtValor).vCarregar("", hoje);
  Ligacao(tela.dtDia).vCarregar("", hoje);
  Ligacao(tela.chkEntrada).vCarregar("", hoje);
  EXPECT_EQ(tela.txtNome.text(), "");
  EXPECT_EQ(tela.txtValor.value(), Currency());
  EXPECT_EQ(tela.dtDia.value(), hoje);
  EXPECT_FALSE(tela.chkEntrada.checked());
}

TEST_F(Ligacoes, OnlyATextWithoutACharacterIsEmpty) {
  EXPECT_TRUE(Ligacao(tela.txtNome).bVazio());
  tela.txtNome.setText(" ");
  EXPECT_FALSE(Ligacao(tela.txtNome).bVazio());
  EXPECT_FALSE(Ligacao(tela.txtValor).bVazio());
  EXPECT_EQ(Ligacao(tela.txtNome).controle(), &tela.txtNome);
  EXPECT_EQ(Ligacao(tela.lChave).controle(), nullptr);
  EXPECT_EQ(Ligacao().controle(), nullptr);
}

}  // namespace
}  // namespace fenvale
