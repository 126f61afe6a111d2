#pragma once
/// \addtogroup omu
/// @{

/// \class omu_PrimSequence
/// An ordered container of primitives, indexable and sliceable from scripts.
#include <omu_Primitive.h>

class CVX_EXPORT omu_PrimSequence : public omu_Primitive {
public:
  cow_String TypeString() const override { return "PrimSequence"; }
  unsigned int DynTypeId() const override { return TypeId(); }
  void DBWrite(const cls_WriteVisitor& writer) const override;

  virtual int Size() const = 0;
  /// The element at index. Tuples and lists lend it (null for an empty slot); arrays answer
  /// a new value that the caller owns.
  virtual const omu_Primitive* Index(int index) const = 0;
  /// New sequences, owned by the caller.
  virtual omu_PrimSequence* Slice(int from, int to) const = 0;
  virtual omu_PrimSequence* Repeat(int times) const = 0;
  virtual omu_PrimSequence* Concat(omu_PrimSequence* other) const = 0;

  static unsigned int TypeId() noexcept { return omu_TypeId(32); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

protected:
  explicit omu_PrimSequence(char typeCode) noexcept : omu_Primitive(typeCode) {}
  explicit omu_PrimSequence(const cls_ReadVisitor& reader);
  omu_PrimSequence(const omu_PrimSequence&) = default;
  omu_PrimSequence& operator=(const omu_PrimSequence&) = default;

private:
  cls_Uid m_SequenceUid;
};

/// @}
