#include <cstddef>
#include <cstdint>
#include <string_view>

#include "tests/fuzz/Targets.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  static const tests::FuzzTarget target = tests::fuzzTargets().at(ORLENA_FUZZ_TARGET);
  target({reinterpret_cast<const char*>(bytes), size});
  return 0;
}
