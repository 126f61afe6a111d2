#include <cls_ClassRegistrar.h>
#include <cls_ReadVisitor.h>
#include <cls_TypeAdapter.h>
#include <cls_WriteVisitor.h>
#include <cls_xcList.h>
#include <nex_TextException.h>
#include <omi_complex.h>
#include <omu_ArgNumberErrorException.h>
#include <omu_ArgTypeErrorException.h>
#include <omu_DictPyObjectWrapper.h>
#include <omu_IndexErrorException.h>
#include <omu_InterfaceObj.h>
#include <omu_ListPyObjectWrapper.h>
#include <omu_NameString.h>
#include <omu_PrimArray.h>
#include <omu_PrimEnumBase.h>
#include <omu_PrimExpr.h>
#include <omu_PrimList.h>
#include <omu_PrimNumber.h>
#include <omu_PrimPath.h>
#include <omu_PrimString.h>
#include <omu_PrimType.h>
#include <omu_PyObjectWrapper.h>
#include <omu_TextRepr.h>
#include <utl_FilePath.h>

#include <algorithm>
#include <climits>
#include <utility>

#include "omu_TupleDoubles.h"

namespace {
constexpr const char* kSource = "omu/impl/omu_PrimTuple";
constexpr const char* kMissing = "Tuple Index returned NULL";

int CheckedCount(long long count) {
  if (count > INT_MAX) NEX_THROW(nex_TextException("PrimTuple too many elements"), kSource);
  return static_cast<int>(count);
}
}  // namespace

omu_PrimTuple::omu_PrimTuple(int size, char typeCode)
    : omu_PrimLeaf(typeCode), m_Size(size < 0 ? 0 : size), m_PrimVector(m_Size) {}

omu_PrimTuple::omu_PrimTuple(const cls_xcList& items, char typeCode)
    : omu_PrimTuple(items.Count(), typeCode) {
  std::vector<omu_PrimHandle>& slots = m_PrimVector.MutableVector();
  for (int i = 0; i < m_Size; ++i) {
    slots[static_cast<std::size_t>(i)] =
        omu_PrimHandle(items.Reader().ReadObject<omu_Primitive>(items.Item(i)));
  }
}

omu_PrimTuple::omu_PrimTuple(const cls_ReadVisitor& reader)
    : omu_PrimLeaf(cls_ReadVisitor(reader, omu_PrimSequence::TypeId())),
      m_Size(reader.Get<int>("size")),
      m_Cursor(reader.Get<int>("cursor")),
      m_ReqCount(reader.Get<int>("reqcount")),
      m_ArgCount(reader.Get<int>("argcount")),
      m_IsOptional(reader.Get<bool>("isOptional")),
      m_ErrorArg(reader.Get<int>("errorArg")),
      m_TypeFound(reader.Get<cow_String>("typeFound")),
      m_TypeExpected(reader.Get<cow_String>("typeExpected")),
      m_NumGets(reader.Get<int>("numGets")) {
  for (const int counter : {m_Cursor, m_ReqCount, m_ArgCount, m_ErrorArg, m_NumGets}) {
    if (counter < 0 || counter == INT_MAX) reader.Fail("a tuple counter is out of range");
  }
  if (const auto block = reader.Field("primVector").AsDoubles()) {
    ReadDoubles(reader, *block);
  } else {
    const omu_PrimTuple items(cls_xcList(reader.Nested("primVector")), '(');
    if (items.Size() != m_Size) reader.Fail("the tuple's size differs from its element count");
    m_PrimVector = items.m_PrimVector;
  }
  m_TupleUid = reader.Uid();
}

// --- Sequence ---------------------------------------------------------------------------

const omu_Primitive* omu_PrimTuple::Index(int index) const {
  return index >= 0 && index < m_Size ? m_PrimVector[index].ConstGet() : nullptr;
}

omu_Primitive& omu_PrimTuple::operator[](int index) {
  if (index < 0 || index >= m_Size) NEX_THROW(omu_IndexErrorException(index), kSource);
  omu_Primitive* element = m_PrimVector.Get(index).Get();
  if (!element) NEX_THROW(nex_TextException(kMissing), kSource);
  return *element;
}

void omu_PrimTuple::SetHandle(int index, const omu_PrimHandle& handle) {
  m_PrimVector.Get(index) = handle;
}

