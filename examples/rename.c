/* Renames the names of a netlist, one a line on standard input, from Verilog to SPICE. Names that are not legal Verilog
 * are reported and left out. */
#include <stdio.h>
#include <string.h>
#include <zel.h>

int main(void) {
  char line[ZEL_MAX_NAME + 2];
  int refused = 0;
  while (fgets(line, sizeof line, stdin) != NULL) {
    char name[ZEL_MAX_NAME + 1]; /* the caller's buffer: nothing to free */
    const size_t length = strcspn(line, "\n");
    int rest = (unsigned char)line[length];
    line[length] = '\0';
    while (length > ZEL_MAX_NAME && rest != '\n' && rest != EOF)
      rest = getchar(); /* of a line that is too long for a name */
    if (zelIsLegalVerilog(line) && zelMapName("Verilog", "Spice", line, NULL, name) != NULL) {
      printf("%s\t%s\n", line, name);
    } else {
      fprintf(stderr, "not a Verilog name: %s\n", line);
      refused = 1;
    }
  }
  return refused;
}
