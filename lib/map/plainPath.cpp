#include "map/plainPath.h"

#include "path/zelPathParse.h"

using namespace zeli;

namespace {

// What one pair of languages asks of the levels.
struct Demand {
  const PlainWords *words[3]; // as whose names they are tested, read and written
  std::uint8_t unless = 0;    // traits of no level

  Demand(const PathLanguage &from, const PathLanguage &to)
      : words{&(from.names.tested != nullptr ? from.names.tested : from.names.read)->plainWords,
              &from.names.read->plainWords, &to.writer.names->plainWords} {
    const bool isSensitive = words[1]->readAs != 'I';
    unless = words[0]->notRead | words[1]->notRead |
             (isSensitive ? words[2]->notWrittenSensitive : words[2]->notWrittenInsensitive);
    if (from.reader.grammar == parseVerilog)
      unless |= traitDigitFirst;
  }

  bool isSettled() const {
    for (const PlainWords *space : words)
      if (space->isSettled != nullptr && !space->isSettled())
        return false;
    return true;
  }

  // Tests everything but capitals and "__", for which the whole text is looked at.
  bool takes(const char *level, std::size_t size, std::uint64_t head) const {
    const std::uint8_t traits = static_cast<std::uint8_t>((digit.has(*level) ? traitDigitFirst : 0) |
                                                          (*level == '_' ? traitUnderscoreFirst : 0) |
                                                          (level[size - 1] == '_' ? traitUnderscoreLast : 0));
    if ((traits & unless) != 0 || hasPrefix(head))
      return false;
    const Name name({level, size}, Look{0, head});
    const PlainWords *before = nullptr;
    for (const PlainWords *space : words) {
      if (space->isKeyword != nullptr && space != before && space->isKeyword(name))
        return false;
      before = space;
    }
    return true;
  }
};

// Finds what no word holds, block by block, and what the words hold.
class WordScan {
public:
  // One bit a byte that no word holds; also for the zeros behind a text.
  std::uint32_t look(Block block) {
    const BlockTest isUpper = isWithin(block, 'A', 'Z');
    const BlockTest underscore = isChar(block, '_');
    const std::uint32_t bits = bitsOf(underscore);
    capital |= isUpper;
    pairs |= bits & (bits << 1 | carried);
    carried = bits >> (blockBytes - 1);
    return bitsOf(~(isWithin(block, 'a', 'z') | isUpper | isWithin(block, '0', '9') | underscore)) & 0xFFFFU;
  }

  std::uint8_t traits() const {
    return static_cast<std::uint8_t>((bitsOf(capital) != 0 ? traitUpper : 0) | (pairs != 0 ? traitTwoUnderscores : 0));
  }

private:
  BlockTest capital = {};
  std::uint32_t pairs = 0;
  std::uint32_t carried = 0; // the last underscore of the block before
};

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

Bytes zeli::mapPlainPath(const char *text, zelHandle from, zelHandle to, std::uint32_t flags, char *room) {
  const PathLanguage &source = *from->language;
  const PathLanguage &target = printingLanguage(*to->language);
  const zelHandle fromHandle = separatingHandle(source, from);
  const zelHandle toHandle = separatingHandle(target, to);
  const Punctuation marks = marksOf(fromHandle, source.reader.marks);
  const Punctuation written = marksOf(toHandle, target.writer.marks);
  const std::size_t size = strnlen(text, plainPathLength + 1);
  if (size == 0 || size > plainPathLength || (flags & (ZEL_PRINT_GROUP | ZEL_PRINT_TOP)) != 0 ||
      zelMapState.load(std::memory_order_relaxed) != ZEL_MAP_DEFAULT ||
      !isPlainHandle(fromHandle, *source.names.read, marks) || !isPlainHandle(toHandle, *target.writer.names, written))
    return {};
  const Demand demand(source, target);
  if (!demand.isSettled())
    return {};

  // The text with zeros behind it, so that whole blocks and heads can be read, and room for a divider in front.
  char *const out = room + 1;
  std::memcpy(out, text, size);
  std::memset(out + size, 0, blockBytes);

  std::size_t start = source.isIntroduced && *text == marks.divider ? 1 : 0;
  const std::size_t first = start;
  bool isDivided = false;
  const auto takeLevel = [&](std::size_t end) {
    if (end == start)
      return false;
    const std::size_t length = end - start;
    const std::uint64_t head = loadWord(out + start);
    return demand.takes(out + start, length, length < 8 ? head & ((std::uint64_t{1} << (8 * length)) - 1) : head);
  };

  std::size_t end = size; // of the levels
  WordScan scan;
  for (std::size_t block = 0; block < end; block += blockBytes) {
    for (std::uint32_t others = scan.look(loadBlock(out + block)); others != 0; others &= others - 1) {
      const std::size_t at = block + static_cast<std::size_t>(__builtin_ctz(others));
      if (at < start)
        continue;
      if (at >= end)
        break;
      if (!takeLevel(at))
        return {};
      if (out[at] == marks.divider) {
        out[at] = written.divider;
        isDivided = true;
        start = at + 1;
        continue;
      }
      // An index or a range, to the end of the text.
      if (out[at] != marks.busOpen)
        return {};
      const char *number = skipNumber(out + at + 1);
      if (number != nullptr && *number == ':' && source.hasPlainRanges && target.hasPlainRanges &&
          (flags & ZEL_PRINT_EXPLODE) == 0)
        number = skipNumber(number + 1);
      if (number == nullptr || *number != marks.busClose || number + 1 != out + size)
        return {};
      out[at] = written.busOpen;
      out[size - 1] = written.busClose;
      end = at;
    }
  }
  if (end == size && !takeLevel(end))
    return {};
  if ((scan.traits() & demand.unless) != 0)
    return {};
  if (isDivided && target.isIntroduced) {
    out[static_cast<std::ptrdiff_t>(first) - 1] = written.divider;
    return {out + first - 1, size - first + 1};
  }
  return {out + first, size - first};
}
