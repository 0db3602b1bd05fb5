#pragma once
// The keys of a box that is picked and not typed.

#include <functional>

#include "platform/ui/Control.h"

namespace fenvale {

inline constexpr const char* sDicaBusca = "Espaço localiza · Delete limpa";
inline constexpr const char* sDicaBuscaECadastro = "Espaço localiza · Insert cadastra · Delete limpa";

struct TeclasDeBusca {
  std::function<void()> localizar;    ///< Space; it puts the focus where it belongs afterwards
  std::function<void()> limpar;       ///< Delete; the focus stays on the box
  std::function<void()> cadastrar{};  ///< Insert; none: the key means nothing here
};

/// Whether the key was one of these, and has done its work.
bool bTeclaDeBusca(Control& caixa, Key tecla, const TeclasDeBusca& teclas);

}  // namespace fenvale
