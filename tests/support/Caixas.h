#pragma once
// The boxes of the system with the house title, for the expectations of a test.

#include <string>

#include "platform/ui/UiHost.h"

namespace fenvale {

inline MessageBox aviso(std::string texto, std::string titulo = "Norvane Sistemas") {
  return {BoxStyle::exclamation, BoxButtons::ok, std::move(titulo), std::move(texto)};
}
inline MessageBox informacao(std::string texto, std::string titulo = "Norvane Sistemas") {
  return {BoxStyle::information, BoxButtons::ok, std::move(titulo), std::move(texto)};
}
inline MessageBox critica(std::string texto, std::string titulo = "Norvane Sistemas") {
  return {BoxStyle::critical, BoxButtons::ok, std::move(titulo), std::move(texto)};
}
/// Yes or no.
inline MessageBox pergunta(std::string texto, std::string titulo = "Norvane Sistemas") {
  return {BoxStyle::question, BoxButtons::yesNo, std::move(titulo), std::move(texto)};
}
/// The permission query's refusal.
inline MessageBox semPermissao() {
  return aviso("Você não tem permissão para realizar esta operação.", "Controle de Ações de Usuários");
}
/// The question at the end of every failure report.
inline MessageBox relatoDeFalha() {
  return pergunta(
      "Ocorreu um erro no sistema.\r\n\r\nDeseja enviar um relatório dos erros?\r\n\r\n"
      "Se o problema persistir, contate o suporte técnico.",
      "Gestor Fenvale - Versão ZENIT - Erro");
}

}  // namespace fenvale
