#include "py_ErrorSamples.h"

#include "py_Command.h"

#include <g3d_ColorErrorException.h>
#include <omu_AccessErrorException.h>
#include <omu_ArgNumberErrorException.h>
#include <omu_ArgTypeErrorException.h>
#include <omu_Arguments.h>
#include <omu_AttributeErrorException.h>
#include <omu_CorNameErrorException.h>
#include <omu_FontErrorException.h>
#include <omu_GenericTypeErrorException.h>
#include <omu_GuiAccessErrorException.h>
#include <omu_IndexErrorException.h>
#include <omu_KeyErrorException.h>
#include <omu_KeywordErrorException.h>
#include <omu_KeywordTypeErrorException.h>
#include <omu_NameErrorException.h>
#include <omu_OverflowErrorException.h>
#include <omu_RangeErrorException.h>
#include <omu_ValueErrorException.h>
#include <omu_ZeroDivisionErrorException.h>

#include <string_view>
#include <tuple>

namespace {
constexpr const char* kSource = "python/src/py_ErrorSamples";

// Binds Fields by position after the error's name, then raises E built from them.
template <class E, class... Fields>
void Raise(omu_Arguments& args) {
  std::tuple<Fields...> fields;
  std::apply([&](Fields&... field) { (args.Get(field), ...); }, fields);
  args.End("raiseError");
  NEX_THROW(std::make_from_tuple<E>(fields), kSource);
}

struct Sample {
  std::string_view name;
  void (*raise)(omu_Arguments&);
};

using Text = atr_String;
// The nesting text is a field like the others: give "" for a top-level argument.
constexpr Sample kSamples[] = {
    {"AccessError", &Raise<omu_AccessErrorException, Text>},
    {"AttributeError", &Raise<omu_AttributeErrorException, int, Text>},
    {"CorvexNameError", &Raise<omu_CorNameErrorException, int>},
    {"FontError", &Raise<omu_FontErrorException, Text>},
    {"GuiAccessError", &Raise<omu_GuiAccessErrorException, Text>},
    {"IndexError", &Raise<omu_IndexErrorException, int>},
    {"KeyError", &Raise<omu_KeyErrorException, Text>},
    {"NameError", &Raise<omu_NameErrorException, Text>},
    {"OverflowError", &Raise<omu_OverflowErrorException, Text>},
    {"RangeError", &Raise<omu_RangeErrorException, Text, int, Text, int, Text, int>},
    {"ValueError", &Raise<omu_ValueErrorException, Text>},
    {"ZeroDivisionError", &Raise<omu_ZeroDivisionErrorException, Text>},
    {"ArgNumberError", &Raise<omu_ArgNumberErrorException, int, int, Text>},
    {"ArgTypeError", &Raise<omu_ArgTypeErrorException, int, Text, Text, Text>},
    {"GenericTypeError", &Raise<omu_GenericTypeErrorException>},
    {"KeywordError", &Raise<omu_KeywordErrorException, Text, Text>},
    {"KeywordTypeError", &Raise<omu_KeywordTypeErrorException, Text, Text, Text, Text>},
    {"ColorError", &Raise<g3d_ColorErrorException, cow_String>},
};

omu_Primitive* RaiseError(omu_Arguments& args) {
  cow_String name;
  args.Begin();
  args.Get(name);
  for (const Sample& sample : kSamples) {
    if (sample.name == name.View()) sample.raise(args);
  }
  args.End("raiseError");
  NEX_THROW(omu_KeyErrorException(name), kSource);
}
}  // namespace

void py_ErrorSamples::Register(pybind11::module_& module) {
  py_Command::Add(module, "raiseError", &RaiseError,
                  "raiseError(errorName, *fields): raises the library's error of that script name");
}
