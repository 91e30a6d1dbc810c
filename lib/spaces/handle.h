// A handle: the separator characters in force for a language, and the rules of names under them.
#ifndef ZEL_SPACES_HANDLE_H
#define ZEL_SPACES_HANDLE_H

#include "spaces/backslash.h"
#include "spaces/separators.h"

namespace zeli {
struct PathLanguage;
} // namespace zeli

struct zelHandleRecord {
  std::int32_t kind; // builtInHandle, or madeHandle for one that is freed
  const zeli::PathLanguage *language;
  zeli::Separators separators; // in force

  // The rules of the space's names under these separators, made once; null for the built-in ones.
  const zeli::Operations *names;
  const zeli::BackslashRules *rules;

  // The bytes of which the names of its paths consist, made once; see NameReader.
  const zeli::ByteSet *pathNameBytes;
};

namespace zeli {
constexpr std::int32_t madeHandle = 0;
constexpr std::int32_t builtInHandle = 1;
} // namespace zeli

#endif
