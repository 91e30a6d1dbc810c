// The VHDL path grammar: levels introduced by ':', an index or range in parentheses, lists joined by ',' or '&', and
// library references as in @library.cell(view).
#include "path/parse.h"

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

enum class PendingMid { none, index, range };

constexpr ByteSet nameStart = letter | chars("\\_");

struct Name {
  const char *begin = nullptr; // null for a part that is missing
  std::size_t length = 0;
};

struct LibraryReference {
  Name library;
  Name cell;
  Name view;
};

struct NameCopy {
  char bytes[maxName + 1];

  explicit NameCopy(const Name &name) {
    std::memcpy(bytes, name.begin, name.length);
    bytes[name.length] = '\0';
  }
};

// Whether a name can be part of a reference. It is converted once more when the reference is stored, so that a refused
// text leaves no Ident behind in memory that only the caller could release.
bool isUsable(const Name &name) {
  if (name.length > maxName)
    return false;
  const NameCopy copy(name);
  char ident[maxName + 2];
  return zelIsLegalVHDL(copy.bytes) != 0 && zelVHDLToIdent(copy.bytes, nullptr, ident) != nullptr;
}

// Appends a library reference with Idents of its own. One that memory lacks for stays null.
bool storeLib(zelPath path, const LibraryReference &reference) {
  const auto &[library, cell, view] = reference;
  const Name *const parts[] = {&library, &cell, &view};
  const char *const none[] = {nullptr, nullptr, nullptr};
  const bool hasView = view.begin != nullptr;
  const std::size_t count = hasView ? 3 : 2;
  if (!appendPointers(path, kindNone, hasView ? kindLibView : kindLib, count, none))
    return false;
  const Allocator memory = allocatorOf(path);
  Slot *slot = path->last->slots + path->last->slotsUsed - count;
  for (std::size_t i = 0; i < count; ++i, ++slot) {
    if (parts[i]->begin == nullptr)
      continue;
    slot->string = zelVHDLToIdent(NameCopy(*parts[i]).bytes, memory.alloc, memory.context);
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

class Parser {
public:
  Parser(zelPath target, const Language &source, const char *begin) : path(target), language(source), text(begin) {}

  zelPath parse() {
    for (;;) {
      const char c = *text;
      if (c == '\0')
        return finish();
      bool isAccepted = false;
      if (nameStart.has(c))
        isAccepted = readIdentifier();
      else if (c == ':')
        isAccepted = readColon();
      else if (c == '(')
        isAccepted = openParen();
      else if (digit.has(c))
        isAccepted = readNumber();
      else
        isAccepted = readOther(c);
      if (!isAccepted)
        return reject(path);
    }
  }

private:
  using enum State;

  zelPath path;
  const Language &language;
  const char *text;
  State state = start;
  LibraryReference reference;
  std::int32_t first = 0;
  std::int32_t last = 0;
  PendingMid pendingMid = PendingMid::none;
  bool sawComma = false;
  bool sawAmpersand = false;

  bool endsReference() const { return state == library || state == cell || state == viewParen; }

  zelPath finish() {
    if (endsReference())
      return storeLib(path, reference) ? path : reject(path);
    return state == name || state == index ? path : reject(path);
  }

  bool enter(State next) {
    state = next;
    ++text;
    return true;
  }

  bool readIdentifier() {
    if (state == start || state == colon || state == comma) {
      state = name;
      return readName(path, language, text);
    }
    const char *end = language.scan(text, nullptr);
    const Name part = {text, static_cast<std::size_t>(end - text)};
    if (!isUsable(part))
      return false;
    if (state == at)
      reference = {{}, part, {}};
    else if (state == libraryDot)
      reference = {reference.cell, part, {}};
    else if (state == cellParen)
      reference.view = part;
    else
      return false;
    state = state == at ? library : state == libraryDot ? cell : view;
    text = end;
    return true;
  }

  bool readColon() {
    if (state != start)
      path->flags |= flagHierarchy;
    if (state != start && state != name && state != index && !endsReference())
      return false;
    if (endsReference() && !storeLib(path, reference))
      return false;
    if (state == cell || state == viewParen || state == index) {
      if (pendingMid != PendingMid::none)
        path->flags |= pendingMid == PendingMid::index ? flagMidIndex : flagMidRange;
      pendingMid = PendingMid::none;
    }
    return enter(colon);
  }

  bool openParen() {
    if (state == cell)
      return enter(cellParen);
    if (state != name)
      return false;
    path->flags |= flagIndex; // a range is an index, too
    return enter(paren);
  }

  bool readNumber() {
    if (state != paren && state != direction)
      return false;
    const std::int32_t value = readDigits(text);
    if (!isNumber(value))
      return false;
    const char behind = *text;
    if (state == direction) {
      last = value;
      state = second;
    } else {
      first = value;
      state = number;
      while (blank.has(*text))
        ++text;
      const std::size_t word = isDirection(text, "to") ? 2 : isDirection(text, "downto") ? 6 : 0;
      if (word != 0) {
        text += word + 1;
        state = direction;
        return true;
      }
    }
    // What followed the digits is taken, while the text goes on behind the blanks: a blank in front of ')' hides it.
    return *text == '\0' || readOther(behind);
  }

  bool readOther(char c) {
    switch (c) {
    case ')':
      return closeParen();
    case '@':
      return (state == start || state == name || state == comma || state == index) && enter(at);
    case '.':
      return state == library && enter(libraryDot);
    case '&':
      sawAmpersand = true;
      ++text;
      // The character behind the '&' goes with it.
      return !sawComma && separate();
    case ',':
      sawComma = true;
      return !sawAmpersand && separate();
    case ' ':
    case '\t':
      ++text;
      return true;
    default:
      return false;
    }
  }

  bool closeParen() {
    if (state == cellParen || state == view)
      return enter(viewParen);
    if (state != number && state != second)
      return false;
    const bool isRange = state == second;
    pendingMid = isRange ? PendingMid::range : PendingMid::index;
    return appendBus(path, isRange, first, last) && enter(index);
  }

  bool separate() {
    if (!append(path, kindList))
      return false;
    path->flags |= flagList;
    state = comma;
    if (*text != '\0')
      ++text;
    return true;
  }
};

zelPath parse(const char *text, const Language &language, zelAllocFunc alloc, void *context) {
  const zelPath path = startPath(text, language, nullptr, alloc, context);
  return path == nullptr ? nullptr : Parser(path, language, text).parse();
}

} // namespace

zelPath zelParseVHDL(const char *text, zelHandle, zelAllocFunc alloc, void *context) noexcept {
  return parse(text, vhdlLanguage, alloc, context);
}

zelPath zelParseVHDL87(const char *text, zelHandle, zelAllocFunc alloc, void *context) noexcept {
  return parse(text, vhdl87Language, alloc, context);
}

zelPath zelParseVHDLAMS(const char *text, zelHandle, zelAllocFunc alloc, void *context) noexcept {
  return parse(text, vhdlAMSLanguage, alloc, context);
}
