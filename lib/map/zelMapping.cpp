// What a mapping answers.
#include "map/itemPath.h"
#include "map/levelPath.h"
#include "map/mapping.h"

#include "path/zelPathParse.h"

using namespace zeli;

namespace {

Bytes refused(zelRefusal &refusal, std::int32_t reason, std::size_t position) {
  refusal = {reason, static_cast<std::uint32_t>(position)};
  return {};
}

// Whether a text is one word that stands as it is, a name or a path of one level.
bool isPlainWord(const Route &route, const Name &text) {
  return route.takesPlainWords && !text.has(route.unless | traitOther) && isNameLength(text) &&
         !hasPrefix(text.look.traits, text.head()) && !route.isKeyword(text, text.head());
}

// One name, with its element letter where it has one.
Bytes mapName(const Route &route, const Name &given, MappingWork &work, zelRefusal &refusal) {
  const bool isElement = (route.from.element != '\0' || route.to.element != '\0') && route.isElement(true);
  Name name = given;
  std::size_t start = 0;
  if (isElement && route.from.element != '\0') {
    if (given.empty() || toLower(given[0]) != toLower(route.from.element))
      return refused(refusal, ZEL_REASON_NO_ELEMENT_LETTER, 0);
    start = 1;
    name = Name(from(given, 1));
  }
  if (const std::size_t nul = given.find('\0'); nul != Bytes::npos)
    return refused(refusal, ZEL_REASON_ILLEGAL_CHARACTER, nul);
  work.readWork.size = work.writeWork.size = 0;
  const Ident ident = route.from.read(name, work.readWork);
  if (ident.body.data() == nullptr) {
    const zelRefusal inside = route.from.explain(*route.from.names, name);
    return refused(refusal, inside.reason, start + inside.position);
  }
  if (!isNameLength(ident.body))
    return refused(refusal, ident.body.empty() ? ZEL_REASON_NOT_CONVERTED : ZEL_REASON_TOO_LONG, start);
  const Spelled spelled = route.to.write(ident, work.writeWork);
  const bool isLettered = isElement && route.to.element != '\0';
  if (spelled.isRefused())
    return refused(refusal, ZEL_REASON_NOT_WRITABLE, start);
  if (spelled.size() + (isLettered ? 1 : 0) > maxName)
    return refused(refusal, ZEL_REASON_RESULT_TOO_LONG, start);
  if (!isLettered && spelled.open == '\0')
    return {spelled.data, spelled.length};
  work.items[0] = route.to.element;
  spelled.copyTo(work.items + 1);
  return isLettered ? Bytes(work.items, spelled.size() + 1) : Bytes(work.items + 1, spelled.size());
}

// Whether the path object answers for a route as well as levels do.
bool hasItems(const Route &route, Bytes text) {
  const Side &from = route.from;
  // Where pins have a delimiter, only dividers in front are more than levels.
  const bool isPinless = from.pinDelimiter == '\0' || (!text.empty() && text[0] == from.marks.divider &&
                                                       text.find(from.pinDelimiter) == Bytes::npos);
  return isPinless && from.ownNames == nullptr && route.to.ownNames == nullptr && from.element == '\0' &&
         route.to.element == '\0' && (route.to.pinDelimiter == '\0' || route.kind != ZEL_KIND_PIN);
}

// Whether the brackets of an index also hold a repeat count, which stands in front of a name.
bool areRepeatsBracketed(const Route &route) { return route.from.language->reader.grammar == parseORKA; }

Bytes mapPath(const Route &route, zelHandle handle, Bytes text, MappingWork &work, zelRefusal &refusal) {
  const Bytes result = work.levels.map(text, route);
  if (result.data() != nullptr)
    return result;
  refusal = work.levels.refusal;
  if (text.empty() || !hasItems(route, text) || text.size() > LevelPath::longest ||
      std::memchr(text.data(), '\0', text.size()) != nullptr)
    return {};
  // The grammars want a NUL, which ends a text of a column only here.
  std::memcpy(work.source, text.data(), text.size());
  work.source[text.size()] = '\0';
  TransientNames names = {.text = work.source,
                          .read = route.from.names,
                          .from = route.from.setting,
                          .written = route.to.names,
                          .to = route.to.setting,
                          .tested = route.tested,
                          .indexEnd = areRepeatsBracketed(route) ? '\0' : route.from.marks.busClose};
  const int error = errno;
  errno = 0;
  const char *items = mapByItems(*route.from.language, handle, *route.to.language, route.to.setting.handle,
                                 route.printFlags, names, nullptr, work.items);
  if (items == nullptr && names.refusal.reason == ZEL_REASON_NONE)
    names.refusal = {errno == ENOMEM ? ZEL_REASON_NO_MEMORY : ZEL_REASON_RESULT_TOO_LONG, 0};
  else if (items != nullptr && *items == '\0')
    names.refuse(names.text, allOf(text, white) ? ZEL_REASON_EMPTY : ZEL_REASON_NOT_WRITABLE);
  errno = error;
  // A level knows better why it does not convert.
  if (names.refusal.reason != ZEL_REASON_NOT_CONVERTED || names.refusal.position != refusal.position)
    refusal = names.refusal;
  return items != nullptr && refusal.reason == ZEL_REASON_NONE ? Bytes(items) : Bytes{};
}

// The string of a result, which may lie in the text; an allocator may write there: a ring marks its old results.
char *finish(Bytes result, const zelRefusal &refusal, MappingWork &work, zelAllocFunc alloc, void *context) {
  if (result.data() == nullptr) {
    errno = refusal.reason == ZEL_REASON_NO_MEMORY ? ENOMEM : EINVAL;
    return nullptr;
  }
  if (alloc != nullptr && result.size() <= maxName) {
    std::memmove(work.source, result.data(), result.size());
    result = {work.source, result.size()};
  }
  return makeString(result, alloc, context);
}

// Whether no mark that a file chose also stands for something else in its grammar: only the ':' of ranges does.
bool areOwnMarks(const Side &side) {
  const auto [divider, busOpen, busClose] = side.marks;
  return side.setting.handle == nullptr || (divider != ':' && busOpen != ':' && busClose != ':');
}

// Nothing but memory and the grammar keeps a path from its result.
char *applyLeniently(const zelMappingRecord &mapping, const char *text, zelAllocFunc alloc, void *context) {
  const Route &route = mapping.route;
  MappingWork work;
  zelRefusal refusal = {};
  if (mapping.isNames)
    return finish(mapName(route, Name(Bytes(text, strnlen(text, LevelPath::longest + 1))), work, refusal), refusal,
                  work, alloc, context);
  if (areOwnMarks(route.from) && areOwnMarks(route.to)) {
    const Bytes result = work.levels.map({text, strnlen(text, LevelPath::longest + 1)}, route);
    if (result.data() != nullptr)
      return makeString(result, alloc, context);
  }
  TransientNames names = {.text = text,
                          .read = route.from.names,
                          .from = route.from.setting,
                          .written = route.to.names,
                          .to = route.to.setting};
  return mapByItems(*route.from.language, mapping.fromHandle, *route.to.language, route.to.setting.handle,
                    route.printFlags, names, alloc, context);
}

// Why a mapping refuses a text.
zelRefusal diagnose(const zelMappingRecord &mapping, const char *text) {
  MappingWork work;
  zelRefusal refusal = {};
  if (mapping.isLenient && applyLeniently(mapping, text, nullptr, work.items) != nullptr)
    return refusal;
  mapText(mapping, mapping.route, {text, strnlen(text, LevelPath::longest + 1)}, work, refusal);
  if (mapping.isLenient && refusal.reason == ZEL_REASON_NONE)
    refusal.reason = ZEL_REASON_NOT_CONVERTED;
  return refusal;
}

} // namespace

