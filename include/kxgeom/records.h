/* The records of points, lines, shapes and numbers, and the lists and arrays of them.
 *
 * One family for every record: kx_create makes a zeroed record that the caller owns, kx_set stores the values given
 * first into the record given last, kx_get reads them in the order of the fields, kx_purge frees the record. The names
 * that end in vb (kx_set_pnt_2dvb ...) are second names of the same functions, for hosts that declare them so.
 */
#ifndef KXGEOM_RECORDS_H
#define KXGEOM_RECORDS_H

#include "kxgeom/export.h"
#include "kxgeom/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- points ---- */

/**
 * Makes a plane point record, every field 0.
 * @return the record, owned by the caller and freed by kx_purge_pnt_2d; null after the memory message
 *   "kx_create_pnt_2d"
 */
KX_API pnt_2d *KX_CALL kx_create_pnt_2d(void);

/**
 * Stores the values of a plane point.
 * @param[in] x,y  the values
 * @param[out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_pnt_2d(double x, double y, pnt_2d *rec);

/**
 * Reads the fields of a plane point.
 * @param[out] x,y  the fields, in their order in the record; a null one is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_pnt_2d(double *x, double *y, const pnt_2d *rec);

/**
 * Frees a plane point record.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_pnt_2d(pnt_2d *rec);

/**
 * Makes a space point record, every field 0.
 * @return the record, owned by the caller and freed by kx_purge_pnt_3d; null after the memory message
 *   "kx_create_pnt_3d"
 */
KX_API pnt_3d *KX_CALL kx_create_pnt_3d(void);

/**
 * Stores the values of a space point.
 * @param[in] x,y,z  the values
 * @param[out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_pnt_3d(double x, double y, double z, pnt_3d *rec);

/**
 * Reads the fields of a space point.
 * @param[out] x,y,z  the fields, in their order in the record; a null one is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_pnt_3d(double *x, double *y, double *z, const pnt_3d *rec);

/**
 * Frees a space point record.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_pnt_3d(pnt_3d *rec);

/**
 * Makes a plane polygon point record, every field 0.
 * @return the record, owned by the caller and freed by kx_purge_poly_2d; null after the memory message
 *   "kx_create_poly_2d"
 */
KX_API poly_2d *KX_CALL kx_create_poly_2d(void);

/**
 * Stores the values of a plane polygon point.
 * @param[in] x,y,seqnr  the values, seqnr the number within the polygon
 * @param[out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_poly_2d(double x, double y, int32_t seqnr, poly_2d *rec);

/**
 * Reads the fields of a plane polygon point.
 * @param[out] seqnr,x,y  the fields, in their order in the record; a null one is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_poly_2d(int32_t *seqnr, double *x, double *y, const poly_2d *rec);

/**
 * Frees a plane polygon point record.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_poly_2d(poly_2d *rec);

/**
 * Makes a space polygon point record, every field 0.
 * @return the record, owned by the caller and freed by kx_purge_poly_3d; null after the memory message
 *   "kx_create_poly_3D"
 */
KX_API poly_3d *KX_CALL kx_create_poly_3d(void);

/**
 * Stores the values of a space polygon point.
 * @param[in] x,y,z,seqnr  the values, seqnr the number within the polygon
 * @param[out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_poly_3d(double x, double y, double z, int32_t seqnr, poly_3d *rec);

/**
 * Reads the fields of a space polygon point.
 * @param[out] seqnr,x,y,z  the fields, in their order in the record; a null one is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_poly_3d(int32_t *seqnr, double *x, double *y, double *z, const poly_3d *rec);

/**
 * Frees a space polygon point record.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_poly_3d(poly_3d *rec);
/**
 * Sets each coordinate that is 0 within 1e-7 to 0.
 * @param[in,out] pnt  the point; null does nothing
 */
KX_API void KX_CALL kx_set_zeropnt_2d(pnt_2d *pnt);

/**
 * Sets each coordinate that is 0 within 1e-7 to 0.
 * @param[in,out] pnt  the point; null does nothing
 */
KX_API void KX_CALL kx_set_zeropnt_3d(pnt_3d *pnt);

/* ---- vectors and lines ---- */

/**
 * Makes a plane segment record, every field 0.
 * @return the record, owned by the caller and freed by kx_purge_line_2d; null after the memory message
 *   "kx_create_line_2d"
 */
KX_API line_2d *KX_CALL kx_create_line_2d(void);

/**
 * Stores the values of a plane segment.
 * @param[in] x1,y1,x2,y2  the values
 * @param[out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_line_2d(double x1, double y1, double x2, double y2, line_2d *rec);

/**
 * Reads the fields of a plane segment.
 * @param[out] x1,y1,x2,y2  the fields, in their order in the record; a null one is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_line_2d(double *x1, double *y1, double *x2, double *y2, const line_2d *rec);

/**
 * Frees a plane segment record.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_line_2d(line_2d *rec);

/**
 * Makes a space segment record, every field 0.
 * @return the record, owned by the caller and freed by kx_purge_line_3d; null after the memory message
 *   "kx_create_line_3d"
 */
KX_API line_3d *KX_CALL kx_create_line_3d(void);

/**
 * Stores the values of a space segment.
 * @param[in] x1,y1,z1,x2,y2,z2  the values
 * @param[out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_line_3d(double x1, double y1, double z1, double x2, double y2, double z2, line_3d *rec);

/**
 * Reads the fields of a space segment.
 * @param[out] x1,y1,z1,x2,y2,z2  the fields, in their order in the record; a null one is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_line_3d(double *x1, double *y1, double *z1, double *x2, double *y2, double *z2,
                                   const line_3d *rec);

/**
 * Frees a space segment record.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_line_3d(line_3d *rec);

/**
 * Makes a line in implicit form record, every field 0.
 * @return the record, owned by the caller and freed by kx_purge_ile_2d; null after the memory message
 *   "kx_create_ile_2d"
 */
KX_API ile_2d *KX_CALL kx_create_ile_2d(void);

/**
 * Stores the values of a line in implicit form.
 * @param[in] a,b,c  the values
 * @param[out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_ile(double a, double b, double c, ile_2d *rec);

/**
 * Stores the values of a line in implicit form. Second name of kx_set_ile.
 * @param[in] a,b,c  the values
 * @param[out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_ile_2d(double a, double b, double c, ile_2d *rec);

/**
 * Reads the fields of a line in implicit form.
 * @param[out] a,b,c  the fields, in their order in the record; a null one is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_ile(double *a, double *b, double *c, const ile_2d *rec);

/**
 * Reads the fields of a line in implicit form. Second name of kx_get_ile.
 * @param[out] a,b,c  the fields, in their order in the record; a null one is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_ile_2d(double *a, double *b, double *c, const ile_2d *rec);

/**
 * Frees a line in implicit form record.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_ile_2d(ile_2d *rec);

/**
 * Makes a plane line in parametric form record, every field 0.
 * @return the record, owned by the caller and freed by kx_purge_ple_2d; null after the memory message
 *   "kx_create_ple_2d"
 */
KX_API ple_2d *KX_CALL kx_create_ple_2d(void);

