#include <aio_ostream.h>
#include <nex_TextException.h>
#include <omu_AttributeErrorException.h>
#include <omu_Deprecation.h>
#include <omu_InterfaceObj.h>
#include <omu_NameString.h>
#include <omu_PrimVisitor.h>
#include <omu_PrimWrapper.h>
#include <omu_TextRepr.h>
#include <omu_TypeRegistryCache.h>
#include <utl_Catenator.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace {
constexpr const char* kSource = "omu/impl/omu_InterfaceObj";
constexpr char kTypeCode = 'r';  // repository object

// The shared empty tables that stand in for null ones.
constexpr omu_InterfaceObj::methodTable kNoMethods[] = {{nullptr, nullptr}};
constexpr omu_InterfaceObj::memberTable kNoMembers[] = {{nullptr, nullptr, nullptr}};
constexpr omu_InterfaceObj::deprecatedMethodTable kNoDeprecatedMethods[] = {
    {nullptr, nullptr, nullptr}};
constexpr omu_InterfaceObj::deprecatedMemberTable kNoDeprecatedMembers[] = {
    {nullptr, nullptr, nullptr, nullptr}};

template <class Row>
const Row* FindRow(const Row* table, const char* name) {
  for (; table->name; ++table) {
    if (std::strcmp(table->name, name) == 0) return table;
  }
  return nullptr;
}

[[noreturn]] void Illegal(const char* text) { NEX_THROW(nex_TextException(text), kSource); }

const char* StaleInfo() { return std::getenv("CVX_STALEHANDLE_INFO"); }

unsigned int Address(const void* object) {
  return static_cast<unsigned int>(reinterpret_cast<std::uintptr_t>(object));
}

void Deprecated(const char* name, const char* replacement, bool& deprecated) {
  deprecated = true;
  omu_Deprecation::Notice(name, replacement ? replacement : "");
}
}  // namespace

omu_InterfaceObj::omu_InterfaceObj() : omu_Primitive(kTypeCode) {}

omu_InterfaceObj::omu_InterfaceObj(const omu_Shortcut& shortcut, const omu_OperationRules& rules,
                                   const omu_PythonType& pythonType)
    : omu_Primitive(kTypeCode), m_Shortcut(shortcut), m_Rules(rules), m_PythonType(pythonType) {}

void omu_InterfaceObj::DescribeType(const char* name, const methodTable* methods,
                                    const memberTable* members,
                                    const deprecatedMethodTable* deprecatedMethods,
                                    const deprecatedMemberTable* deprecatedMembers) {
  for (int i = 0; i < m_TypeCount; ++i) {
    if (m_Types[static_cast<std::size_t>(i)].name == name) return;
  }
  if (m_TypeCount == MaxLevels) {
    Illegal("omu_InterfaceObj::DescribeType - more than ten type levels");
  }
  m_Types[static_cast<std::size_t>(m_TypeCount++)] =
      TypeDesc{name, methods ? methods : kNoMethods, members ? members : kNoMembers,
               deprecatedMethods ? deprecatedMethods : kNoDeprecatedMethods,
               deprecatedMembers ? deprecatedMembers : kNoDeprecatedMembers};
}

cow_String omu_InterfaceObj::TypeString() const {
  return m_TypeCount ? m_Types[static_cast<std::size_t>(m_TypeCount - 1)].name : cow_String();
}

cow_String omu_InterfaceObj::BaseType() const {
  return m_TypeCount ? m_Types[0].name : cow_String();
}

cow_List<cow_String> omu_InterfaceObj::BaseTypes() const {
  cow_List<cow_String> names;
  for (int i = 0; i + 1 < m_TypeCount; ++i) names.Append(m_Types[static_cast<std::size_t>(i)].name);
  return names;
}

cow_String omu_InterfaceObj::ExposedTypeName() const {
  const omu_TypeRegistryCache& registry = omu_TypeRegistryCache::Instance();
  for (int i = m_TypeCount - 1; i >= 0; --i) {
    const cow_String& name = m_Types[static_cast<std::size_t>(i)].name;
    if (registry.IsExposed(name)) return name;
  }
  return {};
}

bool omu_InterfaceObj::IsA(const char* typeName) const {
  const cow_String asked(typeName);
  if (asked == omu_PythonType::Generic) return true;
  const omu_TypeRegistryCache& registry = omu_TypeRegistryCache::Instance();
  for (int i = 0; i < m_TypeCount; ++i) {
    if (registry.Matches(asked, m_Types[static_cast<std::size_t>(i)].name)) return true;
  }
  return false;
}

template <class Row>
const Row* omu_InterfaceObj::Search(const Row* TypeDesc::*table, const char* name) const {
  for (int i = m_TypeCount - 1; i >= 0; --i) {
    if (const Row* row = FindRow(m_Types[static_cast<std::size_t>(i)].*table, name)) return row;
  }
  return nullptr;
}

