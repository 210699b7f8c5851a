/* A host that knows nothing of the library but its file name, as a Visual Basic program does:
 *
 *   dll_host KXGEOM32.DEF
 *
 * Loads KXGEOM32.dll by name, finds the names of the list, calls through the plain addresses, reads records as bytes
 * and answers the message boxes. Neither the project's headers nor its import library are used here, on purpose. */
#include <direct.h>
#include <stdarg.h>
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <windows.h>

static HMODULE library;
static int checks, failures;

#define CHECK(condition)                                                                                               \
  (++checks, (condition) ? (void)0                                                                                     \
                         : (void)(++failures, printf("%s:%d: %s (stack %% 16 = %u)\n", __FILE__, __LINE__, #condition, \
                                                     (unsigned)call.offset)))

static void *address(const char *name) {
  void *found = (void *)(uintptr_t)GetProcAddress(library, name);
  if (!found) printf("%s: not exported under this name\n", name), ++failures;
  return found;
}

/* ---- calls with a measured stack ---- */

/* One call: its argument words, what the stack pointer shall be modulo 16 at the call instruction, and what came of it.
 */
static struct {
  void *function;
  const uint32_t *words;
  uint32_t count, offset;
  uint32_t cleaned, eax;
  int32_t gives_double;
  double st0;
} call;

void measured_call(void *);
__asm__(
    ".globl _measured_call\n"
    "_measured_call:\n"
    "  pushl %ebp\n  movl %esp, %ebp\n  pushl %ebx\n  pushl %esi\n  pushl %edi\n"
    "  movl 8(%ebp), %ebx\n"
    "  movl 8(%ebx), %ecx\n" /* room for the words, then the wanted alignment */
    "  leal (,%ecx,4), %eax\n"
    "  subl %eax, %esp\n  subl $32, %esp\n  andl $-16, %esp\n  addl 12(%ebx), %esp\n"
    "  movl 4(%ebx), %esi\n  movl %esp, %edi\n  cld\n  rep movsl\n"
    "  movl %esp, %esi\n"
    "  call *(%ebx)\n"
    "  movl %esp, %ecx\n  subl %esi, %ecx\n  movl %ecx, 16(%ebx)\n  movl %eax, 20(%ebx)\n"
    "  cmpl $0, 24(%ebx)\n  je 1f\n  fstpl 32(%ebx)\n"
    "1: leal -12(%ebp), %esp\n  popl %edi\n  popl %esi\n  popl %ebx\n  popl %ebp\n  ret\n");

/* The kinds of arguments are letters: d a double, i one word. The function must take exactly these off the stack. */
static void invoke(const char *name, const char *kinds, va_list arguments) {
  uint32_t words[32], count = 0;
  for (; *kinds; ++kinds) {
    if (*kinds == 'd') {
      const double value = va_arg(arguments, double);
      memcpy(words + count, &value, 8);
      count += 2;
    } else {
      words[count++] = va_arg(arguments, uint32_t);
    }
  }
  call.function = address(name);
  if (!call.function) return;
  call.words = words;
  call.count = count;
  measured_call(&call);
  ++checks;
  if (call.cleaned != 4 * count)
    printf("%s: takes %u bytes off the stack, not %u\n", name, call.cleaned, 4 * count), ++failures;
}

static uint32_t I(const char *name, const char *kinds, ...) {
  va_list arguments;
  va_start(arguments, kinds);
  call.gives_double = 0;
  invoke(name, kinds, arguments);
  va_end(arguments);
  return call.eax;
}

static double D(const char *name, const char *kinds, ...) {
  va_list arguments;
  va_start(arguments, kinds);
  call.gives_double = 1;
  invoke(name, kinds, arguments);
  va_end(arguments);
  return call.st0;
}

/* ---- bytes of records ---- */

static int32_t int_at(const void *record, int offset) {
  int32_t value;
  memcpy(&value, (const char *)record + offset, 4);
  return value;
}

static double double_at(const void *record, int offset) {
  double value;
  memcpy(&value, (const char *)record + offset, 8);
  return value;
}

