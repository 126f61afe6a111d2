// A script call end to end: arguments arrive as a tuple plus keywords, the command binds
// them, checks a name and a range and returns a result; then the same command called wrongly
// in each way, with the scripting error each call gets.
#include "DemoPart.h"
#include "DemoSections.h"

#include <omu_AttributeErrorException.h>
#include <omu_PrimString.h>

#include <iostream>
#include <memory>

namespace {
// Arguments as a script call spells them: positional values, then keywords.
struct Call {
  omu_Arguments args;
  explicit Call(int positional) : args(positional) {}
  template <class T>
  Call& Put(const T& value) {
    args.Put(value);
    return *this;
  }
  template <class T>
  Call& Put(const char* keyword, const T& value) {
    args.Put(value, keyword);
    return *this;
  }
};

void Report(const nex_CommandException& error) {
  std::cout << "    " << error.PythonType().View() << ": " << error.JournalMessage().View() << '\n';
}

void Invoke(DemoPart& part, const char* method, Call call) {
  std::cout << "  >>> part." << method << call.args.AsString(0).View() << '\n';
  try {
    bool deprecated = false;
    const std::unique_ptr<omu_Primitive> result(
        part.CallMethod(part.PathString().CStr(), method, call.args, deprecated));
    if (!result) {
      Report(omu_AttributeErrorException(
          2, atr_StringBase::Format("'Part' object has no attribute '%s'", method)));
      return;
    }
    std::cout << "    " << result->AsRepr().View() << '\n';
  } catch (const nex_CommandException& error) {
    Report(error);
  }
}

void Access(DemoPart& part, const char* member) {
  bool deprecated = false;
  const std::unique_ptr<omu_Primitive> value(part.GetMember(member, deprecated));
  std::cout << "  >>> part." << member << "\n    " << value->AsRepr().View() << '\n';
}

void Assign(DemoPart& part, const char* member, Call value) {
  std::cout << "  >>> part." << member << " = " << value.args.Index(0)->AsRepr().View() << '\n';
  try {
    bool deprecated = false;
    const std::unique_ptr<omu_Primitive> result(part.SetMember(member, value.args, deprecated));
    if (!result) Report(omu_AttributeErrorException(1, member));
  } catch (const nex_CommandException& error) {
    Report(error);
  }
}
}  // namespace

void DemoScriptCall() {
  std::cout << "\n== A script call, bound and checked\n";
  DemoPart part(std::make_shared<DemoPartRecord>(DemoPartRecord{"Part-1"}));
  std::cout << "  >>> part\n    " << part.DefaultRepr().View() << '\n';
  Access(part, "name");
  Access(part, "type");
  Invoke(part, "setValues", Call(1).Put(cow_String("Bracket")).Put("size", 2.5));
  Invoke(part, "setValues", Call(2).Put(cow_String("Bracket")).Put(4.0).Put("count", 3));
  std::cout << "    " << part.AsString(0).View() << '\n';

  std::cout << "\n== The same command called wrongly\n";
  Invoke(part, "setValues", Call(1).Put(7));
  Invoke(part, "setValues", Call(1).Put(cow_String("Bracket")));
  Invoke(part, "setValues", Call(4).Put(cow_String("B")).Put(1.0).Put(2).Put(3));
  Invoke(part, "setValues", Call(2).Put(cow_String("B")).Put(1.0).Put("colour", cow_String("red")));
  Invoke(part, "setValues", Call(1).Put(cow_String("B")).Put("size", cow_String("big")));
  Invoke(part, "setValues", Call(2).Put(cow_String("1st part")).Put(1.0));
  Invoke(part, "setValues", Call(2).Put(cow_String("B")).Put(-1.0));
  Invoke(part, "setValues", Call(2).Put(cow_String("B")).Put(1.0).Put("count", 500));
  Invoke(part, "regenerate", Call(0));
  Assign(part, "type", Call(1).Put(cow_String("Assembly")));
  Assign(part, "size", Call(1).Put(0.0));
}
