// Curves of every kind as points: at equal parameters, at steps of each piece, and by chord tolerance.
#include <algorithm>

#include "kxgeom/curves.h"
#include "piece_calculus.hpp"

namespace {

using kx::plane;
using kx::space;

constexpr std::int32_t not_enough_room = 10;

template <class D>
std::int32_t equal_parameters(const curve *c, double from, double to, std::int32_t count, double *out) {
  if (out == nullptr) return kx::no_argument;
  if (count < 2 || count > kx::most_samples) return kx::bad_value;
  kx::bezier_pieces<D> pieces;
  if (const std::int32_t fault = pieces.open(c)) return fault;
  if (!kx::take_into_range(pieces, from) || !kx::take_into_range(pieces, to)) return kx::bad_parameter;
  const std::int32_t last = count - 1;
  const double step = (to - from) / last;
  kx::fill_points(
      pieces, count, [=](std::int32_t i) { return i == last ? to : from + i * step; }, out);
  return 0;
}

// Where points go: a caller's array with room for some of them. All are counted.
template <class D>
class array_of_points {
 public:
  array_of_points(double *out, std::int32_t capacity) : out_(out), capacity_(capacity) {}

  std::int32_t add(typename D::vector v) {
    if (count_ == kx::most_samples) return kx::too_much;
    if (count_ < capacity_) out_ = kx::write(v, out_);
    ++count_;
    return 0;
  }
  // The next `n` points are to be written there; null when there is not enough room for all of them.
  double *take_room(int n) {
    double *room = n <= capacity_ - count_ ? out_ : nullptr;
    if (room) {
      out_ += kx::dimension_of<D> * n;
      count_ += n;
    }
    return room;
  }
  std::int32_t close(std::int32_t *count) const {
    *count = count_;
    return count_ > capacity_ ? not_enough_room : 0;
  }

 private:
  double *out_;
  std::int32_t capacity_, count_ = 0;
};

// Where points go: new items behind those of a list, which are handed over at the end, all or none.
template <class D>
class list_of_points {
 public:
  explicit list_of_points(list_hdr &target)
      : target_(target),
        next_(target.head ? static_cast<std::uint32_t>(kx::read_seqnr(target.tail->data, D::vertex_tag)) + 1 : 0) {}
  ~list_of_points() { kx::release_items(fresh_); }
  list_of_points(const list_of_points &) = delete;
  list_of_points &operator=(const list_of_points &) = delete;

  // The ends of the list tell whether it can be continued.
  static bool accepts(const list_hdr *list) {
    return list != nullptr && (list->head == nullptr || (is_vertex(list->head) && is_vertex(list->tail)));
  }
  std::int32_t add(typename D::vector v) {
    if (fresh_.count == kx::most_samples) return kx::too_much;
    auto *record = D::create_vertex();
    if (record == nullptr) return kx::no_memory_for_curve;
    *record = D::make_vertex(static_cast<std::int32_t>(next_++), v);
    if (kx::append(fresh_, record, D::vertex_tag)) return 0;
    kx::release(record);
    return kx::no_memory_for_curve;
  }
  void hand_over() {
    if (target_.head) {
      target_.tail->next = fresh_.head;
      fresh_.head->prev = target_.tail;
      fresh_.head = target_.head;
      fresh_.count += target_.count;
    }
    kx::move_items(fresh_, target_);
  }

 private:
  static bool is_vertex(const list_item *item) { return item && item->datatype == D::vertex_tag && item->data; }

