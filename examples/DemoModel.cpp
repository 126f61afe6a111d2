// The model attribute store across analysis steps, a material table, and a long task that
// reports its progress through the console reporter.
#include "DemoSections.h"

#include <mdl_PropagatingAttribute.h>
#include <mdl_PropagationStatusEnm.h>
#include <mdl_PropertyTable.h>
#include <nex_TextException.h>
#include <wip_ConsoleReporter.h>
#include <wip_InterruptException.h>
#include <wip_Progress.h>
#include <wip_WIP.h>

#include <cmath>
#include <cstdio>
#include <iostream>

namespace {
// The settings of one shell section, each carried from step to step.
struct Section {
  mdl_PropAttr<double> thickness;
  mdl_PropAttr<cow_String> material;
  mdl_PropAttr<cls_xpListInt> integrationPoints;
  mdl_PropagationStatusList statuses;  // one per step

  void Propagate() {
    thickness.Propagate();
    material.Propagate();
    integrationPoints.Propagate();
  }
};

std::string Text(double value) { return std::string(atr_StringBase(value).View()); }
std::string Text(const cow_String& value) { return "'" + std::string(value.View()) + "'"; }
std::string Text(const cls_xpListInt& value) {
  std::string text = "[";
  for (int item : value) text += (text.size() > 1 ? "," : "") + std::to_string(item);
  return text + "]";
}

// An attribute as its state and value.
template <class T>
std::string Cell(const mdl_PropAttr<T>& attribute) {
  return std::string(mdl_PropAttributeState(attribute.State()).GetString()) + " " +
         Text(attribute.ConstGet());
}

void PrintStep(const char* step, const Section& section) {
  const mdl_PropagationStatusEnm status = section.statuses[section.statuses.Length() - 1];
  std::printf("%-8s %-11s %-9s %-18s %-22s %s\n", step,
              omu_PrimEnum<mdl_PropagationStatusEnm, 1>(status).GetString(),
              mdl_activePropagationStatus(status) ? "active" : "inactive",
              Cell(section.thickness).c_str(), Cell(section.material).c_str(),
              Cell(section.integrationPoints).c_str());
}

void DemoSteps() {
  std::cout << "\n== A shell section across analysis steps\n";
  std::printf("%-8s %-11s %-9s %-18s %-22s %s\n", "step", "status", "", "thickness", "material",
              "integration points");
  Section section;
  section.thickness = 2.0;
  section.material = cow_String("Steel");
  section.statuses.Append(CREATED);
  PrintStep("Initial", section);

  section.Propagate();
  section.statuses.Append(PROPAGATED);
  PrintStep("Step-1", section);

  section.Propagate();
  section.thickness.Get() *= 1.25;  // changed in this step
  section.integrationPoints = cls_xpListInt{1, 3, 5};
  section.statuses.Append(MODIFIED);
  PrintStep("Step-2", section);

  section.Propagate();
  section.material = FREED;  // the material is taken away in this step
  section.integrationPoints.SetStatus("integrationPoints",
                                      mdl_PropAttributeState(cow_String("SET")), false);
  section.integrationPoints.Get().Append(7);  // SET leaves the zero value: give the new one
  section.statuses.Append(MODIFIED);
  PrintStep("Step-3", section);

  section.Propagate();
  section.statuses.Append(DEACTIVATED);
  PrintStep("Step-4", section);

  try {
    section.thickness.SetStatus("thickness", mdl_PropAttributeState(FREED), true);
  } catch (const nex_TextException& e) {
    std::cout << "A script asking to free the thickness where that is not allowed: "
              << e.Text().View() << "\n";
  }
}

void PrintTable(const mdl_PropertyTable& table) {
  for (int row = 0; row < table.Rows(); ++row) {
    std::printf("   ");
    for (int column = 0; column < table.Columns(); ++column)
      std::printf(" %10g", table(row, column));
    std::printf("\n");
  }
}

void DemoMaterialTable() {
  std::cout << "\n== Elastic data by temperature and field (Young's modulus, Poisson's ratio, "
               "temperature, field)\n";
  mdl_PropertyTable elastic(5, 4);
  const double rows[5][4] = {{200e9, 0.30, 20, 1},
                             {180e9, 0.31, 400, 0},
                             {195e9, 0.30, 100, 1},
                             {190e9, 0.30, 200, 0},
                             {205e9, 0.29, 20, 0}};
  for (int row = 0; row < 5; ++row) {
    for (int column = 0; column < 4; ++column) elastic.Set(row, column, rows[row][column]);
  }
  elastic.Sort(2);  // by field, then temperature
  std::cout << "sorted by the last two columns (field most significant):\n";
  PrintTable(elastic);
  elastic.AssertValid();
  std::cout << "valid\n";

  mdl_PropertyTable plastic(3, 2);
  plastic.Set(0, 0, 250e6);
  plastic.Set(2, 0, 300e6);
  plastic.Set(2, 1, 0.05);  // row 1 was left blank
  try {
    plastic.AssertValid();
  } catch (const nex_TextException& e) {
    std::cout << "a plastic table with a blank row is refused:\n" << e.Text().View() << "\n";
  }
}

double Work(int item) {
  double sum = 0;
  for (int i = 1; i < 2000; ++i) sum += std::sqrt(static_cast<double>(item) * i);
  return sum;
}

void DemoProgress() {
  std::cout << "\n== A long task reporting through the console reporter (on the error stream)\n"
            << std::flush;
  wip_ConsoleReporter console;
  wip_WIP::Instance().SetWipReporter(&console);
  double total = 0;
  wip_Progress meshing("Meshing", 100000, "elements");
  for (int element = 0; element < 100000; ++element) {
    total += Work(element);
    meshing.Advance();
  }
  wip_WIP::Instance().Milestone("Mesh done");

  wip_Progress solving("Solving", 100000, "equations");
  try {
    for (int equation = 0; equation < 100000; ++equation) {
      if (equation == 60000) console.RequestInterrupt();  // as a user's Ctrl-C handler would
      solving.CheckInterrupt();
      total += Work(equation);
      solving.Advance();
    }
  } catch (const wip_InterruptException& e) {
    wip_WIP::Instance().Warning(e.Text() + " Stopped after " + atr_StringBase(solving.Done()) +
                                " equations.");
  }
  wip_WIP::Instance().CommandDone();
  std::cout << "checksum " << (total > 0 ? "ok" : "?") << "\n";
}
}  // namespace

void DemoModel() {
  DemoSteps();
  DemoMaterialTable();
  DemoProgress();
}
