#pragma once
/// \addtogroup idb
/// @{

/// \file
/// A deep copy of a persistent object through the persistence layer: the object is written
/// to a record tree and a new one is read back from it by the class registry.
#include <CVX_Export.h>

/// object must point at the most-derived object of the registered class typeId; the copy is
/// a new heap object of that class (destroy it through the class's metadata). Null gives null.
CVX_EXPORT void* idb_DeepCopy(const void* object, unsigned int typeId);

/// @}
