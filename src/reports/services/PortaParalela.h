#pragma once
// The port to which listings are printed in characters. A machine of today has a print queue in its place, which takes
// the bytes as they are.

#include <memory>
#include <string>

namespace fenvale {

class Contexto;
class RawJob;

/// The queue of the firm's printer, else the machine's default; empty when there is neither. The built-in entry for PDF
/// files takes no raw bytes and counts as none.
std::string sGetFilaPortaParalela(Contexto& contexto);

/// "lpt1:", opened for writing. `sTitulo` is what the queue shows. Error 75 without a queue, and when it cannot be
/// opened; a firm's printer that the machine no longer has is not replaced by another.
std::unique_ptr<RawJob> abrirPortaParalela(Contexto& contexto, const std::string& sTitulo);

}  // namespace fenvale
