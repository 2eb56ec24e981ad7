/* A program in C99: prints the enthalpy of steam at 10 MPa and 773.15 K, and why 3000 K has none.
 */
#include <calvex/calvex.h>
#include <stdio.h>

int main(void) {
  calvex_engine* engine;
  double given[] = {10.0, 773.15}, h;
  char text[200];
  if (calvex_create(&engine) != CALVEX_OK) return 1;
  if (calvex_call_named(engine, "HPT", CALVEX_TERMINATED, given, 2, &h, 1) == CALVEX_OK) {
    printf("%.6f kJ/kg\n", h);
  }
  given[1] = 3000.0;
  if (calvex_call_named(engine, "HPT", CALVEX_TERMINATED, given, 2, &h, 1) != CALVEX_OK) {
    calvex_last_error(engine, text, sizeof text, NULL);
    printf("%s\n", text);
  }
  return calvex_destroy(engine);
}
