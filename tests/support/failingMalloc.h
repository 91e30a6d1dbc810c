// malloc and calloc that fail on request, for all that is linked into a test program: the library and the tests, but
// not what they share with others.
#ifndef SUPPORT_FAILINGMALLOC_H
#define SUPPORT_FAILINGMALLOC_H

namespace failingMalloc {
// Of this thread: the calls that are served before one fails; none fails while it is negative.
extern thread_local int left;
extern thread_local int failures;
} // namespace failingMalloc

#endif
