# Script of CPack, run before the files of each package are packed: Debian has manual pages and changelogs compressed.

file(GLOB_RECURSE files ${CPACK_TEMPORARY_DIRECTORY}/*)
list(FILTER files INCLUDE REGEX "/man/man[0-9]/[^/]*[0-9]$|/changelog$")
foreach(file IN LISTS files)
  execute_process(COMMAND gzip --best --no-name --force ${file} COMMAND_ERROR_IS_FATAL ANY)
endforeach()
