#pragma once
// A picker: a small list in which two clicks on the same row, at any distance in time, pick it.

#include <string>

#include "platform/ui/Boxes.h"
#include "registers/services/TelaPaginada.h"

namespace fenvale {

class TelaEscolha : public TelaPaginada {
 public:
  Button cmdLocalizar{*this, "cmdLocalizar", "Localizar", "localizar", Key::f6};
  Button cmdFechar{*this, "cmdFechar", "Fechar", "fechar", Key::escape};

  void cmdLocalizar_Click();
  /// The query of the list, from what the boxes ask for.
  virtual std::string sConsulta() const = 0;

 protected:
  TelaEscolha(Contexto& contexto, std::string sNome, std::string sLegenda);

  /// Searches once and shows itself modally.
  void vAbrir();
  /// The row with that key was picked; the screen closes afterwards.
  virtual void vEscolher(std::int32_t lChave) = 0;

  void vMontarTela(std::vector<LayoutNode> formulario, const std::vector<Control*>& comandos);
  void onLoad() override;
  void vMostrarAPartirDe(std::int16_t iInicio) override;
  void vClicarLinha(const std::shared_ptr<ListItem>& item) override;
  const char* sNomeInserir() const override { return "vInserirList"; }

 private:
  void vMontarLista(std::int16_t iInicio);
};

}  // namespace fenvale
