// What the path tests share: a path as one readable string, in both directions, and owners of paths and handles.
#ifndef PATH_SUPPORT_H
#define PATH_SUPPORT_H

#include "path/languages.h"
#include "path/zelPath.h"
#include "support/pairs.h"

#include <memory>
#include <set>

// What the functions of paths do not show.
namespace internals {

// The bytes of every chunk in use, with a bar between chunks.
inline std::string bytesOf(const zelPathRecord *path) {
  std::string text;
  for (const zelPathRecord *chunk = path; chunk != nullptr && chunk->used != 0; chunk = chunk->next) {
    text += chunk == path ? "" : " |";
    for (int i = 0; i < chunk->used; ++i)
      text += (text.empty() ? "" : " ") + std::to_string(chunk->items[i]);
  }
  return text;
}

// Whether the walk stands on an identifier that is not converted yet, and then its text.
inline bool isTextAt(zelPath path, std::string &text) {
  const zelPathRecord *chunk = path;
  for (std::uint32_t number = zelPathGetLocation(path) >> 8; number > 1; --number)
    chunk = chunk->next;
  const std::uint8_t kind = chunk->items[zelPathGetLocation(path) & 0xFF];
  if (!zeli::isText(kind))
    return false;
  const char *const start = chunk->slots[zeli::slotOf(kind)].string;
  text.assign(start, zeli::languageOf(path)->names.scan(start, path->handle));
  return true;
}

// What the flag word notes of a path, and the bit that reports it, if any.
struct Note {
  const char *name;
  std::uint32_t flag;
  int reported;
};
inline constexpr Note notes[] = {{"error", zeli::flagError, ZEL_PATH_ERROR},
                                 {"hierarchy", zeli::flagHierarchy, ZEL_PATH_HIERARCHY},
                                 {"index", zeli::flagIndex, ZEL_PATH_INDEX},
                                 {"range", zeli::flagRange, ZEL_PATH_RANGE},
                                 {"complex", zeli::flagComplex, ZEL_PATH_COMPLEX},
                                 {"mid-index", zeli::flagMidIndex, ZEL_PATH_MID_INDEX},
                                 {"mid-range", zeli::flagMidRange, ZEL_PATH_MID_RANGE},
                                 {"repeat", zeli::flagRepeat, ZEL_PATH_REPEAT},
                                 {"list", zeli::flagList, ZEL_PATH_LIST},
                                 {"complex-index", zeli::flagComplexIndex, 0},
                                 {"leading-divider", zeli::flagLeadingDivider, 0}};
inline bool isNoted(const zelPathRecord *path, const Note &note) { return (path->flags & note.flag) != 0; }

// Whether the path is one name where lists and repeats are several, and where complex indexes are as well.
inline bool isSingle(const zelPathRecord *path) { return (path->flags & (zeli::flagList | zeli::flagRepeat)) == 0; }
inline bool isSimple(const zelPathRecord *path) {
  return isSingle(path) && (path->flags & (zeli::flagComplex | zeli::flagComplexIndex)) == 0;
}

// The number of the language in pathLanguages, from 1.
inline std::size_t languageOf(const zelPathRecord *path) {
  return path->flags >> zeli::languageShift & zeli::languageMask;
}
inline void setNoLanguage(zelPath path) { path->flags |= zeli::languageMask << zeli::languageShift; }

} // namespace internals

struct Release {
  void operator()(zelPath path) const { zelFreePath(path, nullptr, nullptr); }
};
using Path = std::unique_ptr<zelPathRecord, Release>;

