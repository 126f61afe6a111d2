// The front and its per-thread instance. Both report their failures from this source.
#include <nex_AssertException.h>
#include <thr_ThreadSingleton.h>
#include <wip_WIP.h>

namespace {
constexpr const char* kSource = "wip/impl/wip_WIP";
}

wip_WIPBase::~wip_WIPBase() = default;

void wip_WIPBase::SetWipReporter(wip_WipReporter* reporter) { m_WipReporter = reporter; }

wip_WipReporter& wip_WIPBase::Reporter(int line) const {
  if (!m_WipReporter) nex_Exception::Throw(nex_AssertException("WipReporter != 0"), kSource, line);
  return *m_WipReporter;
}

void wip_WIPBase::Error(const atr_String& text, wip_errorLevelEnm level) {
  Reporter(__LINE__).Error(text, level);
}
void wip_WIPBase::ErrorList(const cow_List<atr_String>& texts, wip_errorLevelEnm level) {
  Reporter(__LINE__).ErrorList(texts, level);
}
void wip_WIPBase::Verbose(const atr_String& text) { Reporter(__LINE__).Verbose(text); }
void wip_WIPBase::Warning(const atr_String& text) { Reporter(__LINE__).Warning(text); }
void wip_WIPBase::WarningList(const cow_List<atr_String>& texts) {
  Reporter(__LINE__).WarningList(texts);
}
void wip_WIPBase::FacilityMessage(const atr_String& text, int kind, int a, int b,
                                  omu_PrimTuple& arguments) {
  Reporter(__LINE__).FacilityMessage(text, kind, a, b, arguments);
}
void wip_WIPBase::Milestone(const atr_String& text) { Reporter(__LINE__).Milestone(text); }
void wip_WIPBase::Landmark(const atr_String& text) { Reporter(__LINE__).Landmark(text); }
void wip_WIPBase::Print(const atr_String& text) { Reporter(__LINE__).Print(text); }
void wip_WIPBase::Display(const atr_String& text) { Reporter(__LINE__).Display(text); }
void wip_WIPBase::Milestone(const atr_String& text, const atr_String& unit, int done, int total) {
  Reporter(__LINE__).Milestone(text, unit, done, total);
}
void wip_WIPBase::Milestone(const atr_String& text, int value) {
  Reporter(__LINE__).Milestone(text, value);
}
int wip_WIPBase::Interrupted() { return Reporter(__LINE__).Interrupted(); }
void wip_WIPBase::CommandDone() { Reporter(__LINE__).CommandDone(); }
void wip_WIPBase::InterruptedThrow() { Reporter(__LINE__).InterruptedThrow(); }

wip_WIP& wip_WIP::Instance() { return thr_ThreadSingleton<wip_WIP>::Instance(); }

wip_WIP* wip_WIP::Peek() noexcept { return thr_ThreadSingleton<wip_WIP>::Peek(); }
