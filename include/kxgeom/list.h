/* The doubly linked list with a current position that carries every collection of the library.
 *
 * A list owns its items; who owns the data that hangs from them is told per function. Positions are numbers: as a place
 * to add 0 is before the head, 2 after and 3 before the current item, and everything else after the tail; as an item to
 * take 0 is the head, 1 the tail, 2 the item after and 3 the item before the current one, and everything else the
 * current one. A walk over all items: ll_set_list_currpntr(list, 0), then ll_set_list_currpntr(list, 2) while that
 * returns 2.
 */
#ifndef KXGEOM_LIST_H
#define KXGEOM_LIST_H

#include "kxgeom/export.h"
#include "kxgeom/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- list headers ---- */

/**
 * Makes an empty list.
 * @return the list, owned by the caller and freed by ll_purge_list or ll_purge_all_items; null after the memory message
 *   "ll_create_list"
 */
KX_API list_hdr *KX_CALL ll_create_list(void);

/**
 * Empties a header without freeing anything: head, tail, current and count become 0.
 * @param[out] list  the header; null does nothing
 */
KX_API void KX_CALL ll_init_list_hdr(list_hdr *list);

/**
 * Makes an array of empty lists in one block with room for one header more, which is not initialised.
 * @param[in] n  number of lists, 0 or more
 * @return the first header, freed by ll_purge_list_array; null when n is negative, and after the memory message
 *   "ll_create_list_array"
 */
KX_API list_hdr *KX_CALL ll_create_list_array(int32_t n);

/**
 * Makes an array of null list pointers in one block with room for one pointer more, which is not initialised.
 * @param[in] n  number of pointers, 0 or more
 * @return the first pointer, freed by ll_purge_list_pntrarray; null when n is negative, and after the memory message
 *   "ll_create_list_pntrarray"
 */
KX_API list_hdr **KX_CALL ll_create_list_pntrarray(int32_t n);

/**
 * Frees an array made by ll_create_list_array, not the items of its lists.
 * @param[in] lists  the array; null does nothing
 */
KX_API void KX_CALL ll_purge_list_array(list_hdr *lists);

/**
 * Frees an array made by ll_create_list_pntrarray, not the lists it points to.
 * @param[in] lists  the array; null does nothing
 */
KX_API void KX_CALL ll_purge_list_pntrarray(list_hdr **lists);

/**
 * Frees an empty list. A list that still has items is left as it is, so that items are never lost unnoticed.
 * @param[in] list  the list; gone when the result is 0
 * @return 0 freed; 8 null, or items are left
 */
KX_API int32_t KX_CALL ll_purge_list(list_hdr *list);

/**
 * Deletes every item as ll_delete_item(list, 0, 0) does, its data included, and keeps the empty list. It stops at the
 * first item that ll_delete_item refuses.
 * @param[in,out] list  the list; what is left is current at its head
 * @return the number of items found at the start; 0 for null
 */
KX_API int32_t KX_CALL ll_clear_all_items(list_hdr *list);

/**
 * Clears a list as ll_clear_all_items does, then frees it as ll_purge_list does.
 * @param[in] list  the list; still there, with the items left, when ll_delete_item refused one
 * @return the number of items found at the start; 0 for null
 */
KX_API int32_t KX_CALL ll_purge_all_items(list_hdr *list);

/* ---- list items ---- */

/**
 * Adds an item and makes it current. The data is not copied; the list frees it only through ll_delete_item and the
 * functions built on it.
 * @param[in,out] list  the list
 * @param[in] where  0 before the head, 2 after the current item, 3 before it, every other value after the tail
 * @param[in] data  the record that the item holds
 * @param[in] datatype  tag of the record's kind
 * @return 1 added; 0 for a null list, and after the memory message "ll_add_list_item", the list unchanged
 */
KX_API int32_t KX_CALL ll_add_list_item(list_hdr *list, int32_t where, void *data, int32_t datatype);

/**
 * Takes an item out of the list and hands its data back.
 * @param[in,out] list  the list; never left with a current position on the item that is gone
 * @param[in] which  0 head, 1 tail, 2 item after the current one, 3 item before it, every other value the current item
 * @param[in] new_current  where the position goes: 0 head, 1 tail, 2 to the item after the current one (the head when
 *   there is none), 3 to the one before it (the tail when there is none), every other value stays; when the current
 *   item itself is taken, 2 and 3 mean its own neighbours, and one that would stay goes to its next item or the head
 * @return the item's data, the caller's again; null when there was no such item or it held null
 */
