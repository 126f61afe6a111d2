#pragma once
/// \addtogroup basic
/// @{

/// \class cow_Btree
/// The BasicUtils B-tree: an ordered copy-on-write map with the same interface as cow_Map,
/// and the same rules for equality and threads.
#include <cow_Map.h>

template <class K, class V>
class cow_Btree : public cow_Map<K, V> {
public:
  using cow_Map<K, V>::cow_Map;
};

/// @}
