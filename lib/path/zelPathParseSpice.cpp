// SPICE paths: levels joined by '.'. Brackets belong to the names, there is no bus syntax.
#include "path/zelPathParse.h"

using namespace zeli;

namespace {

enum class State { start, name, dot };

char classOf(char c) {
  static constexpr ByteSet nameStart = graphic - chars(".[]");
  return nameStart.has(c) ? aName : c;
}

} // namespace

zelPath zeli::parseSpice(zelPath path, const PathLanguage &language, const char *text) {
  using enum State;
  State state = start;
  for (;;) {
    switch (classOf(*text)) {
    case '\0':
      return state == dot ? reject(path, text) : path;
    case aName: {
      const char *const begin = text;
      if (!appendName(path, language, text) || state == name)
        return reject(path, begin);
      state = name;
      continue;
    }
    case '.':
      if (state != name)
        return reject(path, text);
      path->flags |= flagHierarchy;
      state = dot;
      break;
    case ' ':
    case '\t':
      break;
    default:
      return reject(path, text);
    }
    ++text;
  }
}
