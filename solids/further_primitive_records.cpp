// The records of the round and swept primitives, of the prism and of the pyramid: create, set, get, purge.
#include "kxgeom/solids.h"
#include "records/output.hpp"
#include "records/primitive.hpp"
#include "solids/axis.hpp"

sphere *KX_CALL kx_create_sphere(void) { return kx::create_primitive<sphere>("kx_create_sphere"); }

void KX_CALL kx_set_sphere(const pnt_3d *center, double radius, int32_t sectors, int32_t stacks, sphere *rec) {
  if (rec) *rec = {center ? *center : rec->center, radius, sectors, stacks};
}

void KX_CALL kx_get_sphere(pnt_3d *center, double *radius, int32_t *sectors, int32_t *stacks, const sphere *rec) {
  if (rec == nullptr) return;
  kx::put<pnt_3d>(center, rec->center);
  kx::put<double>(radius, rec->radius);
  kx::put<std::int32_t>(sectors, rec->sectors);
  kx::put<std::int32_t>(stacks, rec->stacks);
}

void KX_CALL kx_purge_sphere(sphere *rec) { kx::release(rec); }

ellipsoid *KX_CALL kx_create_ellipsoid(void) { return kx::create_primitive<ellipsoid>("kx_create_ellipsoid"); }

void KX_CALL kx_set_ellipsoid(int32_t host_word, const pnt_3d *center, double diameter_x, double diameter_y,
                              double diameter_z, int32_t sectors, int32_t stacks, double axis_x, double axis_y,
                              double axis_z, ellipsoid *rec) {
  if (rec)
    *rec = {
        host_word, center ? *center : rec->center, diameter_x, diameter_y, diameter_z, sectors, stacks, axis_x, axis_y,
        axis_z};
}

void KX_CALL kx_get_ellipsoid(int32_t *host_word, pnt_3d *center, double *diameter_x, double *diameter_y,
                              double *diameter_z, int32_t *sectors, int32_t *stacks, double *axis_x, double *axis_y,
                              double *axis_z, const ellipsoid *rec) {
  if (rec == nullptr) return;
  kx::put<std::int32_t>(host_word, rec->host_word);
  kx::put<pnt_3d>(center, rec->center);
  kx::put<double>(diameter_x, rec->diameter_x);
  kx::put<double>(diameter_y, rec->diameter_y);
  kx::put<double>(diameter_z, rec->diameter_z);
  kx::put<std::int32_t>(sectors, rec->sectors);
  kx::put<std::int32_t>(stacks, rec->stacks);
  kx::put_axis(axis_x, axis_y, axis_z, *rec);
}

void KX_CALL kx_purge_ellipsoid(ellipsoid *rec) { kx::release(rec); }

prism *KX_CALL kx_create_prism(void) { return kx::create_primitive<prism>("kx_create_prism"); }

void KX_CALL kx_set_prism(const pnt_3d *center, double diameter_x, double diameter_y, double height, double shift_x,
                          double shift_y, int32_t sectors, double axis_x, double axis_y, double axis_z, prism *rec) {
  if (rec)
    *rec = {center ? *center : rec->center,
            diameter_x,
            diameter_y,
            height,
            shift_x,
            shift_y,
            sectors,
            axis_x,
            axis_y,
            axis_z};
}

void KX_CALL kx_get_prism(pnt_3d *center, double *diameter_x, double *diameter_y, double *height, double *shift_x,
                          double *shift_y, int32_t *sectors, double *axis_x, double *axis_y, double *axis_z,
                          const prism *rec) {
  if (rec == nullptr) return;
  kx::put<pnt_3d>(center, rec->center);
  kx::put<double>(diameter_x, rec->diameter_x);
  kx::put<double>(diameter_y, rec->diameter_y);
  kx::put<double>(height, rec->height);
  kx::put<double>(shift_x, rec->shift_x);
  kx::put<double>(shift_y, rec->shift_y);
  kx::put<std::int32_t>(sectors, rec->sectors);
  kx::put_axis(axis_x, axis_y, axis_z, *rec);
}

void KX_CALL kx_purge_prism(prism *rec) { kx::release(rec); }

cone *KX_CALL kx_create_cone(void) { return kx::create_primitive<cone>("kx_create_cone"); }

void KX_CALL kx_set_cone(int32_t host_word, const pnt_3d *center, double bottom_diameter, double top_diameter,
                         double height, int32_t sectors, double axis_x, double axis_y, double axis_z, cone *rec) {
  if (rec)
    *rec = {host_word, center ? *center : rec->center, bottom_diameter, top_diameter, height, sectors, axis_x, axis_y,
            axis_z};
}

