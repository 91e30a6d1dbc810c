// Which format a file has, and the separators that it declares, by its header.
#include "core/text.h"
#include "spaces/separators.h"

#include <cstddef>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

using namespace zeli;

namespace {

constexpr std::size_t headBytes = 65536; // a header is within these or is not read

// The beginning of a file, or all of it. Where it was cut off, what touches the end may go on behind it.
struct Head {
  Bytes bytes;
  bool isWhole;
};

// space is null for a text that is not of the format.
struct Header {
  const char *space = nullptr;
  Separators separators = {};
};

// --- Words --------------------------------------------------------------------------------------------------------

enum class Lexis : std::uint8_t {
  slashes,        // comments begin with // or /*; a mark is a word of its own
  slashesEscapes, // the same, and a backslash in a string takes the next character along
  layout          // LEF and DEF: comments begin with a # behind a blank; words go to the next blank
};

struct Token {
  enum Kind : std::uint8_t { end, word, quoted } kind = end;
  Bytes text; // without the quotes
};

struct Scanner {
  Lexis lexis;
  Bytes rest;
  bool isWhole; // whether the end of rest is one of what was read, and not of a file cut off or a string left open
};

Token breakOff(Scanner &scanner) {
  scanner.rest = {};
  scanner.isWhole = false;
  return {};
}

// Skips blanks and comments; false at the end.
bool skipGap(Scanner &scanner) {
  Bytes &rest = scanner.rest;
  const bool hasSlashes = scanner.lexis != Lexis::layout;
  while (!rest.empty()) {
    if (white.has(rest.front())) {
      rest.remove_prefix(1);
    } else if (hasSlashes ? startsWith(rest, "//") : rest.front() == '#') {
      const std::size_t lineEnd = rest.find('\n');
      rest.remove_prefix(lineEnd == Bytes::npos ? rest.size() : lineEnd);
    } else if (hasSlashes && startsWith(rest, "/*")) {
      const std::size_t close = rest.find("*/", 2);
      if (close == Bytes::npos)
        breakOff(scanner);
      else
        rest.remove_prefix(close + 2);
    } else {
      return true;
    }
  }
  return false;
}

// The size of the string that begins with a quote, with both quotes; 0 when it is left open.
std::size_t stringSize(const Scanner &scanner) {
  for (std::size_t i = 1; i < scanner.rest.size(); ++i) {
    if (scanner.rest[i] == '"')
      return i + 1;
    if (scanner.rest[i] == '\\' && scanner.lexis != Lexis::slashes)
      ++i;
  }
  return 0;
}

// Up to the next blank, without the semicolon that ends a statement.
std::size_t layoutWordSize(Bytes rest) {
  std::size_t size = 1;
  while (size < rest.size() && !white.has(rest[size]))
    ++size;
  return size > 1 && rest[size - 1] == ';' && rest[size - 2] != '\\' ? size - 1 : size;
}

// Letters, digits and '_', also behind the '*' of a keyword; or one mark; or a backslash and what it escapes.
std::size_t plainWordSize(Bytes rest) {
  std::size_t size = 1;
  if (rest[0] == '\\')
    return rest.size() > 1 ? 2 : 1;
  if (rest[0] == '*' || wordChar.has(rest[0]))
    while (size < rest.size() && wordChar.has(rest[size]))
      ++size;
  return size;
}

// Whether what follows a word might belong to it.
bool isOpen(Lexis lexis, Bytes word) {
  static constexpr ByteSet first = wordChar | chars("*/\\");
  return lexis == Lexis::layout || first.has(word.front());
}

Token next(Scanner &scanner) {
  if (!skipGap(scanner))
    return {};
  Bytes &rest = scanner.rest;
  if (rest.front() == '"') {
    const std::size_t size = stringSize(scanner);
    if (size == 0)
      return breakOff(scanner);
    const Bytes content = from(upTo(rest, size - 1), 1);
    rest.remove_prefix(size);
    return {Token::quoted, content};
  }
  const std::size_t size = scanner.lexis == Lexis::layout ? layoutWordSize(rest) : plainWordSize(rest);
  const Bytes word = upTo(rest, size);
  if (size == rest.size() && !scanner.isWhole && isOpen(scanner.lexis, word))
    return breakOff(scanner);
  rest.remove_prefix(size);
  return {Token::word, word};
}

// Whether a token is a word, here in lower case, in any case.
bool is(const Token &token, Bytes lowerWord) {
  return token.kind == Token::word && isSameFolded(token.text, lowerWord);
}

// --- Declarations: what is none leaves the separators as they were ---------------------------------------------------

constexpr ByteSet mark = graphic - wordChar - chars("\"\\");

void declare(char &separator, Bytes value) {
  if (value.size() == 1 && mark.has(value[0]))
    separator = value[0];
}

void declareBrackets(Separators &separators, Bytes value) {
  if (value.size() == 2 && mark.has(value[0]) && mark.has(value[1])) {
    separators.busOpen = value[0];
    separators.busClose = value[1];
  }
}

// --- SPEF: keywords with a '*', each with the values up to the next -------------------------------------------------

bool isSpefKeyword(const Token &token) {
  return token.kind == Token::word && token.text.size() > 1 && token.text[0] == '*';
}

bool isSpefSection(Bytes keyword) {
  constexpr Bytes sections[] = {"*NAME_MAP",       "*POWER_NETS", "*GROUND_NETS", "*PORTS",
                                "*PHYSICAL_PORTS", "*DEFINE",     "*PDEFINE",     "*D_NET",
                                "*R_NET",          "*D_PNET",     "*R_PNET",      "*VARIATION_PARAMETERS"};
  for (const Bytes section : sections)
    if (keyword == section)
      return true;
  return false;
}

Header readSpef(const Head &head) {
  Scanner scanner = {Lexis::slashes, head.bytes, head.isWhole};
  Token keyword = next(scanner);
  Scanner ahead = scanner;
  if (keyword.kind != Token::word || keyword.text != "*SPEF" || next(ahead).kind != Token::quoted)
    return {};
  Header header = {"Spef", {}};
  Separators &separators = header.separators;
  while (keyword.kind != Token::end && !isSpefSection(keyword.text)) {
    // Of the values only marks matter, at most two.
    char values[2];
    std::size_t count = 0;
    Token token = next(scanner);
    for (; token.kind != Token::end && !isSpefKeyword(token); token = next(scanner)) {
      if (count < 2)
        values[count] = token.kind == Token::word && token.text.size() == 1 ? token.text[0] : '\0';
      ++count;
    }
    if (token.kind == Token::end && !scanner.isWhole)
      break;
    const Bytes value = {values, count <= 2 ? count : 0};
    if (keyword.text == "*DIVIDER") {
      declare(separators.divider, value);
    } else if (keyword.text == "*DELIMITER") {
      declare(separators.pinDelimiter, value);
    } else if (keyword.text == "*BUS_DELIMITER") {
      declareBrackets(separators, value);
      if (count == 1 && mark.has(values[0])) { // a prefix alone
        separators.busOpen = values[0];
        separators.busClose = '\0';
      }
    }
    keyword = token;
  }
  return header;
}

// --- DSPF and RSPF: comments of SPICE that begin with "*|", one a line ----------------------------------------------

constexpr ByteSet lineWhite = chars(" \t\v\f\r");

Bytes trimmed(Bytes s) {
  while (!s.empty() && lineWhite.has(s.front()))
    s.remove_prefix(1);
  while (!s.empty() && lineWhite.has(s.back()))
    s.remove_suffix(1);
  return s;
}

Bytes unquoted(Bytes s) {
  return s.size() >= 2 && s.front() == '"' && s.back() == '"' ? from(upTo(s, s.size() - 1), 1) : s;
}

void declareSpfBrackets(Separators &separators, Bytes value) {
  if (value.size() < 2)
    return;
  const char brackets[] = {value.front(), value.back()};
  if (trimmed(from(upTo(value, value.size() - 1), 1)).empty()) // only blanks between them
    declareBrackets(separators, {brackets, 2});
}

Header readSpf(const Head &head) {
  Header header;
  Separators &separators = header.separators;
  Bytes rest = head.bytes;
  while (!rest.empty()) {
    const std::size_t lineEnd = rest.find('\n');
    if (lineEnd == Bytes::npos && !head.isWhole)
      break;
    const Bytes line = upTo(rest, lineEnd == Bytes::npos ? rest.size() : lineEnd);
    rest.remove_prefix(lineEnd == Bytes::npos ? rest.size() : lineEnd + 1);
    if (!startsWith(line, "*") && !startsWith(line, "+") && !trimmed(line).empty())
      break; // the netlist
    if (!startsWith(line, "*|"))
      continue;
    std::size_t size = 2;
    while (size < line.size() && !lineWhite.has(line[size]))
      ++size;
    const Bytes keyword = from(upTo(line, size), 2);
    const Bytes value = unquoted(trimmed(from(line, size)));
    if (isSameFolded(keyword, "dspf") || isSameFolded(keyword, "rspf"))
      header.space = "Spf";
    else if (isSameFolded(keyword, "divider"))
      declare(separators.divider, value);
    else if (isSameFolded(keyword, "delimiter"))
      declare(separators.pinDelimiter, value);
    else if (isSameFolded(keyword, "busbit"))
      declareSpfBrackets(separators, value);
    else if (isSameFolded(keyword, "net"))
      break;
  }
  return header;
}

// --- SDF: lists in parentheses ------------------------------------------------------------------------------------

Header readSdf(const Head &head) {
  Scanner scanner = {Lexis::slashesEscapes, head.bytes, head.isWhole};
  if (!is(next(scanner), "(") || !is(next(scanner), "delayfile"))
    return {};
  Header header = {"Sdf", {}};
  while (is(next(scanner), "(")) {
    Token words[2];
    std::size_t count = 0;
    for (int depth = 1; depth > 0;) {
      const Token token = next(scanner);
      if (token.kind == Token::end || (count == 0 && is(token, "cell")))
        return header;
      depth += (is(token, "(") ? 1 : 0) - (is(token, ")") ? 1 : 0);
      if (count < 2)
        words[count] = token;
      ++count; // with the closing parenthesis
    }
    if (count == 3 && is(words[0], "divider") && words[1].kind == Token::word)
      declare(header.separators.divider, words[1].text);
  }
  return header;
}

// --- LEF and DEF: statements up to a semicolon ----------------------------------------------------------------------

enum class Role : std::uint8_t {
  statement,
  divider,
  brackets,
  units,     // a block in LEF, a statement in DEF
  block,     // up to END and its name
  extension, // up to ENDEXT
  anyText,   // up to the next semicolon, whatever it holds
  body       // what no header holds
};

constexpr const char *lef = "Lef";
constexpr const char *def = "Def";

// What begins a statement. The name of a space stands where it tells the formats apart.
struct Statement {
  Bytes word; // in lower case
  Role role;
  const char *space;
};
constexpr Statement statements[] = {
    {"version", Role::statement, nullptr},
    {"namescasesensitive", Role::statement, nullptr},
    {"commentchar", Role::statement, nullptr},
    {"dividerchar", Role::divider, nullptr},
    {"busbitchars", Role::brackets, nullptr},
    {"propertydefinitions", Role::block, nullptr},
    {"beginext", Role::extension, nullptr},
    {"units", Role::units, nullptr},

    {"manufacturinggrid", Role::statement, lef},
    {"useminspacing", Role::statement, lef},
    {"clearancemeasure", Role::statement, lef},
    {"fixedmask", Role::statement, lef},
    {"nowireextensionatpin", Role::statement, lef},
    {"layer", Role::body, lef},
    {"maxviastack", Role::body, lef},
    {"via", Role::body, lef},
    {"viarule", Role::body, lef},
    {"nondefaultrule", Role::body, lef},
    {"spacing", Role::body, lef},
    {"site", Role::body, lef},
    {"macro", Role::body, lef},

    {"design", Role::statement, def},
    {"technology", Role::statement, def},
    {"history", Role::anyText, def},
    {"diearea", Role::body, def},
    {"row", Role::body, def},
    {"tracks", Role::body, def},
    {"gcellgrid", Role::body, def},
    {"vias", Role::body, def},
    {"styles", Role::body, def},
    {"nondefaultrules", Role::body, def},
    {"regions", Role::body, def},
    {"componentmaskshift", Role::body, def},
    {"components", Role::body, def},
    {"pins", Role::body, def},
    {"pinproperties", Role::body, def},
    {"blockages", Role::body, def},
    {"slots", Role::body, def},
    {"fills", Role::body, def},
    {"specialnets", Role::body, def},
    {"nets", Role::body, def},
    {"scanchains", Role::body, def},
    {"groups", Role::body, def},
};

// One that is unknown tells nothing and is skipped.
constexpr Statement unknown = {{}, Role::statement, nullptr};

const Statement &statementOf(const Token &first) {
  for (const Statement &statement : statements)
    if (is(first, statement.word))
      return statement;
  return unknown;
}

// Goes behind the next semicolon. value is the only word before it, if that is a string. False when there is none.
bool finish(Scanner &scanner, Bytes &value) {
  std::size_t count = 0;
  Token token = next(scanner);
  for (; token.kind != Token::end && !is(token, ";"); token = next(scanner))
    value = ++count == 1 && token.kind == Token::quoted ? token.text : Bytes{};
  return token.kind != Token::end;
}

bool finishAnyText(Scanner &scanner) {
  const std::size_t semicolon = scanner.rest.find(';');
  if (semicolon == Bytes::npos)
    return false;
  scanner.rest.remove_prefix(semicolon + 1);
  return true;
}

void tell(Header &header, const char *space) {
  if (header.space == nullptr)
    header.space = space;
}

// Behind the word END. Goes on behind the end of a block.
bool readEnd(Scanner &scanner, Header &header) {
  const Token what = next(scanner);
  const bool isLibrary = is(what, "library");
  const bool isDesign = is(what, "design");
  if (isLibrary || is(what, "units"))
    tell(header, lef);
  else if (isDesign)
    tell(header, def);
  return !isLibrary && !isDesign;
}

Header readLayout(const Head &head) {
  Scanner scanner = {Lexis::layout, head.bytes, head.isWhole};
  Header header;
  Token first = next(scanner);
  if (&statementOf(first) == &unknown)
    return {};
  bool isInBlock = false;
  for (; first.kind != Token::end; first = next(scanner)) {
    if (is(first, "end")) {
      if (!readEnd(scanner, header))
        break;
      isInBlock = false;
      continue;
    }
    const Statement &statement = isInBlock ? unknown : statementOf(first);
    const char *space = statement.space;
    bool opensBlock = statement.role == Role::block;
    if (statement.role == Role::units) {
      Scanner ahead = scanner;
      opensBlock = !is(next(ahead), "distance");
      space = opensBlock ? nullptr : def;
    }
    if (opensBlock) {
      isInBlock = true;
      continue;
    }
    if (statement.role == Role::extension) {
      Token token = next(scanner);
      while (token.kind != Token::end && !is(token, "endext"))
        token = next(scanner);
      continue;
    }
    Bytes value;
    if (!(statement.role == Role::anyText ? finishAnyText(scanner) : finish(scanner, value)))
      break;
    if (space != nullptr)
      tell(header, space);
    if (statement.role == Role::divider)
      declare(header.separators.divider, value);
    else if (statement.role == Role::brackets)
      declareBrackets(header.separators, value);
    else if (statement.role == Role::body)
      break;
  }
  return header;
}

// --- Any of them --------------------------------------------------------------------------------------------------

// Stores nothing when it fails.
int find(Bytes text, const char **spaceName, zelSeparators *separators) {
  const Head head = {upTo(text, text.size() < headBytes ? text.size() : headBytes), text.size() <= headBytes};
  Header header;
  for (const auto read : {readSpef, readSpf, readSdf, readLayout})
    if (header.space == nullptr)
      header = read(head);
  if (header.space == nullptr) {
    errno = EINVAL;
    return 0;
  }
  if (spaceName != nullptr)
    *spaceName = header.space;
  if (separators != nullptr) {
    const Separators &found = header.separators;
    separators->pinDelimiter = found.pinDelimiter;
    separators->divider = found.divider;
    separators->busOpen = found.busOpen;
    separators->busClose = found.busClose;
  }
  return 1;
}

// A record of a later version has more behind these members, one of an earlier version never had less.
bool hasRoom(const zelSeparators *separators) {
  return separators == nullptr || separators->size >= offsetof(zelSeparators, busClose) + 1;
}

// Reads up to size bytes from the beginning of a file; -1 with the errno of what failed.
ssize_t readHead(const char *fileName, char *bytes, std::size_t size) {
  const int file = open(fileName, O_RDONLY | O_CLOEXEC);
  if (file < 0)
    return -1;
  std::size_t have = 0;
  ssize_t got = 0;
  do {
    got = read(file, bytes + have, size - have);
    if (got > 0)
      have += static_cast<std::size_t>(got);
  } while ((got > 0 && have < size) || (got < 0 && errno == EINTR));
  const int error = errno;
  close(file);
  errno = error;
  return got < 0 ? -1 : static_cast<ssize_t>(have);
}

} // namespace

int zelFindSeparators(const char *text, std::uint64_t length, const char **spaceName,
                      zelSeparators *separators) noexcept {
  if (text == nullptr || !hasRoom(separators)) {
    errno = EINVAL;
    return 0;
  }
  // Whether there is more is all that matters of what lies behind the head.
  return find({text, static_cast<std::size_t>(length <= headBytes ? length : headBytes + 1)}, spaceName, separators);
}

int zelReadSeparators(const char *fileName, const char **spaceName, zelSeparators *separators) noexcept {
  if (fileName == nullptr || !hasRoom(separators)) {
    errno = EINVAL;
    return 0;
  }
  constexpr std::size_t size = headBytes + 1; // one more tells whether the file goes on
  auto *bytes = static_cast<char *>(std::malloc(size));
  if (bytes == nullptr) {
    errno = ENOMEM;
    return 0;
  }
  const ssize_t have = readHead(fileName, bytes, size);
  const int isFound = have < 0 ? 0 : find({bytes, static_cast<std::size_t>(have)}, spaceName, separators);
  const int error = errno;
  std::free(bytes);
  errno = error;
  return isFound;
}
