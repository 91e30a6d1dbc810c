// The reasons of refusals in words.
#include "core/zel.h"

#include <cstdint>

const char *zelReasonText(std::int32_t reason) noexcept {
  static constexpr const char *texts[] = {
      "",
      "there is no name",
      "the name is longer than 2047 characters",
      "illegal character",
      "illegal first character",
      "reserved word",
      "escaped identifier has no white space at its end",
      "nothing ends the escape or quote",
      "number out of range",
      "unexpected character",
      "unexpected end",
      "unbalanced bracket",
      "unbalanced brace",
      "a second pin delimiter, or a divider behind one",
      "the instance does not begin with its element letter",
      "cannot be converted",
      "cannot be written in the target",
      "the result is longer than 2047 characters",
      "no memory",
      "there is no text or no mapping",
  };
  static_assert(sizeof texts / sizeof *texts == ZEL_REASON_COUNT);
  return reason > ZEL_REASON_NONE && reason < ZEL_REASON_COUNT ? texts[reason] : texts[0];
}
