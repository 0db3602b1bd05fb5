#include "fuzz/pdf_text.h"

#include <stdlib.h>

#include <cstdint>
#include <cstdlib>
#include <iostream>

namespace {

/// A folder for the files of the run, in memory where the machine has such a place.
const std::string& folder() {
  static const std::string made = [] {
    std::string name = "/dev/shm/pdf_text.XXXXXX";
    if (mkdtemp(name.data()) == nullptr) name = "/tmp/pdf_text.XXXXXX";
    if (name.ends_with("XXXXXX") && mkdtemp(name.data()) == nullptr) std::abort();
    return name;
  }();
  return made;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string wrong = fenvale::fuzz::pdfText(std::string(reinterpret_cast<const char*>(data), size), folder());
  if (!wrong.empty()) {
    std::cerr << wrong << '\n';
    std::abort();
  }
  return 0;
}
