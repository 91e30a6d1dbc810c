/* A C99 program with the public header and the shared library: maps a name and a path, and frees what it got. */
#include "zel.h"

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

static int is(const char *what, char *result, const char *expected) {
  const int same = result != NULL && strcmp(result, expected) == 0;
  if (!same)
    fprintf(stderr, "%s: \"%s\" instead of \"%s\"\n", what, result != NULL ? result : "(null)", expected);
  free(result);
  return same;
}

int main(void) {
  char buffer[ZEL_MAX_NAME + 2];
  zelRing ring = NULL;
  zelHandle handle = zelGetHandle("Sdf", '.', '.', 0, 0);
  int ok = is("zelMapName", zelMapName("Verilog", "VHDL", "\\a+b ", NULL, NULL), "\\a+b\\");

  ok &=
      is("zelPathMapper", zelPathMapper("top.u1.a[3]", zelVerilogHandle, zelVHDLHandle, 0, NULL, NULL), ":top:u1:a(3)");
  ok &= is("by name", zelPathMapper("top.a[3]", NULL, NULL, 0, "Verilog", "VHDL"), ":top:a(3)");
  ok &= is("zelIdentToSdfWithHandle", zelIdentToSdfWithHandle("Sa.b", NULL, NULL, handle), "a\\.b");
  ok &= zelMapName("Verilog", "VHDL", "a b", NULL, NULL) == NULL;
  ok &= zelIdentToVerilog("IABC", NULL, buffer) == buffer && strcmp(buffer, "abc") == 0;
  ok &= strcmp(zelIdentToVerilog("SModule", zelAllocRing, &ring), "Module") == 0;
  ok &= strcmp(zelVerilogSpace->name, "Verilog") == 0 && zelGetMapState() >= ZEL_MAP_VHDL;
  zelFreeHandle(handle);
  zelFreeRing(&ring);
  return ok ? EXIT_SUCCESS : EXIT_FAILURE;
}
