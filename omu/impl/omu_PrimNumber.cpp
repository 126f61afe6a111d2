#include <cls_ClassRegistrar.h>
#include <cls_ReadVisitor.h>
#include <cls_TypeAdapter.h>
#include <cls_WriteVisitor.h>
#include <omu_PrimEnum.h>
#include <omu_PrimNumber.h>

#include <charconv>
#include <cmath>
#include <climits>
#include <cstring>

namespace {
using DataTypeName = omu_PrimEnum<omu_PrimNumber::DataTypeEnm, 1>;

char CodeOf(omu_PrimNumber::DataTypeEnm dataType) noexcept {
  return dataType == omu_PrimNumber::FLOAT || dataType == omu_PrimNumber::DOUBLE ? 'f' : 'i';
}

// Doubles that are whole numbers below 1e15 print as their digits: "%.15lg" shows every
// digit of them, and the integer conversion is several times cheaper than the general one.
int FormatWhole(double value, char* out) noexcept {
  const auto whole = static_cast<long long>(value);
  char* end = std::to_chars(out, out + omu_PrimNumber::MaxDoubleText, whole).ptr;
  if (whole == 0 && std::signbit(value)) {
    out[0] = '-';
    out[1] = '0';
    end = out + 2;
  }
  return static_cast<int>(end - out);
}
}  // namespace

const omu_PrimEnumRow* omu_PrimEnumTable<omu_PrimNumber::DataTypeEnm, 1>::Rows() noexcept {
  static constexpr omu_PrimEnumRow rows[] = {
      {"SCHAR", omu_PrimNumber::SCHAR}, {"SHORT", omu_PrimNumber::SHORT},
      {"INT", omu_PrimNumber::INT},     {"FLOAT", omu_PrimNumber::FLOAT},
      {"DOUBLE", omu_PrimNumber::DOUBLE}, {"UINT", omu_PrimNumber::UINT},
      {nullptr, 0}};
  return rows;
}

omu_PrimNumber::omu_PrimNumber(double value, DataTypeEnm dataType)
    : omu_PrimLeaf(CodeOf(dataType)), m_DataType(dataType) {
  if (dataType == UINT) {
    m_UValue = static_cast<unsigned int>(value);
  } else {
    m_Value = value;
  }
}

omu_PrimNumber::omu_PrimNumber(const cls_ReadVisitor& reader)
    : omu_PrimLeaf(cls_ReadVisitor(reader, omu_Primitive::TypeId())),
      m_Value(reader.Get<double>("value")),
      m_UValue(reader.Get<unsigned int>("uvalue")) {
  DataTypeName dataType(SCHAR);
  if (!dataType.SetValue(reader.ReadEnum("dataType").CStr())) reader.Fail("unknown number data type");
  m_DataType = dataType;
  if (!IsType(CodeOf(m_DataType))) reader.Fail("the number's type code does not fit its data type");
  m_NumberUid = reader.Uid();
}

int omu_PrimNumber::Truncate(double value) noexcept {
  return value > -2147483649.0 && value < 2147483648.0 ? static_cast<int>(value) : INT_MIN;
}

int omu_PrimNumber::FormatDouble(double value, char* out) noexcept {
  int length = 0;
  if (value > -1e15 && value < 1e15 && value == static_cast<double>(static_cast<long long>(value))) {
    length = FormatWhole(value, out);
  } else {
    const auto result = std::to_chars(out, out + MaxDoubleText - 2, value,
                                      std::chars_format::general, 15);
    if (result.ec != std::errc()) return 0;
    length = static_cast<int>(result.ptr - out);
  }
  const std::string_view text(out, static_cast<std::size_t>(length));
  const std::size_t e = text.find('e');
  if (e == std::string_view::npos) {
    if (text.find('.') == std::string_view::npos) {
      out[length++] = '.';
      out[length++] = '0';
    }
  } else if (length >= 4 && length - static_cast<int>(e) == 5 && out[e + 2] == '0') {
    // e+005 -> e+05: some runtimes write three exponent digits.
    std::memmove(out + e + 2, out + e + 3, 2);
    --length;
  }
  return length;
}

void omu_PrimNumber::AppendText(std::string& out) const {
  char buffer[MaxDoubleText];
  int length = 0;
  if (IsType('f')) {
    length = FormatDouble(m_Value, buffer);
  } else if (m_DataType == UINT) {
    length = static_cast<int>(std::to_chars(buffer, buffer + MaxDoubleText, m_UValue).ptr - buffer);
  } else {
    length = static_cast<int>(std::to_chars(buffer, buffer + MaxDoubleText, AsInt()).ptr - buffer);
  }
  out.append(buffer, static_cast<std::size_t>(length));
}

cow_String omu_PrimNumber::AsString(int) const {
  std::string text;
  AppendText(text);
  return cow_String(std::string_view(text));
}

bool omu_PrimNumber::operator==(const omu_Primitive& other) const {
  const auto* number = dynamic_cast<const omu_PrimNumber*>(&other);
  return number && number->m_Value == m_Value && number->m_UValue == m_UValue;
}

void omu_PrimNumber::DBWrite(const cls_WriteVisitor& writer) const {
  if (!writer.StartLevel<omu_Primitive>(TypeId(), m_NumberUid, *this)) return;
  writer.Write("value", m_Value);
  writer.Write("uvalue", m_UValue);
  writer.WriteEnum("dataType", DataTypeName(m_DataType).Name());
}

void omu_PrimNumber::InitializeMetadata(cls_ClassRegistrar& registrar) {
  registrar
      .AddClassMD(new cls_TypeAdapter<omu_PrimNumber>("omu_PrimNumber", 835, omu_Primitive::TypeId()))
      .AddAttribute({0, "value"}, cls_KIND_DOUBLE)
      .AddAttribute({1, "uvalue"}, cls_KIND_UINT)
      .AddAttribute({2, "dataType"}, cls_KIND_ENUM);
}
