#pragma once
/// \addtogroup basic
/// @{

/// \class cls_MetadataRegistrar
/// Process-wide entry to the class registry. Modules hand it their registration functions
/// with a phase number; each is recorded in order and run at once against the registrar.
#include <BASIC_Export.h>
#include <cls_ClassRegistrar.h>

class BASIC_EXPORT cls_MetadataRegistrar {
public:
  using RegistrationFunction = void (*)(cls_ClassRegistrar&);
  struct Registration {
    RegistrationFunction function;
    int phase;
    std::vector<unsigned int> typeIds;  ///< the classes it added
  };

  static cls_MetadataRegistrar& Instance();

  void initClassMetadata(RegistrationFunction function, int phase);
  cls_ClassRegistrar& Registrar() noexcept { return m_Registrar; }
  const std::vector<Registration>& Registrations() const noexcept { return m_Registrations; }
  /// Forgets the registrations and classes of one module.
  void Withdraw(unsigned int module);

private:
  cls_MetadataRegistrar() = default;

  cls_ClassRegistrar m_Registrar;
  std::vector<Registration> m_Registrations;
};

/// @}
