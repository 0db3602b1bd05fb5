#pragma once
// How the list of a screen is to be printed: where to, how wide its columns, under which title.

#include "platform/ui/Boxes.h"
#include "platform/ui/Choices.h"
#include "reports/services/OpcoesImpressaoList.h"
#include "shell/services/Funcoes.h"
#include "shell/services/Tela.h"
#include "shell/services/TelasDeApoio.h"

namespace fenvale {

class frmOpcoesRelList final : public Tela, public OpcoesRelatorioLista {
 public:
  explicit frmOpcoesRelList(Contexto& contexto);

  void vCarregar(const std::string& sTitulo, std::int16_t iColunas, ListView& lst) override;
  /// The options as a whole; what the screen shows at its start follows them.
  void vSetOpcoes(const OpcoesImpressaoList& opcoes);

  ComboBox cmbSaida{*this, "cmbSaida"};
  ComboBox cmbOpcaoDimensionamento{*this, "cmbOpcaoDimensionamento"};
  TextBox txtTitulo{*this, "txtTitulo"};
  ComboBox cmbColunas{*this, "cmbColunas"};
  Button cmdEmitir{*this, "cmdEmitir", "Imprimir", "imprimir", Key::f5};
  Button cmdFechar{*this, "cmdFechar", "Fechar", "fechar", Key::escape};

 protected:
  void onLoad() override;
  bool onUnload() override;
  bool onKeyDown(Key tecla) override;

 private:
  void cmdEmitir_Click();
  void cmbColunas_LostFocus();
  void cmbOpcaoDimensionamento_LostFocus();
  void vLembrarSaida();
  std::string sCaminhoSaida() const;
  std::int16_t iColunasEscolhidas() const;

  Funcoes funcoes_;
  OpcoesImpressaoList opcoes_;
};

}  // namespace fenvale
