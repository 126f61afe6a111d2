// A field table is the one description of a class level's fields: what it registers, writes
// and reads must follow it field for field, descriptor values included.
#include <UTI_FieldTable.h>
#include <cls_Archive.h>

#include <gtest/gtest.h>

#include <tuple>
#include <vector>

namespace {
struct Sample {
  double ratio = 0;
  bool on = false;
  cow_String label;
  int count = 0;
};

constexpr UTI_FieldTable kSampleFields{
    UTI_Field{"ratio", &Sample::ratio, cls_KIND_DOUBLE},
    UTI_Field{"on", &Sample::on, cls_KIND_BOOL},
    UTI_Field{"label", &Sample::label, cls_KIND_TRANSLATABLE, 0x230001u, 55u},
    UTI_Field{"count", &Sample::count, cls_KIND_INT}};
}  // namespace

TEST(FieldTable, RegistersWritesInTableOrderAndReadsBackByName) {
  cls_ClassMetadata metadata("Sample", 0x130063, 800, 0x1);
  kSampleFields.Register(metadata);
  const std::vector<cls_Attribute> expected = {{0, "ratio", cls_KIND_DOUBLE, 1, 0},
                                               {1, "on", cls_KIND_BOOL, 1, 0},
                                               {2, "label", cls_KIND_TRANSLATABLE, 0x230001u, 55},
                                               {3, "count", cls_KIND_INT, 1, 0}};
  EXPECT_EQ(metadata.Attributes(), expected);
  const Sample sample{-2.5, true, "Steel", -4};
  cls_Archive archive;
  const cls_WriteVisitor writer = archive.NewRoot();
  writer.StartWrite(0x130063, cls_Uid());
  kSampleFields.Write(writer, sample);

  const cls_ReadVisitor reader = archive.Root(0);
  std::vector<std::string> names;
  for (const auto& field : reader.Record().fields) names.emplace_back(field.first.View());
  EXPECT_EQ(names, (std::vector<std::string>{"ratio", "on", "label", "count"}));
  Sample back;
  kSampleFields.Read(reader, back);
  EXPECT_EQ(std::tie(back.ratio, back.on, back.label, back.count),
            std::tie(sample.ratio, sample.on, sample.label, sample.count));
}
