// Colour texts from outside: #RRGGBB parsing and name lookup must never crash; an unknown
// name raises g3d_ColorErrorException and nothing else.
#include <g3d_ColorErrorException.h>
#include <g3d_ColorMap.h>

#include <cstddef>
#include <cstdint>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const cow_String text(std::string(reinterpret_cast<const char*>(data), size));
  g3d_Color color(0.5f, 0.5f, 0.5f, 0.5f);
  color.Set(text, 1.0f);
  if (color.GetRGBA() != g3d_Color().Set(color.GetRGBA()).GetRGBA()) __builtin_trap();
  try {
    color.SetByName(text, 1.0f);
  } catch (const g3d_ColorErrorException& error) {
    if (error.JournalMessage().Length() < 27) __builtin_trap();
  }
  g3d_Color().SetHSV(color.GetHSV());
  return 0;
}
