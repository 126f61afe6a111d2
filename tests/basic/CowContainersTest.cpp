#include "OnThreads.h"
#include "RaisedText.h"

#include <cow_2DArray.h>
#include <cow_Btree.h>
#include <cow_COW.h>
#include <cow_List.h>
#include <cow_Map.h>
#include <cow_String.h>
#include <cow_TextMap.h>

#include <gtest/gtest.h>

#include <limits>
#include <map>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

TEST(CowList, CopiesShareUntilTheFirstWriteEvenOnThreadsAndEditsLookUpAndClear) {
  const cow_List<int> original(std::vector<int>(1'000'000, 7));
  cow_List<int> copy(original);
  EXPECT_TRUE(copy.SharesWith(original));
  EXPECT_EQ(&copy[0], &original[0]);  // reading never copies

  copy.Get(10) = 8;
  EXPECT_FALSE(copy.SharesWith(original));
  EXPECT_EQ(original[10], 7);
  EXPECT_EQ(copy[10], 8);

  cow_List<cow_String> list{"b", "c"};
  list.Insert(0, "a");
  list.Append("d");
  list.Remove(2);
  EXPECT_EQ(list, (cow_List<cow_String>{"a", "b", "d"}));
  EXPECT_EQ(list.Find("d"), 2);
  EXPECT_EQ(list.Find("c"), -1);
  list.Clear();
  EXPECT_TRUE(list.IsEmpty());

  // Concurrent copies of one list, each written, leave it as it was.
  const cow_List<int> shared(std::vector<int>(1000, 1));
  OnThreads(4, [&shared](int t) {
    for (int i = 0; i < 2000; ++i) {
      cow_List<int> mine(shared);
      mine.Get(i % 1000) = t;
      ASSERT_EQ(mine[i % 1000], t);
    }
  });
  EXPECT_EQ(shared, cow_List<int>(std::vector<int>(1000, 1)));
}

TEST(CowMap, KeepsKeysInByteOrderAndUnsharesOnWrite) {
  cow_Btree<cow_String, int> map;
  map.Insert("ON", 1);
  map.Insert("OFF", 0);
  map.Insert("On", 2);
  EXPECT_EQ(map.Keys(), (cow_List<cow_String>{"OFF", "ON", "On"}));

  cow_Btree<cow_String, int> copy(map);
  copy.Insert("ON", 5);
  EXPECT_EQ(*map.Find("ON"), 1);
  EXPECT_EQ(*copy.Find("ON"), 5);
  EXPECT_EQ(map.Find("missing"), nullptr);
  EXPECT_TRUE(copy.Remove("OFF"));
  EXPECT_FALSE(copy.Remove("OFF"));
  EXPECT_EQ(map.Length(), 3);
}

// The hash index must find exactly what the order holds through growth, removals that close up
// probe runs, re-insertion and the re-indexing copy made by an un-sharing write.
TEST(CowTextMap, FindsWhatAnOrderedMapHolds) {
  const struct {
    const char* name;
    const char* prefix;
    int keys;
    int removeEvery;  // removes keys i with i % removeEvery == 0, then puts back every third
  } cases[] = {{"one key", "", 1, 1},          {"until the first growth", "", 6, 2},
               {"across growths", "", 100, 3}, {"every key out and partly back", "k", 500, 1},
               {"every seventh", "", 2000, 7}, {"one long prefix", "argument", 1000, 2}};
  for (const auto& c : cases) {
    const auto key = [&c](int i) { return c.prefix + std::to_string(i); };
    cow_TextMap<int> map;
    std::map<std::string, int> expected;
    const auto put = [&](int i) {
      map.Insert(cow_String(key(i)), i);
      expected[key(i)] = i;
    };
    for (int i = 0; i < c.keys; ++i) put(i);
    const cow_TextMap<int> before(map);
    for (int i = 0; i < c.keys; i += c.removeEvery) {
      EXPECT_TRUE(map.Remove(cow_String(key(i)))) << c.name << ' ' << i;
      expected.erase(key(i));
    }
    for (int i = 0; i < c.keys; i += 3 * c.removeEvery) put(i);
    ASSERT_EQ(map.Length(), static_cast<int>(expected.size())) << c.name;
    for (int i = 0; i < c.keys; ++i) {
      const int* found = map.FindKey(std::string_view(key(i)));
      const auto at = expected.find(key(i));
      ASSERT_EQ(found != nullptr, at != expected.end()) << c.name << ' ' << key(i);
      if (found) {
        EXPECT_EQ(*found, at->second) << c.name << ' ' << key(i);
      }
      ASSERT_NE(before.Find(cow_String(key(i))), nullptr) << c.name << ' ' << key(i);
    }
    EXPECT_EQ(map.Find("missing"), nullptr) << c.name;
    EXPECT_FALSE(map.Remove("missing")) << c.name;
    EXPECT_EQ(before.Length(), c.keys) << c.name;
    auto order = expected.begin();
    for (const auto& [k, v] : map) EXPECT_EQ(k, (order++)->first) << c.name;
  }
}

