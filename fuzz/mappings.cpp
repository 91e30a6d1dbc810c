// Mappings under any options: what they answer, diagnose, read back and call equal.
#include "fuzz.h"

#include <cstring>

namespace {

using Mapping = std::unique_ptr<const zelMappingRecord, decltype(&zelFreeMapping)>;

Mapping make(const zelMappingOptions &options) {
  char message[100] = "";
  Mapping mapping(zelCreateMapping(&options, message, sizeof message), zelFreeMapping);
  require((mapping == nullptr) == (*message != '\0'), "a message for wrong options, and no other");
  return mapping;
}

zelMappingSeparators separators(FuzzedDataProvider &input) {
  if (input.ConsumeIntegral<uint8_t>() % 2 == 0)
    return {};
  const auto mark = [&](const char *marks) { return marks[input.ConsumeIntegral<uint8_t>() % (strlen(marks) + 1)]; };
  const char pinDelimiter = mark(":|/.");
  const char divider = mark("/.|:%;!");
  const char busOpen = mark("[(<{");
  return {pinDelimiter, divider, busOpen, busOpen == '\0' ? '\0' : mark("])>}")};
}

bool isGiven(const zelMappingSeparators &marks) {
  return marks.pinDelimiter != '\0' || marks.divider != '\0' || marks.busOpen != '\0' || marks.busClose != '\0';
}

bool hasPins(const char *space) { return strcmp(space, "Spef") == 0 || strcmp(space, "Spf") == 0; }

Result apply(const Mapping &mapping, const char *text) {
  Result result = inEveryMemory([&](auto... memory) { return zelMappingApply(mapping.get(), text, memory...); });
  zelRefusal refusal;
  const int32_t reason = zelDiagnose(mapping.get(), text, &refusal);
  require(reason == refusal.reason && reason >= ZEL_REASON_NONE && reason < ZEL_REASON_COUNT, "a reason");
  require(result.has_value() == (reason == ZEL_REASON_NONE), "a reason exactly where there is no result");
  require(refusal.position <= strlen(text), "the position lies in the text");
  return result;
}

Result key(const Mapping &mapping, const char *text) {
  return inEveryMemory([&](auto... memory) { return zelMappingKey(mapping.get(), text, memory...); });
}

Handle handleOf(const char *space, const zelMappingSeparators &marks) {
  if (strncmp(space, "Library", 7) == 0) // which would make one for LEF
    return {nullptr, zelFreeHandle};
  const auto code = [](char c) { return static_cast<uint32_t>(static_cast<unsigned char>(c)); };
  return {zelGetHandle(space, code(marks.pinDelimiter), code(marks.divider), code(marks.busOpen), code(marks.busClose)),
          zelFreeHandle};
}

// A lenient mapping answers as the functions without one do; a strict one of the same options, too, where it answers.
void checkLenient(zelMappingOptions options, const char *text) {
  options.isLenient = 1;
  const Mapping lenient = make(options);
  const Handle from = handleOf(options.from, options.fromSeparators);
  const Handle to = handleOf(options.to, options.toSeparators);
  const bool isName = options.isNames != 0 || from == nullptr || to == nullptr;
  const bool isSeparated = isGiven(options.fromSeparators) || isGiven(options.toSeparators);
  if (lenient == nullptr || (isName && isSeparated))
    return;
  const Result expected = inEveryMemory([&](auto... memory) {
    return isName ? zelMapName(options.from, options.to, text, memory...)
                  : zelPathMapperEx(text, from.get(), to.get(), options.printFlags, nullptr, nullptr, memory...);
  });
  require(apply(lenient, text) == expected, "a lenient mapping answers as the functions do");
  // Handles of DEF escape the pin delimiter and not the divider.
  const auto isSeparatedDef = [](const char *space, const zelMappingSeparators &marks) {
    return strcmp(space, "Def") == 0 && isGiven(marks);
  };
  if (isSeparatedDef(options.from, options.fromSeparators) || isSeparatedDef(options.to, options.toSeparators))
    return;
  options.isLenient = 0;
  const char pin = options.fromSeparators.pinDelimiter != '\0' ? options.fromSeparators.pinDelimiter : ':';
  if (const Mapping strict = make(options);
      strict != nullptr && !(hasPins(options.from) && strchr(text, pin) != nullptr))
    // LEF and DEF are else tested with the default separators.
    if (const Result result = apply(strict, text); result && (expected || !isGiven(options.fromSeparators)))
      require(result == expected, "a strict answer is the lenient one");
}

// The keys of two names are equal where their Idents are.
void checkKeys(zelMappingOptions options, const std::string &text) {
  options.isNames = 1;
  options.isLenient = 0;
  options.element = '\0';
  options.fromSeparators = options.toSeparators = {};
  const Mapping mapping = make(options);
  if (mapping == nullptr)
    return;
  const size_t middle = text.size() / 2;
  const std::string names[2] = {text.substr(0, middle), text.substr(middle)};
  Result idents[2];
  Result keys[2];
  for (int i = 0; i < 2; ++i) {
    idents[i] =
        inEveryMemory([&](auto... memory) { return zelGetNameToIdentFunc(options.from)(names[i].c_str(), memory...); },
                      ZEL_MAX_NAME + 1);
    keys[i] = key(mapping, names[i].c_str());
    const bool isShort = idents[i] && idents[i]->size() < ZEL_MAX_NAME / 2;
    const bool isLegal = idents[i] && zelIsLegalIdent(idents[i]->c_str()) != 0;
    require(keys[i].has_value() == isLegal || (idents[i] && !isShort), "a name that has an Ident has a key");
  }
  if (keys[0] && keys[1])
    require((keys[0] == keys[1]) == (zelIdentCmp(idents[0]->c_str(), idents[1]->c_str()) == 0),
            "keys are equal exactly where Idents are");
}

// Whether the target reads all that it writes for a text (here with its key, for prefixes that readers add): not lists,
// repeats, blanks and libraries, which only some grammars have, indexes without a name or several of one, nor what LEF
// and DEF write as it stands. As in the target `names`, some spaces are left out; and those whose printers are
// another's.
bool isReadBack(const zelMappingOptions &options, const std::string &text, const std::string &result) {
  const auto isOneOf = [](const char *space, std::initializer_list<const char *> spaces) {
    return std::any_of(spaces.begin(), spaces.end(), [space](const char *other) { return strcmp(space, other) == 0; });
  };
  const auto isControl = [](char c) { return (c >= 0 && c <= ' ') || c == 0x7f; };
  for (size_t i = 0; i < text.size(); ++i)
    if (strchr("[<(", text[i]) != nullptr && (i == 0 || strchr("/.|:%;!]>)", text[i - 1]) != nullptr))
      return false;
  return options.printFlags == 0 && text.size() <= ZEL_MAX_NAME / 4 &&
         (text + result).find("ESC_") == std::string::npos && text.find("KEYWORD_") == std::string::npos &&
         text.find_first_of("{},&*( @") == std::string::npos &&
         (strcmp(options.from, "ORKA") != 0 || text.find('<') == std::string::npos) && // whose steps are lists
         !isOneOf(options.to, {"Kirra", "Vellum", "LibraryNT", "Spice", "VerilogAMS", "FlatTessel", "Spf"}) &&
         !(isOneOf(options.to, {"Lef", "Def"}) && std::any_of(result.begin(), result.end(), isControl));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
  FuzzedDataProvider input(data, size);
  zelMappingOptions options = {};
  options.size = sizeof options;
  options.from = space(input);
  options.to = space(input);
  options.fromSeparators = separators(input);
  options.toSeparators = separators(input);
  options.kind = input.ConsumeIntegralInRange<int32_t>(ZEL_KIND_NET, ZEL_KIND_PIN);
  options.levels = input.ConsumeIntegralInRange<int32_t>(ZEL_LEVELS_ALL, ZEL_LEVELS_LAST);
  options.element = input.PickValueInArray({'\0', '\0', 'X', 'r'});
  options.keywords = input.PickValueInArray<const char *>({nullptr, nullptr, "1800-2017", "1076-2008"});
  options.printFlags = input.ConsumeBool() ? input.ConsumeIntegralInRange<uint32_t>(0, 31) : 0;
  options.mapState = input.PickValueInArray({0, 0, 2, 3, 4, 5, ZEL_MAP_PROCESS});
  options.isNames = input.ConsumeBool() ? 1 : 0;
  const std::string text = input.ConsumeRemainingBytesAsString();
  // ORKA without repeats cannot write a bracketed list, which ends the process.
  if ((options.printFlags & (ZEL_PRINT_NOREPEAT | ZEL_PRINT_EXPLODE)) == ZEL_PRINT_NOREPEAT &&
      text.find('(') != std::string::npos)
    return 0;

  const int32_t state = options.mapState > 0 ? options.mapState : ZEL_MAP_DEFAULT;
  zelSetMapState(state);
  const Mapping mapping = make(options);
  if (mapping != nullptr) {
    const Result result = apply(mapping, text.c_str());
    const Result textKey = key(mapping, text.c_str());
    // References to libraries become Idents while they are parsed, by the state of the process.
    if (options.mapState != ZEL_MAP_PROCESS && text.find('@') == std::string::npos) {
      zelSetMapState(ZEL_MAP_MATCH);
      require(apply(mapping, text.c_str()) == result, "the state of the process does not matter");
    }
    zelSetMapState(ZEL_MAP_TANDEM);
    require(key(mapping, text.c_str()) == textKey, "the state of the process does not matter to keys");
    if (result) {
      const int32_t check = zelMappingCheck(mapping.get(), text.c_str(), result->c_str());
      require(!isReadBack(options, text + textKey.value_or(""), *result) || check == ZEL_CHECK_SAME ||
                  check == ZEL_CHECK_CASE_LOST,
              "what was written is read back");
    }
  }
  zelSetMapState(state);
  checkLenient(options, text.c_str());
  zelSetMapState(ZEL_MAP_DEFAULT);
  checkKeys(options, text);
  return 0;
}