static void *pointer_at(const void *record, int offset) { return (void *)(uintptr_t)int_at(record, offset); }

/* True when the record has exactly this many bytes: the next ones are still as `guard` left them. */
static char record[256];
static void guard(void) { memset(record, 0x5a, sizeof record); }
static int ends_at(int size) { return int_at(record, size) == 0x5a5a5a5a && int_at(record, size - 4) != 0x5a5a5a5a; }

/* ---- message boxes ---- */

static volatile LONG boxes; /* shown and closed so far */
static char box_text[512];

static BOOL CALLBACK take_text(HWND child, LPARAM unused) {
  char class_name[32] = "", text[512] = "";
  (void)unused;
  GetClassNameA(child, class_name, sizeof class_name);
  GetWindowTextA(child, text, sizeof text);
  if (_stricmp(class_name, "Static") == 0 && text[0]) strcpy(box_text, text);
  return TRUE;
}

/* The user: reads every box with the library's title and presses OK. */
static DWORD WINAPI user(LPVOID unused) {
  (void)unused;
  for (;; Sleep(10)) {
    const HWND box = FindWindowA("#32770", "KX-CAD Message");
    if (!box) continue;
    box_text[0] = '\0';
    EnumChildWindows(box, take_text, 0);
    const HWND ok = GetDlgItem(box, IDOK) ? GetDlgItem(box, IDOK) : GetDlgItem(box, IDCANCEL);
    if (!box_text[0] || !ok) continue;
    InterlockedIncrement(&boxes);
    SendMessageA(ok, BM_CLICK, 0, 0);
    while (IsWindow(box)) Sleep(1);
  }
  return 0;
}

static DWORD WINAPI watchdog(LPVOID unused) {
  (void)unused;
  Sleep(60000);
  printf("dll_host: not done after 60 seconds\n");
  fflush(stdout);
  TerminateProcess(GetCurrentProcess(), 3);
  return 0;
}

static void message_boxes(const char *with_file, const char *without_file) {
  LONG before = boxes;
  box_text[0] = '\0';
  CHECK(I("kx_memerr", "i", "kx_create_pnt_2d") == 1);
  CHECK(boxes == before + 1 && strcmp(box_text, "Memory Error: kx_create_pnt_2d") == 0);

  _putenv(with_file);
  before = boxes;
  box_text[0] = '\0';
  CHECK(D("kx_secant", "d", 1.5707963268) == 0.0);
  CHECK(boxes == before + 1 && strcmp(box_text, "BADPARMS&msgrec[i]\nLocation: kx_secant Error Nr: 23") == 0);

  _putenv(without_file);
  before = boxes;
  CHECK(D("kx_secant", "d", 1.5707963268) == 0.0 && boxes == before);
}

/* ---- names ---- */

static void names(const char *path) {
  static const char *const pairs[][2] = {{"kx_set_pnt_2dvb", "kx_set_pnt_2d"},
                                         {"kx_get_pnt_3dvb", "kx_get_pnt_3d"},
                                         {"kx_strcpyvb1", "kx_strcpy"},
                                         {"kx_strcpyvb2", "kx_strcpy"},
                                         {"kx_get_arc_2dvb", "kx_get_arc_2d"},
                                         {"kx_set_line_3dvb", "kx_set_line_3d"},
                                         {"kx_get_xypolyheapvb", "kx_get_xypolyheap"}};
  char line[256], name[128], target[128];
  int found = 0;
  FILE *list = fopen(path, "r");
  CHECK(list != NULL);
  while (list && fgets(line, sizeof line, list)) {
    const int parts = sscanf(line, " %127[a-z0-9A-Z_] = %127[a-z0-9A-Z_]", name, target);
    if (parts < 1 || strcmp(name, "LIBRARY") == 0 || strcmp(name, "EXPORTS") == 0) continue;
    ++found;
    CHECK(address(name) != NULL);
    if (parts == 2 && address(name) != address(target)) printf("%s is not %s\n", name, target), ++failures;
  }
  CHECK(found > 100);
  if (list) fclose(list);
  for (size_t i = 0; i < sizeof pairs / sizeof *pairs; ++i) CHECK(address(pairs[i][0]) == address(pairs[i][1]));
  CHECK(!GetProcAddress(library, "kx_imax@12") && !GetProcAddress(library, "_kx_imax@12"));
}

