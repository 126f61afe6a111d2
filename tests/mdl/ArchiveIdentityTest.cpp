// Identities in archives: a copy keeps its identity, yet no two objects with different
// contents ever share a record; archive bytes depend only on what is saved; objects read back
// take identities that cannot collide with the process's own.
#include "LibraryEnvironment.h"
#include "TestArchive.h"

#include <mdl_JaggedArray.h>
#include <mdl_PropagatingAttribute.h>
#include <mdl_PropertyTable.h>
#include <mdl_Repository.h>
#include <omu_PrimArray.h>
#include <omu_PrimDictionary.h>
#include <omu_PrimList.h>
#include <omu_PrimWrapper.h>

#include <gtest/gtest.h>

#include <functional>
#include <random>

namespace {
using Rng = std::mt19937;

int Pick(Rng& rng, int count) { return std::uniform_int_distribution<int>(0, count - 1)(rng); }
template <class V>
auto& Any(Rng& rng, V& items) {
  return items[static_cast<std::size_t>(Pick(rng, static_cast<int>(items.size())))];
}

mdl_PropertyTable Table(std::initializer_list<double> keys) {
  mdl_PropertyTable table(static_cast<int>(keys.size()), 2);
  int row = 0;
  for (double key : keys) {
    table.Set(row, 0, key);
    table.Set(row++, 1, 10 * key);
  }
  return table;
}

// One object of the model under test, whatever its class.
class Item {
public:
  virtual ~Item() = default;
  virtual std::unique_ptr<Item> Copy() const = 0;  // keeps the identities
  virtual void Change(Rng& rng) = 0;               // new contents, same identities
  virtual void Write(cls_Archive& archive) const = 0;
  virtual std::unique_ptr<Item> ReadBack(const cls_Archive& archive, int index) const = 0;
  virtual std::string Contents() const = 0;
  virtual const char* Name() const = 0;
};

template <class T>
void Unchanging(T&, Rng&) {}

template <class T>
class Held final : public Item {
public:
  using ChangeFn = void (*)(T&, Rng&);
  Held(const char* name, T value, ChangeFn change)
      : m_Name(name), m_Value(std::move(value)), m_Change(change) {}
  std::unique_ptr<Item> Copy() const override { return std::make_unique<Held>(*this); }
  void Change(Rng& rng) override { m_Change(m_Value, rng); }
  void Write(cls_Archive& archive) const override { archive.Add(m_Value); }
  std::unique_ptr<Item> ReadBack(const cls_Archive& archive, int index) const override {
    return std::make_unique<Held>(m_Name, T(*archive.Read<T>(index)), m_Change);
  }
  std::string Contents() const override { return SoloBytes(m_Value); }
  const char* Name() const override { return m_Name; }

private:
  const char* m_Name;
  T m_Value;
  ChangeFn m_Change;
};

double Number(Rng& rng) { return std::uniform_int_distribution<int>(-50, 50)(rng) / 4.0; }
cow_String Text(const char* prefix, Rng& rng) {
  return atr_StringBase::Format("%s%d", prefix, Pick(rng, 9));
}

mdl_PropertyTable RandomTable(Rng& rng) {
  mdl_PropertyTable table(1 + Pick(rng, 4), 1 + Pick(rng, 3));
  for (int r = 0; r < table.Rows(); ++r) {
    for (int c = 0; c < table.Columns(); ++c) table.Set(r, c, Number(rng));
  }
  return table;
}

omu_PrimDictionary<cow_String> RandomDictionary(Rng& rng) {
  omu_PrimDictionary<cow_String> dictionary;
  for (int i = Pick(rng, 4); i >= 0; --i) dictionary.Put(Number(rng), Text("k", rng));
  return dictionary;
}

using Maker = std::function<std::unique_ptr<Item>(Rng&)>;
template <class T>
Maker Kind(const char* name, T (*make)(Rng&), void (*change)(T&, Rng&) = Unchanging<T>) {
  return [=](Rng& rng) { return std::make_unique<Held<T>>(name, make(rng), change); };
}

// Every persistent class a model holds, with a way to change it in place where it has one.
// (One attribute stands for every instantiation, which share their code; the errors round trip
// with the scripting errors: they have no contents to change.)
const std::vector<Maker>& Kinds() {
  using Dictionary = omu_PrimDictionary<cow_String>;
  static const std::vector<Maker> kinds = {
      Kind<mdl_PropertyTable>("table", RandomTable, [](mdl_PropertyTable& t, Rng& r) {
        if (Pick(r, 2) == 0) return t.Sort(1);
        t.Set(Pick(r, t.Rows()), Pick(r, t.Columns()), Number(r));
      }),
      Kind<mdl_PropAttr<double>>(
          "attribute", [](Rng& r) { return mdl_PropAttr<double>(Number(r)); },
          [](mdl_PropAttr<double>& a, Rng& r) {
            if (Pick(r, 3) == 0) return a.NewUid();
            a = Number(r);
            if (Pick(r, 2) == 0) a = mdl_PropAttributeStateEnm(Pick(r, 5));  // and another state
          }),
      Kind<mdl_JaggedArray>(
          "jagged array",
          [](Rng& r) {
            mdl_JaggedArray rows;
            rows.AppendRow(cow_List<double>{Number(r)});
            rows.AppendRow(cow_List<double>());  // rows keep their own lengths, none too
            return rows;
          },
          [](mdl_JaggedArray& a, Rng& r) { a.AppendRow(cow_List<double>{Number(r), 1}); }),
      Kind<mdl_Repository>("repository", [](Rng& r) {
        mdl_Repository repository(Text("r", r));
        repository.AddKey(Text("Part-", r));
        return repository;
      }),
      Kind<Dictionary>("dictionary", RandomDictionary,
                       [](Dictionary& d, Rng& r) { d.Put(Number(r), Text("k", r)); }),
      Kind<omu_PrimWrapper>(
          "wrapper",
          [](Rng& r) {
            omu_PrimWrapper wrapper;
            wrapper.MemberDict() = RandomDictionary(r);
            return wrapper;
          },
          [](omu_PrimWrapper& w, Rng& r) { w.MemberDict().Put(Pick(r, 7), "count"); }),
      Kind<omu_PrimList>(
          "list",
          [](Rng& r) {
            omu_PrimList list(0, 8, '[');
            list.Put(RandomDictionary(r));
            list.Put(Number(r));
            return list;
          },
          [](omu_PrimList& l, Rng& r) {
            if (l.Size() < 8) l.Put(Number(r));
          }),
      Kind<omu_PrimArray>("array", [](Rng& r) {
        const int dims[] = {2};
        const double numbers[] = {Number(r), Number(r)};
        return omu_PrimArray(1, dims, numbers);
      }),
  };
  return kinds;
}

using Model = std::vector<std::unique_ptr<Item>>;

// Saves the whole model in one archive file and reads it back, checking every object.
Model SaveAndLoadChecked(const Model& model, int step) {
  cls_Archive archive;
  for (const auto& item : model) item->Write(archive);
  const cls_Archive loaded = SaveAndLoad(archive, "identity-model");
  Model back;
  for (std::size_t i = 0; i < model.size(); ++i) {
    back.push_back(model[i]->ReadBack(loaded, static_cast<int>(i)));
    EXPECT_EQ(back.back()->Contents(), model[i]->Contents())
        << "step " << step << ": object " << i << " (" << model[i]->Name() << ") changed";
  }
  return back;
}

// What the fixture file of the first identity scheme holds: a table and its unchanged copy
// (one record and a reference), a set attribute, a dictionary and its copy.
struct FixtureModel {
  mdl_PropertyTable table = Table({3, 1, 2});
  mdl_PropertyTable copy = table;
  mdl_PropAttr<double> attribute;
  omu_PrimDictionary<cow_String> dictionary;
  FixtureModel() {
    attribute = 2.5;
    dictionary.Put(cow_List<int>{1, 2}, "ids");
    dictionary.Put(1.5, "x");
  }
};
}  // namespace

