#pragma once
// A shell section of the demonstration model as a repository object: a thickness and a
// material name that are carried from analysis step to analysis step (mdl_PropAttr), with
// one propagation status per step. Scripts see
//
//   name                      read-only
//   thickness, material       the values in the current step; setting one marks it SET
//   thicknessState,
//   materialState             read-only, SymbolicConstant (UNSET, SET, UNCHANGED, FREED, ...)
//   statuses                  read-only, the status of every step so far, oldest first
//   userData                  any value the script keeps with the section, carried as it is
//                             (a script object comes back as the same object); None at first
//   nextStep(status)          opens the next step: each value set in this step is carried
//                             on UNCHANGED, a freed one becomes UNSET; status is one of the
//                             propagation statuses (a SymbolicConstant, TypeError otherwise)
//   setStatus(attribute, state)
//                             state (a SymbolicConstant or its name) for 'thickness' or
//                             'material': SET, UNCHANGED or FREED; an unknown attribute
//                             raises KeyError, an unknown state ValueError, a state not
//                             allowed here RuntimeError
//   statusAt(step)            the status of a step, 0 first; IndexError outside them
//
// Handles share one record; lives in the module, not the library.
#include <mdl_PropagatingAttribute.h>
#include <mdl_PropagationStatusEnm.h>
#include <omu_InterfaceObj.h>
#include <omu_PrimLeaf.h>

#include <memory>

class py_DemoSection : public omu_PrimLeaf<py_DemoSection, omu_InterfaceObj> {
public:
  struct Record {
    cow_String name;
    mdl_PropAttr<double> thickness;
    mdl_PropAttr<cow_String> material;
    mdl_PropagationStatusList statuses;
    std::shared_ptr<const omu_Primitive> userData;
  };

  explicit py_DemoSection(std::shared_ptr<Record> record);

  omu_Primitive* Name() const;
  omu_Primitive* Thickness() const;
  omu_Primitive* SetThickness(omu_Arguments& args) const;
  omu_Primitive* Material() const;
  omu_Primitive* SetMaterial(omu_Arguments& args) const;
  omu_Primitive* ThicknessState() const;
  omu_Primitive* MaterialState() const;
  omu_Primitive* Statuses() const;
  omu_Primitive* UserData() const;
  omu_Primitive* SetUserData(omu_Arguments& args) const;
  omu_Primitive* NextStep(omu_Arguments& args);
  omu_Primitive* SetStatus(omu_Arguments& args);
  omu_Primitive* StatusAt(omu_Arguments& args);
  cow_String FullRepr() const override { return PathString(); }

  static unsigned int TypeId() noexcept { return omu_InterfaceObj::TypeId(); }

private:
  std::shared_ptr<Record> m_Record;
};