  list_hdr &target_;
  list_hdr fresh_{};
  std::uint32_t next_;
};

// Walks the pieces and adds the first point of each one that does not begin where the one before ended; rest(piece)
// adds those behind it.
template <class D, class Points, class Rest>
std::int32_t walk(const kx::bezier_pieces<D> &pieces, Points &points, Rest rest) {
  typename kx::bezier_pieces<D>::point piece[kx::max_piece_points];
  typename D::vector before{};
  for (std::int32_t i = 0; i < pieces.count(); ++i) {
    pieces.piece(i, piece);
    const auto first = kx::projected(piece[0]);
    const auto jump = first - before;
    if (i == 0 || !(kx::dot(jump, jump) <= kx::tolerance * kx::tolerance)) {
      if (const std::int32_t fault = points.add(first)) return fault;
    }
    before = kx::projected(piece[pieces.degree()]);
    if (const std::int32_t fault = rest(piece)) return fault;
  }
  return 0;
}

// The points at 1, 2 .. `steps` steps of each piece.
template <int Components, class D>
std::int32_t add_steps(const kx::bezier_pieces<D> &pieces, std::int32_t steps, array_of_points<D> &points) {
  constexpr int dimension = kx::dimension_of<D>, most = 64;
  double u[most] = {}, some[most * dimension];
  kx::piece_polynomial<Components> polynomial;
  const auto fill = [&](std::int32_t from, int n) {
    for (int j = 0; j < n; ++j) u[j] = static_cast<double>(from + j) / steps;
  };
  const bool once = steps <= most;  // the same parameters for all pieces
  if (once) fill(1, steps);
  return walk(pieces, points, [&](const auto *piece) {
    polynomial.take(piece, pieces.degree());
    for (std::int32_t k = 1; k <= steps; k += most) {
      const int n = std::min(most, steps - k + 1);
      if (!once) fill(k, n);
      double *room = points.take_room(n);
      kx::points_of_piece<dimension>(polynomial, u, n, room ? room : some);
      if (room) continue;
      for (int j = 0; j < n; ++j) {
        const auto at = kx::read(some + dimension * j, typename D::vector{});
        if (const std::int32_t fault = points.add(at)) return fault;
      }
    }
    return std::int32_t{0};
  });
}

template <class D>
std::int32_t stepped(const curve *c, std::int32_t steps, std::int32_t capacity, double *out, std::int32_t *count) {
  if (count == nullptr || (out == nullptr && capacity > 0)) return kx::no_argument;
  if (steps < 1 || capacity < 0) return kx::bad_value;
  kx::bezier_pieces<D> pieces;
  if (const std::int32_t fault = pieces.open(c)) return fault;
  if ((std::int64_t{steps} + 1) * pieces.count() > kx::most_samples) return kx::too_much;
  array_of_points<D> points(out, capacity);
  constexpr int dimension = kx::dimension_of<D>;
  pieces.rational() ? add_steps<dimension + 1>(pieces, steps, points) : add_steps<dimension>(pieces, steps, points);
  return points.close(count);
}

template <class V>
double distance_to_segment(V p, V a, V b) {
  const V along = b - a, to = p - a;
  const double squared = kx::dot(along, along), part = kx::dot(to, along);
  if (!(part > 0.0)) return kx::length(to);
  if (part >= squared) return kx::length(p - b);
  return kx::length(to - (part / squared) * along);
}

// A bound on how far a piece departs from its chord. The distance from the chord is a convex function, so that of a
// point of the curve is at most the mean of the control points' with their shares; the ends have none, and the shares
// of those between sum to 1 - 2^(1-n) at most, more when their weights are larger than those of the ends.
template <class V>
double departure(const kx::weighted<V> *piece, int n) {
  const V a = kx::projected(piece[0]), b = kx::projected(piece[n]);
  double farthest = 0.0, heaviest = 0.0;
  for (int j = 1; j < n; ++j) {
    farthest = std::max(farthest, distance_to_segment(kx::projected(piece[j]), a, b));
    heaviest = std::max(heaviest, piece[j].weight);
  }
  const double between = 1.0 - std::ldexp(1.0, 1 - n);
  const double inner = heaviest * between, outer = std::min(piece[0].weight, piece[n].weight) * (1.0 - between);
  return farthest * inner / (inner + outer);
}

constexpr int deepest = 40;

// Adds the chords' ends of a piece but the first. A piece that is not flat is cut in as many equal parts as an evenly
// bent one would need when those are few, and in two when not; so parts that are flat early are left early.
template <class V, class Points>
std::int32_t add_chords(const kx::weighted<V> *piece, int n, double tol, int depth, Points &points) {
  const double bound = n > 1 ? departure(piece, n) : 0.0;
  if (bound <= tol) return points.add(kx::projected(piece[n]));
  if (depth == 0) return kx::too_much;
  const double needed = std::ceil(std::sqrt(bound / tol));
  kx::weighted<V> low[kx::max_piece_points], high[kx::max_piece_points];
  std::copy_n(piece, n + 1, high);
  for (int parts = needed <= 4.0 ? std::max(2, static_cast<int>(needed)) : 2; parts > 1; --parts) {
    kx::cut(high, n, 1.0 / parts, low, high);
    if (const std::int32_t fault = add_chords(low, n, tol, depth - 1, points)) return fault;
  }
  return add_chords(high, n, tol, depth - 1, points);
}

template <class D, class Points>
std::int32_t add_all_chords(const curve *c, double tol, Points &points) {
  if (!(tol > 0.0) || !std::isfinite(tol)) return kx::bad_value;
  kx::bezier_pieces<D> pieces;
  if (const std::int32_t fault = pieces.open(c)) return fault;
  return walk(pieces, points,
              [&](const auto *piece) { return add_chords(piece, pieces.degree(), tol, deepest, points); });
}

template <class D>
std::int32_t chords(const curve *c, double tol, std::int32_t capacity, double *out, std::int32_t *count) {
  if (count == nullptr || (out == nullptr && capacity > 0)) return kx::no_argument;
  if (capacity < 0) return kx::bad_value;
  array_of_points<D> points(out, capacity);
  const std::int32_t fault = add_all_chords<D>(c, tol, points);
  return fault ? fault : points.close(count);
}

template <class D>
std::int32_t chord_list(const curve *c, double tol, list_hdr *list) {
  if (!list_of_points<D>::accepts(list)) return kx::no_argument;
  list_of_points<D> points(*list);
  const std::int32_t fault = add_all_chords<D>(c, tol, points);
  if (fault == 0) points.hand_over();
  return fault;
}

}  // namespace

