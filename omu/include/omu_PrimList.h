#pragma once
/// \addtogroup omu
/// @{

/// \class omu_PrimList
/// A script list: a tuple that Put may grow up to its maximum size.
#include <omu_PrimTuple.h>

class CVX_EXPORT omu_PrimList : public omu_PrimLeaf<omu_PrimList, omu_PrimTuple> {
public:
  /// size unset slots, and no room to grow (maximum size = size).
  explicit omu_PrimList(int size = 0, char typeCode = '(');
  /// size unset slots; Put may grow it to maxSize.
  omu_PrimList(int size, int maxSize, char typeCode);
  /// One element per value, made by its binding; full (maximum size = length).
  ///@{
  omu_PrimList(const cow_List<int>& values, char typeCode);
  omu_PrimList(const cow_List<cow_String>& values, char typeCode);
  omu_PrimList(const cow_List<omu_PrimEnumBase>& values, char typeCode);
  ///@}
  /// Member-wise copy.
  ///@{
  omu_PrimList(const omu_PrimList&) = default;
  omu_PrimList& operator=(const omu_PrimList&) = default;
  ///@}
  /// Reads the object back from the record reader is at.
  explicit omu_PrimList(const cls_ReadVisitor& reader);

  cow_String TypeString() const override { return "list"; }
  /// Writes the object through writer: its class level, and its parent classes' levels within it.
  void DBWrite(const cls_WriteVisitor& writer) const override;
  omu_PrimSequence* Slice(int from, int to) const override;
  omu_PrimSequence* Repeat(int times) const override;
  omu_PrimSequence* Concat(omu_PrimSequence* other) const override;

  /// The size Put may grow the list to.
  int MaxSize() const noexcept { return m_MaxSize; }

  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept { return omu_TypeId(21); }
  /// Registers the class (name, version, parent) with registrar, so archives can read it back.
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
