#pragma once
// Number masks. Marks of thousands and decimals are Brazilian whatever the machine's locale.

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/base/Currency.h"

namespace fenvale {

/// A currency by a mask such as "#,##0.00", "#,##.00" or "0": a "0" is a digit always shown, a "#" one shown only when
/// there; a comma among them groups by thousands. Rounds half away from zero on the exact decimal; a value that rounds
/// to zero has no sign. "#,##.00" shows ",50" below one.
std::string formatNumber(Currency value, std::string_view mask = "#,##0.00");
/// A whole number by a mask such as "######000000" or "###000": padded to its zeros, longer numbers grow.
std::string formatNumber(std::int64_t value, std::string_view mask);

}  // namespace fenvale
