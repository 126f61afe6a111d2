#pragma once
/// \addtogroup g3d
/// @{

/// \class g3d_XForm
/// A 4x4 single-precision transform, stored row by row, acting on column vectors: p' = M p.
/// The translation is column 3 and the projective row is row 3. Every modifier multiplies
/// its factor on the right (M <- M F), so in a chain the last factor applies to points first.
/// A plain value: sixteen floats in one block, no heap storage.
#include <g3d_Point.h>

class CVX_EXPORT g3d_XForm {
public:
  g3d_XForm() noexcept { SetIdentity(); }
  /// The matrix m, row by row.
  ///@{
  explicit g3d_XForm(const float m[4][4]) noexcept { SetM(m); }
  explicit g3d_XForm(const double m[4][4]) noexcept { SetM(m); }
  ///@}

  /// Becomes the identity.
  g3d_XForm& SetIdentity() noexcept;

  /// Element (row, col); no bounds check.
  float& M(int row, int col) noexcept { return m_M[row][col]; }
  /// The same, read-only.
  const float& GetM(int row, int col) const noexcept { return m_M[row][col]; }
  /// Copies from or to a row-by-row array (doubles narrowed to float, or widened).
  ///@{
  g3d_XForm& SetM(const float m[4][4]) noexcept;
  g3d_XForm& SetM(const double m[4][4]) noexcept;
  void GetM(float m[4][4]) const noexcept;
  void GetM(double m[4][4]) const noexcept;
  ///@}
  /// The matrix in column-major order: out[4 j + i] = M(i, j).
  void GetTranspose(double out[16]) const noexcept;

  /// a, b, c become columns 0, 1, 2 of the upper 3x3; column 3 and row 3 those of I.
  g3d_XForm& Set(const g3d_Vector& a, const g3d_Vector& b, const g3d_Vector& c) noexcept;
  /// Becomes the translation by t.
  g3d_XForm& SetTranslate(const g3d_Vector& t) noexcept;
  /// The point is divided by its w first, unless w is 0 or 1.
  g3d_XForm& SetTranslate(const g3d_Point& p) noexcept;
  /// Multiplies by the translation on the right.
  g3d_XForm& Translate(float x, float y, float z) noexcept;
  /// Becomes the scaling by (sx, sy, sz).
  g3d_XForm& SetScale(float sx, float sy, float sz) noexcept;
  /// Multiplies by the scaling on the right.
  g3d_XForm& Scale(float sx, float sy, float sz) noexcept;
  /// Right-handed: a positive angle turns counter-clockwise seen from the axis's tip. A zero
  /// angle or a zero axis gives the identity (SetRotate) or no change (Rotate).
  ///@{
  g3d_XForm& SetRotate(float degrees, const g3d_Vector& axis) noexcept;
  g3d_XForm& Rotate(float degrees, const g3d_Vector& axis) noexcept;
  ///@}
  /// Quaternion (x, y, z, w); not normalised here, so pass a unit quaternion.
  g3d_XForm& SetRotate3d(const float q[4]) noexcept;
  /// Rotation about z by the quaternion (0, 0, c[0], c[1]).
  g3d_XForm& SetRotate2d(const float c[2]) noexcept;

  /// Of the full 4x4 matrix.
  double Determinant() const noexcept;
  /// In place.
  g3d_XForm& Transpose() noexcept;
  /// Through the adjugate; a singular matrix (determinant exactly 0) is left unchanged.
  g3d_XForm& Invert() noexcept;

  /// In place, all four components; no division by w follows. Two points a step where the
  /// processor has 256-bit vectors, with the same results as one at a time.
  void XForm(g3d_Point* points, int n) const noexcept;
  /// In place by the upper 3x3; the translation is ignored.
  void XForm(g3d_Vector* vectors, int n) const noexcept;

  /// Note the edge order: top before bottom. A degenerate frustum (l = r, t = b, or not
  /// far > near > 0), or one whose matrix has no finite float form, leaves the identity.
  g3d_XForm& SetPerspectiveProjection(float left, float right, float top, float bottom, float near,
                                      float far) noexcept;
  /// As above, but near may be zero or negative (only far > near is required).
  g3d_XForm& SetOrthographicProjection(float left, float right, float top, float bottom, float near,
                                       float far) noexcept;

  /// M <- M b.
  g3d_XForm& operator*=(const g3d_XForm& b) noexcept;
  /// False at the first unequal or NaN element, so a NaN makes even a copy unequal.
  int operator==(const g3d_XForm& other) const noexcept;
  /// Negation of operator==.
  int operator!=(const g3d_XForm& other) const noexcept { return !(*this == other); }

private:
  float m_M[4][4]{};
};

/// The product a b: b applies to points first.
CVX_EXPORT g3d_XForm operator*(const g3d_XForm& a, const g3d_XForm& b) noexcept;
/// A newline, "{", one line per row ("  " and four numbers), "}"; flushed line by line.
CVX_EXPORT aio_ostream& operator<<(aio_ostream& out, const g3d_XForm& m);

/// @}
