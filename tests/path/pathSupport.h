// What the path tests share: a path as one readable string, in both directions, tables of such strings, and owners of
// paths and handles. Spaces go by their names, the sources in the order of their language codes, from 1.
#ifndef PATH_SUPPORT_H
#define PATH_SUPPORT_H

#include "path/languages.h"
#include "path/zelPath.h"
#include "support/rules.h"

#include <cstdio>
#include <map>
#include <memory>
#include <set>

inline const std::vector<std::string> sources = split(
    "Verilog ORKA VHDL VerilogAMS VHDLAMS Tessel Kirra KirraHDL Lef Def Sdf Spf Spef Gcf Spice VHDL87 FlatTessel");
inline const std::vector<std::string> targets =
    split("Verilog Kirra KirraHDL VHDL ORKA Tessel FlatTessel Lef Def Sdf Spf Spef Gcf Spice");

struct Release {
  void operator()(zelPath path) const { zelFreePath(path, nullptr, nullptr); }
  void operator()(zelHandle handle) const { zelFreeHandle(handle); }
};
using Path = std::unique_ptr<zelPathRecord, Release>;
using Handle = std::unique_ptr<const zelHandleRecord, Release>;

// "Sdf", or "Sdf.<>" with a divider (one of . : 1 x \) and bus brackets of one's own: what parses and prints there,
// and the handle (null for the separators that the space has).
struct PathSpace {
  zeli::PathParser parse;
  zeli::PathPrinter print;
  zelHandle handle;
};
inline PathSpace spaceAt(const std::string &head) {
  static std::map<std::string, Handle> made;
  const std::size_t end = std::min(head.find_first_of(".:1x\\"), head.size());
  const std::string name = head.substr(0, end);
  const auto separator = [&](std::size_t i) { return end + i < head.size() ? std::uint32_t(head[end + i]) : 0U; };
  const zeli::PathLanguage &space = *zelGetHandle(name.c_str(), 0, 0, 0, 0)->language;
  if (end != head.size() && made[head] == nullptr)
    made[head].reset(zelGetHandle(name.c_str(), 0, separator(0), separator(1), separator(2)));
  return {space.parse, space.print, made[head].get()};
}

inline std::string repeated(const std::string &text, std::size_t count) {
  std::string result;
  while (count-- > 0)
    result += text;
  return result;
}

// The identifier that the walk stands on: its text, or its Ident once it is converted.
inline std::string identAt(zelPath path) {
  const zelPathRecord *chunk = path;
  for (std::uint32_t number = zelPathGetLocation(path) >> 8; number > 1; --number)
    chunk = chunk->next;
  const std::uint8_t kind = chunk->items[zelPathGetLocation(path) & 0xFF];
  if (!zeli::isText(kind))
    return resultOf(zelPathGetIdent(path)).value_or("-");
  const char *const text = chunk->slots[zeli::slotOf(kind)].string;
  const std::string name(text, zeli::languageOf(path)->names.scan(text, path->handle));
  const char *end = nullptr;
  const char *const shown = zelPathGetString(path, &end);
  EXPECT_TRUE(shown == nullptr || std::string(shown, end) == name);
  return name.empty() ? "''" : name;
}

