// As consumer.c, with standard types around what the library gives.
#include <cstdio>
#include <string_view>
#include <zel.h>

static_assert(noexcept(zelMapName(nullptr, nullptr, nullptr, nullptr, nullptr)));

int main() {
  zelRing ring = nullptr;
  const std::string_view name = zelMapName("Verilog", "Spef", "\\u1/Pad ", zelAllocRing, &ring);
  const std::string_view path =
      zelPathMapperEx("top.u1.d[3]", nullptr, nullptr, 0, "Verilog", "VHDL", zelAllocRing, &ring);
  std::printf("%s and %s\n", name.data(), path.data());
  zelFreeRing(&ring);
  return std::string_view(zelVerilogSpace->name) == "Verilog" ? 0 : 1;
}
