#pragma once

namespace fenvale {

class Telas;

/// The screens of this folder, by name.
void vRegistrarTelasDosCadastros(Telas& telas);

}  // namespace fenvale