bool omu_InterfaceObj::IsMethod(const char* name, bool& deprecated) const {
  if (Search(&TypeDesc::methods, name)) return true;
  if (!omu_Deprecation::IsAllowed() || !Search(&TypeDesc::deprecatedMethods, name)) return false;
  deprecated = true;
  return true;
}

omu_Primitive* omu_InterfaceObj::CallMethod(const char*, const char* name, omu_Arguments& args,
                                            bool& deprecated) {
  if (const methodTable* row = Search(&TypeDesc::methods, name)) return row->handler(*this, args);
  if (!omu_Deprecation::IsAllowed()) return nullptr;
  const deprecatedMethodTable* row = Search(&TypeDesc::deprecatedMethods, name);
  if (!row) return nullptr;
  Deprecated(name, row->replacement, deprecated);
  return row->handler(*this, args);
}

omu_Primitive* omu_InterfaceObj::GetMember(const char* name, bool& deprecated) const {
  if (const memberTable* row = Search(&TypeDesc::members, name)) return row->getter(*this);
  if (!omu_Deprecation::IsAllowed()) return nullptr;
  const deprecatedMemberTable* row = Search(&TypeDesc::deprecatedMembers, name);
  if (!row) return nullptr;
  Deprecated(name, row->replacement, deprecated);
  return row->getter(*this);
}

omu_Primitive* omu_InterfaceObj::SetMember(const char* name, omu_Arguments& args,
                                           bool& deprecated) const {
  if (const memberTable* row = Search(&TypeDesc::members, name)) {
    return row->setter ? row->setter(*this, args) : nullptr;
  }
  if (!omu_Deprecation::IsAllowed()) return nullptr;
  const deprecatedMemberTable* row = Search(&TypeDesc::deprecatedMembers, name);
  if (!row) return nullptr;
  Deprecated(name, row->replacement, deprecated);
  return row->setter ? row->setter(*this, args) : nullptr;
}

void omu_InterfaceObj::DeleteMember(const cow_String& name) const {
  NEX_THROW(omu_AttributeErrorException(
                2, atr_StringBase::Format("'%s' object attribute '%s' cannot be deleted",
                                          TypeString().CStr(), name.CStr())),
            kSource);
}

template <class Row>
void omu_InterfaceObj::CollectNames(const Row* TypeDesc::*table,
                                    cow_List<cow_String>& names) const {
  std::vector<cow_String>& all = names.MutableVector();
  for (int i = 0; i < m_TypeCount; ++i) {
    for (const Row* row = m_Types[static_cast<std::size_t>(i)].*table; row->name; ++row) {
      all.emplace_back(row->name);
    }
  }
  std::sort(all.begin(), all.end());
  all.erase(std::unique(all.begin(), all.end()), all.end());
}

cow_List<cow_String> omu_InterfaceObj::MemberList() const {
  cow_List<cow_String> names;
  CollectNames(&TypeDesc::members, names);
  return names;
}

cow_List<cow_String> omu_InterfaceObj::MemberListForQry() const {
  const cow_List<cow_String> excluded = MemberExcludeListForQry();
  cow_List<cow_String> names = MemberList();
  std::erase_if(names.MutableVector(), [&](const cow_String& n) { return excluded.Contains(n); });
  return names;
}

cow_List<cow_String> omu_InterfaceObj::MemberExcludeListForQry() const { return {}; }

cow_List<cow_String> omu_InterfaceObj::MethodList() const {
  cow_List<cow_String> names;
  CollectNames(&TypeDesc::methods, names);
  return names;
}

// The binary operators and the unary ones carry texts that differ by a final full stop.
omu_Primitive* omu_InterfaceObj::AddOperation(omu_InterfaceObj*) {
  Illegal("Error: Illegal operation for type");
}
omu_Primitive* omu_InterfaceObj::SubOperation(omu_InterfaceObj*) {
  Illegal("Error: Illegal operation for type");
}
omu_Primitive* omu_InterfaceObj::MulOperation(omu_InterfaceObj*) {
  Illegal("Error: Illegal operation for type");
}
omu_Primitive* omu_InterfaceObj::DivOperation(omu_InterfaceObj*) {
  Illegal("Error: Illegal operation for type");
}
omu_Primitive* omu_InterfaceObj::Absolute() { Illegal("Error: Illegal operation for type."); }
omu_Primitive* omu_InterfaceObj::UnaryNegative() { Illegal("Error: Illegal operation for type."); }
omu_Primitive* omu_InterfaceObj::Coerce(omu_Arguments&) { Illegal("Error: Cannot coerce."); }
omu_Primitive* omu_InterfaceObj::Cast(omu_Arguments&) { return nullptr; }

