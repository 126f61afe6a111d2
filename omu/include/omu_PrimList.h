#pragma once
/// \addtogroup omu
/// @{

/// \class omu_PrimList
/// A script list: a tuple that Put may grow up to its maximum size.
#include <omu_PrimTuple.h>

class CVX_EXPORT omu_PrimList : public omu_PrimLeaf<omu_PrimList, omu_PrimTuple> {
public:
  explicit omu_PrimList(int size = 0, char typeCode = '(');
  omu_PrimList(int size, int maxSize, char typeCode);
  omu_PrimList(const cow_List<int>& values, char typeCode);
  omu_PrimList(const cow_List<cow_String>& values, char typeCode);
  omu_PrimList(const cow_List<omu_PrimEnumBase>& values, char typeCode);
  omu_PrimList(const omu_PrimList&) = default;
  omu_PrimList& operator=(const omu_PrimList&) = default;
  explicit omu_PrimList(const cls_ReadVisitor& reader);

  cow_String TypeString() const override { return "list"; }
  void DBWrite(const cls_WriteVisitor& writer) const override;
  omu_PrimSequence* Slice(int from, int to) const override;
  omu_PrimSequence* Repeat(int times) const override;
  omu_PrimSequence* Concat(omu_PrimSequence* other) const override;

  int MaxSize() const noexcept { return m_MaxSize; }

  static unsigned int TypeId() noexcept { return omu_TypeId(21); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

protected:
  int Capacity() const noexcept override { return m_MaxSize; }

private:
  template <class T>
  void Fill(const cow_List<T>& values);

  int m_MaxSize = 0;
  cls_Uid m_ListUid;
};

/// @}
