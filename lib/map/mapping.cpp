// How a mapping is made.
#include "map/mapping.h"

#include "path/zelPathParse.h"
#include "path/zelPathPrint.h"
#include "spaces/keywordRevisions.h"

#include <cstdio>
#include <new>

using namespace zeli;

namespace {

// The names that people use beside those of the table.
constexpr struct {
  Bytes name;
  SpaceId space;
} otherNames[] = {{"dspf", SpaceId::Spf},
                  {"library", SpaceId::LibraryUnix},
                  {"filesys", SpaceId::LibraryUnix},
                  {"verilog-ams", SpaceId::VerilogAMS},
                  {"verilog-a", SpaceId::VerilogA},
                  {"vhdl-87", SpaceId::VHDL87},
                  {"vhdl-ams", SpaceId::VHDLAMS}};

bool isSameName(Bytes a, Bytes b) {
  return a.size() == b.size() &&
         std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) { return toLower(x) == toLower(y); });
}

// Whole, in any case.
SpaceId spaceNamed(const char *name) {
  const Bytes wanted = wholeBytes(name);
  for (std::size_t i = 0; i < static_cast<std::size_t>(SpaceId::count); ++i)
    if (isSameName(spaces[i].lookupName, wanted))
      return spaces[i].id;
  for (const auto &other : otherNames)
    if (isSameName(other.name, wanted))
      return other.space;
  return SpaceId::none;
}

// Says what is wrong with the options.
class Complaint {
public:
  Complaint(char *messageBuffer, std::uint64_t bufferSize) : message(messageBuffer), size(bufferSize) {}

  bool operator()(const char *format, const char *value = "") const {
    if (message != nullptr && size != 0)
      std::snprintf(message, size, format, value);
    errno = EINVAL;
    return false;
  }

private:
  char *message;
  std::uint64_t size;
};

bool isGiven(const zelMappingSeparators &separators) {
  return separators.pinDelimiter != '\0' || separators.divider != '\0' || separators.busOpen != '\0' ||
         separators.busClose != '\0';
}

// SPICE with a divider and brackets: these and the backslash are escaped, the rest as in SPICE.
BackslashRules spiceRules(const Separators &separators) {
  const auto [pinDelimiter, divider, busOpen, busClose] = separators;
  const ByteSet marks = chars({divider, busOpen, busClose, '\\'});
  const ByteSet written = (wordChar | chars("!#$%*+-/<>[].")) - marks;
  // A bracket that is no index belongs to the name.
  const ByteSet plain = written | chars({busOpen, busClose});
  return {plain, graphic, (graphic - written) | chars("#"), {'#', graphic}};
}

// The separators of a side as they are with those that were given.
Separators mergedSeparators(const Separators &defaults, const zelMappingSeparators &given) {
  const auto either = [](char chosen, char own) { return chosen != '\0' ? chosen : own; };
  return {either(given.pinDelimiter, defaults.pinDelimiter), either(given.divider, defaults.divider),
          either(given.busOpen, defaults.busOpen), either(given.busClose, defaults.busClose)};
}

// Letters, signs and the marks of escapes, of which LEF and DEF have another, separate nothing.
bool areSeparators(const Separators &separators, bool hasPins, bool isLayout) {
  static constexpr ByteSet inNumbersAndNames = wordChar | beyondAscii | white | chars("\\+-#");
  const ByteSet useless = inNumbersAndNames | chars(isLayout ? "%" : "");
  const auto [pin, divider, open, close] = separators;
  const bool areMarks = !useless.has(divider) && !useless.has(open) && !useless.has(close) && divider != '\0' &&
                        (open != '\0') == (close != '\0');
  const bool areDifferent = divider != open && divider != close && (open == '\0' || open != close);
  return areMarks && areDifferent && (!hasPins || (!useless.has(pin) && pin != open && pin != close));
}

