// The VHDL path grammar: levels introduced by ':', an index or range in parentheses, lists joined by ',' or '&', and
// library references as in @library.cell(view).
#include "path/zelPathParse.h"

using namespace zeli;

namespace {

enum class State {
  start,
  at,
  library,
  libraryDot,
  cell,
  cellParen,
  view,
  viewParen,
  colon,
  name,
  comma,
  paren,
  number,
  direction,
  second,
  index
};

// The names of a reference in the text; without data where a part is missing.
struct LibraryReference {
  Bytes library;
  Bytes cell;
  Bytes view;
};

// Whether a name can be part of a reference. It is converted once more when the reference is stored, so that a refused
// text leaves no Ident behind in memory that only the caller could release.
bool isUsable(Bytes part) {
  if (part.size() > maxName)
    return false;
  const Name name(part);
  Text work;
  const Ident ident = vhdlNames.isLegal(name, {}) ? vhdlNames.read(name, {}, work) : Ident{};
  return ident.body.data() != nullptr && ident.body.size() <= maxName;
}

// Appends a library reference with Idents of its own. One that memory lacks for stays null.
bool storeLib(zelPath path, const LibraryReference &reference) {
  const auto &[library, cell, view] = reference;
  const Bytes parts[] = {library, cell, view};
  const char *const none[] = {nullptr, nullptr, nullptr};
  const bool hasView = view.data() != nullptr;
  const std::size_t count = hasView ? 3 : 2;
  if (!appendPointers(path, kindNone, hasView ? kindLibView : kindLib, count, none))
    return false;
  const Allocator memory = allocatorOf(path);
  Slot *slot = path->last->slots + path->last->slotsUsed - count;
  for (std::size_t i = 0; i < count; ++i, ++slot) {
    if (parts[i].data() == nullptr)
      continue;
    Text work;
    const Ident ident = vhdlNames.read(Name(parts[i]), {}, work);
    slot->string = makeIdent(ident, memory.alloc, memory.context);
    if (slot->string == nullptr) {
      path->flags |= flagError; // with the errno of the conversion
      return false;
    }
  }
  return true;
}

// Whether word, in either case, and a blank stand at text.
bool isDirection(const char *text, Bytes word) {
  for (const char c : word)
    if (toLower(*text++) != c)
      return false;
  return blank.has(*text);
}

bool endsReference(State state) { return isOneOf(state, {State::library, State::cell, State::viewParen}); }

// Takes a name as part of a reference, and moves the state on. False where none is expected, and for an unusable one.
bool takePart(State &state, LibraryReference &reference, Bytes part) {
  using enum State;
  if (!isUsable(part))
    return false;
  switch (state) {
  case at:
    reference = {{}, part, {}};
    state = library;
    return true;
  case libraryDot:
    reference = {reference.cell, part, {}};
    state = cell;
    return true;
  case cellParen:
    reference.view = part;
    state = view;
    return true;
  default:
    return false;
  }
}

// Where the direction behind a number ends; at text, where none stands.
const char *skipDirection(const char *text) {
  if (isDirection(text, "to"))
    return text + 3;
  return isDirection(text, "downto") ? text + 7 : text;
}

char classOf(char c) {
  static constexpr ByteSet nameStart = letter | chars("\\_");
  return nameStart.has(c) ? aName : digit.has(c) ? aNumber : c;
}

} // namespace

zelPath zeli::parseVHDL(zelPath path, const PathLanguage &language, const char *text) {
  using enum State;
  State state = start;
  LibraryReference reference;
  std::int32_t first = 0;
  std::int32_t last = 0;
  std::uint32_t pendingMid = 0;
  bool sawComma = false;
  bool sawAmpersand = false;

  for (char c = *text;;) {
    switch (classOf(c)) {
    case '\0':
      if (endsReference(state))
        return storeLib(path, reference) ? path : reject(path, text);
      return isOneOf(state, {name, index}) ? path : reject(path, text);
    case aName:
      if (isOneOf(state, {start, colon, comma})) {
        state = name;
        if (!appendName(path, language, text))
          return reject(path, text);
      } else {
        const char *const end = language.names.scan(text, nullptr);
        if (!takePart(state, reference, Bytes(text, static_cast<std::size_t>(end - text))))
          return reject(path, text);
        text = end;
      }
      c = *text;
      continue;
    case ':':
      if (state != start)
        path->flags |= flagHierarchy;
      if (!isOneOf(state, {start, name, index}) && !endsReference(state))
        return reject(path, text);
      if (endsReference(state) && !storeLib(path, reference))
        return reject(path, text);
      if (isOneOf(state, {cell, viewParen, index})) {
        path->flags |= pendingMid;
        pendingMid = 0;
      }
      state = colon;
      break;
    case '(':
      if (!isOneOf(state, {name, cell}))
        return reject(path, text);
      if (state == name)
        path->flags |= flagIndex; // a range is an index, too
      state = state == name ? paren : cellParen;
      break;
    case aNumber: {
      if (!isOneOf(state, {paren, direction}))
        return reject(path, text);
      const std::int32_t value = readDigits(text);
      if (!isNumber(value))
        return reject(path, text);
      c = *text;
      if (state == paren) {
        first = value;
        state = number;
        while (blank.has(*text))
          ++text;
        if (const char *const end = skipDirection(text); end != text) {
          text = end;
          state = direction;
          c = *text;
          continue;
        }
      } else {
        last = value;
        state = second;
      }
      // What followed the digits is taken, while the text goes on behind the blanks: a blank in front of ')' hides it.
      if (c == ':' || classOf(c) == aName)
        return reject(path, text);
      if (*text == '\0')
        c = '\0';
      continue;
    }
    case ')':
      if (isOneOf(state, {cellParen, view})) {
        state = viewParen;
        break;
      }
      if (!isOneOf(state, {number, second}))
        return reject(path, text);
      pendingMid = state == second ? flagMidRange : flagMidIndex;
      if (!appendBus(path, state == second, first, last))
        return reject(path, text);
      state = index;
      break;
    case '@':
      if (!isOneOf(state, {start, name, comma, index}))
        return reject(path, text);
      state = at;
      break;
    case '.':
      if (state != library)
        return reject(path, text);
      state = libraryDot;
      break;
    case '&':
    case ',':
      (c == '&' ? sawAmpersand : sawComma) = true;
      if ((sawAmpersand && sawComma) || !append(path, kindList))
        return reject(path, text);
      path->flags |= flagList;
      state = comma;
      // The character behind an ampersand goes with it.
      if (c == '&' && text[1] != '\0')
        ++text;
      break;
    case ' ':
    case '\t':
      break;
    default:
      return reject(path, text);
    }
    c = *++text;
  }
}
