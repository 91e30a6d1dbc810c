#include "path/zelPathParse.h"

using namespace zeli;

zelPath zeli::parsePath(const PathLanguage &language, const char *text, zelHandle handle, zelAllocFunc alloc,
                        void *context) {
  if (text == nullptr) {
    errno = EINVAL;
    return nullptr;
  }
  const zelPath path = zelCreatePath(alloc, context);
  if (path == nullptr)
    return nullptr;
  path->slots[path->slotsUsed++].string = text;
  path->flags |= static_cast<std::uint32_t>(language.code) << languageShift;
  path->handle = separatingHandle(language, handle);
  return language.reader.grammar(path, language, text);
}

bool zeli::appendName(zelPath path, const PathLanguage &language, const char *&text, Kind mark) {
  const NameReader &names = language.names;
  const char *end = names.scan(text, path->handle);
  const auto length = static_cast<std::size_t>(end - text);
  if (length > maxName)
    return false;
  if (names.tested != nullptr && !names.tested->isLegal(Name(Bytes(text, length)), {}))
    return false;
  if (!appendPointers(path, mark, kindTextIdent, 1, &text))
    return false;
  text = end;
  return true;
}

std::int32_t zeli::readDigits(const char *&text) {
  constexpr std::int32_t tooLarge = 100000000;
  std::int32_t value = 0;
  for (; digit.has(*text); ++text)
    if (value < tooLarge)
      value = value * 10 + (*text - '0');
  return value;
}

std::int32_t zeli::readSigned(const char *&text) {
  const bool isNegative = *text == '-';
  if (sign.has(*text))
    ++text;
  const std::int32_t value = readDigits(text);
  return isNegative ? -value : value;
}

bool zeli::appendBus(zelPath path, bool isRange, std::int32_t first, std::int32_t last) {
  path->flags |= isRange ? flagRange : flagIndex;
  return isRange ? appendRange(path, first, last) : appendNumber(path, kindIndex, first);
}

void zeli::noteMid(zelPath path) {
  const std::uint8_t kind = lastItem(path);
  if (isForm(kind, kindIndex))
    path->flags |= flagMidIndex;
  else if (isForm(kind, kindRange))
    path->flags |= flagMidRange;
}
