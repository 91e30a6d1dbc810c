// One name between two spaces, under any mapping state, VHDL mode and separators.
#include "fuzz.h"

namespace {

// What read gives for a name, which begins with a marker.
template <typename Read, typename... Handles> Result identOf(const char *name, Read read, Handles... handle) {
  Result ident = inEveryMemory([&](auto... memory) { return read(name, memory..., handle...); }, ZEL_MAX_NAME + 1);
  require(!ident || (*ident)[0] == 'S' || (*ident)[0] == 'I' || (*ident)[0] == 'F', "marker of an Ident");
  return ident;
}

bool holds(const std::string &text, const char *part) { return text.find(part) != std::string::npos; }

// A backslash in a Kirra name that begins with a digit is written as it is, but what it quotes is read.
bool isQuotedKirraNumber(const std::string &space, const std::string &name) {
  return space == "Kirra" && name[0] >= '0' && name[0] <= '9' && holds(name, "\\");
}

// Whether a space reads back what it writes for the Ident of this name of its own.
bool isStable(const std::string &space, const std::string &name, const std::string &ident) {
  // What a name begins and ends with is not tested in Spice.
  return space != "Spice" &&
         // Vellum loses the quotes, which also tell what is an escape.
         !(space == "Vellum" && holds(name, "#")) &&
         // Kirra counts its keyword prefix up to three times only.
         !(space == "Kirra" && holds(ident, "KEYWORD_KEYWORD_KEYWORD_")) &&
         !isQuotedKirraNumber(space, ident.substr(1)) &&
         // LibraryNT looks for an escape without minding the '%' that it puts in front of a capital among its digits.
         !(space == "LibraryNT" && holds(name, "#") && holds(name, "%")) &&
         // SPF puts a backslash before the escape of a byte of 128 and above, and reads it as a character.
         !(space == "Spf" && std::any_of(ident.begin(), ident.end(), [](char c) { return (c & 0x80) != 0; })) &&
         // A content that begins with the force prefix loses it.
         !holds(name, "ESC_");
}

// A legal name has an Ident; in the default mapping state what its space writes for that is legal and reads back.
void checkRoundTrip(const char *space, const std::string &name) {
  const zelNameToIdentFunc read = zelGetNameToIdentFunc(space);
  const Result ident = identOf(name.c_str(), read);
  // Only a force prefix can make the Ident of a legal name over-long.
  if (zelIsLegalName(space, name.c_str()) != 0 && !isQuotedKirraNumber(space, name))
    require(ident || name.size() > ZEL_MAX_NAME - 6, "a legal name has an Ident");
  if (!ident || ident->size() < 2 || zelGetMapState() != ZEL_MAP_DEFAULT || !isStable(space, name, *ident))
    return;
  const Result back =
      inEveryMemory([&](auto... memory) { return zelGetIdentToNameFunc(space)(ident->c_str(), memory...); });
  if (!back) // escaping made it over-long
    return;
  require(zelIsLegalName(space, back->c_str()) != 0, "what a writer returns is legal");
  const Result again = identOf(back->c_str(), read);
  require(again && zelIdentCmp(again->c_str(), ident->c_str()) == 0, "what a writer returns reads back");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
  FuzzedDataProvider input(data, size);
  const char *const from = space(input);
  const char *const to = space(input);
  zelSetMapState(input.ConsumeIntegralInRange<int32_t>(ZEL_MAP_VHDL, ZEL_MAP_MATCH));
  zelSetVHDLMode(input.ConsumeIntegralInRange<int>(0, 2));
  auto write = input.PickValueInArray({zelIdentToSdfWithHandle, zelIdentToSpfWithHandle, zelIdentToSpefWithHandle,
                                       zelIdentToGcfWithHandle, zelIdentToLefWithHandle, zelIdentToDefWithHandle});
  auto read = input.PickValueInArray({zelSdfToIdentWithHandle, zelSpfToIdentWithHandle, zelSpefToIdentWithHandle,
                                      zelGcfToIdentWithHandle, zelLefToIdentWithHandle, zelDefToIdentWithHandle});
  const Handle separators = handle(input, "Sdf");
  const std::string text = input.ConsumeRemainingBytesAsString();
  const char *const name = text.c_str();

  checkRoundTrip(from, name);
  for (const char *const source : {from, "Ident"})
    inEveryMemory([&](auto... memory) { return zelMapName(source, to, name, memory...); });
  inEveryMemory([&](auto... memory) { return write(name, memory..., separators.get()); });
  identOf(name, read, separators.get());
  return 0;
}
