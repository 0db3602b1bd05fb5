#pragma once
// What every screen of the system starts from: the program's objects and the message boxes with the house title.

#include <string>

#include "platform/base/Error.h"
#include "platform/ui/Screen.h"
#include "platform/ui/UiHost.h"

namespace fenvale {

class Contexto;

/// The title of every box that is not told otherwise.
inline constexpr const char* sTituloCaixas = "Norvane Sistemas";

/// The boxes of the system over a host; services that speak to the user use it too.
class Caixas {
 public:
  explicit Caixas(UiHost& host) : host_(host) {}
  void avisar(std::string sTexto, std::string sTitulo = sTituloCaixas) const;    ///< exclamation: a wrong entry
  void informar(std::string sTexto, std::string sTitulo = sTituloCaixas) const;  ///< information: success
  void criticar(std::string sTexto, std::string sTitulo = sTituloCaixas) const;  ///< critical: a failure
  /// Yes or no; true for yes.
  bool perguntar(std::string sTexto, BoxStyle estilo = BoxStyle::question, std::string sTitulo = sTituloCaixas) const;

 private:
  UiHost& host_;
};

/// "Os dados informados já existem no sistema." with the store's own sentence below it, and its kin.
std::string sTextoRecusa(const std::string& sFrase, const Error& falha);

class Tela : public Screen, protected Caixas {
 public:
  Tela(Contexto& contexto, std::string sNome, ScreenStyle estilo = ScreenStyle::dialog);

 protected:
  Contexto& contexto() const { return contexto_; }
  /// Tells a wrong entry and puts the focus, with the red outline, on the control in question. Answers false.
  bool recusar(std::string sTexto, Control& control) const;
  /// To the failure reporter, under this screen's name. With the option 2 the program goes on.
  void vRegistrarFalha(const Error& falha, const char* sProcedimento, int iOpcao = 1) const;
  /// Centres and shows another screen modally.
  void vMostrarFormModal(std::string_view sTela) const;
  void vMostrarFormModal(Screen& tela) const;
  /// Enter moves on like Tab. True when the key was Enter.
  bool bTestarTecla(Key tecla);

 private:
  Contexto& contexto_;
};

}  // namespace fenvale