// What parses and prints in a space; handle is null for the separators that the space has.
struct PathSpace {
  decltype(&zelParseVerilog) parse;
  decltype(&zelPathToVerilogEx) print;
  zelHandle builtIn;
  zelHandle handle = nullptr;
};
inline const std::map<std::string, PathSpace> pathSpaces = {
    {"Verilog", {zelParseVerilog, zelPathToVerilogEx, zelVerilogHandle}},
    {"VerilogAMS", {zelParseVerilogAMS, zelPathToVerilogEx, zelVerilogAMSHandle}},
    {"VHDL", {zelParseVHDL, zelPathToVHDLEx, zelVHDLHandle}},
    {"VHDL87", {zelParseVHDL87, zelPathToVHDLEx, zelVHDL87Handle}},
    {"VHDLAMS", {zelParseVHDLAMS, zelPathToVHDLEx, zelVHDLAMSHandle}},
    {"ORKA", {zelParseORKA, zelPathToORKAEx, zelORKAHandle}},
    {"Gcf", {zelParseGcf, zelPathToGcfEx, zelGcfHandle}},
    {"Tessel", {zelParseTessel, zelPathToTesselEx, zelTesselHandle}},
    {"FlatTessel", {zelParseFlatTessel, zelPathToFlatTesselEx, zelFlatTesselHandle}},
    {"Sdf", {zelParseSdf, zelPathToSdfEx, zelSdfHandle}},
    {"Spf", {zelParseSpf, zelPathToSpfEx, zelSpfHandle}},
    {"Spef", {zelParseSpef, zelPathToSpefEx, zelSpefHandle}},
    {"Kirra", {zelParseKirra, zelPathToKirraEx, zelKirraHandle}},
    {"KirraHDL", {zelParseKirraHDL, zelPathToKirraHDLEx, zelKirraHDLHandle}},
    {"Spice", {zelParseSpice, zelPathToSpiceEx, zelSpiceHandle}},
    {"Def", {zelParseDef, zelPathToDefEx, zelDefHandle}},
    {"Lef", {zelParseLef, zelPathToLefEx, zelLefHandle}}};
// The languages that have a printer of their own.
inline const std::vector<std::string> printedLanguages =
    wordsOf("Verilog Kirra KirraHDL VHDL ORKA Tessel FlatTessel Lef Def Sdf Spf Spef Gcf Spice");

// "Sdf", or "Sdf(.<>)" with a divider and, if they follow, bus brackets and a pin delimiter of one's own.
inline PathSpace spaceAt(const std::string &words) {
  static std::map<std::string, Handle> made;
  const std::size_t end = std::min(words.find('('), words.size());
  const std::string name = words.substr(0, end);
  PathSpace space = pathSpaces.at(name);
  if (end != words.size()) {
    std::string separators = words.substr(end + 1, words.size() - end - 2);
    separators.resize(4, '\0');
    Handle &handle = made[words];
    if (handle == nullptr)
      handle.reset(makeHandle(zelGetHandle, name, separators[3] + separators.substr(0, 3)));
    space.handle = handle.get();
  }
  return space;
}

inline std::string repeated(const std::string &text, std::size_t count) {
  std::string result;
  while (count-- > 0)
    result += text;
  return result;
}

// The identifier that the walk stands on: its text, or its Ident once it is converted.
inline std::string identAt(zelPath path) {
  std::string name;
  if (!internals::isTextAt(path, name))
    return resultOf(zelPathGetIdent(path)).value_or("-");
  const char *end = nullptr;
  const char *const text = zelPathGetString(path, &end);
  if (text != nullptr && std::string(text, end) != name)
    name += " got as " + std::string(text, end);
  return name.empty() ? "''" : name;
}

// The items as the walk gives them, with blanks between: an identifier, "^" before a top identifier; [3] [3:0] [0:6:2]
// indexes, [*2] index repeat, ( ) index list; <*2> group repeat, { , } list; @library.cell(view), "-" for a null name;
// ? no item.
inline std::string itemsOf(zelPath path) {
  static const std::map<int, const char *> formats = {{ZEL_ITEM_TOP_IDENT, " ^"},
                                                      {ZEL_ITEM_IDENT, " "},
                                                      {ZEL_ITEM_INDEX, " [%d]"},
                                                      {ZEL_ITEM_RANGE, " [%d:%d]"},
                                                      {ZEL_ITEM_STEP_RANGE, " [%d:%d:%d]"},
                                                      {ZEL_ITEM_REPEAT, " <*%d>"},
                                                      {ZEL_ITEM_LIST_START, " {"},
                                                      {ZEL_ITEM_LIST, " ,"},
                                                      {ZEL_ITEM_LIST_END, " }"},
                                                      {ZEL_ITEM_INDEX_LIST_START, " ("},
                                                      {ZEL_ITEM_INDEX_LIST_END, " )"},
                                                      {ZEL_ITEM_INDEX_REPEAT, " [*%d]"},
                                                      {ZEL_ITEM_LIB, " @"},
                                                      {ZEL_ITEM_NONE, " ?"}};
  std::string text;
  zelPathGenStart(path);
  for (int item = zelPathGenNext(path); item != ZEL_ITEM_END; item = zelPathGenNext(path)) {
    const char *names[3] = {};
    std::int32_t n[3] = {};
    zelPathGetStepRange(path, &n[0], &n[1], &n[2]);
    if (item == ZEL_ITEM_RANGE)
      zelPathGetRange(path, &n[0], &n[1]);
    else if (item != ZEL_ITEM_STEP_RANGE)
      n[0] = item == ZEL_ITEM_INDEX ? zelPathGetIndex(path) : zelPathGetRepeat(path);
    char shown[40];
    std::snprintf(shown, sizeof shown, formats.at(item), n[0], n[1], n[2]);
    text += shown;
    if (item == ZEL_ITEM_TOP_IDENT || item == ZEL_ITEM_IDENT)
      text += identAt(path);
    zelPathGetLib(path, &names[0], &names[1], &names[2]);
    if (item == ZEL_ITEM_LIB)
      text += resultOf(names[0]).value_or("-") + '.' + resultOf(names[1]).value_or("-");
    text += names[2] != nullptr ? '(' + std::string(names[2]) + ')' : "";
  }
  return text.empty() ? text : text.substr(1);
}

