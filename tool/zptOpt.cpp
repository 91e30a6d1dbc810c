#include "zptOpt.h"

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>

const char *zptPath = nullptr;
int32_t zptPathType = zptVerilog;
const char *zptMutatePath = nullptr;
bool zptExplode = false;
bool zptGroup = false;
bool zptDoHelp = false;
bool zptParse = false;
bool zptNoRepeat = false;
bool zptNoComplex = false;
bool zptTop = false;
bool zptMap = false;
const char *fromSpace = nullptr;
const char *toSpace = nullptr;

namespace {

enum Code : int32_t {
  codeORKA = 0,
  codeExplode = 1,
  codeGcf = 2,
  codeGroup = 3,
  codeVerilog = 4,
  codeVHDL = 5,
  codeTessel = 6,
  codeKirra = 7,
  codeKirraHDL = 8,
  codeSpice = 9, // understood, but no option has it: -spice reads a KirraHDL path
  codeParse = 10,
  codeHelp = 11,
  codeNoRepeat = 12,
  codeMutate = 13,
  codeNoComplex = 14,
  codeTop = 15,
  codeMap = 16,
};

struct Language {
  int32_t code;
  int32_t pathType;
};

constexpr Language languages[] = {
    {codeVerilog, zptVerilog},   {codeVHDL, zptVHDL},   {codeORKA, zptORKA},   {codeTessel, zptTessel},
    {codeKirraHDL, zptKirraHDL}, {codeKirra, zptKirra}, {codeSpice, zptSpice}, {codeGcf, zptGcf},
};

struct Switch {
  int32_t code;
  bool *setting;
};

constexpr Switch switches[] = {
    {codeExplode, &zptExplode},   {codeGroup, &zptGroup},         {codeParse, &zptParse}, {codeHelp, &zptDoHelp},
    {codeNoRepeat, &zptNoRepeat}, {codeNoComplex, &zptNoComplex}, {codeTop, &zptTop},
};

template <typename Row, size_t count> const Row *rowOf(const Row (&rows)[count], int32_t code) {
  for (const Row &row : rows) {
    if (row.code == code)
      return &row;
  }
  return nullptr;
}

enum class Match { exact, prefix, before, after };

// Only the word is lowered, so that no word reaches the capitals of a name.
Match compare(const char *word, const char *name) {
  for (;; ++word, ++name) {
    if (*word == '\0')
      return *name == '\0' ? Match::exact : Match::prefix;
    if (*name == '\0')
      return Match::after;
    const int lowered = *word >= 'A' && *word <= 'Z' ? *word - 'A' + 'a' : static_cast<signed char>(*word);
    if (lowered != *name)
      return lowered < *name ? Match::before : Match::after;
  }
}

// False, with a complaint, when there is a path already.
bool takePath(const char *path, int32_t pathType) {
  if (zptPath != nullptr) {
    std::puts("Error: path already given");
    return false;
  }
  zptPath = path;
  zptPathType = pathType;
  return true;
}

bool takeMutatePath(const char *path) {
  if (zptMutatePath != nullptr) {
    std::puts("Error: mutate already given");
    return false;
  }
  zptMutatePath = path;
  return true;
}

// Handles the option rest[0], of count words that are left, and returns how many words behind it were used up.
int scanOption(const char *const rest[], int count) {
  const char *const option = rest[0];
  const int32_t code = zptLookup(option + 1);
  if (const Switch *const row = rowOf(switches, code)) {
    *row->setting = true;
    return 0;
  }
  const Language *const language = rowOf(languages, code);
  if (language != nullptr || code == codeMutate) {
    if (count < 2 || rest[1][0] == '-') {
      std::printf("Error: %s requires an argument\n", option);
      return 0;
    }
    const bool taken = language != nullptr ? takePath(rest[1], language->pathType) : takeMutatePath(rest[1]);
    return taken ? 1 : 0;
  }
  switch (code) {
  case codeMap:
    zptMap = true;
    if (count < 4) { // two spaces, and the path, which is then scanned as any other
      std::puts("Error: See the correct usage.");
      return 0;
    }
    fromSpace = rest[1];
    toSpace = rest[2];
    return 2;
  case zptNoMatch:
    std::printf("Error: %s doesn't match any known options\n", option);
    return 0;
  case zptAmbiguous:
    std::printf("Error: %s is an ambiguous option\n", option);
    zptDoHelp = true;
    return 0;
  default:
    std::puts("INTERNAL argument parsing error!");
    std::exit(111);
  }
}

} // namespace

const zptOption zptOptions[] = {
    {"explode", codeExplode, 0, 0, "Break output into separate bits"},
    {"gcf", codeGcf, 1, 0, "Following name is a Gcf name"},
    {"group", codeGroup, 0, 1, "Write output as a grouping expression"},
    {"help", codeHelp, 0, 0, "Describe how to run ZELPATH"},
    {"kirra", codeKirra, 1, 0, "Following name is a Kirra name"},
    {"kirraHDL", codeKirraHDL, 1, 0, "Following name is a KirraHDL name"},
    {"map", codeMap, 0, 0, "followed by `from` `to` namespaces and from `pathname`"},
    {"mutate", codeMutate, 1, 1, "Change starting name into following name"},
    {"nocomplex", codeNoComplex, 0, 1, "Don't allow complex indexes in translated names"},
    {"norepeat", codeNoRepeat, 0, 1, "Don't allow repeats in translated names"},
    {"orka", codeORKA, 1, 0, "Following name is a ORKA name"},
    {"parse", codeParse, 0, 1, "Break out each component in the name"},
    {"spice", codeKirraHDL, 1, 0, "Following name is a Spice name"},
    {"tessel", codeTessel, 1, 0, "Following name is a Tessel name"},
    {"top", codeTop, 0, 1, "Write output names as top of hierarchy"},
    {"verilog", codeVerilog, 1, 0, "Following name is Verilog"},
    {"vhdl", codeVHDL, 1, 0, "Following name is a VHDL name"},
    {nullptr, 0, 0, 0, nullptr},
};

int32_t zptLookup(const char *word) {
  const zptOption *abbreviated = nullptr;
  for (const zptOption *row = zptOptions; row->name != nullptr; ++row) {
    const Match match = compare(word, row->name);
    if (match == Match::exact)
      return row->code;
    if (abbreviated != nullptr)
      return match == Match::before ? abbreviated->code : zptAmbiguous;
    if (match == Match::before)
      return zptNoMatch;
    if (match == Match::prefix)
      abbreviated = row;
  }
  return abbreviated != nullptr ? abbreviated->code : zptNoMatch;
}

void zptParseCmd(int argc, const char *const argv[]) {
  for (int i = 1; i < argc; ++i) {
    if (argv[i][0] == '-') {
      i += scanOption(argv + i, argc - i);
    } else {
      takePath(argv[i], zptVerilog);
    }
  }
}

void zptPrintOptions(bool full) {
  static bool printed = false;
  if (printed)
    return;
  printed = true;
  std::puts(" ZELPATH command lines include a language option with a hierarchical name\n"
            "  and options which may be abbreviated");
  std::puts("\n  Option         Argument        Usage\n");
  for (const zptOption *row = zptOptions; row->name != nullptr; ++row) {
    if (row->level == 0 || full) {
      std::printf("-%s%.*s%s%s\n", row->name, 12 - static_cast<int>(std::strlen(row->name)), "                ",
                  row->takesPath != 0 ? "Hierarchical path   " : "                    ", row->help);
    }
  }
  std::printf("\n Example:\n  %% zelpath -veri \"top.test.addr[3:0]\"\n");
}
