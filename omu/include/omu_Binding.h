#pragma once
/// \addtogroup omu
/// @{

/// \struct omu_Binding
/// How a native value becomes a primitive and a primitive a native value: one trait per native
/// type, omu_Binding<T>. The Put and Get operations of tuples, lists, dictionaries and argument
/// lists go through it, and argument errors name the type by it. A specialisation holds, all
/// static:
///
/// \code{.unparsed}
///   code      char: the type code of the primitive Make builds
///   Make      omu_PrimOwner Make(const T& value): a new primitive carrying value, owned by the
///             caller
///   Convert   bool Convert(const omu_Primitive& value, T& out, omu_BindingRuleEnum rule): sets
///             out and answers true when value is of a kind T takes under rule; else answers
///             false and leaves out untouched
///   Expected  cow_String Expected(const T& out): the expected type an argument error names
/// \endcode
///
/// code and Make where values of T can be put (omu_Puttable), Convert and Expected where they
/// can be got (omu_Gettable).
///
/// The library binds the types that omu_BindingTypes lists. A type of one's own enters
/// with one specialisation, visible wherever it is put or got, and is then stored and read
/// through PutValue and GetValue of tuples, lists and argument lists, and Put and Get of
/// dictionaries; a type without one does not compile there. Enumeration classes bind as
/// omu_PrimEnumBase does.
///
/// What Convert takes, by either rule unless said (collection elements by the converting one):
/// \code{.unparsed}
///   int, short, signed char    an integer number; by position only one of the type's own data
///                              type (INT, SHORT, SCHAR)
///   unsigned int               a UINT number, or another integer number that is not negative
///   double, float              any number
///   bool                       a Boolean, or an integer number but UINT that is 0 or 1 (by
///                              position after narrowing it to its own data type)
///   cow_String, atr_String,    a string or translated string (atr_String keeps which)
///   utl_FilePath
///   const char*                a string, whose text it lends
///   omi_complex                a complex number, or any number as the real part
///   cow_List<T>                a tuple or list whose every element T takes
///   cow_2DArray<T>             a tuple or list of equally long tuples or lists of T
///   cow_Map<cow_String, float> a dictionary with string keys whose every value is a number
///   primitive classes          a value of that class and type code, copied (omu_PrimList takes
///                              a tuple too, a wrapper any type code, an enumeration a name that
///                              out accepts)
///   const omu_PyObjectWrapper*, const omu_ListPyObjectWrapper*, const omu_InterfaceObj*
///                              a value of that class, lent
/// \endcode
///
/// Bindings keep no state and are safe on any thread. Make allocates one primitive, and one
/// more per element of a collection.
#include <CVX_Export.h>
#include <atr_String.h>
#include <cow_2DArray.h>
#include <cow_List.h>
#include <cow_Map.h>
#include <cow_String.h>
#include <omi_complex.h>
#include <omu_BindingRuleEnum.h>
#include <omu_PrimBoolean.h>
#include <omu_PrimComplex.h>
#include <omu_PrimEnumBase.h>
#include <omu_PrimNumber.h>
#include <omu_PrimSequence.h>
#include <omu_PrimString.h>
#include <omu_PrimTranslatedString.h>
#include <omu_PythonType.h>
#include <utl_FilePath.h>

#include <algorithm>
#include <concepts>
#include <cstddef>
#include <functional>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

class omu_InterfaceObj;
class omu_ListPyObjectWrapper;
class omu_PrimArray;
class omu_PrimExpr;
class omu_PrimList;
class omu_PrimNone;
class omu_PrimPath;
class omu_PrimTuple;
class omu_PrimType;
class omu_PyObjectWrapper;
template <class K>
class omu_DictPyObjectWrapper;
template <class K>
class omu_PrimDictionary;

/// A primitive owned by whoever holds it.
using omu_PrimOwner = std::unique_ptr<omu_Primitive>;

template <class T>
struct omu_Binding;

/// T has a binding that puts it (code and Make).
template <class T>
concept omu_Puttable = requires(const T& value) {
  { omu_Binding<T>::code } -> std::convertible_to<char>;
  { omu_Binding<T>::Make(value) } -> std::same_as<omu_PrimOwner>;
};

