#include "texts.h"

#include <array>
#include <new>

namespace tool {

Texts::Texts(zelMapping textMapping)
    : mapping(textMapping), from(2 * most + 1), to(2 * most + 1), validity((2 * most + 7) / 8), reasons(2 * most),
      positions(2 * most) {
  column.size = sizeof column;
  column.offsets = to.data();
  column.reasons = reasons.data();
  column.positions = positions.data();
}

// The column has the texts at even places, and what lies between two of them, as null, at odd ones.
void Texts::map(std::string_view bytes, const std::vector<Line> &lines) {
  input = bytes;
  chosen = &lines;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const Line &line = lines[i];
    from[2 * i] = static_cast<std::int64_t>(line.textBegin);
    from[2 * i + 1] = static_cast<std::int64_t>(line.textEnd);
    const std::size_t place = 2 * i;
    const auto bit = static_cast<std::uint8_t>(1U << (place % 8));
    const bool isMapped = line.hasText && !line.isDoubled;
    validity[place / 8] = static_cast<std::uint8_t>((validity[place / 8] & ~(3U * bit)) | (isMapped ? bit : 0U));
  }
  from[2 * lines.size()] = lines.empty() ? 0 : static_cast<std::int64_t>(lines.back().textEnd);
  const zelColumn texts = {sizeof(zelColumn), 64, 2 * lines.size(), from.data(), bytes.data(), validity.data()};
  if (zelMapColumn(mapping, &texts, &column) != 0)
    throw std::bad_alloc();
}

Mapped Texts::mapAlone(std::string_view text) {
  alone = text;
  aloneResult.resize(ZEL_MAX_NAME + 2);
  if (const std::size_t nul = alone.find('\0'); nul != std::string::npos)
    return {{}, ZEL_REASON_ILLEGAL_CHARACTER, nul};
  alone = withEnd(mapping, std::move(alone));
  if (zelMappingApply(mapping, alone.c_str(), nullptr, aloneResult.data()) != nullptr)
    return {aloneResult.c_str(), ZEL_REASON_NONE, 0};
  zelRefusal refusal = {};
  zelDiagnose(mapping, alone.c_str(), &refusal);
  return {{}, refusal.reason != ZEL_REASON_NONE ? refusal.reason : ZEL_REASON_NOT_CONVERTED, refusal.position};
}

Mapped Texts::operator[](std::size_t i) {
  const Line &line = (*chosen)[i];
  const std::string_view text = input.substr(line.textBegin, line.textEnd - line.textBegin);
  if (!line.hasText)
    return {{}, reasonNoField, line.end - line.begin};
  // An empty text stays one.
  if (text.empty())
    return {{}, ZEL_REASON_NONE, 0};
  if (line.isDoubled) {
    Mapped mapped = mapAlone(unquoted(text));
    mapped.position = line.textBegin - line.begin + quotedPosition(text, mapped.position);
    return mapped;
  }
  if (reasons[2 * i] == ZEL_REASON_NO_WHITE_SPACE) {
    Mapped mapped = mapAlone(text);
    mapped.position += line.textBegin - line.begin;
    return mapped;
  }
  const auto begin = static_cast<std::size_t>(to[2 * i]);
  const auto end = static_cast<std::size_t>(to[2 * i + 1]);
  return {{column.bytes + begin, end - begin}, reasons[2 * i], line.textBegin - line.begin + positions[2 * i]};
}

const char *Texts::source(std::size_t i) {
  const Line &line = (*chosen)[i];
  const std::string_view text = input.substr(line.textBegin, line.textEnd - line.textBegin);
  alone = withEnd(mapping, line.isDoubled ? unquoted(text) : std::string(text));
  return alone.c_str();
}

std::string withEnd(zelMapping mapping, std::string text) {
  zelRefusal refusal = {};
  if (text.find('\\') != std::string::npos &&
      zelDiagnose(mapping, text.c_str(), &refusal) == ZEL_REASON_NO_WHITE_SPACE && refusal.position == text.size())
    text += ' ';
  return text;
}

} // namespace tool
