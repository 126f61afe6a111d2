#include "RecordingReporter.h"

#include <nex_AssertException.h>
#include <omu_PrimTuple.h>
#include <wip_WIP.h>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <set>

// Without a reporter each operation asserts, from a line of its own; with one, it reaches the
// matching overload unchanged.
TEST(WipFront, ForwardsEachOperationUnchangedAndAssertsWithoutAReporter) {
  const struct {
    std::function<void(wip_WIPBase&)> call;
    const char* recorded;
  } forwardings[] = {
      {[](auto& f) { f.Error("bad mesh", wip_ERROR_SEVERE); }, "Error(bad mesh|1)"},
      {[](auto& f) {
         f.ErrorList({"a", "b"}, wip_errorLevelEnm(42));
       },
       "ErrorList(a;b|42)"},
      {[](auto& f) { f.Verbose("detail"); }, "Verbose(detail)"},
      {[](auto& f) { f.Warning("thin"); }, "Warning(thin)"},
      {[](auto& f) { f.WarningList({"x"}); }, "WarningList(x)"},
      {[](auto& f) { f.Milestone("step 2"); }, "Milestone(step 2)"},
      {[](auto& f) { f.Landmark("mark"); }, "Landmark(mark)"},
      {[](auto& f) { f.Print("p"); }, "Print(p)"},
      {[](auto& f) { f.Display("d"); }, "Display(d)"},
      {[](auto& f) { f.Milestone("mesh", "faces", 3, 9); }, "Milestone(mesh|faces,3,9)"},
      {[](auto& f) { f.Milestone("inc", -5); }, "Milestone(inc|-5)"},
      {[](auto& f) { EXPECT_EQ(f.Interrupted(), 7); }, "Interrupted()"},
      {[](auto& f) { f.CommandDone(); }, "CommandDone()"},
      {[](auto& f) {
         omu_PrimTuple none(1);
         f.FacilityMessage("thin shell", 3, 1, 2, none);
       },
       "Warning(thin shell)"},
      {[](auto& f) { f.InterruptedThrow(); }, "InterruptedThrow()"},
  };
  std::set<int> lines;
  for (const auto& forwarding : forwardings) {
    wip_WIPBase front;
    try {
      forwarding.call(front);
      ADD_FAILURE() << forwarding.recorded << " did not raise";
    } catch (const nex_AssertException& e) {
      EXPECT_EQ(e.Condition(), "WipReporter != 0") << forwarding.recorded;
      EXPECT_STREQ(e.SourcePath(), "wip/impl/wip_WIP") << forwarding.recorded;
      lines.insert(e.SourceLine());
    }
    RecordingReporter reporter;
    reporter.interrupted = 7;  // and its answer comes back
    front.SetWipReporter(&reporter);
    forwarding.call(front);
    EXPECT_EQ(reporter.calls, std::vector<std::string>{forwarding.recorded}) << forwarding.recorded;
  }
  EXPECT_EQ(lines.size(), std::size(forwardings));
}

TEST(WipFront, DestroyingTheInstalledReporterClearsTheThreadsFront) {
  wip_WIP& front = wip_WIP::Instance();
  RecordingReporter kept;
  {
    RecordingReporter other;
    front.SetWipReporter(&kept);
  }  // a reporter that is not installed leaves the front alone
  EXPECT_EQ(front.GetWipReporter(), &kept);
  {
    auto installed = std::make_unique<RecordingReporter>();
    front.SetWipReporter(installed.get());
  }
  EXPECT_EQ(front.GetWipReporter(), nullptr);
  EXPECT_THROW(front.Warning("after"), nex_AssertException);
}

TEST(WipFront, FacilityMessagesAreRoutedByKind) {
  const std::vector<std::pair<int, const char*>> routes = {
      {-1, nullptr},      {0, "Warning(m)"},   {1, "Warning(m)"}, {2, "Warning(m)"},
      {3, "Warning(m)"},  {4, "Milestone(m)"}, {5, nullptr},      {6, nullptr},
      {7, "Landmark(m)"}, {8, "Verbose(m)"},   {9, nullptr},      {1000, nullptr}};
  for (const auto& [kind, expected] : routes) {
    RecordingReporter reporter;
    reporter.Route("m", kind);
    const std::vector<std::string> none;
    EXPECT_EQ(reporter.calls, expected ? std::vector<std::string>{expected} : none) << kind;
  }
}
