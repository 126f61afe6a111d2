#pragma once
/// \addtogroup omu
/// @{

/// \class omu_PrimNumber
/// A number crossing the scripting boundary. Integer kinds (type code 'i') keep their value
/// in the double field, except UINT, which keeps it in the unsigned field; floating kinds
/// (code 'f') in the double field.
#include <omu_PrimEnumRow.h>
#include <omu_PrimLeaf.h>
#include <omu_Primitive.h>

#include <string>

class CVX_EXPORT omu_PrimNumber : public omu_PrimLeaf<omu_PrimNumber, omu_Primitive> {
public:
  /// The native type a number came from, and goes back to.
  enum DataTypeEnm : int { SCHAR = 0, SHORT = 1, INT = 2, FLOAT = 3, DOUBLE = 4, UINT = 5 };

  /// A number of the given data type; UINT takes value into the unsigned field.
  omu_PrimNumber(double value, DataTypeEnm dataType);
  /// A number of the argument's own data type.
  ///@{
  explicit omu_PrimNumber(int value) : omu_PrimNumber(value, INT) {}
  explicit omu_PrimNumber(unsigned int value) : omu_PrimNumber(value, UINT) {}
  explicit omu_PrimNumber(short value) : omu_PrimNumber(value, SHORT) {}
  explicit omu_PrimNumber(signed char value) : omu_PrimNumber(value, SCHAR) {}
  explicit omu_PrimNumber(float value) : omu_PrimNumber(value, FLOAT) {}
  explicit omu_PrimNumber(double value) : omu_PrimNumber(value, DOUBLE) {}
  ///@}
  /// Member-wise copy.
  ///@{
  omu_PrimNumber(const omu_PrimNumber&) = default;
  omu_PrimNumber& operator=(const omu_PrimNumber&) = default;
  ///@}
  /// Reads the object back from the record reader is at.
  explicit omu_PrimNumber(const cls_ReadVisitor& reader);

  cow_String TypeString() const override { return IsType('f') ? "float" : "int"; }
  cow_String AsString(int level) const override;
  /// Both value fields equal; kinds and data types are not compared.
  bool operator==(const omu_Primitive& other) const override;
  /// Writes the object through writer: its class level, and its parent classes' levels within it.
  void DBWrite(const cls_WriteVisitor& writer) const override;

  /// The double field (every kind but UINT).
  double Value() const noexcept { return m_Value; }
  /// The unsigned field (UINT).
  unsigned int UValue() const noexcept { return m_UValue; }
  /// The native type.
  DataTypeEnm DataType() const noexcept { return m_DataType; }
  /// True for a DOUBLE as omu_PrimNumber(double) makes it: its value is all it holds, so a
  /// sequence of such numbers is archived as one block of doubles.
  bool IsPlainDouble() const noexcept {
    return m_DataType == DOUBLE && m_UValue == 0 && IsType('f') && m_NumberUid.IsNull() &&
           !HasUid();
  }
  /// True for the integer kinds (type code 'i').
  bool IsInteger() const noexcept { return IsType('i'); }
  /// The value as a double whatever the kind (the unsigned field for UINT).
  double AsDouble() const noexcept { return m_DataType == UINT ? m_UValue : m_Value; }
  /// The value truncated to 32 bits as the text form does: outside the range gives INT_MIN.
  int AsInt() const noexcept { return Truncate(m_Value); }
  /// Appends the text form to out without an intermediate text.
  void AppendText(std::string& out) const;

  /// The text of a floating value: `"%.15lg"`, ".0" appended when it has neither '.' nor 'e',
  /// a three-digit exponent with a leading 0 shortened to two digits. Writes at most
  /// MaxDoubleText characters to out and answers the count.
  ///@{
  static constexpr int MaxDoubleText = 32;
  static int FormatDouble(double value, char* out) noexcept;
  ///@}
  /// value truncated toward zero to an int; out of range or NaN gives INT_MIN.
  static int Truncate(double value) noexcept;

  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept { return omu_TypeId(22); }
  /// Registers the class (name, version, parent) with registrar, so archives can read it back.
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
  double m_Value = 0.0;
  unsigned int m_UValue = 0;
  DataTypeEnm m_DataType = DOUBLE;
  cls_Uid m_NumberUid;
};

/// The data types by name (SCHAR, SHORT, INT, FLOAT, DOUBLE, UINT).
template <>
struct omu_PrimEnumTable<omu_PrimNumber::DataTypeEnm, 1> {
  /// The enumeration's names and values, ended by a row with a null name.
  static CVX_EXPORT const omu_PrimEnumRow* Rows() noexcept;
};

/// @}
