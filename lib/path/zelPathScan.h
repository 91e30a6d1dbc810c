// The name scanners: where the name that starts at a place of a path's text ends. They pass neither the end of the text
// nor a byte of 128 or above. The handle gives the separators where a file may redefine them.
#ifndef ZEL_PATH_ZELPATHSCAN_H
#define ZEL_PATH_ZELPATHSCAN_H

#include "core/zel.h"

using zeliScanner = const char *(const char *text, zelHandle handle);

zeliScanner zeliScanVlog;
zeliScanner zeliScanKirraHDL;
zeliScanner zeliScanVHDL;
zeliScanner zeliScanORKA;
zeliScanner zeliScanTessel;
zeliScanner zeliScanFlatTessel;
zeliScanner zeliScanSpice;
zeliScanner zeliScanKirra;
zeliScanner zeliScanLef;
zeliScanner zeliScanDef;
zeliScanner zeliScanSdf;
zeliScanner zeliScanSpf;
zeliScanner zeliScanSpef;
zeliScanner zeliScanGcf;

#endif
