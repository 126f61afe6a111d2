#pragma once
/// \addtogroup omu
/// @{

/// \class omu_Arguments
/// The argument list of one script call: the positional values as a tuple and the keyword
/// values as a dictionary. Command code reads it with Begin, one Get per parameter in
/// declaration order (each naming its keyword: positions are used first, keywords once they
/// run out), and End with the command's name, which raises the one error that best describes
/// what was wrong, in this order: a keyword no Get asked for, a positional value of the wrong
/// type, a keyword value of the wrong type, too few arguments, too many. Keywords are taken as
/// text views: reading allocates nothing, and each keyword read takes constant time (a hash
/// index of the call's keywords, built by Begin or at the first keyword read after the keywords
/// change). The keywords are kept in the order stored, one allocation for a call; the keyword
/// dictionary is made from them only when asked for (Keywords).
#include <omu_CorvexName.h>
#include <omu_KeywordIndex.h>
#include <omu_PrimDictionary.h>
#include <omu_PrimTuple.h>

#include <memory>
#include <string>
#include <vector>

class CVX_EXPORT omu_Arguments : public omu_PrimLeaf<omu_Arguments, omu_PrimTuple> {
public:
  /// size positional slots and no keywords.
  explicit omu_Arguments(int size = 0);
  /// Member-wise copy.
  ///@{
  omu_Arguments(const omu_Arguments&) = default;
  omu_Arguments& operator=(const omu_Arguments&) = default;
  ///@}

  using omu_PrimTuple::Get;
  /// The tuple's positional reads and writes stay visible beside the keyword ones.
  ///@{
  using omu_PrimTuple::GetValue;
  using omu_PrimTuple::Put;
  ///@}

  void Begin() override;
  /// Also forgets the keywords, keeping the storage of all but their values.
  void Reset(int size) override;
  /// Reads the parameter by position while positions last (with the tuple's Get), else by its
  /// keyword (with T's binding, omu_Binding). A missing required keyword, or a keyword value
  /// that does not convert to T, is kept for End; a missing optional keyword is no error and
  /// leaves out untouched.
  template <class T>
  void Get(T& out, std::string_view keyword) {
    Read(out, keyword, [this](T& into) { omu_PrimTuple::Get(into); });
  }
  /// The same for any bound type, by position with the tuple's GetValue.
  template <omu_Gettable T>
  void GetValue(T& out, std::string_view keyword) {
    Read(out, keyword, [this](T& into) { omu_PrimTuple::GetValue(into); });
  }
  /// A name validated by its kind (out's kind): an illegal name raises
  /// omu_CorNameErrorException at once.
  void Get(omu_CorvexName& out, std::string_view keyword);
  /// An interface object of the script type typeName, by position or keyword; lent.
  const omu_InterfaceObj* Get(const char* typeName, const omu_InterfaceObj*,
                              std::string_view keyword);

  /// Room for count keyword Puts, so that building a call of many keywords allocates once.
  void ReserveKeywords(int count) { m_Stored.reserve(static_cast<std::size_t>(count)); }
  /// Stores value under keyword as omu_PrimOwn makes it (replacing the value of a keyword
  /// stored before, as the keyword dictionary's Put does), for argument lists built to be
  /// passed on.
  template <class T>
  requires requires(const T& value) { omu_PrimOwn(value); }
  void Put(const T& value, const cow_String& keyword) {
    Store(keyword, omu_PrimHandle(omu_PrimOwn(value)));
  }
  /// Stores a share of value under keyword, as Put(omu_PrimHandle) does by position.
  void Put(omu_PrimHandle value, const cow_String& keyword) { Store(keyword, std::move(value)); }

  /// Right after a Get of the same parameter that failed, and while deprecated arguments are
  /// allowed: reads the parameter again by the old keyword and gives the deprecation notice
  /// naming `other` as what replaces it.
  template <class T>
  // NOLINTNEXTLINE(performance-unnecessary-value-param): by value, as the binding API states it
  void DeprecatedGet(T& out, std::string_view keyword, cow_String other) {
    if (!DeprecatedAlternative(other)) return;
    Get(out, keyword);
    if (!ErrorOnPrevious()) Deprecated(keyword, other);
  }
  /// Whether deprecated arguments are allowed (omu_Deprecation); other names the replacement.
  bool DeprecatedCheck(cow_String other) const;
  /// DeprecatedCheck, then Alternative: whether the failed Get may be read again by the old
  /// keyword.
  bool DeprecatedAlternative(cow_String other);

