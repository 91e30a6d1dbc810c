// The spaces by name, and the process-wide settings.
#ifndef SUPPORT_SPACES_H
#define SUPPORT_SPACES_H

#include "results.h"
#include "table.h"

#include <algorithm>
#include <map>
#include <memory>

// A process-wide setting for the length of a scope.
template <auto get, auto set> struct Setting {
  const int before = get();
  explicit Setting(int value) { set(value); }
  ~Setting() { set(before); }
};
inline int vhdlMode() { return ZEL_VHDL_TYPE; }
using MapState = Setting<zelGetMapState, zelSetMapState>;
using VHDLMode = Setting<vhdlMode, zelSetVHDLMode>; // any but 0 also keeps the environment out
inline const std::map<std::string, int> mapStates = {
    {"VHDL", ZEL_MAP_VHDL}, {"DEFAULT", ZEL_MAP_DEFAULT}, {"TANDEM", ZEL_MAP_TANDEM}, {"MATCH", ZEL_MAP_MATCH}};

inline zelSpace spaceOf(const std::string &name) { return zelGetSpaceByName(name.c_str()); }
// By name, the Ident space as well.
inline std::vector<std::string> allSpaces() {
  std::vector<std::string> names = {"Ident"};
  for (const char *const *name = zelGetAllSpaceNames(); *name != nullptr; ++name)
    names.emplace_back(*name);
  return names;
}

// By one of the two functions that make handles, which count the low bytes: pin delimiter, divider, bus brackets.
inline zelHandle makeHandle(decltype(&zelGetHandle) maker, const std::string &space, const std::string &separators) {
  const auto at = [&](std::size_t i) { return 0xffffff00U | static_cast<unsigned char>(separators[i]); };
  return maker(space.c_str(), at(0), at(1), at(2), at(3));
}

struct ReleaseHandle {
  void operator()(zelHandle handle) const { zelFreeHandle(handle); }
};
using Handle = std::unique_ptr<const zelHandleRecord, ReleaseHandle>;

#endif
