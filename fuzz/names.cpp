// One name between two spaces, under any mapping state, VHDL mode and separators.
#include "fuzz.h"

#include <iterator>

using namespace fuzz;

namespace {

struct RedefinableSpace {
  const char *name;
  char *(*write)(const char *ident, zelAllocFunc alloc, void *context, zelHandle handle);
  char *(*read)(const char *name, zelAllocFunc alloc, void *context, zelHandle handle);
};

constexpr RedefinableSpace redefinable[] = {
    {"Sdf", zelIdentToSdfWithHandle, zelSdfToIdentWithHandle},
    {"Spf", zelIdentToSpfWithHandle, zelSpfToIdentWithHandle},
    {"Spef", zelIdentToSpefWithHandle, zelSpefToIdentWithHandle},
    {"Gcf", zelIdentToGcfWithHandle, zelGcfToIdentWithHandle},
    {"Lef", zelIdentToLefWithHandle, zelLefToIdentWithHandle},
    {"Def", zelIdentToDefWithHandle, zelDefToIdentWithHandle},
};

void checkIdent(const char *ident) {
  if (ident == nullptr)
    return;
  require(std::strchr("SIF", *ident) != nullptr && *ident != '\0', "marker of an Ident");
  require(std::strlen(ident) <= ZEL_MAX_NAME + 1, "length of an Ident");
}

// In a Kirra name that begins with a digit a backslash may stand before anything and is written as it is, but what it
// quotes is read.
bool isQuotedKirraNumber(const char *space, const char *name) {
  return std::strcmp(space, "Kirra") == 0 && *name >= '0' && *name <= '9' && std::strchr(name, '\\') != nullptr;
}

// Whether a space reads back the name that it gave the Ident of this name of its own.
bool isStable(const char *space, const char *name, int32_t state) {
  // In other states the markers follow rules of their own. Vellum's quotes and the untested ends of Spice names are
  // lost.
  if (state != ZEL_MAP_DEFAULT || std::strcmp(space, "Vellum") == 0 || std::strcmp(space, "Spice") == 0)
    return false;
  // A content that begins with the force prefix loses it.
  if (isQuotedKirraNumber(space, name) || std::strstr(name, "ESC_") != nullptr)
    return false;
  // LibraryNT looks for an escape without minding the '%' that it puts in front of a capital among its digits.
  return std::strcmp(space, "LibraryNT") != 0 || std::strchr(name, '#') == nullptr || std::strchr(name, '%') == nullptr;
}

void mapBetween(const char *from, const char *to, const char *name, int32_t state) {
  const String mapped =
      withEveryMemory([=](zelAllocFunc alloc, void *context) { return zelMapName(from, to, name, alloc, context); });
  if (mapped != nullptr)
    require(std::strlen(mapped.get()) <= ZEL_MAX_NAME, "length of a result");

  const String ident = withEveryMemory(
      [=](zelAllocFunc alloc, void *context) { return zelGetNameToIdentFunc(from)(name, alloc, context); });
  if (std::strcmp(from, "Ident") == 0) // copies anything
    return;
  checkIdent(ident.get());
  // Only a force prefix can make the Ident of a legal name over-long.
  if (zelIsLegalName(from, name) != 0 && !isQuotedKirraNumber(from, name))
    require(ident != nullptr || std::strlen(name) > ZEL_MAX_NAME - 6, "a legal name has an Ident");
  if (zelIsLegalIdent(ident.get()) == 0 || !isStable(from, name, state) || isQuotedKirraNumber(from, ident.get() + 1))
    return;
  const String back(zelGetIdentToNameFunc(from)(ident.get(), nullptr, nullptr));
  if (back == nullptr) // escaping made it over-long
    return;
  // Kirra counts its keyword prefix up to three times only.
  if (std::strcmp(from, "Kirra") == 0 && std::strstr(ident.get(), "KEYWORD_KEYWORD_KEYWORD_") != nullptr)
    return;
  // SPF puts a backslash before the escape of a byte of 128 and above, and reads it as a character.
  for (const char *c = ident.get(); std::strcmp(from, "Spf") == 0 && *c != '\0'; ++c)
    if (static_cast<unsigned char>(*c) >= 128)
      return;
  require(zelIsLegalName(from, back.get()) != 0, "what a writer returns is legal");
  const String again(zelGetNameToIdentFunc(from)(back.get(), nullptr, nullptr));
  require(again != nullptr && zelIdentCmp(again.get(), ident.get()) == 0, "what a writer returns reads back");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
  FuzzedDataProvider input(data, size);
  static const char *const *const spaces = zelGetAllSpaceNames();
  static const size_t count = [] {
    size_t n = 0;
    while (spaces[n] != nullptr)
      ++n;
    return n;
  }();
  const char *from = spaces[input.ConsumeIntegralInRange<size_t>(0, count - 1)];
  const char *to = spaces[input.ConsumeIntegralInRange<size_t>(0, count - 1)];
  const int32_t state = input.ConsumeIntegralInRange<int32_t>(ZEL_MAP_VHDL, ZEL_MAP_MATCH);
  zelSetMapState(state);
  zelSetVHDLMode(input.ConsumeIntegralInRange<int>(0, 2));
  const RedefinableSpace &space = redefinable[input.ConsumeIntegralInRange<size_t>(0, std::size(redefinable) - 1)];
  const auto chosen = handle(input, space.name);
  const std::string name = input.ConsumeRemainingBytesAsString();

  mapBetween(from, to, name.c_str(), state);
  mapBetween("Ident", to, name.c_str(), state);
  const String written = withEveryMemory(
      [&](zelAllocFunc alloc, void *context) { return space.write(name.c_str(), alloc, context, chosen.get()); });
  const String read = withEveryMemory(
      [&](zelAllocFunc alloc, void *context) { return space.read(name.c_str(), alloc, context, chosen.get()); });
  checkIdent(read.get());
  return 0;
}
