// The two sides of a mapping: what a text is read as, and what it is written as.
#ifndef ZEL_MAP_ROUTE_H
#define ZEL_MAP_ROUTE_H

#include "path/languages.h"

namespace zeli {

// One side. The names are those of a space under a setting; the marks join them to paths.
struct Side {
  const PathLanguage *language = nullptr; // null for a space without paths
  const Operations *names = nullptr;
  Setting setting;
  Punctuation marks;
  char pinDelimiter = '\0';                 // where pins have one of their own
  char element = '\0';                      // the letter in front of instances
  const BackslashRules *ownNames = nullptr; // in place of names, where a mapping makes rules for itself
  bool takesWords = true;                   // a word is a name as PlainWords says

  Ident read(const Name &name, Text &work) const {
    return ownNames != nullptr ? ownNames->read(name, setting, work) : names->read(name, setting, work);
  }
  zelRefusal explain(const Operations &as, const Name &name) const {
    if (as.rulesUnder == nullptr || setting.handle == nullptr)
      return ownNames != nullptr ? ownNames->explain(name) : as.explain(name);
    return as.rulesUnder(setting.handle->separators).explain(name);
  }
  Spelled write(const Ident &ident, Text &work) const {
    return ownNames != nullptr ? ownNames->write(ident, setting, work) : names->write(ident, setting, work);
  }
};

// From one side to the other, with what the pair asks of a word that stands as it is.
struct Route {
  // What levels alone do not say.
  static constexpr std::uint32_t wholePathFlags = ZEL_PRINT_GROUP | ZEL_PRINT_TOP;

  Side from;
  Side to;
  const Operations *tested = nullptr; // as whose names a path's names must be legal, besides; or null
  std::uint32_t printFlags = 0;
  std::int32_t kind = ZEL_KIND_NET;
  std::int32_t levels = ZEL_LEVELS_ALL;
  Traits unless = 0;
  bool takesPlainWords = false;       // as a whole text
  bool takesPlainPaths = false;       // see PlainPath
  bool takesRanges = false;           // in a plain path
  bool expandsRanges = false;         // to bits
  const KeywordTest *keywordTests[5]; // of tested, from and to, and the words reserved besides; null-terminated
  std::size_t longestKeyword = 0;

  // Once the sides are set.
  void join();

  // Whether a word of these traits stands as it is, unless it is a keyword. Only in the default mapping state.
  bool takesWords() const { return from.takesWords && to.takesWords; }

  bool isKeyword(Bytes word, std::uint64_t head) const {
    if (word.size() > longestKeyword)
      return false;
    for (const auto *test = keywordTests; *test != nullptr; ++test)
      if ((*test)->mayHave(head) && (*test)->has(Name(word, Look{0, head})))
        return true;
    return false;
  }

  // Whether the level, the last one or not, is an instance that carries an element letter.
  bool isElement(bool isLast) const {
    if (levels == ZEL_LEVELS_LAST)
      return kind == ZEL_KIND_INSTANCE && isLast;
    return kind == ZEL_KIND_INSTANCE || !isLast;
  }
};

// Where a route may be made.
struct RouteRoom {
  alignas(Route) unsigned char bytes[sizeof(Route)];
};

// The route of two handles as zelPathMapperEx takes it, one that is kept or in the room. Null when none may be taken:
// while anything that the first use of a setting determines is undetermined.
const Route *routeOf(zelHandle from, zelHandle to, std::uint32_t printFlags, RouteRoom &room);

} // namespace zeli

#endif
