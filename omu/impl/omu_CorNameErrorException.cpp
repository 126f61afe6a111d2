#include <omu_CorNameErrorException.h>

#include <array>

atr_String omu_CorNameErrorException::JournalMessage() const {
  static constexpr std::array<const char*, 4> messages = {"invalid name", "name is empty",
                                                          "invalid job name", "invalid model name"};
  return m_Error >= 0 && m_Error < static_cast<int>(messages.size())
             ? atr_String(messages[static_cast<std::size_t>(m_Error)])
             : atr_String();
}
