#pragma once
/// \addtogroup bascore
/// @{

/// \class atr_StringBase
/// Reference-counted text: copies share one buffer until one of them is written.
#include <BASCORE_Export.h>

#include <atomic>
#include <compare>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

class BASCORE_EXPORT atr_StringBase {
public:
  /// The empty text; allocates nothing.
  atr_StringBase() noexcept = default;
  /// Copies the characters; null or "" gives the empty text.
  ///@{
  atr_StringBase(const char* text);
  atr_StringBase(const char* text, int length);
  atr_StringBase(std::string_view text);
  atr_StringBase(const std::string& text) : atr_StringBase(std::string_view(text)) {}
  ///@}
  /// Adopts a text built elsewhere without copying its characters.
  atr_StringBase(std::string&& text);
  /// A text whose buffer is never freed and never counted, so that copying and dropping it
  /// costs no atomic operation: for tables of texts made once and kept for the life of the
  /// process (the names a script passes again and again), reached from a static so that leak
  /// checkers do not report the buffer. Writing a copy unshares it as usual.
  static atr_StringBase Permanent(std::string_view text);
  /// Numbers as decimal text; a double takes its shortest form that reads back exactly.
  ///@{
  explicit atr_StringBase(int value);
  explicit atr_StringBase(unsigned int value);
  explicit atr_StringBase(long long value);
  explicit atr_StringBase(double value);
  ///@}

  /// Copies share the buffer (a counted reference, no allocation); a move leaves the source empty.
  /// Assigning a text that already shares this one's buffer changes and counts nothing.
  ///@{
  atr_StringBase(const atr_StringBase& other) noexcept : m_Rep(other.m_Rep) {
    if (Counted()) m_Rep->refs.fetch_add(1, std::memory_order_relaxed);
  }
  atr_StringBase(atr_StringBase&& other) noexcept : m_Rep(other.m_Rep) { other.m_Rep = nullptr; }
  atr_StringBase& operator=(const atr_StringBase& other) noexcept;
  atr_StringBase& operator=(atr_StringBase&& other) noexcept {
    if (this != &other) {
      if (Counted()) Release();
      m_Rep = other.m_Rep;
      other.m_Rep = nullptr;
    }
    return *this;
  }
  ///@}
  /// Drops the reference; the last one frees the buffer. Inline: an empty or permanent text
  /// ends at no cost.
  ~atr_StringBase() {
    if (Counted()) Release();
  }

  /// printf-style formatting into a new text, with the C99 conversions (`%zu`, `%lld`) on every
  /// platform: MinGW's C++ runtime formats through its own conforming printf, not msvcrt's.
  static atr_StringBase Format(const char* format, ...)
#if defined(__MINGW_PRINTF_FORMAT)
      __attribute__((format(__MINGW_PRINTF_FORMAT, 1, 2)))
#elif defined(__GNUC__)
      __attribute__((format(printf, 1, 2)))
#endif
      ;

  /// The text, null-terminated; "" for the empty text. Valid until this text changes or dies.
  const char* CStr() const noexcept { return m_Rep ? m_Rep->text.c_str() : ""; }
  /// View(), implicitly.
  operator std::string_view() const noexcept { return View(); }
  /// The characters, valid until this text changes or dies.
  std::string_view View() const noexcept {
    return m_Rep ? std::string_view(m_Rep->text) : std::string_view();
  }
  /// A copy as a std::string.
  std::string StdString() const { return std::string(View()); }
  /// In bytes.
  int Length() const noexcept { return m_Rep ? static_cast<int>(m_Rep->text.size()) : 0; }
  /// True for the empty text.
  bool IsEmpty() const noexcept { return Length() == 0; }
  /// The byte at index; no bounds check.
  char operator[](int index) const noexcept { return View()[static_cast<std::size_t>(index)]; }
  /// True while another copy shares the buffer.
  bool IsShared() const noexcept {
    return m_Rep && m_Rep->refs.load(std::memory_order_acquire) > 1;
  }

  /// Searches answer Length() when the text does not occur, like an end position.
  ///@{
  int Find(std::string_view what, int start = 0) const noexcept;
  int Find(char what, int start = 0) const noexcept;
  bool Contains(std::string_view what) const noexcept { return Find(what) < Length(); }
  bool Contains(char what) const noexcept { return Find(what) < Length(); }
  ///@}
  /// At most count bytes from start; both are clipped to the text.
  atr_StringBase Substr(int start, int count = 0x7FFFFFFF) const;

  /// Appends; a part of this text itself may be appended. Writing unshares the buffer first, as
  /// every modifier below does.
  ///@{
  atr_StringBase& Append(std::string_view text);
  atr_StringBase& Append(char c);
  atr_StringBase& operator+=(std::string_view text) { return Append(text); }
  atr_StringBase& operator+=(const atr_StringBase& text) { return Append(text.View()); }
  atr_StringBase& operator+=(const char* text) { return Append(std::string_view(text)); }
  atr_StringBase& operator+=(char c) { return Append(c); }
  ///@}
  /// Counts beyond the end are clipped; a start beyond the end does nothing.
  atr_StringBase& Erase(int start, int count = 0x7FFFFFFF);
  /// Inserts text at position, clipped to the end.
  atr_StringBase& Insert(int position, std::string_view text);
  /// Replaces count bytes from start (both clipped) by text.
  atr_StringBase& Replace(int start, int count, std::string_view text);
  /// Replaces every occurrence of from, left to right; an empty from does nothing.
  atr_StringBase& ReplaceAll(std::string_view from, std::string_view to);

  /// Equal characters.
  ///@{
  friend bool operator==(const atr_StringBase& a, const atr_StringBase& b) noexcept {
    return a.m_Rep == b.m_Rep || a.View() == b.View();
  }
  friend bool operator==(const atr_StringBase& a, const char* b) noexcept { return a.View() == b; }
  friend bool operator==(const atr_StringBase& a, std::string_view b) noexcept {
    return a.View() == b;
  }
  friend bool operator==(const atr_StringBase& a, const std::string& b) noexcept {
    return a.View() == b;
  }
  ///@}
  /// Byte-wise order, so "OFF" comes before "ON".
  friend std::strong_ordering operator<=>(const atr_StringBase& a,
                                          const atr_StringBase& b) noexcept {
    return a.View().compare(b.View()) <=> 0;
  }
  /// \copydoc operator<=>(const atr_StringBase&, const atr_StringBase&)
  friend std::strong_ordering operator<=>(const atr_StringBase& a, std::string_view b) noexcept {
    return a.View().compare(b) <=> 0;
  }

private:
  // A count no counted text reaches: a permanent text's, which copies leave alone.
  static constexpr int PermanentRefs = 1 << 30;
  struct Rep {
    std::atomic<int> refs{1};
    std::string text;
  };
  std::string& Mutable();
  // Whether a copy counts a reference: not for the empty text nor a permanent one.
  bool Counted() const noexcept {
    return m_Rep && m_Rep->refs.load(std::memory_order_relaxed) < PermanentRefs;
  }
  // Drops a counted reference.
  void Release() noexcept;

  Rep* m_Rep = nullptr;  ///< null is the empty text
};

/// The concatenation, a new text.
BASCORE_EXPORT atr_StringBase operator+(const atr_StringBase& a, std::string_view b);

template <>
struct std::hash<atr_StringBase> {
  std::size_t operator()(const atr_StringBase& s) const noexcept {
    return std::hash<std::string_view>()(s.View());
  }
};

/// @}
