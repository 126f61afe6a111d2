#pragma once
/// \addtogroup omu
/// @{

/// \class omu_PrimTuple
/// A fixed-size sequence of primitives that also reads a script call's arguments: Begin,
/// then one typed Get per argument (Optional() marks where optional ones start), then End,
/// which raises the first fault found. Get never raises: a missing or mistyped value leaves
/// its output untouched and the fault is kept for End. Elements are copy-on-write handles,
/// so copying a tuple is O(1) whatever its size. In an archive, "primVector" holds a record
/// per element or, when every element is a plain double (omu_PrimNumber::IsPlainDouble), the
/// numbers as one block of doubles: 8 bytes each, read back as plain doubles. The archive
/// shares the elements until it is encoded rather than copying the numbers out, so a save
/// holds one copy of them, the file's; a tuple changed meanwhile un-shares its element list.
#include <cow_COW.h>
#include <omu_Binding.h>
#include <omu_PrimLeaf.h>
#include <omu_PrimSequence.h>

#include <memory>
#include <string>

class cls_xcList;

/// A shared, copy-on-write slot of a sequence: copies share the primitive until one is written.
using omu_PrimHandle = cow_ArrayCOW<omu_Primitive, cow_Virtual<omu_Primitive>>;

class CVX_EXPORT omu_PrimTuple : public omu_PrimLeaf<omu_PrimTuple, omu_PrimSequence> {
public:
  /// size slots, unset until Put; typeCode '(' for a tuple, '[' for a list.
  explicit omu_PrimTuple(int size = 0, char typeCode = '(');
  /// The items of a persisted list of primitives.
  omu_PrimTuple(const cls_xcList& items, char typeCode);
  /// O(1): the elements are shared until written.
  ///@{
  omu_PrimTuple(const omu_PrimTuple&) = default;
  omu_PrimTuple& operator=(const omu_PrimTuple&) = default;
  ///@}
  /// Reads the object back from the record reader is at.
  explicit omu_PrimTuple(const cls_ReadVisitor& reader);

  cow_String AsString(int level) const override;
  /// Same type code and size, and every element equal to its counterpart.
  bool operator==(const omu_Primitive& other) const override;
  /// Writes the object through writer: its class level, and its parent classes' levels within it.
  void DBWrite(const cls_WriteVisitor& writer) const override;

  int Size() const override { return m_Size; }
  const omu_Primitive* Index(int index) const override;
  omu_PrimSequence* Slice(int from, int to) const override;
  omu_PrimSequence* Repeat(int times) const override;
  omu_PrimSequence* Concat(omu_PrimSequence* other) const override;

  /// Each Put stores into the slot at the cursor and moves the cursor on, as its type's binding
  /// makes it (omu_Binding): scalars become the matching primitive, collections nested tuples,
  /// a string map a dictionary, a primitive a copy of itself.
  ///@{
  virtual void Put(const cow_Map<cow_String, float>& value);
  virtual void Put(const cow_2DArray<cow_String>& value);
  virtual void Put(const cow_2DArray<double>& value);
  virtual void Put(const cow_List<double>& value);
  virtual void Put(const cow_List<omu_PrimEnumBase>& value);
  virtual void Put(const cow_List<atr_String>& value);
  virtual void Put(const cow_List<cow_String>& value);
  virtual void Put(const cow_List<float>& value);
  virtual void Put(const cow_List<bool>& value);
  virtual void Put(const cow_List<int>& value);
  virtual void Put(omu_ListPyObjectWrapper& value);
  virtual void Put(omu_DictPyObjectWrapper<int>& value);
  virtual void Put(omu_DictPyObjectWrapper<cow_String>& value);
  virtual void Put(const omu_PrimType& value);
  virtual void Put(const omu_PrimNone& value);
  virtual void Put(const omu_PrimEnumBase& value);
  /// Takes ownership of value.
  virtual void Put(omu_Primitive* value);
  virtual void Put(omu_PyObjectWrapper* value);
  /// Takes ownership of the object handle.
  virtual void Put(omu_InterfaceObj* value);
  virtual void Put(const omu_PrimDictionary<cow_String>& value);
  virtual void Put(const omu_PrimDictionary<int>& value);
  virtual void Put(const omu_PrimArray& value);
  virtual void Put(const omu_PrimTuple& value);
  virtual void Put(const omu_PrimPath& value);
  virtual void Put(const omu_PrimExpr& value);
  virtual void Put(double value);
  virtual void Put(const utl_FilePath& value);
  virtual void Put(const omi_complex& value);
  virtual void Put(const atr_String& value);
  virtual void Put(const cow_String& value);
  virtual void Put(const char* value);
  virtual void Put(unsigned int value);
  virtual void Put(bool value);
  virtual void Put(int value);
  virtual void Put(short value);
  virtual void Put(signed char value);
  ///@}

