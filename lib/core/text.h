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
  for (const char c : s)
    if (!set.has(c))
      return false;
  return true;
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

// What the bytes of a name are, found in one pass. Most names are words (letters, digits, '_'), which nearly every
// space takes as they are: whoever tests or writes one asks for that first and looks at single bytes only otherwise.
enum Trait : std::uint8_t {
  traitOther = 1, // bytes that no word has; like traitBackslash also set where this is not known
  traitUpper = 2,
  traitTwoUnderscores = 4, // "__"
  traitHash = 8,
  traitPercent = 16,
  traitBackslash = 32
};

inline std::uint8_t traitsOf(Bytes s) {
  BlockTest other = {};
  BlockTest capital = {};
  BlockTest hash = {};
  BlockTest percent = {};
  BlockTest backslash = {};
  std::uint32_t pairs = 0;
  std::uint32_t carried = 0; // the last underscore of the block before
  const auto look = [&](Block block) {
    const BlockTest underscore = isChar(block, '_');
    const BlockTest isUpper = isWithin(block, 'A', 'Z');
    other |= ~(isWithin(block | static_cast<unsigned char>(0x20), 'a', 'z') | isWithin(block, '0', '9') | underscore);
    capital |= isUpper;
    hash |= isChar(block, '#');
    percent |= isChar(block, '%');
    backslash |= isChar(block, '\\');
    const std::uint32_t bits = bitsOf(underscore);
    pairs |= bits & (bits << 1 | carried);
    carried = bits >> (blockBytes - 1);
  };

  std::uint32_t used = 0xFFFF; // the bytes of a part that belong to the name
  if (s.size() < blockBytes) {
    look(loadPart(s.data(), s.size()));
    used = (1U << s.size()) - 1;
  } else {
    std::size_t i = 0;
    for (; i + blockBytes <= s.size(); i += blockBytes)
      look(loadBlock(s.data() + i));
    if (i < s.size()) {
      carried = 0; // the last block begins before the boundary
      look(loadBlock(s.data() + s.size() - blockBytes));
    }
  }
  const auto has = [](BlockTest test, Trait trait) { return bitsOf(test) != 0 ? trait : 0; };
  const bool isOther = (bitsOf(other) & used) != 0;
  return static_cast<std::uint8_t>((isOther ? traitOther : 0) | has(capital, traitUpper) | has(hash, traitHash) |
                                   has(percent, traitPercent) | has(backslash, traitBackslash) |
                                   (pairs != 0 ? traitTwoUnderscores : 0));
}

// A name with its traits.
struct Name : Bytes {
  std::uint8_t traits = 0;

  Name() = default;
  explicit Name(Bytes bytes) : Bytes(bytes), traits(traitsOf(bytes)) {}
  Name(Bytes bytes, std::uint8_t known) : Bytes(bytes), traits(known) {}

  bool has(std::uint8_t wanted) const { return (traits & wanted) != 0; }
  bool isWord() const { return !has(traitOther); }
};

// Whether name consists of bytes of set, which holds those of words.
inline bool isMadeOf(const Name &name, const ByteSet &set) { return name.isWord() || allOf(name, set); }

// Text being written. It has room for the longest name with every byte spelt as four, behind a prefix and between
// quotes, so that a writer needs no bounds and an over-long result is known by its size.
struct Text {
  std::size_t size = 0;
  char bytes[4 * maxName + 16]; // not cleared: a buffer is made for every name

  void put(char c) { bytes[size++] = c; }

  void put(Bytes s) {
    std::memcpy(bytes + size, s.data(), s.size());
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
