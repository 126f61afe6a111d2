#pragma once
/// \addtogroup omu
/// @{

/// \class omu_PrimPath
/// A path to an object of the application as a list of components ('a.b.c'), with a
/// character saying in which context the path is meant.
#include <cow_List.h>
#include <omu_PrimLeaf.h>
#include <omu_Primitive.h>

class CVX_EXPORT omu_PrimPath : public omu_PrimLeaf<omu_PrimPath, omu_Primitive> {
public:
  omu_PrimPath() noexcept : omu_PrimLeaf('p') {}
  /// The path of the components context; contextType is the creator's context character.
  explicit omu_PrimPath(const cow_List<cow_String>& context, char contextType = 0)
      : omu_PrimLeaf('p'), m_Context(context), m_ContextType(contextType) {}
  /// Member-wise copy.
  ///@{
  omu_PrimPath(const omu_PrimPath&) = default;
  omu_PrimPath& operator=(const omu_PrimPath&) = default;
  ///@}
  /// Reads the object back from the record reader is at.
  explicit omu_PrimPath(const cls_ReadVisitor& reader);

  cow_String TypeString() const override { return "path"; }
  /// The components joined by '.', trailing dots trimmed, in single quotes.
  cow_String AsString(int level) const override;
  bool operator==(const omu_Primitive& other) const override;
  /// Writes the object through writer: its class level, and its parent classes' levels within it.
  void DBWrite(const cls_WriteVisitor& writer) const override;

  /// The components, outermost first.
  const cow_List<cow_String>& Context() const noexcept { return m_Context; }
  /// The context character given at construction.
  char ContextType() const noexcept { return m_ContextType; }

  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept { return omu_TypeId(23); }
  /// Registers the class (name, version, parent) with registrar, so archives can read it back.
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
  cow_List<cow_String> m_Context;
  char m_ContextType = 0;
  cls_Uid m_PathUid;
};

/// @}
