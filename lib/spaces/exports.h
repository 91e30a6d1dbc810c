// The exported functions of a space, one line each: the name that zel.h declares, and the rules that it asks.
#ifndef ZEL_SPACES_EXPORTS_H
#define ZEL_SPACES_EXPORTS_H

#include "spaces/space.h"

namespace zeli {

template <typename Rules> int isLegalName(const Rules &rules, const char *name) {
  return rules.isLegal(Name(nameBytes(name))) ? 1 : 0;
}

template <typename Rules> char *writeName(const Rules &rules, const char *ident, zelAllocFunc alloc, void *context) {
  const Ident view = identOf(ident);
  if (view.body.data() == nullptr)
    return nullptr;
  Text work;
  return makeSpelled(rules.write(view, Setting{}, work), work, alloc, context);
}

template <typename Rules> char *readName(const Rules &rules, const char *name, zelAllocFunc alloc, void *context) {
  Text work;
  return makeIdent(rules.read(Name(nameBytes(name)), Setting{}, work), alloc, context);
}

} // namespace zeli

// zelIsLegal<X>, zelIdentTo<X>, zel<X>ToIdent
#define ZEL_EXPORT_LEGAL(function, rules)                                                                              \
  int function(const char *name) noexcept { return zeli::isLegalName(rules, name); }
#define ZEL_EXPORT_WRITER(function, rules)                                                                             \
  char *function(const char *ident, zelAllocFunc alloc, void *context) noexcept {                                      \
    return zeli::writeName(rules, ident, alloc, context);                                                              \
  }
#define ZEL_EXPORT_READER(function, rules)                                                                             \
  char *function(const char *name, zelAllocFunc alloc, void *context) noexcept {                                       \
    return zeli::readName(rules, name, alloc, context);                                                                \
  }

// A test of one character, and of a word of any length.
#define ZEL_EXPORT_CHARACTER(function, set)                                                                            \
  int function(int c) noexcept { return (set).has(static_cast<char>(c)) ? 1 : 0; }
#define ZEL_EXPORT_WORD(function, test)                                                                                \
  int function(const char *word) noexcept { return test(zeli::Name(zeli::wholeBytes(word))) ? 1 : 0; }

// zelIs<X>Keyword: a test that asks for no traits.
#define ZEL_EXPORT_KEYWORD(function, test)                                                                             \
  int function(const char *word) noexcept { return test(zeli::Name(zeli::wholeBytes(word), 0)) ? 1 : 0; }

// zelVerify<X>Keywords
#define ZEL_EXPORT_VERIFY(function, keywords)                                                                          \
  int function() noexcept { return (keywords).verify() ? 1 : 0; }

#endif