cow_String omu_InterfaceObj::CommandPath(const cow_String& path, const cow_String&,
                                         omu_Arguments&) {
  return path;
}

void omu_InterfaceObj::DoNotJournal(const cow_String& member) { m_NotJournalled.Insert(0, member); }

void omu_InterfaceObj::ReportStale(const char* what) const {
  const char* info = StaleInfo();
  if (!info) return;
  aio_ostream& err = aio_cerr();
  err << what;
  if (std::strcmp(info, "2") == 0) {
    err << (m_Stale ? atr_StringBase("  <stale handle>")
                    : atr_StringBase::Format("  %s", PathString().CStr()));
  }
  err << '\n';
  err.Flush();
}

bool omu_InterfaceObj::IsStale() const {
  if (StaleInfo()) {
    ReportStale(atr_StringBase::Format("omu_InterfaceObj::IsStale  stale:%d   this:0x%x ",
                                       m_Stale ? 1 : 0, Address(this))
                    .CStr());
  }
  return m_Stale;
}

void omu_InterfaceObj::SetStale(bool stale) {
  if (StaleInfo()) {
    ReportStale(atr_StringBase::Format("omu_InterfaceObj::SetStale(value=%d)  this:0x%x ",
                                       stale ? 1 : 0, Address(this))
                    .CStr());
  }
  m_Stale = stale;
}

int omu_InterfaceObj::ComparePath(const cow_String& path) const {
  const cow_String own = PathString();
  const int order = own.View().compare(path.View());
  const int result = (order > 0) - (order < 0);
  if (StaleInfo()) {
    aio_cerr() << atr_StringBase::Format("omu_InterfaceObj::ComparePath %s  %s -> %d\n", own.CStr(),
                                         path.CStr(), result);
    aio_cerr().Flush();
  }
  return result;
}

int omu_InterfaceObj::Compare(const omu_InterfaceObj* other) const {
  return ComparePath(other->PathString());
}

omu_PrimWrapper* omu_InterfaceObj::ConstGetWrapper() const {
  return new omu_PrimWrapper(this, DynTypeId());
}

cow_String omu_InterfaceObj::AsString(int level) const {
  return omu_TextRepr::Instance().BoundedText(level, "interface object", ExposedTypeName(),
                                              [this, level] { return MemberText(level); });
}

cow_String omu_InterfaceObj::MemberText(int level) const {
  const omu_TextRepr& repr = omu_TextRepr::Instance();
  std::vector<cow_String> names;
  for (int i = m_TypeCount - 1; i >= 0; --i) {
    for (const memberTable* row = m_Types[static_cast<std::size_t>(i)].members; row->name; ++row) {
      const bool hidden = row->name[0] == '_' && !repr.ShowPrivateMembers();
      if (!hidden && std::find(names.begin(), names.end(), row->name) == names.end()) {
        names.emplace_back(row->name);
      }
    }
  }
  if (repr.SortMembers()) std::sort(names.begin(), names.end());
  utl_Catenator text;
  text << '{';
  const char* separator = "";
  for (const cow_String& name : names) {
    bool deprecated = false;
    const std::unique_ptr<omu_Primitive> value(GetMember(name.CStr(), deprecated));
    text << separator << omu_NameString(name) << ": "
         << (value ? value->AsString(level + 1) : cow_String("'unknown'"));
    separator = ", ";
  }
  text << '}';
  return text.String();
}

cow_String omu_InterfaceObj::DefaultRepr() const {
  const cow_String type = m_PythonType.IsGeneric() ? TypeString() : m_PythonType.Name();
  cow_String text = atr_StringBase::Format("<%s object", type.CStr());
  bool deprecated = false;
  const std::unique_ptr<omu_Primitive> name(GetMember("name", deprecated));
  if (name && !deprecated) {
    const cow_String shown = name->AsString(0);
    if (!shown.IsEmpty()) text += atr_StringBase(" named ") + shown;
  }
  return text += ">";
}

cow_String omu_InterfaceObj::AsRepr() const {
  cow_String own = FullRepr();
  if (!own.IsEmpty()) return own;
  own = DefaultRepr();
  aio_cerr() << atr_StringBase::Format(
      "WARNING omu_InterfaceObj::AsRepr - repr not implemented: %s\n", own.CStr());
  return own;
}

bool omu_InterfaceObj::operator==(const omu_Primitive& other) const {
  if (&other == this) return true;
  const auto* object = dynamic_cast<const omu_InterfaceObj*>(&other);
  return object && m_Rules.EqualByPath() && Compare(object) == 0;
}

void omu_InterfaceObj::Accept(omu_PrimVisitor* visitor) const { visitor->Visit(*this); }
