#pragma once
// The runs of ordinary days, told after the first invoice is settled: the suppliers' side, what falls due, what is
// printed, what is kept and what is thrown away.

#include <string>

namespace fenvale {
class Contexto;

namespace passeio {

class Guia;

void contasAPagar(Guia& guia, Contexto& programa, const std::string& pasta);
void vencimentos(Guia& guia, Contexto& programa, const std::string& pasta);
void manutencao(Guia& guia, Contexto& programa, const std::string& pasta);

}  // namespace passeio
}  // namespace fenvale
