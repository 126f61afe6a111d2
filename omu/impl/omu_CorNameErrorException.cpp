#include <cls_ClassRegistrar.h>
#include <cls_ReadVisitor.h>
#include <cls_TypeAdapter.h>
#include <cls_WriteVisitor.h>
#include <omu_CorNameErrorException.h>

#include <array>

omu_CorNameErrorException::omu_CorNameErrorException(const cls_ReadVisitor& reader)
    : nex_Raisable(cls_ReadVisitor(reader, nex_CommandException::TypeId())),
      m_Error(reader.Get<int>("m_Error")),
      m_Uid(reader.Uid()) {}

atr_String omu_CorNameErrorException::JournalMessage() const {
  static constexpr std::array<const char*, 4> messages = {
      "invalid name", "name is empty", "invalid job name", "invalid model name"};
  return m_Error >= 0 && m_Error < static_cast<int>(messages.size())
             ? atr_String(messages[static_cast<std::size_t>(m_Error)])
             : atr_String();
}

void omu_CorNameErrorException::DBWrite(const cls_WriteVisitor& writer) const {
  if (!writer.StartLevel<nex_CommandException>(TypeId(), m_Uid, *this)) return;
  writer.Write("m_Error", m_Error);
}

void omu_CorNameErrorException::InitializeMetadata(cls_ClassRegistrar& registrar) {
  registrar
      .AddClassMD(new cls_TypeAdapter<omu_CorNameErrorException>(
          "omu_CorNameErrorException", 800, nex_CommandException::TypeId()))
      .AddAttribute({0, "m_Error"}, cls_KIND_INT);
}
