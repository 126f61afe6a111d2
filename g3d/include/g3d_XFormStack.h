#pragma once
/// \addtogroup g3d
/// @{

/// \class g3d_XFormStack
/// A fixed-capacity stack of accumulated transforms: each push post-multiplies the top.
#include <g3d_XForm.h>

#include <memory>

class CVX_EXPORT g3d_XFormStack {
public:
  /// capacity >= 1; the top is entry 0, the identity.
  explicit g3d_XFormStack(int capacity);
  /// Copies every entry.
  ///@{
  g3d_XFormStack(const g3d_XFormStack& other);
  g3d_XFormStack& operator=(const g3d_XFormStack& other);
  ///@}
  ~g3d_XFormStack();

  /// Requires room (top < capacity - 1): the new top is Top() * x.
  void Push(const g3d_XForm& x);
  /// Drops the top entry; the base entry stays.
  void Pop() noexcept;
  /// The accumulated transform on top.
  const g3d_XForm& Top() const noexcept;
  /// Back to one entry, x.
  void Reset(const g3d_XForm& x) noexcept;

  /// The index of the top entry (0 for the base).
  int Depth() const noexcept { return top; }
  /// The most entries.
  int Capacity() const noexcept { return capacity; }

private:
  std::unique_ptr<g3d_XForm[]> entries;
  int top = -1;
  int capacity = 0;
};

/// @}
