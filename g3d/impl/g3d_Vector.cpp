#include <g3d_Vector.h>

#include <UTI_Modules.h>
#include <aio_ostream.h>
#include <cls_ClassRegistrar.h>
#include <cls_ReadVisitor.h>
#include <cls_TypeAdapter.h>
#include <cls_WriteVisitor.h>

#include <cfloat>
#include <cmath>

namespace {
constexpr double kParallelCosine = 0.99999;  // snaps nearly parallel vectors to 0 and pi
constexpr float kPi = 3.1415927f;
constexpr double kTwoPi = 6.283185307179586;
}  // namespace

g3d_Vector::g3d_Vector(const cls_ReadVisitor& reader)
    : x(reader.Get<float>("x")), y(reader.Get<float>("y")), z(reader.Get<float>("z")) {}

float g3d_Vector::AngleWith(const g3d_Vector& other, bool normalized) const noexcept {
  float c = g3d_Dot(*this, other);
  if (!normalized) {
    const float a = Length(), b = other.Length();
    c = (a > 0.0f && b > 0.0f) ? c / (a * b) : 0.0f;
  }
  if (c >= kParallelCosine) return 0.0f;
  if (c <= -kParallelCosine) return kPi;
  return std::acos(c);
}

float g3d_Vector::AngleWith(const g3d_Vector& other, bool normalized,
                            const g3d_Vector& reference) const noexcept {
  const float angle = AngleWith(other, normalized);
  if (g3d_TripleProduct(*this, other, reference) < 0.0f) {
    return static_cast<float>(kTwoPi - angle);
  }
  return angle;
}

void g3d_Vector::DBWrite(const cls_WriteVisitor& writer) const {
  if (!writer.StartWrite(TypeId(), cls_Uid())) return;
  writer.Write("x", x);
  writer.Write("y", y);
  writer.Write("z", z);
}

unsigned int g3d_Vector::TypeId() noexcept { return g3d_TypeId(1); }

void g3d_Vector::InitializeMetadata(cls_ClassRegistrar& registrar) {
  registrar.AddClassMD(new cls_TypeAdapter<g3d_Vector>("g3d_Vector", 800, cls_RootTypeId))
      .AddAttribute({0, "x"}, cls_KIND_FLOAT)
      .AddAttribute({1, "y"}, cls_KIND_FLOAT)
      .AddAttribute({2, "z"}, cls_KIND_FLOAT);
}

aio_ostream& operator<<(aio_ostream& out, const g3d_Vector& v) {
  return out << "(" << double(v.x) << ", " << double(v.y) << ", " << double(v.z) << ")";
}
