#pragma once
// A material of the demonstration model as a repository object: a name and an elastic
// property table (one row per data point: Young's modulus, Poisson's ratio, then the
// temperature and field columns it depends on). Scripts see
//
//   name                 read-only
//   elastic              the table as a tuple of rows; set it with a sequence of equally
//                        long sequences of numbers, which must pass validation
//   sort(keyColumns)     orders the rows by the last keyColumns columns (1 to the column
//                        count, else RangeError)
//   validate()           RuntimeError naming the first all-zero row
//   delete()             removes the material: this handle turns stale and every other
//                        handle on it raises AccessError
//
// Handles share one record, so a change through one is seen by all; two handles on the same
// material are equal (equality by path). Lives in the module, not the library.
#include <cow_String.h>
#include <mdl_PropertyTable.h>
#include <omu_InterfaceObj.h>
#include <omu_PrimLeaf.h>

#include <memory>

class py_DemoMaterial : public omu_PrimLeaf<py_DemoMaterial, omu_InterfaceObj> {
public:
  struct Record {
    cow_String name;
    mdl_PropertyTable elastic;
    bool deleted = false;
  };

  explicit py_DemoMaterial(std::shared_ptr<Record> record);

  omu_Primitive* Name() const;
  omu_Primitive* Elastic() const;
  omu_Primitive* SetElastic(omu_Arguments& args) const;
  omu_Primitive* Sort(omu_Arguments& args);
  omu_Primitive* Validate(omu_Arguments& args);
  omu_Primitive* Delete(omu_Arguments& args);
  // The material's path, mdb.models['Model-1'].materials['Steel'].
  cow_String FullRepr() const override { return PathString(); }

  // Sorts a table by its last keyColumns columns after checking the count, then validates it.
  static void SortAndValidate(mdl_PropertyTable& table, int keyColumns);

  static unsigned int TypeId() noexcept { return omu_InterfaceObj::TypeId(); }

private:
  // The record of a material not deleted; else AccessError.
  Record& Live() const;

  std::shared_ptr<Record> m_Record;
};
