#include "OnThreads.h"

#include <nex_TextException.h>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>

namespace {
// Longer than any in-place string buffer, so a rebuilt text would move to new storage.
constexpr const char* kText = "the table has a row that is blank in every column";

// A copy of what raise() raised, or null.
std::unique_ptr<nex_Exception> Caught(const std::function<void()>& raise) {
  try {
    raise();
  } catch (const nex_Exception& e) {
    return std::unique_ptr<nex_Exception>(e.Copy());
  }
  return nullptr;
}
}  // namespace

TEST(ExceptionText, WhatStaysPutOnTheOriginalAndItsCopies) {
  const auto raised = Caught([] { NEX_THROW(nex_TextException(kText), "cow/impl/cow_Test"); });
  const auto& original = dynamic_cast<const nex_TextException&>(*raised);
  // Under ThreadSanitizer this fails if what(), first called here, writes to the exception.
  const std::string expected =
      std::string(kText) + " [cow/impl/cow_Test:" + std::to_string(original.SourceLine()) + "]";
  OnThreads(4, [&original, &expected](int) {
    for (int i = 0; i < 200; ++i) ASSERT_EQ(original.what(), expected);
  });
  const char* first = original.what();
  EXPECT_EQ(original.what(), first);
  EXPECT_EQ(first, expected);  // still readable: the second call did not free it
  auto assigned = std::make_unique<nex_TextException>("other");
  *assigned = original;
  const std::pair<const char*, std::unique_ptr<nex_Exception>> copies[] = {
      {"copy constructor", std::make_unique<nex_TextException>(original)},
      {"assignment", std::move(assigned)},
      {"Copy()", std::unique_ptr<nex_Exception>(original.Copy())},
      {"Propagate()", Caught([&] { static_cast<const nex_Exception&>(original).Propagate(); })},
  };
  for (const auto& [how, copy] : copies) {
    ASSERT_NE(copy, nullptr) << how;
    const char* copied = copy->what();
    EXPECT_EQ(std::string(copied), expected) << how;
    EXPECT_EQ(copy->what(), copied) << how << ": the copy rebuilt its text";
  }
}
