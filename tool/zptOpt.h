// The options of zelpath: their table, the scanner, and the settings that it leaves for the driver.
#ifndef ZPT_OPT_H
#define ZPT_OPT_H

#include <cstdint>

struct zptOption {
  const char *name;  // without the '-'
  int32_t code;      // what the scanner does
  int32_t takesPath; // 1 when a hierarchical path follows
  int32_t level;     // 0 for the short usage, 1 for the full help only
  const char *help;
};

// Sorted by name in byte order, which zptLookup relies on; ends with a null name.
extern const zptOption zptOptions[];

// The results of zptLookup that no option has.
constexpr int32_t zptNoMatch = 17;
constexpr int32_t zptAmbiguous = 18;

// The languages to read a path in.
enum zptLanguage : int32_t {
  zptVerilog,
  zptVHDL,
  zptORKA,
  zptTessel,
  zptKirraHDL,
  zptKirra,
  zptSpice,
  zptGcf,
};

// The settings. Paths and names of spaces are words of the command line.
extern const char *zptPath;       // null when none was given
extern int32_t zptPathType;       // a zptLanguage
extern const char *zptMutatePath; // accepted, without effect
extern bool zptExplode;
extern bool zptGroup;
extern bool zptDoHelp; // help was asked for, or an option was ambiguous
extern bool zptParse;
extern bool zptNoRepeat;
extern bool zptNoComplex;
extern bool zptTop;
extern bool zptMap;
extern const char *fromSpace; // null when map came without its three words
extern const char *toSpace;

// The code of the option that word (without its '-') names or abbreviates in any case, zptNoMatch or zptAmbiguous.
int32_t zptLookup(const char *word);

// Scans argv[1] to argv[argc - 1] into the settings. Complains on standard output and goes on, except that a code
// without meaning ends the process with status 111.
void zptParseCmd(int argc, const char *const argv[]);

// Prints the usage, with all options when full. Only the first call prints.
void zptPrintOptions(bool full);

#endif
