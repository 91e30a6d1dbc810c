#include "map/directPath.h"

#include "path/zelPathParse.h"

#include <algorithm>

using namespace zeli;

namespace {

// The bytes of a text that no word holds, a bit each, and what the words hold.
struct WordScan {
  std::uint32_t others[DirectPath::longest / blockBytes + 1]; // a block each
  std::uint8_t traits;

  // The text goes on with zeros, to the end of the block behind its last byte.
  WordScan(const char *text, std::size_t size) {
    BlockTest capital = {};
    std::uint32_t pairs = 0;
    std::uint32_t carried = 0; // the last underscore of the block before
    for (std::size_t i = 0; i * blockBytes <= size; ++i) {
      const Block block = loadBlock(text + i * blockBytes);
      const BlockTest isUpper = isWithin(block, 'A', 'Z');
      const BlockTest underscore = isChar(block, '_');
      const std::uint32_t bits = bitsOf(underscore);
      capital |= isUpper;
      pairs |= bits & (bits << 1 | carried);
      carried = bits >> (blockBytes - 1);
      others[i] = bitsOf(~(isWithin(block, 'a', 'z') | isUpper | isWithin(block, '0', '9') | underscore));
    }
    traits =
        static_cast<std::uint8_t>((bitsOf(capital) != 0 ? traitUpper : 0) | (pairs != 0 ? traitTwoUnderscores : 0));
  }

  // The place of the first such byte from start on; size where there is none.
  std::size_t next(std::size_t start, std::size_t size) const {
    std::size_t i = start / blockBytes;
    std::uint32_t bits = others[i] >> (start % blockBytes) << (start % blockBytes);
    while (bits == 0 && ++i * blockBytes < size)
      bits = others[i];
    const std::size_t place = bits == 0 ? size : i * blockBytes + static_cast<std::size_t>(__builtin_ctz(bits));
    return place < size ? place : size;
  }
};

// What a pair of languages asks of a level that stands as it is.
struct Demand {
  const Operations *tested; // null for no test
  const Operations &read;
  const Operations &written;
  std::uint8_t unless;

  Demand(const PathLanguage &from, const PathLanguage &to)
      : tested(from.names.tested), read(*from.names.read), written(*to.writer.names) {
    const PlainWords &target = written.plainWords;
    const bool isSensitive = read.plainWords.readAs != 'I';
    unless = (tested != nullptr ? tested->plainWords.notRead : 0) | read.plainWords.notRead |
             (isSensitive ? target.notWrittenSensitive : target.notWrittenInsensitive);
    if (from.reader.grammar == parseVerilog)
      unless |= traitDigitFirst;
  }

  bool isSettled() const {
    for (const Operations *names : {tested, &read, &written})
      if (names != nullptr && names->plainWords.isSettled != nullptr && !names->plainWords.isSettled())
        return false;
    return true;
  }

  // For a word whose other traits are asked elsewhere, and seven bytes behind it.
  bool takes(const char *level, std::size_t size) const {
    if (size == 0)
      return false;
    constexpr std::size_t headBytes = sizeof(std::uint64_t);
    const std::uint64_t head =
        loadWord(level) & (size < headBytes ? (std::uint64_t{1} << (8 * size)) - 1 : ~std::uint64_t{0});
    const Name word({level, size}, Look{0, head});
    const char first = word.front();
    const std::uint8_t traits =
        static_cast<std::uint8_t>((digit.has(first) ? traitDigitFirst : 0) | (first == '_' ? traitUnderscoreFirst : 0) |
                                  (word.back() == '_' ? traitUnderscoreLast : 0));
    const auto isKeyword = [&word](const Operations *names) {
      return names != nullptr && names->plainWords.isKeyword != nullptr && names->plainWords.isKeyword(word);
    };
    return (traits & unless) == 0 && !hasPrefix(word.head()) && !isKeyword(tested) &&
           (&read == tested || !isKeyword(&read)) && (&written == &read || !isKeyword(&written));
  }
};

// A level that is to be read and written anew; without data where that is refused.
Bytes respell(Bytes level, const Demand &demand, zelHandle from, zelHandle to, Text &work) {
  constexpr ByteSet anyGrammar = letter | chars("_\\"); // begin names in every grammar
  const Name name(level);
  if (level.empty() || !anyGrammar.has(level.front()) ||
      (demand.tested != nullptr && !demand.tested->isLegal(name, {})))
    return {};
  Text readWork;
  const Ident ident = demand.read.read(name, {.handle = from}, readWork);
  if (!isNameLength(ident.body))
    return {};
  // What is written may lie in what was read.
  const Bytes written = demand.written.write(ident, {.handle = to}, work);
  if (written.data() == nullptr || written.size() > maxName)
    return {};
  if (written.data() != work.bytes) {
    work.size = 0;
    work.put(written);
  }
  return work.view();
}

// Marks that stand for nothing else in any grammar.
bool areMarks(const Punctuation &marks) {
  constexpr ByteSet others = wordChar | chars("+-:\\");
  const auto [divider, busOpen, busClose] = marks;
  return !others.has(divider) && !others.has(busOpen) && !others.has(busClose) && divider != busOpen &&
         divider != busClose && busOpen != busClose && divider != '\0';
}

bool isPlainHandle(zelHandle handle, const Operations &names, const Punctuation &marks) {
  if (names.currentHandle != nullptr && names.currentHandle() != nullptr)
    return false;
  return handle == nullptr || handle->kind == builtInHandle ||
         (areMarks(marks) && handle->names == &names && handle->rules->takesWords);
}

// Where the number at text ends, as it would be printed; null for any other.
const char *skipNumber(const char *text) {
  constexpr int longest = 6; // digits that are always in range
  const char *end = text;
  while (digit.has(*end))
    ++end;
  return end == text || end - text > longest || (*text == '0' && end - text > 1) ? nullptr : end;
}

} // namespace

