#include <cls_AbsTypeAdapter.h>
#include <cls_ClassRegistrar.h>
#include <cls_TypeAdapter.h>
#include <nex_TextException.h>

#include <gtest/gtest.h>

namespace {
struct Base {
  virtual ~Base() = default;
  static unsigned int TypeId() { return cls_MakeTypeId(200, 1); }
  virtual void DBWrite(const cls_WriteVisitor&) const {}
};
struct Leaf : Base {
  static unsigned int TypeId() { return cls_MakeTypeId(200, 3); }
  explicit Leaf(const cls_ReadVisitor&) {}
  Leaf() = default;
};
struct Other {
  static unsigned int TypeId() { return cls_MakeTypeId(201, 1); }
  void DBWrite(const cls_WriteVisitor&) const {}
};
}  // namespace

TEST(ClassRegistrar, FindsReplacesAndForgetsClassesAndWalksTheParentChain) {
  cls_ClassRegistrar registrar;
  // Attributes are registered through the field tables, and checked there.
  registrar.AddClassMD(new cls_TypeAdapter<Leaf>("Leaf", 800, Base::TypeId()));
  // A child may be registered before its parent: type tests look parents up when asked.
  registrar.AddClassMD(new cls_AbsTypeAdapter<Base>("Base", 514, cls_RootTypeId, 1));
  registrar.AddClassMD(new cls_AbsTypeAdapter<Other>("Other", 800, cls_RootTypeId));

  const cls_ClassMetadata* leaf = registrar.Find(Leaf::TypeId());
  ASSERT_NE(leaf, nullptr);
  EXPECT_EQ(leaf->Name(), "Leaf");
  EXPECT_FALSE(leaf->IsAbstract());
  EXPECT_TRUE(registrar.Find(Base::TypeId())->IsAbstract());
  EXPECT_EQ(registrar.Find(Base::TypeId())->Extra(), 1u);

  EXPECT_TRUE(registrar.IsA(Leaf::TypeId(), Leaf::TypeId()));
  EXPECT_TRUE(registrar.IsA(Leaf::TypeId(), Base::TypeId()));
  EXPECT_TRUE(registrar.IsA(Leaf::TypeId(), cls_RootTypeId));
  EXPECT_FALSE(registrar.IsA(Base::TypeId(), Leaf::TypeId()));
  EXPECT_FALSE(registrar.IsA(Leaf::TypeId(), Other::TypeId()));
  EXPECT_FALSE(registrar.IsA(cls_MakeTypeId(200, 2), Base::TypeId()));  // not registered

  EXPECT_EQ(registrar.Find(cls_MakeTypeId(999, 1)), nullptr);
  EXPECT_THROW(registrar.Get(cls_MakeTypeId(999, 1)), nex_TextException);
  EXPECT_THROW(registrar.Find(Base::TypeId())->Clone(nullptr), nex_TextException);
  const Leaf original;
  leaf->Destroy(leaf->Clone(&original));  // leak-checked under the sanitizers

  // Registering a class again replaces it; removing a module forgets its classes only.
  registrar.AddClassMD(new cls_AbsTypeAdapter<Base>("Second", 800, cls_RootTypeId));
  EXPECT_EQ(registrar.Find(Base::TypeId())->Name(), "Second");
  EXPECT_EQ(registrar.Classes().size(), 3u);
  registrar.RemoveModule(200);
  EXPECT_EQ(registrar.Find(Base::TypeId()), nullptr);
  EXPECT_EQ(registrar.Find(Leaf::TypeId()), nullptr);
  EXPECT_NE(registrar.Find(Other::TypeId()), nullptr);
}
