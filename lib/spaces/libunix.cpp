// LibraryUnix: libraries on file systems that tell case apart.
#include "spaces/exports.h"
#include "spaces/libraryFamily.h"
#include "spaces/spaces.h"

using namespace zeli;

namespace {

struct LibraryUnixRules : ClassEscapeRules {
  // Folds also in the mapping state MATCH.
  Spelled write(const Ident &ident, const Setting &setting, Text &work) const {
    const std::int32_t state = mapStateOf(setting);
    const bool dropsForce = ident.isCaseSensitive() && (state == ZEL_MAP_MATCH || state == ZEL_MAP_TANDEM);
    const Name body = dropsForce && isForce(ident.body) ? Name(skipForce(ident.body)) : ident.body;
    return spell(work, body, escape, spelling, !ident.isCaseSensitive());
  }

  Ident read(const Name &name, const Setting &setting, Text &work) const {
    Ident ident = ClassEscapeRules::read(name, setting, work);
    if (ident.marker == 'S' && mapStateOf(setting) == ZEL_MAP_MATCH)
      ident.marker = 'F';
    return ident;
  }
};

constexpr LibraryUnixRules rules = {classEscapeRules(fileNameChar)};

} // namespace

const Operations zeli::libraryUnixNames = operationsOf<rules>;

ZEL_EXPORT_LEGAL(zelIsLegalLibraryUnix, rules)
ZEL_EXPORT_WRITER(zelIdentToLibraryUnix, rules)
ZEL_EXPORT_READER(zelLibraryUnixToIdent, rules)
ZEL_EXPORT_CHARACTER(zelIsUnixChar, fileNameChar)