/**
 * Stores the values of a plane line in parametric form. The arguments pair each start value with its step, unlike the
 * fields.
 * @param[in] x0,dx,y0,dy  the values
 * @param[out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_ple(double x0, double dx, double y0, double dy, ple_2d *rec);

/**
 * Stores the values of a plane line in parametric form. The arguments pair each start value with its step, unlike the
 * fields. Second name of kx_set_ple.
 * @param[in] x0,dx,y0,dy  the values
 * @param[out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_ple_2d(double x0, double dx, double y0, double dy, ple_2d *rec);

/**
 * Reads the fields of a plane line in parametric form.
 * @param[out] x0,y0,dx,dy  the fields, in their order in the record; a null one is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_ple(double *x0, double *y0, double *dx, double *dy, const ple_2d *rec);

/**
 * Reads the fields of a plane line in parametric form. Second name of kx_get_ple.
 * @param[out] x0,y0,dx,dy  the fields, in their order in the record; a null one is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_ple_2d(double *x0, double *y0, double *dx, double *dy, const ple_2d *rec);

/**
 * Frees a plane line in parametric form record.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_ple_2d(ple_2d *rec);

/**
 * Makes a space line in parametric form record, every field 0.
 * @return the record, owned by the caller and freed by kx_purge_ple_3d; null after the memory message
 *   "kx_create_ple_3d"
 */
KX_API ple_3d *KX_CALL kx_create_ple_3d(void);

/**
 * Stores the values of a space line in parametric form. The arguments pair each start value with its step, unlike the
 * fields.
 * @param[in] x0,dx,y0,dy,z0,dz  the values
 * @param[out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_ples(double x0, double dx, double y0, double dy, double z0, double dz, ple_3d *rec);

/**
 * Stores the values of a space line in parametric form. The arguments pair each start value with its step, unlike the
 * fields. Second name of kx_set_ples.
 * @param[in] x0,dx,y0,dy,z0,dz  the values
 * @param[out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_ple_3d(double x0, double dx, double y0, double dy, double z0, double dz, ple_3d *rec);

/**
 * Reads the fields of a space line in parametric form.
 * @param[out] x0,y0,z0,dx,dy,dz  the fields, in their order in the record; a null one is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_ples(double *x0, double *y0, double *z0, double *dx, double *dy, double *dz,
                                const ple_3d *rec);

/**
 * Reads the fields of a space line in parametric form. Second name of kx_get_ples.
 * @param[out] x0,y0,z0,dx,dy,dz  the fields, in their order in the record; a null one is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_ple_3d(double *x0, double *y0, double *z0, double *dx, double *dy, double *dz,
                                  const ple_3d *rec);

/**
 * Frees a space line in parametric form record.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_ple_3d(ple_3d *rec);

/**
 * Makes a plane record, every field 0.
 * @return the record, owned by the caller and freed by kx_purge_planeeq; null after the memory message
 *   "kx_create_planeeq"
 */
KX_API planeeq *KX_CALL kx_create_planeeq(void);

/**
 * Stores the values of a plane.
 * @param[in] a,b,c,d  the values
 * @param[out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_planeeq(double a, double b, double c, double d, planeeq *rec);

/**
 * Reads the fields of a plane.
 * @param[out] a,b,c,d  the fields, in their order in the record; a null one is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_planeeq(double *a, double *b, double *c, double *d, const planeeq *rec);

/**
 * Frees a plane record.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_planeeq(planeeq *rec);

/**
 * Makes a plane vector record, every field 0.
 * @return the record, owned by the caller and freed by kx_purge_vector_2d; null after the memory message
 *   "kx_create_vector_2d"
 */
KX_API vector_2d *KX_CALL kx_create_vector_2d(void);

/**
 * Stores the values of a plane vector. Stores the components first, then direction and length; none is computed from
 * another.
 * @param[in] i,j,direction,length  the values
 * @param[out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_vector_2d(double i, double j, double direction, double length, vector_2d *rec);

/**
 * Reads the fields of a plane vector.
 * @param[out] direction,length,i,j  the fields, in their order in the record; a null one is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_vector_2d(double *direction, double *length, double *i, double *j, const vector_2d *rec);

/**
 * Frees a plane vector record.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_vector_2d(vector_2d *rec);

/**
 * Makes a space vector record, every field 0.
 * @return the record, owned by the caller and freed by kx_purge_vector_3d; null after the memory message
 *   "kx_create_vector_3d"
 */
KX_API vector_3d *KX_CALL kx_create_vector_3d(void);

/**
 * Stores the values of a space vector. Stores the components first, then direction and length; none is computed from
 * another.
 * @param[in] i,j,k,direction,length  the values
 * @param[out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_vector_3d(double i, double j, double k, double direction, double length, vector_3d *rec);

/**
 * Reads the fields of a space vector.
 * @param[out] direction,length,i,j,k  the fields, in their order in the record; a null one is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_vector_3d(double *direction, double *length, double *i, double *j, double *k,
                                     const vector_3d *rec);

/**
 * Frees a space vector record.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_vector_3d(vector_3d *rec);
/* ---- coordinates ---- */

/**
 * Makes a point in cylindrical coordinates record, every field 0.
 * @return the record, owned by the caller and freed by kx_purge_cylcoord; null after the memory message
 *   "kx_create_cylcoord"
 */
KX_API cylcoord *KX_CALL kx_create_cylcoord(void);

/**
 * Stores the values of a point in cylindrical coordinates.
 * @param[in] r,theta,z  the values
 * @param[out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_cylcoord(double r, double theta, double z, cylcoord *rec);

/**
 * Reads the fields of a point in cylindrical coordinates.
 * @param[out] r,theta,z  the fields, in their order in the record; a null one is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_cylcoord(double *r, double *theta, double *z, const cylcoord *rec);

/**
 * Frees a point in cylindrical coordinates record.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_cylcoord(cylcoord *rec);

/**
 * Makes a point in spherical coordinates record, every field 0.
 * @return the record, owned by the caller and freed by kx_purge_sphercoord; null after the memory message
 *   "kx_create_sphercoord"
 */
KX_API sphercoord *KX_CALL kx_create_sphercoord(void);

/**
 * Stores the values of a point in spherical coordinates.
 * @param[in] r,theta,phi  the values
 * @param[out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_sphercoord(double r, double theta, double phi, sphercoord *rec);

/**
 * Reads the fields of a point in spherical coordinates.
 * @param[out] r,theta,phi  the fields, in their order in the record; a null one is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_sphercoord(double *r, double *theta, double *phi, const sphercoord *rec);

/**
 * Frees a point in spherical coordinates record.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_sphercoord(sphercoord *rec);

/**
 * Makes a point in direction coordinates record, every field 0.
 * @return the record, owned by the caller and freed by kx_purge_polarcoord; null after the memory message
 *   "kx_create_polarcoord"
 */
KX_API polarcoord *KX_CALL kx_create_polarcoord(void);

/**
 * Stores the values of a point in direction coordinates.
 * @param[in] r,alpha,beta,gamma  the values
 * @param[out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_polarcoord(double r, double alpha, double beta, double gamma, polarcoord *rec);

/**
 * Reads the fields of a point in direction coordinates.
 * @param[out] r,alpha,beta,gamma  the fields, in their order in the record; a null one is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_polarcoord(double *r, double *alpha, double *beta, double *gamma, const polarcoord *rec);

/**
 * Frees a point in direction coordinates record.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_polarcoord(polarcoord *rec);
/* ---- shapes ---- */

