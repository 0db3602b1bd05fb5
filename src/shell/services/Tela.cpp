#include "shell/services/Tela.h"

#include "platform/base/Text.h"
#include "platform/ui/Control.h"
#include "shell/services/Contexto.h"
#include "shell/services/Funcoes.h"
#include "shell/services/TratadorExcessoes.h"

namespace fenvale {

void Caixas::avisar(std::string sTexto, std::string sTitulo) const {
  host_.messageBox({BoxStyle::exclamation, BoxButtons::ok, std::move(sTitulo), std::move(sTexto)});
}

void Caixas::informar(std::string sTexto, std::string sTitulo) const {
  host_.messageBox({BoxStyle::information, BoxButtons::ok, std::move(sTitulo), std::move(sTexto)});
}

void Caixas::criticar(std::string sTexto, std::string sTitulo) const {
  host_.messageBox({BoxStyle::critical, BoxButtons::ok, std::move(sTitulo), std::move(sTexto)});
}

bool Caixas::perguntar(std::string sTexto, BoxStyle estilo, std::string sTitulo) const {
  return host_.messageBox({estilo, BoxButtons::yesNo, std::move(sTitulo), std::move(sTexto)}) == BoxAnswer::yes;
}

std::string sTextoRecusa(const std::string& sFrase, const Error& falha) {
  const std::string quebras = std::string(lineBreak) + std::string(lineBreak);
  return sFrase + quebras + "Informação detalhada: " + quebras + falha.description;
}

Tela::Tela(Contexto& contexto, std::string sNome, ScreenStyle estilo)
    : Screen(contexto.host(), std::move(sNome), estilo), Caixas(contexto.host()), contexto_(contexto) {}

bool Tela::recusar(std::string sTexto, Control& control) const {
  avisar(std::move(sTexto));
  control.setFocus();
  control.markWrong();
  return false;
}

void Tela::vRegistrarFalha(const Error& falha, const char* sProcedimento, int iOpcao) const {
  contexto_.tratadorExcessoes().vExibirGravarLogErro(falha, sGetName(), sProcedimento, iOpcao);
}

void Tela::vMostrarFormModal(std::string_view sTela) const { Funcoes(contexto_).vMostrarFormModal(sTela); }
void Tela::vMostrarFormModal(Screen& tela) const { Funcoes(contexto_).vMostrarFormModal(tela); }

bool Tela::bTestarTecla(Key tecla) {
  if (tecla != Key::enter) return false;
  focusNext();
  return true;
}

}  // namespace fenvale
