// The header of any file.
#include "fuzz.h"

#include <cctype>

namespace {

constexpr size_t headBytes = 65536;

struct Found {
  std::string space; // empty for none
  std::string separators = std::string(4, '\0');
  bool operator==(const Found &other) const = default;
};

Found inText(const std::string &text) {
  const std::unique_ptr<char[]> exact(new char[text.size()]);
  text.copy(exact.get(), text.size());
  const char *space = nullptr;
  zelSeparators found = {sizeof found, 0, 0, 0, 0};
  errno = 0;
  if (zelFindSeparators(exact.get(), text.size(), &space, &found) == 0) {
    require(errno == EINVAL && space == nullptr, "errno of a refusal");
    return {};
  }
  return {space, {found.pinDelimiter, found.divider, found.busOpen, found.busClose}};
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
  FuzzedDataProvider input(data, size);
  const bool isLong = input.ConsumeIntegralInRange(0, 15) == 0; // which takes its time
  const std::string text = input.ConsumeBytesAsString(headBytes);
  const Found found = inText(text);
  if (!found.space.empty()) {
    const auto at = [&](size_t i) { return static_cast<unsigned char>(found.separators[i]); };
    const zelHandle handle = zelGetHandle(found.space.c_str(), at(0), at(1), at(2), at(3));
    require(handle != nullptr, "a format with a handle");
    zelFreeHandle(handle);
  }
  for (const char c : found.separators)
    require(c == '\0' || (std::ispunct(static_cast<unsigned char>(c)) != 0 && text.find(c) != std::string::npos),
            "a separator stands in the text");

  if (!isLong)
    return 0;
  require(inText(std::string(headBytes - text.size(), '\n') + text) == found, "empty lines in front change nothing");
  // Cut off in the middle of the text.
  const std::string before = std::string(headBytes - text.size() / 2, '\n') + text.substr(0, text.size() / 2);
  const Found cut = inText(before + text.substr(text.size() / 2) + '\n');
  require(inText(before + "\"*/;)\n") == cut, "what lies behind the head is not read");
  return 0;
}