  /// Undoes the last Get when it failed, so that the parameter can be read again as another
  /// type; false (and nothing changed) otherwise.
  bool Alternative();
  /// Whether End would raise.
  bool Error() const;
  /// Whether the last Get is the one that failed.
  bool ErrorOnPrevious() const;
  void End(cow_String context) override;
  /// The same for a command name given as a literal: its text is copied only when End raises.
  void End(const char* context);

  /// The keyword values, by keyword: made (copying the values) at the first call after the
  /// keywords change, and kept. Not for the call path, which reads keywords with Get. Making it
  /// writes the list, so two threads must not ask one list for it at once.
  const omu_PrimDictionary<cow_String>& Keywords() const;
  /// The keywords Put stored, in order.
  cow_List<cow_String> StoredKeywords() const;
  /// The value the index-th keyword Put stored, in order of storing (without the dictionary),
  /// or null when fewer were stored.
  const omu_Primitive* StoredValue(int index) const noexcept {
    if (index < 0 || static_cast<std::size_t>(index) >= m_Stored.size()) return nullptr;
    return m_Stored[static_cast<std::size_t>(index)].second.ConstGet();
  }
  /// The call's text as a script writes it: positional values, then keyword=value pairs, in
  /// parentheses (no one-element comma: this is a call, not a tuple).
  cow_String AsString(int level) const override;
  cow_String AsRepr() const override { return AsString(0); }

private:
  void Store(const cow_String& keyword, omu_PrimHandle value);
  /// Builds the keyword index unless it is current.
  void IndexKeywords();
  template <class T, class ByPosition>
  void Read(T& out, std::string_view keyword, ByPosition&& byPosition) {
    if (m_ErrorArg == 0 && m_Cursor < m_Size) return byPosition(out);
    const omu_Primitive* value = TakeKeyword(keyword);
    if (value && !omu_PrimConvert(value, out)) {
      KeywordTypeError(keyword, omu_Binding<T>::Expected(out), *value);
    }
  }
  /// Counts a read by keyword and claims the keyword's slot; answers its value while no error
  /// is recorded and no Get took it before, else null (recording a missing keyword).
  const omu_Primitive* TakeKeyword(std::string_view keyword);
  /// The keyword's value when the call gives it (at slot) and no Get has taken it; else records
  /// the missing keyword and answers null.
  const omu_Primitive* Claim(std::string_view keyword, int slot);
  /// Records that the value TakeKeyword answered last is not of the type expected.
  void KeywordTypeError(std::string_view keyword, const cow_String& expected,
                        const omu_Primitive& found);
  void CountKeywordRead(int slot);
  /// The keyword's place in key order, or -1.
  int KeywordSlot(std::string_view keyword);
  /// End's checks in order; context() gives the text of the error raised.
  template <class Context>
  void EndWith(Context&& context);
  void Deprecated(std::string_view keyword, const cow_String& other) const;
  cow_String FirstUnclaimed() const;
  /// The number of different keywords stored.
  int KeywordCount() const;
  bool IsUnclaimed(int slot) const noexcept;

  /// The keyword Puts, in order; a keyword stored again is indexed with its last value.
  std::vector<omu_KeywordIndex::Stored> m_Stored;
  /// Keywords(), once asked for; immutable, so copies share it.
  mutable std::shared_ptr<const omu_PrimDictionary<cow_String>> m_Keywords;
  omu_KeywordIndex m_Index;
  /// The unclaimed keywords: one flag per keyword in key order (set once a Get took it), so
  /// that reading claims nothing by copying texts. A string for its small buffer: a call of up
  /// to 15 keywords allocates no flags.
  std::string m_Claimed;
  int m_Unclaimed = 0;
  int m_KeywordsTaken = 0;
  int m_KeywordErrorAt = 0;
  /// A string for its small buffer: recording a missing optional keyword, which every call
  /// that leaves out an optional parameter does, allocates nothing.
  std::string m_KeywordInError;
  int m_OptionalKeywordMissingAt = 0;
};

/// @}
