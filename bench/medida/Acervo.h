#pragma once
// The generated stores that the measuring programs share. Making the large one takes a while, so it is kept beside the
// programs and made anew only when the tables' script or the generator changed.

#include <optional>
#include <string>

#include "gerador/Negocios.h"
#include "platform/base/Date.h"
#include "platform/sql/Store.h"

namespace fenvale::bancada {

inline constexpr Volume volumeGrande{20000, 250000, 1000000};
inline constexpr Volume volumePequeno{200, 2500, 10000};

class RelogioFixo final : public Clock {
 public:
  Date today() const override { return makeDate(2026, 6, 30); }
  DateTime now() const override { return today(); }
};

/// The path of the store of that size, made when needed; `vencidos` as the generator takes it. Who writes to it leaves
/// its rows as they were.
std::string sEmpresaGerada(const Volume& volume, std::optional<std::uint32_t> vencidos = {});

}  // namespace fenvale::bancada
