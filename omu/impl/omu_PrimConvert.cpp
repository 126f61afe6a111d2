#include <omi_complex.h>
#include <omu_DictPyObjectWrapper.h>
#include <omu_ListPyObjectWrapper.h>
#include <omu_PrimArray.h>
#include <omu_PrimBoolean.h>
#include <omu_PrimComplex.h>
#include <omu_InterfaceObj.h>
#include <omu_PrimConvert.h>
#include <omu_PrimEnumBase.h>
#include <omu_PrimList.h>
#include <omu_PrimNumber.h>
#include <omu_PrimPath.h>
#include <omu_PrimString.h>
#include <omu_PrimTranslatedString.h>
#include <omu_PrimType.h>
#include <omu_PyObjectWrapper.h>
#include <utl_FilePath.h>

#include <vector>

namespace {
const omu_PrimNumber* Number(const omu_Primitive* value) {
  return value && (value->IsType('i') || value->IsType('f')) ? static_cast<const omu_PrimNumber*>(value)
                                                             : nullptr;
}

const omu_PrimNumber* Integer(const omu_Primitive* value) {
  return value && value->IsType('i') ? static_cast<const omu_PrimNumber*>(value) : nullptr;
}

const omu_PrimTuple* Sequence(const omu_Primitive* value) {
  return value && value->IsType('(') ? dynamic_cast<const omu_PrimTuple*>(value) : nullptr;
}

template <class Narrow>
bool ConvertInteger(const omu_Primitive* value, Narrow& out) {
  const omu_PrimNumber* number = Integer(value);
  if (!number) return false;
  out = static_cast<Narrow>(number->DataType() == omu_PrimNumber::UINT
                                ? static_cast<int>(number->UValue())
                                : number->AsInt());
  return true;
}

template <class Out>
bool ConvertText(const omu_Primitive* value, Out& out) {
  if (value && value->IsType('s')) {
    out = Out(static_cast<const omu_PrimString*>(value)->Text());
    return true;
  }
  if (value && value->IsType('l')) {
    out = Out(static_cast<const omu_PrimTranslatedString*>(value)->Text());
    return true;
  }
  return false;
}

// Every element of a sequence converted, or nothing written.
template <class T>
bool ConvertAll(const omu_PrimTuple& sequence, std::vector<T>& items) {
  items.resize(static_cast<std::size_t>(sequence.Size()));
  for (int i = 0; i < sequence.Size(); ++i) {
    T item{};
    if (!omu_PrimConvert(sequence.Index(i), item)) return false;
    items[static_cast<std::size_t>(i)] = item;
  }
  return true;
}

template <class T>
bool ConvertList(const omu_Primitive* value, cow_List<T>& out) {
  const omu_PrimTuple* sequence = Sequence(value);
  std::vector<T> items;
  if (!sequence || !ConvertAll(*sequence, items)) return false;
  out = cow_List<T>(std::move(items));
  return true;
}

template <class T>
bool Convert2D(const omu_Primitive* value, cow_2DArray<T>& out) {
  const omu_PrimTuple* rows = Sequence(value);
  if (!rows) return false;
  std::vector<T> cells;
  int columns = -1;
  for (int r = 0; r < rows->Size(); ++r) {
    const omu_PrimTuple* row = Sequence(rows->Index(r));
    if (!row || (columns >= 0 && row->Size() != columns)) return false;
    columns = row->Size();
    std::vector<T> items;
    if (!ConvertAll(*row, items)) return false;
    cells.insert(cells.end(), items.begin(), items.end());
  }
  cow_2DArray<T> result(rows->Size(), columns < 0 ? 0 : columns);
  result.MutableCells() = std::move(cells);
  out = std::move(result);
  return true;
}

template <class T>
bool ConvertKind(const omu_Primitive* value, T& out, char code) {
  if (!value || !value->IsType(code)) return false;
  const auto* typed = dynamic_cast<const T*>(value);
  if (!typed) return false;
  out = *typed;
  return true;
}

template <class T>
bool ConvertWrapper(const omu_Primitive* value, T& out) {
  const auto* typed = dynamic_cast<const T*>(value);
  if (!typed) return false;
  out = *typed;
  return true;
}

template <class K>
bool ConvertDictionary(const omu_Primitive* value, omu_PrimDictionary<K>& out) {
  return ConvertKind(value, out, '{');
}
}  // namespace

bool omu_PrimConvert(const omu_Primitive* value, int& out) { return ConvertInteger(value, out); }
bool omu_PrimConvert(const omu_Primitive* value, short& out) { return ConvertInteger(value, out); }
bool omu_PrimConvert(const omu_Primitive* value, signed char& out) { return ConvertInteger(value, out); }

bool omu_PrimConvert(const omu_Primitive* value, unsigned int& out) {
  const omu_PrimNumber* number = Integer(value);
  if (!number) return false;
  if (number->DataType() == omu_PrimNumber::UINT) {
    out = number->UValue();
    return true;
  }
  if (number->AsInt() < 0) return false;
  out = static_cast<unsigned int>(number->AsInt());
  return true;
}

bool omu_PrimConvert(const omu_Primitive* value, double& out) {
  const omu_PrimNumber* number = Number(value);
  if (!number) return false;
  out = number->AsDouble();
  return true;
}

bool omu_PrimConvert(const omu_Primitive* value, float& out) {
  const omu_PrimNumber* number = Number(value);
  if (!number) return false;
  out = static_cast<float>(number->AsDouble());
  return true;
}

