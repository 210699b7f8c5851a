// The records of the primitives with straight sides, of the cylinder and of the torus: create, set, get, purge.
#include "records/primitive.hpp"

#include "kxgeom/solids.h"
#include "records/output.hpp"
#include "solids/axis.hpp"

void KX_CALL kx_purge_bodyrev(bodyrev *record) { kx::purge_bodyrev(record); }

block *KX_CALL kx_create_block(void) { return kx::create_primitive<block>("kx_create_block"); }

void KX_CALL kx_set_block(const pnt_3d *center, double size_x, double size_y, double size_z, double axis_x,
                          double axis_y, double axis_z, block *rec) {
  if (rec) *rec = {center ? *center : rec->center, size_x, size_y, size_z, axis_x, axis_y, axis_z};
}

void KX_CALL kx_get_block(pnt_3d *center, double *size_x, double *size_y, double *size_z, double *axis_x,
                          double *axis_y, double *axis_z, const block *rec) {
  if (rec == nullptr) return;
  kx::put<pnt_3d>(center, rec->center);
  kx::put<double>(size_x, rec->size_x);
  kx::put<double>(size_y, rec->size_y);
  kx::put<double>(size_z, rec->size_z);
  kx::put_axis(axis_x, axis_y, axis_z, *rec);
}

void KX_CALL kx_purge_block(block *rec) { kx::release(rec); }

cylinder *KX_CALL kx_create_cylinder(void) { return kx::create_primitive<cylinder>("kx_create_cylinder"); }

void KX_CALL kx_set_cylinder(int32_t host_word, const pnt_3d *center, double diameter_x, double diameter_y,
                             double height, int32_t sectors, double axis_x, double axis_y, double axis_z,
                             cylinder *rec) {
  if (rec)
    *rec = {host_word, center ? *center : rec->center, diameter_x, diameter_y, height, sectors, axis_x, axis_y, axis_z};
}

void KX_CALL kx_get_cylinder(int32_t *host_word, pnt_3d *center, double *diameter_x, double *diameter_y, double *height,
                             int32_t *sectors, double *axis_x, double *axis_y, double *axis_z, const cylinder *rec) {
  if (rec == nullptr) return;
  kx::put<std::int32_t>(host_word, rec->host_word);
  kx::put<pnt_3d>(center, rec->center);
  kx::put<double>(diameter_x, rec->diameter_x);
  kx::put<double>(diameter_y, rec->diameter_y);
  kx::put<double>(height, rec->height);
  kx::put<std::int32_t>(sectors, rec->sectors);
  kx::put_axis(axis_x, axis_y, axis_z, *rec);
}

void KX_CALL kx_purge_cylinder(cylinder *rec) { kx::release(rec); }

torus *KX_CALL kx_create_torus(void) { return kx::create_primitive<torus>("kx_create_torus"); }

void KX_CALL kx_set_torus(int32_t host_word, const pnt_3d *center, double major_radius, double minor_radius,
                          int32_t sectors, int32_t tube_sectors, double axis_x, double axis_y, double axis_z,
                          torus *rec) {
  if (rec)
    *rec = {
        host_word, center ? *center : rec->center, major_radius, minor_radius, sectors, tube_sectors, axis_x, axis_y,
        axis_z};
}

void KX_CALL kx_get_torus(int32_t *host_word, pnt_3d *center, double *major_radius, double *minor_radius,
                          int32_t *sectors, int32_t *tube_sectors, double *axis_x, double *axis_y, double *axis_z,
                          const torus *rec) {
  if (rec == nullptr) return;
  kx::put<std::int32_t>(host_word, rec->host_word);
  kx::put<pnt_3d>(center, rec->center);
  kx::put<double>(major_radius, rec->major_radius);
  kx::put<double>(minor_radius, rec->minor_radius);
  kx::put<std::int32_t>(sectors, rec->sectors);
  kx::put<std::int32_t>(tube_sectors, rec->tube_sectors);
  kx::put_axis(axis_x, axis_y, axis_z, *rec);
}

void KX_CALL kx_purge_torus(torus *rec) { kx::release(rec); }

tetrahedron *KX_CALL kx_create_tetrahedron(void) { return kx::create_primitive<tetrahedron>("kx_create_tetrahedron"); }

