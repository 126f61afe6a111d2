#include <g3d_XForm.h>

#include <aio_ostream.h>

#include <cmath>
#include <cstring>
#include <utility>

#if defined(__SSE__) || defined(_M_X64)
#include <immintrin.h>
#define G3D_XFORM_SSE 1
#if defined(__GNUC__)
// Point arrays take two points a step where the processor has 256-bit vectors.
#define G3D_XFORM_AVX 1
#endif
#endif

namespace {
constexpr double kDegreesToRadians = 0.017453292519943295;

using Matrix = float[4][4];
using WideMatrix = double[4][4];

// The adjugate (transposed cofactor matrix), from the 2x2 minors of rows 0-1 and rows 2-3.
void Adjugate(const Matrix& m, WideMatrix& adj) noexcept {
  const auto a = [&m](int r, int c) { return double(m[r][c]); };
  const double s0 = a(0, 0) * a(1, 1) - a(1, 0) * a(0, 1);
  const double s1 = a(0, 0) * a(1, 2) - a(1, 0) * a(0, 2);
  const double s2 = a(0, 0) * a(1, 3) - a(1, 0) * a(0, 3);
  const double s3 = a(0, 1) * a(1, 2) - a(1, 1) * a(0, 2);
  const double s4 = a(0, 1) * a(1, 3) - a(1, 1) * a(0, 3);
  const double s5 = a(0, 2) * a(1, 3) - a(1, 2) * a(0, 3);
  const double c0 = a(2, 0) * a(3, 1) - a(3, 0) * a(2, 1);
  const double c1 = a(2, 0) * a(3, 2) - a(3, 0) * a(2, 2);
  const double c2 = a(2, 0) * a(3, 3) - a(3, 0) * a(2, 3);
  const double c3 = a(2, 1) * a(3, 2) - a(3, 1) * a(2, 2);
  const double c4 = a(2, 1) * a(3, 3) - a(3, 1) * a(2, 3);
  const double c5 = a(2, 2) * a(3, 3) - a(3, 2) * a(2, 3);
  adj[0][0] = a(1, 1) * c5 - a(1, 2) * c4 + a(1, 3) * c3;
  adj[0][1] = -a(0, 1) * c5 + a(0, 2) * c4 - a(0, 3) * c3;
  adj[0][2] = a(3, 1) * s5 - a(3, 2) * s4 + a(3, 3) * s3;
  adj[0][3] = -a(2, 1) * s5 + a(2, 2) * s4 - a(2, 3) * s3;
  adj[1][0] = -a(1, 0) * c5 + a(1, 2) * c2 - a(1, 3) * c1;
  adj[1][1] = a(0, 0) * c5 - a(0, 2) * c2 + a(0, 3) * c1;
  adj[1][2] = -a(3, 0) * s5 + a(3, 2) * s2 - a(3, 3) * s1;
  adj[1][3] = a(2, 0) * s5 - a(2, 2) * s2 + a(2, 3) * s1;
  adj[2][0] = a(1, 0) * c4 - a(1, 1) * c2 + a(1, 3) * c0;
  adj[2][1] = -a(0, 0) * c4 + a(0, 1) * c2 - a(0, 3) * c0;
  adj[2][2] = a(3, 0) * s4 - a(3, 1) * s2 + a(3, 3) * s0;
  adj[2][3] = -a(2, 0) * s4 + a(2, 1) * s2 - a(2, 3) * s0;
  adj[3][0] = -a(1, 0) * c3 + a(1, 1) * c1 - a(1, 2) * c0;
  adj[3][1] = a(0, 0) * c3 - a(0, 1) * c1 + a(0, 2) * c0;
  adj[3][2] = -a(3, 0) * s3 + a(3, 1) * s1 - a(3, 2) * s0;
  adj[3][3] = a(2, 0) * s3 - a(2, 1) * s1 + a(2, 2) * s0;
}

// Expansion along row 0: the cofactors of row 0 are column 0 of the adjugate.
double RowZeroExpansion(const Matrix& m, const WideMatrix& adj) noexcept {
  return m[0][0] * adj[0][0] + m[0][1] * adj[1][0] + m[0][2] * adj[2][0] + m[0][3] * adj[3][0];
}

// p' = sum over j of column j times p_j, in the order j = 0 .. 3, whichever path runs.
class ColumnForm {
public:
  explicit ColumnForm(const g3d_XForm& x) noexcept {
#ifdef G3D_XFORM_SSE
    for (int j = 0; j < 4; ++j) {
      m_Columns[j] = _mm_setr_ps(x.GetM(0, j), x.GetM(1, j), x.GetM(2, j), x.GetM(3, j));
    }
#else
    for (int j = 0; j < 4; ++j) {
      for (int i = 0; i < 4; ++i) m_Columns[j][i] = x.GetM(i, j);
    }
#endif
  }

