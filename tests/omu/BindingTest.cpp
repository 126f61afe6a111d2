#include "OmuTestSupport.h"

#include <omu_Arguments.h>
#include <omu_BindingTypes.h>

#include <sstream>
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
std::string Read(const Celsius& first, const Celsius& second) {
  return std::to_string(first.degrees) + " " + std::to_string(second.degrees) + " ";
}

template <class T>
std::string Show(const T& value) {
  std::ostringstream text;
  text << std::boolalpha << value;
  return text.str();
}

// "by position / by keyword": the value read as T, or the refusal; a refused read must leave
// its target as it was.
template <class T>
std::string ReadAs(const omu_Primitive& value) {
  const T kept = static_cast<T>(7);
  omu_PrimTuple tuple = TupleOf({value.Copy()});
  T out = kept;
  tuple.Get(out);
  EXPECT_EQ(tuple.Cursor(), 1) << Text(value);  // a refused value is passed over all the same
  EXPECT_EQ(tuple.NumGets(), 1) << Text(value);
  std::string result =
      tuple.ErrorArg() ? "expecting " + tuple.TypeExpected().StdString() : Show(out);
  if (tuple.ErrorArg() && out != kept) result += " but wrote " + Show(out);
  StrDict dictionary;
  dictionary.Put(value, "v");
  out = kept;
  result += dictionary.Get(out, "v") == 1 ? " / " + Show(out) : " / refused";
  if (out != kept && result.ends_with("refused")) result += " but wrote " + Show(out);
  return result;
}

template <class T>
std::string NameOf() {
  return omu_Binding<T>::Expected(T()).StdString();
}
}  // namespace

// Each container holds 21.5 and a text, both read back as Celsius: the text is refused. Plain
// tuples are covered by the list and the arguments, both tuples.
TEST(Binding, ATypeBoundOnlyHereGoesThroughEveryContainer) {
  const std::string read = "21.500000 0.000000 ";
  Celsius first, second;
  omu_PrimList list(0, 2, '(');
  list.PutValue(cow_List<Celsius>{Celsius{21.5}});
  list.PutValue(cow_String("hot"));
  list.Begin();
  cow_List<Celsius> firsts;
  list.GetValue(firsts);
  list.GetValue(second);
  EXPECT_EQ(Read(firsts[0], second) + Outcome(list),
            read + "arg2; found string, expecting temperature");

  StrDict byName;
  byName.Put(Celsius{21.5}, "t");
  byName.Put(cow_String("hot"), "u");
  first = second = Celsius{};
  const int foundByName = byName.Get(first, "t") + byName.Get(second, "u");
  EXPECT_EQ(Read(first, second) + std::to_string(foundByName) + " " + Text(byName),
            read + "1 {'t': 21.5, 'u': 'hot'}");

  omu_Arguments args(1);
  args.PutValue(Celsius{21.5});
  args.Put(cow_String("hot"), "outside");
  args.Begin();
  first = second = Celsius{};
  args.GetValue(first, "inside");
  args.GetValue(second, "outside");
  EXPECT_EQ(Read(first, second) + Outcome(args),
            read + "outside; found string, expecting temperature");
}

TEST(Binding, ThePutOverloadsStayExact) {
  omu_PrimTuple tuple(5);
  tuple.Put(1.5f);
  tuple.Put('a');
  tuple.Put(static_cast<short>(1));
  tuple.Put(2u);
  tuple.PutValue(1.5f);
  using N = omu_PrimNumber;
  const N::DataTypeEnm stored[] = {N::DOUBLE, N::INT, N::SHORT, N::UINT, N::FLOAT};
  for (int i = 0; i < 5; ++i)
    EXPECT_EQ(static_cast<const N*>(tuple.Index(i))->DataType(), stored[i]) << i;
}

// A positional read takes only its exact kind (a Boolean any integer kind but UINT, if 0 or 1);
// a keyword read converts from any number kind that fits.
TEST(Binding, ScalarReadsByPositionAndByKeyword) {
  using N = omu_PrimNumber;
  const struct {
    const char* what;
    std::string got;
    const char* outcome;
  } cases[] = {
      {"INT 3 as int", ReadAs<int>(N(3)), "3 / 3"},
      {"FLOAT 3 as int", ReadAs<int>(N(3.0f)), "expecting int / refused"},
      {"SHORT 3 as int", ReadAs<int>(N(3, N::SHORT)), "expecting int / 3"},
      {"UINT 3 as int", ReadAs<int>(N(3u)), "expecting int / 3"},
      {"SCHAR 3 as int", ReadAs<int>(N(3, N::SCHAR)), "expecting int / 3"},
      {"INT 3 as double", ReadAs<double>(N(3)), "3 / 3"},
      {"FLOAT 3 as double", ReadAs<double>(N(3.0f)), "3 / 3"},
      {"UINT 3 as double", ReadAs<double>(N(3u)), "3 / 3"},
      {"INT 3 as short", ReadAs<short>(N(3)), "expecting int / 3"},
      {"INT -1 as unsigned", ReadAs<unsigned>(N(-1)), "expecting int / refused"},
      {"Boolean true as bool", ReadAs<bool>(omu_PrimBoolean(true)), "true / true"},
      {"INT 1 as bool", ReadAs<bool>(N(1)), "true / true"},
      {"SHORT 0 as bool", ReadAs<bool>(N(0, N::SHORT)), "false / false"},
      {"SCHAR 1 as bool", ReadAs<bool>(N(1, N::SCHAR)), "true / true"},
      {"SHORT 65537 as bool", ReadAs<bool>(N(65537, N::SHORT)), "true / refused"},
      {"UINT 1 as bool", ReadAs<bool>(N(1u)), "expecting Boolean / refused"},
      {"INT 2 as bool", ReadAs<bool>(N(2)), "expecting Boolean / refused"},
      {"DOUBLE 1 as bool", ReadAs<bool>(N(1.0)), "expecting Boolean / refused"},
      {"string as bool", ReadAs<bool>(omu_PrimString("yes")), "expecting Boolean / refused"},
  };
  for (const auto& c : cases) EXPECT_EQ(c.got, c.outcome) << c.what;
}

TEST(Binding, EveryListedTypeTakesBackWhatItMakesAndRefusesNoneAndComposedNames) {
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
  EXPECT_GT(walked, 30);  // the list was walked
  // The names built from other bindings' names or shared with them. A number's is "int" or
  // "float" by one test of its kind, which the reads above and ArgumentsTest show.
  const std::pair<std::string, const char*> cases[] = {
      {NameOf<cow_List<bool>>(), "sequence of Boolean"},
      {NameOf<cow_List<atr_String>>(), "sequence of string"},
      {NameOf<cow_2DArray<cow_String>>(), "sequence of sequences of string"},
      {NameOf<cow_Map<cow_String, float>>(), "dictionary with string keys"},
      {NameOf<omu_DictPyObjectWrapper<int>>(), "dictionary with integer keys"},
      {NameOf<omu_ListPyObjectWrapper>(), "list"},
      {NameOf<const omu_InterfaceObj*>(), "CorvexObject"},
  };
  for (const auto& [name, expected] : cases) EXPECT_EQ(name, expected);
}