void KX_CALL kx_set_tetrahedron(const pnt_3d *center, double size, double axis_x, double axis_y, double axis_z,
                                tetrahedron *rec) {
  if (rec) *rec = {center ? *center : rec->center, size, axis_x, axis_y, axis_z};
}

void KX_CALL kx_get_tetrahedron(pnt_3d *center, double *size, double *axis_x, double *axis_y, double *axis_z,
                                const tetrahedron *rec) {
  if (rec == nullptr) return;
  kx::put<pnt_3d>(center, rec->center);
  kx::put<double>(size, rec->size);
  kx::put_axis(axis_x, axis_y, axis_z, *rec);
}

void KX_CALL kx_purge_tetrahedron(tetrahedron *rec) { kx::release(rec); }

hexahedron *KX_CALL kx_create_hexahedron(void) { return kx::create_primitive<hexahedron>("kx_create_hexahedron"); }

void KX_CALL kx_set_hexahedron(const pnt_3d *center, double size, double axis_x, double axis_y, double axis_z,
                               hexahedron *rec) {
  if (rec) *rec = {center ? *center : rec->center, size, axis_x, axis_y, axis_z};
}

void KX_CALL kx_get_hexahedron(pnt_3d *center, double *size, double *axis_x, double *axis_y, double *axis_z,
                               const hexahedron *rec) {
  if (rec == nullptr) return;
  kx::put<pnt_3d>(center, rec->center);
  kx::put<double>(size, rec->size);
  kx::put_axis(axis_x, axis_y, axis_z, *rec);
}

void KX_CALL kx_purge_hexahedron(hexahedron *rec) { kx::release(rec); }

octahedron *KX_CALL kx_create_octahedron(void) { return kx::create_primitive<octahedron>("kx_create_octahedron"); }

void KX_CALL kx_set_octahedron(const pnt_3d *center, double size, double axis_x, double axis_y, double axis_z,
                               octahedron *rec) {
  if (rec) *rec = {center ? *center : rec->center, size, axis_x, axis_y, axis_z};
}

void KX_CALL kx_get_octahedron(pnt_3d *center, double *size, double *axis_x, double *axis_y, double *axis_z,
                               const octahedron *rec) {
  if (rec == nullptr) return;
  kx::put<pnt_3d>(center, rec->center);
  kx::put<double>(size, rec->size);
  kx::put_axis(axis_x, axis_y, axis_z, *rec);
}

void KX_CALL kx_purge_octahedron(octahedron *rec) { kx::release(rec); }

dodecahedron *KX_CALL kx_create_dodecahedron(void) {
  return kx::create_primitive<dodecahedron>("kx_create_dodecahedron");
}

void KX_CALL kx_set_dodecahedron(const pnt_3d *center, double size, double axis_x, double axis_y, double axis_z,
                                 dodecahedron *rec) {
  if (rec) *rec = {center ? *center : rec->center, size, axis_x, axis_y, axis_z};
}

void KX_CALL kx_get_dodecahedron(pnt_3d *center, double *size, double *axis_x, double *axis_y, double *axis_z,
                                 const dodecahedron *rec) {
  if (rec == nullptr) return;
  kx::put<pnt_3d>(center, rec->center);
  kx::put<double>(size, rec->size);
  kx::put_axis(axis_x, axis_y, axis_z, *rec);
}

void KX_CALL kx_purge_dodecahedron(dodecahedron *rec) { kx::release(rec); }

icosahedron *KX_CALL kx_create_icosahedron(void) { return kx::create_primitive<icosahedron>("kx_create_icosahedron"); }

void KX_CALL kx_set_icosahedron(const pnt_3d *center, double size, double axis_x, double axis_y, double axis_z,
                                icosahedron *rec) {
  if (rec) *rec = {center ? *center : rec->center, size, axis_x, axis_y, axis_z};
}

void KX_CALL kx_get_icosahedron(pnt_3d *center, double *size, double *axis_x, double *axis_y, double *axis_z,
                                const icosahedron *rec) {
  if (rec == nullptr) return;
  kx::put<pnt_3d>(center, rec->center);
  kx::put<double>(size, rec->size);
  kx::put_axis(axis_x, axis_y, axis_z, *rec);
}

void KX_CALL kx_purge_icosahedron(icosahedron *rec) { kx::release(rec); }
