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
  /// A module's registration function: adds its classes to the registrar.
  using RegistrationFunction = void (*)(cls_ClassRegistrar&);
  /// One registration as recorded.
  struct Registration {
    /// The function run.
    RegistrationFunction function;
    /// The phase it was given.
    int phase;
    std::vector<unsigned int> typeIds;  ///< the classes it added
  };

  /// The process's registrar, created on first use.
  static cls_MetadataRegistrar& Instance();

  /// Runs function against the registrar now and records it with the classes it added.
  void initClassMetadata(RegistrationFunction function, int phase);
  /// The class registry.
  cls_ClassRegistrar& Registrar() noexcept { return m_Registrar; }
  /// The registrations, in order.
  const std::vector<Registration>& Registrations() const noexcept { return m_Registrations; }
  /// Forgets the registrations and classes of one module.
  void Withdraw(unsigned int module);

private:
  cls_MetadataRegistrar() = default;

  cls_ClassRegistrar m_Registrar;
  std::vector<Registration> m_Registrations;
};

/// @}
