#pragma once
// Repository object types for the interface-object tests: a feature level and a part level
// that overrides one of its members, as the application's describing classes are built.
#include <omu_InterfaceObj.h>
#include <omu_PrimLeaf.h>
#include <omu_PrimType.h>

#include <memory>

// The repository's record of a part; handles share it.
struct TestPartData {
  cow_String name = "Part-1";
};

class TestFeature : public omu_InterfaceObj {
public:
  TestFeature(std::shared_ptr<TestPartData> data, const omu_Shortcut& path,
              const omu_OperationRules& rules = omu_OperationRules())
      : omu_InterfaceObj(path, rules), m_Data(std::move(data)) {
    static const methodTable methods[] = {
        {"regenerate", &Call<TestFeature, &TestFeature::Regenerate>}, {nullptr, nullptr}};
    static const memberTable members[] = {
        {"name", &Read<TestFeature, &TestFeature::Label>, nullptr},
        {"kind", &Read<TestFeature, &TestFeature::Kind>, nullptr},
        {nullptr, nullptr, nullptr}};
    DescribeType("Feature", methods, members);
  }
  omu_Primitive* Copy() const override { return new TestFeature(*this); }
  omu_Primitive* Regenerate(omu_Arguments&) { return nullptr; }
  omu_Primitive* Label() const { return new omu_PrimType("feature"); }
  omu_Primitive* Kind() const { return new omu_PrimType("Feature"); }
  TestPartData& Data() const { return *m_Data; }

private:
  std::shared_ptr<TestPartData> m_Data;
};

class TestPart : public omu_PrimLeaf<TestPart, TestFeature> {
public:
  explicit TestPart(const std::shared_ptr<TestPartData>& data,
                    const omu_OperationRules& rules = omu_OperationRules())
      : omu_PrimLeaf(data, omu_Shortcut("mdb.models['M'].parts['" + data->name.StdString() + "']"),
                     rules) {
    static const memberTable members[] = {{"name", &Read<TestPart, &TestPart::Name>, nullptr},
                                          {"_secret", &Read<TestPart, &TestPart::Name>, nullptr},
                                          {nullptr, nullptr, nullptr}};
    static const deprecatedMemberTable oldMembers[] = {
        {"partName", &Read<TestPart, &TestPart::Name>, nullptr, "name"},
        {nullptr, nullptr, nullptr, nullptr}};
    DescribeType("Part", nullptr, members, nullptr, oldMembers);
  }
  omu_Primitive* Name() const { return new omu_PrimType(Data().name); }
};
