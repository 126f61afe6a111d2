#include "LibraryEnvironment.h"
#include "TestArchive.h"

#include <omu_AccessErrorException.h>
#include <omu_ArgNumberErrorException.h>
#include <omu_ArgTypeErrorException.h>
#include <omu_AttributeErrorException.h>
#include <omu_CorNameErrorException.h>
#include <omu_FontErrorException.h>
#include <omu_GenericTypeErrorException.h>
#include <omu_GuiAccessErrorException.h>
#include <omu_IndexErrorException.h>
#include <omu_KeyErrorException.h>
#include <omu_KeywordErrorException.h>
#include <omu_KeywordTypeErrorException.h>
#include <omu_NameErrorException.h>
#include <omu_OverflowErrorException.h>
#include <omu_RangeErrorException.h>
#include <omu_ValueErrorException.h>
#include <omu_ZeroDivisionErrorException.h>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <typeinfo>

namespace {
struct Case {
  std::function<nex_CommandException*()> make;
  const char* pythonType;
  const char* message;
};
// GoogleTest would print the case byte by byte, padding included.
void PrintTo(const Case& c, std::ostream* out) { *out << c.pythonType << ": " << c.message; }

// The dynamic class, through a reference, so that typeid has no operand to evaluate.
const std::type_info& ClassOf(const nex_Exception& e) { return typeid(e); }

template <class E, class... Args>
std::function<nex_CommandException*()> Make(Args... args) {
  return [=] { return new E(args...); };
}

using Range = omu_RangeErrorException;

const Case kCases[] = {
    {Make<omu_AccessErrorException>("Part-1"), "AccessError", "Part-1 no longer exists"},
    {Make<omu_AttributeErrorException>(0, "x"), "AttributeError", "read-only attributes"},
    {Make<omu_AttributeErrorException>(1, "name"), "AttributeError", "name is read-only"},
    {Make<omu_AttributeErrorException>(2, "no such member"), "AttributeError", "no such member"},
    {Make<omu_AttributeErrorException>(5, "x"), "AttributeError", "Error message not implemented yet"},
    {Make<omu_AttributeErrorException>(-1, "x"), "AttributeError", "Error message not implemented yet"},
    {Make<omu_CorNameErrorException>(0), "CorvexNameError", "invalid name"},
    {Make<omu_CorNameErrorException>(1), "CorvexNameError", "name is empty"},
    {Make<omu_CorNameErrorException>(2), "CorvexNameError", "invalid job name"},
    {Make<omu_CorNameErrorException>(3), "CorvexNameError", "invalid model name"},
    {Make<omu_CorNameErrorException>(4), "CorvexNameError", ""},
    {Make<omu_FontErrorException>("Courier"), "FontError", "Courier is not a valid font."},
    {Make<omu_GuiAccessErrorException>("busy"), "GuiAccessError", "busy"},
    {Make<omu_IndexErrorException>(-3), "IndexError", "-3"},
    {Make<omu_IndexErrorException>(7), "IndexError", "7"},
    {Make<omu_KeyErrorException>("'Part-9' not found"), "KeyError", "'Part-9' not found"},
    {Make<omu_KeyErrorException>("100%s sure"), "KeyError", "100%s sure"},  // not a format
    {Make<omu_NameErrorException>("x undefined"), "NameError", "x undefined"},
    {Make<omu_OverflowErrorException>("too big"), "OverflowError", "too big"},
    {Make<omu_ValueErrorException>(""), "ValueError", ""},
    {Make<omu_ZeroDivisionErrorException>("by zero"), "ZeroDivisionError", "by zero"},
    {Make<omu_GenericTypeErrorException>(), "TypeError", "illegal argument type for built-in operation"},
    {Make<omu_ArgNumberErrorException>(2, 3, ""), "TypeError", "too many arguments; expected 2, got 3"},
    {Make<omu_ArgNumberErrorException>(2, 2, ""), "TypeError",
     "not all required arguments specified; expected 2, got 2"},
    {Make<omu_ArgNumberErrorException>(3, 1, "points"), "TypeError",
     "points; not all required arguments specified; expected 3, got 1"},
    {Make<omu_ArgNumberErrorException>(-1, 0, ""), "TypeError", "too many arguments; expected -1, got 0"},
    {Make<omu_ArgTypeErrorException>(1, "int", "string", ""), "TypeError",
     "arg1; found string, expecting int"},
    {Make<omu_ArgTypeErrorException>(1, "int", "string", "points"), "TypeError",
     "points[0]; found string, expecting int"},
    {Make<omu_ArgTypeErrorException>(3, "float", "None", "points"), "TypeError",
     "points[2]; found None, expecting float"},
    {Make<omu_KeywordErrorException>("name", ""), "TypeError", "keyword error on name"},
    {Make<omu_KeywordErrorException>("b", "setValues"), "TypeError", "setValueskeyword error on b"},
    {Make<omu_KeywordTypeErrorException>("size", "float", "string", ""), "TypeError",
     "size; found string, expecting float"},
    {Make<omu_KeywordTypeErrorException>("it's", "int", "None", "opts"), "TypeError",
     "opts[\"it's\"]; found None, expecting int"},
    {Make<Range>("x", 2, "0", 1, "10", 2), "RangeError", "x must be a Float in the range: 0 <= x < 10"},
    {Make<Range>("n", 1, "1", 2, "10", 1), "RangeError", "n must be an Integer in the range: 1 < n <= 10"},
    {Make<Range>("n", 1, "1", 1, "", 0), "RangeError", "n must be an Integer >= 1"},
    {Make<Range>("n", 1, "0", 2, "", 0), "RangeError", "n must be an Integer > 0"},
    {Make<Range>("t", 0, "", 0, "1.0", 1), "RangeError", "t must be <= 1.0"},
    {Make<Range>("t", 0, "", 0, "1.0", 2), "RangeError", "t must be < 1.0"},
    {Make<Range>("t", 7, "", 0, "", 0), "RangeError", "t must be "},
    {Make<Range>("t", 2, "0", 3, "1", 1), "RangeError", "t must be a Float "},
    {Make<Range>("t", 1, "0", 1, "1", -1), "RangeError", "t must be an Integer "},
};

class ScriptingErrors : public ::testing::TestWithParam<Case> {};
}  // namespace

