#include <g3d_Utils.h>
#include <g3d_XFormStack.h>

#include <algorithm>

g3d_XFormStack::g3d_XFormStack(int capacity_) : top(0), capacity(capacity_) {
  g3d_Utils::Assert(capacity >= 1, "capacity >= 1");
  capacity = std::max(capacity, 1);
  entries = std::make_unique<g3d_XForm[]>(static_cast<std::size_t>(capacity));
}

g3d_XFormStack::g3d_XFormStack(const g3d_XFormStack& other)
    : entries(std::make_unique<g3d_XForm[]>(static_cast<std::size_t>(other.capacity))),
      top(other.top),
      capacity(other.capacity) {
  std::copy(other.entries.get(), other.entries.get() + top + 1, entries.get());
}

g3d_XFormStack& g3d_XFormStack::operator=(const g3d_XFormStack& other) {
  if (this != &other) {
    g3d_XFormStack copy(other);
    std::swap(entries, copy.entries);
    std::swap(top, copy.top);
    std::swap(capacity, copy.capacity);
  }
  return *this;
}

g3d_XFormStack::~g3d_XFormStack() = default;

void g3d_XFormStack::Push(const g3d_XForm& x) {
  g3d_Utils::Assert(top < capacity - 1, "top < capacity - 1");
  if (top >= capacity - 1) return;  // a release build ignores the overflow
  entries[top + 1] = entries[top] * x;
  ++top;
}

void g3d_XFormStack::Pop() noexcept {
  if (top > 0) --top;
}

const g3d_XForm& g3d_XFormStack::Top() const noexcept { return entries[top]; }

void g3d_XFormStack::Reset(const g3d_XForm& x) noexcept {
  top = 0;
  entries[0] = x;
}
