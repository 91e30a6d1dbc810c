// The hex escape that carries any byte through any space: a mark ('#', in LEF and DEF '%') and two hex digits. The
// spaces differ in the mark and in the set of bytes that stand for themselves.
#ifndef ZEL_CORE_HEXESCAPE_H
#define ZEL_CORE_HEXESCAPE_H

#include "core/text.h"

namespace zeli {

constexpr int hexDigit(char c) {
  if (c >= '0' && c <= '9')
    return c - '0';
  const char folded = toLower(c);
  return folded >= 'a' && folded <= 'f' ? folded - 'a' + 10 : -1;
}

// The byte that the hex pair at s[at] encodes; NUL when no pair stands there, and for the pair "00", which is never
// decoded.
inline char hexPair(Bytes s, std::size_t at) {
  if (at + 2 > s.size())
    return '\0';
  const int high = hexDigit(s[at]);
  const int low = hexDigit(s[at + 1]);
  return high < 0 || low < 0 ? '\0' : static_cast<char>(high * 16 + low);
}

struct HexEscape {
  char mark;
  ByteSet literal;       // the bytes that are never written as an escape, and so never read as one
  bool looksPast = true; // see isEscape; EscORKA's writer alone does not

  // Whether the mark at s[at] begins an escape. An escaped mark counts only where it protects: in front of a pair that
  // would otherwise be read as an escape. A writer must escape exactly the marks that a reader would decode, so both
  // ask this question, and every body survives the round trip.
  bool isEscape(Bytes s, std::size_t at) const {
    const char value = hexPair(s, at + 1);
    if (value != mark)
      return value != '\0' && !literal.has(value);
    if (!looksPast)
      return true;
    const char behind = hexPair(s, at + 3);
    return behind != '\0' && (behind == mark || !literal.has(behind));
  }

  void put(Text &out, char c) const {
    constexpr char digits[] = "0123456789abcdef";
    const auto byte = static_cast<unsigned char>(c);
    out.put(mark);
    out.put(digits[byte >> 4]);
    out.put(digits[byte & 15]);
  }
};

// For text that is only copied.
constexpr HexEscape noEscape = {'\0', anyByte};

// A character that a writer puts in front of some bytes, whether these then stand for themselves or as an escape.
struct Quoting {
  ByteSet bytes;
  char quote = '\\';
};

// Writes body: the bytes of standing as they are (in lower case when it folds), the others as escapes.
inline void encode(Text &out, Bytes body, const HexEscape &escape, bool folds, const ByteSet &standing,
                   const Quoting &quoting) {
  for (std::size_t i = 0; i < body.size(); ++i) {
    const char c = folds ? toLower(body[i]) : body[i];
    if (quoting.bytes.has(c))
      out.put(quoting.quote);
    // The mark is written so that it reads back as a plain mark.
    if (c == escape.mark ? escape.isEscape(body, i) : !standing.has(c))
      escape.put(out, c);
    else
      out.put(c);
  }
}

// The same for a space where the bytes that are never read as an escape are the ones that stand as they are.
inline void encode(Text &out, Bytes body, const HexEscape &escape, bool folds, const Quoting &quoting = {}) {
  encode(out, body, escape, folds, escape.literal, quoting);
}

// Copies name to out with its escapes decoded; returns whether a capital was copied (decoded ones do not count).
// quotes(name, i) tells whether the byte at i only quotes the one behind it.
template <typename Quotes> bool decode(Text &out, Bytes name, const HexEscape &escape, Quotes quotes) {
  bool copiedUpper = false;
  for (std::size_t i = 0; i < name.size();) {
    if (quotes(name, i))
      ++i;
    const char c = name[i];
    if (c == escape.mark && escape.isEscape(name, i)) {
      out.put(hexPair(name, i + 1));
      i += 3;
      continue;
    }
    copiedUpper |= upper.has(c);
    out.put(c);
    ++i;
  }
  return copiedUpper;
}

inline bool quotesNothing(Bytes, std::size_t) { return false; }

// The same as an Ident, of which a capital makes a case-sensitive one.
template <typename Quotes> Ident decodeIdent(Text &work, Bytes name, const HexEscape &escape, Quotes quotes) {
  const bool copiedUpper = decode(work, name, escape, quotes);
  return identByCase(copiedUpper, work.view());
}

// Whether every byte from start up to end is quoted, as for decode, or one of set. The last may quote the byte at end.
template <typename Quotes>
bool isMadeOf(const ByteSet &set, Bytes name, std::size_t start, std::size_t end, Quotes quotes) {
  for (std::size_t i = start; i < end; ++i) {
    if (quotes(name, i))
      ++i;
    else if (!set.has(name[i]))
      return false;
  }
  return true;
}

} // namespace zeli

#endif
