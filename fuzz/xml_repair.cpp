#include "fuzz/xml_repair.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fenvale::fuzz::xmlRepair(std::string(reinterpret_cast<const char*>(data), size));
  return 0;
}
