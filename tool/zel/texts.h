// The texts of a few lines, mapped in one call.
#ifndef ZEL_TOOL_TEXTS_H
#define ZEL_TOOL_TEXTS_H

#include "fields.h"

#include "zel.h"

#include <vector>

namespace tool {

// One text's result, or why there is none.
struct Mapped {
  std::string_view result;
  std::int32_t reason; // ZEL_REASON_NONE when there is one
  std::size_t position;
};

class Texts {
public:
  static constexpr std::size_t most = 1024;

  explicit Texts(zelMapping textMapping);
  Texts(const Texts &) = delete;
  Texts &operator=(const Texts &) = delete;
  ~Texts() { std::free(column.bytes); }

  // Maps the texts of up to most lines of some bytes.
  void map(std::string_view bytes, const std::vector<Line> &lines);

  // Of the line i of those; valid until the next one is asked for.
  Mapped operator[](std::size_t i);

  // The text of the line i as it was mapped, ended by a NUL.
  const char *source(std::size_t i);

private:
  Mapped mapAlone(std::string_view text);

  zelMapping mapping;
  std::string_view input;
  const std::vector<Line> *chosen = nullptr;
  zelColumnResult column = {};
  std::vector<std::int64_t> from;
  std::vector<std::int64_t> to;
  std::vector<std::uint8_t> validity;
  std::vector<std::uint8_t> reasons;
  std::vector<std::uint32_t> positions;
  std::string alone;
  std::string aloneResult;
};

// A text as it is to be mapped: the end of a line or field stands for the white space behind an escaped identifier.
std::string withEnd(zelMapping mapping, std::string text);

} // namespace tool

#endif
