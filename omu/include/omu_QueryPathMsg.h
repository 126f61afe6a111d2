#pragma once
/// \addtogroup omu
/// @{

/// \class omu_QueryPathMsg
/// What a repository query reported about the path it addressed: the path text and the
/// message. Persisted as "path" and "message".
#include <CVX_Export.h>
#include <UTI_Modules.h>
#include <cls_Uid.h>
#include <cow_String.h>

class cls_ClassRegistrar;
class cls_ReadVisitor;
class cls_WriteVisitor;

class CVX_EXPORT omu_QueryPathMsg {
public:
  omu_QueryPathMsg() = default;
  omu_QueryPathMsg(const cow_String& path, const cow_String& message)
      : m_Path(path), m_Message(message) {}
  explicit omu_QueryPathMsg(const cls_ReadVisitor& reader);

  const cow_String& Path() const noexcept { return m_Path; }
  const cow_String& Message() const noexcept { return m_Message; }
  bool operator==(const omu_QueryPathMsg& other) const {
    return m_Path == other.m_Path && m_Message == other.m_Message;
  }

  unsigned int DynTypeId() const noexcept { return TypeId(); }
  void DBWrite(const cls_WriteVisitor& writer) const;
  static unsigned int TypeId() noexcept { return omu_TypeId(28); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
  cow_String m_Path;
  cow_String m_Message;
  cls_Uid m_Uid;
};

/// @}