template <class Result>
Result* omu_PrimTuple::SliceAs(int from, int to, const char* missingText,
                               const char* source) const {
  if (to > Size()) to = Size();
  if (to < 0) to += Size();
  if (from < 0) from += Size();
  if (from < 0) from = 0;
  auto result = std::make_unique<Result>(from < to ? to - from : 0, '(');
  for (int i = from; i < to; ++i) {
    if (!Index(i)) NEX_THROW(nex_TextException(missingText), source);
    result->SetHandle(i - from, m_PrimVector[i]);
  }
  return result.release();
}

template <class Result>
Result* omu_PrimTuple::RepeatAs(int times, const char* missingText, const char* source) const {
  const int count = times > 0 ? CheckedCount(static_cast<long long>(Size()) * times) : 0;
  auto result = std::make_unique<Result>(count, '(');
  for (int i = 0; i < count; ++i) {
    if (!Index(i % Size())) NEX_THROW(nex_TextException(missingText), source);
    result->SetHandle(i, m_PrimVector[i % Size()]);
  }
  return result.release();
}

template <class Result>
Result* omu_PrimTuple::ConcatAs(omu_PrimSequence* other, const char* missingText,
                                const char* source) const {
  const auto* tail = dynamic_cast<const omu_PrimTuple*>(other);
  if (other && !tail)
    NEX_THROW(nex_TextException("PrimTuple Concat needs a tuple or list"), source);
  const int tailSize = tail ? tail->Size() : 0;
  auto result =
      std::make_unique<Result>(CheckedCount(static_cast<long long>(Size()) + tailSize), '(');
  for (int i = 0; i < result->Size(); ++i) {
    const omu_PrimTuple& from = i < Size() ? *this : *tail;
    const int at = i < Size() ? i : i - Size();
    if (!from.Index(at)) NEX_THROW(nex_TextException(missingText), source);
    result->SetHandle(i, from.m_PrimVector[at]);
  }
  return result.release();
}

template omu_PrimList* omu_PrimTuple::SliceAs<omu_PrimList>(int, int, const char*,
                                                            const char*) const;
template omu_PrimList* omu_PrimTuple::RepeatAs<omu_PrimList>(int, const char*, const char*) const;
template omu_PrimList* omu_PrimTuple::ConcatAs<omu_PrimList>(omu_PrimSequence*, const char*,
                                                             const char*) const;

omu_PrimSequence* omu_PrimTuple::Slice(int from, int to) const {
  return SliceAs<omu_PrimTuple>(from, to, kMissing, kSource);
}

omu_PrimSequence* omu_PrimTuple::Repeat(int times) const {
  return RepeatAs<omu_PrimTuple>(times, kMissing, kSource);
}

omu_PrimSequence* omu_PrimTuple::Concat(omu_PrimSequence* other) const {
  return ConcatAs<omu_PrimTuple>(other, kMissing, kSource);
}

// --- Text and equality --------------------------------------------------------------------

void omu_PrimTuple::AppendElement(std::string& text, const omu_Primitive& element,
                                  int level) const {
  // Numbers and strings, the bulk of large tuples, print without a text of their own.
  if (element.IsType('f') || element.IsType('i')) {
    static_cast<const omu_PrimNumber&>(element).AppendText(text);
  } else {
    text.append(element.AsString(level).View());
  }
}

cow_String omu_PrimTuple::AsString(int level) const {
  const int limit = omu_TextRepr::Instance().GetMaxElementsInSequence();
  std::string text;
  text.reserve(static_cast<std::size_t>(m_Size) * 12 + 2);  // numbers take about that much
  text.push_back('(');
  int written = 0;
  for (int i = 0; i < m_Size && i < limit; ++i) {
    const omu_Primitive* element = m_PrimVector[i].ConstGet();
    if (!element) continue;  // empty slots are skipped
    AppendElement(text, *element, level + 1);
    text.append(", ");
    ++written;
  }
  // (x,) keeps its comma, (x, y) loses the last separator whole.
  if (written > 1) text.pop_back();
  if (written > 0) text.pop_back();
  text.push_back(')');
  return cow_String(std::move(text));
}

bool omu_PrimTuple::operator==(const omu_Primitive& other) const {
  if (!other.IsType(TypeCode())) return false;
  const auto* tuple = dynamic_cast<const omu_PrimTuple*>(&other);
  if (!tuple || tuple->Size() != Size()) return false;
  for (int i = 0; i < m_Size; ++i) {
    const omu_Primitive* left = Index(i);
    const omu_Primitive* right = tuple->Index(i);
    if (left == right) continue;
    if (!left || !right || !(*left == *right)) return false;
  }
  return true;
}