  void Apply(g3d_Point& p) const noexcept {
#ifdef G3D_XFORM_SSE
    const __m128 v = _mm_loadu_ps(&p.x);
    __m128 r = _mm_mul_ps(m_Columns[0], _mm_shuffle_ps(v, v, _MM_SHUFFLE(0, 0, 0, 0)));
    r = _mm_add_ps(r, _mm_mul_ps(m_Columns[1], _mm_shuffle_ps(v, v, _MM_SHUFFLE(1, 1, 1, 1))));
    r = _mm_add_ps(r, _mm_mul_ps(m_Columns[2], _mm_shuffle_ps(v, v, _MM_SHUFFLE(2, 2, 2, 2))));
    r = _mm_add_ps(r, _mm_mul_ps(m_Columns[3], _mm_shuffle_ps(v, v, _MM_SHUFFLE(3, 3, 3, 3))));
    _mm_storeu_ps(&p.x, r);
#else
    const float in[4] = {p.x, p.y, p.z, p.w};
    float out[4];
    for (int i = 0; i < 4; ++i) {
      out[i] = m_Columns[0][i] * in[0] + m_Columns[1][i] * in[1] + m_Columns[2][i] * in[2] +
               m_Columns[3][i] * in[3];
    }
    p = g3d_Point(out[0], out[1], out[2], out[3]);
#endif
  }

#ifdef G3D_XFORM_AVX
  // Applies to the leading pairs of points and answers how many it did. Each half of a vector
  // does what Apply does, product for product in the same order, so the results are the same.
  __attribute__((target("avx"))) int ApplyPairs(g3d_Point* points, int n) const noexcept {
    const __m256 c0 = _mm256_set_m128(m_Columns[0], m_Columns[0]);
    const __m256 c1 = _mm256_set_m128(m_Columns[1], m_Columns[1]);
    const __m256 c2 = _mm256_set_m128(m_Columns[2], m_Columns[2]);
    const __m256 c3 = _mm256_set_m128(m_Columns[3], m_Columns[3]);
    int i = 0;
    for (; i + 2 <= n; i += 2) {
      const __m256 v = _mm256_loadu_ps(&points[i].x);
      __m256 r = _mm256_mul_ps(c0, _mm256_shuffle_ps(v, v, _MM_SHUFFLE(0, 0, 0, 0)));
      r = _mm256_add_ps(r, _mm256_mul_ps(c1, _mm256_shuffle_ps(v, v, _MM_SHUFFLE(1, 1, 1, 1))));
      r = _mm256_add_ps(r, _mm256_mul_ps(c2, _mm256_shuffle_ps(v, v, _MM_SHUFFLE(2, 2, 2, 2))));
      r = _mm256_add_ps(r, _mm256_mul_ps(c3, _mm256_shuffle_ps(v, v, _MM_SHUFFLE(3, 3, 3, 3))));
      _mm256_storeu_ps(&points[i].x, r);
    }
    return i;
  }
#endif

private:
#ifdef G3D_XFORM_SSE
  __m128 m_Columns[4]{};
#else
  float m_Columns[4][4]{};
#endif
};
static_assert(sizeof(g3d_Point) == 4 * sizeof(float), "points are read as four packed floats");

g3d_Vector Linear(const g3d_XForm& m, const g3d_Vector& v) noexcept {
  return {m.GetM(0, 0) * v.x + m.GetM(0, 1) * v.y + m.GetM(0, 2) * v.z,
          m.GetM(1, 0) * v.x + m.GetM(1, 1) * v.y + m.GetM(1, 2) * v.z,
          m.GetM(2, 0) * v.x + m.GetM(2, 1) * v.y + m.GetM(2, 2) * v.z};
}

// Four elements per pass, then the rest one by one.
template <class T, class Apply>
void InFours(T* items, int n, Apply&& apply) noexcept {
  int i = 0;
  for (; i + 4 <= n; i += 4) {
    apply(items[i]);
    apply(items[i + 1]);
    apply(items[i + 2]);
    apply(items[i + 3]);
  }
  for (; i < n; ++i) apply(items[i]);
}
}  // namespace

