/*
 * zel - one object, every spelling: names of chip-design objects between languages and file formats.
 *
 * Every name space (Verilog, VHDL, ...) turns its names into one canonical form, the Ident, and Idents back into
 * its names. Hierarchical paths are parsed into a zelPath and printed in the syntax of any path-capable space.
 *
 * Conventions that hold for every function unless it says otherwise:
 *
 * - Strings are NUL-terminated bytes. Character classes are ASCII; a byte of 128 or above belongs to no class.
 * - A name, an Ident body and a result hold at most 2047 characters (ZEL_MAX_NAME).
 * - A null argument gives a null or zero result unless the function names another, never a crash.
 * - A conversion that fails returns null and sets errno: EINVAL for an illegal or over-long input, ENOMEM when no
 *   memory could be had. A test returns 1 or 0 and leaves errno alone.
 * - Results are made under the allocator convention (zelAllocFunc) and belong to the caller.
 *
 * Threads. Calls from several threads need no lock as long as they work on different paths, rings and output
 * buffers: a path and a ring belong to one thread at a time, also while a path is only walked or printed, which writes
 * into it. What is constant (descriptors, keywords, every handle until it is freed) may be shared freely. The
 * process-wide settings are atomic through their functions (zelSetMapState, zelSetVHDLMode and those that ask); do not
 * read ZEL_VHDL_TYPE itself while another thread sets it. They are first taken from the environment by getenv, so set
 * environment variables before any thread maps.
 */
#ifndef ZEL_H
#define ZEL_H

#include <stdint.h>

#if defined(__GNUC__)
#define ZEL_API __attribute__((visibility("default")))
#else
#define ZEL_API
#endif

