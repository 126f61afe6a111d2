#include <omu_PyObjectWrapper.h>

bool omu_PyObjectWrapper::operator==(const omu_Primitive& other) const {
  const auto* wrapper = dynamic_cast<const omu_PyObjectWrapper*>(&other);
  return wrapper && wrapper->m_Object == m_Object;
}