/**
 * Makes a plane rectangle record, every field 0.
 * @return the record, owned by the caller and freed by kx_purge_rect_2d; null after the memory message
 *   "kx_create_rect_2d"
 */
KX_API rect_2d *KX_CALL kx_create_rect_2d(void);

/**
 * Stores the values of a plane rectangle.
 * @param[in] x1,y1,x2,y2  the values
 * @param[out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_rect_2d(double x1, double y1, double x2, double y2, rect_2d *rec);

/**
 * Reads the fields of a plane rectangle.
 * @param[out] x1,y1,x2,y2  the fields, in their order in the record; a null one is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_rect_2d(double *x1, double *y1, double *x2, double *y2, const rect_2d *rec);

/**
 * Frees a plane rectangle record.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_rect_2d(rect_2d *rec);

/**
 * Makes a box record, every field 0.
 * @return the record, owned by the caller and freed by kx_purge_rect_3d; null after the memory message
 *   "kx_create_rect_3d"
 */
KX_API rect_3d *KX_CALL kx_create_rect_3d(void);

/**
 * Stores the values of a box.
 * @param[in] x1,y1,z1,x2,y2,z2  the values
 * @param[out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_rect_3d(double x1, double y1, double z1, double x2, double y2, double z2, rect_3d *rec);

/**
 * Reads the fields of a box.
 * @param[out] x1,y1,z1,x2,y2,z2  the fields, in their order in the record; a null one is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_rect_3d(double *x1, double *y1, double *z1, double *x2, double *y2, double *z2,
                                   const rect_3d *rec);

/**
 * Frees a box record.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_rect_3d(rect_3d *rec);

/**
 * Makes a plane triangle record, every field 0.
 * @return the record, owned by the caller and freed by kx_purge_triag_2d; null after the memory message
 *   "kx_create_triag_2d"
 */
KX_API triag_2d *KX_CALL kx_create_triag_2d(void);

/**
 * Stores the values of a plane triangle.
 * @param[in] x1,y1,x2,y2,x3,y3  the values
 * @param[out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_triag_2d(double x1, double y1, double x2, double y2, double x3, double y3, triag_2d *rec);

/**
 * Reads the fields of a plane triangle.
 * @param[out] x1,y1,x2,y2,x3,y3  the fields, in their order in the record; a null one is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_triag_2d(double *x1, double *y1, double *x2, double *y2, double *x3, double *y3,
                                    const triag_2d *rec);

/**
 * Frees a plane triangle record.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_triag_2d(triag_2d *rec);

/**
 * Makes a triangle of sides and angles record, every field 0.
 * @return the record, owned by the caller and freed by kx_purge_triangle; null after the memory message
 *   "kx_create_triangle"
 */
KX_API triangle *KX_CALL kx_create_triangle(void);

/**
 * Stores the values of a triangle of sides and angles.
 * @param[in] a,b,c,alpha,beta,gamma  the values
 * @param[out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_triangle(double a, double b, double c, double alpha, double beta, double gamma,
                                    triangle *rec);

/**
 * Reads the fields of a triangle of sides and angles.
 * @param[out] a,b,c,alpha,beta,gamma  the fields, in their order in the record; a null one is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_triangle(double *a, double *b, double *c, double *alpha, double *beta, double *gamma,
                                    const triangle *rec);

/**
 * Frees a triangle of sides and angles record.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_triangle(triangle *rec);

/**
 * Makes a circle record, every field 0.
 * @return the record, owned by the caller and freed by kx_purge_circle_2d; null after the memory message
 *   "kx_create_circle_2d"
 */
KX_API circle_2d *KX_CALL kx_create_circle_2d(void);

/**
 * Stores the values of a circle.
 * @param[in] x,y,r  the values
 * @param[out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_circle_2d(double x, double y, double r, circle_2d *rec);

/**
 * Stores the values of a circle. Second name of kx_set_circle_2d.
 * @param[in] x,y,r  the values
 * @param[out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_circle(double x, double y, double r, circle_2d *rec);

/**
 * Reads the fields of a circle.
 * @param[out] x,y,r  the fields, in their order in the record; a null one is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_circle_2d(double *x, double *y, double *r, const circle_2d *rec);

/**
 * Frees a circle record.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_circle_2d(circle_2d *rec);

/**
 * Makes an ellipse record, every field 0.
 * @return the record, owned by the caller and freed by kx_purge_ellipse_2d; null after the memory message
 *   "kx_create_ellipse_2d"
 */
KX_API ellipse_2d *KX_CALL kx_create_ellipse_2d(void);

/**
 * Stores the values of an ellipse. The larger semi-axis is stored as a, the smaller as b; equal within tolerance, they
 * stay as given. value_1 and value_2 are not written.
 * @param[in] x,y,a,b  the values
 * @param[out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_ellipse_2d(double x, double y, double a, double b, ellipse_2d *rec);

/**
 * Reads the fields of an ellipse.
 * @param[out] x,y,a,b,value_1,value_2  the fields, in their order in the record; a null one is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_ellipse_2d(double *x, double *y, double *a, double *b, double *value_1, double *value_2,
                                      const ellipse_2d *rec);

/**
 * Frees an ellipse record.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_ellipse_2d(ellipse_2d *rec);

/**
 * Makes an arc record, every field 0.
 * @return the record, owned by the caller and freed by kx_purge_arc_2d; null after the memory message
 *   "kx_create_arc_2d"
 */
KX_API arc_2d *KX_CALL kx_create_arc_2d(void);

/**
 * Stores the values of an arc. Values are stored word for word.
 * @param[in] x,y,r,mode,value_1,value_2  the values
 * @param[out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_arc_2d(double x, double y, double r, int32_t mode, double value_1, double value_2,
                                  arc_2d *rec);

/**
 * Reads the fields of an arc.
 * @param[out] x,y,r,mode,value_1,value_2  the fields, in their order in the record; a null one is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_arc_2d(double *x, double *y, double *r, int32_t *mode, double *value_1, double *value_2,
                                  const arc_2d *rec);

/**
 * Frees an arc record.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_arc_2d(arc_2d *rec);

/**
 * Makes a parabola record, every field 0.
 * @return the record, owned by the caller and freed by kx_purge_parabola_2d; null after the memory message
 *   "kx_create_parabola_2d"
 */
KX_API parabola_2d *KX_CALL kx_create_parabola_2d(void);

/**
 * Stores the values of a parabola.
 * @param[in] x,y,p,mode,value_1  the values
 * @param[out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_parabola_2d(double x, double y, double p, int32_t mode, double value_1, parabola_2d *rec);

/**
 * Reads the fields of a parabola.
 * @param[out] x,y,p,mode,value_1  the fields, in their order in the record; a null one is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_parabola_2d(double *x, double *y, double *p, int32_t *mode, double *value_1,
                                       const parabola_2d *rec);

/**
 * Frees a parabola record.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_parabola_2d(parabola_2d *rec);

/**
 * Makes a hyperbola record, every field 0.
 * @return the record, owned by the caller and freed by kx_purge_hyperbola_2d; null after the memory message
 *   "kx_create_hyperbola_2d"
 */
KX_API hyperbola_2d *KX_CALL kx_create_hyperbola_2d(void);