TEST_P(ScriptingErrors, MessageAndScriptName) {
  const std::unique_ptr<nex_CommandException> error(GetParam().make());
  EXPECT_EQ(error->JournalMessage(), GetParam().message);
  EXPECT_EQ(error->AsString(), GetParam().message);
  EXPECT_EQ(error->PythonType(), GetParam().pythonType);
}

TEST_P(ScriptingErrors, CopyAndPropagateKeepTheMostDerivedClass) {
  const std::unique_ptr<nex_CommandException> error(GetParam().make());
  const std::unique_ptr<nex_Exception> copy(error->Copy());
  EXPECT_EQ(ClassOf(*copy), ClassOf(*error));
  EXPECT_EQ(copy->DynTypeId(), error->DynTypeId());
  EXPECT_EQ(copy->AsString(), error->AsString());
  try {
    static_cast<const nex_Exception&>(*copy).Propagate();
    ADD_FAILURE() << "Propagate did not raise";
  } catch (const nex_Exception& caught) {
    EXPECT_EQ(typeid(caught), ClassOf(*error));
    EXPECT_EQ(caught.AsString(), GetParam().message);
  }
}

TEST_P(ScriptingErrors, RoundTripThroughAnArchiveFile) {
  const std::unique_ptr<nex_CommandException> error(GetParam().make());
  cls_Archive archive;
  error->DBWrite(archive.NewRoot());
  const auto loaded = SaveAndLoad(archive, "error").Read<nex_CommandException>(0);
  ASSERT_NE(loaded, nullptr);
  EXPECT_EQ(ClassOf(*loaded), ClassOf(*error));
  EXPECT_EQ(loaded->JournalMessage(), GetParam().message);
  EXPECT_EQ(loaded->PythonType(), GetParam().pythonType);
}

INSTANTIATE_TEST_SUITE_P(AllKinds, ScriptingErrors, ::testing::ValuesIn(kCases),
                         [](const ::testing::TestParamInfo<Case>& info) {
                           return std::string(info.param.pythonType) + std::to_string(info.index);
                         });

TEST(ScriptingErrorsRaise, ThrowRecordsThePathAndLine) {
  try {
    NEX_THROW(omu_KeyErrorException("k"), "omu/impl/omu_Test");
  } catch (const omu_KeyErrorException& e) {
    EXPECT_STREQ(e.SourcePath(), "omu/impl/omu_Test");
    EXPECT_GT(e.SourceLine(), 0);
    EXPECT_EQ(e.UserReport(), "k");
    EXPECT_NE(std::string(e.what()).find("omu/impl/omu_Test:"), std::string::npos);
  }
}

TEST(ScriptingErrorsRaise, TheTypeErrorLevelIsWrittenBetweenTheClassAndTheCommandLevel) {
  cls_Archive archive;
  archive.Add(omu_ArgNumberErrorException(1, 2, ""));
  const cls_ReadVisitor record = archive.Root(0);
  const cls_ReadVisitor typeError(record, omu_TypeErrorException::TypeId());
  const cls_ReadVisitor command(typeError, nex_CommandException::TypeId());
  EXPECT_EQ(cls_ReadVisitor(command, nex_Exception::TypeId()).TypeId(), nex_Exception::TypeId());
}
