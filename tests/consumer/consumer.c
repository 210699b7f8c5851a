/* A C program built against the installed library. KXLINK names the installed message folder. */
#include <kxgeom.h>
#include <stdio.h>
#include <string.h>

int main(void) {
  char text[144] = "";
  poly_2d *point = kx_create_poly_2d();
  list_hdr *list = ll_create_list();
  circle_2d circle = {0, 0, 10};
  double angle = 0, x = 0, y = 0;
  int32_t seqnr = -1;

  kx_initgeometry();
  if (kx_get_message(23, text) != 23 || strncmp(text, "(23): ", 6) != 0 || strlen(text) < 16) {
    printf("consumer: no message 23, but: %s\n", text);
    return 1;
  }
  angle = kx_arctan(-1, 0);
  kx_set_poly_2d(10, 0, 4, point);
  kx_get_poly_2d(&seqnr, &x, &y, point);
  if (angle != 180 || seqnr != 4 || x != 10 || y != 0) return printf("consumer: wrong values\n"), 1;
  if (ll_add_list_item(list, 1, point, KX_POLY_2D) != 1 || kx_arcpnts_2d(&circle, 0, 90, 0.5, list) != 0 ||
      ll_get_pnt2d(list, 1).y != 10 || kx_purge_polygon(list) != 0)
    return printf("consumer: wrong list\n"), 1;
  printf("consumer: %s", text);
  return 0;
}