/**
 * Stores the values of a hyperbola.
 * @param[in] x,y,a,b,mode,value_1  the values
 * @param[out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_hyperbola_2d(double x, double y, double a, double b, int32_t mode, double value_1,
                                        hyperbola_2d *rec);

/**
 * Reads the fields of a hyperbola.
 * @param[out] x,y,a,b,mode,value_1  the fields, in their order in the record; a null one is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_hyperbola_2d(double *x, double *y, double *a, double *b, int32_t *mode, double *value_1,
                                        const hyperbola_2d *rec);

/**
 * Frees a hyperbola record.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_hyperbola_2d(hyperbola_2d *rec);

/**
 * Makes a drawing record record, every field 0.
 * @return the record, owned by the caller and freed by kx_purge_dwg_rec_2d; null after the memory message
 *   "kx_create_dwg_rec_2d"
 */
KX_API dwg_rec_2d *KX_CALL kx_create_dwg_rec_2d(void);

/**
 * Stores the values of a drawing record. The third argument's eight bytes are stored as they are over the two
 * integers: one entry serves every record that starts with three doubles.
 * @param[in] x,y,values  the values
 * @param[out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_dwgrec_2d(double x, double y, double values, dwg_rec_2d *rec);

/**
 * Reads the fields of a drawing record.
 * @param[out] x,y,value_1,value_2  the fields, in their order in the record; a null one is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_dwgrec_2d(double *x, double *y, int32_t *value_1, int32_t *value_2, const dwg_rec_2d *rec);

/**
 * Frees a drawing record record.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_dwg_rec_2d(dwg_rec_2d *rec);
/* ---- numbers and statistics ---- */

/**
 * Makes a real number record, every field 0.
 * @return the record, owned by the caller and freed by kx_purge_rnumber; null after the memory message
 *   "kx_create_rnumber"
 */
KX_API rnumber *KX_CALL kx_create_rnumber(void);

/**
 * Stores the values of a real number.
 * @param[in] value  the values
 * @param[out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_rnumber(double value, rnumber *rec);

/**
 * Reads the fields of a real number.
 * @param[out] value  the fields, in their order in the record; a null one is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_rnumber(double *value, const rnumber *rec);

/**
 * Frees a real number record.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_rnumber(rnumber *rec);

/**
 * Makes an integer record, every field 0.
 * @return the record, owned by the caller and freed by kx_purge_inumber; null after the memory message
 *   "kx_create_inumber"
 */
KX_API inumber *KX_CALL kx_create_inumber(void);

/**
 * Stores the values of an integer.
 * @param[in] value  the values
 * @param[out] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_set_inumber(int32_t value, inumber *rec);

/**
 * Reads the fields of an integer.
 * @param[out] value  the fields, in their order in the record; a null one is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_inumber(int32_t *value, const inumber *rec);

/**
 * Frees an integer record.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_inumber(inumber *rec);
/**
 * Makes a plane matrix record of the matrix store, every field 0.
 * @return the record, owned by the caller and freed by kx_purge_matrixrec2d; null after the memory message
 *   "kx_create_matrixrec2d"
 */
KX_API matrixrec2d *KX_CALL kx_create_matrixrec2d(void);

/**
 * Frees a plane matrix record.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_matrixrec2d(matrixrec2d *rec);

/**
 * Makes a space matrix record of the matrix store, every field 0.
 * @return the record, owned by the caller and freed by kx_purge_matrixrec3d; null after the memory message
 *   "kx_create_matrixrec3d"
 */
KX_API matrixrec3d *KX_CALL kx_create_matrixrec3d(void);

/**
 * Frees a space matrix record.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_matrixrec3d(matrixrec3d *rec);

/**
 * Makes the statistics record of a plane curve sample, every field 0.
 * @return the record, owned by the caller and freed by kx_purge_curve_stats_2d; null after the memory message
 *   "kx_create_curve_stats_2d"
 */
KX_API curve_stats_2d *KX_CALL kx_create_curve_stats_2d(void);

/**
 * Reads the statistics of a plane curve sample.
 * @param[out] t  parameter
 * @param[out] tangent,second,normal  the three vectors; a null output is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_curve_stats_2d(double *t, vector_2d *tangent, vector_2d *second, vector_2d *normal,
                                          const curve_stats_2d *rec);

/**
 * Frees the statistics record of a plane curve sample.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_curve_stats_2d(curve_stats_2d *rec);

/**
 * Makes the statistics record of a space curve sample, every field 0.
 * @return the record, owned by the caller and freed by kx_purge_curve_stats_3d; null after the memory message
 *   "kx_create_curve_stats_3d"
 */
KX_API curve_stats_3d *KX_CALL kx_create_curve_stats_3d(void);

/**
 * Reads the statistics of a space curve sample.
 * @param[out] t  parameter
 * @param[out] tangent,second,normal  the three vectors; a null output is passed over
 * @param[in] rec  the record; null writes nothing
 */
KX_API void KX_CALL kx_get_curve_stats_3d(double *t, vector_3d *tangent, vector_3d *second, vector_3d *normal,
                                          const curve_stats_3d *rec);

/**
 * Frees the statistics record of a space curve sample.
 * @param[in] rec  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_curve_stats_3d(curve_stats_3d *rec);

/* ---- polygon lists ---- */

/**
 * Appends copies of all records of one list to another, numbers included.
 * @param[in,out] source  list of points or numbers (50, 51, 62, 63, 81, 82); the current item's tag decides for all,
 *   items without data or with a smaller record are passed over; its position ends at the head
 * @param[in,out] destination  list that receives the copies, which it owns; the last one is current; may be the source
 * @return the number copied; 0 for a null list, an empty source or another kind; -1 after a memory message, with the
 *   copies made so far left in the destination
 */
KX_API int32_t KX_CALL kx_copy_polygon(list_hdr *source, list_hdr *destination);

/**
 * Frees a list of points or numbers with its items and their records.
 * @param[in] list  the list (50, 51, 62, 63, 81, 82, or empty); gone when the result is 0
 * @return 0; 9 for null or a list of another kind, which stays as it is, and for a mixed one, which keeps what does
 *   not belong
 */
KX_API int32_t KX_CALL kx_purge_polygon(list_hdr *list);

/**
 * Frees the items and records of a list of points or numbers and keeps the empty list.
 * @param[in,out] list  the list (50, 51, 62, 63, 81, 82, or empty); of a mixed one, what does not belong is kept
 * @return the number of items found; 0 for null or a list of another kind, which stays as it is
 */
KX_API int32_t KX_CALL kx_clear_polygon(list_hdr *list);

/**
 * Takes the current item out of a list of points or numbers and frees its record.
 * @param[in,out] list  the list (50, 51, 62, 63, 81, 82)
 * @param[in] position  where the current position goes, as new_current of ll_delete_list_item
 * @return 1; 0 for a null or empty list or another kind, and for an item without data
 */
KX_API int32_t KX_CALL kx_delete_polygon(list_hdr *list, int32_t position);

/**
 * Finds a polygon point by its number. The current item is tested first, then the list from the head.
 * @param[in,out] list  list of poly_2d or poly_3d; the point found is current, the head when none is; the position of
 *   a list of another kind stays
 * @param[in] seqnr  the number
 * @return 1 found; 0 not found, a null list or another kind
 */
KX_API int32_t KX_CALL kx_find_polygon_seqnr(list_hdr *list, int32_t seqnr);