/* ---- calls ---- */

static void plain_values(void) {
  double stored = 0, r1 = 0, r2 = 0;
  I("kx_initgeometry", "");
  CHECK(I("kx_strlen", "i", "four") == 4);
  CHECK(I("kx_imax", "iii", 3, -7, 9) == 9);
  CHECK(I("kx_parmzero", "dd", 1e-9, 1e-7) == 1);
  CHECK(I("kx_parmeq", "ddd", 0.2, 0.1, 0.1) == 1);
  CHECK(I("kx_quadratic_eq", "dddii", 1.0, -3.0, 2.0, &r1, &r2) == 0 && r1 == 2 && r2 == 1);
  CHECK(D("kx_set_doublevb", "id", &stored, 2.5) == 2.5 && stored == 2.5);
  CHECK(D("kx_sumsqrdparms", "dd", 3.0, 4.0) == 25.0);
}

static void records(void) {
  int32_t number = 0;
  double x = 0, y = 0, z = 0;
  guard();
  I("kx_set_pnt_2d", "ddi", 1.5, -2.5, record);
  CHECK(ends_at(16) && double_at(record, 0) == 1.5 && double_at(record, 8) == -2.5);
  guard();
  I("kx_set_poly_2d", "ddii", 1.5, -2.5, 7, record);
  CHECK(ends_at(20) && int_at(record, 0) == 7 && double_at(record, 4) == 1.5 && double_at(record, 12) == -2.5);
  guard();
  I("kx_set_poly_3dvb", "dddii", 1.5, -2.5, 3.5, 7, record);
  CHECK(ends_at(28) && int_at(record, 0) == 7 && double_at(record, 4) == 1.5 && double_at(record, 20) == 3.5);
  I("kx_get_poly_3d", "iiiii", &number, &x, &y, &z, record);
  CHECK(number == 7 && x == 1.5 && y == -2.5 && z == 3.5);
  guard();
  I("kx_set_arc_2d", "dddiddi", 1.0, 2.0, 3.0, 4, 5.0, 6.0, record);
  CHECK(ends_at(44) && double_at(record, 16) == 3 && int_at(record, 24) == 4 && double_at(record, 28) == 5 &&
        double_at(record, 36) == 6);
  guard();
  I("kx_set_line_3d", "ddddddi", 1.0, 2.0, 3.0, 4.0, 5.0, 6.0, record);
  CHECK(ends_at(48) && double_at(record, 40) == 6);
}

static int compared;
static int32_t __cdecl compare(void *data, void *key) {
  ++compared;
  return double_at(data, 0) == double_at(key, 0);
}

static void lists(void) {
  const double wanted = 3.0;
  void *list = (void *)(uintptr_t)I("ll_create_list", "");
  void *first = (void *)(uintptr_t)I("kx_create_pnt_2d", ""), *second = (void *)(uintptr_t)I("kx_create_pnt_2d", "");
  I("kx_set_pnt_2d", "ddi", 1.0, 2.0, first);
  I("kx_set_pnt_2d", "ddi", 3.0, 4.0, second);
  CHECK(I("ll_add_list_item", "iiii", list, 1, first, 50) == 1);
  CHECK(I("ll_add_list_item", "iiii", list, 1, second, 50) == 1);
  const void *head = pointer_at(list, 0), *tail = pointer_at(list, 4);
  CHECK(head != tail && pointer_at(list, 8) == tail && int_at(list, 12) == 2);
  CHECK(pointer_at(head, 0) == first && int_at(head, 4) == 50 && pointer_at(head, 12) == tail);
  CHECK(pointer_at(tail, 0) == second && pointer_at(tail, 8) == head);

  /* records by value: the caller passes room for them in front of the arguments and gets its address back */
  guard();
  CHECK(I("ll_get_pnt2d", "iii", record, list, 1) == (uint32_t)(uintptr_t)record);
  CHECK(ends_at(16) && double_at(record, 0) == 3 && double_at(record, 8) == 4);
  guard();
  CHECK(I("ll_get_pnt3d", "iii", record, list, 0) == (uint32_t)(uintptr_t)record);
  CHECK(ends_at(24) && double_at(record, 0) == 1 && double_at(record, 8) == 2 && double_at(record, 16) == 0);

  /* the compare function's caller takes its arguments off the stack */
  compared = 0;
  CHECK(I("ll_search_list", "iiiiii", list, 0, 1, 2, compare, &wanted) == 0);
  CHECK(I("ll_search_list", "iiiiii", list, 1, 1, 2, compare, &wanted) == 1 && compared == 2);
  CHECK(I("kx_purge_polygon", "i", list) == 0);
}