/* ---- curve sampling ---- */

std::int32_t KX_CALL kx_curve_pnts_2d(const curve *c, double from, double to, std::int32_t count, double *xy) {
  return equal_parameters<plane>(c, from, to, count, xy);
}

std::int32_t KX_CALL kx_curve_pnts_3d(const curve *c, double from, double to, std::int32_t count, double *xyz) {
  return equal_parameters<space>(c, from, to, count, xyz);
}

std::int32_t KX_CALL kx_curve_steps_2d(const curve *c, std::int32_t steps, std::int32_t capacity, double *xy,
                                       std::int32_t *count) {
  return stepped<plane>(c, steps, capacity, xy, count);
}

std::int32_t KX_CALL kx_curve_steps_3d(const curve *c, std::int32_t steps, std::int32_t capacity, double *xyz,
                                       std::int32_t *count) {
  return stepped<space>(c, steps, capacity, xyz, count);
}

std::int32_t KX_CALL kx_curve_chords_2d(const curve *c, double tol, std::int32_t capacity, double *xy,
                                        std::int32_t *count) {
  return chords<plane>(c, tol, capacity, xy, count);
}

std::int32_t KX_CALL kx_curve_chords_3d(const curve *c, double tol, std::int32_t capacity, double *xyz,
                                        std::int32_t *count) {
  return chords<space>(c, tol, capacity, xyz, count);
}

std::int32_t KX_CALL kx_curve_chordpnts_2d(const curve *c, double tol, list_hdr *pnts) {
  return chord_list<plane>(c, tol, pnts);
}

std::int32_t KX_CALL kx_curve_chordpnts_3d(const curve *c, double tol, list_hdr *pnts) {
  return chord_list<space>(c, tol, pnts);
}