namespace {
// The same hierarchy held both ways: in a counted body of the handle's own, and counting itself.
template <class Base>
struct Shape : Base {
  virtual ~Shape() = default;
  virtual Shape* Copy() const = 0;
  int sides = 0;
};
template <class Base>
struct Square : Shape<Base> {
  Shape<Base>* Copy() const override { return new Square(*this); }
};
struct Held {};
}  // namespace

template <class Base>
class CowCOW : public testing::Test {};
using Bases = testing::Types<Held, cow_Counted>;
TYPED_TEST_SUITE(CowCOW, Bases);

TYPED_TEST(CowCOW, ClonesThroughTheVirtualCopyOnlyWhenShared) {
  using Handle = cow_COW<Shape<TypeParam>, cow_Virtual<Shape<TypeParam>>>;
  Handle a(new Square<TypeParam>);
  Handle b(a);
  EXPECT_EQ(a.ConstGet(), b.ConstGet());
  EXPECT_TRUE(a.IsShared() && b.IsShared());
  b.Get()->sides = 4;
  EXPECT_NE(a.ConstGet(), b.ConstGet());
  EXPECT_FALSE(a.IsShared() || b.IsShared()) << "a clone starts with one handle";
  EXPECT_EQ(a->sides, 0);
  EXPECT_NE(dynamic_cast<const Square<TypeParam>*>(b.ConstGet()), nullptr);
  Shape<TypeParam>* alone = b.Get();
  EXPECT_EQ(alone, b.Get());  // unshared: no further copies
  Handle moved(std::move(b));
  EXPECT_TRUE(b.IsNull() && moved.ConstGet() == alone);  // NOLINT(bugprone-use-after-move)
  a = moved;
  EXPECT_TRUE(a.IsShared() && a.ConstGet() == alone);
  EXPECT_TRUE(Handle().IsNull());
}

// Handles on one object copied, written and dropped on several threads: the count stays exact
// (ASan and TSan see a lost or doubled release).
TYPED_TEST(CowCOW, HandlesOnOneObjectMayLiveOnSeveralThreads) {
  using Handle = cow_COW<Shape<TypeParam>, cow_Virtual<Shape<TypeParam>>>;
  const Handle shared(new Square<TypeParam>);
  OnThreads(4, [&shared](int t) {
    for (int i = 0; i < 2000; ++i) {
      Handle own(shared);
      if (i % 2) own.Get()->sides = t;
    }
  });
  EXPECT_FALSE(shared.IsShared());
  EXPECT_EQ(shared->sides, 0);
}