/* Functions with vectors among their locals. */
static void arithmetic(void) {
  const double circle[3] = {0, 0, 100}, matrix[9] = {2, 0, 0, 0, 4, 0, 10, 20, 1};
  double inverse[9], point[2] = {1, 1};
  CHECK(I("kx_getinversematrix2d", "ii", matrix, inverse) == 0);
  I("kx_mat33mult", "ii", matrix, inverse);
  CHECK(inverse[0] == 1 && inverse[4] == 1 && inverse[6] == 0 && inverse[8] == 1);
  I("kx_transformpnt2d", "iii", matrix, point, point);
  CHECK(point[0] == 12 && point[1] == 24);
  void *list = (void *)(uintptr_t)I("ll_create_list", "");
  CHECK(I("kx_arcpnts_2d", "idddi", circle, 0.0, 90.0, 0.5, list) == 0 && int_at(list, 12) > 4);
  void *curve = (void *)(uintptr_t)I("kx_create_curve", "");
  CHECK(double_at(curve, 20) == 1 && double_at(curve, 28) == 0 && double_at(curve, 140) == 1);
  for (int i = 0; i < 5; ++i) CHECK(int_at(pointer_at(curve, 148 + 4 * i), 12) == 0);
  CHECK(I("kx_def_ubspl_curve2d", "ii", list, curve) == 0 && int_at(curve, 0) == 83);
  CHECK(I("kx_mk_ucurve2d", "id", curve, 0.25) == 0 && double_at(curve, 12) == 0.25);
  CHECK(int_at(pointer_at(curve, 160), 12) > 10);
  CHECK(I("kx_purge_curve", "i", curve) == 0);
  CHECK(I("ll_purge_list", "i", list) == 0);
}

int main(int count, char **arguments) {
  char folder[MAX_PATH], path[2 * MAX_PATH], with_file[2 * MAX_PATH], without_file[2 * MAX_PATH];
  CreateThread(NULL, 0, watchdog, NULL, 0, NULL);
  CreateThread(NULL, 0, user, NULL, 0, NULL);
  library = LoadLibraryA("KXGEOM32.dll");
  if (count != 2 || !library) return printf("usage: dll_host KXGEOM32.DEF, with KXGEOM32.dll beside it\n"), 2;

  /* A folder of its own for KXLINK: with the message file in MSG, and without. */
  GetTempPathA(sizeof folder, folder);
  snprintf(path, sizeof path, "%skx-dll-host-%lu", folder, GetCurrentProcessId());
  snprintf(with_file, sizeof with_file, "KXLINK=%s", path);
  snprintf(without_file, sizeof without_file, "KXLINK=%s\\MSG", path);
  _mkdir(path);
  strcat(path, "\\MSG");
  _mkdir(path);
  strcat(path, "\\KXMSG.DAT");
  FILE *file = fopen(path, "w");
  if (!file) return printf("cannot write %s\n", path), 2;
  fputs("0 No text.\nBADPARMS A parameter is out of range.\n", file);
  fclose(file);

  names(arguments[1]);
  for (call.offset = 0; call.offset < 16; call.offset += 4) {
    plain_values();
    records();
    lists();
    arithmetic();
    message_boxes(with_file, without_file);
  }
  remove(path);
  printf("dll_host: %d checks, %d failed\n", checks, failures);
  return failures != 0;
}
