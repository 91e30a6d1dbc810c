// Many texts in one call: columns, and blocks of lines.
#include "map/mapping.h"

#include <cstdlib>
#include <limits>

using namespace zeli;

namespace {

void *growByRealloc(void *block, std::uint64_t size, void *) { return std::realloc(block, size); }

// The results, which grow by the caller's allocator.
template <typename Result> class Output {
public:
  explicit Output(Result &columnResult) : result(columnResult) {
    result.length = 0;
    if (result.grow == nullptr)
      result.grow = growByRealloc;
  }

  // Room for so many bytes more; false without memory.
  bool reserve(std::uint64_t more) {
    const std::uint64_t needed = result.length + more;
    if (needed <= result.capacity)
      return true;
    const std::uint64_t size = needed + needed / 2;
    void *grown = result.grow(result.bytes, size, result.context);
    if (grown == nullptr)
      return false;
    result.bytes = static_cast<char *>(grown);
    result.capacity = size;
    return true;
  }

  // Within what was reserved.
  void put(Bytes bytes) {
    std::memcpy(result.bytes + result.length, bytes.data(), bytes.size());
    result.length += bytes.size();
  }

private:
  Result &result;
};

constexpr std::size_t mostAtOnce = maxName + 2; // a result and the end of its line

// The result of one text under a mapping, which may be lenient.
Bytes mapOne(const zelMappingRecord &mapping, Bytes text, MappingWork &work, zelRefusal &refusal) {
  if (!mapping.isLenient)
    return mapText(mapping, mapping.route, text, work, refusal);
  refusal = {};
  if (text.size() > LevelPath::longest || text.find('\0') != Bytes::npos) {
    refusal = {text.size() > LevelPath::longest ? ZEL_REASON_TOO_LONG : ZEL_REASON_ILLEGAL_CHARACTER, 0};
    return {};
  }
  std::memcpy(work.source, text.data(), text.size());
  work.source[text.size()] = '\0';
  const char *result = zelMappingApply(&mapping, work.source, nullptr, work.items);
  if (result != nullptr)
    return result;
  mapText(mapping, mapping.route, text, work, refusal);
  if (refusal.reason == ZEL_REASON_NONE)
    refusal.reason = ZEL_REASON_NOT_CONVERTED;
  return {};
}

bool isValid(const zelColumn &column, std::uint64_t i) {
  return column.validity == nullptr || (column.validity[i / 8] >> (i % 8) & 1) != 0;
}

template <typename Offset>
int mapColumn(const zelMappingRecord &mapping, const zelColumn &column, zelColumnResult &result) {
  const auto *from = static_cast<const Offset *>(column.offsets);
  auto *to = static_cast<Offset *>(result.offsets);
  MappingWork work;
  Output output(result);
  result.refused = 0;
  to[0] = 0;
  for (std::uint64_t i = 0; i < column.count; ++i) {
    zelRefusal refusal = {};
    if (isValid(column, i)) {
      const Bytes text(column.bytes + from[i], static_cast<std::size_t>(from[i + 1] - from[i]));
      const Bytes mapped = mapOne(mapping, text, work, refusal);
      if (!output.reserve(mostAtOnce))
        return ENOMEM;
      if (mapped.data() != nullptr)
        output.put(mapped);
      else
        ++result.refused;
    }
    if (result.length > static_cast<std::uint64_t>(std::numeric_limits<Offset>::max()))
      return EOVERFLOW;
    to[i + 1] = static_cast<Offset>(result.length);
    if (result.reasons != nullptr)
      result.reasons[i] = static_cast<std::uint8_t>(refusal.reason);
    if (result.positions != nullptr)
      result.positions[i] = refusal.position;
  }
  return 0;
}

// A line, whose end may stand for white space.
Bytes mapLine(const zelMappingRecord &mapping, Bytes line, MappingWork &work, zelRefusal &refusal) {
  const Bytes mapped = mapOne(mapping, line, work, refusal);
  if (mapped.data() != nullptr || refusal.reason != ZEL_REASON_NO_WHITE_SPACE || line.size() > LevelPath::longest)
    return mapped;
  std::memcpy(work.line, line.data(), line.size());
  work.line[line.size()] = ' ';
  const Bytes result = mapOne(mapping, {work.line, line.size() + 1}, work, refusal);
  // The end of a name that stands as it is stays the end of the line.
  return result.data() == work.line ? line : result;
}

} // namespace

int zelMapColumn(zelMapping mapping, const zelColumn *column, zelColumnResult *result) noexcept {
  if (mapping == nullptr || column == nullptr || result == nullptr || column->size < sizeof(zelColumn) ||
      result->size < sizeof(zelColumnResult) || column->offsets == nullptr || result->offsets == nullptr)
    return EINVAL;
  if (column->offsetBits == 32)
    return mapColumn<std::int32_t>(*mapping, *column, *result);
  return column->offsetBits == 64 ? mapColumn<std::int64_t>(*mapping, *column, *result) : EINVAL;
}

int zelMapLines(zelMapping mapping, const char *text, std::uint64_t length, char end, zelLinesResult *result) noexcept {
  if (mapping == nullptr || (text == nullptr && length != 0) || result == nullptr ||
      result->size < sizeof(zelLinesResult))
    return EINVAL;
  MappingWork work;
  Output output(*result);
  result->lines = result->refused = 0;
  for (std::uint64_t start = 0; start < length; ++result->lines) {
    const void *found = std::memchr(text + start, end, length - start);
    const std::uint64_t behind =
        found == nullptr ? length : static_cast<std::uint64_t>(static_cast<const char *>(found) - text);
    Bytes line(text + start, behind - start);
    const bool hasReturn = end == '\n' && !line.empty() && line.back() == '\r';
    if (hasReturn)
      line.remove_suffix(1);
    zelRefusal refusal = {};
    Bytes mapped = line.empty() ? line : mapLine(*mapping, line, work, refusal);
    if (mapped.data() == nullptr) {
      if (result->refusals != nullptr && result->refused < result->refusalCapacity)
        result->refusals[result->refused] = {result->lines, start, line.size(), refusal};
      ++result->refused;
      mapped = result->isKept != 0 ? line : Bytes("");
    }
    if (!output.reserve(mapped.size() + 2))
      return ENOMEM;
    output.put(mapped);
    if (hasReturn)
      output.put("\r");
    if (found != nullptr)
      output.put({&end, 1});
    start = behind + (found != nullptr ? 1 : 0);
  }
  return 0;
}
