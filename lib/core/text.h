// Names inside the library: views of what was given, what one pass over them tells, and a buffer for what is written.
#ifndef ZEL_CORE_TEXT_H
#define ZEL_CORE_TEXT_H

#include "core/block.h"
#include "core/byteSet.h"
#include "core/zel.h"

#include <cerrno>
#include <string_view>

namespace zeli {

constexpr std::size_t maxName = ZEL_MAX_NAME;

using Bytes = std::string_view;

// The bytes of a caller's string. Reading stops one past the longest name, so that an over-long string costs no more
// than that and is known by its size. Null gives a view without data.
inline Bytes nameBytes(const char *s) { return s == nullptr ? Bytes{} : Bytes{s, strnlen(s, maxName + 1)}; }

// For the tests that have no limit of length.
inline Bytes wholeBytes(const char *s) { return s == nullptr ? Bytes{} : Bytes{s}; }

// s without its first bytes / its first bytes only (string_view's own substr would throw).
inline Bytes from(Bytes s, std::size_t start) { return {s.data() + start, s.size() - start}; }
inline Bytes upTo(Bytes s, std::size_t end) { return {s.data(), end}; }

inline bool isNameLength(Bytes name) { return !name.empty() && name.size() <= maxName; }

inline bool allOf(Bytes s, const ByteSet &set) {
  bool isIn = true; // names are so short that to stop early takes longer
  for (const char c : s)
    isIn &= set.has(c);
  return isIn;
}

inline bool startsWith(Bytes s, Bytes prefix) { return s.size() >= prefix.size() && upTo(s, prefix.size()) == prefix; }

// Whether s, in any case, is a word in lower case.
inline bool isSameFolded(Bytes s, Bytes lowerWord) {
  if (s.size() != lowerWord.size())
    return false;
  for (std::size_t i = 0; i < s.size(); ++i)
    if (toLower(s[i]) != lowerWord[i])
      return false;
  return true;
}

constexpr Bytes force = "ESC_";
inline bool isForce(Bytes s) { return startsWith(s, force); }
inline Bytes skipForce(Bytes s) { return isForce(s) ? from(s, force.size()) : s; }

// What the bytes of a name are. Most names are words (letters, digits, '_'), which nearly every space takes as they
// are: whoever tests or writes one asks for that first, and looks at the other bytes only where there are some.
using Traits = std::uint16_t;
enum Trait : Traits {
  traitOther = 1, // bytes that no word has; like the kinds of them also set where this is not known
  traitUpper = 2,
  traitTwoUnderscores = 4, // "__"
  traitDigitFirst = 8,
  traitUnderscoreFirst = 16,
  traitUnderscoreLast = 32,
  traitPrefixLetter = 512, // begins as the prefixes that some spaces use

  traitMark = 64, // '#' or '%'
  traitBackslash = 128,
  traitNotGraphic = 256, // a blank, a control character, a byte of 128 or above
  kindsOfOther = traitMark | traitBackslash | traitNotGraphic
};

// Which kinds of bytes that no word has are in s.
Traits kindsIn(Bytes s);

struct Look {
  Traits traits;
  std::uint64_t head; // the first eight bytes, by which keywords are looked up
};

// The traits that the first byte of a name gives it.
struct FirstTraits {
  Traits of[256] = {};

  constexpr FirstTraits() {
    of[static_cast<unsigned char>('_')] = traitUnderscoreFirst;
    of[static_cast<unsigned char>('E')] = of[static_cast<unsigned char>('K')] = traitPrefixLetter;
    for (int c = '0'; c <= '9'; ++c)
      of[c] = traitDigitFirst;
  }
};
inline constexpr FirstTraits firstTraits;

// All of it but the kinds of other bytes, in one pass.
inline Look lookHere(Bytes s) {
  if (s.empty())
    return {};
  constexpr unsigned char caseBit = 'a' - 'A';
  BlockTest word = ~BlockTest{};
  Block unlike = {}; // the bits that some letter does not have
  const auto underscoresIn = [&](Block block) {
    const BlockTest isLetter = isWithin(block | caseBit, 'a', 'z');
    const BlockTest underscore = isChar(block, '_');
    word &= anyOf(isLetter, isWithin(block, '0', '9'), underscore);
    unlike |= reinterpret_cast<Block>(isLetter) & ~block;
    return underscore;
  };
  const auto pairsFrom = [&](std::size_t i) {
    return bitsOf(underscoresIn(loadBlock(s.data() + i)) & isChar(loadBlock(s.data() + i - 1), '_'));
  };

  const bool isShort = s.size() < blockBytes;
  const Block first = isShort ? loadPart(s.data(), s.size()) : loadBlock(s.data());
  const std::uint32_t underscores = bitsOf(underscoresIn(first));
  std::uint32_t pairs = underscores & underscores >> 1;
  if (s.size() > blockBytes) {
    const std::size_t last = s.size() - blockBytes;
    for (std::size_t i = blockBytes; i < last; i += blockBytes)
      pairs |= pairsFrom(i);
    pairs |= pairsFrom(last);
  }

  const std::uint32_t words = bitsOf(word) | (isShort ? allBits << s.size() & allBits : 0);
  const BlockTest isUpper = reinterpret_cast<BlockTest>((unlike & caseBit) == caseBit);
  const int traits = (words != allBits ? traitOther | kindsOfOther : 0) | (bitsOf(isUpper) != 0 ? traitUpper : 0) |
                     (pairs != 0 ? traitTwoUnderscores : 0) | firstTraits.of[static_cast<unsigned char>(s.front())] |
                     (s.back() == '_' ? traitUnderscoreLast : 0);
  return {static_cast<Traits>(traits), headOf(first)};
}

// The same as a call, for all but the busiest place.
Look lookAt(Bytes s);

// A name with what is known of it.
struct Name : Bytes {
  Look look = {};

