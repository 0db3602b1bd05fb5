#pragma once
// One run of the program in a folder that outlives it: a second run finds what the first one left.

#include <optional>
#include <string>

#include "app/Programa.h"
#include "platform/ui/test/TestHost.h"
#include "support/PlataformaDeTeste.h"
#include "support/ProgramaDeTeste.h"

namespace fenvale {

class Rodada final : private AmbienteDeTeste, public Programa {
 public:
  Rodada(const PastaTemporaria& pasta, void (*registrar)(Telas&))
      : Programa({pasta.caminho(), hostDoTeste, relogioDoTeste, processoDoTeste, correioDoTeste, redeDoTeste,
                  impressorasDoTeste},
                 registrar) {}

  TestHost& hostDeTeste() { return hostDoTeste; }
  RelogioDeTeste& relogioDeTeste() { return relogioDoTeste; }
  ImpressorasDeTeste& impressorasDeTeste() { return impressorasDoTeste; }
};

/// Puts the update scripts and two small seed files there, as an installation does.
void vInstalarEm(const PastaTemporaria& pasta);

}  // namespace fenvale
