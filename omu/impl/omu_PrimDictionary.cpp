#include <cls_ClassRegistrar.h>
#include <cls_ReadVisitor.h>
#include <cls_TypeAdapter.h>
#include <cls_WriteVisitor.h>
#include <cls_xcMap.h>
#include <omu_NameString.h>
#include <omu_PrimDictionary.h>
#include <utl_Catenator.h>

namespace {
// What differs between integer and text keys.
template <class K>
struct KeyTraits;

template <>
struct KeyTraits<int> {
  static constexpr char kind = 'i';
  static constexpr unsigned int classNumber = 19;
  static constexpr const char* name = "omu_PrimIntDictionary";
  static constexpr const char* typeString = "dictionary with integer keys";
  static void Print(utl_Catenator& text, int key) { text << key; }
  static const int* Read(const cls_Value& value) { return value.As<std::int32_t>(); }
};

template <>
struct KeyTraits<cow_String> {
  static constexpr char kind = 's';
  static constexpr unsigned int classNumber = 20;
  static constexpr const char* name = "omu_PrimStrDictionary";
  static constexpr const char* typeString = "dictionary with string keys";
  static void Print(utl_Catenator& text, const cow_String& key) { text << omu_NameString(key); }
  static const cow_String* Read(const cls_Value& value) { return value.As<cow_String>(); }
};
}  // namespace

template <class K>
omu_PrimDictionary<K>::omu_PrimDictionary(char typeCode, char represents)
    : Leaf(typeCode, represents), m_DictUid(cls_Uid::AllocateUid()) {}

template <class K>
omu_PrimDictionary<K>::omu_PrimDictionary(const cls_ReadVisitor& reader)
    : Leaf(cls_ReadVisitor(reader, omu_PrimDictionaryBase::TypeId())) {
  const cls_xcMap map(reader.Nested("dict"));
  for (int i = 0; i < map.Count(); ++i) {
    const K* key = KeyTraits<K>::Read(map.Key(i));
    if (!key) map.Reader().Fail("a dictionary key is not of the dictionary's key kind");
    m_Dict.Insert(*key, Handle(map.Reader().template ReadObject<omu_Primitive>(map.Value(i))));
  }
  m_DictUid = map.Reader().Uid();
  m_OwnUid = reader.Uid();
}

template <class K>
unsigned int omu_PrimDictionary<K>::TypeId() noexcept {
  return omu_TypeId(KeyTraits<K>::classNumber);
}

template <class K>
char omu_PrimDictionary<K>::Kind() const {
  return KeyTraits<K>::kind;
}

template <class K>
cow_String omu_PrimDictionary<K>::TypeString() const {
  return KeyTraits<K>::typeString;
}

template <class K>
cow_String omu_PrimDictionary<K>::AsString(int) const {
  utl_Catenator text;
  text << '{';
  const char* separator = "";
  for (const auto& [key, value] : m_Dict) {
    text << separator;
    KeyTraits<K>::Print(text, key);
    text << ": " << (value ? value->AsString(0) : cow_String("None"));
    separator = ", ";
  }
  text << '}';
  return text.String();
}

template <class K>
bool omu_PrimDictionary<K>::operator==(const omu_Primitive& other) const {
  if (!other.IsType(this->TypeCode())) return false;
  const auto* dictionary = dynamic_cast<const omu_PrimDictionary*>(&other);
  if (!dictionary || dictionary->m_Dict.Length() != m_Dict.Length()) return false;
  auto theirs = dictionary->m_Dict.begin();
  for (const auto& [key, value] : m_Dict) {
    if (!(key == theirs->first)) return false;
    const omu_Primitive* left = value.ConstGet();
    const omu_Primitive* right = theirs->second.ConstGet();
    if (left != right && (!left || !right || *left != *right)) return false;
    ++theirs;
  }
  return true;
}

template <class K>
const omu_Primitive* omu_PrimDictionary<K>::Find(const K& key) const {
  const Handle* value = m_Dict.Find(key);
  return value ? value->ConstGet() : nullptr;
}

template <class K>
const omu_Primitive& omu_PrimDictionary<K>::Get(const K& key) const {
  const omu_Primitive* value = Find(key);
  return value ? *value : m_Missing;
}

template <class K>
void omu_PrimDictionary<K>::BeforeWrite() {
  if (m_Dict.IsShared()) m_DictUid = cls_Uid::AllocateUid();
}

template <class K>
void omu_PrimDictionary<K>::Store(const K& key, omu_PrimOwner value) {
  BeforeWrite();
  m_Dict.Insert(key, Handle(std::move(value)));
}

template <class K>
bool omu_PrimDictionary<K>::Remove(const K& key) {
  if (!m_Dict.Contains(key)) return false;
  BeforeWrite();
  return m_Dict.Remove(key);
}

template <class K>
void omu_PrimDictionary<K>::DBWrite(const cls_WriteVisitor& writer) const {
  if (!writer.template StartLevel<omu_PrimDictionaryBase>(TypeId(), m_OwnUid, *this)) return;
  std::vector<const typename Entries::const_iterator::value_type*> entries;
  entries.reserve(static_cast<std::size_t>(m_Dict.Length()));
  for (const auto& entry : m_Dict) entries.push_back(&entry);
  writer.WriteObject("dict",
                     cls_xcMap(
                         m_DictUid, m_Dict.Length(),
                         [&entries](int i, const cls_WriteVisitor& item) {
                           item.WriteValue(cls_Value(entries[static_cast<std::size_t>(i)]->first));
                         },
                         [&entries](int i, const cls_WriteVisitor& item) {
                           if (const omu_Primitive* value =
                                   entries[static_cast<std::size_t>(i)]->second.ConstGet()) {
                             value->DBWrite(item);
                           }
                         }));
}

template <class K>
void omu_PrimDictionary<K>::InitializeMetadata(cls_ClassRegistrar& registrar) {
  registrar
      .AddClassMD(new cls_TypeAdapter<omu_PrimDictionary>(KeyTraits<K>::name, 800,
                                                          omu_PrimDictionaryBase::TypeId()))
      .AddAttribute({0, "dict"}, cls_KIND_REFERENCE, cls_xcMap::TypeId(), 2);
}

template class omu_PrimDictionary<int>;
template class omu_PrimDictionary<cow_String>;
