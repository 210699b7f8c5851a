#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <string>
#include <vector>

#include "kxgeom/transform.h"
#include "support/faults.hpp"
#include "support/message_folder.hpp"

namespace {

constexpr double pi = std::numbers::pi;

template <class From, class To>
To converted(int32_t(KX_CALL *convert)(const From *, To *), const From &from) {
  To to{};
  EXPECT_EQ(convert(&from, &to), 0);
  return to;
}

void expect_same(const pnt_3d &a, const pnt_3d &b) {
  const double distance = std::hypot(a.x, a.y, a.z);
  EXPECT_LE(std::hypot(a.x - b.x, a.y - b.y, a.z - b.z), 1e-15 * distance) << a.x << " " << a.y << " " << a.z;
}

TEST(Coordinates, EveryWayRoundLeadsBack) {
  const double places[] = {0.0, -0.0, 1e-9, -1e-9, 0.7, -0.7, 1.0, -1.0, 3e4, -3e4};
  for (const double scale : {1e-150, 1.0, 1e150}) {
    for (int n = 0; n < 1000; ++n) {
      const pnt_3d p{scale * places[n % 10], scale * places[n / 10 % 10], scale * places[n / 100]};
      const cylcoord c = converted(kx_recttocyl, p);
      const sphercoord s = converted(kx_recttospher, p);
      const polarcoord d = converted(kx_recttopolar, p);
      EXPECT_TRUE(c.r >= 0 && c.theta >= 0 && c.theta <= 2 * pi && c.theta == s.theta && c.z == p.z);
      EXPECT_TRUE(s.phi >= 0 && s.phi <= pi && s.r == d.r && s.phi == d.gamma);
      for (const cylcoord &way : {c, converted(kx_sphertocyl, s), converted(kx_polartocyl, d)})
        expect_same(p, converted(kx_cyltorect, way));
      for (const sphercoord &way : {s, converted(kx_cyltospher, c), converted(kx_polartospher, d)})
        expect_same(p, converted(kx_sphertorect, way));
      for (const polarcoord &way : {d, converted(kx_cyltopolar, c), converted(kx_sphertopolar, s)})
        expect_same(p, converted(kx_polartorect, way));
    }
  }
}

TEST(Coordinates, SphericalAnglesOutOfRangeAreReported) {
  const message_folder folder;
  const struct {
    double theta, phi;
    int32_t status;
  } table[] = {{-0.9e-7, -0.9e-7, 0}, {6.2831853072 + 7.2e-7, 3.1415926536 + 4.1e-7, 0},
               {-1.1e-7, 9, 59},      {6.2831853072 + 7.4e-7, 1, 59},
               {1, -1.1e-7, 60},      {1, 3.1415926536 + 4.2e-7, 60},
               {1, INFINITY, 60}};
  for (const auto &[theta, phi, status] : table) {
    const sphercoord s{1, theta, phi};
    cylcoord c{7, 7, 7};
    polarcoord d{7, 7, 7, 7};
    pnt_3d p{7, 7, 7};
    faults::clear_messages();
    for (const int32_t got : {kx_sphertocyl(&s, &c), kx_sphertopolar(&s, &d), kx_sphertorect(&s, &p)})
      EXPECT_EQ(got, status) << theta << " " << phi;
    EXPECT_TRUE(status ? c.z == 7 && d.gamma == 7 && p.z == 7 : c.z != 7 && d.gamma != 7 && p.z != 7);
    std::vector<std::string> texts;
    const std::string code = status == 59 ? "SPHRTHETA" : "SPHRPHI", number = std::to_string(status);
    for (const char *location : {"kx_sphertocyl", "kx_sphertocyl", "kx_sphertorect"})
      if (status) texts.push_back(code + "&msgrec[i]\nLocation: " + location + " Error Nr: " + number);
    EXPECT_EQ(faults::messages(), texts);
  }
}

}  // namespace
