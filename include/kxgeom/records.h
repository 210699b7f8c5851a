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
#ifdef __cplusplus
}
#endif

#endif