// --- Put --------------------------------------------------------------------------------

void omu_PrimTuple::Store(omu_PrimHandle value) {
  if (m_Cursor >= m_Size) {
    if (m_Cursor >= Capacity())
      NEX_THROW(nex_TextException("PrimTuple Put past its size"), kSource);
    m_Size = m_Cursor + 1;
    m_PrimVector.Resize(m_Size);
  }
  m_PrimVector.Get(m_Cursor) = std::move(value);
  ++m_Cursor;
}

void omu_PrimTuple::Put(const cow_Map<cow_String, float>& value) { PutValue(value); }
void omu_PrimTuple::Put(const cow_2DArray<cow_String>& value) { PutValue(value); }
void omu_PrimTuple::Put(const cow_2DArray<double>& value) { PutValue(value); }
void omu_PrimTuple::Put(const cow_List<double>& value) { PutValue(value); }
void omu_PrimTuple::Put(const cow_List<omu_PrimEnumBase>& value) { PutValue(value); }
void omu_PrimTuple::Put(const cow_List<atr_String>& value) { PutValue(value); }
void omu_PrimTuple::Put(const cow_List<cow_String>& value) { PutValue(value); }
void omu_PrimTuple::Put(const cow_List<float>& value) { PutValue(value); }
void omu_PrimTuple::Put(const cow_List<bool>& value) { PutValue(value); }
void omu_PrimTuple::Put(const cow_List<int>& value) { PutValue(value); }
void omu_PrimTuple::Put(omu_ListPyObjectWrapper& value) { PutValue(value); }
void omu_PrimTuple::Put(omu_DictPyObjectWrapper<int>& value) { PutValue(value); }
void omu_PrimTuple::Put(omu_DictPyObjectWrapper<cow_String>& value) { PutValue(value); }
void omu_PrimTuple::Put(const omu_PrimType& value) { PutValue(value); }
void omu_PrimTuple::Put(const omu_PrimNone& value) { PutValue(value); }
void omu_PrimTuple::Put(const omu_PrimEnumBase& value) { PutValue(value); }
void omu_PrimTuple::Put(omu_Primitive* value) { Store(omu_PrimOwner(value)); }
void omu_PrimTuple::Put(omu_PyObjectWrapper* value) { Store(omu_PrimOwner(value)); }
void omu_PrimTuple::Put(omu_InterfaceObj* value) { Store(omu_PrimOwner(value)); }
void omu_PrimTuple::Put(const omu_PrimDictionary<cow_String>& value) { PutValue(value); }
void omu_PrimTuple::Put(const omu_PrimDictionary<int>& value) { PutValue(value); }
void omu_PrimTuple::Put(const omu_PrimArray& value) { PutValue(value); }
void omu_PrimTuple::Put(const omu_PrimTuple& value) { PutValue(value); }
void omu_PrimTuple::Put(const omu_PrimPath& value) { PutValue(value); }
void omu_PrimTuple::Put(const omu_PrimExpr& value) { PutValue(value); }
void omu_PrimTuple::Put(double value) { PutValue(value); }
void omu_PrimTuple::Put(const utl_FilePath& value) { PutValue(value); }
void omu_PrimTuple::Put(const omi_complex& value) { PutValue(value); }
void omu_PrimTuple::Put(const atr_String& value) { PutValue(value); }
void omu_PrimTuple::Put(const cow_String& value) { PutValue(value); }
void omu_PrimTuple::Put(const char* value) { PutValue(value); }
void omu_PrimTuple::Put(unsigned int value) { PutValue(value); }
void omu_PrimTuple::Put(bool value) { PutValue(value); }
void omu_PrimTuple::Put(int value) { PutValue(value); }
void omu_PrimTuple::Put(short value) { PutValue(value); }
void omu_PrimTuple::Put(signed char value) { PutValue(value); }

// --- Get --------------------------------------------------------------------------------

void omu_PrimTuple::SetTypeError(int index, const cow_String& expected) {
  const omu_Primitive* element = Index(index);
  m_ErrorArg = index + 1;
  m_TypeExpected = expected;
  if (!element) {
    m_TypeFound = "unknown";
  } else {
    m_TypeFound = element->IsType('c') ? element->AsString(0) : element->TypeString();
  }
}

