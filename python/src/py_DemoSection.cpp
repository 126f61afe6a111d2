#include "py_DemoSection.h"

#include <omu_Arguments.h>
#include <omu_IndexErrorException.h>
#include <omu_KeyErrorException.h>
#include <omu_NameString.h>
#include <omu_OperationRules.h>
#include <omu_PrimNone.h>
#include <omu_PrimNumber.h>
#include <omu_PrimString.h>
#include <omu_RangeChecker.h>

namespace {
constexpr const char* kSource = "python/src/py_DemoSection";
using Status = omu_PrimEnum<mdl_PropagationStatusEnm, 1>;

// A value member's setter: binds the one value and stores it, which marks it SET.
template <class T>
void Assign(omu_Arguments& args, const char* member, mdl_PropAttr<T>& attribute) {
  T value{};
  args.Begin();
  args.Get(value, member);
  args.End(member);
  attribute = value;
}
}  // namespace

py_DemoSection::py_DemoSection(std::shared_ptr<Record> record)
    : omu_PrimLeaf(omu_Shortcut("mdb.models['Model-1'].sections[" +
                                omu_NameString(record->name).StdString() + "]"),
                   omu_OperationRules(true)),
      m_Record(std::move(record)) {
  using S = py_DemoSection;
  static const methodTable methods[] = {{"nextStep", &Call<S, &S::NextStep>},
                                        {"setStatus", &Call<S, &S::SetStatus>},
                                        {"statusAt", &Call<S, &S::StatusAt>},
                                        {nullptr, nullptr}};
  static const memberTable members[] = {
      {"name", &Read<S, &S::Name>, nullptr},
      {"thickness", &Read<S, &S::Thickness>, &Write<S, &S::SetThickness>},
      {"material", &Read<S, &S::Material>, &Write<S, &S::SetMaterial>},
      {"thicknessState", &Read<S, &S::ThicknessState>, nullptr},
      {"materialState", &Read<S, &S::MaterialState>, nullptr},
      {"statuses", &Read<S, &S::Statuses>, nullptr},
      {"userData", &Read<S, &S::UserData>, &Write<S, &S::SetUserData>},
      {nullptr, nullptr, nullptr}};
  DescribeType("Section", methods, members);
}

omu_Primitive* py_DemoSection::Name() const { return new omu_PrimString(m_Record->name); }
omu_Primitive* py_DemoSection::Thickness() const {
  return new omu_PrimNumber(m_Record->thickness.ConstGet());
}
omu_Primitive* py_DemoSection::Material() const {
  return new omu_PrimString(m_Record->material.ConstGet());
}

omu_Primitive* py_DemoSection::SetThickness(omu_Arguments& args) const {
  Assign(args, "thickness", m_Record->thickness);
  return Thickness();
}

omu_Primitive* py_DemoSection::SetMaterial(omu_Arguments& args) const {
  Assign(args, "material", m_Record->material);
  return Material();
}

omu_Primitive* py_DemoSection::ThicknessState() const {
  return new mdl_PropAttributeState(m_Record->thickness.State());
}

omu_Primitive* py_DemoSection::MaterialState() const {
  return new mdl_PropAttributeState(m_Record->material.State());
}

omu_Primitive* py_DemoSection::Statuses() const {
  auto* statuses = new omu_PrimTuple(m_Record->statuses.Length());
  for (const mdl_PropagationStatusEnm status : m_Record->statuses) statuses->Put(Status(status));
  return statuses;
}

omu_Primitive* py_DemoSection::UserData() const {
  return m_Record->userData ? m_Record->userData->Copy() : new omu_PrimNone();
}

omu_Primitive* py_DemoSection::SetUserData(omu_Arguments& args) const {
  // Any value: taken as it is, without a typed read.
  m_Record->userData.reset(args.Index(0)->Copy());
  return UserData();
}

omu_Primitive* py_DemoSection::NextStep(omu_Arguments& args) {
  Status status(PROPAGATED);
  args.Begin();
  args.Get(status, "status");
  args.End("nextStep");
  m_Record->thickness.Propagate();
  m_Record->material.Propagate();
  m_Record->statuses.Append(status);
  return nullptr;
}

omu_Primitive* py_DemoSection::SetStatus(omu_Arguments& args) {
  cow_String attribute;
  cow_String stateName;
  omu_PrimEnumBase stateConstant;
  args.Begin();
  args.Get(attribute, "attribute");
  // The state by name or as a constant.
  args.Get(stateName, "state");
  if (args.ErrorOnPrevious() && args.Alternative()) {
    args.Get(stateConstant, "state");
    stateName = stateConstant.Name();
  }
  args.End("setStatus");
  const mdl_PropAttributeState state(stateName);
  if (attribute == "thickness") {
    m_Record->thickness.SetStatus("thickness", state, false);
  } else if (attribute == "material") {
    m_Record->material.SetStatus("material", state, false);
  } else {
    NEX_THROW(omu_KeyErrorException(attribute), kSource);
  }
  return nullptr;
}

omu_Primitive* py_DemoSection::StatusAt(omu_Arguments& args) {
  int step = 0;
  args.Begin();
  args.Get(step, "step");
  args.End("statusAt");
  if (step < 0 || step >= m_Record->statuses.Length()) {
    NEX_THROW(omu_IndexErrorException(step), kSource);
  }
  return new Status(m_Record->statuses[step]);
}
