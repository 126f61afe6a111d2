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
  /// A method: its result (owned by the caller, null for None) from the call's arguments.
  using MethodHandler = omu_Primitive* (*)(omu_InterfaceObj& self, omu_Arguments& args);
  /// A member's reader: its value, owned by the caller.
  using Getter = omu_Primitive* (*)(const omu_InterfaceObj& self);
  /// A member's writer: takes the value from args; null when refused.
  using Setter = omu_Primitive* (*)(const omu_InterfaceObj& self, omu_Arguments& args);

  /// Tables end with a row whose name is null. A member without a setter is read-only.
  struct methodTable {
    /// The method's script name.
    const char* name;
    /// What calls it.
    MethodHandler handler;
  };
  /// A member row.
  struct memberTable {
    /// The member's script name.
    const char* name;
    /// What reads it.
    Getter getter;
    /// What writes it; null for a read-only member.
    Setter setter;
  };
  /// Deprecated names, with the name that replaces them for the notice.
  struct deprecatedMethodTable {
    /// The deprecated name.
    const char* name;
    /// What calls it.
    MethodHandler handler;
    /// The name to use instead.
    const char* replacement;
  };
  /// A deprecated member row.
  struct deprecatedMemberTable {
    /// The deprecated name.
    const char* name;
    /// What reads it.
    Getter getter;
    /// What writes it; null for a read-only member.
    Setter setter;
    /// The name to use instead.
    const char* replacement;
  };
  /// One described class level: its script type name and its tables (each may be null).
  struct TypeDesc {
    /// The level's script type name.
    cow_String name;
    /// The level's tables, null-name terminated; null for none.
    ///@{
    const methodTable* methods = nullptr;
    const memberTable* members = nullptr;
    const deprecatedMethodTable* deprecatedMethods = nullptr;
    const deprecatedMemberTable* deprecatedMembers = nullptr;
    ///@}
  };
  /// The most class levels one object can describe.
  static constexpr int MaxLevels = 10;

  /// Row builders for a describing class T.
  ///@{
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
  ///@}

  /// An object without a path or a described type.
  omu_InterfaceObj();
  /// An object at the shortcut's path, with the operation rules and script type given.
  explicit omu_InterfaceObj(const omu_Shortcut& shortcut,
                            const omu_OperationRules& rules = omu_OperationRules(),
                            const omu_PythonType& pythonType = omu_PythonType());
  /// Copies share the path and the described tables.
  omu_InterfaceObj(const omu_InterfaceObj&) = default;

  /// Adds a level to the type chain; a level described twice counts once. Null tables stand
  /// for empty ones.
  void DescribeType(const char* name, const methodTable* methods, const memberTable* members,
                    const deprecatedMethodTable* deprecatedMethods = nullptr,
                    const deprecatedMemberTable* deprecatedMembers = nullptr);
  /// The number of described levels.
  int TypeLevels() const noexcept { return m_TypeCount; }

  /// The most derived level's type name ("" when none is described).
  cow_String TypeString() const override;
  /// The first (least derived) level's type name, or "".
  cow_String BaseType() const;
  /// Every level's type name but the most derived one, base first.
  cow_List<cow_String> BaseTypes() const;
  /// The most derived described name that the exposed-type registry accepts, or "".
  cow_String ExposedTypeName() const;
  using omu_Primitive::IsA;
  /// True when one of the described levels is typeName.
  bool IsA(const char* typeName) const;

  /// Dispatch by name, most derived level first; deprecated tables are searched only while
  /// deprecated access is allowed, and a match there sets `deprecated`. Unknown names answer
  /// false or null and leave `deprecated` alone.
  ///@{
  virtual bool IsMethod(const char* name, bool& deprecated) const;
  virtual omu_Primitive* CallMethod(const char* path, const char* name, omu_Arguments& args,
                                    bool& deprecated);
  virtual omu_Primitive* GetMember(const char* name, bool& deprecated) const;
  /// Null for an unknown or read-only member.
  virtual omu_Primitive* SetMember(const char* name, omu_Arguments& args, bool& deprecated) const;
  ///@}
  /// Scripts cannot delete members: always raises omu_AttributeErrorException.
  virtual void DeleteMember(const cow_String& name) const;

  /// Names from the tables, sorted, each once.
  virtual cow_List<cow_String> MemberList() const;
  /// MemberList() without the names MemberExcludeListForQry() gives: the members a query lists.
  virtual cow_List<cow_String> MemberListForQry() const;
  /// The members a query leaves out; none by default.
  virtual cow_List<cow_String> MemberExcludeListForQry() const;
  /// Method names from the tables, sorted, each once.
  virtual cow_List<cow_String> MethodList() const;

  /// Script operators; a type that supports one overrides it.
  /// By default each raises nex_TextException ("Illegal operation for type"); the result
  /// is owned by the caller.
  ///@{
  virtual omu_Primitive* AddOperation(omu_InterfaceObj* other);
  virtual omu_Primitive* SubOperation(omu_InterfaceObj* other);
  virtual omu_Primitive* MulOperation(omu_InterfaceObj* other);
  virtual omu_Primitive* DivOperation(omu_InterfaceObj* other);
  virtual omu_Primitive* Absolute();
  virtual omu_Primitive* UnaryNegative();
  ///@}
  /// Coercion for a mixed operation; raises nex_TextException ("Cannot coerce") by default.
  virtual omu_Primitive* Coerce(omu_Arguments& args);
  /// Conversion to another type from args; null (no conversion) by default.
  virtual omu_Primitive* Cast(omu_Arguments& args);
  /// The truth value in a script condition; true (1) by default.
  virtual int NonZero() const { return 1; }

  /// The repr() text; empty by default, which makes AsRepr fall back to DefaultRepr().
  virtual cow_String FullRepr() const { return {}; }
  /// The variable that names the object in a journal; empty by default.
  virtual cow_String JournalVariable() const { return {}; }
  /// The path a journalled call of method is recorded under; path by default.
  virtual cow_String CommandPath(const cow_String& path, const cow_String& method,
                                 omu_Arguments& args);
  /// False for a member set aside by DoNotJournal.
  bool ShouldJournal(const cow_String& member) const { return !m_NotJournalled.Contains(member); }

  /// With CVX_STALEHANDLE_INFO set, both report each call on the error stream.
  ///@{
  bool IsStale() const;
  void SetStale(bool stale);
  ///@}
  /// The own path text against another, as a comparison result (-1, 0, 1).
  int ComparePath(const cow_String& path) const;
  /// ComparePath with other's path.
  int Compare(const omu_InterfaceObj* other) const;
  /// The shortcut that locates the object.
  const omu_Shortcut& BaseShortcut() const noexcept { return m_Shortcut; }
  /// The object's path text (the shortcut's path by default).
  virtual cow_String PathString() const { return m_Shortcut.Path(); }
  /// The script type the object presents.
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
  /// Keeps member out of the journal (ShouldJournal answers false).
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
