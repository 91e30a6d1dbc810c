// The hex escape that carries any byte through any space: a mark ('#', in LEF and DEF '%') and two hex digits. The
// spaces differ in the mark and in the set of bytes that stand for themselves.
#ifndef ZEL_CORE_HEXESCAPE_H
#define ZEL_CORE_HEXESCAPE_H

#include "core/text.h"

namespace zeli {

struct HexDigits {
  std::int8_t values[256] = {};

  constexpr HexDigits() {
    for (int i = 0; i < 256; ++i) {
      const auto c = static_cast<char>(i);
      const char folded = toLower(c);
      const int value = digit.has(c) ? c - '0' : folded >= 'a' && folded <= 'f' ? folded - 'a' + 10 : -1;
      values[i] = static_cast<std::int8_t>(value);
    }
  }
};
inline constexpr HexDigits hexDigits;

// -1 where c is none.
constexpr int hexDigit(char c) { return hexDigits.values[static_cast<unsigned char>(c)]; }

// The byte that the hex pair at s[at] encodes; NUL when no pair stands there, and for the pair "00", which is never
// decoded.
inline char hexPair(Bytes s, std::size_t at) {
  if (at + 2 > s.size())
    return '\0';
  const int high = hexDigit(s[at]);
  const int low = hexDigit(s[at + 1]);
  return (high | low) < 0 ? '\0' : static_cast<char>(high * 16 + low);
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

  static constexpr char digitOf(int value) { return "0123456789abcdef"[value & 15]; }

  void put(Text &out, char c) const {
    out.put(mark);
    out.put(digitOf(static_cast<unsigned char>(c) >> 4));
    out.put(digitOf(c));
  }
};

// What each byte is written as: itself or an escape, behind a quote where one belongs. A table, so that no byte costs a
// branch.
struct Spelling {
  // The bytes, four at the most, the first in the lowest place, and above them how many they are: none for the mark of
  // the escape, whose spelling depends on what stands behind it.
  std::uint64_t entries[256] = {};
  bool quotesMark = false;
  char quote = '\0';
  bool keepsGraphic = true; // whether graphic bytes stand for themselves, but for the mark and the backslash
  Traits respelt;           // and if so, the kinds of bytes of which some do not

  constexpr Spelling(const HexEscape &escape, const ByteSet &standing, const ByteSet &quoted = {},
                     char quoteMark = '\\')
      : quotesMark(quoted.has(escape.mark)), quote(quoteMark),
        respelt(traitMark | traitNotGraphic | (quoted.has('\\') || !standing.has('\\') ? traitBackslash : 0)) {
    for (int i = 0; i < 256; ++i) {
      const auto c = static_cast<char>(i);
      if (c == escape.mark)
        continue;
      std::uint64_t text = 0;
      int length = 0;
      const auto add = [&](char byte) { text |= std::uint64_t{static_cast<unsigned char>(byte)} << (8 * length++); };
      if (quoted.has(c))
        add(quote);
      if (standing.has(c)) {
        add(c);
      } else {
        add(escape.mark);
        add(HexEscape::digitOf(i >> 4));
        add(HexEscape::digitOf(i));
      }
      entries[i] = text | static_cast<std::uint64_t>(length) << 32;
      if (graphic.has(c) && c != '\\' && (quoted.has(c) || !standing.has(c)))
        keepsGraphic = false;
    }
  }

