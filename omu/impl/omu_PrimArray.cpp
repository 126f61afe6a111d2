#include <aio_ostream.h>
#include <cls_ClassRegistrar.h>
#include <cls_ReadVisitor.h>
#include <cls_TypeAdapter.h>
#include <cls_WriteVisitor.h>
#include <nex_TextException.h>
#include <omu_PrimArray.h>

#include <climits>
#include <cstring>
#include <utility>

namespace {
constexpr const char* kSource = "omu/impl/omu_PrimArray";
constexpr const char* kOutOfBounds = "PrimArray index out of bounds";
using DataTypeEnm = omu_PrimNumber::DataTypeEnm;

[[noreturn]] void Raise(const atr_String& text, int line) {
  nex_Exception::Throw(nex_TextException(text), kSource, line);
}

// Raised by a construction step after its reason went to the error stream.
struct StepFailed {};

[[noreturn]] void Refuse(const atr_StringBase& reason) {
  aio_cerr() << reason << '\n';
  throw StepFailed{};
}

int ItemSize(DataTypeEnm dataType) noexcept {
  switch (dataType) {
    case omu_PrimNumber::INT:
    case omu_PrimNumber::FLOAT:
      return 4;
    case omu_PrimNumber::DOUBLE:
      return 8;
    default:
      return 0;
  }
}

// The element count of dims, refused when it is negative or the bytes would pass INT_MAX.
std::size_t CheckedBytes(const std::vector<int>& dims, int itemSize) {
  long long count = 1;
  for (const int dim : dims) {
    if (dim < 0) Refuse("PrimArray negative dimensions are not allowed");
    count *= dim;
    if (count * itemSize > INT_MAX) Refuse("PrimArray can't allocate memory for array (data)");
  }
  return static_cast<std::size_t>(count * itemSize);
}

void Store(std::byte* at, DataTypeEnm dataType, double value) {
  if (dataType == omu_PrimNumber::INT) {
    const auto number = static_cast<std::int32_t>(omu_PrimNumber::Truncate(value));
    std::memcpy(at, &number, sizeof number);
  } else if (dataType == omu_PrimNumber::FLOAT) {
    const auto number = static_cast<float>(value);
    std::memcpy(at, &number, sizeof number);
  } else {
    std::memcpy(at, &value, sizeof value);
  }
}

// The shape of nested sequences, and one element type that fits all their numbers.
class SequenceShape {
public:
  explicit SequenceShape(const omu_PrimSequence& top) {
    try {
      m_Dims = DimsOf(top, 0);
    } catch (const StepFailed&) {
      Raise("omu_PrimArray from sequence failed - dimensions. ", __LINE__);
    }
    try {
      FitType(top);
    } catch (const StepFailed&) {
      Raise("omu_PrimArray from sequence failed - DimsAndData", __LINE__);
    }
  }
  const std::vector<int>& Dims() const noexcept { return m_Dims; }
  DataTypeEnm DataType() const noexcept {
    if (m_Count > 0 && m_AllInt) return omu_PrimNumber::INT;
    if (m_Count > 0 && m_AllFloat) return omu_PrimNumber::FLOAT;
    return omu_PrimNumber::DOUBLE;
  }

private:
  static std::vector<int> DimsOf(const omu_Primitive& value, int depth) {
    if (value.IsType('i') || value.IsType('f')) return {};
    const auto* sequence = dynamic_cast<const omu_PrimSequence*>(&value);
    if (!sequence) Refuse("Child not PrimSequence or PrimNumber");
    if (depth >= omu_PrimArray::MaxDims) Refuse("PrimArray too many dimensions");
    std::vector<int> dims{sequence->Size()};
    std::vector<int> first;
    for (int i = 0; i < sequence->Size(); ++i) {
      const std::unique_ptr<const omu_Primitive> owned(sequence->IsType('o') ? sequence->Index(i)
                                                                             : nullptr);
      const omu_Primitive* child = owned ? owned.get() : sequence->Index(i);
      if (!child) Refuse("Child not PrimSequence or PrimNumber");
      std::vector<int> childDims = DimsOf(*child, depth + 1);
      if (i == 0) {
        first = std::move(childDims);
        continue;
      }
      if (childDims.size() != first.size()) {
        Refuse(atr_StringBase::Format("different num dims in child. nd=%d, ndTemp=%d, i=%d",
                                      static_cast<int>(first.size()),
                                      static_cast<int>(childDims.size()), i));
      }
      for (std::size_t j = 0; j < first.size(); ++j) {
        if (childDims[j] != first[j]) {
          Refuse(atr_StringBase::Format("different dims in child. dimThis=%d, j=%d", childDims[j],
                                        static_cast<int>(j)));
        }
      }
    }
    dims.insert(dims.end(), first.begin(), first.end());
    return dims;
  }

