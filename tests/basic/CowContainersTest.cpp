#include <cow_2DArray.h>
#include <cow_Btree.h>
#include <cow_COW.h>
#include <cow_List.h>
#include <cow_String.h>

#include <gtest/gtest.h>

#include <thread>
#include <vector>

TEST(CowList, CopiesShareUntilTheFirstWrite) {
  const cow_List<int> original(std::vector<int>(1'000'000, 7));
  cow_List<int> copy(original);
  EXPECT_TRUE(copy.SharesWith(original));
  EXPECT_EQ(&copy[0], &original[0]);  // reading never copies

  copy.Get(10) = 8;
  EXPECT_FALSE(copy.SharesWith(original));
  EXPECT_EQ(original[10], 7);
  EXPECT_EQ(copy[10], 8);
  EXPECT_FALSE(copy == original);
}

TEST(CowList, EditingOperationsAndLookup) {
  cow_List<cow_String> list{"b", "c"};
  list.Insert(0, "a");
  list.Append("d");
  list.Remove(2);
  EXPECT_EQ(list, (cow_List<cow_String>{"a", "b", "d"}));
  EXPECT_EQ(list.Find("d"), 2);
  EXPECT_EQ(list.Find("c"), -1);
  list.Clear();
  EXPECT_TRUE(list.IsEmpty());
}

TEST(CowList, ConcurrentCopiesOfOneListStayConsistent) {
  const cow_List<int> shared(std::vector<int>(1000, 1));
  std::vector<std::thread> threads;
  for (int t = 0; t < 4; ++t) {
    threads.emplace_back([&shared, t] {
      for (int i = 0; i < 2000; ++i) {
        cow_List<int> mine(shared);
        mine.Get(i % 1000) = t;
        ASSERT_EQ(mine[i % 1000], t);
      }
    });
  }
  for (auto& thread : threads) thread.join();
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

TEST(Cow2DArray, IsRowMajorAndResizesToFill) {
  cow_2DArray<double> array(2, 3, 0.5);
  array.Set(1, 2, 9.0);
  EXPECT_EQ(array.Cells()[5], 9.0);
  const cow_2DArray<double> copy(array);
  array.Resize(1, 1, 4.0);
  EXPECT_EQ(copy(1, 2), 9.0);
  EXPECT_EQ(array.Rows() * array.Columns(), 1);
  EXPECT_EQ(array(0, 0), 4.0);
}

namespace {
struct Shape {
  virtual ~Shape() = default;
  virtual Shape* Copy() const = 0;
  int sides = 0;
};
struct Square : Shape {
  Shape* Copy() const override { return new Square(*this); }
};
}  // namespace

TEST(CowCOW, ClonesThroughTheVirtualCopyOnlyWhenShared) {
  cow_COW<Shape, cow_Virtual<Shape>> a(new Square);
  cow_COW<Shape, cow_Virtual<Shape>> b(a);
  EXPECT_EQ(a.ConstGet(), b.ConstGet());
  b.Get()->sides = 4;
  EXPECT_NE(a.ConstGet(), b.ConstGet());
  EXPECT_EQ(a->sides, 0);
  EXPECT_NE(dynamic_cast<const Square*>(b.ConstGet()), nullptr);
  Shape* alone = b.Get();
  EXPECT_EQ(alone, b.Get());  // unshared: no further copies
  EXPECT_TRUE(cow_COW<Shape>().IsNull());
}

