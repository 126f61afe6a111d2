#include <g3d_Point.h>

#include <UTI_Modules.h>
#include <aio_ostream.h>
#include <cls_ClassRegistrar.h>
#include <cls_ReadVisitor.h>
#include <cls_TypeAdapter.h>
#include <cls_WriteVisitor.h>

g3d_Point::g3d_Point(const cls_ReadVisitor& reader)
    : x(reader.Get<float>("x")),
      y(reader.Get<float>("y")),
      z(reader.Get<float>("z")),
      w(reader.Get<float>("w")) {}

void g3d_Point::DBWrite(const cls_WriteVisitor& writer) const {
  if (!writer.StartWrite(TypeId(), cls_Uid())) return;
  writer.Write("x", x);
  writer.Write("y", y);
  writer.Write("z", z);
  writer.Write("w", w);
}

unsigned int g3d_Point::TypeId() noexcept { return g3d_TypeId(2); }

void g3d_Point::InitializeMetadata(cls_ClassRegistrar& registrar) {
  registrar.AddClassMD(new cls_TypeAdapter<g3d_Point>("g3d_Point", 800, cls_RootTypeId))
      .AddAttribute({0, "x"}, cls_KIND_FLOAT)
      .AddAttribute({1, "y"}, cls_KIND_FLOAT)
      .AddAttribute({2, "z"}, cls_KIND_FLOAT)
      .AddAttribute({3, "w"}, cls_KIND_FLOAT);
}

aio_ostream& operator<<(aio_ostream& out, const g3d_Point& p) {
  return out << "(" << double(p.x) << ", " << double(p.y) << ", " << double(p.z) << ", "
             << double(p.w) << ")";
}