/**
 * Numbers the points of a polygon anew, forward to the tail. The number advances for every item, also for one of
 * another kind, which is not numbered.
 * @param[in,out] list  list of poly_2d or poly_3d; its position ends at the head
 * @param[in] start  where to begin, a move of ll_set_list_currpntr
 * @param[in] first  number of the first item visited
 * @param[in] increment  added from one item to the next
 * @return the number of points numbered; 0 for a null or empty list
 */
KX_API int32_t KX_CALL kx_renum_polygon(list_hdr *list, int32_t start, int32_t first, int32_t increment);

/**
 * Adds a copy of the current item of one list to another list of the same kind.
 * @param[in] source  list of points or numbers (50, 51, 62, 63, 81, 82); its position stays
 * @param[in,out] destination  list that receives the copy, which becomes its current item; empty or of the same kind
 * @param[in] where  as for ll_add_list_item
 * @param[in] renumber  0: a polygon point keeps its number; else it gets the number after the destination's tail (0 in
 *   an empty list)
 * @return 1 added; 0 for a null list, no current item, different or other kinds, and after a memory message
 */
KX_API int32_t KX_CALL kx_merge_polygon(const list_hdr *source, list_hdr *destination, int32_t where, int32_t renumber);

/* ---- record arrays ---- */

/**
 * Makes an array of plane points with room for one element more than asked for, so that it can be counted from 0 or
 * from 1. Only its first n bytes are cleared: callers fill what they use.
 * @param[in] n  number of elements, 0 or more
 * @return the array, owned by the caller and freed by kx_purge_pnt_2d_array; null when n is negative, and after the
 *   memory message "kx_create_pnt_2d_array"
 */
KX_API pnt_2d *KX_CALL kx_create_pnt_2d_array(int32_t n);

/**
 * Writes an element of an array of plane points.
 * @param[in] x,y  the values
 * @param[in] index  the element, counted from 0; not checked
 * @param[out] array[index+1]  the array; null writes nothing
 * @return the element's address; null for a null array
 */
KX_API pnt_2d *KX_CALL kx_set_array_pnt_2d(double x, double y, int32_t index, pnt_2d *array);

/**
 * Reads an element of an array of plane points.
 * @param[out] x,y  the values; a null output is passed over
 * @param[in] index  the element, counted from 0; not checked
 * @param[in] array[index+1]  the array; null writes nothing
 */
KX_API void KX_CALL kx_get_array_pnt_2d(double *x, double *y, int32_t index, const pnt_2d *array);

/**
 * Frees an array of plane points.
 * @param[in] array  the array; null does nothing
 */
KX_API void KX_CALL kx_purge_pnt_2d_array(pnt_2d *array);

/**
 * Makes an array of space points with room for one element more than asked for, so that it can be counted from 0 or
 * from 1. Only its first n bytes are cleared: callers fill what they use.
 * @param[in] n  number of elements, 0 or more
 * @return the array, owned by the caller and freed by kx_purge_pnt_3d_array; null when n is negative, and after the
 *   memory message "kx_create_pnt_3d_array"
 */
KX_API pnt_3d *KX_CALL kx_create_pnt_3d_array(int32_t n);

/**
 * Writes an element of an array of space points.
 * @param[in] x,y,z  the values
 * @param[in] index  the element, counted from 0; not checked
 * @param[out] array[index+1]  the array; null writes nothing
 * @return the element's address; null for a null array
 */
KX_API pnt_3d *KX_CALL kx_set_array_pnt_3d(double x, double y, double z, int32_t index, pnt_3d *array);

/**
 * Reads an element of an array of space points.
 * @param[out] x,y,z  the values; a null output is passed over
 * @param[in] index  the element, counted from 0; not checked
 * @param[in] array[index+1]  the array; null writes nothing
 */
KX_API void KX_CALL kx_get_array_pnt_3d(double *x, double *y, double *z, int32_t index, const pnt_3d *array);

/**
 * Frees an array of space points.
 * @param[in] array  the array; null does nothing
 */
KX_API void KX_CALL kx_purge_pnt_3d_array(pnt_3d *array);

/**
 * Makes an array of real numbers with room for one element more than asked for, so that it can be counted from 0 or
 * from 1. Only its first n bytes are cleared: callers fill what they use.
 * @param[in] n  number of elements, 0 or more
 * @return the array, owned by the caller and freed by kx_purge_rnumber_array; null when n is negative, and after the
 *   memory message "kx_create_rnumber_array"
 */
KX_API rnumber *KX_CALL kx_create_rnumber_array(int32_t n);

/**
 * Writes an element of an array of real numbers.
 * @param[in] value  the values
 * @param[in] index  the element, counted from 0; not checked
 * @param[out] array[index+1]  the array; null writes nothing
 * @return the element's address; null for a null array
 */
KX_API rnumber *KX_CALL kx_set_array_rnumber(double value, int32_t index, rnumber *array);

/**
 * Reads an element of an array of real numbers.
 * @param[out] value  the values; a null output is passed over
 * @param[in] index  the element, counted from 0; not checked
 * @param[in] array[index+1]  the array; null writes nothing
 */
KX_API void KX_CALL kx_get_array_rnumber(double *value, int32_t index, const rnumber *array);

/**
 * Frees an array of real numbers.
 * @param[in] array  the array; null does nothing
 */
KX_API void KX_CALL kx_purge_rnumber_array(rnumber *array);

/**
 * Makes an array of integers with room for one element more than asked for, so that it can be counted from 0 or from
 * 1. Only its first n bytes are cleared: callers fill what they use.
 * @param[in] n  number of elements, 0 or more
 * @return the array, owned by the caller and freed by kx_purge_inumber_array; null when n is negative, and after the
 *   memory message "kx_create_inumber_array"
 */
KX_API inumber *KX_CALL kx_create_inumber_array(int32_t n);

/**
 * Writes an element of an array of integers.
 * @param[in] value  the values
 * @param[in] index  the element, counted from 0; not checked
 * @param[out] array[index+1]  the array; null writes nothing
 * @return the element's address; null for a null array
 */
KX_API inumber *KX_CALL kx_set_array_inumber(int32_t value, int32_t index, inumber *array);

/**
 * Reads an element of an array of integers.
 * @param[out] value  the values; a null output is passed over
 * @param[in] index  the element, counted from 0; not checked
 * @param[in] array[index+1]  the array; null writes nothing
 */
KX_API void KX_CALL kx_get_array_inumber(int32_t *value, int32_t index, const inumber *array);

/**
 * Frees an array of integers.
 * @param[in] array  the array; null does nothing
 */
KX_API void KX_CALL kx_purge_inumber_array(inumber *array);

/**
 * Makes an array of handles (pointers of the host) with room for one element more than asked for, so that it can be
 * counted from 0 or from 1. Only its first n bytes are cleared: callers fill what they use.
 * @param[in] n  number of elements, 0 or more
 * @return the array, owned by the caller and freed by kx_purge_handle_array; null when n is negative, and after the
 *   memory message "kx_create_handle_array"
 */
KX_API void **KX_CALL kx_create_handle_array(int32_t n);

/**
 * Writes an element of an array of handles (pointers of the host).
 * @param[in] handle  the values
 * @param[in] index  the element, counted from 0; not checked
 * @param[out] array[index+1]  the array; null writes nothing
 * @return the element's address; null for a null array
 */