void KX_CALL kx_get_cone(int32_t *host_word, pnt_3d *center, double *bottom_diameter, double *top_diameter,
                         double *height, int32_t *sectors, double *axis_x, double *axis_y, double *axis_z,
                         const cone *rec) {
  if (rec == nullptr) return;
  kx::put<std::int32_t>(host_word, rec->host_word);
  kx::put<pnt_3d>(center, rec->center);
  kx::put<double>(bottom_diameter, rec->bottom_diameter);
  kx::put<double>(top_diameter, rec->top_diameter);
  kx::put<double>(height, rec->height);
  kx::put<std::int32_t>(sectors, rec->sectors);
  kx::put_axis(axis_x, axis_y, axis_z, *rec);
}

void KX_CALL kx_purge_cone(cone *rec) { kx::release(rec); }

hcylinder *KX_CALL kx_create_hcylinder(void) { return kx::create_primitive<hcylinder>("kx_create_hcylinder"); }

void KX_CALL kx_set_hcylinder(int32_t host_word, const pnt_3d *center, double outer_x, double outer_y, double inner_x,
                              double inner_y, double height, int32_t sectors, double axis_x, double axis_y,
                              double axis_z, hcylinder *rec) {
  if (rec)
    *rec = {
        host_word, center ? *center : rec->center, outer_x, outer_y, inner_x, inner_y, height, sectors, axis_x, axis_y,
        axis_z};
}

void KX_CALL kx_get_hcylinder(int32_t *host_word, pnt_3d *center, double *outer_x, double *outer_y, double *inner_x,
                              double *inner_y, double *height, int32_t *sectors, double *axis_x, double *axis_y,
                              double *axis_z, const hcylinder *rec) {
  if (rec == nullptr) return;
  kx::put<std::int32_t>(host_word, rec->host_word);
  kx::put<pnt_3d>(center, rec->center);
  kx::put<double>(outer_x, rec->outer_x);
  kx::put<double>(outer_y, rec->outer_y);
  kx::put<double>(inner_x, rec->inner_x);
  kx::put<double>(inner_y, rec->inner_y);
  kx::put<double>(height, rec->height);
  kx::put<std::int32_t>(sectors, rec->sectors);
  kx::put_axis(axis_x, axis_y, axis_z, *rec);
}

void KX_CALL kx_purge_hcylinder(hcylinder *rec) { kx::release(rec); }

hyperboloid *KX_CALL kx_create_hyperboloid(void) { return kx::create_primitive<hyperboloid>("kx_create_hyperboloid"); }

void KX_CALL kx_set_hyperboloid(int32_t host_word, const pnt_3d *center, double diameter_x, double diameter_y,
                                double diameter_z, double bottom, double top, int32_t sectors, int32_t stacks,
                                double axis_x, double axis_y, double axis_z, hyperboloid *rec) {
  if (rec)
    *rec = {host_word,  center ? *center : rec->center,
            diameter_x, diameter_y,
            diameter_z, bottom,
            top,        sectors,
            stacks,     axis_x,
            axis_y,     axis_z};
}

void KX_CALL kx_get_hyperboloid(int32_t *host_word, pnt_3d *center, double *diameter_x, double *diameter_y,
                                double *diameter_z, double *bottom, double *top, int32_t *sectors, int32_t *stacks,
                                double *axis_x, double *axis_y, double *axis_z, const hyperboloid *rec) {
  if (rec == nullptr) return;
  kx::put<std::int32_t>(host_word, rec->host_word);
  kx::put<pnt_3d>(center, rec->center);
  kx::put<double>(diameter_x, rec->diameter_x);
  kx::put<double>(diameter_y, rec->diameter_y);
  kx::put<double>(diameter_z, rec->diameter_z);
  kx::put<double>(bottom, rec->bottom);
  kx::put<double>(top, rec->top);
  kx::put<std::int32_t>(sectors, rec->sectors);
  kx::put<std::int32_t>(stacks, rec->stacks);
  kx::put_axis(axis_x, axis_y, axis_z, *rec);
}

void KX_CALL kx_purge_hyperboloid(hyperboloid *rec) { kx::release(rec); }

paraboloid *KX_CALL kx_create_paraboloid(void) { return kx::create_primitive<paraboloid>("kx_create_paraboloid"); }