/// T has a binding that gets it (Convert and Expected).
template <class T>
concept omu_Gettable = requires(const omu_Primitive& value, T& out, omu_BindingRuleEnum rule) {
  { omu_Binding<T>::Convert(value, out, rule) } -> std::same_as<bool>;
  { omu_Binding<T>::Expected(std::as_const(out)) } -> std::convertible_to<cow_String>;
};

/// The primitive carrying value.
template <omu_Puttable T>
omu_PrimOwner omu_PrimMake(const T& value) {
  return omu_Binding<T>::Make(value);
}

/// The primitive a container stores for value: as its binding makes it, a copy of a primitive
/// of a class without a binding of its own, or the primitive a pointer gives (ownership taken).
///@{
template <omu_Puttable T>
omu_PrimOwner omu_PrimOwn(const T& value) {
  return omu_PrimMake(value);
}
inline omu_PrimOwner omu_PrimOwn(const omu_Primitive& value) { return omu_PrimOwner(value.Copy()); }
inline omu_PrimOwner omu_PrimOwn(omu_Primitive* value) { return omu_PrimOwner(value); }
///@}

/// omu_Binding<T>::Convert, refusing a null value.
template <omu_Gettable T>
bool omu_PrimConvert(const omu_Primitive* value, T& out,
                     omu_BindingRuleEnum rule = omu_BINDING_CONVERTING) {
  return value && omu_Binding<T>::Convert(*value, out, rule);
}

/// An expected-type name as a template argument of the binding families below.
template <std::size_t N>
struct omu_BindingName {
  /// Takes the name literal.
  constexpr omu_BindingName(const char (&name)[N]) { std::copy_n(name, N, text); }
  /// The name, null-terminated.
  char text[N]{};
};

/// \cond
// --- Scalars -------------------------------------------------------------------------------

/// A number of data type Kind. An integer type takes the number's AsInt (a UINT number's
/// unsigned value) cast to itself.
template <class T, omu_PrimNumber::DataTypeEnm Kind>
struct omu_NumberBinding {
  static constexpr bool floating = Kind == omu_PrimNumber::FLOAT || Kind == omu_PrimNumber::DOUBLE;
  static constexpr char code = floating ? 'f' : 'i';

  static omu_PrimOwner Make(const T& value) { return std::make_unique<omu_PrimNumber>(value); }
  static bool Convert(const omu_Primitive& value, T& out, omu_BindingRuleEnum rule) {
    if (!value.IsType('i') && !(floating && value.IsType('f'))) return false;
    const auto& number = static_cast<const omu_PrimNumber&>(value);
    const bool unsignedNumber = number.DataType() == omu_PrimNumber::UINT;
    if constexpr (floating) {
      out = static_cast<T>(number.AsDouble());
    } else if constexpr (Kind == omu_PrimNumber::UINT) {
      if (!unsignedNumber && number.AsInt() < 0) return false;
      out = unsignedNumber ? number.UValue() : static_cast<unsigned int>(number.AsInt());
    } else {
      if (rule == omu_BINDING_EXACT && number.DataType() != Kind) return false;
      out = static_cast<T>(unsignedNumber ? static_cast<int>(number.UValue()) : number.AsInt());
    }
    return true;
  }
  static cow_String Expected(const T&) { return floating ? "float" : "int"; }
};

template <>
struct omu_Binding<int> : omu_NumberBinding<int, omu_PrimNumber::INT> {};
template <>
struct omu_Binding<unsigned int> : omu_NumberBinding<unsigned int, omu_PrimNumber::UINT> {};
template <>
struct omu_Binding<short> : omu_NumberBinding<short, omu_PrimNumber::SHORT> {};
template <>
struct omu_Binding<signed char> : omu_NumberBinding<signed char, omu_PrimNumber::SCHAR> {};
template <>
struct omu_Binding<float> : omu_NumberBinding<float, omu_PrimNumber::FLOAT> {};
template <>
struct omu_Binding<double> : omu_NumberBinding<double, omu_PrimNumber::DOUBLE> {};

template <>
struct omu_Binding<bool> {
  static constexpr char code = 'b';

