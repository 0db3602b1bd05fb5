#pragma once
// The people who use the system: name, login, password, five action rights and one right per menu entry. On the first
// run it makes the administrator, and there is no way past it but out of the program.

#include <array>
#include <cstdint>
#include <string>

#include "platform/ui/Boxes.h"
#include "platform/ui/Choices.h"
#include "platform/ui/TreeView.h"
#include "shell/services/Funcoes.h"
#include "shell/services/Tela.h"

namespace fenvale {

class Recordset;

class frmCadastroUsuarios final : public Tela {
 public:
  explicit frmCadastroUsuarios(Contexto& contexto);

  TextBox txtCodigo{*this, "txtCodigo"};
  TextBox txtNome{*this, "txtNome", 60};
  TextBox txtLogin{*this, "txtLogin", 20};
  TextBox txtSenha{*this, "txtSenha", 255, TextBox::Style::password};
  TextBox txtConfirma{*this, "txtConfirma", 255, TextBox::Style::password};
  CheckBox chkSalvar{*this, "chkSalvar", "Salvar"};
  CheckBox chkExcluir{*this, "chkExcluir", "Excluir"};
  CheckBox chkPesquisar{*this, "chkPesquisar", "Pesquisar"};
  CheckBox chkImprimir{*this, "chkImprimir", "Imprimir"};
  CheckBox chkAtualizar{*this, "chkAtualizar", "Atualizar"};
  TreeView trwMenu{*this, "trwMenu", true};
  Button cmdNovo{*this, "cmdNovo", "Novo", "novo", Key::f2};
  Button cmdSalvar{*this, "cmdSalvar", "Salvar", "salvar", Key::f3};
  Button cmdExcluir{*this, "cmdExcluir", "Excluir", "excluir", Key::f4};
  Button cmdLocalizar{*this, "cmdLocalizar", "Localizar", "localizar", Key::f6};
  Button cmdFechar{*this, "cmdFechar", "Fechar", "fechar", Key::escape};

 protected:
  void onLoad() override;
  bool onUnload() override;
  bool onKeyDown(Key tecla) override;

 private:
  struct Direito {
    CheckBox* caixa;
    const char* sCampo;
  };

  void cmdNovo_Click();
  void cmdSalvar_Click();
  void cmdExcluir_Click();
  void cmdLocalizar_Click();

  void vMontarArvore();
  void vIniciarPrimeiroUso();
  void vCarregarCampos(std::int32_t lCodigo);
  void vLimpar();
  bool bVerificarDados();
  bool bTestarPreenchimento();
  std::int32_t lGravarUsuario();
  void vGravarMenu(std::int32_t lCodigo);
  bool bHaUsuarios() const;
  void vExecutar(const std::string& sSQL) const;

  std::array<Direito, 5> direitos_;
  Funcoes funcoes_;
  bool bPrimeiroUso_ = false;
};

}  // namespace fenvale
