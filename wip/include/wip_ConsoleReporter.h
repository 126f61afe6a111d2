#pragma once
/// \addtogroup wip
/// @{

/// \class wip_ConsoleReporter
/// A ready-made reporter for hosts without a user interface of their own: errors, warnings,
/// milestones and messages go to a text stream (the error stream by default), and the progress
/// of a task (Milestone(task, unit, done, total), see wip_Progress) is shown with its rate and
/// remaining time: as a bar redrawn in place on a terminal, as a line per tenth otherwise.
///
/// \code
///   wip_ConsoleReporter console;
///   wip_WIP::Instance().SetWipReporter(&console);   // uninstalled again when console dies
/// \endcode
///
/// What a progress report shows: `task [####----]  42%  420/1000 faces  1234 faces/s  0:05 left`
/// (plain style: `task:  42%  ...`). The bar is 24 characters wide. The rate is units finished
/// per second since the task's first report, on a steady clock (see Seconds), printed with two
/// decimals below 10 per second, one below 100 and none above; it is left out until it is
/// positive. The time left is the units still to do at that rate, as m:ss or h:mm:ss; a finished
/// task shows "in" and its elapsed time instead. A report of another task, or of fewer units
/// done than before, starts a new task.
///
/// Defaults: STYLE_AUTO (a bar only when the stream is a terminal), verbose messages hidden, no
/// interrupt requested. Errors print as "Error: ", "Severe error: " or "Fatal error: " by level,
/// warnings as "Warning: ".
///
/// Threads: a reporter is installed in one thread's front and called from that thread; each
/// report is one write to the stream, so reporters of several threads sharing a stream do not
/// mix within a line. RequestInterrupt alone may be called from any thread or from a signal
/// handler; the running task sees it through Interrupted / InterruptedThrow, and CommandDone
/// forgets it. The stream is not owned and must outlive the reporter.
#include <aio_ostream.h>
#include <wip_WipReporter.h>

#include <atomic>
#include <string>

class CVX_EXPORT wip_ConsoleReporter : public wip_WipReporter {
public:
  /// How progress is shown.
  enum Style {
    STYLE_AUTO,      ///< a bar when the stream is a terminal, lines otherwise
    STYLE_PLAIN,     ///< lines, for logs and pipes
    STYLE_TERMINAL,  ///< a bar redrawn in place
  };

  /// Writes to out (not owned; it must outlive the reporter).
  explicit wip_ConsoleReporter(Style style = STYLE_AUTO, aio_ostream& out = aio_cerr());

  /// True when progress is shown as a bar (STYLE_AUTO decided at construction).
  bool ShowsBar() const noexcept { return m_Bar; }
  /// Verbose messages are shown only when asked for.
  void SetVerbose(bool verbose) noexcept { m_Verbose = verbose; }
  /// Asks the running task to stop; safe from any thread or a signal handler.
  void RequestInterrupt() noexcept { m_InterruptRequested.store(true); }

  /// A line "Error: ", "Severe error: " or "Fatal error: " and the text, ending any bar.
  void Error(const atr_String& text, wip_errorLevelEnm level) override;
  /// A line "Warning: " and the text.
  void Warning(const atr_String& text) override;
  /// One Error, or one Warning, per text.
  ///@{
  void ErrorList(const cow_List<atr_String>& texts, wip_errorLevelEnm level) override;
  void WarningList(const cow_List<atr_String>& texts) override;
  ///@}
  /// A line, only when verbose messages are on.
  void Verbose(const atr_String& text) override;
  /// A line "text: value".
  void Milestone(const atr_String& text, int value) override;
  /// Shows the task's progress (see the class).
  void Milestone(const atr_String& task, const atr_String& unit, int done, int total) override;
  /// A line of the text.
  ///@{
  void Milestone(const atr_String& text) override;
  void Landmark(const atr_String& text) override;
  void Print(const atr_String& text) override;
  void Display(const atr_String& text) override;
  ///@}
  int Interrupted() override;
  /// Ends any bar and forgets an interrupt request.
  void CommandDone() override;
  /// Raises wip_InterruptException once per request.
  void InterruptedThrow() override;

protected:
  /// Seconds on a steady clock; the rate and remaining time are measured with it.
  virtual double Seconds() const;

private:
  void Line(std::string_view prefix, std::string_view text);
  void Emit(std::string_view text);
  void EndBar();
  std::string ProgressText(std::string_view task, std::string_view unit, int done, int total,
                           double elapsed) const;

  aio_ostream& m_Out;
  bool m_Bar;
  bool m_Verbose = false;
  std::atomic<bool> m_InterruptRequested{false};

  /// The task in progress.
  std::string m_Task;
  double m_TaskStart = 0;
  int m_LastDone = -1;
  int m_LastTenth = -1;    ///< plain style: the last tenth printed
  std::string m_ShownBar;  ///< terminal style: the bar on the screen, empty when none
};

/// @}
