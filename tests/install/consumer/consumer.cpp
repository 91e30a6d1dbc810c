// As consumer.c, with a standard type around what the library allocates.
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <type_traits>
#include <zel.h>

static_assert(noexcept(zelMapName(nullptr, nullptr, nullptr, nullptr, nullptr)));
static_assert(std::is_same_v<decltype(zelVerilogSpace), const zelSpace>);

int main() {
  zelRing ring = nullptr;
  const char *const name = zelMapName("Verilog", "Spef", "\\u1/Pad ", zelAllocRing, &ring);
  const char *const path = zelPathMapperEx("top.u1.d[3]", nullptr, nullptr, 0, "Verilog", "VHDL", zelAllocRing, &ring);
  if (name == nullptr || path == nullptr || std::string_view(zelVerilogSpace->name) != "Verilog")
    return 1;
  std::printf("%s and %s\n", name, path);
  zelFreeRing(&ring);
  return 0;
}
