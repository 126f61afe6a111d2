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
  /// Writes the object through writer: its class level, and its parent classes' levels within it.
  void DBWrite(const cls_WriteVisitor& writer) const override;

  /// The number of elements.
  virtual int Size() const = 0;
  /// The element at index. Tuples and lists lend it (null for an empty slot); arrays answer
  /// a new value that the caller owns.
  virtual const omu_Primitive* Index(int index) const = 0;
  /// New sequences, owned by the caller.
  virtual omu_PrimSequence* Slice(int from, int to) const = 0;
  /// The elements times times over (none for times 0 or less), as a new sequence owned by the
  /// caller.
  virtual omu_PrimSequence* Repeat(int times) const = 0;
  /// This sequence's elements followed by other's, as a new sequence owned by the caller.
  virtual omu_PrimSequence* Concat(omu_PrimSequence* other) const = 0;

  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept { return omu_TypeId(32); }
  /// Registers the class (name, version, parent) with registrar, so archives can read it back.
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

protected:
  /// A sequence of the kind typeCode names.
  explicit omu_PrimSequence(char typeCode) noexcept : omu_Primitive(typeCode) {}
  /// Reads the object back from the record reader is at.
  explicit omu_PrimSequence(const cls_ReadVisitor& reader);
  /// Member-wise copy.
  ///@{
  omu_PrimSequence(const omu_PrimSequence&) = default;
  omu_PrimSequence& operator=(const omu_PrimSequence&) = default;
  ///@}

private:
  cls_Uid m_SequenceUid;
};

/// @}
