#pragma once
/// \addtogroup basic
/// @{

/// \class cow_CountedPtr
/// The owner cow_COW uses for a cow_Counted class: a pointer counted in the object itself. The
/// last owner deletes the object, through T's virtual destructor where T has one.
#include <cow_Counted.h>

#include <memory>
#include <utility>

template <class T>
class cow_CountedPtr {
public:
  cow_CountedPtr() noexcept = default;
  /// Takes ownership of owned (null gives an empty owner).
  explicit cow_CountedPtr(std::unique_ptr<T> owned) noexcept : m_Object(owned.release()) {
    if (m_Object) Shares().store(1, std::memory_order_relaxed);
  }
  /// Copies share the object (counted); a move leaves the source empty.
  ///@{
  cow_CountedPtr(const cow_CountedPtr& other) noexcept : m_Object(other.m_Object) { Retain(); }
  cow_CountedPtr(cow_CountedPtr&& other) noexcept
      : m_Object(std::exchange(other.m_Object, nullptr)) {}
  // Retaining before releasing keeps self-assignment safe.
  // NOLINTNEXTLINE(bugprone-unhandled-self-assignment)
  cow_CountedPtr& operator=(const cow_CountedPtr& other) noexcept {
    other.Retain();
    Release();
    m_Object = other.m_Object;
    return *this;
  }
  cow_CountedPtr& operator=(cow_CountedPtr&& other) noexcept {
    if (this != &other) {
      Release();
      m_Object = std::exchange(other.m_Object, nullptr);
    }
    return *this;
  }
  ///@}
  ~cow_CountedPtr() { Release(); }

  /// The object, or null.
  T* get() const noexcept { return m_Object; }
  /// True while another owner shares the object.
  bool IsShared() const noexcept {
    return m_Object && Shares().load(std::memory_order_acquire) > 1;
  }

private:
  std::atomic<int>& Shares() const noexcept { return m_Object->cow_Counted::m_Shares; }
  void Retain() const noexcept {
    if (m_Object) Shares().fetch_add(1, std::memory_order_relaxed);
  }
  void Release() noexcept {
    if (m_Object && Shares().fetch_sub(1, std::memory_order_acq_rel) == 1) delete m_Object;
    m_Object = nullptr;
  }

  T* m_Object = nullptr;
};

/// @}
