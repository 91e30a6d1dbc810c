// A name space: the row that says all of it, and its operations on views.
#ifndef ZEL_SPACES_SPACE_H
#define ZEL_SPACES_SPACE_H

#include "spaces/keywordTest.h"

namespace zeli {

// Whether a word of these traits and this head begins with a prefix that some space uses.
constexpr bool hasPrefix(Traits traits, std::uint64_t head) {
  constexpr std::uint64_t forceHead = 0x5F435345;           // "ESC_"
  constexpr std::uint64_t keywordHead = 0x5F44524F5759454B; // "KEYWORD_"
  return (traits & traitPrefixLetter) != 0 && ((head & 0xFFFFFFFF) == forceHead || head == keywordHead);
}

// What a conversion depends on beside the name.
struct Setting {
  std::int32_t mapState = ZEL_MAP_UNSET; // ZEL_MAP_UNSET stands for that of the process
  zelHandle handle = nullptr;            // where a file may redefine separators; null stands for the current one
  const KeywordTest *reserved = nullptr; // words that are reserved beside the keywords of the space; or null

  bool isReserved(const Name &word) const { return reserved != nullptr && (*reserved)(word); }
};

inline std::int32_t mapStateOf(const Setting &setting) {
  return setting.mapState != ZEL_MAP_UNSET ? setting.mapState : mapStateOfProcess();
}

// Whether a writer puts the body of ident in lower case.
inline bool foldsCase(const Ident &ident, const Setting &setting) {
  // Also a case-sensitive Ident is a first use that determines the state.
  const std::int32_t state = mapStateOf(setting);
  return !ident.isCaseSensitive() && state != ZEL_MAP_MATCH;
}

// Which words are names of a space as they stand, in the default mapping state: those without some traits, and the
// keywords. (A word with a prefix that some space uses is never one.)
struct PlainWords {
  Traits notRead;
  Traits notWrittenSensitive; // of a case-sensitive Ident
  Traits notWrittenInsensitive;
  char readAs; // the marker of their Idents; NUL where it depends on capitals
  KeywordTest isKeyword = {};
};
constexpr PlainWords anyWord = {0, 0, traitUpper, '\0'};

// The traits without which a word that one space reads stands as it is in another.
constexpr Traits barredBetween(const PlainWords &from, const PlainWords &to) {
  // Where capitals make an Ident case-sensitive, an insensitive one has none that a writer could fold.
  return from.notRead | (from.readAs == 'I' ? to.notWrittenInsensitive : to.notWrittenSensitive);
}

// The reasons that every space has for a refusal, or what it says itself of a name of the right length.
template <typename Explain> zelRefusal explainLength(const Name &name, Explain explain) {
  if (name.empty())
    return {ZEL_REASON_EMPTY, 0};
  if (name.size() > maxName)
    return {ZEL_REASON_TOO_LONG, maxName};
  return explain();
}

// The first byte from start on that is not in set.
inline zelRefusal explainFirst(const Name &name, std::size_t start, const ByteSet &set) {
  std::size_t i = start;
  while (i < name.size() && set.has(name[i]))
    ++i;
  return {i == name.size() ? ZEL_REASON_NOT_CONVERTED : ZEL_REASON_ILLEGAL_CHARACTER, static_cast<std::uint32_t>(i)};
}

struct BackslashRules;
struct Separators;

// What a writer or reader returns lies in its input or in the Text. A refused Ident or spelling has no data; errno is
// EINVAL unless the space says otherwise.
struct Operations {
  bool (*isLegal)(const Name &name, const Setting &setting);
  Ident (*read)(const Name &name, const Setting &setting, Text &work);
  Spelled (*write)(const Ident &ident, const Setting &setting, Text &work);
  zelRefusal (*explain)(const Name &name); // why and where a name that is not read is refused
  PlainWords plainWords;
  zelHandle &(*currentHandle)() = nullptr;                              // where a file may redefine separators
  BackslashRules (*rulesUnder)(const Separators &separators) = nullptr; // likewise
};

// Set by the first call that puts a handle in force. Until then no thread needs to look for one of its own, which takes
// longer than the test of a name.
inline constinit std::atomic<bool> wasHandleInForce{false};

// The handle in force in this thread; null for the built-in one.
inline zelHandle handleInForce(zelHandle &(*currentHandle)()) {
  if (!wasHandleInForce.load(std::memory_order_relaxed)) [[likely]]
    return nullptr;
  return currentHandle();
}
inline zelHandle handleInForce(const Operations &names) {
  return names.currentHandle == nullptr ? nullptr : handleInForce(names.currentHandle);
}

// What every call with a handle ends with: the built-in handle is the current one again.
inline void leaveHandle(const Operations &names) {
  if (handleInForce(names) != nullptr)
    names.currentHandle() = nullptr;
}

// The operations of a space whose rules are constant.
template <const auto &rules>
constexpr Operations operationsOf = {
    [](const Name &name, const Setting &) { return rules.isLegal(name); },
    [](const Name &name, const Setting &setting, Text &work) { return rules.read(name, setting, work); },
    [](const Ident &ident, const Setting &setting, Text &work) { return rules.write(ident, setting, work); },
    [](const Name &name) { return rules.explain(name); }, rules.plainWords()};

} // namespace zeli

#endif
