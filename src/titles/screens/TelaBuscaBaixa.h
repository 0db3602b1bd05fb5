#pragma once
// The searches for settlement: the open titles of a side in a list of their own, of which two clicks hand one to the
// title screen.

#include <memory>

#include "registers/screens/TelaEscolha.h"
#include "titles/screens/FormularioBusca.h"

namespace fenvale {

struct DescricaoBuscaBaixa {
  const Lado& lado;
  /// Hands the row over; Error 438 when the caller cannot take it.
  void (*vEntregar)(Screen& chamador, const ListItem& item);
};

const std::vector<DescricaoBuscaBaixa>& buscasBaixa();

class TelaBuscaBaixa final : public TelaEscolha, public TelaBusca, public FormularioBuscaTitulos {
 public:
  TelaBuscaBaixa(Contexto& contexto, const DescricaoBuscaBaixa& descricao);

  Button cmdEmitir{*this, "cmdEmitir", "Imprimir", "imprimir", Key::f5};
  const std::unique_ptr<TextBox> txtFilial;  ///< on the side with branches; nothing is asked for by it

  void vLocalizar(Screen& chamador) override;
  std::string sConsulta() const override;

 protected:
  void onLoad() override;
  void vEscolher(std::int32_t lChave) override;

 private:
  const DescricaoBuscaBaixa& descricao_;
  Screen* chamador_ = nullptr;
};

}  // namespace fenvale
