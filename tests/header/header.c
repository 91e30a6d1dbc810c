/* The public header needs nothing before it. */
#include <zel.h>
/* Nor does it mind coming again. */
#include <zel.h>
