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
    Record("Error", text, std::to_string(level));
  }
  void Warning(const atr_String& text) override { Record("Warning", text); }
  void ErrorList(const cow_List<atr_String>& texts, wip_errorLevelEnm level) override {
    Record("ErrorList", Join(texts), std::to_string(level));
  }
  void WarningList(const cow_List<atr_String>& texts) override {
    Record("WarningList", Join(texts));
  }
  void Verbose(const atr_String& text) override { Record("Verbose", text); }
  void Milestone(const atr_String& text, int value) override {
    Record("Milestone", text, std::to_string(value));
  }
  void Milestone(const atr_String& text, const atr_String& unit, int done, int total) override {
    Record("Milestone", text,
           std::string(unit.View()) + "," + std::to_string(done) + "," + std::to_string(total));
  }
  void Milestone(const atr_String& text) override { Record("Milestone", text); }
  void Landmark(const atr_String& text) override { Record("Landmark", text); }
  void Print(const atr_String& text) override { Record("Print", text); }
  void Display(const atr_String& text) override { Record("Display", text); }
  int Interrupted() override {
    Record("Interrupted", "");
    return interrupted;
  }
  void CommandDone() override { Record("CommandDone", ""); }
  void InterruptedThrow() override { Record("InterruptedThrow", ""); }

  // The default routing of facility messages, by kind.
  void Route(const atr_String& text, int kind) { RouteFacilityMessage(text, kind); }

private:
  void Record(const char* what, const atr_StringBase& text, const std::string& more = "") {
    std::string call = std::string(what) + "(" + std::string(text.View());
    if (!more.empty()) call += "|" + more;
    calls.push_back(call + ")");
  }
  static std::string Join(const cow_List<atr_String>& texts) {
    std::string joined;
    for (const atr_String& text : texts)
      joined += (joined.empty() ? "" : ";") + std::string(text.View());
    return joined;
  }
};
