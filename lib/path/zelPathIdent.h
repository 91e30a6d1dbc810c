// Idents from the names of a path's text.
#ifndef ZEL_PATH_ZELPATHIDENT_H
#define ZEL_PATH_ZELPATHIDENT_H

#include "path/languages.h"

namespace zeli {

// The Ident of the name at text, read as one of names; refused when it does not convert, or is no legal one of tested.
Ident readText(const PathLanguage &language, const zelPathRecord *head, const char *text, const Operations &names,
               const Setting &setting, Text &work, const Operations *tested = nullptr);

// The Ident of the name at text, allocated as the path allocates; null when it does not convert.
char *convertText(const PathLanguage &language, const zelPathRecord *head, const char *text);

} // namespace zeli

#endif
