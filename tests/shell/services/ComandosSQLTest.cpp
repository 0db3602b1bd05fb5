#include "shell/services/ComandosSQL.h"

#include <gtest/gtest.h>

namespace fenvale {
namespace {

const ValoresSQL valores{{"lNumeroFatura", "7"}, {"dtEmissao", "#03/01/2026#"}};

TEST(ComandosSQL, ARowIsInserted) {
  EXPECT_EQ(sComandoInclusao("FaturasCliente", valores),
            "INSERT INTO FaturasCliente (lNumeroFatura, dtEmissao) VALUES (7, #03/01/2026#)");
}

TEST(ComandosSQL, OneRowIsUpdatedByItsKey) {
  EXPECT_EQ(sComandoAlteracao("FaturasCliente", valores, 3),
            "UPDATE FaturasCliente SET lNumeroFatura = 7, dtEmissao = #03/01/2026# WHERE lCodigo = 3");
}

TEST(ComandosSQL, ATableOfOneRowIsUpdatedWithoutAKey) {
  EXPECT_EQ(sComandoAlteracao("Sistema", {{"sNome", sTextoSQL("Loja")}}), "UPDATE Sistema SET sNome = 'Loja'");
}

TEST(ComandosSQL, ATextKeepsItsApostrophesAndLosesTheBlanksAtItsEnd) {
  EXPECT_EQ(sTextoSQL("Rua d'Oeste  "), "'Rua d''Oeste'");
  EXPECT_EQ(sTextoSQL(""), "''");
}

TEST(ComandosSQL, YesIsMinusOne) {
  EXPECT_EQ(sLogicoSQL(true), "-1");
  EXPECT_EQ(sLogicoSQL(false), "0");
}

}  // namespace
}  // namespace fenvale
