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
  omu_PrimException(const nex_Exception& exception, const cow_String& traceback);
  omu_PrimException(const omu_PrimException& other);
  omu_PrimException& operator=(const omu_PrimException& other);
  explicit omu_PrimException(const cls_ReadVisitor& reader);

  cow_String AsString(int) const override { return "omu_PrimException object"; }
  bool operator==(const omu_Primitive&) const override { return false; }
  void DBWrite(const cls_WriteVisitor& writer) const override;

  /// The captured exception; null for a value read back from an archive.
  const nex_Exception* Exception() const noexcept { return m_Exception.get(); }
  const cow_String& Traceback() const noexcept { return m_Traceback; }

  static unsigned int TypeId() noexcept { return omu_TypeId(47); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
  std::unique_ptr<nex_Exception> m_Exception;
  cow_String m_Traceback;
  cls_Uid m_ExceptionUid;
};

/// @}
