// Sets of bytes with the algebra that character classes are written in. ASCII only and independent of the locale: a
// byte of 128 or above is in no named class.
#ifndef ZEL_CORE_BYTESET_H
#define ZEL_CORE_BYTESET_H

#include <initializer_list>

namespace zeli {

// A table and no bits: the test of a byte is one load.
struct ByteSet {
  bool members[256] = {};

  constexpr bool has(char c) const { return members[static_cast<unsigned char>(c)]; }
  constexpr void add(char c) { members[static_cast<unsigned char>(c)] = true; }

  friend constexpr ByteSet operator|(ByteSet a, const ByteSet &b) {
    for (int i = 0; i < 256; ++i)
      a.members[i] = a.members[i] || b.members[i];
    return a;
  }

  friend constexpr ByteSet operator-(ByteSet a, const ByteSet &b) {
    for (int i = 0; i < 256; ++i)
      a.members[i] = a.members[i] && !b.members[i];
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

constexpr ByteSet chars(std::initializer_list<char> list) {
  ByteSet set;
  for (const char c : list)
    set.add(c);
  return set;
}

constexpr ByteSet anyByte = range(0, 255);
constexpr ByteSet ascii = range(0, 127);
constexpr ByteSet beyondAscii = range(128, 255);
constexpr ByteSet upper = range('A', 'Z');
constexpr ByteSet lower = range('a', 'z');
constexpr ByteSet letter = upper | lower;
constexpr ByteSet digit = range('0', '9');
constexpr ByteSet graphic = range(0x21, 0x7e);
constexpr ByteSet white = chars(" \t\n\v\f\r");

// The characters of a word, which every space but few takes as they are.
constexpr ByteSet wordChar = letter | digit | chars("_");

constexpr char toLower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; }

} // namespace zeli

#endif