g3d_XForm& g3d_XForm::SetIdentity() noexcept {
  for (int i = 0; i < 4; ++i) {
    for (int j = 0; j < 4; ++j) m_M[i][j] = i == j ? 1.0f : 0.0f;
  }
  return *this;
}

g3d_XForm& g3d_XForm::SetM(const float m[4][4]) noexcept {
  // Element by element: g++ 12 misreads a memcpy of the whole array, once inlined, as
  // overflowing the first row.
  for (int i = 0; i < 4; ++i) {
    for (int j = 0; j < 4; ++j) m_M[i][j] = m[i][j];
  }
  return *this;
}

g3d_XForm& g3d_XForm::SetM(const double m[4][4]) noexcept {
  for (int i = 0; i < 4; ++i) {
    for (int j = 0; j < 4; ++j) m_M[i][j] = static_cast<float>(m[i][j]);
  }
  return *this;
}

void g3d_XForm::GetM(float m[4][4]) const noexcept { std::memcpy(m, m_M, sizeof m_M); }

void g3d_XForm::GetM(double m[4][4]) const noexcept {
  for (int i = 0; i < 4; ++i) {
    for (int j = 0; j < 4; ++j) m[i][j] = m_M[i][j];
  }
}

void g3d_XForm::GetTranspose(double out[16]) const noexcept {
  for (int i = 0; i < 4; ++i) {
    for (int j = 0; j < 4; ++j) out[4 * j + i] = m_M[i][j];
  }
}

g3d_XForm& g3d_XForm::Set(const g3d_Vector& a, const g3d_Vector& b, const g3d_Vector& c) noexcept {
  const float rows[4][4] = {
      {a.x, b.x, c.x, 0.0f}, {a.y, b.y, c.y, 0.0f}, {a.z, b.z, c.z, 0.0f}, {0, 0, 0, 1.0f}};
  return SetM(rows);
}

g3d_XForm& g3d_XForm::SetTranslate(const g3d_Vector& t) noexcept {
  SetIdentity();
  m_M[0][3] = t.x;
  m_M[1][3] = t.y;
  m_M[2][3] = t.z;
  return *this;
}

g3d_XForm& g3d_XForm::SetTranslate(const g3d_Point& p) noexcept {
  const g3d_Vector t(p.x, p.y, p.z);
  return SetTranslate(g3d_IsCartesian(p) ? t : t * (1.0f / p.w));
}

g3d_XForm& g3d_XForm::Translate(float x, float y, float z) noexcept {
  return *this *= g3d_XForm().SetTranslate(g3d_Vector(x, y, z));
}

g3d_XForm& g3d_XForm::SetScale(float sx, float sy, float sz) noexcept {
  SetIdentity();
  m_M[0][0] = sx;
  m_M[1][1] = sy;
  m_M[2][2] = sz;
  return *this;
}

g3d_XForm& g3d_XForm::Scale(float sx, float sy, float sz) noexcept {
  for (auto& row : m_M) {
    row[0] *= sx;
    row[1] *= sy;
    row[2] *= sz;
  }
  return *this;
}

