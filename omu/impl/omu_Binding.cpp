#include <omu_Binding.h>
#include <omu_PrimDictionary.h>
#include <omu_PrimList.h>

namespace {
const omu_PrimTuple* TupleOrList(const omu_Primitive& value) {
  return value.IsType('(') ? dynamic_cast<const omu_PrimTuple*>(&value) : nullptr;
}
}  // namespace

omu_PrimOwner omu_SequenceBinding::Tuple(int size, const std::function<omu_PrimOwner(int)>& item) {
  auto tuple = std::make_unique<omu_PrimTuple>(size);
  for (int i = 0; i < size; ++i) tuple->Put(item(i).release());
  return tuple;
}

const omu_PrimSequence* omu_SequenceBinding::Sequence(const omu_Primitive& value) {
  return TupleOrList(value);
}

bool omu_Binding<omu_PrimList>::Convert(const omu_Primitive& value, omu_PrimList& out,
                                        omu_BindingRuleEnum) {
  const omu_PrimTuple* sequence = TupleOrList(value);
  if (!sequence) return false;
  if (const auto* list = dynamic_cast<const omu_PrimList*>(sequence)) {
    out = *list;
  } else {
    omu_PrimList copy(sequence->Size(), '(');
    static_cast<omu_PrimTuple&>(copy) = *sequence;
    out = copy;
  }
  return true;
}

omu_PrimOwner omu_Binding<cow_Map<cow_String, float>>::Make(
    const cow_Map<cow_String, float>& value) {
  auto dictionary = std::make_unique<omu_PrimDictionary<cow_String>>();
  for (const auto& [key, number] : value) dictionary->Put(number, key);
  return dictionary;
}

bool omu_Binding<cow_Map<cow_String, float>>::Convert(const omu_Primitive& value,
                                                      cow_Map<cow_String, float>& out,
                                                      omu_BindingRuleEnum) {
  const auto* dictionary =
      value.IsType('{') ? dynamic_cast<const omu_PrimDictionary<cow_String>*>(&value) : nullptr;
  if (!dictionary) return false;
  cow_Map<cow_String, float> map;
  for (const auto& [key, entry] : dictionary->GetEntries()) {
    float number = 0;
    if (!omu_PrimConvert(entry.ConstGet(), number)) return false;
    map.Insert(key, number);
  }
  out = std::move(map);
  return true;
}