Bytes DirectPath::map(const char *pathText, zelHandle from, zelHandle to, std::uint32_t flags) {
  const PathLanguage &source = *from->language;
  const PathLanguage &target = printingLanguage(*to->language);
  const zelHandle fromHandle = separatingHandle(source, from);
  const zelHandle toHandle = separatingHandle(target, to);
  const Punctuation marks = marksOf(fromHandle, source.reader.marks);
  const Punctuation written = marksOf(toHandle, target.writer.marks);
  const std::size_t size = strnlen(pathText, longest + 1);
  if (size == 0 || size > longest || (flags & (ZEL_PRINT_GROUP | ZEL_PRINT_TOP)) != 0 ||
      zelMapState.load(std::memory_order_relaxed) != ZEL_MAP_DEFAULT ||
      !isPlainHandle(fromHandle, *source.names.read, marks) || !isPlainHandle(toHandle, *target.writer.names, written))
    return {};
  const Demand demand(source, target);
  if (!demand.isSettled())
    return {};

  // Zeros behind the text, so that whole blocks and heads can be read.
  char *const begin = text + 1;
  std::memcpy(begin, pathText, size);
  std::memset(begin + size, 0, blockBytes);
  const WordScan scan(begin, size);
  const bool isEveryWordPlain = (scan.traits & demand.unless) == 0;

  const std::size_t first = source.isIntroduced && *begin == marks.divider ? 1 : 0;
  const auto endsLevel = [&marks](char c) { return c == marks.divider || c == marks.busOpen || c == '\0'; };
  std::size_t start = first;
  std::size_t copied = first; // up to here the text stands in respelled
  char *out = respelled + 1;
  bool isDivided = false;
  for (;;) {
    std::size_t end = scan.next(start, size);
    if (!isEveryWordPlain || !endsLevel(begin[end]) || !demand.takes(begin + start, end - start)) {
      end = static_cast<std::size_t>(source.names.scan(begin + start, fromHandle) - begin);
      Text work;
      const Bytes level = respell({begin + start, end - start}, demand, fromHandle, toHandle, work);
      if (level.data() == nullptr || !endsLevel(begin[end]))
        return {};
      out = std::copy(begin + copied, begin + start, out);
      out = std::copy(level.begin(), level.end(), out);
      copied = end;
    }
    if (begin[end] == '\0')
      break;
    if (begin[end] == marks.divider) {
      begin[end] = written.divider;
      isDivided = true;
      start = end + 1;
      continue;
    }
    // An index or a range, to the end of the text.
    const char *number = skipNumber(begin + end + 1);
    if (number != nullptr && *number == ':' && source.hasPlainRanges && target.hasPlainRanges &&
        (flags & ZEL_PRINT_EXPLODE) == 0)
      number = skipNumber(number + 1);
    if (number == nullptr || *number != marks.busClose || number + 1 != begin + size)
      return {};
    begin[end] = written.busOpen;
    begin[size - 1] = written.busClose;
    break;
  }

  char *result = begin + first;
  char *resultEnd = begin + size;
  if (copied != first) {
    result = respelled + 1;
    resultEnd = std::copy(begin + copied, begin + size, out);
  }
  if (isDivided && target.isIntroduced)
    *--result = written.divider;
  return {result, static_cast<std::size_t>(resultEnd - result)};
}
