// LibraryNT: libraries on file systems that do not tell case apart and reserve the names of devices. A capital that
// matters stands behind '%', a reserved name behind "%%".
#include "spaces/exports.h"
#include "spaces/libraryFamily.h"
#include "spaces/spaces.h"

using namespace zeli;

namespace {

constexpr Bytes devices[] = {"aux", "con", "nul", "prn"};
constexpr Bytes numberedDevices[] = {"com", "lpt"}; // behind them one digit

constexpr Bytes reservedPrefix = "%%";

bool isReserved(Bytes word) {
  const auto isIn = [word](const auto &names) {
    for (const Bytes name : names)
      if (isSameFolded(upTo(word, 3), name))
        return true;
    return false;
  };
  return (word.size() == 3 && isIn(devices)) || (word.size() == 4 && digit.has(word[3]) && isIn(numberedDevices));
}

constexpr char toUpper(char c) { return lower.has(c) ? static_cast<char>(c - 'a' + 'A') : c; }

// Whether the byte at i only tells that the letter behind it is a capital.
bool quotesLetter(Bytes name, std::size_t i) {
  return name[i] == '%' && i + 1 < name.size() && letter.has(name[i + 1]);
}

constexpr Spelling quotedCapitals = Spelling(fileNameEscape, fileNameChar, upper, '%');

constexpr KeywordTest isDevice = {[](const Name &word) { return isReserved(word); }, 4};

struct LibraryNTRules : ClassEscapeRules {
  static constexpr PlainWords plainWords() { return {0, traitUpper, 0, 'I', isDevice}; }

  bool isLegal(const Name &name) const {
    if (!isNameLength(name) || isReserved(name))
      return false;
    if (name.isWord())
      return true;
    if (startsWith(name, reservedPrefix))
      return isReserved(from(name, reservedPrefix.size()));
    for (std::size_t i = 0; i < name.size(); ++i) {
      if (quotesLetter(name, i))
        ++i;
      else if (!escape.literal.has(name[i]))
        return false;
    }
    return true;
  }

  zelRefusal explain(const Name &name) const {
    return isReserved(name) ? zelRefusal{ZEL_REASON_RESERVED_WORD, 0} : ClassEscapeRules::explain(name);
  }

  // A case-insensitive name keeps its capitals; they do not matter to the file system.
  Spelled write(const Ident &ident, const Setting &setting, Text &work) const {
    const Name &body = ident.body;
    const bool isSensitive = ident.isCaseSensitive();
    if (isReserved(body) && !(isSensitive && body.has(traitUpper))) {
      work.put(reservedPrefix);
      work.put(body);
      return work.view();
    }
    const bool capitalsMatter = isSensitive && (ident.marker == 'F' || mapStateOf(setting) != ZEL_MAP_MATCH);
    if (!capitalsMatter || !body.has(traitUpper))
      return spell(work, body, escape, spelling, false);
    encode(work, body, escape, quotedCapitals, false);
    return work.view();
  }

  Ident read(const Name &name, const Setting &, Text &work) const {
    if (!isLegal(name))
      return refuseIdent();
    if (startsWith(name, reservedPrefix))
      return {'I', Name(from(name, reservedPrefix.size()))};
    if (name.find('%') == Bytes::npos) {
      const Ident ident = decodeIdent(work, name, escape);
      return {'I', ident.body};
    }
    // With '%', every capital that matters stands behind one, and the file system may have changed the case of all.
    for (std::size_t i = 0; i < name.size(); ++i) {
      if (name[i] == '%') {
        work.put(toUpper(name[++i]));
      } else if (name[i] == escape.mark && escape.isEscape(name, i)) {
        work.put(hexPair(name, i + 1));
        i += 2;
      } else {
        work.put(toLower(name[i]));
      }
    }
    return {'S', Name(work.view())};
  }
};

constexpr LibraryNTRules rules = {classEscapeRules(fileNameChar)};

} // namespace

const Operations zeli::libraryNTNames = operationsOf<rules>;

ZEL_EXPORT_LEGAL(zelIsLegalLibraryNT, rules)
ZEL_EXPORT_WRITER(zelIdentToLibraryNT, rules)
ZEL_EXPORT_READER(zelLibraryNTToIdent, rules)
ZEL_EXPORT_CHARACTER(zelIsNTChar, fileNameChar)
ZEL_EXPORT_KEYWORD(zelIsNTKeyword, isReserved)
