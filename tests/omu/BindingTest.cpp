#include "LibraryEnvironment.h"

#include <nex_CommandException.h>
#include <omu_Arguments.h>
#include <omu_BindingTypes.h>
#include <omu_PrimList.h>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <typeinfo>

namespace {
// A type the library does not know: a temperature, carried as a floating number only.
struct Celsius {
  double degrees = 0;
};
}  // namespace

template <>
struct omu_Binding<Celsius> {
  static constexpr char code = 'f';
  static omu_PrimOwner Make(const Celsius& value) { return omu_PrimMake(value.degrees); }
  static bool Convert(const omu_Primitive& value, Celsius& out, omu_BindingRuleEnum rule) {
    return value.IsType('f') && omu_Binding<double>::Convert(value, out.degrees, rule);
  }
  static cow_String Expected(const Celsius&) { return "temperature"; }
};

namespace {
std::string Outcome(omu_PrimTuple& values) {
  try {
    values.End("");
  } catch (const nex_CommandException& e) {
    return e.JournalMessage().StdString();
  }
  return "ok";
}

std::string Read(const Celsius& first, const Celsius& second) {
  return std::to_string(first.degrees) + " " + std::to_string(second.degrees);
}

template <class T>
std::string NameOf() {
  return omu_Binding<T>::Expected(T()).StdString();
}
}  // namespace

TEST(Binding, ATypeBoundOnlyHereGoesThroughEveryContainer) {
  struct Case {
    const char* container;
    std::function<std::string()> storeAndRead;  // 21.5 and a text, read back as Celsius
    const char* outcome;
  } cases[] = {
      {"tuple",
       [] {
         omu_PrimTuple values(2);
         values.PutValue(Celsius{21.5});
         values.Put(cow_String("hot"));
         values.Begin();
         Celsius first, second;
         values.GetValue(first);
         values.GetValue(second);
         return Read(first, second) + " " + Outcome(values);
       },
       "21.500000 0.000000 arg2; found string, expecting temperature"},
      {"list",
       [] {
         omu_PrimList values(0, 2, '(');
         values.PutValue(cow_List<Celsius>{Celsius{21.5}});
         values.PutValue(cow_String("hot"));
         values.Begin();
         cow_List<Celsius> first;
         Celsius second;
         values.GetValue(first);
         values.GetValue(second);
         return Read(first[0], second) + " " + Outcome(values);
       },
       "21.500000 0.000000 arg2; found string, expecting temperature"},
      {"dictionary with string keys",
       [] {
         omu_PrimDictionary<cow_String> values;
         values.Put(Celsius{21.5}, "t");
         values.Put(cow_String("hot"), "u");
         Celsius first, second;
         const int found = values.Get(first, "t") + values.Get(second, "u");
         return Read(first, second) + " " + std::to_string(found) + " " + values.AsString(0).StdString();
       },
       "21.500000 0.000000 1 {'t': 21.5, 'u': 'hot'}"},
      {"dictionary with integer keys",
       [] {
         omu_PrimDictionary<int> values;
         values.Put(Celsius{21.5}, 1);
         values.Put(cow_String("hot"), 2);
         Celsius first, second;
         const int found = values.Get(first, 1) + values.Get(second, 2);
         return Read(first, second) + " " + std::to_string(found);
       },
       "21.500000 0.000000 1"},
      {"argument list",
       [] {
         omu_Arguments values(1);
         values.PutValue(Celsius{21.5});
         values.Put(cow_String("hot"), "outside");
         values.Begin();
         Celsius first, second;
         values.GetValue(first, "inside");
         values.GetValue(second, "outside");
         return Read(first, second) + " " + Outcome(values);
       },
       "21.500000 0.000000 outside; found string, expecting temperature"},
  };
  for (const Case& c : cases) EXPECT_EQ(c.storeAndRead(), c.outcome) << c.container;
}

TEST(Binding, ThePutOverloadsStayExact) {
  struct Case {
    const char* call;
    std::function<void(omu_PrimTuple&)> put;
    omu_PrimNumber::DataTypeEnm stored;
  } cases[] = {
      {"Put(1.5f)", [](omu_PrimTuple& t) { t.Put(1.5f); }, omu_PrimNumber::DOUBLE},
      {"Put('a')", [](omu_PrimTuple& t) { t.Put('a'); }, omu_PrimNumber::INT},
      {"Put(short)", [](omu_PrimTuple& t) { t.Put(static_cast<short>(1)); }, omu_PrimNumber::SHORT},
      {"Put(2u)", [](omu_PrimTuple& t) { t.Put(2u); }, omu_PrimNumber::UINT},
      {"PutValue(1.5f)", [](omu_PrimTuple& t) { t.PutValue(1.5f); }, omu_PrimNumber::FLOAT},
  };
  for (const Case& c : cases) {
    omu_PrimTuple tuple(1);
    c.put(tuple);
    EXPECT_EQ(static_cast<const omu_PrimNumber*>(tuple.Index(0))->DataType(), c.stored) << c.call;
  }
}

