#pragma once
/// \addtogroup uti
/// @{

/// \file
/// What a registering module does on its first start and last finalise: insert its class
/// table and queue its registration functions in order; then withdraw both.
#include <cls_MetadataRegistrar.h>
#include <typ_ArchCompTable.h>

#include <initializer_list>

struct UTI_Registration {
  cls_MetadataRegistrar::RegistrationFunction function;
  int phase;
};

inline void UTI_StartModule(unsigned int module, typ_ArchCompEntry table,
                            std::initializer_list<UTI_Registration> registrations) {
  typ_ArchCompTable::Instance().InsertEntry(static_cast<int>(module), table);
  for (const UTI_Registration& registration : registrations) {
    cls_MetadataRegistrar::Instance().initClassMetadata(registration.function, registration.phase);
  }
}

inline void UTI_StopModule(unsigned int module) {
  cls_MetadataRegistrar::Instance().Withdraw(module);
  typ_ArchCompTable::Instance().RemoveEntry(static_cast<int>(module));
}

/// @}
