#include <wip_Progress.h>
#include <wip_WIP.h>

#include <algorithm>

namespace {
constexpr int kReportsPerTask = 1000;
}

wip_Progress::wip_Progress(const atr_String& task, int total, const atr_String& unit)
    : wip_Progress(wip_WIP::Instance(), task, total, unit) {}

wip_Progress::wip_Progress(wip_WIPBase& front, const atr_String& task, int total,
                           const atr_String& unit)
    : m_Front(front),
      m_Task(task),
      m_Unit(unit),
      m_Total(std::max(total, 0)),
      m_Step(std::max(m_Total / kReportsPerTask, 1)),
      m_NextReport(0),
      m_Reported(0) {
  Report();
}

void wip_Progress::Set(int done) {
  m_Done = std::clamp(done, 0, m_Total);
  if (m_Done == m_Reported) return;
  if (m_Done >= m_NextReport || m_Done == m_Total) Report();
}

double wip_Progress::Fraction() const noexcept {
  return m_Total == 0 ? 0.0 : static_cast<double>(m_Done) / m_Total;
}

void wip_Progress::Report() {
  m_Reported = m_Done;
  m_NextReport = m_Done + m_Step;
  m_Front.Milestone(m_Task, m_Unit, m_Done, m_Total);
}
