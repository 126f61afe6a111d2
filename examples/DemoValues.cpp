// Values crossing the scripting boundary: nested tuples, lists, dictionaries and arrays as
// a script would print them, and a command reading its arguments.
#include "DemoSections.h"

#include <nex_CommandException.h>
#include <omu_PrimArray.h>
#include <omu_PrimBool.h>
#include <omu_PrimDictionary.h>
#include <omu_PrimList.h>
#include <omu_PrimPath.h>
#include <omu_PrimString.h>

#include <iostream>

namespace {
// A command as the application writes one: createPart(name, size, dimensionality=THREE_D).
void CreatePart(omu_PrimTuple& arguments) {
  cow_String name;
  double size = 0;
  bool visible = true;
  arguments.Begin();
  arguments.Get(name);
  arguments.Get(size);
  arguments.Optional();
  arguments.Get(visible);
  arguments.End("createPart");
  std::cout << "  createPart read name=" << name.StdString() << " size=" << size
            << " visible=" << (visible ? "yes" : "no") << "\n";
}

void Call(omu_PrimTuple arguments) {
  std::cout << "  call createPart" << arguments.AsRepr().StdString() << "\n";
  try {
    CreatePart(arguments);
  } catch (const nex_CommandException& error) {
    std::cout << "  -> " << error.PythonType().StdString() << ": "
              << error.JournalMessage().StdString() << "\n";
  }
}
}  // namespace

void DemoValues() {
  std::cout << "\n== Values crossing the scripting boundary ==\n";
  omu_PrimDictionary<cow_String> options;
  options.Put(omu_OnOffConst(true), "meshing");
  options.Put(cow_List<double>{0.1, 1e-05, 2.0}, "tolerances");
  options.Put(cow_String("it's \"quoted\""), "label");
  omu_PrimList parts(cow_List<cow_String>{"Bracket", "Plate"}, '(');
  const int dims[] = {2, 2};
  const double stiffness[] = {1e20, -0.0, 0.5, 100000.0};
  omu_PrimTuple result(4);
  result.Put(parts);
  result.Put(options);
  result.Put(omu_PrimArray(2, dims, stiffness));
  result.Put(omu_PrimPath({"mdb", "models", "Model-1"}));
  std::cout << "  " << result.AsRepr().StdString() << "\n";
  std::unique_ptr<omu_PrimSequence> tail(parts.Slice(-1, 10));
  std::cout << "  parts[-1:] = " << tail->AsRepr().StdString() << "\n";

  omu_PrimTuple good(2);
  good.Put("Bracket");
  good.Put(12.5);
  Call(good);
  omu_PrimTuple wrongType(3);
  wrongType.Put("Bracket");
  wrongType.Put("large");
  wrongType.Put(true);
  Call(wrongType);
  omu_PrimTuple tooMany(4);
  tooMany.Put("Bracket");
  tooMany.Put(1);
  tooMany.Put(true);
  tooMany.Put(2);
  Call(tooMany);
}