  void FitType(const omu_Primitive& value) {
    if (value.IsType('i') || value.IsType('f')) {
      const auto& number = static_cast<const omu_PrimNumber&>(value);
      const double v = number.AsDouble();
      m_AllInt = m_AllInt && number.IsInteger() && v >= INT_MIN && v <= INT_MAX;
      m_AllFloat = m_AllFloat && number.DataType() == omu_PrimNumber::FLOAT;
      ++m_Count;
      return;
    }
    const auto& sequence = static_cast<const omu_PrimSequence&>(value);
    for (int i = 0; i < sequence.Size(); ++i) {
      const std::unique_ptr<const omu_Primitive> owned(sequence.IsType('o') ? sequence.Index(i)
                                                                            : nullptr);
      FitType(owned ? *owned : *sequence.Index(i));
    }
  }

  std::vector<int> m_Dims;
  bool m_AllInt = true;
  bool m_AllFloat = true;
  long long m_Count = 0;
};

// Copies the numbers of nested sequences in row-major order.
void CopyValues(const omu_Primitive& value, DataTypeEnm dataType, std::byte*& at) {
  if (value.IsType('i') || value.IsType('f')) {
    Store(at, dataType, static_cast<const omu_PrimNumber&>(value).AsDouble());
    at += ItemSize(dataType);
    return;
  }
  const auto& sequence = static_cast<const omu_PrimSequence&>(value);
  for (int i = 0; i < sequence.Size(); ++i) {
    const std::unique_ptr<const omu_Primitive> owned(sequence.IsType('o') ? sequence.Index(i)
                                                                          : nullptr);
    CopyValues(owned ? *owned : *sequence.Index(i), dataType, at);
  }
}
}  // namespace

omu_PrimArray::omu_PrimArray() noexcept : omu_PrimLeaf('o') {}

omu_PrimArray::omu_PrimArray(int numDims, const int* dims, DataTypeEnm dataType, const void* data)
    : omu_PrimArray() {
  Fill(numDims, dims, dataType, data);
}

omu_PrimArray::omu_PrimArray(int numDims, const int* dims, const double* data)
    : omu_PrimArray(numDims, dims, omu_PrimNumber::DOUBLE, data) {}

omu_PrimArray::omu_PrimArray(int numDims, const int* dims, const float* data)
    : omu_PrimArray(numDims, dims, omu_PrimNumber::FLOAT, data) {}

omu_PrimArray::omu_PrimArray(const omu_PrimSequence& sequence) : omu_PrimArray() {
  const SequenceShape shape(sequence);
  const DataTypeEnm dataType = shape.DataType();
  SetPyType(dataType);
  std::vector<std::byte> data;
  try {
    data.resize(CheckedBytes(shape.Dims(), ItemSize(dataType)));
    std::byte* at = data.data();
    CopyValues(sequence, dataType, at);
  } catch (const StepFailed&) {
    Raise("omu_PrimArray from sequence failed - copyValues", __LINE__);
  }
  Adopt(shape.Dims(), dataType, std::move(data));
}

