// The source languages of paths: one record a language says all that its parser and the conversion of its names need.
#ifndef ZEL_PATH_LANGUAGE_H
#define ZEL_PATH_LANGUAGE_H

#include "path/scan.h"

#include <cstdint>

namespace zeli {

using NameToIdentWithHandle = char *(*)(const char *name, zelAllocFunc alloc, void *context, zelHandle handle);

struct Language {
  std::uint8_t code; // in the flags of a path
  zeliScanner *scan;
  zelIsLegalFunc isLegal; // what a path of the language demands of its names; null for anything that scans
  zelNameToIdentFunc toIdent;
  NameToIdentWithHandle toIdentWithHandle; // instead of toIdent where a file may redefine the separators
  bool convertsOnRequest;                  // zelPathGetIdent converts its names
  bool showsText;                          // zelPathGetString shows them
};

extern const Language verilogLanguage;
extern const Language verilogAMSLanguage;
extern const Language vhdlLanguage;
extern const Language vhdlAMSLanguage;
extern const Language vhdl87Language;
extern const Language orkaLanguage;
extern const Language kirraLanguage;
extern const Language kirraHDLLanguage;
extern const Language spiceLanguage;
extern const Language tesselLanguage;
extern const Language flatTesselLanguage;
extern const Language lefLanguage;
extern const Language defLanguage;
extern const Language sdfLanguage;
extern const Language spfLanguage;
extern const Language spefLanguage;
extern const Language gcfLanguage;

// The language a path was read in; null for a path built by hand.
const Language *languageOf(const zelPathRecord *path);

// The Ident of the name at text, allocated as the path allocates; null when it does not convert.
char *convertText(const Language &language, const zelPathRecord *head, const char *text);

} // namespace zeli

#endif
