#include <g3d_Light.h>

#include <cmath>

namespace {
constexpr double kDegreesToRadians = 0.017453292519943295;
}

g3d_Light& g3d_Light::SetPositionVector(float latitudeDegrees, float longitudeDegrees) noexcept {
  latitude = latitudeDegrees;
  longitude = longitudeDegrees;
  const double phi = (90.0 - latitudeDegrees) * kDegreesToRadians;
  const double lambda = longitudeDegrees * kDegreesToRadians;
  position = g3d_Vector(static_cast<float>(std::sin(phi) * std::sin(lambda)),
                        static_cast<float>(std::cos(phi)),
                        static_cast<float>(std::sin(phi) * std::cos(lambda)));
  return *this;
}

bool g3d_Light::operator==(const g3d_Light& o) const noexcept {
  return enabled == o.enabled && ambientColor == o.ambientColor && diffuseColor == o.diffuseColor &&
         specularColor == o.specularColor && position == o.position && weight == o.weight &&
         constantAttenuation == o.constantAttenuation && linearAttenuation == o.linearAttenuation &&
         quadraticAttenuation == o.quadraticAttenuation && latitude == o.latitude &&
         longitude == o.longitude;
}