KX_API void **KX_CALL kx_set_array_handle(void *handle, int32_t index, void **array);

/**
 * Reads an element of an array of handles (pointers of the host).
 * @param[out] handle  the values; a null output is passed over
 * @param[in] index  the element, counted from 0; not checked
 * @param[in] array[index+1]  the array; null writes nothing
 */
KX_API void KX_CALL kx_get_array_handle(void **handle, int32_t index, void *const *array);

/**
 * Frees an array of handles (pointers of the host).
 * @param[in] array  the array; null does nothing
 */
KX_API void KX_CALL kx_purge_handle_array(void **array);

/* ---- polygon heaps ---- */

/**
 * Appends plane points to a list as poly_2d items numbered from 0 in array order. When the memory for a point runs
 * out, the whole list is emptied, items from before the call included.
 * @param[in] array[n]  the points
 * @param[in] n  their number; a negative one adds nothing
 * @param[in,out] list  the list; the last point is current
 * @return the list's count; 0 for n = 0, a null list or array, and after the memory message of a point; an item that
 *   cannot be added is reported as "kx_put_xypolyheap" and left out
 */
KX_API int32_t KX_CALL kx_put_xypolyheap(const pnt_2d *array, int32_t n, list_hdr *list);

/**
 * Copies the points of a list into an array: x and y; z is dropped. The current item's tag decides how every item is
 * read; items without data or with a smaller record are passed over.
 * @param[in,out] list  list of points of any of the four kinds; its position ends at the head
 * @param[out] array[*count]  receives the points
 * @param[in,out] count  room in the array; receives the number of points copied
 * @return the number of points copied; 0, with nothing written, for a null argument, an empty list, or room for fewer
 *   points than the list has items
 */
KX_API int32_t KX_CALL kx_get_xypolyheap(list_hdr *list, pnt_2d *array, int32_t *count);

/**
 * Makes a list of points from an array of plane points.
 * @param[in] array[n]  the points
 * @param[in] n  their number
 * @param[in] datatype  kind of the items: 50, 51, 62 or 63
 * @param[in] first  number of the first polygon point
 * @param[in] increment  added to the number from one point to the next
 * @return the list, owned by the caller, its last item current; null for n of 0 and below, a null array, another
 *   datatype, and after a memory message
 */
KX_API list_hdr *KX_CALL kx_pnt2d_array_to_list(const pnt_2d *array, int32_t n, int32_t datatype, int32_t first,
                                                int32_t increment);

/**
 * Appends space points to a list as poly_3d items numbered from 0 in array order. When the memory for a point runs
 * out, the whole list is emptied, items from before the call included.
 * @param[in] array[n]  the points
 * @param[in] n  their number; a negative one adds nothing
 * @param[in,out] list  the list; the last point is current
 * @return the list's count; 0 for n = 0, a null list or array, and after the memory message of a point; an item that
 *   cannot be added is reported as "kx_put_xyzpolyheap" and left out
 */
KX_API int32_t KX_CALL kx_put_xyzpolyheap(const pnt_3d *array, int32_t n, list_hdr *list);

/**
 * Copies the points of a list into an array: x, y and z; z is 0 for the plane kinds. The current item's tag decides
 * how every item is read; items without data or with a smaller record are passed over.
 * @param[in,out] list  list of points of any of the four kinds; its position ends at the head
 * @param[out] array[*count]  receives the points
 * @param[in,out] count  room in the array; receives the number of points copied
 * @return the number of points copied; 0, with nothing written, for a null argument, an empty list, or room for fewer
 *   points than the list has items
 */
KX_API int32_t KX_CALL kx_get_xyzpolyheap(list_hdr *list, pnt_3d *array, int32_t *count);

/**
 * Makes a list of points from an array of space points.
 * @param[in] array[n]  the points
 * @param[in] n  their number
 * @param[in] datatype  kind of the items: 50, 51, 62 or 63
 * @param[in] first  number of the first polygon point
 * @param[in] increment  added to the number from one point to the next
 * @return the list, owned by the caller, its last item current; null for n of 0 and below, a null array, another
 *   datatype, and after a memory message
 */
KX_API list_hdr *KX_CALL kx_pnt3d_array_to_list(const pnt_3d *array, int32_t n, int32_t datatype, int32_t first,
                                                int32_t increment);

/* ---- faces ---- */

/* A ring of more than four vertices is read in two ways. kx_get_face, kx_get_next_face_loc and kx_set_polyface_3d use
 * the face's slots: number i in slot i, over the attributes. kx_get_polyface_3d takes the fifth and later numbers from
 * more_vertices. The faces that the library builds can be read either way. A ring longer than KX_RING_MOST hangs from
 * more_vertices alone, and everyone reads it there. */

/**
 * Creates a face: every field 0, no lists.
 * @return the face, owned by the caller and freed by kx_purge_polyface_3d; null after the memory message
 *   "kx_create_polyface_3d"
 */
KX_API polyface_3d *KX_CALL kx_create_polyface_3d(void);

/**
 * Frees a face and the numbers in its more_vertices. The header of that list and face_points stay with whoever hung
 * them there.
 * @param[in] face  the face; null does nothing
 */
KX_API void KX_CALL kx_purge_polyface_3d(polyface_3d *face);

/**
 * Frees the numbers in a face's more_vertices; the list stays, empty.
 * @param[in,out] face  the face; null does nothing
 */
KX_API void KX_CALL kx_clear_polyface_3d(polyface_3d *face);

/**
 * Makes a face anew: every other field 0, both lists null (those it had are not freed), its ring in the slots.
 * @param[in] face_number,vertex_count  stored as they are
 * @param[in] numbers[vertex_count]  vertex numbers in ring order
 * @param[in] attributes[vertex_count]  one for each edge; null for all 0
 * @param[in] normal  the normal, stored as it is; null for the zero vector
 * @param[out] face  the face; as it was unless the result is 0
 * @return 0; 1 for a null face; 2 for a ring longer than KX_RING_MOST, or without numbers
 */
KX_API int32_t KX_CALL kx_set_polyface_3d(int32_t face_number, int32_t vertex_count, const int32_t *numbers,
                                          const int32_t *attributes, const vector_3d *normal, polyface_3d *face);

/**
 * Reads a face: the first four numbers and attributes from the record, the fifth and later numbers from more_vertices,
 * whose position ends at its head. Outputs may be null.
 * @param[out] face_number,vertex_count,normal  the fields
 * @param[out] numbers[26]  vertex_count numbers, as many as there are; a longer ring needs more room
 * @param[out] attributes[4]  one for each of the first four numbers
 * @param[in] face  the face
 * @return 0; 1 for a null face, nothing written; 2 when more_vertices ends early
 */
KX_API int32_t KX_CALL kx_get_polyface_3d(int32_t *face_number, int32_t *vertex_count, int32_t *numbers,
                                          int32_t *attributes, vector_3d *normal, const polyface_3d *face);

/**
 * Copies a face with both its lists, item by item as kx_copy_polygon does.
 * @param[in] face  the face; the positions of its lists end at their heads
 * @return the copy, owned by the caller with the headers of its lists; null for null and, with nothing left behind,
 *   after a memory message
 */
KX_API polyface_3d *KX_CALL kx_copy_polyface_3d(const polyface_3d *face);

