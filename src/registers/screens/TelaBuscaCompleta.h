#pragma once
// The full search: it narrows the list of the register that opened it, by a clause built from its boxes. It stays open
// for a further search over the list it has just refilled.

#include <functional>
#include <string>
#include <vector>

#include "platform/ui/Boxes.h"
#include "platform/ui/Choices.h"
#include "shell/services/Tela.h"
#include "shell/services/TelaComLista.h"

namespace fenvale {

/// One condition of a clause ("btCodigoInf = 12 "); empty when its box asks for nothing.
using Criterio = std::function<std::string()>;

/// The conditions that ask for something as a clause: "WHERE " the first "AND " the next; empty when none does.
std::string sClausula(const std::vector<Criterio>& criterios);

/// "MID(<campo>, 1, <n>) = '<text>' " of a box: a match of the beginning, which an empty box always is.
std::string sPrefixo(const std::string& sCampo, const TextControl& caixa);
/// That, when the box is not empty.
Criterio prefixo(std::string sCampo, const TextControl& caixa);
/// "<campo> = <text> " when the box is not empty.
Criterio igual(std::string sCampo, const TextControl& caixa);
/// "<campo> = <n> " when the number is above 0.
Criterio acimaDeZero(std::string sCampo, const NumberBox& caixa);
/// "<campo> = <n> " when a key was chosen.
Criterio chave(std::string sCampo, std::function<std::int32_t()> lChave);
/// "<campo> BETWEEN #<inicial># AND #<final># " when the check box is on.
Criterio periodo(std::string sCampo, const CheckBox& chk, const DatePicker& dtInicial, const DatePicker& dtFinal);

class TelaBuscaCompleta : public Tela, public TelaBusca {
 public:
  Button cmdLocalizar{*this, "cmdLocalizar", "Localizar", "localizar", Key::f6};
  Button cmdFechar{*this, "cmdFechar", "Fechar", "fechar", Key::escape};

  void vLocalizar(Screen& chamador) override;
  void cmdLocalizar_Click();
  /// What the boxes ask for.
  std::string sClausula() const { return fenvale::sClausula(criterios_); }

 protected:
  TelaBuscaCompleta(Contexto& contexto, std::string sNome, std::string sLegenda);

  void vSetCriterios(std::vector<Criterio> criterios) { criterios_ = std::move(criterios); }
  void vMontarTela(std::vector<LayoutNode> formulario);
  bool onKeyDown(Key tecla) override;
  /// The search was asked for and is about to show: it searches once, its boxes being empty.
  virtual void vAoAbrir() { cmdLocalizar_Click(); }

 private:
  std::vector<Criterio> criterios_;
  Screen* chamador_ = nullptr;
};

}  // namespace fenvale
