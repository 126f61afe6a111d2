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
#include <cow_CountedPtr.h>

#include <memory>
#include <utility>

template <class T>
class cow_Shared {
public:
  cow_Shared() noexcept = default;
  /// A body of its own holding value.
  explicit cow_Shared(T value) : m_Body(std::make_unique<Body>(std::move(value))) {}

  /// The value, read-only; an empty holder gives a default T.
  const T& Read() const noexcept { return m_Body.get() ? m_Body.get()->value : Empty(); }
  /// The value for change: un-shares (copies the value) first when the body is shared.
  T& Write() {
    if (!m_Body.get()) {
      m_Body = Counted(std::make_unique<Body>(T{}));
    } else if (m_Body.IsShared()) {
      m_Body = Counted(std::make_unique<Body>(m_Body.get()->value));
    }
    return m_Body.get()->value;
  }
  /// True while another holder shares the body.
  bool IsShared() const noexcept { return m_Body.IsShared(); }
  /// True when other holds the same body.
  bool SharesWith(const cow_Shared& other) const noexcept {
    return m_Body.get() == other.m_Body.get();
  }

private:
  struct Body : cow_Counted {
    explicit Body(const T& v) : value(v) {}
    explicit Body(T&& v) : value(std::move(v)) {}
    T value;
  };
  using Counted = cow_CountedPtr<Body>;
  static const T& Empty() noexcept {
    static const T empty{};
    return empty;
  }

  /// Copies share the body (counted); a move leaves the source empty.
  Counted m_Body;
};

/// @}
