#include <cls_ClassRegistrar.h>
#include <cls_ReadVisitor.h>
#include <cls_TypeAdapter.h>
#include <cls_WriteVisitor.h>
#include <omu_PrimEnum.h>
#include <omu_PrimNumber.h>

#include <array>
#include <bit>
#include <charconv>
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstring>
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

// 10^k to 128 bits, for k from -294 to 322 (the scales of normal doubles): the mantissa's top
// bit set, 10^k = (hi:lo) 2^exponent less under two units of lo. Built by the compiler from
// 10^0 one factor of ten at a time on 256 bits, each step truncating, so the 128 bits kept
// carry under two units of error after the 322 steps.
struct PowerOfTen {
  std::uint64_t hi, lo;
  int exponent;
};
constexpr int kLeastPower = -294, kGreatestPower = 322;
__extension__ using Wide = unsigned __int128;  // GCC and Clang, MinGW included

struct Mantissa256 {
  std::uint64_t w[4];  // most significant first; w[0]'s top bit set
  int exponent;        // the value is w 2^exponent
  constexpr PowerOfTen Kept() const { return {w[0], w[1], exponent + 128}; }
  constexpr void Times10() {
    std::uint64_t carry = 0;
    for (int i = 3; i >= 0; --i) {
      const Wide t = Wide(w[i]) * 10 + carry;
      w[i] = static_cast<std::uint64_t>(t);
      carry = static_cast<std::uint64_t>(t >> 64);
    }
    const int n = static_cast<int>(std::bit_width(carry));  // 1 to 4 bits spill over the top
    for (int i = 3; i > 0; --i) w[i] = (w[i] >> n) | (w[i - 1] << (64 - n));
    w[0] = (w[0] >> n) | (carry << (64 - n));
    exponent += n;
  }
  constexpr void Over10() {
    std::uint64_t q[5] = {}, rest = 0;
    for (int i = 0; i < 5; ++i) {
      const Wide t = (Wide(rest) << 64) | (i < 4 ? w[i] : 0);
      q[i] = static_cast<std::uint64_t>(t / 10);
      rest = static_cast<std::uint64_t>(t % 10);
    }
    const int n = std::countl_zero(q[0]);  // 1 to 4 bits freed at the top
    for (int i = 0; i < 4; ++i) w[i] = (q[i] << n) | (q[i + 1] >> (64 - n));
    exponent -= n;
  }
};

constexpr std::array<PowerOfTen, kGreatestPower - kLeastPower + 1> MakePowersOfTen() {
  std::array<PowerOfTen, kGreatestPower - kLeastPower + 1> powers{};
  Mantissa256 up{{1ull << 63, 0, 0, 0}, -255}, down = up;
  powers[-kLeastPower] = up.Kept();
  for (int k = 1; k <= kGreatestPower; ++k) {
    up.Times10();
    powers[k - kLeastPower] = up.Kept();
  }
  for (int k = -1; k >= kLeastPower; --k) {
    down.Over10();
    powers[k - kLeastPower] = down.Kept();
  }
  return powers;
}
constexpr auto kPowersOfTen = MakePowersOfTen();

constexpr std::uint64_t kLeast15 = 100000000000000ull, kPast15 = 1000000000000000ull;

