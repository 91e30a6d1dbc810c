// The rows of the table for a million names in one call, and for a mapping that is made once.
#ifndef ZEL_BENCH_COLUMNS_H
#define ZEL_BENCH_COLUMNS_H

namespace bench {

// Those whose work holds the word.
void columnRows(const char *wanted);

} // namespace bench

#endif
