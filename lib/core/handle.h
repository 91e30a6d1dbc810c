// A handle: the separator characters in force for a space, with its path parser and printer.
#ifndef ZEL_CORE_HANDLE_H
#define ZEL_CORE_HANDLE_H

#include "core/zel.h"

#include <cstdint>

namespace zeli {

using PathParser = zelPath (*)(const char *text, zelHandle handle, zelAllocFunc alloc, void *context);
using PathPrinter = char *(*)(zelPath path, zelHandle handle, std::int32_t flags, zelAllocFunc alloc, void *context);

struct Separators {
  char pinDelimiter;
  char divider;
  char busOpen;
  char busClose;

  friend constexpr bool operator==(const Separators &, const Separators &) = default;
};

// The template of a space's handles.
struct VarBits {
  const char *name;
  PathParser parse;
  PathPrinter print;
  Separators separators; // the defaults
};

} // namespace zeli

struct zelHandleRecord {
  std::int32_t kind; // builtInHandle, or madeHandle for one that is freed
  const zeli::VarBits *varBits;
  zeli::Separators separators; // in force
};

namespace zeli {
constexpr std::int32_t madeHandle = 0;
constexpr std::int32_t builtInHandle = 1;
} // namespace zeli

#endif
