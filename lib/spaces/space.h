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

struct BackslashRules;
struct Separators;

// What a writer or reader returns lies in its input or in the Text. A refused Ident or spelling has no data; errno is
// EINVAL unless the space says otherwise.
struct Operations {
  bool (*isLegal)(const Name &name, const Setting &setting);
  Ident (*read)(const Name &name, const Setting &setting, Text &work);
  Bytes (*write)(const Ident &ident, const Setting &setting, Text &work);
  BackslashRules (*rulesUnder)(const Separators &separators) = nullptr; // where a file may redefine separators
};

// The operations of a space whose rules are constant.
template <const auto &rules>
constexpr Operations operationsOf = {
    [](const Name &name, const Setting &) { return rules.isLegal(name); },
    [](const Name &name, const Setting &setting, Text &work) { return rules.read(name, setting, work); },
    [](const Ident &ident, const Setting &setting, Text &work) { return rules.write(ident, setting, work); }};

} // namespace zeli

#endif
