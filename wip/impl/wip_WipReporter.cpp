#include <wip_WIP.h>
#include <wip_WipReporter.h>

wip_WipReporter::~wip_WipReporter() {
  // Peek, not Instance: a thread that never reported has no front to clear.
  wip_WIP* front = wip_WIP::Peek();
  if (front && front->GetWipReporter() == this) front->SetWipReporter(nullptr);
}

void wip_WipReporter::FacilityMessage(const atr_String& text, int kind, int, int, omu_PrimTuple&) {
  RouteFacilityMessage(text, kind);
}

void wip_WipReporter::RouteFacilityMessage(const atr_String& text, int kind) {
  switch (kind) {
    case 0:
    case 1:
    case 2:
    case 3:
      Warning(text);
      break;
    case 4:
      Milestone(text);
      break;
    case 7:
      Landmark(text);
      break;
    case 8:
      Verbose(text);
      break;
    default:
      break;  // below 0, 5, 6 and above 8 are dropped
  }
}