// The items as the walk gives them, with blanks between: an identifier, "^" before a top identifier; [3] [3:0] [0:6:2]
// indexes, [*2] index repeat, ( ) index list; <*2> group repeat, { , } list; @library.cell(view), "-" for a null name;
// ? no item.
inline std::string itemsOf(zelPath path) {
  static constexpr const char *formats[] = {
      " ^", " ",  " [%d]", " [%d:%d]", " [%d:%d:%d]", " <*%d>", " {", " ,",
      " }", " (", " )",    " [*%d]",   " @",          "",       " ?"}; // by the numbers of the items
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
    std::snprintf(shown, sizeof shown, formats[item], n[0], n[1], n[2]);
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

// The flag word: E error, H hierarchy, I index, R range, C complex, m mid index, M mid range, * repeat, L list,
// X complex index, / leading divider. All but the last two are reported, and what the path is single for.
inline std::string flagsOf(zelPath path) {
  static constexpr int reported[12] = {ZEL_PATH_ERROR,     ZEL_PATH_HIERARCHY, ZEL_PATH_INDEX,
                                       ZEL_PATH_RANGE,     ZEL_PATH_COMPLEX,   ZEL_PATH_MID_INDEX,
                                       ZEL_PATH_MID_RANGE, ZEL_PATH_REPEAT,    ZEL_PATH_LIST};
  // Without complex indexes, lists and repeats; without lists and repeats.
  int expected = (path->flags & 0x390) == 0 ? ZEL_PATH_SINGLE_VERILOG | ZEL_PATH_SINGLE_VHDL : 0;
  expected |= (path->flags & 0x180) == 0 ? ZEL_PATH_SINGLE_ORKA : 0;
  std::string text;
  for (int bit = 0; bit < 12; ++bit)
    if (bit != 10 && (path->flags >> bit & 1) != 0) {
      text += "EHIRCmM*LX?/"[bit];
      expected |= reported[bit];
    }
  EXPECT_EQ(zelPathGetFlag(path), expected) << text;
  return text;
}

// The path that itemsOf would show so, of Idents that are not its own.
inline Path built(const std::string &items) {
  static std::set<std::string> idents; // they outlive the path
  Path owner(zelCreatePath(nullptr, nullptr));
  const zelPath path = owner.get();
  for (const std::string &item : split(items.c_str())) {
    const char *const text = idents.insert(item).first->c_str();
    int n[3] = {};
    const int count = std::sscanf(text, "[%d:%d:%d]", &n[0], &n[1], &n[2]);
    if (count > 0)
      count == 1   ? zelPathAddIndex(path, n[0])
      : count == 2 ? zelPathAddRange(path, n[0], n[1])
                   : zelPathAddStepRange(path, n[0], n[1], n[2]);
    else if (std::sscanf(text, "<*%d>", &n[0]) == 1)
      zelPathAddRepeat(path, n[0]);
    else if (item == "{" || item == "," || item == "}")
      (item == "{" ? zelPathAddListStart : item == "," ? zelPathAddList : zelPathAddListEnd)(path);
    else if (item == "@Sl.Sc" || item == "@Sl.Sc(Sv)")
      zelPathAddLib(path, "Sl", "Sc", item == "@Sl.Sc" ? nullptr : "Sv", 1);
    else if (item[0] == '^')
      zelPathAddTopIdent(path, text + 1, 1);
    else
      zelPathAddIdent(path, item == "-" ? nullptr : text, 1);
  }
  return owner;
}

// The cases of a table, "head head text→result text→result head …": each with the heads that it stands behind.
struct Case {
  std::vector<std::string> heads;
  std::string text, result;
};
inline std::vector<Case> casesOf(const std::string &table) {
  std::vector<Case> cases;
  std::vector<std::string> heads;
  bool inHeads = false;
  for (const std::string &word : split(table.c_str())) {
    const std::size_t arrow = word.find("→");
    if (arrow == std::string::npos && !inHeads)
      heads.clear();
    inHeads = arrow == std::string::npos;
    if (inHeads)
      heads.push_back(word);
    else
      cases.push_back({heads, word.substr(0, arrow), word.substr(arrow + std::strlen("→"))});
  }
  return cases;
}

// text must outlive the path.
inline Path parse(const std::string &source, const char *text) {
  const PathSpace space = spaceAt(source);
  return Path(space.parse(text, space.handle, nullptr, nullptr));
}

// The printed path, "EINVAL" for null. Printing converts its names where they stand, so a second run must give the
// same.
inline std::string printed(const Path &path, const std::string &target, int flags = 0) {
  const PathSpace space = spaceAt(target);
  const auto print = [&] { return take(space.print(path.get(), space.handle, flags, nullptr, nullptr)); };
  errno = 0;
  std::string text = print().value_or(errno == EINVAL ? "EINVAL" : "null");
  EXPECT_EQ(print().value_or("EINVAL"), text) << target << ", again";
  return text;
}
inline std::string mapped(const std::string &source, const std::string &text, const std::string &target,
                          int flags = 0) {
  const Path path = parse(source, text.c_str());
  EXPECT_EQ(flagsOf(path.get()).find('E'), std::string::npos) << source << ": " << text.substr(0, 80);
  return printed(path, target, flags);
}

#endif