// On random histories of copies (which keep their identities), changes, saves and loads, every
// object reads back as it was: a copy changed after copying never shares its original's record.
TEST(ArchiveIdentity, RandomHistoriesOfCopiesChangesSavesAndLoadsLoseNothing) {
  for (unsigned seed = 1; seed <= 20; ++seed) {
    Rng rng(seed);
    Model model;
    for (int step = 0; step < 60; ++step) {
      const int op = model.empty() ? 0 : Pick(rng, 8);
      if (op == 0) {
        model.push_back(Any(rng, Kinds())(rng));
      } else if (op <= 3) {
        model.push_back(Any(rng, model)->Copy());
      } else if (op <= 6) {
        Any(rng, model)->Change(rng);
      } else {
        model = SaveAndLoadChecked(model, step);
      }
      if (HasFailure()) FAIL() << "seed " << seed;
    }
  }
}

// A second process would start its identities where the first did; a thousand given out
// between two saves of this one show the same fault, and one that carries numbering over.
TEST(ArchiveIdentity, TheSameModelSavedAfterDifferentHistoriesHasTheSameBytes) {
  std::string bytes[2];
  for (std::string& saved : bytes) {
    for (int i = 0; i < 1000; ++i) (void)Table({1.0 * i});
    const FixtureModel model;
    cls_Archive archive;
    archive.Add(model.table);
    archive.Add(model.copy);
    archive.Add(model.attribute);
    archive.Add(model.dictionary);
    archive.Add(omu_PrimDictionary<cow_String>(model.dictionary));
    saved = archive.ToBytes();
  }
  EXPECT_EQ(bytes[0], bytes[1]);
}

// The fixture was written by another process, whose identities started at 1 as ours did.
TEST(ArchiveIdentity, ArchivesOfTheFirstIdentitySchemeStillLoadWithIdentitiesNeverGivenOut) {
  const cls_Uid before = cls_Uid::AllocateUid();
  const cls_Archive loaded =
      cls_Archive::Load(CVX_TEST_FIXTURES "/model-first-identities.cvxarch");
  const FixtureModel model;
  ASSERT_EQ(loaded.RootCount(), 5);
  const auto table = loaded.Read<mdl_PropertyTable>(0);
  const auto copy = loaded.Read<mdl_PropertyTable>(1);
  EXPECT_GT(table->Uid(), before);
  EXPECT_NE(Table({2}).Uid(), table->Uid());
  EXPECT_EQ(*table, model.table);
  EXPECT_EQ(*copy, model.copy);
  EXPECT_EQ(copy->Uid(), table->Uid());
  EXPECT_EQ(*loaded.Read<mdl_PropAttr<double>>(2), model.attribute);
  const auto dictionary = loaded.Read<omu_PrimDictionary<cow_String>>(3);
  const auto dictionaryCopy = loaded.Read<omu_PrimDictionary<cow_String>>(4);
  EXPECT_TRUE(*dictionary == model.dictionary);
  EXPECT_TRUE(*dictionaryCopy == model.dictionary);
  EXPECT_EQ(dictionaryCopy->EntriesUid(), dictionary->EntriesUid());
}
