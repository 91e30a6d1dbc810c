#include "map/route.h"

#include "path/zelPathParse.h"

#include <algorithm>

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
    takesPlainPaths = takesWords() && !hasElements && !hasPins && (printFlags & wholePathFlags) == 0;
    expandsRanges = (printFlags & ZEL_PRINT_EXPLODE) != 0;
    takesRanges = from.language->hasPlainRanges && (to.language->hasPlainRanges || expandsRanges);
  }
  if (from.language != nullptr && from.language->reader.grammar == parseVerilog)
    unless |= traitDigitFirst;
}

bool zeli::routeOf(zelHandle from, zelHandle to, std::uint32_t printFlags, Route &route) {
  if (zelMapState.load(std::memory_order_relaxed) != ZEL_MAP_DEFAULT)
    return false;
  const PathLanguage &source = *from->language;
  const PathLanguage &target = printingLanguage(*to->language);
  // Field by field: to put the sides together elsewhere first would cost as much as a short path.
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