bool omu_PrimTuple::Alternative() noexcept {
  if (m_ErrorArg == 0 || m_ErrorArg != m_Cursor) return false;
  --m_Cursor;
  --m_ArgCount;
  --m_NumGets;
  if (!m_IsOptional) --m_ReqCount;
  m_ErrorArg = 0;
  m_TypeFound = cow_String();
  m_TypeExpected = cow_String();
  return true;
}

void omu_PrimTuple::Begin() {
  m_Cursor = m_ArgCount = m_ReqCount = m_ErrorArg = m_NumGets = 0;
  m_IsOptional = false;
  m_TypeFound = cow_String();
  m_TypeExpected = cow_String();
}

void omu_PrimTuple::Reset(int size) {
  m_Size = size < 0 ? 0 : size;
  std::vector<omu_PrimHandle>& slots = m_PrimVector.MutableVector();
  slots.clear();
  slots.resize(static_cast<std::size_t>(m_Size));
  m_TupleUid = cls_Uid();
  m_NestedErrorStr = cow_String();
  omu_PrimTuple::Begin();
}

void omu_PrimTuple::End(cow_String context) {
  if (context.IsEmpty()) context = m_NestedErrorStr;
  if (m_ErrorArg != 0) {
    NEX_THROW(omu_ArgTypeErrorException(m_ErrorArg, m_TypeExpected, m_TypeFound, context), kSource);
  }
  if (m_Size < m_ReqCount || m_Size > m_ArgCount) {
    NEX_THROW(omu_ArgNumberErrorException(m_ReqCount, m_Size, context), kSource);
  }
  m_Cursor = m_ReqCount = m_ArgCount = m_ErrorArg = 0;
  m_IsOptional = false;
}

const omu_PyObjectWrapper* omu_PrimTuple::Get(const omu_PyObjectWrapper*) {
  const omu_PyObjectWrapper* wrapper = nullptr;
  GetValue(wrapper);
  return wrapper;
}

const omu_InterfaceObj* omu_PrimTuple::Get(const char* typeName, const omu_InterfaceObj*) {
  const omu_InterfaceObj* object = nullptr;
  if (Readable()) {
    const bool taken = omu_PrimConvert(Index(m_Cursor), object, omu_BINDING_EXACT) &&
                       (!typeName || object->IsA(typeName));
    if (!taken) SetTypeError(m_Cursor, typeName ? typeName : omu_PythonType::Generic);
  }
  Advance();
  return object;
}

void omu_PrimTuple::Get(omu_ListPyObjectWrapper& out) { GetValue(out); }
void omu_PrimTuple::Get(omu_DictPyObjectWrapper<cow_String>& out) { GetValue(out); }
void omu_PrimTuple::Get(omu_DictPyObjectWrapper<int>& out) { GetValue(out); }
void omu_PrimTuple::Get(cow_Map<cow_String, float>& out) { GetValue(out); }
void omu_PrimTuple::Get(cow_2DArray<cow_String>& out) { GetValue(out); }
void omu_PrimTuple::Get(cow_2DArray<double>& out) { GetValue(out); }
void omu_PrimTuple::Get(cow_List<double>& out) { GetValue(out); }
void omu_PrimTuple::Get(cow_List<atr_String>& out) { GetValue(out); }
void omu_PrimTuple::Get(cow_List<cow_String>& out) { GetValue(out); }
void omu_PrimTuple::Get(cow_List<float>& out) { GetValue(out); }
void omu_PrimTuple::Get(cow_List<bool>& out) { GetValue(out); }
void omu_PrimTuple::Get(cow_List<int>& out) { GetValue(out); }
void omu_PrimTuple::Get(omu_PrimType& out) { GetValue(out); }
void omu_PrimTuple::Get(omu_PrimNone& out) { GetValue(out); }
void omu_PrimTuple::Get(omu_PrimArray& out) { GetValue(out); }
void omu_PrimTuple::Get(omu_PrimEnumBase& out) { GetValue(out); }
void omu_PrimTuple::Get(omu_PrimDictionary<cow_String>& out) { GetValue(out); }
void omu_PrimTuple::Get(omu_PrimDictionary<int>& out) { GetValue(out); }
void omu_PrimTuple::Get(omu_PrimTuple& out) { GetValue(out); }
void omu_PrimTuple::Get(omu_PrimPath& out) { GetValue(out); }
void omu_PrimTuple::Get(utl_FilePath& out) { GetValue(out); }
void omu_PrimTuple::Get(omi_complex& out) { GetValue(out); }
void omu_PrimTuple::Get(atr_String& out) { GetValue(out); }
void omu_PrimTuple::Get(cow_String& out) { GetValue(out); }
void omu_PrimTuple::Get(double& out) { GetValue(out); }
void omu_PrimTuple::Get(unsigned int& out) { GetValue(out); }
void omu_PrimTuple::Get(int& out) { GetValue(out); }
void omu_PrimTuple::Get(short& out) { GetValue(out); }
void omu_PrimTuple::Get(signed char& out) { GetValue(out); }
void omu_PrimTuple::Get(bool& out) { GetValue(out); }

