#pragma once
// A reporter that records each call as text, for checking what reached it.
#include <wip_WipReporter.h>

#include <string>
#include <vector>

class RecordingReporter : public wip_WipReporter {
public:
  std::vector<std::string> calls;
  int interrupted = 0;

  void Error(const atr_String& text, wip_errorLevelEnm level) override {
    Record("Error", text, level);
  }
  void Warning(const atr_String& text) override { Record("Warning", text); }
  void ErrorList(const cow_List<atr_String>& texts, wip_errorLevelEnm level) override {
    Record("ErrorList", texts, level);
  }
  void WarningList(const cow_List<atr_String>& texts) override { Record("WarningList", texts); }
  void Verbose(const atr_String& text) override { Record("Verbose", text); }
  void Milestone(const atr_String& text, int value) override { Record("Milestone", text, value); }
  void Milestone(const atr_String& text, const atr_String& unit, int done, int total) override {
    Record("Milestone", text, unit, done, total);
  }
  void Milestone(const atr_String& text) override { Record("Milestone", text); }
  void Landmark(const atr_String& text) override { Record("Landmark", text); }
  void Print(const atr_String& text) override { Record("Print", text); }
  void Display(const atr_String& text) override { Record("Display", text); }
  int Interrupted() override {
    Record("Interrupted");
    return interrupted;
  }
  void CommandDone() override { Record("CommandDone"); }
  void InterruptedThrow() override { Record("InterruptedThrow"); }

  // The default routing of facility messages, by kind.
  void Route(const atr_String& text, int kind) { RouteFacilityMessage(text, kind); }

private:
  static std::string Show(int value) { return std::to_string(value); }
  static std::string Show(const atr_StringBase& text) { return std::string(text.View()); }
  static std::string Show(const cow_List<atr_String>& texts) {
    std::string joined;
    for (const atr_String& text : texts) joined += (joined.empty() ? "" : ";") + Show(text);
    return joined;
  }
  // "what(text|more,more)": the first part, then "|" before the second and "," before the rest.
  template <class... Parts>
  void Record(const char* what, const Parts&... parts) {
    std::string call = std::string(what) + "(", separator;
    ((call += separator + Show(parts), separator = separator.empty() ? "|" : ","), ...);
    calls.push_back(call + ")");
  }
};
