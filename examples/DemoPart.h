#pragma once
// A repository part as the application describes it to scripts, level by level: the feature
// level gives a read-only "type" member; the part level a "name" member, a "size" member that
// scripts may set, and the method setValues(name, size, count=1).
#include <omu_Arguments.h>
#include <omu_InterfaceObj.h>
#include <omu_PrimLeaf.h>

#include <memory>

struct DemoPartRecord {
  cow_String name;
  double size = 1.0;
  int count = 1;
};

class DemoFeature : public omu_InterfaceObj {
public:
  explicit DemoFeature(const omu_Shortcut& path);
  omu_Primitive* Type() const;
};

class DemoPart : public omu_PrimLeaf<DemoPart, DemoFeature> {
public:
  explicit DemoPart(std::shared_ptr<DemoPartRecord> record);

  omu_Primitive* Name() const;
  omu_Primitive* Size() const;
  omu_Primitive* SetSize(omu_Arguments& args) const;
  omu_Primitive* SetValues(omu_Arguments& args);
  cow_String FullRepr() const override;

private:
  std::shared_ptr<DemoPartRecord> m_Record;
};
