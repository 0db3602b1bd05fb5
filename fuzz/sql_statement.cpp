#include "fuzz/sql_statement.h"

#include <cstdint>
#include <cstdlib>
#include <iostream>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string wrong = fenvale::fuzz::sqlStatement(std::string(reinterpret_cast<const char*>(data), size));
  if (!wrong.empty()) {
    std::cerr << wrong << '\n';
    std::abort();
  }
  return 0;
}
