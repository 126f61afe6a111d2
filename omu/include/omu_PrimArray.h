#pragma once
/// \addtogroup omu
/// @{

/// \class omu_PrimArray
/// An N-dimensional array of numbers of one type (INT, FLOAT or DOUBLE) crossing the
/// scripting boundary as one block, in the manner of the script's numeric arrays: raw numbers
/// with dimensions and byte strides. Copies and sub-arrays share the numbers (SetItem on one
/// is seen by all); Slice, Repeat and Concat make new numbers.
///
/// Built from nested sequences, the element type is fitted to the numbers: INT when every
/// number is of an integer kind and fits 32 bits, FLOAT when every number is a FLOAT number,
/// DOUBLE otherwise (an empty sequence gives DOUBLE). Ragged or non-numeric input is refused.
///
/// Failures raise nex_TextException; the constructors write the reason to the error stream
/// and raise their summary text ("omu_PrimArray ctor failed", "omu_PrimArray from sequence
/// failed - dimensions. ", ...).
#include <cow_CountedHld.h>
#include <omu_PrimArrayData.h>
#include <omu_PrimLeaf.h>
#include <omu_PrimNumber.h>
#include <omu_PrimSequence.h>

#include <string>

class CVX_EXPORT omu_PrimArray : public omu_PrimLeaf<omu_PrimArray, omu_PrimSequence> {
public:
  /// The element types: INT, FLOAT or DOUBLE.
  using DataTypeEnm = omu_PrimNumber::DataTypeEnm;
  /// The most dimensions an array may have.
  static constexpr int MaxDims = 32;

  /// The numbers are copied from data (row-major; null gives zeros).
  omu_PrimArray(int numDims, const int* dims, DataTypeEnm dataType, const void* data);
  /// The same, of DOUBLE or FLOAT numbers.
  ///@{
  omu_PrimArray(int numDims, const int* dims, const double* data);
  omu_PrimArray(int numDims, const int* dims, const float* data);
  ///@}
  /// Nested tuples or lists of numbers.
  explicit omu_PrimArray(const omu_PrimSequence& sequence);
  /// A view on numbers that shared owns: dims, strides and data point into it.
  omu_PrimArray(int numDims, const int* dims, const int* strides, std::byte* data,
                DataTypeEnm dataType, const cow_CountedHld<omu_PrimArrayData>& shared);
  /// Member-wise copy.
  ///@{
  omu_PrimArray(const omu_PrimArray&) = default;
  omu_PrimArray& operator=(const omu_PrimArray&) = default;
  ///@}
  /// Reads the object back from the record reader is at.
  explicit omu_PrimArray(const cls_ReadVisitor& reader);

  /// "omu_PrimArray", the kind's name in messages.
  static const char* TypeName() noexcept { return "omu_PrimArray"; }
  cow_String TypeString() const override { return TypeName(); }
  /// array([[1.0, 2.0], [3.0, 4.0]], 'd')
  cow_String AsString(int level) const override;
  /// Same dimensions, data type and elements.
  bool operator==(const omu_Primitive& other) const override;
  /// Writes the object through writer: its class level, and its parent classes' levels within it.
  void DBWrite(const cls_WriteVisitor& writer) const override;

  /// The first dimension; 0 for an array without dimensions.
  virtual int Length() const { return m_NumDims > 0 ? m_Dims[0] : 0; }
  int Size() const override { return Length(); }
  /// A new number (one dimension) or sub-array sharing the numbers, owned by the caller.
  const omu_Primitive* Index(int index) const override;
  omu_PrimSequence* Slice(int from, int to) const override;
  omu_PrimSequence* Repeat(int times) const override;
  /// other must be an array of the same data type and trailing dimensions.
  omu_PrimSequence* Concat(omu_PrimSequence* other) const override;

  /// The number of dimensions.
  int NumDims() const noexcept { return m_NumDims; }
  /// The size of dimension index; no bounds check.
  int Dim(int index) const noexcept { return m_Dims[index]; }
  /// The byte distance between consecutive indices of a dimension.
  int Stride(int index) const noexcept { return m_Strides[index]; }
  /// The first number, laid out by the strides; null for an array without numbers. Lent: it
  /// lives as long as some handle on SharedData() does.
  const std::byte* ConstData() const noexcept { return m_Data; }
  /// The storage this array and its copies and sub-arrays share; a holder of the handle keeps
  /// ConstData() valid (a host hands the numbers on without copying them).
  const cow_CountedHld<omu_PrimArrayData>& SharedData() const noexcept { return m_Shared; }
  /// The element type.
  DataTypeEnm DataType() const noexcept { return m_DataType; }
  /// The script's type character of the elements ('l', 'f' or 'd').
  char PyType() const noexcept { return m_PyType; }
  /// 'l' for INT, 'f' for FLOAT, 'd' for DOUBLE; other data types change nothing.
  void SetPyType(DataTypeEnm dataType) noexcept;
  /// Sets the type character as given.
  void SetPyType(int pyType) noexcept { m_PyType = static_cast<char>(pyType); }
  /// The bytes of one element (0 for a data type an array cannot hold).
  int ConstGetItemSize() const noexcept;
  /// The bytes the first dimension spans.
  int ConstGetArraySize() const noexcept { return m_NumDims > 0 ? m_Strides[0] * m_Dims[0] : 0; }
  /// The number of elements.
  int ConstGetNumElements() const noexcept;

  /// Elements by as many indices as the array has dimensions (unused ones -1).
  omu_PrimNumber ConstGetItem(int i, int j = -1, int k = -1, int l = -1) const;
  /// The element at (i, j, k, l), one index per dimension (-1 for none, up to four); a wrong number
  /// of indices or one out of range raises nex_TextException.
  ///@{
  double ConstGetDouble(int i, int j = -1, int k = -1, int l = -1) const;
  int ConstGetInt(int i, int j = -1, int k = -1, int l = -1) const;
  ///@}
  /// Stores value, converted to the element type, at (i, j, k, l), indexed as ConstGetDouble; every
  /// array sharing the numbers sees it.
  void SetItem(const omu_PrimNumber& value, int i, int j = -1, int k = -1, int l = -1);

  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept { return omu_TypeId(33); }
  /// Registers the class (name, version, parent) with registrar, so archives can read it back.
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
  omu_PrimArray() noexcept;
  void Fill(int numDims, const int* dims, DataTypeEnm dataType, const void* data);
  void Adopt(std::vector<int> dims, DataTypeEnm dataType, std::vector<std::byte> data);
  std::byte* Index2Ptr(int index) const;
  std::byte* Address(int i, int j, int k, int l) const;
  omu_PrimNumber Read(const std::byte* at) const;
  void Gather(std::vector<std::byte>& out, const std::byte* at, int level) const;
  std::vector<std::byte> Numbers() const;
  void AppendBody(std::string& text) const;
  omu_PrimArray* WithFirstDim(int first, std::vector<std::byte> data) const;

  int m_NumDims = 0;
  const int* m_Dims = nullptr;
  const int* m_Strides = nullptr;
  std::byte* m_Data = nullptr;
  DataTypeEnm m_DataType = static_cast<DataTypeEnm>(-1);
  char m_PyType = 0;
  cow_CountedHld<omu_PrimArrayData> m_Shared;
  cls_Uid m_ArrayUid;
};

/// @}
