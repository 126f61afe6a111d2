#pragma once
/// \addtogroup wip
/// @{

/// \class wip_Progress
/// The progress of one long task, reported through a front (by default the calling thread's)
/// as Milestone(task, unit, done, total). Reports are thinned to about a thousand per task, so
/// a loop may call Advance for every item:
///
/// \code
///   wip_Progress progress("Meshing faces", faceCount, "faces");
///   for (int face = 0; face < faceCount; ++face) {
///     progress.CheckInterrupt();   // raises wip_InterruptException when the user stopped us
///     MeshFace(face);
///     progress.Advance();
///   }
/// \endcode
#include <wip_WIPBase.h>

class CVX_EXPORT wip_Progress {
public:
  /// A task of total units (negative counts as 0), reported through the calling thread's front or
  /// the front given (not owned; it must outlive the progress).
  ///@{
  wip_Progress(const atr_String& task, int total, const atr_String& unit = "items");
  wip_Progress(wip_WIPBase& front, const atr_String& task, int total,
               const atr_String& unit = "items");
  ///@}
  /// Not copyable.
  ///@{
  wip_Progress(const wip_Progress&) = delete;
  wip_Progress& operator=(const wip_Progress&) = delete;
  ///@}

  /// Count more units are finished.
  void Advance(int count = 1) { Set(m_Done + count); }
  /// done units are finished (kept within 0 and the total).
  void Set(int done);
  /// Units finished so far, and in all.
  ///@{
  int Done() const noexcept { return m_Done; }
  int Total() const noexcept { return m_Total; }
  ///@}
  /// The finished fraction, 0 to 1; 0 for a task of no units.
  double Fraction() const noexcept;

  /// True when the user asked to stop; the task decides how to wind down.
  bool Interrupted() { return m_Front.Interrupted() != 0; }
  /// Raises through the reporter when the user asked to stop.
  void CheckInterrupt() { m_Front.InterruptedThrow(); }

private:
  void Report();

  wip_WIPBase& m_Front;
  atr_String m_Task;
  atr_String m_Unit;
  int m_Total;
  int m_Done = 0;
  int m_Step;        ///< units between two reports
  int m_NextReport;  ///< report when done reaches this
  int m_Reported;    ///< done as last reported
};

/// @}
