// Which build of the library a file holds: strings FILE | grep '@(#)'

#include "datestampFields.h"

extern const char vrnIdentString[];
DATESTAMP_KEPT const char vrnIdentString[] = "@(#)$VRN: ZEL version " DATESTAMP_FIELDS " $";
