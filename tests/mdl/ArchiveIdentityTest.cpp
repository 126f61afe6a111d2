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

#include <cmath>
#include <random>
#include <variant>

namespace {
using Rng = std::mt19937;
using Dictionary = omu_PrimDictionary<cow_String>;

int Pick(Rng& rng, int count) { return std::uniform_int_distribution<int>(0, count - 1)(rng); }
double Number(Rng& rng) { return std::uniform_int_distribution<int>(-50, 50)(rng) / 4.0; }
cow_String Text(const char* prefix, Rng& rng) {
  return atr_StringBase::Format("%s%d", prefix, Pick(rng, 9));
}

// One object of the model under test: a copy keeps its identities. Every persistent class a
// model holds (one attribute stands for every instantiation, which share their code; the errors
// round trip with the scripting errors: they have no contents to change).
using Item = std::variant<mdl_PropertyTable, mdl_PropAttr<double>, mdl_JaggedArray, mdl_Repository,
                          Dictionary, omu_PrimWrapper, omu_PrimList, omu_PrimArray>;
const char* const kNames[] = {"table",      "attribute", "jagged array", "repository",
                              "dictionary", "wrapper",   "list",         "array"};

Dictionary RandomDictionary(Rng& rng) {
  Dictionary dictionary;
  for (int i = Pick(rng, 4); i >= 0; --i) dictionary.Put(Number(rng), Text("k", rng));
  return dictionary;
}

// An object of each kind, in the variant's order, with random contents.
Item Make(Rng& r) {
  switch (Pick(r, std::variant_size_v<Item>)) {
    case 0: {
      // Special doubles too: a table reads back bit for bit.
      const double special[] = {std::nan(""), -0.0, 1e-310, -HUGE_VAL};
      mdl_PropertyTable table(Pick(r, 5), 1 + Pick(r, 3));
      table.SetAllowEmptyFirstRow(Pick(r, 2) == 0);
      for (int row = 0; row < table.Rows(); ++row) {
        for (int c = 0; c < table.Columns(); ++c)
          table.Set(row, c, Pick(r, 4) ? Number(r) : special[Pick(r, 4)]);
      }
      return table;
    }
    case 1:
      return mdl_PropAttr<double>(Number(r));
    case 2: {
      mdl_JaggedArray rows;
      rows.AppendRow(cow_List<double>{Number(r)});
      rows.AppendRow(cow_List<double>());  // rows keep their own lengths, none too
      return rows;
    }
    case 3: {
      mdl_Repository repository(Text("r", r));
      repository.AddKey(Text("Part-", r));
      return repository;
    }
    case 4:
      return RandomDictionary(r);
    case 5: {
      omu_PrimWrapper wrapper;
      wrapper.MemberDict() = RandomDictionary(r);
      return wrapper;
    }
    case 6: {
      omu_PrimList list(0, 8, '[');
      list.Put(RandomDictionary(r));
      list.Put(Number(r));
      return list;
    }
    default: {
      const int dims[] = {2};
      const double numbers[] = {Number(r), Number(r)};
      return omu_PrimArray(1, dims, numbers);
    }
  }
}

// New contents in place, same identities, where a class has a way.
void Change(mdl_PropertyTable& t, Rng& r) {
  if (Pick(r, 2) == 0 || t.Rows() == 0) return t.Sort(1);
  t.Set(Pick(r, t.Rows()), Pick(r, t.Columns()), Number(r));
}
void Change(mdl_PropAttr<double>& a, Rng& r) {
  if (Pick(r, 3) == 0) return a.NewUid();
  a = Number(r);
  if (Pick(r, 2) == 0) a = mdl_PropAttributeStateEnm(Pick(r, 5));  // and another state
}
void Change(mdl_JaggedArray& a, Rng& r) { a.AppendRow(cow_List<double>{Number(r), 1}); }
void Change(Dictionary& d, Rng& r) { d.Put(Number(r), Text("k", r)); }
void Change(omu_PrimWrapper& w, Rng& r) { w.MemberDict().Put(Pick(r, 7), "count"); }
void Change(omu_PrimList& l, Rng& r) {
  if (l.Size() < 8) l.Put(Number(r));
}
template <class T>  // a repository or an array: no contents to change in place
void Change(T&, Rng&) {}

std::string Contents(const Item& item) {
  return std::visit([](const auto& object) { return SoloBytes(object); }, item);
}

using Model = std::vector<Item>;
Item& Any(Rng& rng, Model& model) {
  return model[static_cast<std::size_t>(Pick(rng, static_cast<int>(model.size())))];
}

// Saves the whole model in one archive file and reads it back, checking every object.
Model SaveAndLoadChecked(const Model& model, int step) {
  cls_Archive archive;
  for (const Item& item : model) std::visit([&](const auto& object) { archive.Add(object); }, item);
  const cls_Archive loaded = SaveAndLoad(archive, "identity-model");
  Model back;
  for (std::size_t i = 0; i < model.size(); ++i) {
    back.push_back(std::visit(
        [&](const auto& object) -> Item {
          using T = std::decay_t<decltype(object)>;
          return T(*loaded.Read<T>(static_cast<int>(i)));
        },
        model[i]));
    EXPECT_EQ(Contents(back.back()), Contents(model[i]))
        << "step " << step << ": object " << i << " (" << kNames[model[i].index()] << ") changed";
  }
  return back;
}

// What the fixture file of the first identity scheme holds: a table and its unchanged copy
// (one record and a reference), a set attribute, a dictionary and its copy.
struct FixtureModel {
  mdl_PropertyTable table{3, 2};
  mdl_PropertyTable copy;
  mdl_PropAttr<double> attribute;
  Dictionary dictionary;
  FixtureModel() {
    const double keys[] = {3, 1, 2};
    for (int row = 0; row < 3; ++row) {
      table.Set(row, 0, keys[row]);
      table.Set(row, 1, 10 * keys[row]);
    }
    copy = table;
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
        model.push_back(Make(rng));
      } else if (op <= 3) {
        Item copy = Any(rng, model);
        model.push_back(std::move(copy));
      } else if (op <= 6) {
        std::visit([&rng](auto& object) { Change(object, rng); }, Any(rng, model));
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
    for (int i = 0; i < 1000; ++i) (void)cls_Uid::AllocateUid();
    const FixtureModel model;
    cls_Archive archive;
    archive.Add(model.table);
    archive.Add(model.copy);
    archive.Add(model.attribute);
    archive.Add(model.dictionary);
    archive.Add(Dictionary(model.dictionary));
    saved = archive.ToBytes();
  }
  EXPECT_EQ(bytes[0], bytes[1]);
}

// The fixture was written by another process, whose identities started at 1 as ours did.
TEST(ArchiveIdentity, ArchivesOfTheFirstIdentitySchemeStillLoadWithIdentitiesNeverGivenOut) {
  const cls_Uid before = cls_Uid::AllocateUid();
  const cls_Archive loaded = cls_Archive::Load(CVX_TEST_FIXTURES "/model-first-identities.cvxarch");
  const FixtureModel model;
  ASSERT_EQ(loaded.RootCount(), 5);
  const auto table = loaded.Read<mdl_PropertyTable>(0);
  const auto copy = loaded.Read<mdl_PropertyTable>(1);
  EXPECT_GT(table->Uid(), before);
  EXPECT_NE(mdl_PropertyTable().Uid(), table->Uid());
  EXPECT_EQ(*table, model.table);
  EXPECT_EQ(*copy, model.copy);
  EXPECT_EQ(copy->Uid(), table->Uid());
  EXPECT_EQ(*loaded.Read<mdl_PropAttr<double>>(2), model.attribute);
  const auto dictionary = loaded.Read<Dictionary>(3);
  const auto dictionaryCopy = loaded.Read<Dictionary>(4);
  EXPECT_TRUE(*dictionary == model.dictionary);
  EXPECT_TRUE(*dictionaryCopy == model.dictionary);
  EXPECT_EQ(dictionaryCopy->EntriesUid(), dictionary->EntriesUid());
}