  /// Stores a share of value at the cursor: no copy until one side writes it.
  void Put(omu_PrimHandle value) { Store(std::move(value)); }

  /// Each Get reads the element at the cursor into its output, as its type's binding takes it
  /// by position, and moves the cursor on. The wrapper is lent (null when refused).
  virtual const omu_PyObjectWrapper* Get(const omu_PyObjectWrapper*);
  /// An interface object of the script type typeName (any object for null); lent, null when
  /// refused.
  virtual const omu_InterfaceObj* Get(const char* typeName, const omu_InterfaceObj*);
  /// Each of these Get overloads reads the element at the cursor into out, as the type's binding
  /// takes it by position, and moves the cursor on; a refused element leaves out untouched and
  /// records the type error for End.
  ///@{
  virtual void Get(omu_ListPyObjectWrapper& out);
  virtual void Get(omu_DictPyObjectWrapper<cow_String>& out);
  virtual void Get(omu_DictPyObjectWrapper<int>& out);
  virtual void Get(cow_Map<cow_String, float>& out);
  virtual void Get(cow_2DArray<cow_String>& out);
  virtual void Get(cow_2DArray<double>& out);
  virtual void Get(cow_List<double>& out);
  virtual void Get(cow_List<atr_String>& out);
  virtual void Get(cow_List<cow_String>& out);
  virtual void Get(cow_List<float>& out);
  virtual void Get(cow_List<bool>& out);
  virtual void Get(cow_List<int>& out);
  virtual void Get(omu_PrimType& out);
  virtual void Get(omu_PrimNone& out);
  virtual void Get(omu_PrimArray& out);
  /// The element's name must be one that out accepts (out.SetValue).
  virtual void Get(omu_PrimEnumBase& out);
  virtual void Get(omu_PrimDictionary<cow_String>& out);
  virtual void Get(omu_PrimDictionary<int>& out);
  virtual void Get(omu_PrimTuple& out);
  virtual void Get(omu_PrimPath& out);
  virtual void Get(utl_FilePath& out);
  virtual void Get(omi_complex& out);
  virtual void Get(atr_String& out);
  virtual void Get(cow_String& out);
  /// Any number.
  virtual void Get(double& out);
  /// A UINT number, or a non-negative INT number.
  virtual void Get(unsigned int& out);
  /// An INT number only (SHORT, SCHAR and UINT are refused).
  virtual void Get(int& out);
  virtual void Get(short& out);
  virtual void Get(signed char& out);
  /// A Boolean, or an INT, SCHAR or SHORT number that is 0 or 1.
  virtual void Get(bool& out);
  ///@}
  /// Starts reading: the cursor to the first element, no fault and no value read yet.
  virtual void Begin();
  /// Makes the tuple as a new one of size slots would be, releasing its values but keeping its
  /// storage when no copy shares it: a caller that builds one short-lived tuple after another
  /// allocates the slots once.
  virtual void Reset(int size);
  /// Raises omu_ArgTypeErrorException for the first mistyped value, else
  /// omu_ArgNumberErrorException when too few or too many values were read; an empty
  /// context takes the nested error text.
  virtual void End(cow_String context);

  /// Put and Get for any bound type (omu_Binding), the library's or one bound outside it;
  /// GetValue takes by the positional rule. They carry other names than the overloads above so
  /// that no call of those changes overload: Put(1.5f) stays Put(double).
  ///@{
  template <omu_Puttable T>
  void PutValue(const T& value) {
    Store(omu_PrimMake(value));
  }
  template <omu_Gettable T>
  void GetValue(T& out) {
    if (Readable() && !omu_PrimConvert(Element(m_Cursor), out, omu_BINDING_EXACT)) {
      SetTypeError(m_Cursor, omu_Binding<T>::Expected(out));
    }
    Advance();
  }
  ///@}

