#include "wip_Terminal.h"

#include <nex_Exception.h>
#include <wip_ConsoleReporter.h>
#include <wip_InterruptException.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>

namespace {
constexpr int kBarWidth = 24;

std::string Printf(const char* format, double value) {
  char text[64];
  std::snprintf(text, sizeof text, format, value);
  return text;
}

std::string Rate(double perSecond) {
  if (perSecond >= 100) return Printf("%.0f", perSecond);
  return Printf(perSecond >= 10 ? "%.1f" : "%.2f", perSecond);
}

std::string Duration(double seconds) {
  const long long whole = std::llround(seconds);
  char text[48];
  if (whole >= 3600) {
    std::snprintf(text, sizeof text, "%lld:%02lld:%02lld", whole / 3600, whole / 60 % 60,
                  whole % 60);
  } else {
    std::snprintf(text, sizeof text, "%lld:%02lld", whole / 60, whole % 60);
  }
  return text;
}

const char* ErrorPrefix(wip_errorLevelEnm level) {
  switch (level) {
    case wip_ERROR_SEVERE:
      return "Severe error: ";
    case wip_ERROR_FATAL:
      return "Fatal error: ";
    default:
      return "Error: ";
  }
}
}  // namespace

wip_ConsoleReporter::wip_ConsoleReporter(Style style, aio_ostream& out)
    : m_Out(out),
      m_Bar(style == STYLE_TERMINAL || (style == STYLE_AUTO && wip_IsTerminal(out.Target()))) {}

double wip_ConsoleReporter::Seconds() const {
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

void wip_ConsoleReporter::Emit(std::string_view text) {
  m_Out << text;
  m_Out.Flush();
}

void wip_ConsoleReporter::Line(std::string_view prefix, std::string_view text) {
  // One write per report, so that reports of several threads do not mix within a line.
  std::string out;
  if (!m_ShownBar.empty()) out.append("\r").append(m_ShownBar.size(), ' ').append("\r");
  out.append(prefix).append(text).append("\n");
  out.append(m_ShownBar);  // the bar moves below the message
  Emit(out);
}

void wip_ConsoleReporter::EndBar() {
  if (!m_ShownBar.empty()) Emit("\n");
  m_ShownBar.clear();
  m_Task.clear();
  m_LastDone = -1;
  m_LastTenth = -1;
}

void wip_ConsoleReporter::Error(const atr_String& text, wip_errorLevelEnm level) {
  Line(ErrorPrefix(level), text);
}
void wip_ConsoleReporter::Warning(const atr_String& text) { Line("Warning: ", text); }
void wip_ConsoleReporter::ErrorList(const cow_List<atr_String>& texts, wip_errorLevelEnm level) {
  for (const atr_String& text : texts) Error(text, level);
}
void wip_ConsoleReporter::WarningList(const cow_List<atr_String>& texts) {
  for (const atr_String& text : texts) Warning(text);
}
void wip_ConsoleReporter::Verbose(const atr_String& text) {
  if (m_Verbose) Line("", text);
}
void wip_ConsoleReporter::Milestone(const atr_String& text, int value) {
  Line("", std::string(text.View()) + ": " + std::to_string(value));
}
void wip_ConsoleReporter::Milestone(const atr_String& text) { Line("", text); }
void wip_ConsoleReporter::Landmark(const atr_String& text) { Line("", text); }
void wip_ConsoleReporter::Print(const atr_String& text) { Line("", text); }
void wip_ConsoleReporter::Display(const atr_String& text) { Line("", text); }

void wip_ConsoleReporter::Milestone(const atr_String& task, const atr_String& unit, int done,
                                    int total) {
  const double now = Seconds();
  if (task.View() != m_Task || done < m_LastDone) {
    EndBar();
    m_Task = task.View();
    m_TaskStart = now;
  }
  m_LastDone = done;
  const bool finished = done >= total;
  const std::string text = ProgressText(task, unit, done, total, now - m_TaskStart);
  if (m_Bar) {
    std::string out = "\r" + text;
    if (text.size() < m_ShownBar.size()) out.append(m_ShownBar.size() - text.size(), ' ');
    m_ShownBar = text;
    Emit(out);
  } else {
    const int tenth = total > 0 ? static_cast<int>(static_cast<long long>(done) * 10 / total) : 10;
    if (tenth > m_LastTenth) Emit(text + "\n");
    m_LastTenth = std::max(tenth, m_LastTenth);
  }
  if (finished) EndBar();
}

std::string wip_ConsoleReporter::ProgressText(std::string_view task, std::string_view unit,
                                              int done, int total, double elapsed) const {
  const double fraction = total > 0 ? static_cast<double>(done) / total : 1.0;
  std::string text(task);
  if (m_Bar) {
    const int filled = static_cast<int>(fraction * kBarWidth);
    text.append(" [").append(filled, '#').append(kBarWidth - filled, '-').append("]");
  } else {
    text.append(":");
  }
  text.append(Printf(" %3.0f%%", fraction * 100));
  text.append("  ").append(std::to_string(done)).append("/").append(std::to_string(total));
  text.append(" ").append(unit);
  const double rate = elapsed > 0 ? done / elapsed : 0;
  if (rate > 0) {
    text.append("  ").append(Rate(rate)).append(" ").append(unit).append("/s");
  }
  if (done >= total) {
    text.append("  in ").append(Duration(elapsed));
  } else if (rate > 0) {
    text.append("  ").append(Duration((total - done) / rate)).append(" left");
  }
  return text;
}

int wip_ConsoleReporter::Interrupted() { return m_InterruptRequested.load() ? 1 : 0; }

void wip_ConsoleReporter::CommandDone() {
  EndBar();
  m_InterruptRequested.store(false);
}

void wip_ConsoleReporter::InterruptedThrow() {
  if (!m_InterruptRequested.exchange(false)) return;
  EndBar();
  NEX_THROW(wip_InterruptException(), "wip/impl/wip_ConsoleReporter");
}
