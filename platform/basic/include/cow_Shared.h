#pragma once
/// \addtogroup basic
/// @{

/// \class cow_Shared
/// The counted body behind the copy-on-write containers: copies share one body, Read never
/// copies, Write un-shares first. An empty handle reads as a default-constructed value.
///
/// Threads: the count is atomic, so copies may live on different threads, each written by its
/// own; Write writes in place only when no other copy exists. One handle object may be read
/// from several threads at once; Write and assignment need its one owner and no reader.
#include <atomic>
#include <utility>

template <class T>
class cow_Shared {
public:
  cow_Shared() noexcept = default;
  /// A body of its own holding value.
  explicit cow_Shared(T value) : m_Body(new Body{std::move(value)}) {}
  /// Copies share the body (counted); a move leaves the source empty.
  ///@{
  cow_Shared(const cow_Shared& other) noexcept : m_Body(other.m_Body) { Retain(); }
  cow_Shared(cow_Shared&& other) noexcept : m_Body(std::exchange(other.m_Body, nullptr)) {}
  cow_Shared& operator=(const cow_Shared& other) noexcept {
    other.Retain();
    Release();
    m_Body = other.m_Body;
    return *this;
  }
  cow_Shared& operator=(cow_Shared&& other) noexcept {
    if (this != &other) {
      Release();
      m_Body = std::exchange(other.m_Body, nullptr);
    }
    return *this;
  }
  ///@}
  ~cow_Shared() { Release(); }

  /// The value, read-only; an empty holder gives a default T.
  const T& Read() const noexcept { return m_Body ? m_Body->value : Empty(); }
  /// The value for change: un-shares (copies the value) first when the body is shared.
  T& Write() {
    if (!m_Body) {
      m_Body = new Body{T{}};
    } else if (m_Body->refs.load(std::memory_order_acquire) != 1) {
      Body* own = new Body{m_Body->value};
      Release();
      m_Body = own;
    }
    return m_Body->value;
  }
  /// True while another holder shares the body.
  bool IsShared() const noexcept {
    return m_Body && m_Body->refs.load(std::memory_order_acquire) > 1;
  }
  /// True when other holds the same body.
  bool SharesWith(const cow_Shared& other) const noexcept { return m_Body == other.m_Body; }

private:
  struct Body {
    explicit Body(const T& v) : value(v) {}
    explicit Body(T&& v) : value(std::move(v)) {}
    std::atomic<int> refs{1};
    T value;
  };
  static const T& Empty() noexcept {
    static const T empty{};
    return empty;
  }
  void Retain() const noexcept {
    if (m_Body) m_Body->refs.fetch_add(1, std::memory_order_relaxed);
  }
  void Release() noexcept {
    if (m_Body && m_Body->refs.fetch_sub(1, std::memory_order_acq_rel) == 1) delete m_Body;
    m_Body = nullptr;
  }

  Body* m_Body = nullptr;
};

/// @}
