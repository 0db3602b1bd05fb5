#pragma once
// The list of all screens of the program.

namespace fenvale {

class Telas;

void vRegistrarTelas(Telas& telas);

}  // namespace fenvale