  // Whether body, apart from case, is written as itself in a space that takes words as they are.
  bool keeps(const Name &body) const { return body.isWord() || (keepsGraphic && !body.withKinds().has(respelt)); }
};

// For text that is only copied.
constexpr HexEscape noEscape = {'\0', anyByte};

inline void copyLowered(Text &out, Bytes s) {
  constexpr unsigned char caseBit = 'a' - 'A';
  moveChanged(out.bytes + out.size, s.data(), s.size(),
              [](Block block) { return block + (reinterpret_cast<Block>(isWithin(block, 'A', 'Z')) & caseBit); });
  out.size += s.size();
}

// Writes the mark of the escape at body[at], so that it reads back as a plain mark.
inline void encodeMark(Text &out, Bytes body, std::size_t at, const HexEscape &escape, const Spelling &spelling) {
  if (spelling.quotesMark)
    out.put(spelling.quote);
  if (escape.isEscape(body, at))
    escape.put(out, escape.mark);
  else
    out.put(escape.mark);
}

// Writes body by a spelling, in lower case when it folds. hasMarks: whether the mark of the escape may be in it.
template <bool folds, bool hasMarks>
void encodeAs(Text &out, Bytes body, const HexEscape &escape, const Spelling &spelling) {
  char *to = out.bytes + out.size;
  const auto putAt = [&](std::size_t i) {
    // A byte that is lowered is never the mark.
    const std::uint64_t entry = spelling.entries[static_cast<unsigned char>(folds ? toLower(body[i]) : body[i])];
    const auto text = static_cast<std::uint32_t>(entry);
    std::memcpy(to, &text, sizeof text);
    to += entry >> 32;
    if (hasMarks && entry == 0) [[unlikely]] {
      out.size = static_cast<std::size_t>(to - out.bytes);
      encodeMark(out, body, i, escape, spelling);
      to = out.bytes + out.size;
    }
  };
  std::size_t i = 0;
  for (; i + 4 <= body.size(); i += 4) {
    putAt(i);
    putAt(i + 1);
    putAt(i + 2);
    putAt(i + 3);
  }
  for (; i < body.size(); ++i)
    putAt(i);
  out.size = static_cast<std::size_t>(to - out.bytes);
}

inline void encode(Text &out, Bytes body, const HexEscape &escape, const Spelling &spelling, bool folds,
                   bool hasMarks = true) {
  if (folds)
    encodeAs<true, true>(out, body, escape, spelling);
  else if (hasMarks)
    encodeAs<false, true>(out, body, escape, spelling);
  else
    encodeAs<false, false>(out, body, escape, spelling);
}

// The bytes that a writer makes of a body, behind what work holds already, in a space that takes words as they are: the
// body itself if it can be.
inline Bytes spell(Text &work, const Name &body, const HexEscape &escape, const Spelling &spelling, bool folds) {
  if (!spelling.keeps(body))
    encode(work, body, escape, spelling, folds, body.has(traitMark));
  else if (folds && body.has(traitUpper))
    copyLowered(work, body);
  else if (work.size == 0)
    return body;
  else
    work.put(body);
  return work.view();
}

// Copies name to out with its escapes decoded; returns whether a capital was copied (decoded ones do not count).
// quotes(name, i) tells whether the byte at i only quotes the one behind it.
template <typename Quotes> bool decode(Text &out, Bytes name, const HexEscape &escape, Quotes quotes) {
  bool copiedUpper = false;
  char *to = out.bytes + out.size;
  for (std::size_t i = 0; i < name.size();) {
    if (quotes(name, i))
      ++i;
    const char c = name[i];
    if (c == escape.mark && escape.isEscape(name, i)) {
      *to++ = hexPair(name, i + 1);
      i += 3;
      continue;
    }
    copiedUpper |= upper.has(c);
    *to++ = c;
    ++i;
  }
  out.size = static_cast<std::size_t>(to - out.bytes);
  return copiedUpper;
}

inline bool quotesNothing(Bytes, std::size_t) { return false; }

// The same where nothing is quoted, of a name of ordinary length: what lies between the marks is copied in runs.
inline bool decodeRuns(Text &out, Bytes name, const HexEscape &escape) {
  std::uint64_t marks = 0;
  std::uint64_t capitals = 0;
  forEachBlock(name, [&](Block block, std::size_t at) {
    marks |= std::uint64_t{bitsOf(isChar(block, escape.mark))} << at;
    capitals |= std::uint64_t{bitsOf(isWithin(block, 'A', 'Z'))} << at;
  });
  char *to = out.bytes + out.size;
  std::size_t start = 0;
  const auto copyUpTo = [&](std::size_t end) {
    copyRun(to, name.data(), name.size(), start, end);
    to += end - start;
  };
  for (; marks != 0; marks &= marks - 1) {
    const auto at = static_cast<std::size_t>(__builtin_ctzll(marks));
    if (at < start || !escape.isEscape(name, at))
      continue;
    copyUpTo(at);
    *to++ = hexPair(name, at + 1);
    start = at + 3;
    capitals &= ~(std::uint64_t{7} << at);
  }
  copyUpTo(name.size());
  out.size = static_cast<std::size_t>(to - out.bytes);
  return capitals != 0;
}

// The Ident of a name where nothing is quoted; a capital makes a case-sensitive one. A name in which nothing is encoded
// is its own body.
inline Ident decodeIdent(Text &work, const Name &name, const HexEscape &escape) {
  constexpr std::size_t longest = 64;
  const Name known = name.withKinds();
  if (!known.has(traitMark))
    return identByCase(known);
  const bool copiedUpper =
      name.size() <= longest ? decodeRuns(work, name, escape) : decode(work, name, escape, quotesNothing);
  return {copiedUpper ? 'S' : 'I', Name(work.view())};
}

} // namespace zeli

#endif
