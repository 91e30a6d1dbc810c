// SPICE paths: levels joined by '.'. Brackets belong to the names, there is no bus syntax.
#include "path/parse.h"

using namespace zeli;

namespace {

enum class State { start, name, dot };

zelPath parse(zelPath path, const char *text) {
  using enum State;
  constexpr ByteSet nameStart = graphic - chars(".[]");
  State state = start;
  for (; *text != '\0';) {
    if (nameStart.has(*text)) {
      if (!readName(path, spiceLanguage, text) || state == name)
        return reject(path);
      state = name;
      continue;
    }
    if (*text == '.') {
      if (state != name)
        return reject(path);
      path->flags |= flagHierarchy;
      state = dot;
    } else if (!blank.has(*text)) {
      return reject(path);
    }
    ++text;
  }
  return state == dot ? reject(path) : path;
}

} // namespace

zelPath zelParseSpice(const char *text, zelHandle, zelAllocFunc alloc, void *context) noexcept {
  const zelPath path = startPath(text, spiceLanguage, nullptr, alloc, context);
  return path == nullptr ? nullptr : parse(path, text);
}
