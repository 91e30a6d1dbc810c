/* A C99 program with nothing but the public header: maps a name and a path, in every kind of memory. */
#include <zel.h>

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

int main(void) {
  char buffer[ZEL_MAX_NAME + 2];
  zelRing ring = NULL;
  zelHandle handle = zelGetHandle("Sdf", '.', '.', 0, 0);
  char *pin = zelIdentToSdfWithHandle("Su1.Pad", zelAllocRing, &ring, handle);
  char *path = zelPathMapper("top.u1.d[3]", zelVerilogHandle, zelVHDLHandle, 0, NULL, NULL);
  int fails = pin == NULL || strcmp(pin, "u1\\.Pad") != 0 || path == NULL;
  fails += zelMapName("Verilog", "Spef", "\\u1/Pad ", NULL, buffer) != buffer;
  fails += zelMapName("Verilog", "VHDL", "a b", NULL, NULL) != NULL || strcmp(zelVerilogSpace->name, "Verilog") != 0;
  if (fails == 0)
    printf("%s and %s\n", buffer, path);
  free(path);
  zelFreeHandle(handle);
  zelFreeRing(&ring);
  return fails;
}