bool omu_PrimConvert(const omu_Primitive* value, bool& out) {
  if (value && value->IsType('b')) {
    out = static_cast<const omu_PrimBoolean*>(value)->Value();
    return true;
  }
  const omu_PrimNumber* number = Integer(value);
  if (!number || number->DataType() == omu_PrimNumber::UINT) return false;
  const int flag = number->AsInt();
  if (flag != 0 && flag != 1) return false;
  out = flag == 1;
  return true;
}

bool omu_PrimConvert(const omu_Primitive* value, cow_String& out) { return ConvertText(value, out); }

bool omu_PrimConvert(const omu_Primitive* value, atr_String& out) {
  if (!ConvertText(value, out)) return false;
  out.SetTranslatable(value->IsType('l'));
  return true;
}

bool omu_PrimConvert(const omu_Primitive* value, const char*& out) {
  if (!value || !value->IsType('s')) return false;
  out = static_cast<const omu_PrimString*>(value)->AsCharPtr();
  return true;
}

bool omu_PrimConvert(const omu_Primitive* value, utl_FilePath& out) {
  cow_String text;
  if (!ConvertText(value, text)) return false;
  out = utl_FilePath(text);
  return true;
}

bool omu_PrimConvert(const omu_Primitive* value, omi_complex& out) {
  if (value && value->IsType('x')) {
    out = static_cast<const omu_PrimComplex*>(value)->Value();
    return true;
  }
  const omu_PrimNumber* number = Number(value);
  if (!number) return false;
  out = omi_complex(number->AsDouble(), 0.0);
  return true;
}

bool omu_PrimConvert(const omu_Primitive* value, cow_List<int>& out) { return ConvertList(value, out); }
bool omu_PrimConvert(const omu_Primitive* value, cow_List<double>& out) { return ConvertList(value, out); }
bool omu_PrimConvert(const omu_Primitive* value, cow_List<float>& out) { return ConvertList(value, out); }
bool omu_PrimConvert(const omu_Primitive* value, cow_List<bool>& out) { return ConvertList(value, out); }
bool omu_PrimConvert(const omu_Primitive* value, cow_List<cow_String>& out) {
  return ConvertList(value, out);
}
bool omu_PrimConvert(const omu_Primitive* value, cow_List<atr_String>& out) {
  return ConvertList(value, out);
}
bool omu_PrimConvert(const omu_Primitive* value, cow_2DArray<double>& out) { return Convert2D(value, out); }
bool omu_PrimConvert(const omu_Primitive* value, cow_2DArray<cow_String>& out) {
  return Convert2D(value, out);
}

bool omu_PrimConvert(const omu_Primitive* value, cow_Map<cow_String, float>& out) {
  const auto* dictionary = value && value->IsType('{')
                               ? dynamic_cast<const omu_PrimDictionary<cow_String>*>(value)
                               : nullptr;
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

bool omu_PrimConvert(const omu_Primitive* value, omu_PrimEnumBase& out) {
  return value && value->IsType('c') &&
         out.SetValue(static_cast<const omu_PrimEnumBase*>(value)->GetString());
}

bool omu_PrimConvert(const omu_Primitive* value, omu_PrimDictionary<cow_String>& out) {
  return ConvertDictionary(value, out);
}
bool omu_PrimConvert(const omu_Primitive* value, omu_PrimDictionary<int>& out) {
  return ConvertDictionary(value, out);
}

bool omu_PrimConvert(const omu_Primitive* value, omu_PrimTuple& out) {
  const omu_PrimTuple* sequence = Sequence(value);
  if (!sequence) return false;
  out = *sequence;
  return true;
}

bool omu_PrimConvert(const omu_Primitive* value, omu_PrimList& out) {
  const omu_PrimTuple* sequence = Sequence(value);
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

bool omu_PrimConvert(const omu_Primitive* value, omu_PrimArray& out) { return ConvertKind(value, out, 'o'); }
bool omu_PrimConvert(const omu_Primitive* value, omu_PrimNone& out) { return ConvertKind(value, out, 'n'); }
bool omu_PrimConvert(const omu_Primitive* value, omu_PrimPath& out) { return ConvertKind(value, out, 'p'); }
bool omu_PrimConvert(const omu_Primitive* value, omu_PrimType& out) { return ConvertKind(value, out, 't'); }

bool omu_PrimConvert(const omu_Primitive* value, const omu_InterfaceObj*& out) {
  const auto* object = dynamic_cast<const omu_InterfaceObj*>(value);
  if (!object) return false;
  out = object;
  return true;
}

bool omu_PrimConvert(const omu_Primitive* value, const omu_PyObjectWrapper*& out) {
  const auto* wrapper = dynamic_cast<const omu_PyObjectWrapper*>(value);
  if (!wrapper) return false;
  out = wrapper;
  return true;
}

bool omu_PrimConvert(const omu_Primitive* value, const omu_ListPyObjectWrapper*& out) {
  const auto* wrapper = dynamic_cast<const omu_ListPyObjectWrapper*>(value);
  if (!wrapper) return false;
  out = wrapper;
  return true;
}

bool omu_PrimConvert(const omu_Primitive* value, omu_ListPyObjectWrapper& out) {
  return ConvertWrapper(value, out);
}
bool omu_PrimConvert(const omu_Primitive* value, omu_DictPyObjectWrapper<int>& out) {
  return ConvertWrapper(value, out);
}
bool omu_PrimConvert(const omu_Primitive* value, omu_DictPyObjectWrapper<cow_String>& out) {
  return ConvertWrapper(value, out);
}
