#pragma once
// A picture of every screen of the program, light and dark.

#include <string>

namespace fenvale {
class Contexto;

namespace passeio {

class Guia;

/// The screen that is open now, as <pasta>/<tela>-claro.png and -escuro.png.
void retratarNosDoisTons(Guia& guia, Contexto& programa, const std::string& pasta, const std::string& tela);
/// Opens every screen that can stand by itself, and closes it again.
void retratarTelas(Guia& guia, Contexto& programa, const std::string& pasta);

}  // namespace passeio
}  // namespace fenvale