g3d_XForm& g3d_XForm::SetRotate(float degrees, const g3d_Vector& axis) noexcept {
  SetIdentity();
  const float length = axis.Length();
  if (degrees == 0.0f || length == 0.0f) return *this;
  const auto radians = static_cast<float>(degrees * kDegreesToRadians);
  const float c = std::cos(radians), s = std::sin(radians), k = 1.0f - c;
  const g3d_Vector u = axis / length;
  const float x = u.x, y = u.y, z = u.z;
  const float rows[4][4] = {{x * x + (1 - x * x) * c, x * y * k - z * s, x * z * k + y * s, 0},
                            {x * y * k + z * s, y * y + (1 - y * y) * c, y * z * k - x * s, 0},
                            {x * z * k - y * s, y * z * k + x * s, z * z + (1 - z * z) * c, 0},
                            {0, 0, 0, 1}};
  return SetM(rows);
}

g3d_XForm& g3d_XForm::Rotate(float degrees, const g3d_Vector& axis) noexcept {
  if (degrees == 0.0f || axis.Length() == 0.0f) return *this;
  return *this *= g3d_XForm().SetRotate(degrees, axis);
}

g3d_XForm& g3d_XForm::SetRotate3d(const float q[4]) noexcept {
  SetIdentity();
  const float w = q[3];
  for (int i = 0; i < 3; ++i) {
    const int j = (i + 1) % 3, k = (i + 2) % 3;
    m_M[i][i] = w * w + q[i] * q[i] - q[j] * q[j] - q[k] * q[k];
    m_M[i][j] = 2 * q[i] * q[j] - 2 * q[k] * w;
    m_M[j][i] = 2 * q[i] * q[j] + 2 * q[k] * w;
  }
  return *this;
}

g3d_XForm& g3d_XForm::SetRotate2d(const float c[2]) noexcept {
  const float q[4] = {0.0f, 0.0f, c[0], c[1]};
  return SetRotate3d(q);
}

double g3d_XForm::Determinant() const noexcept {
  WideMatrix adj;
  Adjugate(m_M, adj);
  return RowZeroExpansion(m_M, adj);
}

g3d_XForm& g3d_XForm::Transpose() noexcept {
  for (int i = 0; i < 4; ++i) {
    for (int j = i + 1; j < 4; ++j) std::swap(m_M[i][j], m_M[j][i]);
  }
  return *this;
}

g3d_XForm& g3d_XForm::Invert() noexcept {
  WideMatrix adj;
  Adjugate(m_M, adj);
  const double det = RowZeroExpansion(m_M, adj);
  if (det == 0.0) return *this;
  const double inverse = 1.0 / det;
  for (int i = 0; i < 4; ++i) {
    for (int j = 0; j < 4; ++j) m_M[i][j] = static_cast<float>(adj[i][j] * inverse);
  }
  return *this;
}

void g3d_XForm::XForm(g3d_Point* points, int n) const noexcept {
  const ColumnForm form(*this);
  int done = 0;
#ifdef G3D_XFORM_AVX
  static const bool pairs = __builtin_cpu_supports("avx");  // asked once per process
  if (pairs) done = form.ApplyPairs(points, n);
#endif
  InFours(points + done, n - done, [&form](g3d_Point& p) { form.Apply(p); });
}

void g3d_XForm::XForm(g3d_Vector* vectors, int n) const noexcept {
  InFours(vectors, n, [this](g3d_Vector& v) { v = Linear(*this, v); });
}

