#pragma once
/// \addtogroup omu
/// @{

/// \class omu_Primitive
/// The root of every value that crosses the scripting boundary. Each concrete kind stores a
/// one-character type code, set by its constructor and never changed. A value carries the share
/// count of the copy-on-write handles on it (cow_Counted), so a held value is one allocation.
#include <CVX_Export.h>
#include <UTI_Modules.h>
#include <cls_Uid.h>
#include <cow_Counted.h>
#include <cow_String.h>

#include <concepts>

class cls_ClassRegistrar;
class cls_ReadVisitor;
class cls_WriteVisitor;
class omu_PrimVisitor;

class CVX_EXPORT omu_Primitive : public cow_Counted {
public:
  virtual ~omu_Primitive();
  /// The kind's name in messages ("primitive" here; "int", "string", ...).
  virtual cow_String TypeString() const;
  /// The script text of the value; level is the nesting depth, 0 at the top.
  virtual cow_String AsString(int level) const = 0;
  /// The text repr() gives in a script; AsString(0) unless a kind quotes or qualifies it.
  virtual cow_String AsRepr() const;
  /// Value equality; a value of another kind is unequal unless the kind says otherwise.
  virtual bool operator==(const omu_Primitive& other) const = 0;
  /// Calls the visitor's Visit for this value's class.
  virtual void Accept(omu_PrimVisitor* visitor) const = 0;
  /// A new heap copy owned by the caller.
  virtual omu_Primitive* Copy() const = 0;
  /// The type identifier of the most-derived class (its static TypeId()).
  virtual unsigned int DynTypeId() const;
  /// Writes the object through writer: its class level, and its parent classes' levels within it.
  virtual void DBWrite(const cls_WriteVisitor& writer) const;

  /// True when the type code is code.
  bool IsType(char code) const noexcept { return m_Type == code; }
  /// The one-character type code, fixed at construction.
  char TypeCode() const noexcept { return m_Type; }
  /// Negation of operator==.
  bool operator!=(const omu_Primitive& other) const { return !(*this == other); }
  /// True when this value's class is typeId or derives from it.
  bool IsA(unsigned int typeId) const;

  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept { return omu_TypeId(17); }
  /// Registers the class (name, version, parent) with registrar, so archives can read it back.
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

protected:
  /// A value of the kind typeCode names.
  explicit omu_Primitive(char typeCode) noexcept : m_Type(typeCode) {}
  /// Reads the object back from the record reader is at.
  explicit omu_Primitive(const cls_ReadVisitor& reader);
  /// Copies keep the type code; the uid too.
  ///@{
  omu_Primitive(const omu_Primitive&) = default;
  omu_Primitive& operator=(const omu_Primitive&) = default;
  ///@}
  /// True when this level has an identity to be written under (one read from an archive).
  bool HasUid() const noexcept { return !m_Uid.IsNull(); }

private:
  char m_Type;
  cls_Uid m_Uid;
};

/// Lets values of two kinds compare directly (omu_PrimNumber == omu_PrimString): with only the
/// virtual member, each kind's override is also a candidate with the operands reversed and
/// neither wins. The left operand's operator== decides, as between two root references.
/// Between a root reference and a concrete kind the language takes the concrete kind's
/// override on either side; where the two kinds' rules differ, compare like with like.
template <std::derived_from<omu_Primitive> L, std::derived_from<omu_Primitive> R>
bool operator==(const L& left, const R& right) {
  return static_cast<const omu_Primitive&>(left).operator==(right);
}

/// @}
