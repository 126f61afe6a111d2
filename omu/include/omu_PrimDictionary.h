#pragma once
/// \addtogroup omu
/// @{

/// \class omu_PrimDictionary
/// A script dictionary with integer keys (omu_PrimDictionary<int>, "omu_PrimIntDictionary")
/// or text keys (omu_PrimDictionary<cow_String>, "omu_PrimStrDictionary"). Entries are kept
/// in key order in a copy-on-write tree, so copies are O(1); text keys are also hashed beside
/// it (cow_TextMap), so a lookup compares one key rather than one a level. Typed reads and
/// writes by key spare command code the primitives inside (through the value type's binding,
/// omu_Binding, whose reads convert as keyword reads do).
///
/// The entries carry a persistence identity of their own, allocated by the constructor and
/// kept by copies; a write to entries that a copy still shares allocates a new one, so that
/// two dictionaries with one identity always hold the same entries.
#include <cow_Btree.h>
#include <cow_COW.h>
#include <cow_TextMap.h>
#include <omu_Binding.h>
#include <omu_PrimDictionaryBase.h>
#include <omu_PrimLeaf.h>
#include <omu_PrimNone.h>

template <class K>
class CVX_EXPORT omu_PrimDictionary
    : public omu_PrimLeaf<omu_PrimDictionary<K>, omu_PrimDictionaryBase> {
  using Leaf = omu_PrimLeaf<omu_PrimDictionary<K>, omu_PrimDictionaryBase>;

public:
  /// A value slot, shared with copies until written.
  using Handle = cow_COW<omu_Primitive, cow_Virtual<omu_Primitive>>;
  /// The entries in key order (text keys with their hash index).
  using Entries =
      std::conditional_t<std::is_same_v<K, cow_String>, cow_TextMap<Handle>, cow_Btree<K, Handle>>;

  /// An empty dictionary with a new entries identity.
  explicit omu_PrimDictionary(char typeCode = '{', char represents = 0);
  /// Member-wise copy.
  ///@{
  omu_PrimDictionary(const omu_PrimDictionary&) = default;
  omu_PrimDictionary& operator=(const omu_PrimDictionary&) = default;
  ///@}
  /// Reads the object back from the record reader is at.
  explicit omu_PrimDictionary(const cls_ReadVisitor& reader);

  /// "dictionary with string keys" or "dictionary with integer keys".
  cow_String TypeString() const override;
  /// {key: value, ...} in key order; text keys quoted as strings are.
  cow_String AsString(int level) const override;
  /// Same type code, the same keys in order and equal values: the order of the Puts does
  /// not matter.
  bool operator==(const omu_Primitive& other) const override;
  /// Writes the object through writer: its class level, and its parent classes' levels within it.
  void DBWrite(const cls_WriteVisitor& writer) const override;
  char Kind() const override;

  /// The number of entries.
  int Length() const noexcept { return m_Dict.Length(); }
  /// True when key has an entry.
  bool Contains(const K& key) const { return m_Dict.Contains(key); }
  /// The entries, for iteration in key order.
  const Entries& GetEntries() const noexcept { return m_Dict; }
  /// The value under key, or the dictionary's missing-key value (a None).
  const omu_Primitive& Get(const K& key) const;
  /// The value under key, or null.
  const omu_Primitive* Find(const K& key) const;
  /// The same, from anything that orders against the keys (a text view for text keys).
  template <class Key>
  const omu_Primitive* FindKey(const Key& key) const {
    const Handle* value = m_Dict.FindKey(key);
    return value ? value->ConstGet() : nullptr;
  }
  /// 1 when out was set from the value under key, 0 (out untouched) when the key is missing
  /// or its value is not of a kind that T accepts.
  template <omu_Gettable T>
  int Get(T& out, const K& key) const {
    return omu_PrimConvert(Find(key), out) ? 1 : 0;
  }
  /// Stores value under key as omu_PrimOwn makes it (a pointer's primitive is taken over),
  /// replacing any entry.
  template <class T>
  requires requires(const T& value) { omu_PrimOwn(value); }
  void Put(const T& value, const K& key) { Store(key, omu_PrimOwn(value)); }
  /// Removes key's entry; false when there was none.
  bool Remove(const K& key);
  /// The entries' persistence identity (see the class).
  const cls_Uid& EntriesUid() const noexcept { return m_DictUid; }

  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept;
  /// Registers the class (name, version, parent) with registrar, so archives can read it back.
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
  void Store(const K& key, omu_PrimOwner value);
  void BeforeWrite();

  Entries m_Dict;
  omu_PrimNone m_Missing;
  cls_Uid m_DictUid;
  cls_Uid m_OwnUid;
};

CVX_EXTERN_TEMPLATE(omu_PrimDictionary<int>)
CVX_EXTERN_TEMPLATE(omu_PrimDictionary<cow_String>)

/// @}
