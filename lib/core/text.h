// Names inside the library: views of what was given, and a bounded buffer for what is being written.
#ifndef ZEL_CORE_TEXT_H
#define ZEL_CORE_TEXT_H

#include "core/byteSet.h"
#include "core/zel.h"

#include <cerrno>
#include <cstddef>
#include <cstring>
#include <string_view>

namespace zeli {

constexpr std::size_t maxName = ZEL_MAX_NAME;

using Bytes = std::string_view;

// The bytes of a caller's string. Reading stops one past the longest name, so that an over-long string costs no more
// than that and is known by its size. Null gives a view without data.
inline Bytes nameBytes(const char *s) { return s == nullptr ? Bytes{} : Bytes{s, strnlen(s, maxName + 1)}; }

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

inline bool hasUpper(Bytes s) {
  for (const char c : s)
    if (upper.has(c))
      return true;
  return false;
}

inline bool startsWith(Bytes s, Bytes prefix) { return s.size() >= prefix.size() && upTo(s, prefix.size()) == prefix; }

constexpr Bytes force = "ESC_";
inline bool isForce(Bytes s) { return startsWith(s, force); }
inline Bytes skipForce(Bytes s) { return isForce(s) ? from(s, force.size()) : s; }

// Text being written: the longest name behind a force prefix, and one byte more. It counts what does not fit instead of
// storing it, so that a writer needs no bounds of its own and an over-long result is known by its size.
struct Text {
  std::size_t size = 0;
  char bytes[maxName + 1 + force.size()]; // not cleared: a buffer is made for every name

  void put(char c) {
    if (size < sizeof bytes)
      bytes[size] = c;
    ++size;
  }

  void put(Bytes s) {
    if (size < sizeof bytes) {
      const std::size_t room = sizeof bytes - size;
      std::memcpy(bytes + size, s.data(), s.size() < room ? s.size() : room);
    }
    size += s.size();
  }

  // What is stored. Of a text that did not fit, this is still over-long.
  Bytes view() const { return {bytes, size < sizeof bytes ? size : sizeof bytes}; }
};

// A name that was read: marker and body. The body points into the name or into the reader's Text; without data, the
// name was refused.
struct Ident {
  char marker = '\0';
  Bytes body;

  bool isCaseSensitive() const { return marker != 'I'; }
};

// How a reader or a writer refuses its input.
inline Bytes refuse() {
  errno = EINVAL;
  return {};
}
inline Ident refuseIdent() { return {'\0', refuse()}; }

// The case marker that most readers choose.
inline Ident identByCase(bool copiedUpper, Bytes body) { return {copiedUpper ? 'S' : 'I', body}; }

// A writer's view of an Ident string; refused (EINVAL) when it is no Ident or its body is over-long.
inline Ident identOf(const char *ident) {
  if (zelIsLegalIdent(ident) == 0)
    return refuseIdent();
  const Bytes body = nameBytes(ident + 1);
  return isNameLength(body) ? Ident{*ident, body} : refuseIdent();
}

} // namespace zeli

#endif
