#include <omi_Singleton.h>
#include <omu_InterfaceObj.h>
#include <omu_TextRepr.h>

#include <string>
#include <utility>

omu_TextRepr& omu_TextRepr::Instance() { return omi_Singleton<omu_TextRepr>::Instance(); }

void omu_TextRepr::Release() noexcept { omi_Singleton<omu_TextRepr>::Destroy(); }

bool omu_TextRepr::Exists() noexcept { return omi_Singleton<omu_TextRepr>::Exists(); }

cow_String omu_TextRepr::GetMaxRecursionString(const omu_InterfaceObj* object) const {
  return object ? MaxRecursionText(object->ExposedTypeName()) : m_MaxRecursionFormat;
}

cow_String omu_TextRepr::MaxRecursionText(const cow_String& typeName) const {
  // The format is the host's text: only %s (the first one) and %% are expanded, so that a
  // stray conversion cannot read arguments that are not there.
  const std::string_view format = m_MaxRecursionFormat.View();
  std::string text("'");
  bool named = false;
  for (std::size_t i = 0; i < format.size(); ++i) {
    if (format[i] == '%' && i + 1 < format.size() &&
        (format[i + 1] == '%' || (format[i + 1] == 's' && !named))) {
      if (format[++i] == 's') {
        text.append(typeName.View());
        named = true;
      } else {
        text.push_back('%');
      }
    } else {
      text.push_back(format[i]);
    }
  }
  text.push_back('\'');
  return {std::move(text)};
}
