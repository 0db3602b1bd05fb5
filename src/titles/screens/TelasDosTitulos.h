#pragma once

namespace fenvale {

class Telas;

/// The screens of this folder, by name.
void vRegistrarTelasDosTitulos(Telas& telas);

}  // namespace fenvale