namespace {
// The projections' six variable entries, numerators over denominators in double, two to a
// vector: each lane rounds as a scalar division does, at half the divisions' cost. The camera
// rebuilds a projection after every change of its window.
typedef double Pair __attribute__((vector_size(16)));  // NOLINT(modernize-use-using)

struct Entries {
  Pair x, y, z;  // row 0's pair, row 1's, row 2's
};

// False unless every quotient has a finite float form.
bool Fits(const Entries& q) noexcept {
  constexpr double kFloatMax = 3.4028234663852886e38;
  bool fits = true;
  for (int i = 0; i < 2; ++i) {
    fits &= std::fabs(q.x[i]) <= kFloatMax && std::fabs(q.y[i]) <= kFloatMax &&
            std::fabs(q.z[i]) <= kFloatMax;
  }
  return fits;
}

float Narrow(double value) noexcept { return static_cast<float>(value); }
}  // namespace

g3d_XForm& g3d_XForm::SetPerspectiveProjection(float left, float right, float top, float bottom,
                                               float near, float far) noexcept {
  if (left == right || top == bottom || !(far > near && near > 0.0f)) return SetIdentity();
  const double l = left, r = right, t = top, b = bottom, n = near, f = far;
  const Entries q = {Pair{2 * n, r + l} / (r - l), Pair{2 * n, t + b} / (t - b),
                     Pair{-(f + n), -2 * f * n} / (f - n)};
  SetIdentity();
  if (!Fits(q)) return *this;
  // Entry by entry into the matrix: a whole row built on the stack and copied in is written
  // in four-byte pieces and read back in sixteen, which the processor cannot forward.
  m_M[0][0] = Narrow(q.x[0]);
  m_M[0][2] = Narrow(q.x[1]);
  m_M[1][1] = Narrow(q.y[0]);
  m_M[1][2] = Narrow(q.y[1]);
  m_M[2][2] = Narrow(q.z[0]);
  m_M[2][3] = Narrow(q.z[1]);
  m_M[3][2] = -1.0f;
  m_M[3][3] = 0.0f;
  return *this;
}

g3d_XForm& g3d_XForm::SetOrthographicProjection(float left, float right, float top, float bottom,
                                                float near, float far) noexcept {
  if (left == right || top == bottom || !(far > near)) return SetIdentity();
  const double l = left, r = right, t = top, b = bottom, n = near, f = far;
  const Entries q = {Pair{2, -(l + r)} / (r - l), Pair{2, -(t + b)} / (t - b),
                     Pair{-2, -(n + f)} / (f - n)};
  SetIdentity();
  if (!Fits(q)) return *this;
  m_M[0][0] = Narrow(q.x[0]);
  m_M[0][3] = Narrow(q.x[1]);
  m_M[1][1] = Narrow(q.y[0]);
  m_M[1][3] = Narrow(q.y[1]);
  m_M[2][2] = Narrow(q.z[0]);
  m_M[2][3] = Narrow(q.z[1]);
  return *this;
}

g3d_XForm& g3d_XForm::operator*=(const g3d_XForm& b) noexcept {
  Matrix product;
  for (int i = 0; i < 4; ++i) {
    for (int j = 0; j < 4; ++j) {
      product[i][j] = m_M[i][0] * b.m_M[0][j] + m_M[i][1] * b.m_M[1][j] + m_M[i][2] * b.m_M[2][j] +
                      m_M[i][3] * b.m_M[3][j];
    }
  }
  return SetM(product);
}

int g3d_XForm::operator==(const g3d_XForm& other) const noexcept {
  if (this == &other) return 1;
  for (int i = 0; i < 4; ++i) {
    for (int j = 0; j < 4; ++j) {
      if (!(m_M[i][j] == other.m_M[i][j])) return 0;
    }
  }
  return 1;
}

g3d_XForm operator*(const g3d_XForm& a, const g3d_XForm& b) noexcept {
  g3d_XForm product(a);
  return product *= b;
}

aio_ostream& operator<<(aio_ostream& out, const g3d_XForm& m) {
  (out << "\n").Flush();
  (out << "{\n").Flush();
  for (int i = 0; i < 4; ++i) {
    out << "  " << double(m.GetM(i, 0)) << " " << double(m.GetM(i, 1)) << " "
        << double(m.GetM(i, 2)) << " " << double(m.GetM(i, 3)) << "\n";
    out.Flush();
  }
  return (out << "}\n").Flush();
}