  static omu_PrimOwner Make(const bool& value) { return std::make_unique<omu_PrimBoolean>(value); }
  static bool Convert(const omu_Primitive& value, bool& out, omu_BindingRuleEnum rule) {
    if (value.IsType('b')) {
      out = static_cast<const omu_PrimBoolean&>(value).Value();
      return true;
    }
    if (!value.IsType('i')) return false;
    const auto& number = static_cast<const omu_PrimNumber&>(value);
    int flag = number.AsInt();
    // By position a number is read as an integer of its own data type first.
    if (rule == omu_BINDING_EXACT && number.DataType() == omu_PrimNumber::SCHAR) {
      flag =
          static_cast<signed char>(flag);  // NOLINT(bugprone-signed-char-misuse): wraps on purpose
    } else if (rule == omu_BINDING_EXACT && number.DataType() == omu_PrimNumber::SHORT) {
      flag = static_cast<short>(flag);
    }
    if (number.DataType() == omu_PrimNumber::UINT || (flag != 0 && flag != 1)) return false;
    out = flag == 1;
    return true;
  }
  static cow_String Expected(const bool&) { return "Boolean"; }
};

/// A text: put as a string, taken from a string or a translated string.
template <class T>
struct omu_TextBinding {
  static constexpr char code = 's';

  static omu_PrimOwner Make(const T& value) {
    if constexpr (std::is_same_v<T, utl_FilePath>) {
      return std::make_unique<omu_PrimString>(value.Text());
    } else {
      return std::make_unique<omu_PrimString>(cow_String(value));
    }
  }
  static bool Convert(const omu_Primitive& value, T& out, omu_BindingRuleEnum) {
    const atr_StringBase* text = nullptr;
    if (value.IsType('s')) text = &static_cast<const omu_PrimString&>(value).Text();
    if (value.IsType('l')) text = &static_cast<const omu_PrimTranslatedString&>(value).Text();
    if (!text) return false;
    if constexpr (std::is_same_v<T, utl_FilePath>) {
      out = utl_FilePath(cow_String(*text));
    } else {
      // Shares the text's buffer: no temporary handle, and nothing counted when out already
      // shares it.
      static_cast<atr_StringBase&>(out) = *text;
    }
    if constexpr (std::is_same_v<T, atr_String>) out.SetTranslatable(value.IsType('l'));
    return true;
  }
  static cow_String Expected(const T&) { return "string"; }
};

template <>
struct omu_Binding<cow_String> : omu_TextBinding<cow_String> {};
template <>
struct omu_Binding<atr_String> : omu_TextBinding<atr_String> {};
template <>
struct omu_Binding<utl_FilePath> : omu_TextBinding<utl_FilePath> {};

/// Lends the text of a string; a translated string is refused.
template <>
struct omu_Binding<const char*> {
  static constexpr char code = 's';

  static omu_PrimOwner Make(const char* value) {
    return std::make_unique<omu_PrimString>(cow_String(value));
  }
  static bool Convert(const omu_Primitive& value, const char*& out, omu_BindingRuleEnum) {
    if (!value.IsType('s')) return false;
    out = static_cast<const omu_PrimString&>(value).AsCharPtr();
    return true;
  }
  static cow_String Expected(const char*) { return "string"; }
};

/// A text literal is put as the text it points to.
template <std::size_t N>
struct omu_Binding<char[N]> : omu_Binding<const char*> {};

template <>
struct omu_Binding<omi_complex> {
  static constexpr char code = 'x';

  static omu_PrimOwner Make(const omi_complex& value) {
    return std::make_unique<omu_PrimComplex>(value);
  }
  static bool Convert(const omu_Primitive& value, omi_complex& out, omu_BindingRuleEnum rule) {
    if (value.IsType('x')) {
      out = static_cast<const omu_PrimComplex&>(value).Value();
      return true;
    }
    double real = 0;
    if (!omu_Binding<double>::Convert(value, real, rule)) return false;
    out = omi_complex(real, 0.0);
    return true;
  }
  static cow_String Expected(const omi_complex&) { return "complex"; }
};

// --- Primitive classes -----------------------------------------------------------------------

/// A primitive class: put as a copy of itself (its own class kept), taken from a value of that
/// class and type code.
template <class T, char Code, omu_BindingName Name>
struct omu_ValueBinding {
  static constexpr char code = Code;
  static constexpr const char* name = Name.text;

  static omu_PrimOwner Make(const T& value) { return omu_PrimOwner(value.Copy()); }
  static bool Convert(const omu_Primitive& value, T& out, omu_BindingRuleEnum) {
    const T* typed = value.IsType(Code) ? dynamic_cast<const T*>(&value) : nullptr;
    if (typed) out = *typed;
    return typed != nullptr;
  }
  static cow_String Expected(const T&) { return name; }
};