TEST(CowList, AnIndexOutsideIsRefusedAndChangesNothing) {
  using Operation = void (*)(cow_List<int>&, int);
  const struct {
    const char* name;
    Operation call;
    int lastValid;  // Insert also takes the length itself
  } operations[] = {
      {"operator[]", [](cow_List<int>& l, int i) { (void)std::as_const(l)[i]; }, 2},
      {"ConstGet", [](cow_List<int>& l, int i) { (void)l.ConstGet(i); }, 2},
      {"Get", [](cow_List<int>& l, int i) { l.Get(i) = 9; }, 2},
      {"Remove", [](cow_List<int>& l, int i) { l.Remove(i); }, 2},
      {"Insert", [](cow_List<int>& l, int i) { l.Insert(i, 9); }, 3},
  };
  for (const auto& operation : operations) {
    for (const int index : {-1, 3, 4, std::numeric_limits<int>::min()}) {
      if (index <= operation.lastValid && index >= 0) continue;
      SCOPED_TRACE(std::string(operation.name) + '(' + std::to_string(index) + ')');
      const cow_List<int> original{1, 2, 3};
      cow_List<int> list(original);
      EXPECT_EQ(RaisedText([&] { operation.call(list, index); }),
                "List index " + std::to_string(index) + " out of range (length 3)");
      EXPECT_TRUE(list.SharesWith(original));
      EXPECT_EQ(list.Vector(), (std::vector<int>{1, 2, 3}));
    }
  }
}

TEST(Cow2DArray, IsRowMajorResizesToFillAndRefusesARowOrColumnOutside) {
  cow_2DArray<double> grid(2, 3, 0.5);
  grid.Set(1, 2, 9.0);
  EXPECT_EQ(grid.Cells()[5], 9.0);
  const cow_2DArray<double> copy(grid);
  grid.Resize(1, 1, 4.0);
  EXPECT_EQ(copy(1, 2), 9.0);
  EXPECT_EQ(grid.Rows() * grid.Columns(), 1);
  EXPECT_EQ(grid(0, 0), 4.0);
  using Operation = void (*)(cow_2DArray<double>&, int, int);
  const struct {
    const char* name;
    Operation call;
  } operations[] = {
      {"operator()", [](cow_2DArray<double>& a, int r, int c) { (void)std::as_const(a)(r, c); }},
      {"Get", [](cow_2DArray<double>& a, int r, int c) { a.Get(r, c) = 9; }},
      {"Set", [](cow_2DArray<double>& a, int r, int c) { a.Set(r, c, 9); }},
  };
  const struct {
    int row, column;
  } outside[] = {{-1, 0}, {2, 0}, {3, 0}, {0, -1}, {0, 3}, {0, 4}, {1, -3}, {-1, 4}};
  for (const auto& operation : operations) {
    for (const auto& at : outside) {
      const cow_2DArray<double> original(2, 3, 1.0);
      cow_2DArray<double> array(original);
      const std::string expected = "Array index (" + std::to_string(at.row) + ", " +
                                   std::to_string(at.column) + ") out of range (2 x 3)";
      EXPECT_EQ(RaisedText([&] { operation.call(array, at.row, at.column); }), expected)
          << operation.name << '(' << at.row << ", " << at.column << ')';
      EXPECT_EQ(array.Cells(), std::vector<double>(6, 1.0)) << operation.name;
    }
  }
}

// One rule for every container: elements compare with their own ==, so a NaN makes a container
// unequal even to itself and to a copy that shares its storage.
TEST(CowEquality, ANaNIsNeverEqualEvenOnSharedStorage) {
  // A copy shares the original's storage.
  const auto equalToACopy = [](const auto& container) {
    return container == std::remove_cvref_t<decltype(container)>(container);
  };
  constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
  EXPECT_FALSE(equalToACopy(cow_List<double>{1.0, NaN}));
  EXPECT_FALSE(equalToACopy(cow_List<float>{std::numeric_limits<float>::quiet_NaN()}));
  EXPECT_FALSE(equalToACopy(cow_List<std::pair<int, double>>{{1, NaN}}));
  EXPECT_FALSE(equalToACopy(cow_Map<cow_String, double>{{"a", NaN}}));
  EXPECT_FALSE(equalToACopy(cow_Map<double, int>{{NaN, 1}}));
  EXPECT_FALSE(equalToACopy(cow_TextMap<double>{{"a", NaN}}));
  EXPECT_FALSE(equalToACopy(cow_2DArray<double>(1, 2, NaN)));
  EXPECT_TRUE(equalToACopy(cow_List<cow_String>{"a", "b"}));
}
