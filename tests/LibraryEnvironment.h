#pragma once
// Starts the library once for a whole test binary (include it from any test that needs
// the class registry) and stops it at the end.
#include <UTI_CaeUtils.h>

#include <gtest/gtest.h>

class LibraryEnvironment : public ::testing::Environment {
public:
  void SetUp() override { UTI_CaeUtils_initialize(m_Count); }
  void TearDown() override { UTI_CaeUtils_finalize(m_Count); }

private:
  int m_Count = 0;
};

inline ::testing::Environment* const g_LibraryEnvironment =
    ::testing::AddGlobalTestEnvironment(new LibraryEnvironment);