// The 15 significant digits of a positive normal double as "%.15lg" rounds them: digits in
// [1e14, 1e15) and the decimal exponent of the first. value 10^(14 - e) is formed on 128 bits
// with 64 fraction bits, within 2^-69 of its exact value; a fraction that close to one half
// (an exact tie among them) cannot be rounded from it and answers false.
bool FifteenDigits(double value, std::uint64_t& digits, int& exponent) noexcept {
  std::uint64_t bits = 0;
  std::memcpy(&bits, &value, sizeof bits);
  const std::uint64_t m = (bits & ((1ull << 52) - 1)) | (1ull << 52);
  const int e2 = static_cast<int>(bits >> 52) - 1075;
  int e10 = ((e2 + 52) * 78913) >> 18;  // floor(log10(2^(e2 + 52))): the exponent or one less
  for (int attempt = 0; attempt < 2; ++attempt, ++e10) {
    const PowerOfTen& p = kPowersOfTen[14 - e10 - kLeastPower];
    // N = m (hi:lo) 2^(e2 + p.exponent) holds the 15 digits and the fraction; scaled is
    // N 2^64, from the product's bits above its 56th.
    const Wide top = (Wide(m) * p.hi << 8) + (Wide(m) * p.lo >> 56);
    const int shift = -(e2 + p.exponent + 56 + 64);
    const Wide scaled = top >> shift;
    const auto whole = static_cast<std::uint64_t>(scaled >> 64);
    if (whole >= kPast15) continue;  // the estimate was one low
    const auto fraction = static_cast<std::uint64_t>(scaled);
    const std::uint64_t half = 1ull << 63;
    if ((fraction > half ? fraction - half : half - fraction) < (1ull << 24)) return false;
    digits = whole + (fraction > half);
    exponent = e10;
    if (digits == kPast15) {
      digits = kLeast15;
      ++exponent;
    }
    return digits >= kLeast15;
  }
  return false;
}

constexpr char kPairs[] =
    "00010203040506070809101112131415161718192021222324252627282930313233343536373839"
    "40414243444546474849505152535455565758596061626364656667686970717273747576777879"
    "8081828384858687888990919293949596979899";

// Writes the digits of value, count of them, ending at end.
void WriteDigits(std::uint64_t value, int count, char* end) noexcept {
  for (; count >= 2; count -= 2, value /= 100) std::memcpy(end -= 2, kPairs + 2 * (value % 100), 2);
  if (count) *--end = static_cast<char>('0' + value);
}

// "%.15lg" of a normal double that is not a whole number below 1e15, and ".0" where it has
// neither '.' nor 'e'. Answers 0 when the digits cannot be decided.
int FormatFifteen(double value, char* out) noexcept {
  char* o = out;
  if (value < 0) {
    *o++ = '-';
    value = -value;
  }
  std::uint64_t d = 0;
  int exponent = 0;
  if (!FifteenDigits(value, d, exponent)) return 0;
  int count = 15;
  while (d % 100 == 0) {
    d /= 100;
    count -= 2;
  }
  if (d % 10 == 0) {
    d /= 10;
    --count;
  }
  char digits[16];
  WriteDigits(d, count, digits + count);
  if (exponent < -4 || exponent >= 15) {
    *o++ = digits[0];
    if (count > 1) {
      *o++ = '.';
      std::memcpy(o, digits + 1, static_cast<std::size_t>(count - 1));
      o += count - 1;
    }
    *o++ = 'e';
    *o++ = exponent < 0 ? '-' : '+';
    const int magnitude = exponent < 0 ? -exponent : exponent;
    if (magnitude >= 100) *o++ = static_cast<char>('0' + magnitude / 100);
    std::memcpy(o, kPairs + std::ptrdiff_t{2} * (magnitude % 100), 2);
    o += 2;
  } else if (exponent < 0) {
    std::memcpy(o, "0.0000", static_cast<std::size_t>(1 - exponent));
    o += 1 - exponent;
    std::memcpy(o, digits, static_cast<std::size_t>(count));
    o += count;
  } else if (count <= exponent + 1) {  // rounded to a whole number
    std::memcpy(o, digits, static_cast<std::size_t>(count));
    o += count;
    std::memset(o, '0', static_cast<std::size_t>(exponent + 1 - count));
    o += exponent + 1 - count;
    *o++ = '.';
    *o++ = '0';
  } else {
    std::memcpy(o, digits, static_cast<std::size_t>(exponent) + 1);
    o += exponent + 1;
    *o++ = '.';
    std::memcpy(o, digits + exponent + 1, static_cast<std::size_t>(count - exponent - 1));
    o += count - exponent - 1;
  }
  return static_cast<int>(o - out);
}

// The general conversion, for what the 15 digits above cannot decide: subnormals, ties,
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
constexpr int omu_PrimNumber::MaxDoubleText;  // NOLINT(readability-redundant-declaration)

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
  const int length = std::isnormal(value) ? FormatFifteen(value, out) : 0;
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
  return {std::move(text)};
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