// Sets up one side for paths of a language. Where the file may redefine its separators, the side gets a handle of its
// own, in made.
// cppcheck-suppress constParameter ; its marks are set
bool setSeparators(Side &side, SpaceId space, const zelMappingSeparators &given, bool isLenient,
                   ChosenSeparators *&made, const Complaint &complain) {
  const PathLanguage &language = *side.language;
  const bool hasPins = !isLenient && (space == SpaceId::Spef || space == SpaceId::Spf);
  const bool isSpice = space == SpaceId::Spice;
  if (language.redefines != Redefines::everything && !isSpice)
    return !isGiven(given) || complain("the separators of %s are fixed", language.name);
  if (isSpice && !isGiven(given))
    return true;
  Separators defaults = isSpice ? Separators{'\0', '.', '\0', '\0'} : language.separators;
  if (hasPins)
    defaults.pinDelimiter = ':';
  Separators chosen = mergedSeparators(defaults, given);
  // DEF's names escape the pin delimiter where they should the divider.
  if (!hasPins && !isLenient)
    chosen.pinDelimiter = chosen.divider;
  if (!areSeparators(chosen, hasPins, space == SpaceId::Lef || space == SpaceId::Def))
    return complain("these separators of %s cannot be told from each other or from names", language.name);

  void *memory = std::malloc(sizeof(ChosenSeparators));
  if (memory == nullptr) {
    complain("no memory");
    errno = ENOMEM;
    return false;
  }
  const char pin = hasPins && chosen.pinDelimiter != chosen.divider ? chosen.pinDelimiter : '\0';
  const BackslashRules rules = isSpice ? spiceRules(chosen) : language.names.read->rulesUnder(chosen);
  made = new (memory) ChosenSeparators{{madeHandle, &language, chosen, language.names.read, nullptr, nullptr},
                                       pathNameBytes(language.names.stops, chosen) - chars({pin}),
                                       rules};
  made->handle.rules = &made->rules;
  made->handle.pathNameBytes = &made->pathNameBytes;
  side.marks = {chosen.divider, chosen.busOpen, chosen.busClose};
  side.pinDelimiter = pin;
  side.takesWords = made->rules.takesWords;
  if (isSpice)
    side.ownNames = &made->rules;
  else
    side.setting.handle = &made->handle;
  return true;
}

// VHDL's names are read and written whatever the VHDL mode of the process, unless that is asked for.
const Operations *namesOf(const Operations *names, bool isOfProcess) {
  return names == &vhdlNames && !isOfProcess ? &vhdl93Names : names;
}

// --- Keys -----------------------------------------------------------------------------------------------------------

constexpr ByteSet keySyntax = chars("/[]{},\\");

// What zelIdentCmp compares: a body as it stands, lowered where case does not matter; the marks of the key's levels
// behind a backslash.
struct KeyRules {
  HexEscape escape = noEscape;
  Spelling spelling = Spelling(noEscape, anyByte, keySyntax);

  static constexpr PlainWords plainWords() { return {0, 0, traitUpper, '\0'}; }
  static bool isLegal(const Name &) { return false; }
  static zelRefusal explain(const Name &) { return {}; }
  static Ident read(const Name &, const Setting &, Text &) { return refuseIdent(); }
  Spelled write(const Ident &ident, const Setting &, Text &work) const {
    return spell(work, ident.body, escape, spelling, !ident.isCaseSensitive());
  }
};

constexpr KeyRules keyRules;
constexpr Operations keyNames = operationsOf<keyRules>;

// As SDF is printed, but a divider in front of all levels tells no objects apart.
constexpr PathLanguage keyLanguage = {
    .code = 0,
    .space = SpaceId::none,
    .name = "",
    .parse = nullptr,
    .print = nullptr,
    .separators = {'\0', '/', '[', ']'},
    .handle = nullptr,
    .names = {.scan = nullptr},
    .reader = {.grammar = nullptr},
    .writer = {.printer = &bracePrinter, .names = &keyNames, .marks = {'/', '[', ']'}},
};