omu_PrimArray::omu_PrimArray(int numDims, const int* dims, const int* strides, std::byte* data,
                             DataTypeEnm dataType, const cow_CountedHld<omu_PrimArrayData>& shared)
    : omu_PrimLeaf('o'),
      m_NumDims(numDims),
      m_Dims(dims),
      m_Strides(strides),
      m_Data(data),
      m_DataType(dataType),
      m_Shared(shared) {
  SetPyType(dataType);
}

void omu_PrimArray::Fill(int numDims, const int* dims, DataTypeEnm dataType, const void* data) {
  SetPyType(dataType);
  try {
    if (ItemSize(dataType) == 0) Refuse("PrimArray only INT, FLOAT, DOUBLE allowed");
    if (numDims < 0 || numDims > MaxDims || (numDims > 0 && !dims)) {
      Refuse("PrimArray can't allocate memory for array (dims)");
    }
    std::vector<int> shape(dims, dims + numDims);
    std::vector<std::byte> numbers(CheckedBytes(shape, ItemSize(dataType)));
    if (data && !numbers.empty()) std::memcpy(numbers.data(), data, numbers.size());
    Adopt(std::move(shape), dataType, std::move(numbers));
  } catch (const StepFailed&) {
    Raise("omu_PrimArray ctor failed", __LINE__);
  }
}

void omu_PrimArray::Adopt(std::vector<int> dims, DataTypeEnm dataType,
                          std::vector<std::byte> data) {
  m_NumDims = static_cast<int>(dims.size());
  m_DataType = dataType;
  m_Shared = cow_CountedHld<omu_PrimArrayData>(
      std::make_unique<omu_PrimArrayData>(std::move(data), std::move(dims), ItemSize(dataType)));
  m_Dims = m_Shared->Dims();
  m_Strides = m_Shared->Strides();
  m_Data = m_Shared->Data();
}

void omu_PrimArray::SetPyType(DataTypeEnm dataType) noexcept {
  if (dataType == omu_PrimNumber::INT) m_PyType = 'l';
  if (dataType == omu_PrimNumber::FLOAT) m_PyType = 'f';
  if (dataType == omu_PrimNumber::DOUBLE) m_PyType = 'd';
}

int omu_PrimArray::ConstGetItemSize() const noexcept { return ItemSize(m_DataType); }

int omu_PrimArray::ConstGetNumElements() const noexcept {
  const int itemSize = ConstGetItemSize();
  return itemSize == 0 ? 0 : ConstGetArraySize() / itemSize;
}

// --- Elements ---------------------------------------------------------------------------

std::byte* omu_PrimArray::Index2Ptr(int index) const {
  if (m_NumDims > 0 && m_Dims[0] > 0 && index >= 0 && index < m_Dims[0]) {
    return m_Data + static_cast<std::ptrdiff_t>(m_Strides[0]) * index;
  }
  Raise(kOutOfBounds, __LINE__);
}

omu_PrimNumber omu_PrimArray::Read(const std::byte* at) const {
  if (m_DataType == omu_PrimNumber::INT) {
    std::int32_t number = 0;
    std::memcpy(&number, at, sizeof number);
    return omu_PrimNumber(static_cast<int>(number));
  }
  if (m_DataType == omu_PrimNumber::FLOAT) {
    float number = 0;
    std::memcpy(&number, at, sizeof number);
    return omu_PrimNumber(number);
  }
  if (m_DataType == omu_PrimNumber::DOUBLE) {
    double number = 0;
    std::memcpy(&number, at, sizeof number);
    return omu_PrimNumber(number);
  }
  Raise("PrimArray ConstGetNumericItem failed", __LINE__);
}

const omu_Primitive* omu_PrimArray::Index(int index) const {
  if (m_NumDims == 0) Raise(kOutOfBounds, __LINE__);
  std::byte* at = Index2Ptr(index);
  if (m_NumDims == 1) return new omu_PrimNumber(Read(at));
  return new omu_PrimArray(m_NumDims - 1, m_Dims + 1, m_Strides + 1, at, m_DataType, m_Shared);
}