template <>
struct omu_Binding<omu_PrimType> : omu_ValueBinding<omu_PrimType, 't', "type"> {};
template <>
struct omu_Binding<omu_PrimNone> : omu_ValueBinding<omu_PrimNone, 'n', "None"> {};
template <>
struct omu_Binding<omu_PrimPath> : omu_ValueBinding<omu_PrimPath, 'p', "path"> {};
template <>
struct omu_Binding<omu_PrimExpr> : omu_ValueBinding<omu_PrimExpr, 'e', "expression"> {};
template <>
struct omu_Binding<omu_PrimArray> : omu_ValueBinding<omu_PrimArray, 'o', "omu_PrimArray"> {};
template <>
struct omu_Binding<omu_PrimTuple> : omu_ValueBinding<omu_PrimTuple, '(', "PrimSequence"> {};
template <>
struct omu_Binding<omu_PrimDictionary<int>>
    : omu_ValueBinding<omu_PrimDictionary<int>, '{', "dictionary with integer keys"> {};
template <>
struct omu_Binding<omu_PrimDictionary<cow_String>>
    : omu_ValueBinding<omu_PrimDictionary<cow_String>, '{', "dictionary with string keys"> {};

template <>
struct omu_Binding<omu_PrimList> : omu_ValueBinding<omu_PrimList, '(', "list"> {
  /// A tuple is taken too, as a list of its size.
  CVX_EXPORT static bool Convert(const omu_Primitive& value, omu_PrimList& out,
                                 omu_BindingRuleEnum rule);
};

/// A script list or dictionary held with its script object: put and named as the class it
/// wraps, taken from a wrapper of any type code.
template <class T, class Wrapped>
struct omu_WrapperBinding : omu_Binding<Wrapped> {
  static omu_PrimOwner Make(const T& value) { return omu_PrimOwner(value.Copy()); }
  static bool Convert(const omu_Primitive& value, T& out, omu_BindingRuleEnum) {
    const T* typed = dynamic_cast<const T*>(&value);
    if (typed) out = *typed;
    return typed != nullptr;
  }
};

template <>
struct omu_Binding<omu_ListPyObjectWrapper>
    : omu_WrapperBinding<omu_ListPyObjectWrapper, omu_PrimList> {};
template <class K>
struct omu_Binding<omu_DictPyObjectWrapper<K>>
    : omu_WrapperBinding<omu_DictPyObjectWrapper<K>, omu_PrimDictionary<K>> {};

/// An enumeration is put as a copy of itself and taken by name: the name must be one that out
/// accepts (SetValue), and out's permissible names are what an error says was expected.
template <>
struct omu_Binding<omu_PrimEnumBase> {
  static constexpr char code = 'c';

  static omu_PrimOwner Make(const omu_PrimEnumBase& value) { return omu_PrimOwner(value.Copy()); }
  static bool Convert(const omu_Primitive& value, omu_PrimEnumBase& out, omu_BindingRuleEnum) {
    return value.IsType('c') &&
           out.SetValue(static_cast<const omu_PrimEnumBase&>(value).GetString());
  }
  static cow_String Expected(const omu_PrimEnumBase& out) { return out.TypeString(); }
};

template <class T>
requires std::derived_from<T, omu_PrimEnumBase>
struct omu_Binding<T> : omu_Binding<omu_PrimEnumBase> {
};

/// A value of class T, lent; only got.
template <class T, omu_BindingName Name>
struct omu_LentBinding {
  static bool Convert(const omu_Primitive& value, const T*& out, omu_BindingRuleEnum) {
    const T* typed = dynamic_cast<const T*>(&value);
    if (typed) out = typed;
    return typed != nullptr;
  }
  static cow_String Expected(const T*) { return Name.text; }
};

template <>
struct omu_Binding<const omu_PyObjectWrapper*> : omu_LentBinding<omu_PyObjectWrapper, "PyObject"> {
};
template <>
struct omu_Binding<const omu_ListPyObjectWrapper*>
    : omu_LentBinding<omu_ListPyObjectWrapper, "list"> {};
template <>
struct omu_Binding<const omu_InterfaceObj*>
    : omu_LentBinding<omu_InterfaceObj, omu_PythonType::Generic> {};

