// What the path tests see of a path that its functions do not show.
#ifndef PATH_INTERNALS_H
#define PATH_INTERNALS_H

#include "path/languages.h"
#include "path/zelPath.h"
#include "support/table.h"

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
inline int bytesUsed(const zelPathRecord *path) { return path->used; }
inline zelPath nextChunk(const zelPathRecord *chunk) { return chunk->next; }

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

inline int lastItem(zelPath path, zelPath chunk, zelPath *found) { return zeliPrevItem(path, chunk, 0, found); }

} // namespace internals

#endif