void KX_CALL kx_set_paraboloid(const pnt_3d *center, double diameter_x, double diameter_y, double height,
                               int32_t sectors, int32_t stacks, double axis_x, double axis_y, double axis_z,
                               paraboloid *rec) {
  if (rec)
    *rec = {center ? *center : rec->center, diameter_x, diameter_y, height, sectors, stacks, axis_x, axis_y, axis_z};
}

void KX_CALL kx_get_paraboloid(pnt_3d *center, double *diameter_x, double *diameter_y, double *height, int32_t *sectors,
                               int32_t *stacks, double *axis_x, double *axis_y, double *axis_z, const paraboloid *rec) {
  if (rec == nullptr) return;
  kx::put<pnt_3d>(center, rec->center);
  kx::put<double>(diameter_x, rec->diameter_x);
  kx::put<double>(diameter_y, rec->diameter_y);
  kx::put<double>(height, rec->height);
  kx::put<std::int32_t>(sectors, rec->sectors);
  kx::put<std::int32_t>(stacks, rec->stacks);
  kx::put_axis(axis_x, axis_y, axis_z, *rec);
}

void KX_CALL kx_purge_paraboloid(paraboloid *rec) { kx::release(rec); }

pyramid *KX_CALL kx_create_pyramid(void) { return kx::create_primitive<pyramid>("kx_create_pyramid"); }

void KX_CALL kx_set_pyramid(const pnt_3d *center, double size_x, double size_y, double height, double axis_x,
                            double axis_y, double axis_z, pyramid *rec) {
  if (rec) *rec = {center ? *center : rec->center, size_x, size_y, height, axis_x, axis_y, axis_z};
}

void KX_CALL kx_get_pyramid(pnt_3d *center, double *size_x, double *size_y, double *height, double *axis_x,
                            double *axis_y, double *axis_z, const pyramid *rec) {
  if (rec == nullptr) return;
  kx::put<pnt_3d>(center, rec->center);
  kx::put<double>(size_x, rec->size_x);
  kx::put<double>(size_y, rec->size_y);
  kx::put<double>(height, rec->height);
  kx::put_axis(axis_x, axis_y, axis_z, *rec);
}

void KX_CALL kx_purge_pyramid(pyramid *rec) { kx::release(rec); }

bodyrev *KX_CALL kx_create_bodyrev(void) { return kx::create_primitive<bodyrev>("kx_create_bodyrev"); }

void KX_CALL kx_set_bodyrev(const pnt_3d *center, list_hdr *profile, double start_angle, double sweep_angle,
                            int32_t sectors, double axis_x, double axis_y, double axis_z, bodyrev *rec) {
  if (rec) *rec = {center ? *center : rec->center, profile, start_angle, sweep_angle, sectors, axis_x, axis_y, axis_z};
}

void KX_CALL kx_get_bodyrev(pnt_3d *center, list_hdr **profile, double *start_angle, double *sweep_angle,
                            int32_t *sectors, double *axis_x, double *axis_y, double *axis_z, const bodyrev *rec) {
  if (rec == nullptr) return;
  kx::put<pnt_3d>(center, rec->center);
  kx::put<list_hdr *>(profile, rec->profile);
  kx::put<double>(start_angle, rec->start_angle);
  kx::put<double>(sweep_angle, rec->sweep_angle);
  kx::put<std::int32_t>(sectors, rec->sectors);
  kx::put_axis(axis_x, axis_y, axis_z, *rec);
}

extbody *KX_CALL kx_create_extbody(void) { return kx::create_primitive<extbody>("kx_create_extbody"); }

void KX_CALL kx_set_extbody(const pnt_3d *center, list_hdr *profile, double height, double axis_x, double axis_y,
                            double axis_z, extbody *rec) {
  if (rec) *rec = {center ? *center : rec->center, profile, height, axis_x, axis_y, axis_z};
}

void KX_CALL kx_get_extbody(pnt_3d *center, list_hdr **profile, double *height, double *axis_x, double *axis_y,
                            double *axis_z, const extbody *rec) {
  if (rec == nullptr) return;
  kx::put<pnt_3d>(center, rec->center);
  kx::put<list_hdr *>(profile, rec->profile);
  kx::put<double>(height, rec->height);
  kx::put_axis(axis_x, axis_y, axis_z, *rec);
}

void KX_CALL kx_purge_extbody(extbody *rec) { kx::purge_bodyrev(rec); }
