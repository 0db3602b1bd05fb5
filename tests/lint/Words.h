#pragma once

#include <vector>

#include "lint/Source.h"

namespace fenvale::lint {

/// What no text of the project holds: paths of somebody's machine, references to numbered paragraphs of papers that
/// are not in the tree, marks of unfinished work, disabled tests.
std::vector<Finding> checkWords(const SourceFile& file);

/// What no C++ file does: convert numbers as the machine's locale likes, swallow every exception, sleep in a test, grow
/// beyond 800 lines.
std::vector<Finding> checkCode(const SourceFile& file);

}  // namespace fenvale::lint
