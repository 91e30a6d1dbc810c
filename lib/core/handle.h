#ifndef ZEL_CORE_HANDLE_H
#define ZEL_CORE_HANDLE_H
#include "spaces/handle.h"
namespace zeli {
using PathParser = zelPath (*)(const char *text, zelHandle handle, zelAllocFunc alloc, void *context);
using PathPrinter = char *(*)(zelPath path, zelHandle handle, std::int32_t flags, zelAllocFunc alloc, void *context);
struct VarBits {
  const char *name;
  PathParser parse;
  PathPrinter print;
  Separators separators; // the defaults
};
} // namespace zeli
#endif
