#pragma once
// A search screen that lists the rows whose name begins with the text typed and takes the one that is clicked. Told by
// its columns, its statement and what a pick does.

#include "platform/ui/Boxes.h"
#include "registers/services/TelaPaginada.h"

namespace fenvale {

class TelaBuscaLista : public TelaPaginada {
 public:
  TextBox txtNome{*this, "txtNome", 255};
  Button cmdLocalizar{*this, "cmdLocalizar", "Localizar", "localizar", Key::f6};
  Button cmdEmitir{*this, "cmdEmitir", "Imprimir", "imprimir", Key::f5};
  Button cmdFechar{*this, "cmdFechar", "Fechar", "fechar", Key::escape};

 protected:
  /// `sTituloImpressao` heads the list when it is printed.
  TelaBuscaLista(Contexto& contexto, std::string sNome, std::string sTituloImpressao);

  /// The statement of the list. `sPrefixo` is the condition "Mid$(<field>, 1, <n>) = '<text>' ", empty without a text.
  virtual std::string sConsulta(const std::string& sPrefixo) const = 0;
  /// The column that the text typed is compared with.
  virtual std::string sCampoNome() const = 0;
  /// A row was clicked.
  virtual void vEscolher(std::int32_t lCodigo) = 0;

  /// Searches once with the box empty and shows the screen modally.
  void vBuscarEMostrar();

  void onLoad() override;
  void vMostrarAPartirDe(std::int16_t iInicio) override;
  void vClicarLinha(const std::shared_ptr<ListItem>& item) override;

 private:
  void cmdLocalizar_Click();
};

}  // namespace fenvale