  Name() = default;
  explicit Name(Bytes bytes) : Bytes(bytes), look(lookAt(bytes)) {}
  Name(Bytes bytes, Look known) : Bytes(bytes), look(known) {}
  Name(Bytes bytes, Traits traits) : Bytes(bytes), look{traits, headWord(bytes.data(), bytes.size())} {}

  // Member by member: a copy in blocks of what was just put together waits until that has reached memory.
  Name(const Name &other) : Bytes(other.data(), other.size()), look{other.look.traits, other.look.head} {}
  Name &operator=(const Name &other) {
    Bytes::operator=(Bytes(other.data(), other.size()));
    look.traits = other.look.traits;
    look.head = other.look.head;
    return *this;
  }

  bool has(Traits wanted) const { return (look.traits & wanted) != 0; }
  std::uint64_t head() const { return look.head; }
  bool isWord() const { return !has(traitOther); }

  // The same with the kinds of its other bytes known.
  Name withKinds() const {
    Name known = *this;
    if ((look.traits & kindsOfOther) == kindsOfOther)
      known.look.traits = static_cast<Traits>((look.traits & ~kindsOfOther) | kindsIn(*this));
    return known;
  }
};

// Whether name, which is not empty, consists of bytes of set, which holds those of words.
inline bool isMadeOf(const Name &name, const ByteSet &set) {
  // Most names that are not words end in a bracket, so that the last byte alone tells.
  return name.isWord() || (set.has(name.back()) && allOf(name, set));
}

// Text being written. It has room for the longest name with every byte spelt as four, behind a prefix and between
// quotes, so that a writer needs no bounds and an over-long result is known by its size.
struct Text {
  std::size_t size = 0;
  char bytes[4 * maxName + 16]; // not cleared: a buffer is made for every name

  void put(char c) { bytes[size++] = c; }

  void put(Bytes s) {
    moveBytes(bytes + size, s.data(), s.size());
    size += s.size();
  }

  Bytes view() const { return {bytes, size}; }
};

// A name that was read: marker and body. The body points into the name or into the reader's Text; without data, the
// name was refused.
struct Ident {
  char marker = '\0';
  Name body;

  bool isCaseSensitive() const { return marker != 'I'; }
};

// Gives look the bytes of s in blocks and where these begin, with zeros behind fewer bytes than a block's. The last
// block may begin before the end of the one before it.
template <typename LookAtBlock> void forEachBlock(Bytes s, LookAtBlock look) {
  if (s.size() < blockBytes) {
    look(loadPart(s.data(), s.size()), 0);
    return;
  }
  const std::size_t last = s.size() - blockBytes;
  for (std::size_t i = 0; i < last; i += blockBytes)
    look(loadBlock(s.data() + i), i);
  look(loadBlock(s.data() + last), last);
}

// A bit for each of the sixteen bytes of s from i on that no word has; none behind the end. s is not empty.
inline std::uint32_t othersFrom(Bytes s, std::size_t i) {
  if (s.size() < blockBytes)
    return ~bitsOf(isWordChar(loadPart(s.data(), s.size()))) & ((1U << s.size()) - 1);
  const std::size_t last = s.size() - blockBytes;
  const std::size_t start = i < last ? i : last;
  return (~bitsOf(isWordChar(loadBlock(s.data() + start))) & allBits) >> (i - start);
}

// What a writer made of an Ident: text, which lies in the Ident or in the writer's Text, between two marks where there
// are some. Without data, the Ident was refused.
struct Spelled {
  const char *data;
  std::uint32_t length;
  char open; // both NUL, or none
  char close;

  // cppcheck-suppress noExplicitConstructor ; most spellings are but text
  Spelled(Bytes text, char openMark = '\0', char closeMark = '\0')
      : data(text.data()), length(static_cast<std::uint32_t>(text.size())), open(openMark), close(closeMark) {}

  bool isRefused() const { return data == nullptr; }
  std::size_t size() const { return length + (open != '\0' ? 2U : 0U); }

  void copyTo(char *to) const {
    if (open == '\0') {
      moveBytes(to, data, length);
      return;
    }
    moveBytes(to + 1, data, length); // first, for it may lie there
    to[0] = open;
    to[length + 1] = close;
  }
};

// How a reader or a writer refuses its input.
inline Bytes refuse() {
  errno = EINVAL;
  return {};
}
inline Ident refuseIdent() { return {'\0', {refuse(), 0}}; }

// The case marker that most readers choose.
inline Ident identByCase(const Name &body) { return {body.has(traitUpper) ? 'S' : 'I', body}; }

} // namespace zeli

#endif
