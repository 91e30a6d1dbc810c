// The bus-bracket grammar of the file formats and of Tessel: levels joined by a divider, an index or range between two
// bracket characters, all three chosen by the format or by the file; no lists or repeats.
#include "core/handle.h"
#include "path/parse.h"

using namespace zeli;

namespace {

enum class State { start, name, divider, bracket, number, colon, second };

struct Grammar {
  const Language &language;
  char divider; // NUL for none
  char busOpen;
  char busClose;
  bool needsName; // a bus only behind a name
};

constexpr ByteSet numberStart = digit | sign;

bool startsName(const Grammar &grammar, State state, bool inBus, char c) {
  if (!graphic.has(c) || c == grammar.divider || c == grammar.busOpen || c == grammar.busClose)
    return false;
  if (c == ':' && (inBus || state == State::number))
    return false;
  return !(numberStart.has(c) && (inBus || state == State::bracket || state == State::colon));
}

zelPath parse(zelPath path, const Grammar &grammar, const char *text) {
  using enum State;
  State state = start;
  bool inBus = false;
  std::int32_t first = 0;
  std::int32_t last = 0;

  for (;;) {
    const char c = *text;
    if (c == '\0')
      return inBus || state == divider ? reject(path) : path;
    if (startsName(grammar, state, inBus, c)) {
      if (!readName(path, grammar.language, text) || inBus || state == name)
        return reject(path);
      state = name;
      continue;
    }
    if (c == grammar.divider) {
      ++text;
      if (state == start) {
        path->flags |= flagLeadingDivider;
        continue;
      }
      if (inBus || (state != name && state != bracket))
        return reject(path);
      if (state == bracket)
        noteMid(path);
      path->flags |= flagHierarchy;
      state = divider;
      continue;
    }
    if (c == grammar.busOpen) {
      if (grammar.needsName && state != name)
        reject(path);
      inBus = true;
      state = bracket;
      ++text;
      continue;
    }
    if (numberStart.has(c)) {
      if (!inBus || (state != bracket && state != colon))
        return reject(path);
      const std::int32_t value = readSigned(text);
      if (!isNumber(value))
        return reject(path);
      (state == colon ? last : first) = value;
      state = state == colon ? second : number;
      continue;
    }
    if (c == ':') {
      if (!inBus || state != number)
        return reject(path);
      state = colon;
    } else if (c == grammar.busClose) {
      if (!inBus || (state != number && state != second))
        return reject(path);
      if (!appendBus(path, state == second, first, last))
        return path;
      inBus = false;
      state = bracket;
    } else if (!blank.has(c)) {
      return reject(path);
    }
    ++text;
  }
}

zelPath parseFixed(const char *text, const Grammar &grammar, zelAllocFunc alloc, void *context) {
  const zelPath path = startPath(text, grammar.language, nullptr, alloc, context);
  return path == nullptr ? nullptr : parse(path, grammar, text);
}

// With the separators of a handle, which the path remembers for its names.
zelPath parseWith(const char *text, const Language &language, zelHandle handle, zelHandle defaultHandle,
                  zelAllocFunc alloc, void *context) {
  const zelHandle used = handle != nullptr ? handle : defaultHandle;
  const zelPath path = startPath(text, language, used, alloc, context);
  if (path == nullptr)
    return nullptr;
  const Separators &separators = used->separators;
  return parse(path, {language, separators.divider, separators.busOpen, separators.busClose, false}, text);
}

} // namespace

zelPath zelParseTessel(const char *text, zelHandle, zelAllocFunc alloc, void *context) noexcept {
  return parseFixed(text, {tesselLanguage, '|', '[', ']', true}, alloc, context);
}

zelPath zelParseFlatTessel(const char *text, zelHandle, zelAllocFunc alloc, void *context) noexcept {
  return parseFixed(text, {flatTesselLanguage, '\0', '[', ']', false}, alloc, context);
}

zelPath zelParseLef(const char *text, zelHandle handle, zelAllocFunc alloc, void *context) noexcept {
  return parseWith(text, lefLanguage, handle, zelLefHandle, alloc, context);
}

zelPath zelParseDef(const char *text, zelHandle handle, zelAllocFunc alloc, void *context) noexcept {
  return parseWith(text, defLanguage, handle, zelDefHandle, alloc, context);
}

zelPath zelParseSdf(const char *text, zelHandle handle, zelAllocFunc alloc, void *context) noexcept {
  return parseWith(text, sdfLanguage, handle, zelSdfHandle, alloc, context);
}

zelPath zelParseSpf(const char *text, zelHandle handle, zelAllocFunc alloc, void *context) noexcept {
  return parseWith(text, spfLanguage, handle, zelSpfHandle, alloc, context);
}

zelPath zelParseSpef(const char *text, zelHandle handle, zelAllocFunc alloc, void *context) noexcept {
  return parseWith(text, spefLanguage, handle, zelSpefHandle, alloc, context);
}

zelPath zelParseGcf(const char *text, zelHandle handle, zelAllocFunc alloc, void *context) noexcept {
  return parseWith(text, gcfLanguage, handle, zelGcfHandle, alloc, context);
}
