// Eight numbers side by side. Each goes through the operations that it would go through alone, to the same bits; the
// processor does two at a time and need not wait for one result before it begins the next.
#pragma once

namespace kx {

class eight {
 public:
  eight() = default;
  explicit eight(double x) : a_{x, x}, b_{x, x}, c_{x, x}, d_{x, x} {}
  explicit eight(const double *x) : a_{x[0], x[1]}, b_{x[2], x[3]}, c_{x[4], x[5]}, d_{x[6], x[7]} {}
  void store(double *x) const {
    x[0] = a_[0], x[1] = a_[1], x[2] = b_[0], x[3] = b_[1];
    x[4] = c_[0], x[5] = c_[1], x[6] = d_[0], x[7] = d_[1];
  }

  friend eight operator+(eight x, eight y) { return {x.a_ + y.a_, x.b_ + y.b_, x.c_ + y.c_, x.d_ + y.d_}; }
  friend eight operator-(eight x, eight y) { return {x.a_ - y.a_, x.b_ - y.b_, x.c_ - y.c_, x.d_ - y.d_}; }
  friend eight operator*(eight x, eight y) { return {x.a_ * y.a_, x.b_ * y.b_, x.c_ * y.c_, x.d_ * y.d_}; }
  friend eight operator/(eight x, eight y) { return {x.a_ / y.a_, x.b_ / y.b_, x.c_ / y.c_, x.d_ / y.d_}; }

 private:
  using pair = double __attribute__((vector_size(16)));

  eight(pair a, pair b, pair c, pair d) : a_(a), b_(b), c_(c), d_(d) {}

  pair a_, b_, c_, d_;
};

}  // namespace kx
