#pragma once
// Purges the titles that were settled in a period, and the invoices that are left with no titles.

#include <string>

#include "platform/ui/Boxes.h"
#include "platform/ui/Choices.h"
#include "shell/services/Funcoes.h"
#include "shell/services/Tela.h"
#include "titles/screens/Transacao.h"
#include "titles/services/ZeramentoTitulos.h"

namespace fenvale {

class frmZerarTitulos final : public Tela {
 public:
  explicit frmZerarTitulos(Contexto& contexto);

  OptionButton optPagosRecebidos{*this, "optPagosRecebidos", "Pagos e recebidos"};
  OptionButton optRecebidos{*this, "optRecebidos", "Recebidos"};
  OptionButton optPagos{*this, "optPagos", "Pagos"};
  DatePicker dtInicial{*this, "dtInicial"};
  DatePicker dtFinal{*this, "dtFinal"};
  ProgressBar pbBarrra{*this, "pbBarrra"};
  Button cmdSalvar{*this, "cmdSalvar", "Apagar", "excluir", Key::f3};
  Button cmdFechar{*this, "cmdFechar", "Fechar", "fechar", Key::escape};

 protected:
  void onLoad() override;
  /// Stays open while it works.
  bool onUnload() override { return !bTrabalhando_; }
  bool onKeyDown(Key tecla) override;

 private:
  void cmdSalvar_Click();
  ZeramentoTitulos::Escolha escolha() const;
  std::string sPergunta() const;
  void vZerar();
  void vMostrarProgresso(std::int32_t lVistas, std::int32_t lFaturas);

  Funcoes funcoes_;
  Transacao transacao_;
  bool bTrabalhando_ = false;
};

}  // namespace fenvale
