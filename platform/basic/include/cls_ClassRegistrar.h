#pragma once
/// \addtogroup basic
/// @{

/// \class cls_ClassRegistrar
/// The class registry: metadata by type identifier, in registration order, with the
/// parent chain for type tests. Lookup is two indexed loads (module, then class number).
#include <BASIC_Export.h>
#include <cls_ClassMetadata.h>
#include <cls_TypeIds.h>

#include <memory>
#include <vector>

class BASIC_EXPORT cls_ClassRegistrar {
public:
  cls_ClassRegistrar();
  ~cls_ClassRegistrar();
  /// Not copyable.
  ///@{
  cls_ClassRegistrar(const cls_ClassRegistrar&) = delete;
  cls_ClassRegistrar& operator=(const cls_ClassRegistrar&) = delete;
  ///@}

  /// Takes ownership; a class registered again replaces its earlier metadata.
  cls_ClassMetadata& AddClassMD(cls_ClassMetadata* metadata);

  /// The metadata of typeId, or null.
  const cls_ClassMetadata* Find(unsigned int typeId) const noexcept {
    const unsigned int module = cls_ModuleOf(typeId);
    const unsigned int number = cls_ClassOf(typeId);
    if (module >= m_ByModule.size()) return nullptr;
    const auto& classes = m_ByModule[module];
    return number < classes.size() ? classes[number] : nullptr;
  }
  /// Same as Find, but a missing class raises nex_TextException.
  const cls_ClassMetadata& Get(unsigned int typeId) const;
  /// True when typeId is baseTypeId or derives from it along the registered parents.
  bool IsA(unsigned int typeId, unsigned int baseTypeId) const noexcept;
  /// Every class, in registration order.
  std::vector<const cls_ClassMetadata*> Classes() const;
  /// Drops every class of a module (its finalise).
  void RemoveModule(unsigned int module);

private:
  std::vector<std::unique_ptr<cls_ClassMetadata>> m_Owned;
  std::vector<std::vector<const cls_ClassMetadata*>> m_ByModule;
};

/// @}
