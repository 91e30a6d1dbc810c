// malloc and calloc of the test program that fail on request.
#ifndef SUPPORT_FAILINGMALLOC_H
#define SUPPORT_FAILINGMALLOC_H

namespace failingMalloc {
// Of this thread: the calls that are served before one fails; none fails while it is negative.
extern thread_local int left;
extern thread_local int failures;
bool isInPlace(); // not where a tool's own malloc stands in the way
} // namespace failingMalloc

#endif
