#pragma once
/// \addtogroup bascore
/// @{

/// \class omi_UseCounter
/// The start-up guard shared by every library and module entry: work happens only on the
/// 0-to-1 and 1-to-0 transitions, each of which moves the caller's count by one. The counter
/// is not clamped: a finalise without a start leaves it at -1, so the next start does nothing.
class omi_UseCounter {
public:
  template <class Start>
  void Initialize(int& count, Start&& start) {
    if (m_Uses++ == 0) {
      ++count;
      start();
    }
  }
  template <class Stop>
  void Finalize(int& count, Stop&& stop) {
    if (m_Uses-- == 1) {
      --count;
      stop();
    }
  }
  int Uses() const noexcept { return m_Uses; }

private:
  int m_Uses = 0;
};

/// @}
