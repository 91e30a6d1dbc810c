# Script: writes OUTPUT from datestampFields.h.in, given SOURCE_DIR and RELEASE.

# In UTC, and SOURCE_DATE_EPOCH instead of now where it is set.
string(TIMESTAMP DATE "%m/%d/%Y" UTC)
string(TIMESTAMP TIME "%H:%M" UTC)

# Only this tree's own checkout counts, not one that this tree is unpacked in.
set(TAG "")
if(EXISTS ${SOURCE_DIR}/.git)
  execute_process(
    COMMAND git -C ${SOURCE_DIR} rev-parse --verify --quiet --short=7 HEAD
    OUTPUT_VARIABLE TAG
    OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
endif()
if(NOT TAG)
  set(TAG release)
endif()

configure_file(${CMAKE_CURRENT_LIST_DIR}/datestampFields.h.in ${OUTPUT} @ONLY)
# An unchanged header is not rewritten; without a new time it would stay older than its inputs.
file(TOUCH ${OUTPUT})