  /// The values read from now on are optional.
  void Optional() noexcept { m_IsOptional = true; }
  /// Undoes the last read when it recorded a type error, so that another reading of the
  /// same element can be tried; false (and nothing changed) otherwise.
  bool Alternative() noexcept;
  /// The text End raises with when its context is empty.
  void SetNestedErrorStr(const cow_String& text) { m_NestedErrorStr = text; }
  /// The element for writing: it stops sharing with copies of this tuple first.
  omu_Primitive& operator[](int index);

  /// The slot the next Put or Get uses.
  int Cursor() const noexcept { return m_Cursor; }
  /// The 1-based position of the first mistyped value read; 0 when none.
  int ErrorArg() const noexcept { return m_ErrorArg; }
  /// The type found, and the type expected, at ErrorArg().
  ///@{
  const cow_String& TypeFound() const noexcept { return m_TypeFound; }
  const cow_String& TypeExpected() const noexcept { return m_TypeExpected; }
  ///@}
  /// The number of values read since Begin.
  int NumGets() const noexcept { return m_NumGets; }
  /// Shares one element of another sequence's storage (no copy until written).
  const omu_PrimHandle& Handle(int index) const { return m_PrimVector[index]; }

  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept { return omu_TypeId(25); }
  /// Registers the class (name, version, parent) with registrar, so archives can read it back.
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

protected:
  /// The upper bound on slots that Put may grow the tuple to (a list's maximum size).
  virtual int Capacity() const noexcept { return m_Size; }
  /// Stores value (shared, or owned from now on) at the cursor and moves on; past the size it
  /// grows the tuple up to Capacity(), beyond which it raises nex_TextException.
  ///@{
  void Store(omu_PrimHandle value);
  void Store(std::unique_ptr<omu_Primitive> value) { Store(omu_PrimHandle(std::move(value))); }
  ///@}
  /// Makes slot index share handle.
  void SetHandle(int index, const omu_PrimHandle& handle);
  /// Slice, Repeat and Concat into a new sequence of type Result; a missing element
  /// raises missingText from source.
  ///@{
  template <class Result>
  Result* SliceAs(int from, int to, const char* missingText, const char* source) const;
  template <class Result>
  Result* RepeatAs(int times, const char* missingText, const char* source) const;
  template <class Result>
  Result* ConcatAs(omu_PrimSequence* other, const char* missingText, const char* source) const;
  ///@}

  /// The reading state, which argument lists extend with their keywords.
  ///@{
  bool Readable() const noexcept { return m_Cursor < m_Size && m_ErrorArg == 0; }
  /// Moves the cursor on, counting the value read (as required unless Optional()).
  void Advance() noexcept {
    ++m_Cursor;
    ++m_NumGets;
    ++m_ArgCount;
    if (!m_IsOptional) ++m_ReqCount;
  }
  /// The element at index, which must be below Size(): Index without its virtual call and
  /// bounds checks, for reading at the cursor.
  const omu_Primitive* Element(int index) const noexcept {
    return m_PrimVector.Vector()[static_cast<std::size_t>(index)].ConstGet();
  }
  /// Records a type error at index (0-based) for ErrorArg, TypeFound and TypeExpected.
  void SetTypeError(int index, const cow_String& expected);

  int m_Size = 0;
  int m_Cursor = 0;
  int m_ReqCount = 0;
  int m_ArgCount = 0;
  bool m_IsOptional = false;
  int m_ErrorArg = 0;
  cow_String m_TypeFound;
  cow_String m_TypeExpected;
  int m_NumGets = 0;
  cow_String m_NestedErrorStr;
  ///@}

private:
  void AppendElement(std::string& text, const omu_Primitive& element, int level) const;
  bool PlainDoubles() const;
  void ReadDoubles(const cls_ReadVisitor& reader, const cow_2DArray<double>& block);

  cow_List<omu_PrimHandle> m_PrimVector;
  cls_Uid m_TupleUid;
};

/// @}