// --- Collections -----------------------------------------------------------------------------

/// What the list and two-dimensional array bindings share: made as tuples, taken from tuples
/// or lists. Tuples are made and recognised out of line, as omu_PrimTuple includes this header.
/// The functions are exported one by one: on Windows a constant of an imported class would be
/// imported too, and the library has no copy of code to export.
struct omu_SequenceBinding {
  static constexpr char code = '(';

  /// A tuple of size elements, made by item(0) to item(size - 1) in order.
  CVX_EXPORT static omu_PrimOwner Tuple(int size, const std::function<omu_PrimOwner(int)>& item);
  /// value when it is a tuple or list (type code '('), else null.
  CVX_EXPORT static const omu_PrimSequence* Sequence(const omu_Primitive& value);
  /// The elements of a tuple or list, each taken as T by the converting rule; false (items
  /// unspecified) when value is neither or an element is refused.
  template <class T>
  static bool Items(const omu_Primitive& value, std::vector<T>& items) {
    const omu_PrimSequence* sequence = Sequence(value);
    if (!sequence) return false;
    items.resize(static_cast<std::size_t>(sequence->Size()));
    for (int i = 0; i < sequence->Size(); ++i) {
      T item{};
      if (!omu_PrimConvert(sequence->Index(i), item)) return false;
      items[static_cast<std::size_t>(i)] = item;
    }
    return true;
  }
};

template <class T>
struct omu_Binding<cow_List<T>> : omu_SequenceBinding {
  static omu_PrimOwner Make(const cow_List<T>& value) {
    const std::vector<T>& items = value.Vector();
    return Tuple(value.Length(),
                 [&items](int i) { return omu_PrimMake(items[static_cast<std::size_t>(i)]); });
  }
  static bool Convert(const omu_Primitive& value, cow_List<T>& out, omu_BindingRuleEnum) {
    std::vector<T> items;
    if (!Items(value, items)) return false;
    out = cow_List<T>(std::move(items));
    return true;
  }
  static cow_String Expected(const cow_List<T>&) {
    return cow_String("sequence of ") + omu_Binding<T>::Expected(T()).View();
  }
};

template <class T>
struct omu_Binding<cow_2DArray<T>> : omu_SequenceBinding {
  static omu_PrimOwner Make(const cow_2DArray<T>& value) {
    const std::vector<T>& cells = value.Cells();
    const int columns = value.Columns();
    return Tuple(value.Rows(), [&cells, columns](int r) {
      return Tuple(columns, [&cells, columns, r](int c) {
        return omu_PrimMake(cells[static_cast<std::size_t>(r) * static_cast<std::size_t>(columns) +
                                  static_cast<std::size_t>(c)]);
      });
    });
  }
  static bool Convert(const omu_Primitive& value, cow_2DArray<T>& out, omu_BindingRuleEnum) {
    const omu_PrimSequence* rows = Sequence(value);
    if (!rows) return false;
    std::vector<T> cells;
    int columns = -1;
    for (int r = 0; r < rows->Size(); ++r) {
      const omu_Primitive* row = rows->Index(r);
      std::vector<T> items;
      if (!row || !Items(*row, items)) return false;
      if (columns >= 0 && items.size() != static_cast<std::size_t>(columns)) return false;
      columns = static_cast<int>(items.size());
      cells.insert(cells.end(), items.begin(), items.end());
    }
    cow_2DArray<T> result(rows->Size(), std::max(columns, 0));
    result.MutableCells() = std::move(cells);
    out = std::move(result);
    return true;
  }
  static cow_String Expected(const cow_2DArray<T>&) {
    return cow_String("sequence of sequences of ") + omu_Binding<T>::Expected(T()).View();
  }
};

/// Exported function by function, as omu_SequenceBinding.
template <>
struct omu_Binding<cow_Map<cow_String, float>> {
  static constexpr char code = '{';

  /// A dictionary with string keys.
  CVX_EXPORT static omu_PrimOwner Make(const cow_Map<cow_String, float>& value);
  CVX_EXPORT static bool Convert(const omu_Primitive& value, cow_Map<cow_String, float>& out,
                                 omu_BindingRuleEnum rule);
  static cow_String Expected(const cow_Map<cow_String, float>&) {
    return omu_Binding<omu_PrimDictionary<cow_String>>::name;
  }
};

/// \endcond
/// @}
