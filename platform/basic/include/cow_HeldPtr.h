#pragma once
/// \addtogroup basic
/// @{

/// \class cow_HeldPtr
/// The owner cow_COW uses for any other class: the owning pointer in a counted body of its own
/// (cow_Shared), with the object's address kept beside it, so that reading goes straight to the
/// object (one memory access, not two, per element of a large list).
#include <cow_Shared.h>

#include <memory>
#include <utility>

template <class T>
class cow_HeldPtr {
public:
  cow_HeldPtr() noexcept = default;
  /// Takes ownership of owned (null gives an empty owner).
  explicit cow_HeldPtr(std::unique_ptr<T> owned)
      : m_Address(owned.get()), m_Body(std::move(owned)) {}
  /// Copies share the body; a move leaves the source empty.
  ///@{
  cow_HeldPtr(const cow_HeldPtr&) = default;
  cow_HeldPtr(cow_HeldPtr&& other) noexcept
      : m_Address(std::exchange(other.m_Address, nullptr)), m_Body(std::move(other.m_Body)) {}
  cow_HeldPtr& operator=(const cow_HeldPtr&) = default;
  cow_HeldPtr& operator=(cow_HeldPtr&& other) noexcept {
    m_Body = std::move(other.m_Body);
    m_Address = std::exchange(other.m_Address, nullptr);
    return *this;
  }
  ///@}

  /// The object, or null.
  T* get() const noexcept { return m_Address; }
  /// True while another owner shares the object.
  bool IsShared() const noexcept { return m_Body.IsShared(); }

private:
  T* m_Address = nullptr;  ///< the object m_Body owns, or null
  /// Never written through cow_Shared::Write, which would copy the owning pointer.
  cow_Shared<std::unique_ptr<T>> m_Body;
};

/// @}
