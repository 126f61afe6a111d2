#pragma once
/// \addtogroup wip
/// @{

/// \class wip_WipReporter
/// What displays the reports of long-running operations: the host implements one and installs
/// it in the calling thread's front (wip_WIP::Instance().SetWipReporter). Destroying the
/// installed reporter uninstalls it from the destroying thread's front.
///
/// Progress convention used by wip_Progress and wip_ConsoleReporter: the four-argument
/// Milestone(task, unit, done, total) says that done of total units of task are finished.
#include <CVX_Export.h>
#include <atr_String.h>
#include <cow_List.h>
#include <wip_errorLevelEnm.h>

class omu_PrimTuple;

class CVX_EXPORT wip_WipReporter {
public:
  wip_WipReporter() = default;
  /// Not copyable.
  ///@{
  wip_WipReporter(const wip_WipReporter&) = delete;
  wip_WipReporter& operator=(const wip_WipReporter&) = delete;
  ///@}
  virtual ~wip_WipReporter();

  /// An error of the given level.
  virtual void Error(const atr_String& text, wip_errorLevelEnm level) = 0;
  /// A warning.
  virtual void Warning(const atr_String& text) = 0;
  /// Several errors of one level, in order.
  virtual void ErrorList(const cow_List<atr_String>& texts, wip_errorLevelEnm level) = 0;
  /// Several warnings, in order.
  virtual void WarningList(const cow_List<atr_String>& texts) = 0;
  /// Routes by kind: 0-3 warn, 4 is a milestone, 7 a landmark, 8 verbose; other kinds (5, 6,
  /// negative, above 8) are dropped. The other arguments are left to overriding reporters.
  virtual void FacilityMessage(const atr_String& text, int kind, int, int,
                               omu_PrimTuple& arguments);
  /// A message for verbose output only.
  virtual void Verbose(const atr_String& text) = 0;
  /// A milestone with a number.
  virtual void Milestone(const atr_String& text, int) = 0;
  /// Progress: done of total units of the task text are finished.
  virtual void Milestone(const atr_String& text, const atr_String& unit, int done, int total) = 0;
  /// A milestone reached.
  virtual void Milestone(const atr_String& text) = 0;
  /// A landmark: a stage of the operation begun or ended.
  virtual void Landmark(const atr_String& text) = 0;
  /// A message to print.
  virtual void Print(const atr_String& text) = 0;
  /// A message to display.
  virtual void Display(const atr_String& text) = 0;
  /// Non-zero when the user asked the running operation to stop.
  virtual int Interrupted() = 0;
  /// The running command has finished.
  virtual void CommandDone() = 0;
  /// Raises when the user asked the running operation to stop.
  virtual void InterruptedThrow() = 0;

protected:
  /// The default routing of FacilityMessage, by kind alone.
  void RouteFacilityMessage(const atr_String& text, int kind);
};

/// @}
