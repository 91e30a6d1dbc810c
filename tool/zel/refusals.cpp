#include "refusals.h"

#include <algorithm>
#include <cstdlib>
#include <unistd.h>

namespace tool {

namespace {

// A line of more is cut around the caret.
constexpr std::size_t shownBefore = 60;
constexpr std::size_t shownAfter = 40;

bool continuesCharacter(char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U; }

bool isControl(char c) { return static_cast<unsigned char>(c) < ' ' || c == 0x7f; }

// What lies before and behind the part that is shown stands as an ellipsis.
std::string excerpt(std::string_view line, std::size_t position, std::size_t &caret) {
  const std::size_t place = std::min(position, line.size());
  std::size_t begin = place > shownBefore ? place - shownBefore : 0;
  std::size_t end = std::min(line.size(), place + shownAfter);
  while (begin > 0 && continuesCharacter(line[begin]))
    --begin;
  while (end < line.size() && continuesCharacter(line[end]))
    ++end;
  std::string text = begin > 0 ? "..." : "";
  caret = text.size() + (place - begin);
  text += line.substr(begin, end - begin);
  std::replace_if(text.begin(), text.end(), isControl, ' ');
  return end < line.size() ? text + "..." : text;
}

} // namespace

const char *reasonText(std::int32_t reason) {
  switch (reason) {
  case reasonNoField:
    return "the line has no such field";
  case reasonCaseLost:
    return "capitals are lost";
  case reasonOtherObject:
    return "the result is read back as another object";
  case reasonUnreadable:
    return "the result cannot be read back";
  case reasonRevisionWord:
    return "reserved word of the revision";
  case reasonNotLegal:
    return "no legal name";
  default:
    return zelReasonText(reason);
  }
}

void Refusals::clear() {
  first.clear();
  count = 0;
}

void Refusals::add(std::uint64_t lineNumber, std::string_view line, std::size_t position, std::int32_t reason) {
  ++count;
  if (first.size() == shown)
    return;
  std::size_t caret = 0;
  std::string text = excerpt(line, position, caret);
  first.push_back({lineNumber, position + 1, reason, std::move(text), caret});
}

std::size_t shownWidth(std::string_view text) {
  return static_cast<std::size_t>(
      std::count_if(text.begin(), text.end(), [](char c) { return !continuesCharacter(c); }));
}

std::string shownRefusal(const char *file, const Refusal &refusal, bool isColoured) {
  const std::string place =
      std::string(file) + ':' + std::to_string(refusal.line) + ':' + std::to_string(refusal.column) + ": ";
  const std::string reason = reasonText(refusal.reason);
  const std::size_t before =
      shownWidth(place) + reason.size() + 2 + shownWidth(std::string_view(refusal.text).substr(0, refusal.caret));
  const auto in = [isColoured](const char *colour, const std::string &text) {
    return isColoured ? colour + text + "\x1b[0m" : text;
  };
  return in("\x1b[1m", place) + in("\x1b[31m", reason) + ": " + refusal.text + '\n' + std::string(before, ' ') +
         in("\x1b[32m", "^") + '\n';
}

bool takesColour(int descriptor) {
  const char *none = std::getenv("NO_COLOR");
  const char *terminal = std::getenv("TERM");
  return ::isatty(descriptor) != 0 && (none == nullptr || *none == '\0') &&
         (terminal == nullptr || std::string_view(terminal) != "dumb");
}

} // namespace tool
