#include <g3d_Studio.h>

#include <algorithm>
#include <cstdlib>

namespace {
// Read by the first studio only; later ones reuse the answer.
bool TestPrintRequested() {
  static const bool requested = std::getenv("CVX_QA_PRINT") != nullptr;
  return requested;
}

struct LightSetup {
  float latitude, longitude;
  const char* diffuse;
  const char* specular;
};

// The three lights of the normal set-up: key, fill and back.
constexpr LightSetup kNormalLights[] = {
    {50.0f, -70.0f, "#595959", "#7f7f7f"},
    {-30.0f, -75.0f, "#4d4d4d", "#9c9c9c"},
    {20.0f, 15.0f, "#404040", "#828282"},
};

void Configure(g3d_Light& light, const LightSetup& setup, float weight) {
  light.SetPositionVector(setup.latitude, setup.longitude);
  light.diffuseColor = setup.diffuse;
  light.specularColor = setup.specular;
  light.weight = weight;
  light.enabled = true;
}
}  // namespace

g3d_Studio::g3d_Studio() : testPrint(TestPrintRequested()) {
  if (testPrint) {
    shininess = 25.0f;
    ambientColor = "#333333";
    // One light from the direction whose tangent is 1/2 in both angles.
    Configure(lights[0], {26.565052f, 26.565052f, "White", "Black"}, 1.0f);
    return;
  }
  for (int i = 0; i < 3; ++i) Configure(lights[i], kNormalLights[i], 0.0f);
}

bool g3d_Studio::operator==(const g3d_Studio& o) const noexcept {
  return testPrint == o.testPrint && shininess == o.shininess && ambientColor == o.ambientColor &&
         std::equal(lights, lights + LightCount, o.lights);
}
