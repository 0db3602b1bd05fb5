#pragma once
// What the screens of the firm's own data and of a company's data share: the boxes of name and address with their
// limits, masks, columns and checks, told once, and the two commands with their keys.

#include <string>
#include <vector>

#include "platform/ui/Boxes.h"
#include "platform/ui/Choices.h"
#include "platform/ui/Layout.h"
#include "registers/services/CampoCidade.h"
#include "shell/services/ComandosSQL.h"
#include "shell/services/Tela.h"

namespace fenvale {

class Recordset;

class TelaFirma : public Tela {
 public:
  TextBox txtNome{*this, "txtNome", 150};
  TextBox txtEndereco{*this, "txtEndereco", 150};
  TextBox txtBairro{*this, "txtBairro", 150};
  MaskBox txtCEP{*this, "txtCEP", masks::cep};
  CampoCidade campoCidade;
  MaskBox txtCNPJ{*this, "txtCNPJ", masks::cnpj};
  MaskBox txtTelefone{*this, "txtTelefone", masks::telefone};
  MaskBox txtFax{*this, "txtFax", masks::telefone};
  TextBox txtEMail{*this, "txtEMail", 255};
  Button cmdSalvar{*this, "cmdSalvar", "Salvar", "salvar", Key::f3};
  Button cmdFechar{*this, "cmdFechar", "Fechar", "fechar", Key::escape};

 protected:
  /// A column of the row and the box that shows it; without a box it is the code of the city.
  struct Campo {
    const char* sColuna;
    TextControl* caixa;
  };

  /// `bEmpresa`: the cities are those of the open company, else the program's.
  TelaFirma(Contexto& contexto, std::string sNome, bool bEmpresa);

  bool onKeyDown(Key tecla) override;
  virtual void cmdSalvar_Click() = 0;

  /// The boxes in their four rows; `aposCEP` stands behind the CEP.
  std::vector<LayoutNode> linhasFirma(std::vector<LayoutNode> aposCEP);
  /// Texts that only one of the screens has, written behind the firm's own.
  void vIncluirCampos(const std::vector<Campo>& outros);
  /// From a row with the columns of the boxes and those of the city.
  void vMostrarFirma(const Recordset& rs);
  ValoresSQL valoresFirma() const;

  // Each tells what is wrong, puts the focus on the box and answers false. A number or an address may be missing.
  bool bVerificarNome();
  bool bVerificarCNPJ();
  bool bVerificarEMail();
  bool bVerificarCidade();
  /// Whether the user goes on with what is not valid.
  bool bConfirmar(bool bValido, const char* sPergunta, Control& caixa);

 private:
  std::vector<Campo> campos_;
};

}  // namespace fenvale