TEST(Binding, IntegerKindsArePositionalExactAndKeywordAny) {
  struct Case {
    const char* value;
    omu_PrimNumber number;
    std::function<bool(omu_PrimTuple&)> byPosition;
    std::function<bool(const omu_PrimDictionary<cow_String>&)> byKeyword;
    bool positionTakes;
    bool keywordTakes;
  };
  auto positional = [](auto out) {
    return [out](omu_PrimTuple& tuple) mutable {
      tuple.Get(out);
      return tuple.ErrorArg() == 0;
    };
  };
  auto keyword = [](auto out) {
    return [out](const omu_PrimDictionary<cow_String>& dictionary) mutable {
      return dictionary.Get(out, "v") == 1;
    };
  };
  const Case cases[] = {
      {"SHORT 3 as int", omu_PrimNumber(3, omu_PrimNumber::SHORT), positional(0), keyword(0), false, true},
      {"UINT 3 as int", omu_PrimNumber(3u), positional(0), keyword(0), false, true},
      {"INT 3 as short", omu_PrimNumber(3), positional(short{}), keyword(short{}), false, true},
      {"INT -1 as unsigned", omu_PrimNumber(-1), positional(0u), keyword(0u), false, false},
      {"SCHAR 1 as bool", omu_PrimNumber(1, omu_PrimNumber::SCHAR), positional(false), keyword(false), true, true},
      {"SHORT 65537 as bool", omu_PrimNumber(65537, omu_PrimNumber::SHORT), positional(false),
       keyword(false), true, false},
      {"UINT 1 as bool", omu_PrimNumber(1u), positional(false), keyword(false), false, false},
  };
  for (const Case& c : cases) {
    omu_PrimTuple tuple(1);
    tuple.Put(c.number.Copy());
    tuple.Begin();
    omu_PrimDictionary<cow_String> dictionary;
    dictionary.Put(c.number, "v");
    EXPECT_EQ(c.byPosition(tuple), c.positionTakes) << c.value;
    EXPECT_EQ(c.byKeyword(dictionary), c.keywordTakes) << c.value;
  }
}

TEST(Binding, EveryListedTypeTakesBackWhatItMakesAndRefusesNone) {
  const omu_PrimNone none;
  int walked = 0;
  omu_BindingTypes::ForEach([&](auto type) {
    using T = typename decltype(type)::type;
    ++walked;
    if constexpr (omu_Gettable<T> && std::is_default_constructible_v<T>) {
      T out{};
      const bool isNone = std::is_same_v<T, omu_PrimNone>;
      EXPECT_EQ(omu_Binding<T>::Convert(none, out, omu_BINDING_CONVERTING), isNone)
          << typeid(T).name();
    }
    if constexpr (omu_Puttable<T> && omu_Gettable<T> && std::is_default_constructible_v<T> &&
                  !std::is_pointer_v<T>) {
      const omu_PrimOwner made = omu_PrimMake(T{});
      EXPECT_EQ(made->TypeCode(), omu_Binding<T>::code) << typeid(T).name();
      T back{};
      EXPECT_TRUE(omu_Binding<T>::Convert(*made, back, omu_BINDING_EXACT)) << typeid(T).name();
    }
  });
  EXPECT_EQ(walked, 38);  // every listed type
}

// The names built from other bindings' names or shared with them.
TEST(Binding, ComposedExpectedNames) {
  const std::pair<std::string, const char*> cases[] = {
      {NameOf<unsigned int>(), "int"},
      {NameOf<float>(), "float"},
      {NameOf<cow_List<bool>>(), "sequence of Boolean"},
      {NameOf<cow_List<atr_String>>(), "sequence of string"},
      {NameOf<cow_2DArray<double>>(), "sequence of sequences of float"},
      {NameOf<cow_2DArray<cow_String>>(), "sequence of sequences of string"},
      {NameOf<cow_Map<cow_String, float>>(), "dictionary with string keys"},
      {NameOf<omu_DictPyObjectWrapper<int>>(), "dictionary with integer keys"},
      {NameOf<omu_ListPyObjectWrapper>(), "list"},
      {NameOf<const omu_InterfaceObj*>(), "CorvexObject"},
  };
  for (const auto& [name, expected] : cases) EXPECT_EQ(name, expected);
}
