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
  /// The message reported about path.
  omu_QueryPathMsg(const cow_String& path, const cow_String& message)
      : m_Path(path), m_Message(message) {}
  /// Reads the object back from the record reader is at.
  explicit omu_QueryPathMsg(const cls_ReadVisitor& reader);

  /// The path text.
  const cow_String& Path() const noexcept { return m_Path; }
  /// The message.
  const cow_String& Message() const noexcept { return m_Message; }
  /// Same path and message.
  bool operator==(const omu_QueryPathMsg& other) const {
    return m_Path == other.m_Path && m_Message == other.m_Message;
  }

  /// TypeId().
  unsigned int DynTypeId() const noexcept { return TypeId(); }
  /// Writes the object through writer: its class level, and its parent classes' levels within it.
  void DBWrite(const cls_WriteVisitor& writer) const;
  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept { return omu_TypeId(28); }
  /// Registers the class (name, version, parent) with registrar, so archives can read it back.
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
  cow_String m_Path;
  cow_String m_Message;
  cls_Uid m_Uid;
};

/// @}
