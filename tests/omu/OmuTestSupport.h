#pragma once
// What the value and argument tests share: the library started once, archive round trips,
// the values most tests build, and the text of the failure an action raises.
#include "LibraryEnvironment.h"
#include "RaisedText.h"
#include "TestArchive.h"

#include <omu_PrimBool.h>
#include <omu_PrimBoolean.h>
#include <omu_PrimDictionary.h>
#include <omu_PrimList.h>
#include <omu_PrimNumber.h>
#include <omu_PrimString.h>
#include <omu_PrimTuple.h>

#include <gtest/gtest.h>

#include <functional>
#include <initializer_list>
#include <memory>
#include <string>

using StrDict = omu_PrimDictionary<cow_String>;
using IntDict = omu_PrimDictionary<int>;

// A tuple owning the values, ready to be read from the first.
inline omu_PrimTuple TupleOf(std::initializer_list<omu_Primitive*> values) {
  omu_PrimTuple tuple(static_cast<int>(values.size()));
  for (omu_Primitive* value : values) tuple.Put(value);
  tuple.Begin();
  return tuple;
}

inline omu_PrimList ListOf(std::initializer_list<int> values) {
  return {cow_List<int>(values), '('};
}

inline omu_PrimString* StringOf(const char* text) { return new omu_PrimString(cow_String(text)); }

inline std::string Text(const omu_Primitive& value) { return value.AsString(0).StdString(); }

// The message of the scripting error values.End raises, or "ok".
template <class Values>
std::string Outcome(Values& values) {
  return Raised<nex_CommandException>([&] { values.End(""); });
}