std::byte* omu_PrimArray::Address(int i, int j, int k, int l) const {
  const int indices[] = {i, j, k, l};
  int given = 0;
  while (given < 4 && indices[given] >= 0) ++given;
  if (given < m_NumDims) {
    Raise(atr_StringBase::Format("less indices given than size of array (%d<%d)", given, m_NumDims),
          __LINE__);
  }
  if (given > m_NumDims) {
    Raise(atr_StringBase::Format("more indices given than size of array (%d>%d)", given, m_NumDims),
          __LINE__);
  }
  std::byte* at = m_Data;
  for (int d = 0; d < m_NumDims; ++d) {
    if (indices[d] >= m_Dims[d]) {
      Raise(atr_StringBase::Format("index out of range, dimension %d (%d >= %d)", d, indices[d],
                                   m_Dims[d]),
            __LINE__);
    }
    at += static_cast<std::ptrdiff_t>(m_Strides[d]) * indices[d];
  }
  return at;
}

omu_PrimNumber omu_PrimArray::ConstGetItem(int i, int j, int k, int l) const {
  return Read(Address(i, j, k, l));
}

double omu_PrimArray::ConstGetDouble(int i, int j, int k, int l) const {
  return ConstGetItem(i, j, k, l).AsDouble();
}

int omu_PrimArray::ConstGetInt(int i, int j, int k, int l) const {
  return ConstGetItem(i, j, k, l).AsInt();
}

void omu_PrimArray::SetItem(const omu_PrimNumber& value, int i, int j, int k, int l) {
  Store(Address(i, j, k, l), m_DataType, value.AsDouble());
}

// --- Slices and text ----------------------------------------------------------------------

void omu_PrimArray::Gather(std::vector<std::byte>& out, const std::byte* at, int level) const {
  if (level == m_NumDims) {
    out.insert(out.end(), at, at + ConstGetItemSize());
    return;
  }
  for (int i = 0; i < m_Dims[level]; ++i) {
    Gather(out, at + static_cast<std::ptrdiff_t>(m_Strides[level]) * i, level + 1);
  }
}

std::vector<std::byte> omu_PrimArray::Numbers() const {
  std::vector<std::byte> out;
  if (m_NumDims > 0) Gather(out, m_Data, 0);
  return out;
}

omu_PrimArray* omu_PrimArray::WithFirstDim(int first, std::vector<std::byte> data) const {
  auto result = std::unique_ptr<omu_PrimArray>(new omu_PrimArray());
  std::vector<int> dims(m_Dims, m_Dims + m_NumDims);
  dims[0] = first;
  result->SetPyType(m_PyType);
  result->Adopt(std::move(dims), m_DataType, std::move(data));
  return result.release();
}

omu_PrimSequence* omu_PrimArray::Slice(int from, int to) const {
  if (m_NumDims == 0) Raise(kOutOfBounds, __LINE__);
  const int length = Length();
  if (to > length) to = length;
  if (to < 0) to += length;
  if (from < 0) from += length;
  if (from < 0) from = 0;
  const int count = from < to ? to - from : 0;
  std::vector<std::byte> data;
  for (int i = from; i < to; ++i) {
    const std::unique_ptr<const omu_Primitive> row(Index(i));
    if (m_NumDims == 1) {
      data.resize(data.size() + static_cast<std::size_t>(ConstGetItemSize()));
      Store(data.data() + data.size() - static_cast<std::size_t>(ConstGetItemSize()), m_DataType,
            static_cast<const omu_PrimNumber&>(*row).AsDouble());
    } else {
      const std::vector<std::byte> numbers = static_cast<const omu_PrimArray&>(*row).Numbers();
      data.insert(data.end(), numbers.begin(), numbers.end());
    }
  }
  return WithFirstDim(count, std::move(data));
}

