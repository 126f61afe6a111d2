#include "DemoPart.h"

#include <omu_NameString.h>
#include <omu_PrimNumber.h>
#include <omu_PrimString.h>
#include <omu_PrimType.h>
#include <omu_RangeChecker.h>

DemoFeature::DemoFeature(const omu_Shortcut& path) : omu_InterfaceObj(path) {
  static const memberTable members[] = {{"type", &Read<DemoFeature, &DemoFeature::Type>, nullptr},
                                        {nullptr, nullptr, nullptr}};
  DescribeType("Feature", nullptr, members);
}

omu_Primitive* DemoFeature::Type() const { return new omu_PrimType(*this); }

DemoPart::DemoPart(std::shared_ptr<DemoPartRecord> record)
    : omu_PrimLeaf(omu_Shortcut("mdb.models['Model-1'].parts[" +
                                omu_NameString(record->name).StdString() + "]")),
      m_Record(std::move(record)) {
  static const methodTable methods[] = {{"setValues", &Call<DemoPart, &DemoPart::SetValues>},
                                        {nullptr, nullptr}};
  static const memberTable members[] = {
      {"name", &Read<DemoPart, &DemoPart::Name>, nullptr},
      {"size", &Read<DemoPart, &DemoPart::Size>, &Write<DemoPart, &DemoPart::SetSize>},
      {nullptr, nullptr, nullptr}};
  DescribeType("Part", methods, members);
}

omu_Primitive* DemoPart::Name() const { return new omu_PrimString(m_Record->name); }

omu_Primitive* DemoPart::Size() const { return new omu_PrimNumber(m_Record->size); }

omu_Primitive* DemoPart::SetSize(omu_Arguments& args) const {
  double size = 0;
  args.Begin();
  args.Get(size, "size");
  args.End("size");
  omu_RangeChecker::CheckGreaterThan("size", 0.0, false, size);
  m_Record->size = size;
  return Size();
}

// setValues(name, size, count=1): binds, checks the name and the ranges, and answers the
// part's new description.
omu_Primitive* DemoPart::SetValues(omu_Arguments& args) {
  omu_CorvexName name("unchanged", omu_SHORT_GENERAL_NAME);
  double size = 0;
  int count = m_Record->count;
  args.Begin();
  args.Get(name, "name");
  args.Get(size, "size");
  args.Optional();
  args.Get(count, "count");
  args.End("setValues");
  omu_RangeChecker::CheckGreaterThan("size", 0.0, false, size);
  omu_RangeChecker::CheckInRange("count", 1, true, count, 100, true);
  m_Record->name = name.Name();
  m_Record->size = size;
  m_Record->count = count;
  return new omu_PrimString(FullRepr());
}

cow_String DemoPart::FullRepr() const {
  return atr_StringBase::Format("part %s of size %s, %d instance(s)",
                                omu_NameString(m_Record->name).CStr(),
                                atr_StringBase(m_Record->size).CStr(), m_Record->count);
}