Bytes zeli::mapText(const zelMappingRecord &mapping, const Route &route, Bytes text, MappingWork &work,
                    zelRefusal &refusal) {
  refusal = {};
  const Name given(text);
  if (isPlainWord(route, given))
    return text;
  if (mapping.isNames)
    return mapName(route, given, work, refusal);
  const zelHandle handle = &route == &mapping.resultKey ? mapping.toHandle : mapping.fromHandle;
  return mapPath(route, handle, text, work, refusal);
}

[[gnu::noinline]] static char *applyStrictly(const zelMappingRecord &mapping, Bytes given, zelAllocFunc alloc,
                                             void *context) {
  MappingWork work;
  zelRefusal refusal = {};
  const Bytes result = mapText(mapping, mapping.route, given, work, refusal);
  return finish(result, refusal, work, alloc, context);
}

char *zelMappingApply(zelMapping mapping, const char *text, zelAllocFunc alloc, void *context) noexcept {
  if (mapping == nullptr || text == nullptr) {
    errno = EINVAL;
    return nullptr;
  }
  if (mapping->isLenient)
    return applyLeniently(*mapping, text, alloc, context);
  const Bytes given(text, strnlen(text, LevelPath::longest + 1));
  if (alloc == nullptr && isPlainWord(mapping->route, Name(given, lookHere(given))))
    return makeString(given, alloc, context);
  return applyStrictly(*mapping, given, alloc, context);
}

std::int32_t zelDiagnose(zelMapping mapping, const char *text, zelRefusal *refusal) noexcept {
  zelRefusal found = {ZEL_REASON_BAD_ARGUMENT, 0};
  if (mapping != nullptr && text != nullptr) {
    const int error = errno;
    found = diagnose(*mapping, text);
    errno = error;
  }
  if (refusal != nullptr)
    *refusal = found;
  return found.reason;
}

char *zelMappingKey(zelMapping mapping, const char *text, zelAllocFunc alloc, void *context) noexcept {
  if (mapping == nullptr || text == nullptr) {
    errno = EINVAL;
    return nullptr;
  }
  MappingWork work;
  zelRefusal refusal = {};
  const Bytes key = mapText(*mapping, mapping->sourceKey, {text, strnlen(text, LevelPath::longest + 1)}, work, refusal);
  return finish(key, refusal, work, alloc, context);
}

std::int32_t zelMappingCheck(zelMapping mapping, const char *text, const char *result) noexcept {
  if (mapping == nullptr || text == nullptr || result == nullptr)
    return ZEL_CHECK_UNREADABLE;
  MappingWork sourceWork;
  MappingWork resultWork;
  zelRefusal refusal = {};
  const Bytes source =
      mapText(*mapping, mapping->sourceKey, {text, strnlen(text, LevelPath::longest + 1)}, sourceWork, refusal);
  const Bytes back =
      mapText(*mapping, mapping->resultKey, {result, strnlen(result, LevelPath::longest + 1)}, resultWork, refusal);
  if (source.data() == nullptr || back.data() == nullptr)
    return ZEL_CHECK_UNREADABLE;
  if (source == back)
    return ZEL_CHECK_SAME;
  const bool isFolded =
      source.size() == back.size() &&
      std::equal(source.begin(), source.end(), back.begin(), [](char a, char b) { return toLower(a) == toLower(b); });
  return isFolded ? ZEL_CHECK_CASE_LOST : ZEL_CHECK_OTHER;
}