omu_PrimSequence* omu_PrimArray::Repeat(int times) const {
  if (m_NumDims == 0) Raise(kOutOfBounds, __LINE__);
  const std::vector<std::byte> once = Numbers();
  const int count = times > 0 ? times : 0;
  if (static_cast<long long>(once.size()) * count > INT_MAX ||
      static_cast<long long>(Length()) * count > INT_MAX) {
    Raise("PrimArray can't allocate memory for array (data)", __LINE__);
  }
  std::vector<std::byte> data;
  data.reserve(once.size() * static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) data.insert(data.end(), once.begin(), once.end());
  return WithFirstDim(Length() * count, std::move(data));
}

omu_PrimSequence* omu_PrimArray::Concat(omu_PrimSequence* other) const {
  const auto* tail = dynamic_cast<const omu_PrimArray*>(other);
  bool fits =
      tail && m_NumDims > 0 && tail->m_NumDims == m_NumDims && tail->m_DataType == m_DataType;
  for (int d = 1; fits && d < m_NumDims; ++d) fits = tail->m_Dims[d] == m_Dims[d];
  if (!fits) Raise("PrimArray Concat needs an array of the same type and shape", __LINE__);
  if (static_cast<long long>(Length()) + tail->Length() > INT_MAX / 8) {
    Raise("PrimArray can't allocate memory for array (data)", __LINE__);
  }
  std::vector<std::byte> data = Numbers();
  const std::vector<std::byte> more = tail->Numbers();
  data.insert(data.end(), more.begin(), more.end());
  return WithFirstDim(Length() + tail->Length(), std::move(data));
}

void omu_PrimArray::AppendBody(std::string& text) const {
  text.push_back('[');
  for (int i = 0; i < Length(); ++i) {
    if (i > 0) text.append(", ");
    const std::byte* at = Index2Ptr(i);
    if (m_NumDims == 1) {
      Read(at).AppendText(text);
    } else {
      omu_PrimArray(m_NumDims - 1, m_Dims + 1, m_Strides + 1, const_cast<std::byte*>(at),
                    m_DataType, m_Shared)
          .AppendBody(text);
    }
  }
  text.push_back(']');
}

cow_String omu_PrimArray::AsString(int) const {
  // The nesting is carried by the recursion, not by process-wide state, so arrays may be
  // printed on several threads at once.
  if (m_PyType == 0 && m_DataType == omu_PrimNumber::FLOAT)
    aio_cerr() << "FLOAT not mapped to pyType\n";
  if (m_PyType == 0 && m_DataType == omu_PrimNumber::DOUBLE)
    aio_cerr() << "DOUBLE not mapped to pyType\n";
  std::string text("array(");
  AppendBody(text);
  text.append(", '");
  text.push_back(m_PyType);
  text.append("')");
  return {std::move(text)};
}

bool omu_PrimArray::operator==(const omu_Primitive& other) const {
  const auto* array = dynamic_cast<const omu_PrimArray*>(&other);
  if (!array || array->m_NumDims != m_NumDims || array->m_DataType != m_DataType) return false;
  for (int d = 0; d < m_NumDims; ++d) {
    if (array->m_Dims[d] != m_Dims[d]) return false;
  }
  return m_NumDims == 0 || Numbers() == array->Numbers();
}

// --- Persistence --------------------------------------------------------------------------

namespace {
const char* DataName(DataTypeEnm dataType) {
  switch (dataType) {
    case omu_PrimNumber::INT:
      return "intData";
    case omu_PrimNumber::FLOAT:
      return "floatData";
    default:
      return "doubleData";
  }
}
}  // namespace

