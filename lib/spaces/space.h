// A name space: the row that says all of it, and its operations on views.
#ifndef ZEL_SPACES_SPACE_H
#define ZEL_SPACES_SPACE_H

#include "core/zelpvt.h"

namespace zeli {

// What a conversion depends on beside the name.
struct Setting {
  std::int32_t mapState = ZEL_MAP_UNSET; // ZEL_MAP_UNSET stands for that of the process
  zelHandle handle = nullptr;            // where a file may redefine separators; null stands for the current one
};

inline std::int32_t mapStateOf(const Setting &setting) {
  return setting.mapState != ZEL_MAP_UNSET ? setting.mapState : mapStateOfProcess();
}

// Whether a writer puts the body of ident in lower case.
inline bool foldsCase(const Ident &ident, const Setting &setting) {
  // Also a case-sensitive Ident is a first use that determines the state.
  const std::int32_t state = mapStateOf(setting);
  return !ident.isCaseSensitive() && state != ZEL_MAP_MATCH;
}

// Which words are names of a space as they stand, in the default mapping state: those without some traits, and the
// keywords. (A word with a prefix that some space uses is never one.)
struct PlainWords {
  Traits notRead;
  Traits notWrittenSensitive; // of a case-sensitive Ident
  Traits notWrittenInsensitive;
  char readAs; // the marker of their Idents; NUL where it depends on capitals
  bool (*isKeyword)(const Name &word) = nullptr;
};
constexpr PlainWords anyWord = {0, 0, traitUpper, '\0'};

struct BackslashRules;
struct Separators;

// What a writer or reader returns lies in its input or in the Text. A refused Ident or spelling has no data; errno is
// EINVAL unless the space says otherwise.
struct Operations {
  bool (*isLegal)(const Name &name, const Setting &setting);
  Ident (*read)(const Name &name, const Setting &setting, Text &work);
  Bytes (*write)(const Ident &ident, const Setting &setting, Text &work);
  PlainWords plainWords;
  zelHandle &(*currentHandle)() = nullptr;                              // where a file may redefine separators
  BackslashRules (*rulesUnder)(const Separators &separators) = nullptr; // likewise
};

// What every call with a handle ends with: the built-in handle is the current one again.
inline void leaveHandle(const Operations &names) {
  if (names.currentHandle != nullptr)
    names.currentHandle() = nullptr;
}

// The operations of a space whose rules are constant.
template <const auto &rules>
constexpr Operations operationsOf = {
    [](const Name &name, const Setting &) { return rules.isLegal(name); },
    [](const Name &name, const Setting &setting, Text &work) { return rules.read(name, setting, work); },
    [](const Ident &ident, const Setting &setting, Text &work) { return rules.write(ident, setting, work); },
    rules.plainWords()};

} // namespace zeli

#endif
