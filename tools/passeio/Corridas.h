#pragma once
// The runs of the program that make up the tour. Each is a process of its own on the same folder of data.

#include <string>
#include <vector>

#include "platform/base/Date.h"

namespace fenvale {
class Contexto;

namespace passeio {

class Guia;

struct Corrida {
  const char* nome;
  Date hoje;
  int saida;             ///< the exit code by which the run ends
  bool emDobro = false;  ///< at 200 % scale
  void (*contar)(Guia& guia, Contexto& programa, const std::string& pasta);
};

const std::vector<Corrida>& corridas();

}  // namespace passeio
}  // namespace fenvale