// The keys of what a side reads, in the default mapping state.
Route keyRoute(const Side &read, const Operations *tested, std::int32_t kind, std::int32_t levels) {
  Route route;
  route.from = read;
  route.from.setting.mapState = ZEL_MAP_DEFAULT;
  route.tested = tested;
  route.kind = kind;
  route.levels = levels;
  route.to = {
      .language = &keyLanguage, .names = &keyNames, .setting = {.mapState = ZEL_MAP_DEFAULT}, .marks = {'/', '[', ']'}};
  route.join();
  return route;
}

// What a path of the language is tested as; a file's own separators are tested when names are read.
const Operations *testedOf(const PathLanguage *language, bool isOfProcess) {
  if (language == nullptr || language->redefines == Redefines::everything || language->names.tested == nullptr)
    return nullptr;
  return language == &languages::spice ? nullptr : namesOf(language->names.tested, isOfProcess);
}

bool setOptions(zelMappingRecord &mapping, const zelMappingOptions &options, const Complaint &complain) {
  const SpaceId from = spaceNamed(options.from);
  const SpaceId to = spaceNamed(options.to);
  if (from == SpaceId::none || to == SpaceId::none)
    return complain("no space is called '%s'", from == SpaceId::none   ? (options.from != nullptr ? options.from : "")
                                               : options.to != nullptr ? options.to
                                                                       : "");
  if (options.kind < ZEL_KIND_NET || options.kind > ZEL_KIND_PIN)
    return complain("there is no such kind of object");
  if (options.levels != ZEL_LEVELS_ALL && options.levels != ZEL_LEVELS_LAST)
    return complain("element letters stand on all levels or on the last");
  constexpr std::uint32_t allFlags =
      ZEL_PRINT_EXPLODE | ZEL_PRINT_NOREPEAT | ZEL_PRINT_NOCOMPLEX | ZEL_PRINT_GROUP | ZEL_PRINT_TOP;
  if ((options.printFlags & ~allFlags) != 0)
    return complain("there is no such print flag");
  if (options.element != '\0' && !letter.has(options.element))
    return complain("an element letter is a letter");
  if (options.element != '\0' && from != SpaceId::Spice && to != SpaceId::Spice)
    return complain("only SPICE has element letters");
  const bool isOfProcess = options.mapState == ZEL_MAP_PROCESS;
  if (options.mapState != 0 && !isOfProcess && (options.mapState < ZEL_MAP_VHDL || options.mapState > ZEL_MAP_MATCH))
    return complain("there is no such mapping state");

  const PathLanguage *source = languageOf(from);
  const PathLanguage *target = languageOf(to);
  mapping.isNames = options.isNames != 0 || source == nullptr || target == nullptr;
  mapping.isLenient = options.isLenient != 0;
  Route &route = mapping.route;
  route.printFlags = options.printFlags;
  route.kind = options.kind;
  route.levels = options.levels;

  // The result is read back by the target's own language, which need not be the one that prints it.
  Side back;
  const auto setSide = [&](Side &side, SpaceId space, const PathLanguage *language) {
    side.language = language;
    side.names =
        namesOf(language != nullptr && !mapping.isNames ? language->names.read : spaceOf(space).names, isOfProcess);
    side.setting.mapState = isOfProcess             ? std::int32_t{ZEL_MAP_UNSET}
                            : options.mapState != 0 ? options.mapState
                                                    : std::int32_t{ZEL_MAP_DEFAULT};
    side.element = space == SpaceId::Spice ? options.element : '\0';
    // An Ident is a word only with its marker.
    side.takesWords = side.setting.mapState == ZEL_MAP_DEFAULT && space != SpaceId::Ident;
    if (language != nullptr)
      side.marks = language->reader.marks;
    if (language != nullptr && language->redefines == Redefines::everything)
      side.marks = {language->separators.divider, language->separators.busOpen, language->separators.busClose};
  };
  setSide(route.from, from, source);
  setSide(back, to, target);
  const bool takesWords = back.takesWords;
  const auto separate = [&](Side &side, SpaceId space, const zelMappingSeparators &given, int number) {
    if (side.language == nullptr)
      return !isGiven(given) || complain("%s has no separators", spaceOf(space).descriptor.name);
    return setSeparators(side, space, given, mapping.isLenient, mapping.chosen[number], complain);
  };
  if (!separate(route.from, from, options.fromSeparators, 0) || !separate(back, to, options.toSeparators, 1))
    return false;
  route.from.takesWords = route.from.takesWords && takesWords;
  back.takesWords = back.takesWords && takesWords;

  route.to = back;
  if (target != nullptr && !mapping.isNames) {
    const PathLanguage &printing = printingLanguage(*target);
    mapping.printing = &printing;
    route.to.language = &printing;
    route.to.names = namesOf(printing.writer.names, isOfProcess);
    const Punctuation &own = printing.writer.marks;
    if (back.ownNames == nullptr && printing.redefines != Redefines::everything)
      route.to.marks = own;
    // SPICE writes an index also where no brackets make it one.
    if (route.to.marks.busOpen == '\0' && own.busOpen != route.to.marks.divider &&
        own.busClose != route.to.marks.divider) {
      route.to.marks.busOpen = own.busOpen;
      route.to.marks.busClose = own.busClose;
    }
  }
  if (!mapping.isNames)
    route.tested = mapping.isLenient ? source->names.tested : testedOf(source, isOfProcess);

  if (options.keywords != nullptr) {
    const KeywordRevision *revision = findKeywordRevision(options.keywords);
    if (revision == nullptr)
      return complain("no keyword revision is called '%s'", options.keywords);
    const bool isVHDL = to == SpaceId::VHDL || to == SpaceId::VHDL87 || to == SpaceId::VHDLAMS;
    const bool isVerilog = to == SpaceId::Verilog || to == SpaceId::VerilogA || to == SpaceId::VerilogAMS;
    if (revision->isVHDL ? !isVHDL : !isVerilog)
      return complain("the revision %s is not one of the target", revision->name);
    route.to.setting.reserved = back.setting.reserved = &revision->isKeyword;
  }
  if (mapping.isLenient && (options.element != '\0' || options.keywords != nullptr || route.from.ownNames != nullptr ||
                            route.to.ownNames != nullptr || options.kind == ZEL_KIND_PIN))
    return complain("a lenient mapping knows no element letters, keyword revisions, pins and separators of SPICE");

  mapping.fromHandle = mapping.chosen[0] != nullptr ? &mapping.chosen[0]->handle
                       : source != nullptr          ? *source->handle
                                                    : nullptr;
  mapping.toHandle = mapping.chosen[1] != nullptr ? &mapping.chosen[1]->handle
                     : target != nullptr          ? *target->handle
                                                  : nullptr;
  route.join();
  mapping.sourceKey = keyRoute(route.from, route.tested, options.kind, options.levels);
  mapping.resultKey =
      keyRoute(back, mapping.isNames ? nullptr : testedOf(target, isOfProcess), options.kind, options.levels);
  return true;
}

} // namespace

zelMapping zelCreateMapping(const zelMappingOptions *options, char *message, std::uint64_t messageSize) noexcept {
  const Complaint complain(message, messageSize);
  if (options == nullptr || options->size < sizeof(zelMappingOptions)) {
    complain("the options are missing, or their size is not set");
    return nullptr;
  }
  auto *mapping = static_cast<zelMappingRecord *>(std::malloc(sizeof(zelMappingRecord)));
  if (mapping == nullptr) {
    complain("no memory");
    errno = ENOMEM;
    return nullptr;
  }
  new (mapping) zelMappingRecord{};
  if (setOptions(*mapping, *options, complain))
    return mapping;
  const int error = errno;
  zelFreeMapping(mapping);
  errno = error;
  return nullptr;
}

void zelFreeMapping(zelMapping mapping) noexcept {
  if (mapping == nullptr)
    return;
  for (ChosenSeparators *chosen : mapping->chosen)
    std::free(chosen);
  std::free(const_cast<zelMappingRecord *>(mapping));
}
