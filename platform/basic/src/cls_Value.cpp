#include <cls_Value.h>

#include <algorithm>
#include <bit>
#include <cstring>

const char* cls_Value::KindName(Kind kind) noexcept {
  static constexpr const char* names[] = {"nothing",
                                          "a bool",
                                          "a character",
                                          "an int",
                                          "an unsigned int",
                                          "a double",
                                          "a text",
                                          "an enumerator",
                                          "a list",
                                          "an array",
                                          "an object",
                                          "a reference",
                                          "a float",
                                          "a 64-bit int",
                                          "an array of doubles",
                                          "an array of doubles"};
  return kind < std::size(names) ? names[kind] : "an unknown value";
}

namespace {
cls_Value::Doubles Made(const cls_DoublesSource& source) {
  cls_Value::Doubles block(source.Rows(), source.Columns());
  std::vector<double>& cells = block.MutableCells();
  source.CopyTo(0, cells.size(), cells.data());
  return block;
}

// Two sources compared a page at a time, bit for bit, without a copy of either.
bool SameCells(const cls_DoublesSource& a, const cls_DoublesSource& b) noexcept {
  if (a.Rows() != b.Rows() || a.Columns() != b.Columns()) return false;
  const std::size_t cells = static_cast<std::size_t>(a.Rows()) * a.Columns();
  double pageA[256];
  double pageB[256];
  for (std::size_t first = 0; first < cells; first += std::size(pageA)) {
    const std::size_t count = std::min(cells - first, std::size(pageA));
    a.CopyTo(first, count, pageA);
    b.CopyTo(first, count, pageB);
    if (std::memcmp(pageA, pageB, count * sizeof(double)) != 0) return false;
  }
  return true;
}

// std::visit throws only for a valueless variant, which a cls_Value never becomes.
// NOLINTBEGIN(bugprone-exception-escape)
template <class T>
bool SameData(const T& a, const T& b) noexcept {
  if constexpr (std::is_floating_point_v<T>) {
    return std::bit_cast<std::conditional_t<sizeof(T) == 8, std::uint64_t, std::uint32_t>>(a) ==
           std::bit_cast<std::conditional_t<sizeof(T) == 8, std::uint64_t, std::uint32_t>>(b);
  } else if constexpr (std::is_same_v<T, cls_Value::List>) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](const cls_Value& x, const cls_Value& y) { return Identical(x, y); });
  } else if constexpr (std::is_same_v<T, cls_Matrix>) {
    return a.rows == b.rows && a.columns == b.columns && SameData(a.cells, b.cells);
  } else if constexpr (std::is_same_v<T, cls_Value::Doubles>) {
    return a.Rows() == b.Rows() && a.Columns() == b.Columns() &&
           (a.Cells().empty() || std::memcmp(a.Cells().data(), b.Cells().data(),
                                             a.Cells().size() * sizeof(double)) == 0);
  } else if constexpr (std::is_same_v<T, std::shared_ptr<const cls_DoublesSource>>) {
    return a == b || SameCells(*a, *b);
  } else if constexpr (std::is_same_v<T, std::shared_ptr<cls_Record>>) {
    return a == b || Identical(*a, *b);
  } else {
    return a == b;
  }
}
}  // namespace

std::optional<cls_Value::Doubles> cls_Value::AsDoubles() const {
  if (const auto* block = As<Doubles>()) return *block;
  if (const auto* source = As<std::shared_ptr<const cls_DoublesSource>>()) return Made(**source);
  return std::nullopt;
}

bool Identical(const cls_Value& a, const cls_Value& b) noexcept {
  return a.GetKind() == b.GetKind() &&
         std::visit(
             [&b](const auto& data) {
               return SameData(data, *std::get_if<std::decay_t<decltype(data)>>(&b.GetData()));
             },
             a.GetData());
}

bool Identical(const cls_Record& a, const cls_Record& b) noexcept {
  return a.typeId == b.typeId && a.uid == b.uid && Identical(a.parent, b.parent) &&
         std::equal(a.fields.begin(), a.fields.end(), b.fields.begin(), b.fields.end(),
                    [](const auto& x, const auto& y) {
                      return x.first == y.first && Identical(x.second, y.second);
                    });
}
// NOLINTEND(bugprone-exception-escape)