KX_API void *KX_CALL ll_delete_list_item(list_hdr *list, int32_t which, int32_t new_current);

/**
 * Takes an item out of the list and frees its data. The tag of the current item decides whether this list may be
 * emptied so: only points (50, 51, 62, 63), numbers (81, 82) and strings (101) are.
 * @param[in,out] list  the list
 * @param[in] which  the item, as for ll_delete_list_item
 * @param[in] new_current  where the position goes, as for ll_delete_list_item
 * @return 1 done; 0 when the current item has another tag or there is no such item, and for an item that held null
 */
KX_API int32_t KX_CALL ll_delete_item(list_hdr *list, int32_t which, int32_t new_current);

/**
 * Moves the current position.
 * @param[in,out] list  the list
 * @param[in] move  0 to the head, 1 to the tail, 2 to the next item, 3 to the previous one; above 3 (and below 0) it
 * stays
 * @return where it ended: 0 head (also when 2 wrapped round), 1 tail (also when 3 wrapped round), 2 or 3 a step was
 * made, `move` when it stays; 1 for a null or empty list
 */
KX_API int32_t KX_CALL ll_set_list_currpntr(list_hdr *list, int32_t move);

/**
 * Gives the current item's data.
 * @param[in] list  the list
 * @return the data, still the list's; null when there is none
 */
KX_API void *KX_CALL ll_get_list_data(const list_hdr *list);

/**
 * Gives the current item's tag.
 * @param[in] list  the list
 * @return the tag; 0 when there is no item
 */
KX_API int32_t KX_CALL ll_get_datatype(const list_hdr *list);

/**
 * Gives the number of items.
 * @param[in] list  the list
 * @return the number; 0 for null
 */
KX_API int32_t KX_CALL ll_get_list_count(const list_hdr *list);

/**
 * Adds an item before the head and makes it current.
 * @param[in,out] list  the list
 * @param[in] data  the record that the item holds
 * @param[in] datatype  tag of the record's kind
 * @return as ll_add_list_item
 */
KX_API int32_t KX_CALL ll_push_list(list_hdr *list, void *data, int32_t datatype);

/**
 * Takes the head out of the list; the new head becomes current.
 * @param[in,out] list  the list
 * @return its data, the caller's again; null for a null or empty list
 */
KX_API void *KX_CALL ll_pop_list(list_hdr *list);

/**
 * Stores the data of all items, head to tail, into an array. An empty list stores one null.
 * @param[in,out] list  the list; its position ends at the head
 * @param[out] array[list+1]  the pointers, one an item; there must be room for one at least
 * @return the number of pointers stored; 0 for a null list or array
 */
KX_API int32_t KX_CALL ll_get_list_array(list_hdr *list, void **array);

/* ---- list search ---- */

/**
 * Tests one item; the caller drives the search by moving the position and calling again with start 4.
 * @param[in,out] list  the list; a match becomes current, otherwise the position stays
 * @param[in] start  item to test: 0 head, 1 tail, 4 current
 * @param[in] end  item at which the search ends: 0 head, 1 tail, 4 current
 * @param[in] direction  2 forward, 3 backward
 * @param[in] compare  the caller's function, caller-cleans in every build: compare(data, key) returns 1 for a match
 * @param[in] key  handed to compare as it is
 * @return 1 match; 0 no match, more items remain; 2 no match, the end is reached; tested in this order: 6 null list,
 *   3 bad direction, 4 bad start, 5 bad end, 6 empty list, 7 null compare
 */
KX_API int32_t KX_CALL ll_search_list(list_hdr *list, int32_t start, int32_t end, int32_t direction,
                                      int32_t (*compare)(void *data, void *key), void *key);

/**
 * Turns the ring of items so that the current item becomes the head, then, if asked, reverses the order.
 * @param[in,out] list  the list; null or empty does nothing; without reversal the position stays on its item, with it
 *   the new head is current
 * @param[in] reverse  1 reverses, every other value does not
 */
KX_API void KX_CALL ll_rearrange_list(list_hdr *list, int32_t reverse);

/* ---- typed items ---- */

/**
 * Appends a real number to a list of numbers. The list's first number is added with ll_add_list_item.
 * @param[in,out] list  the list, whose current item must have tag 81
 * @param[in] where  as for ll_add_list_item
 * @param[in] value  the number
 * @return 1 added; 0 for another current tag, and after a memory message, the list unchanged
 */
