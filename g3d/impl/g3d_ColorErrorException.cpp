#include <g3d_ColorErrorException.h>

#include <UTI_Modules.h>

atr_String g3d_ColorErrorException::JournalMessage() const {
  return atr_StringBase::Format("%s is not a valid color name.", m_Value.CStr());
}

unsigned int g3d_ColorErrorException::TypeId() noexcept { return g3d_TypeId(3); }
