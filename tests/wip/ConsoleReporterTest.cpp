#include "OnThreads.h"
#include "RecordingReporter.h"

#include <wip_ConsoleReporter.h>
#include <wip_InterruptException.h>
#include <wip_Progress.h>
#include <wip_WIP.h>

#include <gtest/gtest.h>

#include <barrier>
#include <sstream>

namespace {
// The stream is built before the reporter that writes to it.
struct OwnStream {
  std::ostringstream text;
  aio_ostream stream{&text};
};

// A console reporter on its own stream, with a clock the test moves.
class ClockedConsole : private OwnStream, public wip_ConsoleReporter {
public:
  explicit ClockedConsole(Style style) : wip_ConsoleReporter(style, stream) {}
  double now = 100.0;
  std::string Text() const { return text.str(); }

protected:
  double Seconds() const override { return now; }
};
}  // namespace

// Messages with their kind, verbose ones only on request; a task once per tenth.
TEST(ConsoleReporter, PlainStylePrintsMessagesByKindAndATaskOncePerTenthWithRateAndTimeLeft) {
  ClockedConsole console(wip_ConsoleReporter::STYLE_PLAIN);
  console.Error("no nodes", wip_ERROR_NORMAL);
  console.ErrorList({"a", "b"}, wip_ERROR_FATAL);
  console.WarningList({"w"});
  console.Verbose("hidden");
  console.SetVerbose(true);
  console.Verbose("shown");
  console.Milestone("Increment", 3);
  console.Landmark("Step 2");
  // Plain and terminal style's ShowsBar is python/tests/test_progress.py's.
  EXPECT_FALSE(ClockedConsole(wip_ConsoleReporter::STYLE_AUTO).ShowsBar());  // no terminal
  console.Milestone("Meshing", "faces", 0, 1000);
  console.now = 102;
  console.Milestone("Meshing", "faces", 50, 1000);  // same tenth: nothing new
  console.Milestone("Meshing", "faces", 250, 1000);
  console.now = 108;
  console.Milestone("Meshing", "faces", 1000, 1000);
  EXPECT_EQ(console.Text(),
            "Error: no nodes\nFatal error: a\nFatal error: b\nWarning: w\nshown\nIncrement: 3\n"
            "Step 2\nMeshing:   0%  0/1000 faces\n"
            "Meshing:  25%  250/1000 faces  125 faces/s  0:06 left\n"
            "Meshing: 100%  1000/1000 faces  125 faces/s  in 0:08\n");
}

TEST(ConsoleReporter, TerminalStyleRedrawsOneBarKeepsItBelowMessagesAndEndsItForANewTask) {
  ClockedConsole console(wip_ConsoleReporter::STYLE_TERMINAL);
  console.Milestone("Solve", "eq", 0, 4);
  const std::string start = "Solve [------------------------]   0%  0/4 eq";
  console.now = 102;
  console.Milestone("Solve", "eq", 2, 4);
  const std::string half = "Solve [############------------]  50%  2/4 eq  1.00 eq/s  0:02 left";
  console.Warning("slow");
  console.now = 104;
  console.Milestone("Solve", "eq", 4, 4);
  const std::string done = "Solve [########################] 100%  4/4 eq  1.00 eq/s  in 0:04";
  console.Print("after");
  EXPECT_EQ(console.Text(), "\r" + start + "\r" + half + "\r" + std::string(half.size(), ' ') +
                                "\rWarning: slow\n" + half + "\r" + done +
                                std::string(half.size() - done.size(), ' ') + "\nafter\n");
  ClockedConsole next(wip_ConsoleReporter::STYLE_TERMINAL);
  next.Milestone("A", "x", 1, 2);
  next.Milestone("B", "x", 0, 0);
  EXPECT_EQ(next.Text(),
            "\rA [############------------]  50%  1/2 x\n"
            "\rB [########################] 100%  0/0 x  in 0:00\n");
}

TEST(Progress, ReportsAboutAThousandTimesAndEveryUnitOfASmallTask) {
  wip_WIPBase front;
  RecordingReporter reporter;
  front.SetWipReporter(&reporter);
  wip_Progress progress(front, "Mesh", 100000, "faces");
  for (int i = 0; i < 100000; ++i) progress.Advance();
  progress.Set(200000);  // past the end: clamped, already reported
  ASSERT_EQ(reporter.calls.size(), 1001u);
  EXPECT_EQ(reporter.calls.front(), "Milestone(Mesh|faces,0,100000)");
  EXPECT_EQ(reporter.calls[1], "Milestone(Mesh|faces,100,100000)");
  EXPECT_EQ(reporter.calls.back(), "Milestone(Mesh|faces,100000,100000)");
  EXPECT_DOUBLE_EQ(progress.Fraction(), 1.0);
  reporter.calls.clear();
  wip_Progress small(front, "T", 2);
  small.Advance();
  small.Advance(5);
  EXPECT_EQ(reporter.calls,
            (std::vector<std::string>{"Milestone(T|items,0,2)", "Milestone(T|items,1,2)",
                                      "Milestone(T|items,2,2)"}));
}

// A request stops the task at its next check through the thread's reporter, once; a request
// nothing checked is forgotten when the command is done.
TEST(Progress, AnInterruptStopsTheTaskOnceAndCommandDoneForgetsIt) {
  ClockedConsole console(wip_ConsoleReporter::STYLE_PLAIN);
  wip_WIP::Instance().SetWipReporter(&console);
  wip_Progress progress("Loop", 10);
  int finished = 0;
  try {
    for (int i = 0; i < 10; ++i) {
      if (i == 4) {
        console.RequestInterrupt();           // as a user interface thread would
        EXPECT_TRUE(progress.Interrupted());  // asking leaves the request for the check
      }
      progress.CheckInterrupt();
      progress.Advance();
      ++finished;
    }
  } catch (const wip_InterruptException&) {  // its text is python/tests/test_progress.py's
  }
  EXPECT_EQ(finished, 4);
  EXPECT_FALSE(progress.Interrupted());
  console.RequestInterrupt();
  console.CommandDone();
  EXPECT_FALSE(progress.Interrupted());
}

// Every thread installs its reporter before any reports and keeps it until all have reported,
// so a front shared between threads would cross their texts: each thread's text must be what
// the same work writes on a thread alone.
TEST(ConsoleReporter, ReportersOnSeveralThreadsWriteOnlyTheirOwnStreams) {
  constexpr int kThreads = 4;
  const auto work = [](int t, std::barrier<>& everyone) {
    ClockedConsole console(wip_ConsoleReporter::STYLE_PLAIN);
    wip_WIP::Instance().SetWipReporter(&console);
    everyone.arrive_and_wait();
    wip_Progress progress("T" + std::to_string(t), 50);
    for (int i = 0; i < 50; ++i) progress.Advance();
    wip_WIP::Instance().Warning("w" + std::to_string(t));
    everyone.arrive_and_wait();
    return console.Text();
  };
  std::vector<std::string> alone(kThreads), together(kThreads);
  std::barrier<> one(1), all(kThreads);
  for (int t = 0; t < kThreads; ++t) alone[t] = work(t, one);
  OnThreads(kThreads, [&](int t) { together[t] = work(t, all); });
  EXPECT_EQ(together, alone);
  EXPECT_NE(alone[1].find("T1: 100%  50/50 items"), std::string::npos) << alone[1];
}
