// Walks a Verilog path and names every level, and every bit of its buses in VHDL.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <zel.h>

namespace {

struct FreePath {
  void operator()(zelPath path) const { zelFreePath(path, nullptr, nullptr); }
};
struct Free {
  void operator()(char *text) const { std::free(text); }
};

} // namespace

int main(int argc, char *argv[]) {
  const char *text = argc > 1 ? argv[1] : "top.\\u1/Pad .data[3:0]";
  const std::unique_ptr<zelPathRecord, FreePath> path(zelParseVerilog(text, nullptr, nullptr, nullptr));
  if (path == nullptr || (zelPathGetFlag(path.get()) & ZEL_PATH_ERROR) != 0) {
    std::fprintf(stderr, "not a Verilog path: %s\n", text);
    return 1;
  }

  zelPathGenStart(path.get());
  for (int item = zelPathGenNext(path.get()); item != ZEL_ITEM_END; item = zelPathGenNext(path.get())) {
    if (item == ZEL_ITEM_IDENT) {
      std::printf("level %s\n", zelPathGetIdent(path.get()));
    } else if (item == ZEL_ITEM_INDEX) {
      std::printf("index %d\n", zelPathGetIndex(path.get()));
    } else if (item == ZEL_ITEM_RANGE) {
      int32_t from = 0;
      int32_t to = 0;
      zelPathGetRange(path.get(), &from, &to);
      std::printf("range %d to %d\n", from, to);
    }
  }

  const std::unique_ptr<char, Free> bits(zelPathToVHDL(path.get(), nullptr, ZEL_PRINT_EXPLODE));
  std::printf("bits  %s\n", bits != nullptr ? bits.get() : "(too long)");
  return 0;
}
