#pragma once
// The scripting errors that carry one text, "m_Value", and differ only in their class,
// script-level name and message format. Derived supplies ClassName, ScriptName,
// MessageFormat (one %s) and TypeId().
#include <CVX_Export.h>
#include <UTI_Modules.h>
#include <cls_ClassRegistrar.h>
#include <cls_ReadVisitor.h>
#include <cls_TypeAdapter.h>
#include <cls_WriteVisitor.h>
#include <nex_CommandException.h>
#include <nex_Raisable.h>

template <class Derived>
class omu_TextErrorException : public nex_Raisable<Derived, nex_CommandException> {
  using Raisable = nex_Raisable<Derived, nex_CommandException>;

public:
  explicit omu_TextErrorException(const atr_String& value = atr_String()) : m_Value(value) {}
  explicit omu_TextErrorException(const cls_ReadVisitor& reader)
      : Raisable(cls_ReadVisitor(reader, nex_CommandException::TypeId())),
        m_Value(reader.Get<atr_String>("m_Value")),
        m_Uid(reader.Uid()) {}

  const atr_String& Value() const noexcept { return m_Value; }
  atr_String JournalMessage() const override {
    return atr_StringBase::Format(Derived::MessageFormat, m_Value.CStr());
  }
  cow_String PythonType() const override { return Derived::ScriptName; }
  void DBWrite(const cls_WriteVisitor& writer) const override {
    if (!writer.template StartLevel<nex_CommandException>(Derived::TypeId(), m_Uid, *this)) return;
    writer.Write("m_Value", m_Value);
  }

  static void InitializeMetadata(cls_ClassRegistrar& registrar) {
    registrar
        .AddClassMD(new cls_TypeAdapter<Derived>(Derived::ClassName, 800,
                                                 nex_CommandException::TypeId()))
        .AddAttribute({0, "m_Value"}, cls_KIND_STRING);
  }

private:
  atr_String m_Value;
  cls_Uid m_Uid;
};
