#pragma once
// The data of the company that is open: one row, replaced whole at each save.

#include "platform/ui/Boxes.h"
#include "platform/ui/Choices.h"
#include "registers/services/CampoCidade.h"
#include "shell/services/Tela.h"

namespace fenvale {

class frmEmpresa final : public Tela {
 public:
  explicit frmEmpresa(Contexto& contexto);

  TextBox txtNome{*this, "txtNome", 150};
  TextBox txtEndereco{*this, "txtEndereco", 150};
  TextBox txtBairro{*this, "txtBairro", 150};
  MaskBox txtCEP{*this, "txtCEP", masks::cep};
  CampoCidade campoCidade;
  MaskBox txtTelefone{*this, "txtTelefone", masks::telefone};
  MaskBox txtFax{*this, "txtFax", masks::telefone};
  TextBox txtEMail{*this, "txtEMail", 255};
  MaskBox txtCNPJ{*this, "txtCNPJ", masks::cnpj};
  MaskBox txtCPF{*this, "txtCPF", masks::cpf};
  TextBox txtCaminhoFigura{*this, "txtCaminhoFigura"};
  TextBox txtFiguraPromissoria{*this, "txtFiguraPromissoria"};
  Button cmdLocalizarLogotipo{*this, "cmdLocalizarLogotipo", "", "lupa"};
  Button cmdLocalizarImagemPromissoria{*this, "cmdLocalizarImagemPromissoria", "", "lupa"};
  Button cmdSalvar{*this, "cmdSalvar", "Salvar", "salvar", Key::f3};
  Button cmdFechar{*this, "cmdFechar", "Fechar", "fechar", Key::escape};

 protected:
  void onLoad() override;
  bool onKeyDown(Key tecla) override;

 private:
  struct Campo {
    const char* sColuna;
    TextControl* caixa;
  };
  std::vector<Campo> campos();
  void vLocalizarFigura(TextBox& destino);
  bool bVerificarDados();
  void cmdSalvar_Click();
};

}  // namespace fenvale