/**
 * Gives each face of a list the tip of its normal: the vector product of its first two edges, (P0 - P1) x (P2 - P1),
 * drawn from P1. The numbers of its ring are places in the vertex list, from 0. Direction and length of the normals
 * stay, and faces with fewer than three corners, or with one that is not there, stay as they are.
 * @param[in] vertices  poly_3d items
 * @param[in,out] faces  polyface_3d items
 * @return 0; 1 when either list is null; 80 without memory for the work, nothing changed
 */
KX_API int32_t KX_CALL kx_create_face_normal(const list_hdr *vertices, list_hdr *faces);

/**
 * Computes the normal of three vertices: (V0 - V1) x (V2 - V1), with its azimuth and length, where V0, V1 and V2 are
 * the first three records of the list, in list order, whose stored number is one of the three given.
 * @param[in] a,b,c  vertex numbers, in any order
 * @param[in,out] vertices  poly_3d items; the position ends at the head
 * @param[out] normal  the normal; as it was unless the result is 0
 * @return 0; 1 for a null list or normal; 2 for fewer than three vertices in the list; 3 for fewer than three found
 */
KX_API int32_t KX_CALL kx_get_face_normal(int32_t a, int32_t b, int32_t c, list_hdr *vertices, vector_3d *normal);

/**
 * Moves the position of a face list and reads the face there, its ring from the slots. Outputs may be null.
 * @param[in,out] faces  polyface_3d items; the face read is current
 * @param[out] face_number,vertex_count,normal  the fields
 * @param[out] numbers[26]  vertex_count numbers; a longer ring needs more room
 * @param[out] attributes[4]  in a ring of more than four they hold the fifth and later numbers
 * @param[in] position  as for ll_set_list_currpntr; 0 for any other code
 * @return 1; 0, nothing written, for a null or empty list and for an item that is no face
 */
KX_API int32_t KX_CALL kx_get_next_face_loc(list_hdr *faces, int32_t *face_number, int32_t *vertex_count,
                                            int32_t *numbers, int32_t *attributes, vector_3d *normal, int32_t position);

/**
 * Finds a face by its number and reads it, its ring from the slots. Outputs may be null.
 * @param[in] faces  polyface_3d items
 * @param[in] face_number  the number sought
 * @param[out] normal[3]  i, j and k
 * @param[out] attributes[4]  as for kx_get_next_face_loc
 * @param[out] numbers[26]  as for kx_get_next_face_loc
 * @return 1, also when no face bears the number, and nothing is written; 0 for a null or empty list and when the search
 *   meets an item that is no face
 */
KX_API int32_t KX_CALL kx_get_face(const list_hdr *faces, int32_t face_number, double *normal, int32_t *attributes,
                                   int32_t *numbers);

/**
 * Finds the first vertex that bears a number.
 * @param[in] vertices  poly_3d items
 * @param[in] number  the number sought
 * @param[out] pnt  its point; as it was when there is none
 * @return 1 found; 0 not found, or a null list
 */
KX_API int32_t KX_CALL kx_get_facevertex(const list_hdr *vertices, int32_t number, pnt_3d *pnt);

/**
 * Collects the records of a vertex list from head to tail.
 * @param[in,out] vertices  the list; its position ends at the head
 * @param[out] records[vertices+1]  one pointer for each item, still the list's; one null for an empty list
 * @return the number of pointers written; 0 for null arguments
 */
KX_API int32_t KX_CALL kx_get_vertex_list(list_hdr *vertices, void **records);

/* ---- solids ---- */

/**
 * Creates an empty solid: every field 0.
 * @return the solid, owned by the caller and freed by kx_purge_solid; null after the memory message "kx_create_solid"
 */
KX_API solid *KX_CALL kx_create_solid(void);

/**
 * Makes a raw record an empty solid; what it held is not freed.
 * @param[out] s  the solid; null does nothing
 * @return 0
 */
KX_API int32_t KX_CALL kx_init_solid(solid *s);

/**
 * Sets all of a solid. Its lists take over the items of the given ones, whose headers stay the caller's: their items
 * are not to be freed any more. Items that the solid's lists held before are freed, unless they are the given ones.
 * @param[in] solid_type,face_count,vertex_count,xmin,ymin,zmin,xmax,ymax,zmax  stored as they are
 * @param[in] faces  polyface_3d items; null for none
 * @param[in] vertices  poly_3d items; null for none
 * @param[in] solid_data  the primitive's record, the solid's from now on; the one it had is not freed
 * @param[in,out] s  the solid
 * @return the count of the given face list; 0 for a null solid and, with nothing changed, after the memory message of a
 *   list
 */
KX_API int32_t KX_CALL kx_set_solid(int32_t solid_type, int32_t face_count, int32_t vertex_count, double xmin,
                                    double ymin, double zmin, double xmax, double ymax, double zmax,
                                    const list_hdr *faces, const list_hdr *vertices, void *solid_data, solid *s);

/**
 * Reads a solid. The headers written share the solid's items, which stay the solid's. Outputs may be null.
 * @param[out] solid_type,face_count,vertex_count,xmin,ymin,zmin,xmax,ymax,zmax  the fields
 * @param[out] faces,vertices  headers like those of the solid's lists; empty ones where it has none
 * @param[in] s  the solid
 * @return faces; null, with nothing written, for a null solid
 */
KX_API list_hdr *KX_CALL kx_get_solid(int32_t *solid_type, int32_t *face_count, int32_t *vertex_count, double *xmin,
                                      double *ymin, double *zmin, double *xmax, double *ymax, double *zmax,
                                      list_hdr *faces, list_hdr *vertices, const solid *s);

/**
 * Gives the record of the primitive that a solid was built from.
 * @param[in] s  the solid
 * @return the record, still the solid's; null when it has none, and for null
 */
KX_API void *KX_CALL kx_get_solid_data(const solid *s);

/**
 * Frees a solid with all that kx_clear_solid frees.
 * @param[in] s  the solid; null does nothing
 * @return 0
 */
KX_API int32_t KX_CALL kx_purge_solid(solid *s);

/**
 * Frees what a solid owns and leaves the record, its counts and its box as they were and its three pointers null: the
 * faces with their further numbers, the vertices, and solid_data if solid_type names a primitive. A face with as many
 * further numbers as there are faces, or one less, ends the emptying: the faces behind it are no longer the solid's,
 * but still allocated.
 * @param[in,out] s  the solid; null does nothing
 * @return 0
 */
KX_API int32_t KX_CALL kx_clear_solid(solid *s);

/**
 * Copies a solid: its fields, faces, vertices and primitive.
 * @param[in] s  the solid; the positions of the lists copied end at their heads
 * @return the copy, owned by the caller and freed by kx_purge_solid; a face that cannot be copied is left out, after
 * its memory message; null for null and, with nothing left behind, after any other memory message
 */
KX_API solid *KX_CALL kx_copy_solid(const solid *s);

/**
 * Copies a primitive's record, that of a bodyrev or extbody with its profile.
 * @param[in] solid_type  which record it is
 * @param[in] record  the record
 * @return the copy, owned by the caller; null for a null record, a type outside 1 to 22, 4 and 14, and, with nothing
 *   left behind, after a memory message: that of the record's create function, or of its profile
 */
