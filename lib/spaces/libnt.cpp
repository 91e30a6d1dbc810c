// LibraryNT: libraries on file systems that do not tell case apart and reserve the names of devices. A capital that
// matters stands behind '%', a reserved name behind "%%".
#include "core/zelpvt.h"
#include "spaces/fileName.h"
#include "spaces/keywords.h"

#include <iterator>

using namespace zeli;

namespace {

constexpr const char *devices[] = {"aux", "con", "nul", "prn"};
constexpr const char *numberedDevices[] = {"com", "lpt"}; // behind them one digit

constexpr Bytes reservedPrefix = "%%";

bool isReserved(Bytes word) {
  const FoldedWord folded(word);
  if (folded.view.size() == 4 && digit.has(folded.view[3]))
    return tableHas(numberedDevices, std::size(numberedDevices), upTo(folded.view, 3));
  return tableHas(devices, std::size(devices), folded.view);
}

constexpr char toUpper(char c) { return lower.has(c) ? static_cast<char>(c - 'a' + 'A') : c; }

// Whether the byte at i only tells that the letter behind it is a capital.
bool quotesLetter(Bytes name, std::size_t i) {
  return name[i] == '%' && i + 1 < name.size() && letter.has(name[i + 1]);
}

struct LibraryNTSpace : ClassEscapeSpace {
  bool isLegal(Bytes name) const {
    if (!isNameLength(name) || isReserved(name))
      return false;
    if (startsWith(name, reservedPrefix))
      return isReserved(from(name, reservedPrefix.size()));
    return isMadeOf(escape.literal, name, 0, name.size(), quotesLetter);
  }

  // A case-insensitive name keeps its capitals; they do not matter to the file system.
  Bytes write(const Ident &ident, Text &work) const {
    const bool isSensitive = ident.isCaseSensitive();
    if (isReserved(ident.body) && !(isSensitive && hasUpper(ident.body))) {
      work.put(reservedPrefix);
      work.put(ident.body);
      return work.view();
    }
    const bool capitalsMatter = isSensitive && (ident.marker == 'F' || zelGetMapState() != ZEL_MAP_MATCH);
    encode(work, ident.body, escape, false, {capitalsMatter ? upper : ByteSet{}, '%'});
    return work.view();
  }

  Ident read(Bytes name, Text &work) const {
    if (!isLegal(name))
      return refuseIdent();
    if (startsWith(name, reservedPrefix))
      return {'I', from(name, reservedPrefix.size())};
    if (name.find('%') == Bytes::npos) {
      decode(work, name, escape, quotesNothing);
      return {'I', work.view()};
    }
    // With '%', every capital that matters stands behind one, and the file system may have changed the case of all.
    for (std::size_t i = 0; i < name.size(); ++i) {
      if (name[i] == '%') {
        work.put(toUpper(name[++i]));
      } else if (name[i] == fileNameEscape.mark && fileNameEscape.isEscape(name, i)) {
        work.put(hexPair(name, i + 1));
        i += 2;
      } else {
        work.put(toLower(name[i]));
      }
    }
    return {'S', work.view()};
  }
};

constexpr LibraryNTSpace space = {{fileNameEscape}};

} // namespace

int zelIsLegalLibraryNT(const char *name) noexcept { return space.isLegal(nameBytes(name)) ? 1 : 0; }

char *zelIdentToLibraryNT(const char *ident, zelAllocFunc alloc, void *context) noexcept {
  return writeName(space, ident, alloc, context);
}

char *zelLibraryNTToIdent(const char *name, zelAllocFunc alloc, void *context) noexcept {
  return readName(space, name, alloc, context);
}

int zelIsNTChar(int c) noexcept { return isIn(fileNameChar, c); }

int zelIsNTKeyword(const char *word) noexcept { return isReserved(wholeBytes(word)) ? 1 : 0; }
