// Vectors of space: on vector records, and on points that stand for vectors.
#include "geometry/space_line.hpp"
#include "geometry/status.hpp"
#include "kxgeom/geometry.h"

using kx::vec3;

namespace {

void put(vector_3d &record, vec3 v) { record = kx::whole_record(v); }
void put(pnt_3d &record, vec3 v) { record = kx::record(v); }

// The components alone: direction and length stay as they are.
void put_components(vector_3d &record, vec3 v) {
  record.i = v.x;
  record.j = v.y;
  record.k = v.z;
}
void put_components(pnt_3d &record, vec3 v) { put(record, v); }

// A result whose length is 1, not 1 but for rounding.
void put_unit(vector_3d &record, vec3 v) { record = kx::whole_record(v, 1.0); }
void put_unit(pnt_3d &record, vec3 v) { put(record, v); }

template <class R>
int32_t cross_product(const R *u, const R *v, R *out) {
  if (!u || !v || !out) return kx::wrong_argument;
  put_components(*out, cross(kx::value(*u), kx::value(*v)));
  return kx::done;
}

template <class R>
int32_t multiply(const R *v, double factor, R *out) {
  if (!v || !out) return kx::wrong_argument;
  put(*out, factor * kx::value(*v));
  return kx::done;
}

template <class R>
int32_t make_unit(const R *v, R *out) {
  if (!v || !out) return kx::wrong_argument;
  const vec3 u = kx::value(*v);
  if (!kx::has_direction(u)) return kx::no_direction;
  put_unit(*out, u / length(u));
  return kx::done;
}

template <class R>
int32_t make_normal(const R *u, const R *v, R *out) {
  if (!u || !v || !out) return kx::wrong_argument;
  const vec3 a = kx::value(*u), b = kx::value(*v);
  if (!kx::has_direction(a) || !kx::has_direction(b) || kx::parallel(a, b)) return kx::no_direction;
  const vec3 n = cross(a / length(a), b / length(b));
  put_unit(*out, n / length(n));
  return kx::done;
}

// The part of u along another vector, or what is left of u without it.
template <class R>
int32_t project(const R *u, const R *onto, bool rest, R *out) {
  if (!u || !onto || !out) return kx::wrong_argument;
  const vec3 v = kx::value(*u), along = kx::value(*onto);
  if (!kx::has_direction(along)) return kx::no_direction;
  const vec3 unit = along / length(along), part = dot(v, unit) * unit;
  put(*out, rest ? v - part : part);
  return kx::done;
}

}  // namespace

// The direction and length of the result are another call's business: faces store normals without them.
int32_t KX_CALL kx_crossproduct(const vector_3d *u, const vector_3d *v, vector_3d *out) {
  return cross_product(u, v, out);
}

double KX_CALL kx_dotproduct(const vector_3d *u, const vector_3d *v) {
  return u && v ? dot(kx::value(*u), kx::value(*v)) : 0.0;
}

double KX_CALL kx_vectorlength(vector_3d *v) {
  if (!v) return 0.0;
  v->length = length(kx::value(*v));
  return v->length;
}

double KX_CALL kx_vectordirection(vector_3d *v) {
  if (!v) return 0.0;
  v->direction = kx::azimuth(kx::value(*v));
  return v->direction;
}

double KX_CALL kx_vector_len(const vector_3d *v) { return v ? length(kx::value(*v)) : 0.0; }

double KX_CALL kx_vector_sqlen(const vector_3d *v) { return v ? dot(kx::value(*v), kx::value(*v)) : 0.0; }

int32_t KX_CALL kx_vectoradd(const vector_3d *u, const vector_3d *v, vector_3d *out) {
  if (!u || !v || !out) return kx::wrong_argument;
  put(*out, kx::value(*u) + kx::value(*v));
  return kx::done;
}

int32_t KX_CALL kx_vector_sub(const vector_3d *u, const vector_3d *v, vector_3d *out) {
  if (!u || !v || !out) return kx::wrong_argument;
  put(*out, kx::value(*u) - kx::value(*v));
  return kx::done;
}

int32_t KX_CALL kx_vector_neg(const vector_3d *v, vector_3d *out) { return multiply(v, -1.0, out); }

int32_t KX_CALL kx_vectormult(const vector_3d *v, double factor, vector_3d *out) { return multiply(v, factor, out); }

int32_t KX_CALL kx_unitvector(const vector_3d *v, vector_3d *out) { return make_unit(v, out); }

int32_t KX_CALL kx_vector_normalize(vector_3d *v) { return make_unit(v, v); }

int32_t KX_CALL kx_normalvector3d(const vector_3d *u, const vector_3d *v, vector_3d *out) {
  return make_normal(u, v, out);
}

int32_t KX_CALL kx_projectvector(const vector_3d *u, const vector_3d *onto, vector_3d *out) {
  return project(u, onto, false, out);
}

int32_t KX_CALL kx_projectednormal(const vector_3d *u, const vector_3d *onto, vector_3d *out) {
  return project(u, onto, true, out);
}

int32_t KX_CALL kx_line_to_vector_3d(pnt_3d from, pnt_3d to, vector_3d *out) {
  if (!out) return kx::wrong_argument;
  const vec3 v = kx::value(to) - kx::value(from);
  if (kx::vanishes(v)) return kx::coincident;
  put(*out, v);
  return kx::done;
}

int32_t KX_CALL kx_vector_pnt(const vector_3d *v, double t, pnt_3d *pnt) {
  if (!v || !pnt) return kx::wrong_argument;
  *pnt = kx::record(t * kx::value(*v));
  return kx::done;
}

int32_t KX_CALL kx_get_point_on_line(const vector_3d *u, const vector_3d *v, double t, pnt_3d *pnt) {
  if (!u || !v || !pnt) return kx::wrong_argument;
  *pnt = kx::record(t * (kx::value(*u) + kx::value(*v)));
  return kx::done;
}

int32_t KX_CALL kx_crossproduct_3d(const pnt_3d *u, const pnt_3d *v, pnt_3d *out) { return cross_product(u, v, out); }

double KX_CALL kx_vectorlength_3d(const pnt_3d *v) { return v ? length(kx::value(*v)) : 0.0; }

int32_t KX_CALL kx_vectormult_3d(const pnt_3d *v, double factor, pnt_3d *out) { return multiply(v, factor, out); }

int32_t KX_CALL kx_unitvector_3d(const pnt_3d *v, pnt_3d *out) { return make_unit(v, out); }

int32_t KX_CALL kx_normalvector_3d(const pnt_3d *u, const pnt_3d *v, pnt_3d *out) { return make_normal(u, v, out); }

int32_t KX_CALL kx_projectvector_3d(const pnt_3d *u, const pnt_3d *onto, pnt_3d *out) {
  return project(u, onto, false, out);
}

int32_t KX_CALL kx_projectednormal_3d(const pnt_3d *u, const pnt_3d *onto, pnt_3d *out) {
  return project(u, onto, true, out);
}
