// The fuzzer's bytes read front to back. Past the end every read answers zero, so a target
// never checks the length itself and any input, however short, drives a whole run.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

class FuzzInput {
public:
  FuzzInput(const std::uint8_t* data, std::size_t size) : m_Data(data), m_Size(size) {}
  bool Empty() const { return m_At >= m_Size; }
  std::uint8_t Byte() { return Empty() ? 0 : m_Data[m_At++]; }
  // The next sizeof(T) bytes as they lie; zero when fewer are left, which are used up all the same.
  template <class T>
  T Raw() {
    T value{};
    if (m_At + sizeof value <= m_Size) std::memcpy(&value, m_Data + m_At, sizeof value);
    m_At += sizeof value;
    return value;
  }
  // Up to five bytes of text, its length taken from the byte before.
  std::string Text() {
    std::string text;
    for (int length = Byte() % 6; length > 0; --length) text += char(Byte());
    return text;
  }

private:
  const std::uint8_t* m_Data;
  std::size_t m_Size;
  std::size_t m_At = 0;
};