KX_API int32_t KX_CALL ll_add_rnumber(list_hdr *list, int32_t where, double value);

/**
 * Adds an integer to a list of integers. The list's first integer is added with ll_add_list_item.
 * @param[in,out] list  the list, whose current item must have tag 82
 * @param[in] where  as for ll_add_list_item
 * @param[in] value  the integer
 * @return 1 added; 0 for another current tag, and after a memory message, the list unchanged
 */
KX_API int32_t KX_CALL ll_add_inumber(list_hdr *list, int32_t where, int32_t value);

/**
 * Adds a copy of a text to a list of strings. The list's first string is added with ll_add_list_item.
 * @param[in,out] list  the list, whose current item must have tag 101
 * @param[in] where  as for ll_add_list_item
 * @param[in] text  zero-terminated text
 * @return 1 added; 0 for another current tag or a null text, and after a memory message, the list unchanged
 */
KX_API int32_t KX_CALL ll_add_string(list_hdr *list, int32_t where, const char *text);

/**
 * Adds a plane point as a record of the current item's kind, z = 0 where the kind has one. A polygon point gets the
 * number after the tail's; for these kinds the position moves to the tail before the item is added.
 * @param[in,out] list  the list, whose current item must have tag 50, 51, 62 or 63
 * @param[in] where  as for ll_add_list_item; for the polygon kinds 2 therefore appends
 * @param[in] pnt  the point
 * @return 1 added; 0 for another current tag or a null point, and after a memory message, no item added
 */
KX_API int32_t KX_CALL ll_add_pnt2d(list_hdr *list, int32_t where, const pnt_2d *pnt);

/**
 * Adds a space point as a record of the current item's kind, z dropped where the kind has none; else as ll_add_pnt2d.
 * @param[in,out] list  the list, whose current item must have tag 50, 51, 62 or 63
 * @param[in] where  as for ll_add_list_item; for the polygon kinds 2 therefore appends
 * @param[in] pnt  the point
 * @return 1 added; 0 for another current tag or a null point, and after a memory message, no item added
 */
KX_API int32_t KX_CALL ll_add_pnt3d(list_hdr *list, int32_t where, const pnt_3d *pnt);

/**
 * Reads a real number. For this and the other typed getters the tag is that of the current item, the data that of the
 * item asked for, and the position stays.
 * @param[in] list  the list, whose current item must have tag 81
 * @param[in] which  0 head, 1 tail, 2 next, 3 previous (both wrap round), every other value the current item
 * @return the number; 0.0 for another tag or no data
 */
KX_API double KX_CALL ll_get_rnumber(const list_hdr *list, int32_t which);

/**
 * Reads an integer.
 * @param[in] list  the list, whose current item must have tag 82
 * @param[in] which  as for ll_get_rnumber
 * @return the integer; 0 for another tag or no data
 */
KX_API int32_t KX_CALL ll_get_inumber(const list_hdr *list, int32_t which);

/**
 * Gives the length of a string.
 * @param[in] list  the list, whose current item must have tag 101
 * @param[in] which  as for ll_get_rnumber
 * @return the number of characters before the terminator; 0 for another tag or no data
 */
KX_API int32_t KX_CALL ll_get_string_len(const list_hdr *list, int32_t which);

/**
 * Copies a string.
 * @param[in] list  the list, whose current item must have tag 101
 * @param[in] which  as for ll_get_rnumber
 * @param[out] buffer  room for the string and its terminator; unwritten when the result is 0 for want of a string
 * @return its length; 0 for another tag, no data or a null buffer
 */
KX_API int32_t KX_CALL ll_get_string(const list_hdr *list, int32_t which, char *buffer);

/**
 * Reads a point of any of the four kinds as a plane point, z dropped.
 * @param[in] list  the list, whose current item must have tag 50, 51, 62 or 63
 * @param[in] which  as for ll_get_rnumber
 * @return the point by value; (0, 0) for another tag or no data
 */
KX_API pnt_2d KX_CALL ll_get_pnt2d(const list_hdr *list, int32_t which);

/**
 * Reads a point of any of the four kinds as a space point, z = 0 for the plane kinds.
 * @param[in] list  the list, whose current item must have tag 50, 51, 62 or 63
 * @param[in] which  as for ll_get_rnumber
 * @return the point by value; (0, 0, 0) for another tag or no data
 */
KX_API pnt_3d KX_CALL ll_get_pnt3d(const list_hdr *list, int32_t which);

#ifdef __cplusplus
}
#endif

#endif
