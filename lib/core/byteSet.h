// Sets of bytes with the algebra that character classes are written in. ASCII only and independent of the locale: a
// byte of 128 or above is in no named class.
#ifndef ZEL_CORE_BYTESET_H
#define ZEL_CORE_BYTESET_H

#include <cstdint>

namespace zeli {

struct ByteSet {
  std::uint64_t words[4] = {};

  constexpr bool has(char c) const {
    const auto byte = static_cast<unsigned char>(c);
    return ((words[byte >> 6] >> (byte & 63)) & 1) != 0;
  }

  constexpr void add(char c) {
    const auto byte = static_cast<unsigned char>(c);
    words[byte >> 6] |= std::uint64_t{1} << (byte & 63);
  }

  friend constexpr ByteSet operator|(ByteSet a, const ByteSet &b) {
    for (int i = 0; i < 4; ++i)
      a.words[i] |= b.words[i];
    return a;
  }

  friend constexpr ByteSet operator-(ByteSet a, const ByteSet &b) {
    for (int i = 0; i < 4; ++i)
      a.words[i] &= ~b.words[i];
    return a;
  }
};

constexpr ByteSet range(int first, int last) {
  ByteSet set;
  for (int c = first; c <= last; ++c)
    set.add(static_cast<char>(c));
  return set;
}

constexpr ByteSet chars(const char *list) {
  ByteSet set;
  for (; *list != '\0'; ++list)
    set.add(*list);
  return set;
}

constexpr ByteSet anyByte = range(0, 255);
constexpr ByteSet ascii = range(0, 127);
constexpr ByteSet upper = range('A', 'Z');
constexpr ByteSet lower = range('a', 'z');
constexpr ByteSet letter = upper | lower;
constexpr ByteSet digit = range('0', '9');
constexpr ByteSet graphic = range(0x21, 0x7e);
constexpr ByteSet white = chars(" \t\n\v\f\r");

constexpr char toLower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; }

} // namespace zeli

#endif
