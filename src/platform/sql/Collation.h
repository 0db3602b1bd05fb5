#pragma once
// The order of texts in the stores: without case, with accents, as a Brazilian dictionary has it.

#include <string_view>

namespace fenvale {

/// Below, equal to or above 0. First by base letters without case, then by accents, unaccented first; case never
/// decides. Signs come before digits before letters; apostrophe and hyphen weigh only when all else is equal.
int compareTexts(std::string_view first, std::string_view second);

}  // namespace fenvale
