#include <g3d_ColorErrorException.h>
#include <g3d_ColorMap.h>

#include <omi_Singleton.h>

namespace {
struct NamedColor {
  const char* name;
  float r, g, b;
};

constexpr NamedColor kNamedColors[] = {
    {"Black", 0, 0, 0},
    {"White", 1, 1, 1},
    {"Red", 1, 0, 0},
    {"Orange", 1, 0.5f, 0},
    {"Light orange", 1, 0.6f, 0},
    {"Purple", 0.63f, 0.13f, 0.94f},
    {"Blue", 0, 0, 1},
    {"Medium blue", 0, 0.6f, 1},
    {"Sky blue", 0, 0.8f, 1},
    {"Cyan", 0, 1, 1},
    {"Aqua", 0, 1, 0.8f},
    {"Green", 0, 1, 0},
    {"Spring green", 0, 1, 0.55f},
    {"Yellow", 1, 1, 0},
    {"Gold", 1, 0.844f, 0},
    {"Dark gold", 1, 0.7f, 0},
    {"Chartreuse", 0.7f, 1, 0},
    {"Grey20", 0.2f, 0.2f, 0.2f},
    {"Grey60", 0.6f, 0.6f, 0.6f},
    {"Grey80", 0.8f, 0.8f, 0.8f},
    {"Default", 1, 1, 1},
    {"Magenta", 1, 0, 1},
    {"Grey10", 0.1f, 0.1f, 0.1f},
    {"Grey30", 0.3f, 0.3f, 0.3f},
    {"Grey40", 0.4f, 0.4f, 0.4f},
    {"Grey50", 0.5f, 0.5f, 0.5f},
    {"Grey70", 0.7f, 0.7f, 0.7f},
    {"Grey90", 0.9f, 0.9f, 0.9f},
};
}  // namespace

g3d_ColorMap::g3d_ColorMap() {
  for (const NamedColor& c : kNamedColors) m_Colors.Insert(c.name, g3d_Color(c.r, c.g, c.b, 1.0f));
}

g3d_ColorMap& g3d_ColorMap::Instance() { return omi_Singleton<g3d_ColorMap>::Instance(); }

void g3d_ColorMap::Destroy() noexcept { omi_Singleton<g3d_ColorMap>::Destroy(); }

const g3d_Color& g3d_ColorMap::Lookup(const cow_String& name) const {
  if (const g3d_Color* color = Find(name)) return *color;
  NEX_THROW(g3d_ColorErrorException(name), "g3d/impl/g3d_ColorMap");
}
