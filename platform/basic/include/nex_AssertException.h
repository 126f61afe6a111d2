#pragma once
/// \addtogroup basic
/// @{

/// \class nex_AssertException
/// A broken invariant; the text is the failed condition ("WipReporter != 0").
#include <nex_Raisable.h>

class BASIC_EXPORT nex_AssertException : public nex_Raisable<nex_AssertException, nex_Exception> {
public:
  /// A failed check; condition is the text of what did not hold.
  explicit nex_AssertException(const atr_String& condition) : m_Condition(condition) {}
  /// Reads the object back from the record reader is at.
  explicit nex_AssertException(const cls_ReadVisitor& reader);

  /// The text of the check that failed.
  const atr_String& Condition() const noexcept { return m_Condition; }
  /// The condition's text.
  atr_String AsString() const override { return m_Condition; }
  /// Writes the object through writer: its class level, and its parent classes' levels within it.
  void DBWrite(const cls_WriteVisitor& writer) const override;

  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept;
  /// Registers the class (name, version, parent) with registrar, so archives can read it back.
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
  atr_String m_Condition;
  cls_Uid m_AssertUid;
};

/// Raises nex_AssertException with the condition's text when it does not hold.
#define NEX_ASSERT(condition, path) \
  ((condition) ? void() : NEX_THROW(nex_AssertException(#condition), path))

/// @}
