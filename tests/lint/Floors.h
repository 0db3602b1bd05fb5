#pragma once

#include <vector>

#include "lint/Source.h"

namespace fenvale::lint {

/// Who includes whom among the files below src/ (the others are passed over):
/// - an include never runs upwards between the floors (docs/architecture.md), nor from one room of services or screens
///   to a later one; a screen includes no screen of another room;
/// - a library's header stands only in its own adapter's folder, and reaches no rule by way of a platform header;
/// - a source includes its own header first, so that the header stands by itself.
std::vector<Finding> checkFloors(const std::vector<SourceFile>& tree);

}  // namespace fenvale::lint
