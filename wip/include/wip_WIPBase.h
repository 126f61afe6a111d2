#pragma once
/// \addtogroup wip
/// @{

/// \class wip_WIPBase
/// The front that long-running code reports through. It forwards every call, arguments
/// unchanged, to the one reporter installed in it (not owned); calling it with none installed
/// raises nex_AssertException "WipReporter != 0" and forwards nothing.
#include <wip_WipReporter.h>

class CVX_EXPORT wip_WIPBase {
public:
  wip_WIPBase() noexcept = default;
  /// Not copyable.
  ///@{
  wip_WIPBase(const wip_WIPBase&) = delete;
  wip_WIPBase& operator=(const wip_WIPBase&) = delete;
  ///@}
  virtual ~wip_WIPBase();

  /// Installs reporter (not owned; null removes it); it must outlive its use here.
  virtual void SetWipReporter(wip_WipReporter* reporter);
  /// The installed reporter, or null.
  wip_WipReporter* GetWipReporter() const noexcept { return m_WipReporter; }

  /// Forwarded to the reporter's member of the same name (see wip_WipReporter).
  ///@{
  void Error(const atr_String& text, wip_errorLevelEnm level);
  void ErrorList(const cow_List<atr_String>& texts, wip_errorLevelEnm level);
  void Verbose(const atr_String& text);
  void Warning(const atr_String& text);
  void WarningList(const cow_List<atr_String>& texts);
  void FacilityMessage(const atr_String& text, int kind, int a, int b, omu_PrimTuple& arguments);
  void Milestone(const atr_String& text);
  void Landmark(const atr_String& text);
  void Print(const atr_String& text);
  void Display(const atr_String& text);
  void Milestone(const atr_String& text, const atr_String& unit, int done, int total);
  void Milestone(const atr_String& text, int value);
  int Interrupted();
  void CommandDone();
  void InterruptedThrow();
  ///@}

private:
  wip_WipReporter& Reporter(int line) const;

  wip_WipReporter* m_WipReporter = nullptr;
};

/// @}
