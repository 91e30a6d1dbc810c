// Which build of the tool a file holds: strings FILE | grep '@(#)'

#include "datestampFields.h"

extern const char VersionIdent[];
extern const char SubVersion[];
DATESTAMP_KEPT const char VersionIdent[] = "@(#)$VRN: version " DATESTAMP_FIELDS " $";
DATESTAMP_KEPT const char SubVersion[] = "sub-version R&D PRIVATE";