#ifdef __cplusplus
#define ZEL_NOEXCEPT noexcept
extern "C" {
#else
#define ZEL_NOEXCEPT
#endif

/* The longest name, Ident body and result string, without the NUL. */
#define ZEL_MAX_NAME 2047

/* ---------------------------------------------------------------------------------------------------------------
 * Memory
 *
 * The allocator convention: an operation that makes a string takes (alloc, context) as its last two arguments.
 *   alloc non-null                    the result is written into alloc(size, context), with the exact size;
 *   alloc null, context non-null      context is the caller's buffer: 2048 bytes hold any name, 2049 any Ident; it
 *                                     may be the input's own memory;
 *   both null                         the result comes from malloc and is released with free.
 * An alloc that returns null makes the operation fail with ENOMEM.
 */
typedef void *(*zelAllocFunc)(uint64_t size, void *context);
typedef void (*zelFreeFunc)(void *memory, void *context);

/* A ring of 15 self-recycling result buffers. Declare a variable of this type, set it to null, and pass
 * (zelAllocRing, &variable) as allocator; nothing needs freeing per result. */
typedef struct zelRingBlock *zelRing;

/* A buffer of at least size bytes from the ring variable that ring (a zelRing *) points at; the ring is made on the
 * first call. The contents survive the next nine allocations; the tenth overwrites the start of the buffer with
 * "@DEAD!", so that a result kept too long is noticed. Buffers only grow, from 20 bytes on. Null with ENOMEM when
 * memory runs out (the ring stays usable), null with EINVAL for a null ring. */
ZEL_API void *zelAllocRing(uint64_t size, void *ring) ZEL_NOEXCEPT;

/* Frees every buffer and the ring, and sets the variable to null. A null variable is left alone. */
ZEL_API void zelFreeRing(zelRing *ring) ZEL_NOEXCEPT;

/* ---------------------------------------------------------------------------------------------------------------
 * Helpers that all name spaces share
 */

/* A new Ident: marker 'S' for kind 0, 'F' for kind 2, 'I' for any other, then text. EINVAL for a text of 2048
 * characters or more. The body may be empty, although no operation accepts such an Ident. */
ZEL_API char *zelNewIdent(int32_t kind, const char *text, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;

/* A copy of text. EINVAL for a text of 2048 characters or more. */
ZEL_API char *zelNewString(const char *text, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;

/* Copies src, with its NUL, to dst (at least as large; may be src itself), ASCII capitals lowered. */
ZEL_API void zelToLowerCopy(char *dst, const char *src) ZEL_NOEXCEPT;

/* 1 when key equals one of the count strings of table, which must stand in strcmp order: the table is bisected when
 * it holds more than 4 entries, and scanned otherwise. A count of 0 or less finds nothing. */
ZEL_API int zelTableSearch(const char *const *table, int32_t count, const char *key) ZEL_NOEXCEPT;

/* Writes "#", two lower-case hex digits of the low byte of c, and a NUL to dst (4 bytes); returns 3. */
ZEL_API int zelToPoundHex(char *dst, int c) ZEL_NOEXCEPT;

/* Reads the two hex digits (either case) at s, which points just behind a '#'. Returns their value and sets *used to
 * 2, or returns 0 and sets *used to 0 when no two digits stand there. "00" gives 0 with *used 2. used may be null. */
ZEL_API int zelFromPoundHex(const char *s, uint32_t *used) ZEL_NOEXCEPT;

/* 1 when s holds no upper-case letter. */
ZEL_API int zelAllLower(const char *s) ZEL_NOEXCEPT;

/* 1 when s begins with the force prefix "ESC_". */
ZEL_API int zelIsForce(const char *s) ZEL_NOEXCEPT;

/* s behind a leading "ESC_", or s itself. */
ZEL_API const char *zelSkipForce(const char *s) ZEL_NOEXCEPT;

/* Mapping states. Undetermined states resolve from the environment variable VRN_ALT_ZEL at the next use. */
enum {
  ZEL_MAP_UNSET = 0,   /* not determined yet; only "MATCH" in VRN_ALT_ZEL will be honoured */
  ZEL_MAP_RESOLVE = 1, /* to be determined again; "MATCH", "VHDL" and "TANDEM" will be honoured */
  ZEL_MAP_VHDL = 2,    /* VHDL compatibility */
  ZEL_MAP_DEFAULT = 3, /* the default mapping */
  ZEL_MAP_TANDEM = 4,  /* TANDEM compatibility */
  ZEL_MAP_MATCH = 5    /* writers keep the case of 'I' Idents, too, where their space tells case apart */
};

/* The mapping state of the process, determined from the environment first when it is ZEL_MAP_UNSET or
 * ZEL_MAP_RESOLVE. Always 2 to 5. */
ZEL_API int32_t zelGetMapState(void) ZEL_NOEXCEPT;

/* Sets the mapping state to value when that is 2 to 5, otherwise to ZEL_MAP_RESOLVE. */
ZEL_API void zelSetMapState(int32_t value) ZEL_NOEXCEPT;

/* ---------------------------------------------------------------------------------------------------------------
 * Name spaces and Idents
 *
 * An Ident is a marker letter and a body of 1 to 2047 characters:
 *   'S'  case-sensitive, case kept by every writer;
 *   'I'  case-insensitive; written in lower case where the space tells case apart (in the mapping state MATCH as it
 *        stands), as it stands where it does not (basic VHDL, Vellum and LibraryNT names);
 *   'F'  forced case-sensitive, as 'S', with precedence over MATCH in some spaces.
 * The body is plain text. What a space cannot hold, its names write as "#" and two hex digits; a '#' of the body that
 * would read back as such an escape is itself written "#23".
 */
typedef char *(*zelNameToIdentFunc)(const char *name, zelAllocFunc alloc, void *context);
typedef char *(*zelIdentToNameFunc)(const char *ident, zelAllocFunc alloc, void *context);
typedef int (*zelIsLegalFunc)(const char *name);

/* A space descriptor: constant for the life of the process. */
typedef struct zelSpaceRecord {
  const char *name;               /* display name */
  zelNameToIdentFunc nameToIdent; /* reads one name of the space */
  zelIdentToNameFunc identToName; /* writes one name of the space */
  zelIsLegalFunc isLegal;         /* whether a string is one legal name of the space */
} zelSpaceRecord;
typedef const zelSpaceRecord *zelSpace;

ZEL_API extern const zelSpace zelIdentSpace;
ZEL_API extern const zelSpace zelVerilogSpace;
ZEL_API extern const zelSpace zelVerilogAMSSpace;
ZEL_API extern const zelSpace zelVerilogASpace;
ZEL_API extern const zelSpace zelVHDLSpace;
ZEL_API extern const zelSpace zelVHDL87Space;
ZEL_API extern const zelSpace zelVHDLAMSSpace;
ZEL_API extern const zelSpace zelORKASpace;
ZEL_API extern const zelSpace zel44ORKASpace;
ZEL_API extern const zelSpace zelEscORKASpace;
ZEL_API extern const zelSpace zelKirraSpace;
ZEL_API extern const zelSpace zelKirraHDLSpace;
ZEL_API extern const zelSpace zelSpiceSpace;
ZEL_API extern const zelSpace zelSdfSpace;
ZEL_API extern const zelSpace zelSpfSpace;
ZEL_API extern const zelSpace zelSpefSpace;
ZEL_API extern const zelSpace zelGcfSpace;
ZEL_API extern const zelSpace zelLefSpace;
ZEL_API extern const zelSpace zelDefSpace;
ZEL_API extern const zelSpace zelTesselSpace;
ZEL_API extern const zelSpace zelFlatTesselSpace;
ZEL_API extern const zelSpace zelLibraryNTSpace;
ZEL_API extern const zelSpace zelLibraryUnixSpace;
ZEL_API extern const zelSpace zelLibrarySpace; /* LibraryUnix */
ZEL_API extern const zelSpace zelFilesysSpace; /* LibraryUnix */
ZEL_API extern const zelSpace zelNVerilogSpace;
ZEL_API extern const zelSpace zelPrintSpace;
ZEL_API extern const zelSpace zelAsciiSpace;
ZEL_API extern const zelSpace zelVellumSpace;
ZEL_API extern const zelSpace zelEdif200Space;
ZEL_API extern const zelSpace zelEdif300Space;

/* The names of the spaces offered to end users, and of all spaces; null-terminated, constant. */
ZEL_API const char *const *zelGetSpaceNames(void) ZEL_NOEXCEPT;
ZEL_API const char *const *zelGetAllSpaceNames(void) ZEL_NOEXCEPT;

/* The space that name selects, or null. Names are case-sensitive ("Sdf", not "SDF") and told apart by a few characters
 * at fixed positions, not compared whole; "Filesys" and "Ident" are accepted beside the listed names. */
ZEL_API zelSpace zelGetSpaceByName(const char *name) ZEL_NOEXCEPT;

/* The operations of the space that spaceName selects, or null. */
ZEL_API zelNameToIdentFunc zelGetNameToIdentFunc(const char *spaceName) ZEL_NOEXCEPT;
ZEL_API zelIdentToNameFunc zelGetIdentToNameFunc(const char *spaceName) ZEL_NOEXCEPT;
ZEL_API zelIsLegalFunc zelGetIsLegalFunc(const char *spaceName) ZEL_NOEXCEPT;

/* Stores the three operations of a space where the pointers are non-null and returns 0; returns 1 and stores nothing
 * for an unknown space. */
ZEL_API int zelGetAllFuncs(const char *spaceName, zelIsLegalFunc *isLegal, zelNameToIdentFunc *nameToIdent,
                           zelIdentToNameFunc *identToName) ZEL_NOEXCEPT;

/* Whether name is one legal name of the space; 0 for an unknown space. */
ZEL_API int zelIsLegalName(const char *spaceName, const char *name) ZEL_NOEXCEPT;

/* Maps one name (not a path) from one space to another. Null without errno when a space is unknown. */
ZEL_API char *zelMapName(const char *fromName, const char *toName, const char *name, zelAllocFunc alloc,
                         void *context) ZEL_NOEXCEPT;

/* The same with the two operations given. Null without errno when one of them is null. */
ZEL_API char *zelMapper(zelNameToIdentFunc nameToIdent, zelIdentToNameFunc identToName, const char *name,
                        zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;

/* 1 when ident begins with 'S', 'I' or 'F' and another character follows. */
ZEL_API int zelIsLegalIdent(const char *ident) ZEL_NOEXCEPT;

/* A copy of ident, unchecked; EINVAL when it has 2048 characters or more in all. */
ZEL_API char *zelIdentToIdent(const char *ident, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;

/* Compares two Idents: negative, 0 or positive. Two case-sensitive bodies compare exactly, two 'I' bodies without
 * case; of a mixed pair the 'I' body is lowered and compared exactly, or in the mapping state MATCH without case. An
 * illegal Ident equals every other. */
ZEL_API int zelIdentCmp(const char *a, const char *b) ZEL_NOEXCEPT;

/* A hash of the body that does not tell case apart; 0 for an empty body. */
ZEL_API uint32_t zelIdentHash(const char *ident) ZEL_NOEXCEPT;

/* ---------------------------------------------------------------------------------------------------------------
 * The translators, one family of functions a space <X>:
 *
 *   zelIsLegal<X>(name)                   1 for a legal name of 1 to 2047 characters, in escaped form or not
 *   zelIdentTo<X>(ident, alloc, context)  the name of an Ident; EINVAL for an illegal Ident, one with a body of
 *                                         more than 2047 characters, or a result of more
 *   zel<X>ToIdent(name, alloc, context)   the Ident of a name; EINVAL for an illegal name
 *   zelIsLegal<X>Normal(name)             1 when the name stands without escaping (no limit of length)
 *   zelIs<X>Keyword(word)                 1 for a reserved word
 *   zelIs<X>...Char(c)                    class of the low byte of c
 *   zelVerify<X>Keywords()                checks the stored keywords, prints each fault to standard error, and
 *                                         returns 1 when there is none
 *
 * The spaces whose separators a file may redefine take a handle (see below) in zelIdentTo<X>WithHandle and
 * zel<X>ToIdentWithHandle.
 */
typedef const struct zelHandleRecord *zelHandle;

/* Verilog (IEEE 1364), Verilog-AMS and Verilog-A: letters, digits, '_' and '$', not beginning with a digit or '$';
 * everything else, and the reserved words, as an escaped identifier: '\', graphic characters, one blank. Keywords are
 * case-sensitive. */
ZEL_API int zelIsLegalVerilog(const char *name) ZEL_NOEXCEPT;
ZEL_API char *zelIdentToVerilog(const char *ident, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API char *zelVerilogToIdent(const char *name, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API int zelIsLegalVerilogNormal(const char *name) ZEL_NOEXCEPT;
ZEL_API int zelIsVerilogKeyword(const char *word) ZEL_NOEXCEPT;
ZEL_API int zelIsVerilogFirstChar(int c) ZEL_NOEXCEPT;
ZEL_API int zelIsVerilogNormalChar(int c) ZEL_NOEXCEPT;
ZEL_API int zelIsVerilogEscapableChar(int c) ZEL_NOEXCEPT;
ZEL_API int zelVerifyVerilogKeywords(void) ZEL_NOEXCEPT;

ZEL_API int zelIsLegalVerilogAMS(const char *name) ZEL_NOEXCEPT;
ZEL_API char *zelIdentToVerilogAMS(const char *ident, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API char *zelVerilogAMSToIdent(const char *name, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API int zelIsLegalVerilogAMSNormal(const char *name) ZEL_NOEXCEPT;
ZEL_API int zelIsVerilogAMSKeyword(const char *word) ZEL_NOEXCEPT;
ZEL_API int zelIsVerilogAMSFirstChar(int c) ZEL_NOEXCEPT;
ZEL_API int zelIsVerilogAMSNormalChar(int c) ZEL_NOEXCEPT;
ZEL_API int zelIsVerilogAMSEscapableChar(int c) ZEL_NOEXCEPT;
ZEL_API int zelVerifyVerilogAMSKeywords(void) ZEL_NOEXCEPT;

ZEL_API int zelIsLegalVerilogA(const char *name) ZEL_NOEXCEPT;
ZEL_API char *zelIdentToVerilogA(const char *ident, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API char *zelVerilogAToIdent(const char *name, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API int zelIsLegalVerilogANormal(const char *name) ZEL_NOEXCEPT;
ZEL_API int zelIsVerilogAKeyword(const char *word) ZEL_NOEXCEPT;
ZEL_API int zelIsVerilogAFirstChar(int c) ZEL_NOEXCEPT;
ZEL_API int zelIsVerilogANormalChar(int c) ZEL_NOEXCEPT;
ZEL_API int zelIsVerilogAEscapableChar(int c) ZEL_NOEXCEPT;
ZEL_API int zelVerifyVerilogAKeywords(void) ZEL_NOEXCEPT;

/* VHDL (IEEE 1076, 13.4), VHDL-87 and VHDL-AMS (IEEE 1076.1): basic identifiers of letters, digits and single inner
 * '_', without case; everything else as an extended identifier between backslashes, with case, a backslash inside
 * doubled. Keywords are matched without case. The force prefix "ESC_" of an Ident remembers that a name was extended
 * although its content would be a legal basic identifier. */
ZEL_API int zelIsLegalVHDL(const char *name) ZEL_NOEXCEPT;
ZEL_API char *zelIdentToVHDL(const char *ident, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API char *zelVHDLToIdent(const char *name, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API int zelIsLegalVHDLNormal(const char *name) ZEL_NOEXCEPT;
ZEL_API int zelIsVHDLKeyword(const char *word) ZEL_NOEXCEPT;
ZEL_API int zelIsVHDLFirstChar(int c) ZEL_NOEXCEPT;
ZEL_API int zelIsVHDLNormalChar(int c) ZEL_NOEXCEPT;
ZEL_API int zelIsVHDLEscapableChar(int c) ZEL_NOEXCEPT;
ZEL_API int zelVerifyVHDLKeywords(void) ZEL_NOEXCEPT;

/* The reserved words of the space "VHDL". Mode 1 takes the words that VHDL-93 added off the list; in mode 0, the
 * initial one, the environment variable ZEL_USE_VHDL87_KEYWORDS does so when it is "YES" or "yes" (read once, at the
 * first keyword test or zelIsVHDLEnvvarSet, and kept); any other mode keeps them reserved. ZEL_VHDL_TYPE is the
 * mode itself; set it with zelSetVHDLMode. */
ZEL_API extern int ZEL_VHDL_TYPE;
ZEL_API void zelSetVHDLMode(int mode) ZEL_NOEXCEPT;
ZEL_API int zelIsVHDLModeSet(void) ZEL_NOEXCEPT;
ZEL_API int zelIsVHDL87ModeSet(void) ZEL_NOEXCEPT;
ZEL_API int zelIsVHDLEnvvarSet(void) ZEL_NOEXCEPT;

ZEL_API int zelIsLegalVHDL87(const char *name) ZEL_NOEXCEPT;
ZEL_API char *zelIdentToVHDL87(const char *ident, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API char *zelVHDL87ToIdent(const char *name, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API int zelIsLegalVHDL87Normal(const char *name) ZEL_NOEXCEPT;
ZEL_API int zelIsVHDL87Keyword(const char *word) ZEL_NOEXCEPT;
ZEL_API int zelIsVHDL87FirstChar(int c) ZEL_NOEXCEPT;
ZEL_API int zelIsVHDL87NormalChar(int c) ZEL_NOEXCEPT;
ZEL_API int zelIsVHDL87EscapableChar(int c) ZEL_NOEXCEPT;
ZEL_API int zelVerifyVHDL87Keywords(void) ZEL_NOEXCEPT;

ZEL_API int zelIsLegalVHDLAMS(const char *name) ZEL_NOEXCEPT;
ZEL_API char *zelIdentToVHDLAMS(const char *ident, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API char *zelVHDLAMSToIdent(const char *name, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API int zelIsLegalVHDLAMSNormal(const char *name) ZEL_NOEXCEPT;
ZEL_API int zelIsVHDLAMSKeyword(const char *word) ZEL_NOEXCEPT;
ZEL_API int zelIsVHDLAMSFirstChar(int c) ZEL_NOEXCEPT;
ZEL_API int zelIsVHDLAMSNormalChar(int c) ZEL_NOEXCEPT;
ZEL_API int zelIsVHDLAMSEscapableChar(int c) ZEL_NOEXCEPT;
ZEL_API int zelVerifyVHDLAMSKeywords(void) ZEL_NOEXCEPT;

/* ORKA, the names of a design database: graphic characters but "(),/<>\"; also index groups, "(" digits ")", behind the
 * first character. Everything else as a hex escape, in EscORKA as an extended identifier between backslashes instead.
 * ORKA and 44ORKA are the same. */
ZEL_API int zelIsLegalORKA(const char *name) ZEL_NOEXCEPT;
ZEL_API char *zelIdentToORKA(const char *ident, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API char *zelORKAToIdent(const char *name, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;

ZEL_API int zelIsLegal44ORKA(const char *name) ZEL_NOEXCEPT;
ZEL_API char *zelIdentTo44ORKA(const char *ident, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API char *zel44ORKAToIdent(const char *name, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;

ZEL_API int zelIsLegalEscORKA(const char *name) ZEL_NOEXCEPT;
ZEL_API char *zelIdentToEscORKA(const char *ident, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API char *zelEscORKAToIdent(const char *name, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API int zelIsORKANormalChar(int c) ZEL_NOEXCEPT;
ZEL_API int zelIsORKAEscapableChar(int c) ZEL_NOEXCEPT;

/* Respell a path of any length: '/', '<' and '>' of ORKA are '|', '(' and ')' of flat ORKA, which hex-encodes these
 * characters, and '#', where they are text, and whose annotation "(M=n)" is dropped when n is not 0. Nothing is
 * checked. The result comes from malloc and is released with free. Null with EINVAL for null, or with ENOMEM. */
ZEL_API char *zelORKAToORKAFlat(const char *path) ZEL_NOEXCEPT;
ZEL_API char *zelORKAFlatToORKA(const char *flat) ZEL_NOEXCEPT;

/* Kirra, a netlist format of analog simulation: letters, digits, '_' and '!', the first a letter or '_', or digits,
 * letters and digits as in 2n3904; any other graphic or white-space character behind a backslash. Keywords, which are
 * case-sensitive, carry the prefix "KEYWORD_". zelKirraToIdent leaves errno alone when it refuses a name for a
 * backslash in front of any other byte. zelIsLegalKirraDigitStartName is the rule for names that begin with a digit. */
ZEL_API int zelIsLegalKirra(const char *name) ZEL_NOEXCEPT;
ZEL_API char *zelIdentToKirra(const char *ident, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API char *zelKirraToIdent(const char *name, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API int zelIsLegalKirraDigitStartName(const char *name) ZEL_NOEXCEPT;
ZEL_API int zelIsKirraKeyword(const char *word) ZEL_NOEXCEPT;
ZEL_API int zelIsKirraFirstChar(int c) ZEL_NOEXCEPT;
ZEL_API int zelIsKirraNonFirstChar(int c) ZEL_NOEXCEPT;
ZEL_API int zelIsKirraEscapableChar(int c) ZEL_NOEXCEPT;
ZEL_API int zelVerifyKirraKeywords(void) ZEL_NOEXCEPT;

/* KirraHDL, its behavioural language: as Verilog, but '$' is to be escaped. */
ZEL_API int zelIsLegalKirraHDL(const char *name) ZEL_NOEXCEPT;
ZEL_API char *zelIdentToKirraHDL(const char *ident, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API char *zelKirraHDLToIdent(const char *name, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API int zelIsLegalKirraHDLNormal(const char *name) ZEL_NOEXCEPT;
ZEL_API int zelIsKirraHDLKeyword(const char *word) ZEL_NOEXCEPT;
ZEL_API int zelIsKirraHDLFirstChar(int c) ZEL_NOEXCEPT;
ZEL_API int zelIsKirraHDLNormalChar(int c) ZEL_NOEXCEPT;
ZEL_API int zelIsKirraHDLEscapableChar(int c) ZEL_NOEXCEPT;
ZEL_API int zelVerifyKirraHDLKeywords(void) ZEL_NOEXCEPT;

/* SPICE netlists: letters, digits and "!#$%*+-/<>[]_"; any other graphic character behind a backslash. The first and
 * the last character of a name are not tested. Keywords are legal names. */
ZEL_API int zelIsLegalSpice(const char *name) ZEL_NOEXCEPT;
ZEL_API char *zelIdentToSpice(const char *ident, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API char *zelSpiceToIdent(const char *name, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API int zelIsSpiceKeyword(const char *word) ZEL_NOEXCEPT;
ZEL_API int zelIsSpiceNormalChar(int c) ZEL_NOEXCEPT;
ZEL_API int zelIsSpiceEscapableChar(int c) ZEL_NOEXCEPT;
ZEL_API int zelVerifySpiceKeywords(void) ZEL_NOEXCEPT;

/* The formats whose separators a file may redefine; a name escapes those in force with a backslash. They are the ones
 * of handle during a WithHandle call, also for what its allocator calls; otherwise, and when handle is null, the
 * built-in ones of the space. Several threads may use different handles at once.
 *
 * SDF (IEEE 1497), SPEF (IEEE 1481) and GCF: letters, digits and '_'; punctuation, the pin delimiter and the bus
 * brackets behind a backslash. SPF: every 7-bit character; the four separators and the backslash behind a backslash. A
 * separator of 128 or above is not escapable. */
ZEL_API int zelIsLegalSdf(const char *name) ZEL_NOEXCEPT;
ZEL_API char *zelIdentToSdf(const char *ident, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API char *zelIdentToSdfWithHandle(const char *ident, zelAllocFunc alloc, void *context,
                                      zelHandle handle) ZEL_NOEXCEPT;
ZEL_API char *zelSdfToIdent(const char *name, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API char *zelSdfToIdentWithHandle(const char *name, zelAllocFunc alloc, void *context,
                                      zelHandle handle) ZEL_NOEXCEPT;
ZEL_API int zelIsSdfChar(int c) ZEL_NOEXCEPT;
ZEL_API int zelIsSdfEscapableChar(int c) ZEL_NOEXCEPT;

ZEL_API int zelIsLegalSpef(const char *name) ZEL_NOEXCEPT;
ZEL_API char *zelIdentToSpef(const char *ident, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API char *zelIdentToSpefWithHandle(const char *ident, zelAllocFunc alloc, void *context,
                                       zelHandle handle) ZEL_NOEXCEPT;
ZEL_API char *zelSpefToIdent(const char *name, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API char *zelSpefToIdentWithHandle(const char *name, zelAllocFunc alloc, void *context,
                                       zelHandle handle) ZEL_NOEXCEPT;
ZEL_API int zelIsSpefChar(int c) ZEL_NOEXCEPT;
ZEL_API int zelIsSpefEscapableChar(int c) ZEL_NOEXCEPT;

ZEL_API int zelIsLegalGcf(const char *name) ZEL_NOEXCEPT;
ZEL_API char *zelIdentToGcf(const char *ident, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API char *zelIdentToGcfWithHandle(const char *ident, zelAllocFunc alloc, void *context,
                                      zelHandle handle) ZEL_NOEXCEPT;
ZEL_API char *zelGcfToIdent(const char *name, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API char *zelGcfToIdentWithHandle(const char *name, zelAllocFunc alloc, void *context,
                                      zelHandle handle) ZEL_NOEXCEPT;
ZEL_API int zelIsGcfChar(int c) ZEL_NOEXCEPT;
ZEL_API int zelIsGcfEscapableChar(int c) ZEL_NOEXCEPT;

ZEL_API int zelIsLegalSpf(const char *name) ZEL_NOEXCEPT;
ZEL_API char *zelIdentToSpf(const char *ident, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API char *zelIdentToSpfWithHandle(const char *ident, zelAllocFunc alloc, void *context,
                                      zelHandle handle) ZEL_NOEXCEPT;
ZEL_API char *zelSpfToIdent(const char *name, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API char *zelSpfToIdentWithHandle(const char *name, zelAllocFunc alloc, void *context,
                                      zelHandle handle) ZEL_NOEXCEPT;
ZEL_API int zelIsSpfChar(int c) ZEL_NOEXCEPT;
ZEL_API int zelIsSpfEscapableChar(int c) ZEL_NOEXCEPT;

/* LEF and DEF (5.x): every 7-bit character but white space, '#' and ';'; behind a backslash '#', the backslash, the bus
 * brackets, and in DEF the pin delimiter, in LEF the divider, where the latter three never stand plain. The mark of an
 * escape is '%', not '#'. Keywords are matched without case, and are legal names. */
ZEL_API int zelIsLegalLef(const char *name) ZEL_NOEXCEPT;
ZEL_API char *zelIdentToLef(const char *ident, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API char *zelIdentToLefWithHandle(const char *ident, zelAllocFunc alloc, void *context,
                                      zelHandle handle) ZEL_NOEXCEPT;
ZEL_API char *zelLefToIdent(const char *name, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API char *zelLefToIdentWithHandle(const char *name, zelAllocFunc alloc, void *context,
                                      zelHandle handle) ZEL_NOEXCEPT;
ZEL_API int zelIsLefChar(int c) ZEL_NOEXCEPT;
ZEL_API int zelIsLefEscapableChar(int c) ZEL_NOEXCEPT;
ZEL_API int zelIsLefKeyword(const char *word) ZEL_NOEXCEPT;
ZEL_API int zelVerifyLefKeywords(void) ZEL_NOEXCEPT;

ZEL_API int zelIsLegalDef(const char *name) ZEL_NOEXCEPT;
ZEL_API char *zelIdentToDef(const char *ident, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API char *zelIdentToDefWithHandle(const char *ident, zelAllocFunc alloc, void *context,
                                      zelHandle handle) ZEL_NOEXCEPT;
ZEL_API char *zelDefToIdent(const char *name, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API char *zelDefToIdentWithHandle(const char *name, zelAllocFunc alloc, void *context,
                                      zelHandle handle) ZEL_NOEXCEPT;
ZEL_API int zelIsDefChar(int c) ZEL_NOEXCEPT;
ZEL_API int zelIsDefEscapableChar(int c) ZEL_NOEXCEPT;
ZEL_API int zelIsDefKeyword(const char *word) ZEL_NOEXCEPT;
ZEL_API int zelVerifyDefKeywords(void) ZEL_NOEXCEPT;

/* Tessel: graphic characters, "[]|\" behind a backslash. FlatTessel, a whole hierarchy in one name: "[]\" only. */
ZEL_API int zelIsLegalTessel(const char *name) ZEL_NOEXCEPT;
ZEL_API char *zelIdentToTessel(const char *ident, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API char *zelTesselToIdent(const char *name, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API int zelIsTesselChar(int c) ZEL_NOEXCEPT;
ZEL_API int zelIsTesselEscapableChar(int c) ZEL_NOEXCEPT;

ZEL_API int zelIsLegalFlatTessel(const char *name) ZEL_NOEXCEPT;
ZEL_API char *zelIdentToFlatTessel(const char *ident, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API char *zelFlatTesselToIdent(const char *name, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API int zelIsFlatTesselChar(int c) ZEL_NOEXCEPT;
ZEL_API int zelIsFlatTesselEscapableChar(int c) ZEL_NOEXCEPT;

/* Library names, which are directory names: letters, digits and "_@#". LibraryNT is for file systems without case: '%'
 * stands before a capital that matters, "%%" before the name of a device (zelIsNTKeyword). */
ZEL_API int zelIsLegalLibraryNT(const char *name) ZEL_NOEXCEPT;
ZEL_API char *zelIdentToLibraryNT(const char *ident, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API char *zelLibraryNTToIdent(const char *name, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API int zelIsNTChar(int c) ZEL_NOEXCEPT;
ZEL_API int zelIsNTKeyword(const char *word) ZEL_NOEXCEPT;

ZEL_API int zelIsLegalLibraryUnix(const char *name) ZEL_NOEXCEPT;
ZEL_API char *zelIdentToLibraryUnix(const char *ident, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API char *zelLibraryUnixToIdent(const char *name, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API int zelIsUnixChar(int c) ZEL_NOEXCEPT;

/* Words over a class of characters, everything else as a hex escape: graphic characters in NVerilog, Print, EDIF 2 0 0
 * and EDIF 3 0 0, every 7-bit character in Ascii. */
ZEL_API int zelIsLegalNVerilog(const char *name) ZEL_NOEXCEPT;
ZEL_API char *zelIdentToNVerilog(const char *ident, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API char *zelNVerilogToIdent(const char *name, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;

ZEL_API int zelIsLegalPrint(const char *name) ZEL_NOEXCEPT;
ZEL_API char *zelIdentToPrint(const char *ident, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API char *zelPrintToIdent(const char *name, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;

ZEL_API int zelIsLegalAscii(const char *name) ZEL_NOEXCEPT;
ZEL_API char *zelIdentToAscii(const char *ident, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API char *zelAsciiToIdent(const char *name, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;

ZEL_API int zelIsLegalEdif200(const char *name) ZEL_NOEXCEPT;
ZEL_API char *zelIdentToEdif200(const char *ident, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API char *zelEdif200ToIdent(const char *name, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API int zelIsEdif200Char(int c) ZEL_NOEXCEPT;

ZEL_API int zelIsLegalEdif300(const char *name) ZEL_NOEXCEPT;
ZEL_API char *zelIdentToEdif300(const char *ident, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API char *zelEdif300ToIdent(const char *name, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API int zelIsEdif300Char(int c) ZEL_NOEXCEPT;

/* Vellum, a convention of schematic entry: printable characters without case, between quotes where ":<\" or a quote
 * occurs; with case as an extended identifier between backslashes. */
ZEL_API int zelIsLegalVellum(const char *name) ZEL_NOEXCEPT;
ZEL_API char *zelIdentToVellum(const char *ident, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API char *zelVellumToIdent(const char *name, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API int zelIsLegalVellumNormal(const char *name) ZEL_NOEXCEPT;

/* ---------------------------------------------------------------------------------------------------------------
 * Handles and path mapping
 *
 * A handle carries the four separator characters in force (pin delimiter, hierarchy divider, bus open, bus close)
 * with the parser and the printer of its space. Built-in handles are constant; zelFreeHandle ignores them, so
 * whatever zelGetHandle returned may be handed to it.
 */
ZEL_API extern const zelHandle zelVerilogHandle;
ZEL_API extern const zelHandle zelVerilogAMSHandle;
ZEL_API extern const zelHandle zelVHDLHandle;
ZEL_API extern const zelHandle zelVHDL87Handle;
ZEL_API extern const zelHandle zelVHDLAMSHandle;
ZEL_API extern const zelHandle zelFlatTesselHandle;
ZEL_API extern const zelHandle zelSpiceHandle;
ZEL_API extern const zelHandle zelKirraHDLHandle;
ZEL_API extern const zelHandle zelKirraHandle;
ZEL_API extern const zelHandle zelTesselHandle;
ZEL_API extern const zelHandle zelORKAHandle;
ZEL_API extern const zelHandle zelGcfHandle;
ZEL_API extern const zelHandle zelSdfHandle;
ZEL_API extern const zelHandle zelSpfHandle;
ZEL_API extern const zelHandle zelSpefHandle;
ZEL_API extern const zelHandle zelDefHandle;
ZEL_API extern const zelHandle zelLefHandle;

/* The handle of the space that spaceName selects (as zelGetSpaceByName does). The low byte of each of the four
 * characters counts, 0 keeps the default. Where the format fixes its characters they are ignored and the built-in
 * handle returned; where a file may redefine them (GCF, SDF, SPF, SPEF, DEF, LEF; FlatTessel its brackets) other
 * characters give a new handle, to be released with zelFreeHandle. So does a name of more than three characters that
 * begins with 'L' ("Library"), for which LEF stands in. Null for a space without path form, or with ENOMEM. */
ZEL_API zelHandle zelGetHandle(const char *spaceName, uint32_t pinDelimiter, uint32_t divider, uint32_t busOpen,
                               uint32_t busClose) ZEL_NOEXCEPT;

/* Always a new handle, for a space whose characters a file may redefine (LEF for every name that begins with 'L'); null
 * for any other, or with ENOMEM. */
ZEL_API zelHandle zelAllocHandle(const char *spaceName, uint32_t pinDelimiter, uint32_t divider, uint32_t busOpen,
                                 uint32_t busClose) ZEL_NOEXCEPT;

/* Frees a handle made by zelAllocHandle (also through zelGetHandle), which no path that was parsed with it must
 * outlive; ignores null and the built-in ones. */
ZEL_API void zelFreeHandle(zelHandle handle) ZEL_NOEXCEPT;

/* Stores the default characters of a space where the pointers are non-null and returns 1; 0 when the space has no
 * handle. */
ZEL_API int zelGetHandleDefaults(const char *spaceName, char *pinDelimiter, char *divider, char *busOpen,
                                 char *busClose) ZEL_NOEXCEPT;

/* How a path is printed. */
enum {
  ZEL_PRINT_EXPLODE = 1,   /* every bit as a name of its own */
  ZEL_PRINT_NOREPEAT = 2,  /* no repeat notation; see "What ends the process" below for ORKA */
  ZEL_PRINT_NOCOMPLEX = 4, /* accepted; no printer reads it */
  ZEL_PRINT_GROUP = 8,     /* one grouping expression */
  ZEL_PRINT_TOP = 16       /* as the top of the hierarchy */
};

/* Parses text with the parser of fromHandle and prints it with the printer of toHandle under the ZEL_PRINT_ flags.
 * A null handle is looked up by the name beside it. Null when text is null or does not parse, or its printed form has
 * more than 2047 characters (EINVAL), or when a name without handle stands for a null handle (EINVAL), or ENOMEM. The
 * result of zelPathMapper comes from malloc. */
ZEL_API char *zelPathMapper(const char *text, zelHandle fromHandle, zelHandle toHandle, uint32_t flags,
                            const char *fromName, const char *toName) ZEL_NOEXCEPT;
ZEL_API char *zelPathMapperEx(const char *text, zelHandle fromHandle, zelHandle toHandle, uint32_t flags,
                              const char *fromName, const char *toName, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;

/* ---------------------------------------------------------------------------------------------------------------
 * Paths
 *
 * A path is one hierarchical name as a stream of items. It owns its Idents unless they were added as borrowed, and
 * points into the text and to the handle that it was parsed with, which must outlive it. Numbers of items lie between
 * ZEL_MIN_NUMBER and ZEL_MAX_NUMBER. A function that cannot add to a path (no memory, ENOMEM; number out of range,
 * EINVAL) sets its error flag and leaves it whole.
 */
typedef struct zelPathRecord *zelPath;

#define ZEL_MIN_NUMBER (-200000)
#define ZEL_MAX_NUMBER 1897151

/* An empty path, or null with ENOMEM. Its memory, and that of the Idents it converts, comes from alloc(size, context)
 * when alloc is non-null, and from malloc otherwise. */
ZEL_API zelPath zelCreatePath(zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;

/* Releases the path and all that it owns, with free(memory, context) or, when that is null, the C library's free. */
ZEL_API void zelFreePath(zelPath path, zelFreeFunc free, void *context) ZEL_NOEXCEPT;

/* Appends an item. Idents and names are taken as they are, not copied; they come to belong to the path unless
 * borrowed (for a library reference: shared) is non-zero. The library, cell or view of a library reference may be
 * null. */
ZEL_API void zelPathAddTopIdent(zelPath path, const char *ident, int borrowed) ZEL_NOEXCEPT;
ZEL_API void zelPathAddIdent(zelPath path, const char *ident, int borrowed) ZEL_NOEXCEPT;
ZEL_API void zelPathAddLib(zelPath path, const char *library, const char *cell, const char *view,
                           int shared) ZEL_NOEXCEPT;
ZEL_API void zelPathAddIndex(zelPath path, int32_t index) ZEL_NOEXCEPT;
ZEL_API void zelPathAddRange(zelPath path, int32_t from, int32_t to) ZEL_NOEXCEPT;
ZEL_API void zelPathAddStepRange(zelPath path, int32_t from, int32_t to, int32_t step) ZEL_NOEXCEPT;
ZEL_API void zelPathAddRepeat(zelPath path, int32_t count) ZEL_NOEXCEPT;
ZEL_API void zelPathAddListStart(zelPath path) ZEL_NOEXCEPT;
ZEL_API void zelPathAddList(zelPath path) ZEL_NOEXCEPT;
ZEL_API void zelPathAddListEnd(zelPath path) ZEL_NOEXCEPT;

/* What zelPathGenNext finds. */
enum {
  ZEL_ITEM_TOP_IDENT = 0,
  ZEL_ITEM_IDENT = 1,
  ZEL_ITEM_INDEX = 2,
  ZEL_ITEM_RANGE = 3,
  ZEL_ITEM_STEP_RANGE = 4,
  ZEL_ITEM_REPEAT = 5,
  ZEL_ITEM_LIST_START = 6,
  ZEL_ITEM_LIST = 7,
  ZEL_ITEM_LIST_END = 8,
  ZEL_ITEM_INDEX_LIST_START = 9,
  ZEL_ITEM_INDEX_LIST_END = 10,
  ZEL_ITEM_INDEX_REPEAT = 11,
  ZEL_ITEM_LIB = 12,
  ZEL_ITEM_END = 13,
  ZEL_ITEM_NONE = 14 /* no item stands there; also once behind a step range whose numbers are all small */
};

/* The walk: zelPathGenStart, then zelPathGenNext until ZEL_ITEM_END (which it goes on returning). The state lives in
 * the path, which therefore supports one walk at a time. */
ZEL_API void zelPathGenStart(zelPath path) ZEL_NOEXCEPT;
ZEL_API int zelPathGenNext(zelPath path) ZEL_NOEXCEPT;

/* Read the item that the walk stands on. Of another kind of item they give -1 (both bounds), except that
 * zelPathGetStepRange then sets from and to to one less than the value found in *step. Null pointers are skipped.
 * zelPathGetRange also reads the bounds of a step range; zelPathGetRepeat reads repeats of groups and of indexes. */
ZEL_API int zelPathGetIndex(zelPath path) ZEL_NOEXCEPT;
ZEL_API void zelPathGetRange(zelPath path, int32_t *from, int32_t *to) ZEL_NOEXCEPT;
ZEL_API void zelPathGetStepRange(zelPath path, int32_t *from, int32_t *to, int32_t *step) ZEL_NOEXCEPT;
ZEL_API int zelPathGetRepeat(zelPath path) ZEL_NOEXCEPT;

/* The Ident of an identifier, converted from the text on first use and then owned by the path. Null for another item,
 * or when the text does not convert (which sets the path's error flag). */
ZEL_API const char *zelPathGetIdent(zelPath path) ZEL_NOEXCEPT;

/* The text of an identifier that has not been converted yet: from the result up to *end. Null, *end too, for any other
 * item and for Kirra, KirraHDL and Spice paths. */
ZEL_API const char *zelPathGetString(zelPath path, const char **end) ZEL_NOEXCEPT;

/* The Idents of a library reference, each possibly null; of another item the outputs are left alone. */
ZEL_API void zelPathGetLib(zelPath path, const char **library, const char **cell, const char **view) ZEL_NOEXCEPT;

/* What zelPathGetFlag reports. */
enum {
  ZEL_PATH_HIERARCHY = 0x1,
  ZEL_PATH_INDEX = 0x2,
  ZEL_PATH_RANGE = 0x4,
  ZEL_PATH_COMPLEX = 0x8,
  ZEL_PATH_MID_INDEX = 0x10, /* an index with a further level behind it */
  ZEL_PATH_MID_RANGE = 0x20, /* a range with a further level behind it */
  ZEL_PATH_LIST = 0x40,
  ZEL_PATH_REPEAT = 0x80,
  ZEL_PATH_SINGLE_VERILOG = 0x100, /* one name in Verilog: no list, repeat or complex index */
  ZEL_PATH_SINGLE_ORKA = 0x200,    /* one name in ORKA: no list or repeat */
  ZEL_PATH_SINGLE_VHDL = 0x400,    /* as ZEL_PATH_SINGLE_VERILOG */
  ZEL_PATH_ERROR = 0x800           /* not a valid path, or something failed on it */
};
ZEL_API int zelPathGetFlag(zelPath path) ZEL_NOEXCEPT;

/* The place of the walk as a number: 0 before the first item, otherwise chunk number times 256 plus position. */
ZEL_API uint32_t zelPathGetLocation(zelPath path) ZEL_NOEXCEPT;

/* Puts the walk back to a place; the next zelPathGenNext gives the item behind it. Returns 0 for location 0, the
 * position it was capped at when the path ends before, and otherwise 1 (0 for a location below 256). */
ZEL_API uint32_t zelPathSetLocation(zelPath path, uint32_t location) ZEL_NOEXCEPT;

/* Moves the walk to the last item and returns its place; 0 for an empty path. Exact for paths of one chunk (19 bytes of
 * items, 8 identifiers); of longer ones it looks for the item in the first chunk. */
ZEL_API uint32_t zelPathGetLastLocation(zelPath path) ZEL_NOEXCEPT;

/* Releases every item from a place on, and cuts the path there. */
ZEL_API void zelPathRemoveFromLocation(zelPath path, uint32_t location, zelFreeFunc free, void *context) ZEL_NOEXCEPT;

/* The release inside zelPathRemoveFromLocation: releases the items of chunk from byte (location & 0xFF) on and all
 * later chunks, and cuts the chunk there. */
ZEL_API void zelFreePathFromLocation(zelPath chunk, uint32_t location, zelFreeFunc free, void *context) ZEL_NOEXCEPT;

/* Takes one byte off a trailing index, range or step range and returns its chunk as an integer; otherwise the kind of
 * the last item less 2 (-2 for an empty path). The rest of a longer item stays, so this is for those who rebuild the
 * tail themselves. */
ZEL_API intptr_t zelPathRemoveIndex(zelPath path) ZEL_NOEXCEPT;

/* As zelPathRemoveIndex, then takes one byte off an identifier that ends there and returns its chunk as an integer;
 * otherwise the kind found there less 19. The Ident is not released: whoever removes the level owns it. */
ZEL_API intptr_t zelPathRemoveLevel(zelPath path) ZEL_NOEXCEPT;

/* Converts the identifier at a byte position of a chunk from text to Ident, stores it there and returns it. A text that
 * does not convert is replaced by a null Ident, without an error flag; with ENOMEM it stays as it is. Anything but an
 * identifier held as text gives null and is left alone. */
ZEL_API char *zelStrToIdent(zelPath chunk, uint32_t position) ZEL_NOEXCEPT;

/* ---------------------------------------------------------------------------------------------------------------
 * Path parsers and printers
 *
 * zelParse<X>(text, handle, alloc, context): the path of text, with its error flag (ZEL_PATH_ERROR) set when the text
 * is not a valid path, and the items read until then. Null only for a null text (EINVAL) or without memory (ENOMEM).
 * handle is read by the spaces whose separators a file may redefine, null standing for the default. Memory as in
 * zelCreatePath; release with zelFreePath. A name of more than 2047 characters, or a number out of range, is refused.
 *
 * zelPathTo<X>(path, handle, flags) and zelPathTo<X>Ex(..., alloc, context): the path in the syntax of the space,
 * under the ZEL_PRINT_ flags. An Ident that the space cannot write is left out, an item that it cannot write appears as
 * "!ERROR!". The short form takes its result from malloc. A null path and one without items print as "". EINVAL for a
 * text of 2048 characters or more, ENOMEM.
 *
 * What ends the process: printing a bracketed index list, as in the ORKA path a<(0,1)>, in ORKA with ZEL_PRINT_NOREPEAT
 * and without ZEL_PRINT_EXPLODE; and printing a path that was cut right behind the bracket. A line is written to
 * standard error, and abort is called. The chapter of the same name in docs/paths.md has the details.
 */
ZEL_API zelPath zelParseVerilog(const char *text, zelHandle handle, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API zelPath zelParseVerilogAMS(const char *text, zelHandle handle, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API zelPath zelParseVHDL(const char *text, zelHandle handle, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API zelPath zelParseVHDL87(const char *text, zelHandle handle, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API zelPath zelParseVHDLAMS(const char *text, zelHandle handle, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API zelPath zelParseORKA(const char *text, zelHandle handle, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API zelPath zelParseGcf(const char *text, zelHandle handle, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API zelPath zelParseTessel(const char *text, zelHandle handle, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API zelPath zelParseSdf(const char *text, zelHandle handle, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API zelPath zelParseSpf(const char *text, zelHandle handle, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API zelPath zelParseKirra(const char *text, zelHandle handle, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API zelPath zelParseKirraHDL(const char *text, zelHandle handle, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API zelPath zelParseSpef(const char *text, zelHandle handle, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API zelPath zelParseSpice(const char *text, zelHandle handle, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API zelPath zelParseDef(const char *text, zelHandle handle, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API zelPath zelParseFlatTessel(const char *text, zelHandle handle, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;
ZEL_API zelPath zelParseLef(const char *text, zelHandle handle, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;

ZEL_API char *zelPathToVerilog(zelPath path, zelHandle handle, int32_t flags) ZEL_NOEXCEPT;
ZEL_API char *zelPathToVerilogEx(zelPath path, zelHandle handle, int32_t flags, zelAllocFunc alloc,
                                 void *context) ZEL_NOEXCEPT;
ZEL_API char *zelPathToVHDL(zelPath path, zelHandle handle, int32_t flags) ZEL_NOEXCEPT;
ZEL_API char *zelPathToVHDLEx(zelPath path, zelHandle handle, int32_t flags, zelAllocFunc alloc,
                              void *context) ZEL_NOEXCEPT;
ZEL_API char *zelPathToORKA(zelPath path, zelHandle handle, int32_t flags) ZEL_NOEXCEPT;
ZEL_API char *zelPathToORKAEx(zelPath path, zelHandle handle, int32_t flags, zelAllocFunc alloc,
                              void *context) ZEL_NOEXCEPT;
ZEL_API char *zelPathToTessel(zelPath path, zelHandle handle, int32_t flags) ZEL_NOEXCEPT;
ZEL_API char *zelPathToTesselEx(zelPath path, zelHandle handle, int32_t flags, zelAllocFunc alloc,
                                void *context) ZEL_NOEXCEPT;
ZEL_API char *zelPathToFlatTessel(zelPath path, zelHandle handle, int32_t flags) ZEL_NOEXCEPT;
ZEL_API char *zelPathToFlatTesselEx(zelPath path, zelHandle handle, int32_t flags, zelAllocFunc alloc,
                                    void *context) ZEL_NOEXCEPT;
ZEL_API char *zelPathToLef(zelPath path, zelHandle handle, int32_t flags) ZEL_NOEXCEPT;
ZEL_API char *zelPathToLefEx(zelPath path, zelHandle handle, int32_t flags, zelAllocFunc alloc,
                             void *context) ZEL_NOEXCEPT;
ZEL_API char *zelPathToDef(zelPath path, zelHandle handle, int32_t flags) ZEL_NOEXCEPT;
ZEL_API char *zelPathToDefEx(zelPath path, zelHandle handle, int32_t flags, zelAllocFunc alloc,
                             void *context) ZEL_NOEXCEPT;
ZEL_API char *zelPathToSdf(zelPath path, zelHandle handle, int32_t flags) ZEL_NOEXCEPT;
ZEL_API char *zelPathToSdfEx(zelPath path, zelHandle handle, int32_t flags, zelAllocFunc alloc,
                             void *context) ZEL_NOEXCEPT;
ZEL_API char *zelPathToSpf(zelPath path, zelHandle handle, int32_t flags) ZEL_NOEXCEPT;
ZEL_API char *zelPathToSpfEx(zelPath path, zelHandle handle, int32_t flags, zelAllocFunc alloc,
                             void *context) ZEL_NOEXCEPT;
ZEL_API char *zelPathToSpef(zelPath path, zelHandle handle, int32_t flags) ZEL_NOEXCEPT;
ZEL_API char *zelPathToSpefEx(zelPath path, zelHandle handle, int32_t flags, zelAllocFunc alloc,
                              void *context) ZEL_NOEXCEPT;
ZEL_API char *zelPathToGcf(zelPath path, zelHandle handle, int32_t flags) ZEL_NOEXCEPT;
ZEL_API char *zelPathToGcfEx(zelPath path, zelHandle handle, int32_t flags, zelAllocFunc alloc,
                             void *context) ZEL_NOEXCEPT;
ZEL_API char *zelPathToSpice(zelPath path, zelHandle handle, int32_t flags) ZEL_NOEXCEPT;
ZEL_API char *zelPathToSpiceEx(zelPath path, zelHandle handle, int32_t flags, zelAllocFunc alloc,
                               void *context) ZEL_NOEXCEPT;
ZEL_API char *zelPathToKirra(zelPath path, zelHandle handle, int32_t flags) ZEL_NOEXCEPT;
ZEL_API char *zelPathToKirraEx(zelPath path, zelHandle handle, int32_t flags, zelAllocFunc alloc,
                               void *context) ZEL_NOEXCEPT;
ZEL_API char *zelPathToKirraHDL(zelPath path, zelHandle handle, int32_t flags) ZEL_NOEXCEPT;
ZEL_API char *zelPathToKirraHDLEx(zelPath path, zelHandle handle, int32_t flags, zelAllocFunc alloc,
                                  void *context) ZEL_NOEXCEPT;

/* ---------------------------------------------------------------------------------------------------------------
 * Mappings: names or paths of one space in another, by a record that is made once
 */

/* Why a name, a path or an option is refused. */
enum {
  ZEL_REASON_NONE = 0,
  ZEL_REASON_EMPTY,                   /* no name, or a level without one */
  ZEL_REASON_TOO_LONG,                /* a name of more than ZEL_MAX_NAME characters */
  ZEL_REASON_ILLEGAL_CHARACTER,       /* no character of a name of the space */
  ZEL_REASON_ILLEGAL_FIRST_CHARACTER, /* one that does not begin a name */
  ZEL_REASON_RESERVED_WORD,
  ZEL_REASON_NO_WHITE_SPACE,      /* behind an escaped identifier (IEEE 1364, 3.7.1) */
  ZEL_REASON_UNTERMINATED_ESCAPE, /* an extended identifier, a quote or a backslash that nothing ends */
  ZEL_REASON_NUMBER_OUT_OF_RANGE, /* see ZEL_MIN_NUMBER and ZEL_MAX_NUMBER */
  ZEL_REASON_UNEXPECTED_CHARACTER,
  ZEL_REASON_UNEXPECTED_END,
  ZEL_REASON_UNBALANCED_BRACKET,
  ZEL_REASON_UNBALANCED_BRACE,
  ZEL_REASON_SECOND_PIN_DELIMITER, /* or a divider behind one */
  ZEL_REASON_NO_ELEMENT_LETTER,    /* on the level of an instance in SPICE */
  ZEL_REASON_NOT_CONVERTED,        /* a level that gives no Ident */
  ZEL_REASON_NOT_WRITABLE,         /* an item that the target has no text for */
  ZEL_REASON_RESULT_TOO_LONG,      /* more than ZEL_MAX_NAME characters */
  ZEL_REASON_NO_MEMORY,
  ZEL_REASON_BAD_ARGUMENT, /* a null text or mapping */
  ZEL_REASON_COUNT
};

/* One line of English for a reason, without a full stop; constant. "" for ZEL_REASON_NONE and any other number. */
ZEL_API const char *zelReasonText(int32_t reason) ZEL_NOEXCEPT;

/* What is refused, and the place: bytes from 0. */
typedef struct zelRefusal {
  int32_t reason;
  uint32_t position;
} zelRefusal;

/* What the last level of a path stands for. Only in SPEF and DSPF has a pin a delimiter of its own, and in SPICE an
 * instance an element letter; a name behind a pin delimiter that was read is a pin, whatever the kind. */
enum { ZEL_KIND_NET = 0, ZEL_KIND_PORT = 1, ZEL_KIND_INSTANCE = 2, ZEL_KIND_PIN = 3 };

/* Which levels carry the element letter in SPICE: every level of an instance and all but the last of anything else; or,
 * as in extracted flat netlists, only the last level of an instance. */
enum { ZEL_LEVELS_ALL = 0, ZEL_LEVELS_LAST = 1 };

/* Of zelMappingOptions: the state of the process at the time of each call, and with it the environment. */
#define ZEL_MAP_PROCESS (-1)

/* The separators of one side; NUL keeps the default. Formats whose files may redefine them (SDF, SPF, SPEF, GCF, LEF,
 * DEF) and Spice take them; SPEF and SPF have the pin delimiter ':' by default. */
typedef struct zelMappingSeparators {
  char pinDelimiter;
  char divider;
  char busOpen;
  char busClose;
} zelMappingSeparators;

/* How a mapping is made. Fill with zeros, set size to sizeof(zelMappingOptions), then what is wanted. */
typedef struct zelMappingOptions {
  uint32_t size;
  const char *from; /* the spaces: a name of zelGetAllSpaceNames or "Ident" in any case, or one people use ("DSPF") */
  const char *to;
  zelMappingSeparators fromSeparators;
  zelMappingSeparators toSeparators;
  int32_t isNames;      /* non-zero: single names; otherwise paths where both spaces have them */
  int32_t kind;         /* ZEL_KIND_ */
  uint32_t printFlags;  /* ZEL_PRINT_ */
  char element;         /* the element letter of instances in SPICE, as it is to be written; NUL for none */
  int32_t levels;       /* ZEL_LEVELS_ */
  int32_t mapState;     /* ZEL_MAP_VHDL to ZEL_MAP_MATCH, ZEL_MAP_PROCESS, or 0 for ZEL_MAP_DEFAULT */
  const char *keywords; /* null, or a revision whose words are reserved in the target beside its own: "1364-2001",
                           "1364-2005", "1800-2017" (Verilog), "1076-2008" (VHDL) */
  int32_t isLenient;    /* non-zero: answers exactly as zelMapName and zelPathMapperEx, which leave out what does not
                           convert */
} zelMappingOptions;

/* A mapping: constant once it is made, and free to be shared by threads. */
typedef const struct zelMappingRecord *zelMapping;

/* A new mapping, to be released with zelFreeMapping; the strings of the options are not kept. Null, and the message
 * (NUL-terminated, cut at messageSize; may be null) names the option that is wrong, with EINVAL; or ENOMEM. */
ZEL_API zelMapping zelCreateMapping(const zelMappingOptions *options, char *message, uint64_t messageSize) ZEL_NOEXCEPT;

/* Releases a mapping; ignores null. */
ZEL_API void zelFreeMapping(zelMapping mapping) ZEL_NOEXCEPT;

/* The text in the target space, under the allocator convention; null with EINVAL for what is refused (zelDiagnose says
 * why) or ENOMEM. Nothing is left out unless the mapping is lenient. */
ZEL_API char *zelMappingApply(zelMapping mapping, const char *text, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;

/* Why the mapping refuses a text, and where; ZEL_REASON_NONE and 0 when it does not. Returns the reason; refusal may be
 * null. */
ZEL_API int32_t zelDiagnose(zelMapping mapping, const char *text, zelRefusal *refusal) ZEL_NOEXCEPT;

/* How a result compares with the text that it was made of, when it is read back as the mapping wrote it. */
enum {
  ZEL_CHECK_SAME = 0,
  ZEL_CHECK_CASE_LOST = 1, /* the same but for capitals */
  ZEL_CHECK_OTHER = 2,     /* another object */
  ZEL_CHECK_UNREADABLE = 3 /* the target space refuses it */
};
ZEL_API int32_t zelMappingCheck(zelMapping mapping, const char *text, const char *result) ZEL_NOEXCEPT;

/* One canonical text of a name or path of the mapping's source, under the allocator convention: equal exactly when
 * zelIdentCmp in the default mapping state calls the objects equal, level by level, with the same indexes. For joins,
 * indexes and tables; it may hold any byte but NUL. Null as zelMappingApply. */
ZEL_API char *zelMappingKey(zelMapping mapping, const char *text, zelAllocFunc alloc, void *context) ZEL_NOEXCEPT;

/* A column of texts in the layout of Arrow's string columns: text i lies in bytes from offset i up to offset i + 1. */
typedef struct zelColumn {
  uint32_t size;       /* of this struct */
  uint32_t offsetBits; /* 32 or 64 */
  uint64_t count;      /* of texts */
  const void *offsets; /* count + 1, from wherever the column begins */
  const char *bytes;
  const uint8_t *validity; /* a bit a text from the lowest of the first byte on, 0 for null; or null: all are valid */
} zelColumn;

/* What zelMapColumn makes of it: the same layout, from offset 0 on. */
typedef struct zelColumnResult {
  uint32_t size;    /* of this struct */
  void *offsets;    /* count + 1 of the input's offsetBits, the caller's */
  uint8_t *reasons; /* count, or null: ZEL_REASON_ of each text, whose result is empty unless it is ZEL_REASON_NONE; a
                       null text has ZEL_REASON_NONE */
  uint32_t *positions; /* count, or null: of the refused texts */
  uint64_t refused;    /* how many */
  char *bytes;         /* the results, grown by grow as they need; at first a block of capacity bytes or null */
  uint64_t capacity;
  uint64_t length;                                          /* of the results in all */
  void *(*grow)(void *block, uint64_t size, void *context); /* as realloc; null stands for realloc itself */
  void *context;
} zelColumnResult;

/* Maps a column in one call, without allocation a text. 0 for success, refused texts or none; ENOMEM when grow fails,
 * EOVERFLOW when the results do not fit 32-bit offsets, EINVAL for a null argument. */
ZEL_API int zelMapColumn(zelMapping mapping, const zelColumn *column, zelColumnResult *result) ZEL_NOEXCEPT;

/* A refused line of a block of lines. */
typedef struct zelLineRefusal {
  uint64_t line;   /* from 0 */
  uint64_t start;  /* where the line begins in the block */
  uint64_t length; /* without its end */
  zelRefusal refusal;
} zelLineRefusal;

/* What zelMapLines makes of a block. */
typedef struct zelLinesResult {
  uint32_t size;            /* of this struct */
  int32_t isKept;           /* non-zero: a refused line stays as it is; otherwise it becomes empty */
  uint64_t lines;           /* how many there were; a rest behind the last end is one, too */
  uint64_t refused;         /* how many of them were refused */
  zelLineRefusal *refusals; /* the first refusalCapacity refused lines, the caller's; or null */
  uint64_t refusalCapacity;
  char *bytes; /* the results, each with its end, as in zelColumnResult */
  uint64_t capacity;
  uint64_t length;
  void *(*grow)(void *block, uint64_t size, void *context);
  void *context;
} zelLinesResult;

/* Maps the lines of a block of text, each ended by the byte end, without allocation a line. The end of a line stands
 * for the white space that ends an escaped identifier, since editors strip it; a carriage return in front of it stays,
 * and an empty line is one. 0, or ENOMEM or EINVAL as zelMapColumn. */
ZEL_API int zelMapLines(zelMapping mapping, const char *text, uint64_t length, char end,
                        zelLinesResult *result) ZEL_NOEXCEPT;

/* ---------------------------------------------------------------------------------------------------------------
 * Files
 *
 * What a file's header declares of its names: the format, and the separators in force, for zelGetHandle, which takes
 * the same 0 where nothing is declared:
 *
 *   "Spef"  *DIVIDER, *DELIMITER (the pin delimiter), *BUS_DELIMITER with one bracket or two
 *   "Spf"   *|DIVIDER, *|DELIMITER, *|BUSBIT of a file with *|DSPF or *|RSPF in front of its netlist
 *   "Sdf"   (DIVIDER c)
 *   "Lef"   DIVIDERCHAR "c" ; BUSBITCHARS "cc" ;
 *   "Def"   the same
 *
 * Comments and strings are those of the format, and so are the cases of its keywords (SPEF tells them apart, the others
 * do not). A separator is one printing ASCII character that is no letter, digit, '_', '"' or backslash. What is not
 * declared in just these forms, or is not complete within the first 65536 bytes, counts as not declared; of several
 * declarations the last counts. Nothing is read behind the header: behind the first net, port or name map of SPEF, the
 * first line of DSPF that is no comment, the first CELL of SDF, the first section of DEF, the first layer, via, site or
 * macro of LEF. LEF and DEF have the same declarations and are told apart by what else they hold up to there, with what
 * stands there; a file with nothing of either has no format.
 */

/* The caller sets size to sizeof(zelSeparators). Later versions may add members behind these. */
typedef struct zelSeparators {
  uint32_t size;
  char pinDelimiter; /* each 0 when the file does not declare it */
  char divider;
  char busOpen;
  char busClose;
} zelSeparators;

/* Reads the beginning of a file, up to 65537 bytes (the last to see whether it goes on), into memory of its own, which
 * it frees. Stores the name of its format, as zelGetSpaceByName takes it (constant), and its separators where the
 * pointers are non-null, and returns 1. 0 otherwise, with nothing stored and errno set: EINVAL for a file of no such
 * format (also one that is packed), for a null fileName or a size too small; ENOMEM; or that of open and read (ENOENT,
 * EACCES, EISDIR, ...). */
ZEL_API int zelReadSeparators(const char *fileName, const char **spaceName, zelSeparators *separators) ZEL_NOEXCEPT;

/* The same of a text of length bytes, which needs no NUL at its end and may hold any bytes. No memory is allocated. */
ZEL_API int zelFindSeparators(const char *text, uint64_t length, const char **spaceName,
                              zelSeparators *separators) ZEL_NOEXCEPT;

#ifdef __cplusplus
}
#endif

#endif
