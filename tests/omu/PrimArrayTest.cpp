#include "CapturedErrors.h"
#include "OmuTestSupport.h"

#include <omu_PrimArray.h>

namespace {
std::string FailureOf(const std::function<void()>& action) {
  return Raised<nex_TextException>(action, "omu/impl/omu_PrimArray");
}

omu_PrimTuple Nest(std::initializer_list<omu_PrimTuple> rows) {
  omu_PrimTuple outer(static_cast<int>(rows.size()));
  for (const omu_PrimTuple& row : rows) outer.Put(row);
  return outer;
}

const double kMatrix[] = {1, 2, 3, 4};
const int kTwoByTwo[] = {2, 2};
}  // namespace

TEST(PrimArray, IndexingSharesTheNumbersAndFailuresHaveTheirTexts) {
  omu_PrimArray matrix(2, kTwoByTwo, kMatrix);
  EXPECT_EQ(matrix.Length(), 2);
  EXPECT_EQ(matrix.ConstGetArraySize(), 32);
  EXPECT_EQ(matrix.ConstGetNumElements(), 4);
  std::unique_ptr<const omu_Primitive> row(matrix.Index(1));
  EXPECT_EQ(row->AsString(0), "array([3.0, 4.0], 'd')");
  matrix.SetItem(omu_PrimNumber(9.5), 1, 0);
  EXPECT_EQ(row->AsString(0), "array([9.5, 4.0], 'd')");
  std::unique_ptr<const omu_Primitive> number(static_cast<const omu_PrimArray&>(*row).Index(1));
  EXPECT_EQ(number->AsString(0), "4.0");
  EXPECT_EQ(matrix.ConstGetDouble(0, 1), 2.0);
  EXPECT_EQ(matrix.ConstGetInt(1, 0), 9);
  const int empty[] = {0}, negative[] = {-1}, huge[] = {65536, 65536};
  const omu_PrimArray noDims(0, empty, kMatrix);
  EXPECT_EQ(noDims.Length(), 0);
  EXPECT_EQ(FailureOf([&] { delete noDims.Index(0); }), "PrimArray index out of bounds");
  EXPECT_EQ(FailureOf([&] { delete matrix.Index(-1); }), "PrimArray index out of bounds");
  EXPECT_EQ(FailureOf([&] { delete matrix.Index(2); }), "PrimArray index out of bounds");
  EXPECT_EQ(FailureOf([&] { matrix.ConstGetItem(1); }),
            "less indices given than size of array (1<2)");
  EXPECT_EQ(FailureOf([&] { matrix.ConstGetItem(1, 1, 0); }),
            "more indices given than size of array (3>2)");
  EXPECT_EQ(FailureOf([&] { matrix.ConstGetItem(0, 2); }),
            "index out of range, dimension 1 (2 >= 2)");
  const CapturedErrors errors;
  EXPECT_EQ(FailureOf([&] { omu_PrimArray(1, negative, kMatrix); }), "omu_PrimArray ctor failed");
  EXPECT_EQ(FailureOf([&] { omu_PrimArray(1, kTwoByTwo, omu_PrimNumber::SHORT, nullptr); }),
            "omu_PrimArray ctor failed");
  EXPECT_EQ(FailureOf([&] { omu_PrimArray(2, huge, kMatrix); }), "omu_PrimArray ctor failed");
  EXPECT_EQ(
      errors.Text(),
      "PrimArray negative dimensions are not allowed\nPrimArray only INT, FLOAT, DOUBLE allowed\n"
      "PrimArray can't allocate memory for array (data)\n");
}

TEST(PrimArray, FromNestedSequencesWithTypeFittingAndRaggedOrForeignOnesRefused) {
  const auto ints = Nest({TupleOf({new omu_PrimNumber(1), new omu_PrimNumber(2)}),
                          TupleOf({new omu_PrimNumber(3), new omu_PrimNumber(4)})});
  const omu_PrimArray intArray(ints);
  EXPECT_EQ(intArray.DataType(), omu_PrimNumber::INT);
  EXPECT_EQ(intArray.AsString(0), "array([[1, 2], [3, 4]], 'l')");
  const omu_PrimArray mixed(TupleOf({new omu_PrimNumber(1), new omu_PrimNumber(2.5)}));
  EXPECT_EQ(mixed.AsString(0), "array([1.0, 2.5], 'd')");
  const omu_PrimArray floats(TupleOf({new omu_PrimNumber(1.5f)}));
  EXPECT_EQ(floats.DataType(), omu_PrimNumber::FLOAT);
  const omu_PrimArray big(TupleOf({new omu_PrimNumber(4000000000u)}));
  EXPECT_EQ(big.DataType(), omu_PrimNumber::DOUBLE);
  const omu_PrimArray fromArray(omu_PrimList(cow_List<int>{5, 6}, '('));
  EXPECT_TRUE(omu_PrimArray(static_cast<const omu_PrimSequence&>(fromArray)) == fromArray);
  struct Case {
    omu_PrimTuple input;
    const char* reason;
  } cases[] = {
      {Nest({TupleOf({new omu_PrimNumber(1), new omu_PrimNumber(2)}),
             TupleOf({new omu_PrimNumber(3)})}),
       "different dims in child. dimThis=1, j=0\n"},
      {Nest({TupleOf({new omu_PrimNumber(1)}), TupleOf({TupleOf({new omu_PrimNumber(3)}).Copy()})}),
       "different num dims in child. nd=1, ndTemp=2, i=1\n"},
      {TupleOf({StringOf("x")}), "Child not PrimSequence or PrimNumber\n"},
  };
  for (const Case& c : cases) {
    const CapturedErrors errors;
    EXPECT_EQ(FailureOf([&] { omu_PrimArray{c.input}; }),
              "omu_PrimArray from sequence failed - dimensions. ");
    EXPECT_EQ(errors.Text(), c.reason);
  }
}

TEST(PrimArray, SliceRepeatConcatAndEquality) {
  const omu_PrimArray matrix(2, kTwoByTwo, kMatrix);
  std::unique_ptr<omu_PrimSequence> last(matrix.Slice(-1, 10));
  EXPECT_EQ(last->AsString(0), "array([[3.0, 4.0]], 'd')");
  std::unique_ptr<omu_PrimSequence> twice(matrix.Repeat(2));
  EXPECT_EQ(static_cast<omu_PrimArray&>(*twice).Length(), 4);
  std::unique_ptr<omu_PrimSequence> joined(matrix.Concat(last.get()));
  EXPECT_EQ(joined->AsString(0), "array([[1.0, 2.0], [3.0, 4.0], [3.0, 4.0]], 'd')");
  const double other[] = {1, 2, 3, 5};
  EXPECT_FALSE(matrix == omu_PrimArray(2, kTwoByTwo, other));
  const int flat[] = {4};
  EXPECT_FALSE(matrix == omu_PrimArray(1, flat, kMatrix));
  const float floats[] = {1, 2, 3, 4};
  EXPECT_FALSE(matrix == omu_PrimArray(2, kTwoByTwo, floats));
  EXPECT_TRUE(matrix == omu_PrimArray(matrix));
  const int one[] = {1};
  omu_PrimArray single(1, one, kMatrix);
  EXPECT_EQ(FailureOf([&] { delete matrix.Concat(&single); }),
            "PrimArray Concat needs an array of the same type and shape");
}
