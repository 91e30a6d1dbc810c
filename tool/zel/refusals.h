// Lines that are refused, and how that is said.
#ifndef ZEL_TOOL_REFUSALS_H
#define ZEL_TOOL_REFUSALS_H

#include "zel.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tool {

// Reasons beside those of zel.h.
enum : std::int32_t {
  reasonNoField = ZEL_REASON_COUNT, // the line ends before
  reasonCaseLost,                   // of a result that is read back
  reasonOtherObject,
  reasonUnreadable,
  reasonRevisionWord, // reserved in the revision that was asked for
  reasonNotLegal
};
const char *reasonText(std::int32_t reason);

struct Refusal {
  std::uint64_t line;
  std::uint64_t column; // bytes from 1
  std::int32_t reason;
  std::string text; // of the line around the column
  std::size_t caret;
};

// The refusals of some lines: the first few, and how many.
struct Refusals {
  static constexpr std::size_t shown = 10;

  std::vector<Refusal> first;
  std::uint64_t count = 0;

  void clear();
  void add(std::uint64_t lineNumber, std::string_view line, std::size_t position, std::int32_t reason);
};

// "FILE:LINE:COLUMN: reason: the line", and a caret below.
std::string shownRefusal(const char *file, const Refusal &refusal, bool isColoured);

// How many columns of a terminal a text takes, a byte of which begins no character when it continues one.
std::size_t shownWidth(std::string_view text);

// Whether a stream takes colours.
bool takesColour(int descriptor);

} // namespace tool

#endif
