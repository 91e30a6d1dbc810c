#include "map/route.h"

#include "path/zelPathParse.h"

#include <algorithm>
#include <new>

using namespace zeli;

namespace {

// Marks that stand for nothing else in any grammar.
bool areMarks(const Punctuation &marks) {
  static constexpr ByteSet others = wordChar | chars("+-:\\");
  const auto [divider, busOpen, busClose] = marks;
  return !others.has(divider) && !others.has(busOpen) && !others.has(busClose) && divider != busOpen &&
         divider != busClose && busOpen != busClose && divider != '\0';
}

// Whether a handle says nothing that a side does not.
bool isPlainHandle(zelHandle handle, const Operations &names, const Punctuation &marks) {
  if (handleInForce(names) != nullptr)
    return false;
  return handle == nullptr || handle->kind == builtInHandle ||
         (areMarks(marks) && handle->names == &names && handle->rules->takesWords);
}

bool isSettled(const Operations *names) { return names == nullptr || names->plainWords.isKeyword.isSettled(); }

} // namespace

void Route::join() {
  unless = barredBetween(from.names->plainWords, to.names->plainWords);
  const KeywordTest **end = keywordTests;
  const auto add = [&](const KeywordTest &test) {
    *end = &test;
    end += test.has != nullptr ? 1 : 0;
    longestKeyword = std::max(longestKeyword, test.longest);
  };
  add(from.names->plainWords.isKeyword);
  if (to.names != from.names)
    add(to.names->plainWords.isKeyword);
  if (tested != nullptr && tested != from.names) {
    unless |= tested->plainWords.notRead;
    add(tested->plainWords.isKeyword);
  }
  if (to.setting.reserved != nullptr)
    add(*to.setting.reserved);
  *end = nullptr;
  const bool hasElements = from.element != '\0' || to.element != '\0';
  takesPlainWords = takesWords() && (printFlags & wholePathFlags) == 0 && !(hasElements && isElement(true));
  if (from.language != nullptr && to.language != nullptr) {
    const bool hasPins = kind == ZEL_KIND_PIN && (from.pinDelimiter != '\0' || to.pinDelimiter != '\0');
    const bool isColonBracket = from.marks.busOpen == ':' || from.marks.busClose == ':'; // which also stands in ranges
    takesPlainPaths = takesWords() && !hasElements && !hasPins && !isColonBracket && (printFlags & wholePathFlags) == 0;
    expandsRanges = (printFlags & ZEL_PRINT_EXPLODE) != 0;
    takesRanges = from.language->hasPlainRanges && (to.language->hasPlainRanges || expandsRanges);
  }
  if (from.language != nullptr && from.language->reader.grammar == parseVerilog)
    unless |= traitDigitFirst;
}

namespace {

// The routes between the built-in handles without flags, which most paths take: constants, that cost as much as a short
// path to put together, and so are kept once they have been.
struct KnownRoute {
  enum State : std::uint8_t { unknown, beingMade, known };
  std::atomic<std::uint8_t> state;
  RouteRoom room;
};
constexpr std::size_t codes = 17;
KnownRoute knownRoutes[codes][codes];

// Null for other handles.
KnownRoute *knownRoute(zelHandle from, zelHandle to, std::uint32_t printFlags) {
  const PathLanguage &source = *from->language;
  const PathLanguage &target = *to->language;
  const bool isBuiltIn = from == *source.handle && to == *target.handle && printFlags == 0;
  return isBuiltIn ? &knownRoutes[source.code - 1][target.code - 1] : nullptr;
}

// Whether the route could be made.
bool makeRoute(zelHandle from, zelHandle to, std::uint32_t printFlags, Route &route) {
  const PathLanguage &source = *from->language;
  const PathLanguage &target = printingLanguage(*to->language);
  const auto set = [](Side &side, const PathLanguage &language, const Operations *names, zelHandle handle,
                      const Punctuation &fixed) {
    side.language = &language;
    side.names = names;
    side.setting.handle = handle;
    side.marks = marksOf(handle, fixed);
    return isSettled(names) && isPlainHandle(handle, *names, side.marks);
  };
  const bool isSet = set(route.from, source, source.names.read, separatingHandle(source, from), source.reader.marks) &&
                     set(route.to, target, target.writer.names, separatingHandle(target, to), target.writer.marks);
  route.tested = source.names.tested;
  route.printFlags = printFlags;
  if (!isSet || !isSettled(route.tested))
    return false;
  route.join();
  return true;
}

} // namespace

const Route *zeli::routeOf(zelHandle from, zelHandle to, std::uint32_t printFlags, RouteRoom &room) {
  if (zelMapState.load(std::memory_order_relaxed) != ZEL_MAP_DEFAULT)
    return nullptr;
  KnownRoute *const kept = knownRoute(from, to, printFlags);
  if (kept != nullptr && kept->state.load(std::memory_order_acquire) == KnownRoute::known) {
    const auto *route = std::launder(reinterpret_cast<const Route *>(kept->room.bytes));
    const bool isPlain = handleInForce(*route->from.names) == nullptr && handleInForce(*route->to.names) == nullptr;
    return isPlain ? route : nullptr;
  }
  auto *const made = new (room.bytes) Route;
  if (!makeRoute(from, to, printFlags, *made))
    return nullptr;
  std::uint8_t state = KnownRoute::unknown;
  if (kept != nullptr && kept->state.compare_exchange_strong(state, KnownRoute::beingMade, std::memory_order_relaxed)) {
    new (kept->room.bytes) Route(*made);
    kept->state.store(KnownRoute::known, std::memory_order_release);
  }
  return made;
}
