#pragma once
// The registers of customers and suppliers, as the tests of both need them.

#include <string>
#include <vector>

#include "Cadastros.h"
#include "registers/screens/FormularioPessoa.h"
#include "registers/services/Cidade.h"
#include "shell/services/TelasDeApoio.h"

namespace fenvale {

class Pessoas : public Cadastros {
 protected:
  Pessoas();

  static FormularioPessoa& formulario(Screen& tela) { return dynamic_cast<FormularioPessoa&>(tela); }

  /// Space in a city box, and that city picked.
  void escolherCidade(TextControl& caixaCidade, const std::string& sNome);
  /// What nobody is stored without: a name and a city, and for a supplier a category and a bank.
  void preencher(Screen& tela, const std::string& sNome);
  void salvar(TelaCadastro& tela);
  /// Typed and stored in its register, which is closed again; the key.
  std::int32_t cadastrar(const std::string& sTela, int iCodigo, const std::string& sNome);
  /// Of a category "Atacado" with the code 3, made when it is asked for first.
  std::int32_t lAtacado();
  /// Puts a screen in the place of the titles that notes down what it is asked to list.
  void fingirTitulos(const std::string& sTela);

  std::int32_t lCampinas = 0, lSantaBarbara = 0;
  std::string sCidadeEscolhida;
  std::vector<std::string> pedidas;  ///< "0|WHERE ..."

 private:
  std::int32_t lAtacado_ = -1;
};

}  // namespace fenvale