// What is noted of the path, by the words of internals::notes. What zelPathGetFlag reports must agree.
inline std::string flagsOf(zelPath path) {
  int expected = internals::isSimple(path) ? ZEL_PATH_SINGLE_VERILOG | ZEL_PATH_SINGLE_VHDL : 0;
  expected |= internals::isSingle(path) ? ZEL_PATH_SINGLE_ORKA : 0;
  std::string text;
  for (const internals::Note &note : internals::notes)
    if (internals::isNoted(path, note)) {
      text.append(text.empty() ? "" : " ").append(note.name);
      expected |= note.reported;
    }
  const int reported = zelPathGetFlag(path);
  return reported == expected ? text
                              : text + " reported as " + std::to_string(reported) + ", not " + std::to_string(expected);
}
inline bool hasError(zelPath path) { return (zelPathGetFlag(path) & ZEL_PATH_ERROR) != 0; }

// The path that itemsOf would show so, of Idents that are not its own.
inline Path built(const std::string &items) {
  static std::set<std::string> idents; // they outlive the path
  Path owner(zelCreatePath(nullptr, nullptr));
  const zelPath path = owner.get();
  for (const std::string &item : wordsOf(items)) {
    const char *const text = idents.insert(item).first->c_str();
    int n[3] = {};
    const int count = std::sscanf(text, "[%d:%d:%d]", &n[0], &n[1], &n[2]);
    if (count == 1)
      zelPathAddIndex(path, n[0]);
    else if (count == 2)
      zelPathAddRange(path, n[0], n[1]);
    else if (count == 3)
      zelPathAddStepRange(path, n[0], n[1], n[2]);
    else if (std::sscanf(text, "<*%d>", &n[0]) == 1)
      zelPathAddRepeat(path, n[0]);
    else if (item == "{")
      zelPathAddListStart(path);
    else if (item == ",")
      zelPathAddList(path);
    else if (item == "}")
      zelPathAddListEnd(path);
    else if (item == "@Sl.Sc" || item == "@Sl.Sc(Sv)")
      zelPathAddLib(path, "Sl", "Sc", item == "@Sl.Sc" ? nullptr : "Sv", 1);
    else if (item[0] == '^')
      zelPathAddTopIdent(path, text + 1, 1);
    else
      zelPathAddIdent(path, item == "-" ? nullptr : text, 1);
  }
  return owner;
}

// text must outlive the path.
inline Path parse(const std::string &source, const char *text) {
  const PathSpace space = spaceAt(source);
  return Path(space.parse(text, space.handle, nullptr, nullptr));
}

// The printed path, as stated() says. Printing converts its names where they stand, so a second run must give the same.
inline std::string printed(const Path &path, const std::string &target, int flags = 0) {
  const PathSpace space = spaceAt(target);
  const auto print = [&] {
    errno = 0;
    const Result result = take(space.print(path.get(), space.handle, flags, nullptr, nullptr));
    return stated(result, errno);
  };
  const std::string first = print();
  const std::string second = print();
  return first == second ? first : first + "; again " + second;
}
inline std::string mapped(const std::string &source, const std::string &text, const std::string &target,
                          int flags = 0) {
  const Path path = parse(source, text.c_str());
  return hasError(path.get()) ? "does not parse" : printed(path, target, flags);
}

#endif