KX_API void *KX_CALL kx_copy_solid_data(int32_t solid_type, const void *record);

/**
 * Appends a face as kx_set_polyface_3d makes it, its normal that of its first three vertex numbers
 * (kx_get_face_normal), the zero vector when they are not all there. A solid without a face list gets one.
 * @param[in] face_number,numbers[vertex_count],attributes[vertex_count],vertex_count  the face
 * @param[in,out] s  the solid; face_count grows by one, the face is current, the position of the vertices is at the
 * head
 * @return 1; 0, the solid unchanged, for a null solid, a ring that kx_set_polyface_3d refuses and after a memory
 * message
 */
KX_API int32_t KX_CALL kx_add_face(int32_t face_number, const int32_t *numbers, const int32_t *attributes,
                                   int32_t vertex_count, solid *s);

/**
 * Removes a face and frees it as kx_purge_polyface_3d does; face_count falls by one.
 * @param[in,out] s  the solid; the next face becomes current, after the last one the head
 * @param[in] position  the face, by ll_set_list_currpntr's codes 0 to 4
 * @return 1; 0 for a null solid, an empty list, another code, and an item that is no face
 */
KX_API int32_t KX_CALL kx_delete_face(solid *s, int32_t position);

/**
 * Removes all faces from the head to the first item that is none. After k faces face_count has fallen by 2k + 1: a
 * second time for each, and once for finding no more.
 * @param[in,out] s  the solid
 * @return the number of faces removed; 0 for a null solid or one without a face list
 */
KX_API int32_t KX_CALL kx_delete_face_list(solid *s);

/**
 * Adds a vertex and widens the solid's box to hold it: the box of a new solid holds the origin, and it never shrinks. A
 * solid without a vertex list gets one.
 * @param[in,out] s  the solid; vertex_count grows by one, the vertex is current
 * @param[in] number  its number
 * @param[in] pnt  its point
 * @param[in] position  0 before the head; any other code after the tail
 * @return 1; 0 for a null solid or point and after a memory message
 */
KX_API int32_t KX_CALL kx_add_vertex(solid *s, int32_t number, const pnt_3d *pnt, int32_t position);

/**
 * Removes a vertex and frees it; vertex_count falls by one, the box stays.
 * @param[in,out] s  the solid; the next vertex becomes current, after the last one the head
 * @param[in] position  the vertex, by ll_set_list_currpntr's codes 0 to 4
 * @return 1; 0 for a null solid, an empty list, another code, and an item that is no point
 */
KX_API int32_t KX_CALL kx_delete_vertex(solid *s, int32_t position);

/**
 * Removes all vertices from the head to the first item that is none; vertex_count falls by their number.
 * @param[in,out] s  the solid
 * @return the number of vertices removed; 0 for a null solid or one without a vertex list
 */
KX_API int32_t KX_CALL kx_delete_vertex_list(solid *s);

/* ---- surfaces ---- */

/**
 * Creates a surface: every field 0, no lists.
 * @return the surface, owned by the caller and freed by kx_purge_surface; null after the memory message
 *   "kx_create_surface"
 */
KX_API surface *KX_CALL kx_create_surface(void);

/**
 * Makes a raw record an empty surface; lists that it had are not freed.
 * @param[out] s  the surface
 * @return 0; 1 for null
 */
KX_API int32_t KX_CALL kx_init_surface(surface *s);

/**
 * Frees a surface with its lists; point lists that kx_purge_polygon refuses stay allocated.
 * @param[in] s  the surface; null does nothing
 */
KX_API void KX_CALL kx_purge_surface(surface *s);

/**
 * Empties the lists of a surface, its point lists by kx_clear_polygon; headers and numbers stay.
 * @param[in,out] s  the surface; null does nothing
 */
KX_API void KX_CALL kx_clear_surface(surface *s);

/**
 * Copies a surface: type, flags, box, coefficients, step_u, step_v and steps_v (and not steps_u, which the target
 * keeps), and the items of the six lists, behind those that the target has.
 * @param[in] source  the surface; the positions of its point lists end at their heads
 * @param[in,out] target  the surface to fill, which gets the lists it lacks; null for a new one
 * @return the target, a new one owned by the caller; null for a null source and, with nothing left behind and the
 * target as it was, after a memory message
 */
KX_API surface *KX_CALL kx_copy_surface(const surface *source, surface *target);

/**
 * Appends the four-sided faces of a grid of vertices numbered 0, 1, 2, ..., to a face list. In row r and column c, with
 * base = r * rows + c, the ring is (base, base + 1, base + 1 + rows, base + rows): the stride is the number of rows, as
 * it is in a square grid. Faces are numbered from 0, their normals those of kx_get_face_normal.
 * @param[in] columns,rows  points of the grid
 * @param[in,out] faces  the face list; null makes the faces for their number alone
 * @param[in] vertices  poly_3d items
 * @return the number of faces; 0 when there is no cell, when there are more than 1000000 cells and than vertices, when
 * a vertex number would not fit 32 bits, and, with none left behind, without memory
 */
KX_API int32_t KX_CALL kx_build_surface_face_list(int32_t columns, int32_t rows, list_hdr *faces,
                                                  const list_hdr *vertices);

/**
 * Reads the current face of a surface, if it bears the number given: its corners, which its ring names by their place
 * in the vertex list (counted on from the head past the end), and its normal. Outputs may be null.
 * @param[in] s  the surface; the last corner is the current vertex
 * @param[in] face_number  the number
 * @param[out] pnts[26]  the corners; a longer ring needs more room
 * @param[out] normal[3]  i, j and k
 * @return the current face's vertex_count, also when its number is another one and nothing is written; 0 for a null
 *   surface, one without faces, a number below 0 or above the number of faces
 */
KX_API int32_t KX_CALL kx_get_surface_face(const surface *s, int32_t face_number, pnt_3d *pnts, double *normal);

/* ---- picture areas ---- */

/**
 * Creates a vertex of a picture: every field 0.
 * @return the record, owned by the caller and freed by kx_purge_vertex_pnt; null, without a message, when the heap has
 *   no room
 */
KX_API vertex_pnt *KX_CALL kx_create_vertex_pnt(void);

/**
 * Frees a vertex of a picture. The items of its list are taken out; their data and the header stay the host's.
 * @param[in] vertex  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_vertex_pnt(vertex_pnt *vertex);

/**
 * Creates a picture area: title and labels blank, the box empty (1.7e200 to -1.7e200), everything else 0.
 * @return the record, owned by the caller and freed by kx_purge_picture_area; null, without a message, when the heap
 * has no room
 */
KX_API picture_area *KX_CALL kx_create_picture_area(void);

/**
 * Empties a picture area: frees both work buffers and both extra blocks, the groups with their lists, items and data,
 * the vertices (kx_purge_vertex_pnt), the faces (kx_purge_polyface_3d) and the data of items, and zeroes group_count,
 * the first two words, title, slots and every pointer. Labels and box stay.
 * @param[in,out] area  the record; null does nothing
 */
KX_API void KX_CALL kx_clear_picture_area(picture_area *area);

/**
 * Frees a picture area with all that kx_clear_picture_area frees.
 * @param[in] area  the record; null does nothing
 */
KX_API void KX_CALL kx_purge_picture_area(picture_area *area);

#ifdef __cplusplus
}
#endif

#endif
