/* Visibility and calling convention of every exported function. */
#ifndef KXGEOM_EXPORT_H
#define KXGEOM_EXPORT_H

#if defined(_WIN32)
#define KX_API
#define KX_CALL __stdcall
#else
#define KX_API __attribute__((visibility("default")))
#define KX_CALL
#endif

#endif
