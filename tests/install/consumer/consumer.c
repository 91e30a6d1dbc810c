/* Maps a name and a path; with an argument, writes the names of all spaces that have paths. */
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <zel.h>

/* A space has paths when its handle is built in; for those of files LEF's is copied, anew for each call. */
static void listPathSpaces(void) {
  const char *const *name = zelGetAllSpaceNames();
  for (; *name != NULL; ++name) {
    zelHandle handle = zelGetHandle(*name, 0, 0, 0, 0);
    zelHandle again = zelGetHandle(*name, 0, 0, 0, 0);
    if (handle != NULL && handle == again)
      puts(*name);
    zelFreeHandle(handle);
    zelFreeHandle(again);
  }
}

int main(int argc, char *argv[]) {
  char buffer[ZEL_MAX_NAME + 1];
  char *path = NULL;
  (void)argv;
  if (argc > 1) {
    listPathSpaces();
    return 0;
  }
  if (zelMapName("Verilog", "Spef", "\\u1/Pad ", NULL, buffer) != buffer)
    return 1;
  path = zelPathMapper("top.u1.d[3]", NULL, NULL, 0, "Verilog", "VHDL");
  if (path == NULL)
    return 1;
  printf("%s and %s\n", buffer, path);
  free(path);
  return 0;
}