omu_PrimArray::omu_PrimArray(const cls_ReadVisitor& reader)
    : omu_PrimLeaf(cls_ReadVisitor(reader, omu_PrimSequence::TypeId())),
      m_PyType(reader.Get<char>("pyType")) {
  const auto dataType = static_cast<DataTypeEnm>(reader.Get<int>("typeCode"));
  if (ItemSize(dataType) == 0) reader.Fail("an array of a data type other than INT, FLOAT, DOUBLE");
  std::vector<int> dims;
  for (const cls_Value& dim : reader.ReadList("dims")) {
    const auto* value = dim.As<std::int32_t>();
    if (!value || *value < 0 || dims.size() >= MaxDims) reader.Fail("bad array dimensions");
    dims.push_back(*value);
  }
  long long count = 1;
  for (const int dim : dims) {
    count *= dim;
    if (count > INT_MAX / 8) reader.Fail("the array is too large");
  }
  const cls_Value::List& values = reader.ReadList(DataName(dataType));
  if (dims.empty() ? !values.empty() : static_cast<long long>(values.size()) != count) {
    reader.Fail("the array's number count does not fit its dimensions");
  }
  std::vector<std::byte> data(values.size() * static_cast<std::size_t>(ItemSize(dataType)));
  for (std::size_t i = 0; i < values.size(); ++i) {
    std::byte* at = data.data() + i * static_cast<std::size_t>(ItemSize(dataType));
    if (const auto* v = values[i].As<std::int32_t>(); v && dataType == omu_PrimNumber::INT) {
      std::memcpy(at, v, sizeof *v);
    } else if (const auto* f = values[i].As<float>(); f && dataType == omu_PrimNumber::FLOAT) {
      std::memcpy(at, f, sizeof *f);
    } else if (const auto* d = values[i].As<double>(); d && dataType == omu_PrimNumber::DOUBLE) {
      std::memcpy(at, d, sizeof *d);
    } else {
      reader.Fail("an array number is not of the array's data type");
    }
  }
  Adopt(std::move(dims), dataType, std::move(data));
  m_ArrayUid = reader.Uid();
}

void omu_PrimArray::DBWrite(const cls_WriteVisitor& writer) const {
  if (!writer.StartLevel<omu_PrimSequence>(TypeId(), m_ArrayUid, *this)) return;
  cls_Value::List dims;
  for (int d = 0; d < m_NumDims; ++d) dims.emplace_back(static_cast<std::int32_t>(m_Dims[d]));
  writer.Write("dims", cls_Value(std::move(dims)));
  writer.Write("pyType", m_PyType);
  writer.Write("typeCode", static_cast<int>(m_DataType));
  const std::vector<std::byte> numbers = Numbers();
  const auto itemSize = static_cast<std::size_t>(ConstGetItemSize());
  cls_Value::List values;
  values.reserve(itemSize ? numbers.size() / itemSize : 0);
  for (std::size_t at = 0; itemSize && at < numbers.size(); at += itemSize) {
    const omu_PrimNumber number = Read(numbers.data() + at);
    if (m_DataType == omu_PrimNumber::INT)
      values.emplace_back(static_cast<std::int32_t>(number.AsInt()));
    if (m_DataType == omu_PrimNumber::FLOAT)
      values.emplace_back(static_cast<float>(number.Value()));
    if (m_DataType == omu_PrimNumber::DOUBLE) values.emplace_back(number.Value());
  }
  writer.Write(DataName(m_DataType), cls_Value(std::move(values)));
}

void omu_PrimArray::InitializeMetadata(cls_ClassRegistrar& registrar) {
  registrar
      .AddClassMD(
          new cls_TypeAdapter<omu_PrimArray>("omu_PrimArray", 800, omu_PrimSequence::TypeId()))
      .AddAttribute({0, "dims"}, cls_KIND_LIST)
      .AddAttribute({1, "pyType"}, cls_KIND_CHAR)
      .AddAttribute({2, "typeCode"}, cls_KIND_INT)
      .AddAttribute({3, "intData"}, cls_KIND_LIST)
      .AddAttribute({4, "floatData"}, cls_KIND_LIST)
      .AddAttribute({5, "doubleData"}, cls_KIND_LIST);
}
