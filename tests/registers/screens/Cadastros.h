#pragma once
// A program with a company open and the screens of the registers, as their tests need it.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "access/services/Permissoes.h"
#include "platform/base/Text.h"
#include "platform/sql/Store.h"
#include "platform/ui/Boxes.h"
#include "platform/ui/Choices.h"
#include "platform/ui/ListView.h"
#include "platform/ui/test/TestHost.h"
#include "registers/screens/TelaCadastro.h"
#include "shell/services/Telas.h"
#include "store/services/ConfiguracoesPrograma.h"
#include "support/Caixas.h"
#include "support/Gestos.h"
#include "support/ProgramaDeTeste.h"

namespace fenvale {

class Cadastros : public testing::Test {
 protected:
  Cadastros();
  void TearDown() override { host.verify(); }

  void executar(const std::string& sSQL) { programa.executar(sSQL); }
  /// Rows of a query, the fields joined by "|".
  std::vector<std::string> linhas(const std::string& sSQL);
  std::string valor(const std::string& sSQL);
  /// The key of a new row.
  std::int32_t inserir(const std::string& sTabela, const std::string& sColunas, const std::string& sValores);

  /// What the store says when it refuses the statement; a statement that it takes fails the test.
  std::string recusaDoBanco(const std::string& sSQL);

  /// Opens a screen as the main window does, and leaves it open.
  Screen& abrir(const std::string& sTela);
  TelaCadastro& abrirCadastro(const std::string& sTela) { return dynamic_cast<TelaCadastro&>(abrir(sTela)); }
  void fechar(Screen& tela) { tela.unload(); }

  TextControl& caixa(Screen& tela, const std::string& sNome);
  Button& botao(Screen& tela, const std::string& sNome);
  /// Rows of the screen's list, the cells joined by "|".
  static std::vector<std::string> listados(ListView& lst);

  /// The form as it is declared: "[caption]" of every tab, and for each field its label, name and limit (a text's
  /// length, a code's highest number, a mask), with the buttons beside it.
  static std::vector<std::string> formularioDe(const Screen& tela);
  static std::vector<std::string> cabecalhos(const ListView& lst);
  /// What the last failure report tells; empty when there is none.
  std::string relato();

  void tamanhoDaPagina(std::int32_t lTamanho) { programa.configuracoes().vSetTamanhoPagina(lTamanho); }
  /// Signs in a user who has all rights but one ("bPoderExcluir").
  void entrarSem(const std::string& sDireito);

  /// Salespeople with the codes 1 to `iQuantos` and the names "Vendedor 001" and so on.
  void vendedores(int iQuantos);
  /// One customer and one supplier with an invoice each, and a row of every register that they refer to.
  void programaComFatura();
  std::int32_t cidade(const std::string& sNome, const std::string& sUF);

  ProgramaDeTeste programa;
  TestHost& host;

 private:
  int iUsuarios_ = 0;
};

}  // namespace fenvale
