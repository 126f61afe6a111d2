#pragma once
// What the g3d tests share: points through a transform, points compared within a tolerance,
// and the text the library's stream writes.
#include <g3d_XForm.h>

#include <aio_ostream.h>

#include <gtest/gtest.h>

#include <sstream>
#include <string>

inline g3d_Point Through(const g3d_XForm& m, g3d_Point p) {
  m.XForm(&p, 1);
  return p;
}

inline void ExpectNear(const g3d_Point& a, const g3d_Point& b, float tol = 1e-6f) {
  EXPECT_NEAR(a.x, b.x, tol);
  EXPECT_NEAR(a.y, b.y, tol);
  EXPECT_NEAR(a.z, b.z, tol);
  EXPECT_NEAR(a.w, b.w, tol);
}

template <class T>
std::string Printed(const T& value) {
  std::ostringstream text;
  aio_ostream out(&text);
  out << value;
  return text.str();
}
