// The handles by name; what each holds stands with the path languages.
#include "path/languages.h"

#include <cerrno>
#include <cstdlib>
#include <new>

using namespace zeli;

namespace {

const PathLanguage *languageNamed(const char *spaceName) {
  const SpaceId space = recognise(spaceName);
  // The registry takes every other name of the family for Verilog-AMS, a handle needs its own.
  if (space == SpaceId::VerilogAMS && spaceName != nullptr && !(spaceName[7] == 'A' && spaceName[8] == 'M'))
    return nullptr;
  return languageOf(space);
}

// For a handle to be made, every name with an L means LEF, also those of the library spaces.
const PathLanguage *templateOf(const char *spaceName) {
  return spaceName != nullptr && *spaceName == 'L' ? &languages::lef : languageNamed(spaceName);
}

Separators given(std::uint32_t pinDelimiter, std::uint32_t divider, std::uint32_t busOpen, std::uint32_t busClose) {
  return {static_cast<char>(pinDelimiter), static_cast<char>(divider), static_cast<char>(busOpen),
          static_cast<char>(busClose)};
}

bool isDefault(const PathLanguage &language, Separators chosen) {
  Separators defaults = language.separators;
  if (language.redefines == Redefines::busBrackets) {
    chosen.pinDelimiter = defaults.pinDelimiter = '\0';
    chosen.divider = defaults.divider = '\0';
  }
  return chosen == defaults || chosen == Separators{};
}

} // namespace

zelHandle zelGetHandle(const char *spaceName, std::uint32_t pinDelimiter, std::uint32_t divider, std::uint32_t busOpen,
                       std::uint32_t busClose) noexcept {
  const PathLanguage *language = languageNamed(spaceName);
  if (language != nullptr && (language->redefines == Redefines::nothing ||
                              isDefault(*language, given(pinDelimiter, divider, busOpen, busClose))))
    return *language->handle;
  return zelAllocHandle(spaceName, pinDelimiter, divider, busOpen, busClose);
}

zelHandle zelAllocHandle(const char *spaceName, std::uint32_t pinDelimiter, std::uint32_t divider,
                         std::uint32_t busOpen, std::uint32_t busClose) noexcept {
  const PathLanguage *language = templateOf(spaceName);
  if (language == nullptr || language->redefines == Redefines::nothing)
    return nullptr;

  const Separators &defaults = language->separators;
  Separators chosen = given(pinDelimiter, divider, busOpen, busClose);
  const bool isFlat = language->redefines == Redefines::busBrackets;
  if (isFlat || chosen.pinDelimiter == '\0')
    chosen.pinDelimiter = defaults.pinDelimiter;
  if (isFlat || chosen.divider == '\0')
    chosen.divider = defaults.divider;
  if (chosen.busOpen == '\0')
    chosen.busOpen = defaults.busOpen;
  if (chosen.busClose == '\0')
    chosen.busClose = defaults.busClose;

  // What names are under these separators lies behind the record.
  struct Made {
    zelHandleRecord record;
    ByteSet pathNameBytes;
    BackslashRules rules;
  };
  const Operations *names = language->names.read;
  void *memory = std::malloc(isFlat ? sizeof(zelHandleRecord) : sizeof(Made));
  if (memory == nullptr) {
    errno = ENOMEM;
    return nullptr;
  }
  const zelHandleRecord record = {madeHandle, language, chosen, names, nullptr, &language->names.pathNameBytes};
  if (isFlat)
    return new (memory) zelHandleRecord(record);
  // cppcheck-suppress unreadVariable ; the two members behind it are read through it
  auto *made = new (memory) Made{record, pathNameBytes(language->names.stops, chosen), names->rulesUnder(chosen)};
  made->record.rules = &made->rules;
  made->record.pathNameBytes = &made->pathNameBytes;
  return &made->record;
}

void zelFreeHandle(zelHandle handle) noexcept {
  if (handle != nullptr && handle->kind == madeHandle)
    std::free(const_cast<zelHandleRecord *>(handle));
}

int zelGetHandleDefaults(const char *spaceName, char *pinDelimiter, char *divider, char *busOpen,
                         char *busClose) noexcept {
  const zelHandle handle = zelGetHandle(spaceName, 0, 0, 0, 0);
  if (handle == nullptr)
    return 0;
  const Separators &separators = handle->separators;
  if (pinDelimiter != nullptr)
    *pinDelimiter = separators.pinDelimiter;
  if (divider != nullptr)
    *divider = separators.divider;
  if (busOpen != nullptr)
    *busOpen = separators.busOpen;
  if (busClose != nullptr)
    *busClose = separators.busClose;
  zelFreeHandle(handle);
  return 1;
}
