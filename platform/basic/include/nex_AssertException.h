#pragma once
/// \addtogroup basic
/// @{

/// \class nex_AssertException
/// A broken invariant; the text is the failed condition ("WipReporter != 0").
#include <nex_Raisable.h>

class BASIC_EXPORT nex_AssertException : public nex_Raisable<nex_AssertException, nex_Exception> {
public:
  explicit nex_AssertException(const atr_String& condition) : m_Condition(condition) {}
  explicit nex_AssertException(const cls_ReadVisitor& reader);

  const atr_String& Condition() const noexcept { return m_Condition; }
  atr_String AsString() const override { return m_Condition; }
  void DBWrite(const cls_WriteVisitor& writer) const override;

  static unsigned int TypeId() noexcept;
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
  atr_String m_Condition;
  cls_Uid m_AssertUid;
};

/// Raises nex_AssertException with the condition's text when it does not hold.
#define NEX_ASSERT(condition, path) \
  ((condition) ? void() : NEX_THROW(nex_AssertException(#condition), path))

/// @}
