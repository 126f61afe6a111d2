#pragma once
/// \addtogroup omu
/// @{

/// \class omu_InterfaceObj
/// The script-visible face of a repository object: a handle that answers script attribute
/// access and method calls by searching, by name, the tables that each class level described,
/// most derived level first. Describing classes call DescribeType once per level in their
/// constructors (base classes first) and build table rows with Call/Read/Write, whose thunks
/// turn the handle into the describing class (the adjustment).
#include <cow_List.h>
#include <omu_OperationRules.h>
#include <omu_Primitive.h>
#include <omu_PythonType.h>
#include <omu_Shortcut.h>

#include <array>

class omu_Arguments;
class omu_PrimWrapper;

class CVX_EXPORT omu_InterfaceObj : public omu_Primitive {
public:
  using MethodHandler = omu_Primitive* (*)(omu_InterfaceObj& self, omu_Arguments& args);
  using Getter = omu_Primitive* (*)(const omu_InterfaceObj& self);
  using Setter = omu_Primitive* (*)(const omu_InterfaceObj& self, omu_Arguments& args);

  /// Tables end with a row whose name is null. A member without a setter is read-only.
  struct methodTable {
    const char* name;
    MethodHandler handler;
  };
  struct memberTable {
    const char* name;
    Getter getter;
    Setter setter;
  };
  /// Deprecated names, with the name that replaces them for the notice.
  struct deprecatedMethodTable {
    const char* name;
    MethodHandler handler;
    const char* replacement;
  };
  struct deprecatedMemberTable {
    const char* name;
    Getter getter;
    Setter setter;
    const char* replacement;
  };
  struct TypeDesc {
    cow_String name;
    const methodTable* methods;
    const memberTable* members;
    const deprecatedMethodTable* deprecatedMethods;
    const deprecatedMemberTable* deprecatedMembers;
  };
  static constexpr int MaxLevels = 10;

  /// Row builders for a describing class T.
  template <class T, omu_Primitive* (T::*Method)(omu_Arguments&)>
  static omu_Primitive* Call(omu_InterfaceObj& self, omu_Arguments& args) {
    return (static_cast<T&>(self).*Method)(args);
  }
  template <class T, omu_Primitive* (T::*Get)() const>
  static omu_Primitive* Read(const omu_InterfaceObj& self) {
    return (static_cast<const T&>(self).*Get)();
  }
  template <class T, omu_Primitive* (T::*Set)(omu_Arguments&) const>
  static omu_Primitive* Write(const omu_InterfaceObj& self, omu_Arguments& args) {
    return (static_cast<const T&>(self).*Set)(args);
  }

  omu_InterfaceObj();
  explicit omu_InterfaceObj(const omu_Shortcut& shortcut,
                            const omu_OperationRules& rules = omu_OperationRules(),
                            const omu_PythonType& pythonType = omu_PythonType());
  omu_InterfaceObj(const omu_InterfaceObj&) = default;

  /// Adds a level to the type chain; a level described twice counts once. Null tables stand
  /// for empty ones.
  void DescribeType(const char* name, const methodTable* methods, const memberTable* members,
                    const deprecatedMethodTable* deprecatedMethods = nullptr,
                    const deprecatedMemberTable* deprecatedMembers = nullptr);
  int TypeLevels() const noexcept { return m_TypeCount; }

  cow_String TypeString() const override;
  cow_String BaseType() const;
  cow_List<cow_String> BaseTypes() const;
  /// The most derived described name that the exposed-type registry accepts, or "".
  cow_String ExposedTypeName() const;
  using omu_Primitive::IsA;
  bool IsA(const char* typeName) const;

  /// Dispatch by name, most derived level first; deprecated tables are searched only while
  /// deprecated access is allowed, and a match there sets `deprecated`. Unknown names answer
  /// false or null and leave `deprecated` alone.
  virtual bool IsMethod(const char* name, bool& deprecated) const;
  virtual omu_Primitive* CallMethod(const char* path, const char* name, omu_Arguments& args,
                                    bool& deprecated);
  virtual omu_Primitive* GetMember(const char* name, bool& deprecated) const;
  /// Null for an unknown or read-only member.
  virtual omu_Primitive* SetMember(const char* name, omu_Arguments& args, bool& deprecated) const;
  /// Scripts cannot delete members: always raises omu_AttributeErrorException.
  virtual void DeleteMember(const cow_String& name) const;

  /// Names from the tables, sorted, each once.
  virtual cow_List<cow_String> MemberList() const;
  virtual cow_List<cow_String> MemberListForQry() const;
  virtual cow_List<cow_String> MemberExcludeListForQry() const;
  virtual cow_List<cow_String> MethodList() const;

  /// Script operators; a type that supports one overrides it.
  virtual omu_Primitive* AddOperation(omu_InterfaceObj* other);
  virtual omu_Primitive* SubOperation(omu_InterfaceObj* other);
  virtual omu_Primitive* MulOperation(omu_InterfaceObj* other);
  virtual omu_Primitive* DivOperation(omu_InterfaceObj* other);
  virtual omu_Primitive* Absolute();
  virtual omu_Primitive* UnaryNegative();
  virtual omu_Primitive* Coerce(omu_Arguments& args);
  virtual omu_Primitive* Cast(omu_Arguments& args);
  virtual int NonZero() const { return 1; }

  virtual cow_String FullRepr() const { return cow_String(); }
  virtual cow_String JournalVariable() const { return cow_String(); }
  virtual cow_String CommandPath(const cow_String& path, const cow_String& method,
                                 omu_Arguments& args);
  bool ShouldJournal(const cow_String& member) const { return !m_NotJournalled.Contains(member); }

  /// With CVX_STALEHANDLE_INFO set, both report each call on the error stream.
  bool IsStale() const;
  void SetStale(bool stale);
  /// The own path text against another, as a comparison result (-1, 0, 1).
  int ComparePath(const cow_String& path) const;
  int Compare(const omu_InterfaceObj* other) const;
  const omu_Shortcut& BaseShortcut() const noexcept { return m_Shortcut; }
  virtual cow_String PathString() const { return m_Shortcut.Path(); }
  const omu_PythonType& PythonType() const noexcept { return m_PythonType; }

  /// A wrapper borrowing this object, typed by DynTypeId().
  virtual omu_PrimWrapper* ConstGetWrapper() const;

  /// The members by name with their values, {'name': value, ...}, within the text limits of
  /// omu_TextRepr: "interface object" in simple style, the quoted type name past the
  /// recursion limit; private members ("_...") only when asked for.
  cow_String AsString(int level) const override;
  /// "<Part object named 'Part-1'>", or "<Part object>" without a name member.
  cow_String DefaultRepr() const;
  /// FullRepr(), or the default text with a warning on the error stream when it is empty.
  cow_String AsRepr() const override;
  /// Same handle, or (with equality by path) the same path.
  bool operator==(const omu_Primitive& other) const override;
  void Accept(omu_PrimVisitor* visitor) const override;

protected:
  void DoNotJournal(const cow_String& member);

private:
  template <class Row>
  const Row* Search(const Row* TypeDesc::*table, const char* name) const;
  template <class Row>
  void CollectNames(const Row* TypeDesc::*table, cow_List<cow_String>& names) const;
  void ReportStale(const char* what) const;
  cow_String MemberText(int level) const;

  std::array<TypeDesc, MaxLevels> m_Types;
  int m_TypeCount = 0;
  cow_List<cow_String> m_NotJournalled;
  omu_Shortcut m_Shortcut;
  omu_OperationRules m_Rules;
  omu_PythonType m_PythonType;
  bool m_Stale = false;
};

/// @}
