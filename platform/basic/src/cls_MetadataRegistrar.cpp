#include <cls_MetadataRegistrar.h>

#include <algorithm>

cls_MetadataRegistrar& cls_MetadataRegistrar::Instance() {
  static cls_MetadataRegistrar instance;
  return instance;
}

void cls_MetadataRegistrar::initClassMetadata(RegistrationFunction function, int phase) {
  const auto before = m_Registrar.Classes();
  function(m_Registrar);
  Registration registration{function, phase, {}};
  for (const cls_ClassMetadata* metadata : m_Registrar.Classes()) {
    if (std::find(before.begin(), before.end(), metadata) == before.end()) {
      registration.typeIds.push_back(metadata->TypeId());
    }
  }
  m_Registrations.push_back(std::move(registration));
}

void cls_MetadataRegistrar::Withdraw(unsigned int module) {
  m_Registrar.RemoveModule(module);
  std::erase_if(m_Registrations, [module](const Registration& registration) {
    return std::any_of(registration.typeIds.begin(), registration.typeIds.end(),
                       [module](unsigned int id) { return cls_ModuleOf(id) == module; });
  });
}
