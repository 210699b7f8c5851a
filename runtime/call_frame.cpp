// What every call shares: initialisation, and memory access for hosts without pointers.
#include "kxgeom/runtime.h"

void KX_CALL kx_initgeometry(void) {}

double KX_CALL kx_set_doublevb(double *pointer, double value) { return pointer ? *pointer = value : 0.0; }

int32_t KX_CALL kx_set_longvb(int32_t *pointer, int32_t value) { return pointer ? *pointer = value : 0; }

double KX_CALL kx_get_doublevb(const double *pointer) { return pointer ? *pointer : 0.0; }

int32_t KX_CALL kx_get_longvb(const int32_t *pointer) { return pointer ? *pointer : 0; }