// --- Persistence --------------------------------------------------------------------------

// A tuple of plain doubles is written as one block of them instead of a record per number:
// 8 bytes a number in a file, and no object per number while writing.
bool omu_PrimTuple::PlainDoubles() const {
  const std::vector<omu_PrimHandle>& slots = m_PrimVector.Vector();
  return m_Size > 0 &&
         std::all_of(slots.begin(), slots.begin() + m_Size, [](const omu_PrimHandle& slot) {
           const omu_Primitive* element = slot.ConstGet();
           return element && element->DynTypeId() == omu_PrimNumber::TypeId() &&
                  static_cast<const omu_PrimNumber&>(*element).IsPlainDouble();
         });
}

void omu_PrimTuple::ReadDoubles(const cls_ReadVisitor& reader, const cow_2DArray<double>& block) {
  if (block.Rows() != 1 || block.Columns() != m_Size) {
    reader.Fail("the tuple's size differs from its element count");
  }
  m_PrimVector = cow_List<omu_PrimHandle>(m_Size);
  std::vector<omu_PrimHandle>& slots = m_PrimVector.MutableVector();
  const std::vector<double>& cells = block.Cells();
  for (std::size_t i = 0; i < cells.size(); ++i) {
    slots[i] = omu_PrimHandle(new omu_PrimNumber(cells[i]));
  }
}

void omu_PrimTuple::DBWrite(const cls_WriteVisitor& writer) const {
  if (!writer.StartLevel<omu_PrimSequence>(TypeId(), m_TupleUid, *this)) return;
  if (PlainDoubles()) {
    writer.Write("primVector", std::shared_ptr<const cls_DoublesSource>(
                                   std::make_shared<omu_TupleDoubles>(m_PrimVector, m_Size)));
  } else {
    const auto writeItem = [this](int i, const cls_WriteVisitor& item) {
      if (const omu_Primitive* element = Index(i)) element->DBWrite(item);
    };
    writer.WriteObject("primVector", cls_xcList(cls_Uid(), m_Size, writeItem));
  }
  writer.Write("size", m_Size);
  writer.Write("cursor", m_Cursor);
  writer.Write("reqcount", m_ReqCount);
  writer.Write("argcount", m_ArgCount);
  writer.Write("isOptional", m_IsOptional);
  writer.Write("errorArg", m_ErrorArg);
  writer.Write("typeFound", m_TypeFound);
  writer.Write("typeExpected", m_TypeExpected);
  writer.Write("numGets", m_NumGets);
}

void omu_PrimTuple::InitializeMetadata(cls_ClassRegistrar& registrar) {
  registrar
      .AddClassMD(
          new cls_TypeAdapter<omu_PrimTuple>("omu_PrimTuple", 800, omu_PrimSequence::TypeId()))
      .AddAttribute({0, "primVector"}, cls_KIND_REFERENCE, cls_xcList::TypeId(), 1)
      .AddAttribute({1, "size"}, cls_KIND_INT)
      .AddAttribute({2, "cursor"}, cls_KIND_INT)
      .AddAttribute({3, "reqcount"}, cls_KIND_INT)
      .AddAttribute({4, "argcount"}, cls_KIND_INT)
      .AddAttribute({5, "isOptional"}, cls_KIND_BOOL)
      .AddAttribute({6, "errorArg"}, cls_KIND_INT)
      .AddAttribute({7, "typeFound"}, cls_KIND_STRING)
      .AddAttribute({8, "typeExpected"}, cls_KIND_STRING)
      .AddAttribute({9, "numGets"}, cls_KIND_INT);
}
