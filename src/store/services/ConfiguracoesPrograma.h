#pragma once
// The state of lists that all screens share, for the life of the run.

#include <cstdint>

namespace fenvale {

class ConfiguracoesPrograma {
 public:
  /// The key of the list row that was clicked last, on any screen.
  void vSetClickAnterior(std::int32_t lValor) { lClickAnterior = lValor; }
  std::int32_t lGetClickAnterior() const { return lClickAnterior; }
  /// Rows per page; 0 means not yet read.
  void vSetTamanhoPagina(std::int32_t lValor) { lTamanhoPagina = lValor; }
  std::int32_t lGetTamanhoPagina() const { return lTamanhoPagina; }
  /// False while a page is being filled, so that the page selector's own change event does nothing.
  void vSetMostrarNovaPagina(bool bValor) { bMostrarNovaPagina = bValor; }
  bool bGetMostrarNovaPagina() const { return bMostrarNovaPagina; }
  void vSetUltimaBuscaFiltrada(bool bValor) { bUltimaBuscaFiltrada = bValor; }
  bool bGetUltimaBuscaFiltrada() const { return bUltimaBuscaFiltrada; }

 private:
  std::int32_t lClickAnterior = 0;
  std::int32_t lTamanhoPagina = 0;
  bool bMostrarNovaPagina = true;
  bool bUltimaBuscaFiltrada = false;
};

}  // namespace fenvale
