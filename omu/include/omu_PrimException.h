#pragma once
/// \addtogroup omu
/// @{

/// \class omu_PrimException
/// A failure captured for a script: a clone of the exception and the traceback text. Only
/// the traceback persists (a value read back holds no exception). Never equal to anything.
#include <nex_Exception.h>
#include <omu_PrimLeaf.h>
#include <omu_Primitive.h>

#include <memory>

class CVX_EXPORT omu_PrimException : public omu_PrimLeaf<omu_PrimException, omu_Primitive> {
public:
  /// A copy of exception (Copy()), with the script traceback at which it was caught.
  omu_PrimException(const nex_Exception& exception, const cow_String& traceback);
  /// Copies the captured exception too.
  ///@{
  omu_PrimException(const omu_PrimException& other);
  omu_PrimException& operator=(const omu_PrimException& other);
  ///@}
  /// Reads the object back from the record reader is at.
  explicit omu_PrimException(const cls_ReadVisitor& reader);

  cow_String AsString(int) const override { return "omu_PrimException object"; }
  bool operator==(const omu_Primitive&) const override { return false; }
  /// Writes the object through writer: its class level, and its parent classes' levels within it.
  void DBWrite(const cls_WriteVisitor& writer) const override;

  /// The captured exception; null for a value read back from an archive.
  const nex_Exception* Exception() const noexcept { return m_Exception.get(); }
  /// The traceback given at construction.
  const cow_String& Traceback() const noexcept { return m_Traceback; }

  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept { return omu_TypeId(47); }
  /// Registers the class (name, version, parent) with registrar, so archives can read it back.
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
  std::unique_ptr<nex_Exception> m_Exception;
  cow_String m_Traceback;
  cls_Uid m_ExceptionUid;
};

/// @}
