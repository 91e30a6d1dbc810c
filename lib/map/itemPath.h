// Paths by way of the path object: whatever a grammar reads, through its items to a printer.
#ifndef ZEL_MAP_ITEMPATH_H
#define ZEL_MAP_ITEMPATH_H

#include "path/zelPathPrint.h"

namespace zeli {

// The path at names.text in another language; null as zelPathMapperEx. names notes what is refused first.
char *mapByItems(const PathLanguage &from, zelHandle fromHandle, const PathLanguage &to, zelHandle toHandle,
                 std::uint32_t flags, TransientNames &names, zelAllocFunc alloc, void *context);

} // namespace zeli

#endif
