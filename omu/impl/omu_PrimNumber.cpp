#include <cls_ClassRegistrar.h>
#include <cls_ReadVisitor.h>
#include <cls_TypeAdapter.h>
#include <cls_WriteVisitor.h>
#include <omu_PrimEnum.h>
#include <omu_PrimNumber.h>

#include <charconv>
#include <climits>
#include <cmath>
#include <string_view>
#include <utility>

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
  *end++ = '.';
  *end++ = '0';
  return static_cast<int>(end - out);
}

// "%.15lg" from the shortest digits that read back as value. The shortest digits S lie
// closer to value than any other decimal of at most 17 digits, so no 15-digit rounding
// boundary can lie between value and S unless S is that boundary itself: rounding S to 15
// digits is then rounding value. A tie in S (its digits past the 15th are exactly 5) is
// left to the general conversion. Answers 0 when it cannot decide. Normal numbers only:
// a subnormal carries fewer than 15 digits, and "%.15lg" shows digits of its exact value
// that the shortest form does not have.
int FormatFromShortest(double value, char* out) noexcept {
  char scientific[32];
  const auto result = std::to_chars(scientific, scientific + sizeof scientific, value,
                                    std::chars_format::scientific);
  const char* p = scientific;
  const bool negative = *p == '-';
  if (negative) ++p;
  char digits[20];
  int count = 0;
  for (; *p != 'e'; ++p) {
    if (*p != '.') digits[count++] = *p;
  }
  int exponent = 0;
  std::from_chars(p + (p[1] == '+' ? 2 : 1), result.ptr, exponent);
  if (count > 15) {
    const bool tie = digits[15] == '5' && (count == 16 || (count == 17 && digits[16] == '0'));
    if (tie) return 0;
    const bool up = digits[15] >= '5';
    count = 15;
    for (int i = 14; up && i >= 0; --i) {
      if (digits[i] != '9') {
        ++digits[i];
        break;
      }
      digits[i] = '0';
      if (i == 0) {  // 999... rounds to 1000...
        digits[0] = '1';
        ++exponent;
      }
    }
  }
  while (count > 1 && digits[count - 1] == '0') --count;
  char* o = out;
  if (negative) *o++ = '-';
  if (exponent < -4 || exponent >= 15) {
    *o++ = digits[0];
    if (count > 1) {
      *o++ = '.';
      for (int i = 1; i < count; ++i) *o++ = digits[i];
    }
    *o++ = 'e';
    *o++ = exponent < 0 ? '-' : '+';
    const int magnitude = exponent < 0 ? -exponent : exponent;
    if (magnitude < 10) *o++ = '0';
    o = std::to_chars(o, o + 4, magnitude).ptr;
  } else if (exponent < 0) {
    *o++ = '0';
    *o++ = '.';
    for (int i = -1; i > exponent; --i) *o++ = '0';
    for (int i = 0; i < count; ++i) *o++ = digits[i];
  } else {
    for (int i = 0; i <= exponent; ++i) *o++ = i < count ? digits[i] : '0';
    *o++ = '.';
    if (count <= exponent + 1) *o++ = '0';
    for (int i = exponent + 1; i < count; ++i) *o++ = digits[i];
  }
  return static_cast<int>(o - out);
}

// The general conversion, for what the shortest digits cannot decide: subnormals, ties,
// infinities and NaN.
int FormatGeneral(double value, char* out) noexcept {
  const auto result = std::to_chars(out, out + omu_PrimNumber::MaxDoubleText - 2, value,
                                    std::chars_format::general, 15);
  if (result.ec != std::errc()) return 0;
  int length = static_cast<int>(result.ptr - out);
  // to_chars already writes two-digit exponents; only ".0" may be missing.
  if (std::string_view(out, static_cast<std::size_t>(length)).find_first_of("e.") ==
      std::string_view::npos) {
    out[length++] = '.';
    out[length++] = '0';
  }
  return length;
}
}  // namespace

// Defined here as well, so that the library holds a copy to export: on Windows, code that takes
// its address imports it with the class.
constexpr int omu_PrimNumber::MaxDoubleText;

const omu_PrimEnumRow* omu_PrimEnumTable<omu_PrimNumber::DataTypeEnm, 1>::Rows() noexcept {
  static constexpr omu_PrimEnumRow rows[] = {{"SCHAR", omu_PrimNumber::SCHAR},
                                             {"SHORT", omu_PrimNumber::SHORT},
                                             {"INT", omu_PrimNumber::INT},
                                             {"FLOAT", omu_PrimNumber::FLOAT},
                                             {"DOUBLE", omu_PrimNumber::DOUBLE},
                                             {"UINT", omu_PrimNumber::UINT},
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
  if (!dataType.SetValue(reader.ReadEnum("dataType").CStr()))
    reader.Fail("unknown number data type");
  m_DataType = dataType;
  if (!IsType(CodeOf(m_DataType))) reader.Fail("the number's type code does not fit its data type");
  m_NumberUid = reader.Uid();
}

int omu_PrimNumber::Truncate(double value) noexcept {
  return value > -2147483649.0 && value < 2147483648.0 ? static_cast<int>(value) : INT_MIN;
}

int omu_PrimNumber::FormatDouble(double value, char* out) noexcept {
  if (value > -1e15 && value < 1e15 &&
      value == static_cast<double>(static_cast<long long>(value))) {
    return FormatWhole(value, out);
  }
  const int length = std::isnormal(value) ? FormatFromShortest(value, out) : 0;
  return length > 0 ? length : FormatGeneral(value, out);
}

void omu_PrimNumber::AppendText(std::string& out) const {
  // Written in place: large sequences append millions of these.
  const std::size_t start = out.size();
  out.resize(start + MaxDoubleText);
  char* text = out.data() + start;
  int length = 0;
  if (IsType('f')) {
    length = FormatDouble(m_Value, text);
  } else if (m_DataType == UINT) {
    length = static_cast<int>(std::to_chars(text, text + MaxDoubleText, m_UValue).ptr - text);
  } else {
    length = static_cast<int>(std::to_chars(text, text + MaxDoubleText, AsInt()).ptr - text);
  }
  out.resize(start + static_cast<std::size_t>(length));
}

cow_String omu_PrimNumber::AsString(int) const {
  std::string text;
  AppendText(text);
  return cow_String(std::move(text));
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
      .AddClassMD(
          new cls_TypeAdapter<omu_PrimNumber>("omu_PrimNumber", 835, omu_Primitive::TypeId()))
      .AddAttribute({0, "value"}, cls_KIND_DOUBLE)
      .AddAttribute({1, "uvalue"}, cls_KIND_UINT)
      .AddAttribute({2, "dataType"}, cls_KIND_ENUM);
}
