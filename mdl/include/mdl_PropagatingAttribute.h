#pragma once
/// \addtogroup mdl
/// @{

/// \class mdl_PropAttr
/// mdl_PropAttr<T>: a step-dependent model setting, a value of type T with the state of that
/// value in the current analysis step (mdl_PropAttributeStateEnm). Step to step:
///
/// \code{.unparsed}
///   state      assign value / Get()   Propagate()   Modify(modified other)   assign state s
///   UNSET      SET                    UNSET         other's state, value     s (*)
///   SET        SET                    UNCHANGED     other's state, value     s (*)
///   UNCHANGED  SET                    UNCHANGED     other's state, value     s (*)
///   FREED      SET                    UNSET         other's state, value     s (*)
///   4 to 7     SET                    unchanged     other's state, value     s (*)
///   (*) the value is zeroed first when s is UNSET or FREED.
/// \endcode
///
/// Persisted as "val" and "state", the state by its name. Instantiated in the library for
/// cow_String, double, bool, int, cls_xpListInt, cls_xp1DArrayInt, cls_xpListString and
/// cls_xp1DArrayListFloat.
#include <CVX_Export.h>
#include <UTI_Modules.h>
#include <cls_ClassRegistrar.h>
#include <cls_ReadVisitor.h>
#include <cls_TypeAdapter.h>
#include <cls_Uid.h>
#include <cls_WriteVisitor.h>
#include <cls_xp1DArray.h>
#include <mdl_PropAttributeStateEnm.h>
#include <nex_TextException.h>
#include <omu_PrimEnum.h>

/// The state of a step-dependent setting as a script sees it: an enumeration by name.
using mdl_PropAttributeState = omu_PrimEnum<mdl_PropAttributeStateEnm, 1>;

/// \cond
/// The registration name and class number of each instantiation.
template <unsigned int Number>
struct mdl_PropAttrNumber {
  static constexpr unsigned int number = Number;
};
template <class T>
struct mdl_PropAttrClass;
template <>
struct mdl_PropAttrClass<cow_String> : mdl_PropAttrNumber<14> {
  static constexpr const char* name = "mdl_PropString";
};
template <>
struct mdl_PropAttrClass<double> : mdl_PropAttrNumber<15> {
  static constexpr const char* name = "mdl_PropDouble";
};
template <>
struct mdl_PropAttrClass<bool> : mdl_PropAttrNumber<16> {
  static constexpr const char* name = "mdl_PropBool";
};
template <>
struct mdl_PropAttrClass<cls_xpListInt> : mdl_PropAttrNumber<17> {
  static constexpr const char* name = "mdl_PropListInt";
};
template <>
struct mdl_PropAttrClass<int> : mdl_PropAttrNumber<19> {
  static constexpr const char* name = "mdl_PropInt";
};
template <>
struct mdl_PropAttrClass<cls_xp1DArrayInt> : mdl_PropAttrNumber<20> {
  static constexpr const char* name = "mdl_Prop1DArrayInt";
};
template <>
struct mdl_PropAttrClass<cls_xpListString> : mdl_PropAttrNumber<21> {
  static constexpr const char* name = "mdl_PropListString";
};
/// The class table spells this one "mdl_Prop1DArrayListFloat"; the class has always
/// registered under this name, and archives carry it, so both stay.
template <>
struct mdl_PropAttrClass<cls_xp1DArrayListFloat> : mdl_PropAttrNumber<22> {
  static constexpr const char* name = "mdl_PropList1DArrayListFloat";
};
/// \endcond

/// Final: the destructor is not virtual.
template <class T>
class mdl_PropAttr final {
public:
  /// An unset, zero value with a new uid.
  mdl_PropAttr() : m_Val(), m_State(UNSET), m_Uid(cls_Uid::AllocateUid()) {}
  /// A value given here does not count as set.
  explicit mdl_PropAttr(const T& value)
      : m_Val(value), m_State(UNSET), m_Uid(cls_Uid::AllocateUid()) {}
  /// Copies value, state and uid.
  ///@{
  mdl_PropAttr(const mdl_PropAttr&) = default;  ///< the uid too
  mdl_PropAttr& operator=(const mdl_PropAttr&) = default;
  ///@}
  /// Reads the object back from the record reader is at.
  explicit mdl_PropAttr(const cls_ReadVisitor& reader)
      : m_Val(ReadValue(reader)),
        m_State(mdl_PropAttributeState(reader.ReadEnum("state"))),
        m_Uid(reader.Uid()) {}

  /// Writes the object through writer: its class level, and its parent classes' levels within it.
  virtual void DBWrite(const cls_WriteVisitor& writer) const {
    if (!writer.StartWrite(TypeId(), m_Uid)) return;
    writer.Write("val", cls_xpItem<T>::Encode(m_Val));
    writer.WriteEnum("state", mdl_PropAttributeState(m_State).Name());
  }
  /// Gives the attribute a new identity, as for a copy written as an object of its own.
  virtual void NewUid() { m_Uid = cls_Uid::AllocateUid(); }
  /// TypeId().
  unsigned int DynTypeId() const noexcept { return TypeId(); }
  /// The identity the attribute is written under.
  const cls_Uid& Uid() const noexcept { return m_Uid; }

  /// Sets the value; the state becomes SET.
  mdl_PropAttr& operator=(const T& value) {
    m_Val = value;
    m_State = SET;
    return *this;
  }
  /// Sets the state; UNSET and FREED zero the value first.
  mdl_PropAttr& operator=(const mdl_PropAttributeStateEnm& state) {
    if (state == UNSET || state == FREED) Zero();
    m_State = state;
    return *this;
  }

  /// Compares the state.
  ///@{
  bool operator==(mdl_PropAttributeStateEnm state) const noexcept { return m_State == state; }
  bool operator!=(mdl_PropAttributeStateEnm state) const noexcept { return m_State != state; }
  ///@}
  /// Compares the value.
  ///@{
  bool operator==(const T& value) const { return m_Val == value; }
  bool operator!=(const T& value) const { return !(m_Val == value); }
  ///@}
  /// Compares value and state (not the uid).
  ///@{
  bool operator==(const mdl_PropAttr& other) const {
    return m_Val == other.m_Val && m_State == other.m_State;
  }
  bool operator!=(const mdl_PropAttr& other) const { return !(*this == other); }
  ///@}

  /// For change: the holder counts as set from here on, changed or not.
  T& Get() {
    m_State = SET;
    return m_Val;
  }
  /// The value, without changing the state.
  const T& ConstGet() const noexcept { return m_Val; }
  /// The state in this step.
  mdl_PropAttributeStateEnm State() const noexcept { return m_State; }
  /// Stores the state and nothing else: unlike state assignment it never zeroes the value.
  void ForceState(mdl_PropAttributeStateEnm state) noexcept { m_State = state; }
  /// Sets the value to T(), leaving the state.
  void Zero() { m_Val = T(); }

  /// Into the next step: a value set here is carried on unchanged; a freed one is gone.
  void Propagate() {
    if (m_State == SET) {
      m_State = UNCHANGED;
    } else if (m_State == FREED) {
      m_State = UNSET;
    }
  }
  /// Takes other's state and value when other was modified in its step.
  void Modify(const mdl_PropAttr& other) {
    if (!other.IsModified()) return;
    m_Val = other.m_Val;
    m_State = other.m_State;
  }

  /// Sets the state from a status given by a script for the attribute called name. With
  /// allowUnset the status may be UNSET, SET or UNCHANGED, without it SET, UNCHANGED or FREED;
  /// any other raises nex_TextException and changes nothing. SET leaves the zero value, for
  /// the caller to give the new one.
  void SetStatus(const char* name, const mdl_PropAttributeState& status, bool allowUnset) {
    const atr_String message =
        atr_StringBase::Format("Invalid propagation status for '%s' attribute.", name);
    const mdl_PropAttributeStateEnm state = status;
    if (allowUnset) {
      if (state != UNSET && state != SET && state != UNCHANGED) {
        NEX_THROW(nex_TextException(message), "include/mdl_PropagatingAttribute");
      }
      if (state == UNSET) *this = UNSET;
      if (state == SET) {
        *this = SET;
        Zero();
      }
    } else {
      if (state != SET && state != UNCHANGED && state != FREED) {
        NEX_THROW(nex_TextException(message), "include/mdl_PropagatingAttribute");
      }
      if (state == FREED) *this = FREED;
      if (state == SET) {
        Zero();
        m_State = SET;
      }
    }
  }

  /// SET or FREED: changed in this step.
  bool IsModified() const noexcept { return m_State == SET || m_State == FREED; }
  /// FREED.
  bool IsConditionModified() const noexcept { return m_State == FREED; }
  /// SET or UNCHANGED: holds a value in this step.
  bool IsActive() const noexcept { return m_State == SET || m_State == UNCHANGED; }
  /// UNSET or FREED: holds no value in this step.
  bool IsFree() const noexcept { return m_State == UNSET || m_State == FREED; }

  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept { return mdl_TypeId(mdl_PropAttrClass<T>::number); }
  /// Registers the class (name, version, parent) with registrar, so archives can read it back.
  static void InitializeMetadata(cls_ClassRegistrar& registrar) {
    registrar
        .AddClassMD(
            new cls_TypeAdapter<mdl_PropAttr>(mdl_PropAttrClass<T>::name, 203, cls_RootTypeId))
        .AddAttribute({0, "val"}, cls_xpItem<T>::Kind, 1, 0)
        .AddAttribute({1, "state"}, cls_KIND_ENUM, 1, 0);
  }

private:
  static T ReadValue(const cls_ReadVisitor& reader) {
    T value{};
    if (!cls_xpItem<T>::Decode(reader.Field("val"), value)) {
      reader.Fail("field 'val' does not hold a value of the attribute's type");
    }
    return value;
  }

  T m_Val;
  mdl_PropAttributeStateEnm m_State;
  cls_Uid m_Uid;
};

// The destructor stays out of the virtual table, whose slots are DBWrite and NewUid.
// NOLINTBEGIN(cppcoreguidelines-virtual-class-destructor)
CVX_EXTERN_TEMPLATE(mdl_PropAttr<cow_String>)
CVX_EXTERN_TEMPLATE(mdl_PropAttr<double>)
CVX_EXTERN_TEMPLATE(mdl_PropAttr<bool>)
CVX_EXTERN_TEMPLATE(mdl_PropAttr<cls_xpListInt>)
CVX_EXTERN_TEMPLATE(mdl_PropAttr<int>)
CVX_EXTERN_TEMPLATE(mdl_PropAttr<cls_xp1DArrayInt>)
CVX_EXTERN_TEMPLATE(mdl_PropAttr<cls_xpListString>)
CVX_EXTERN_TEMPLATE(mdl_PropAttr<cls_xp1DArrayListFloat>)
// NOLINTEND(cppcoreguidelines-virtual-class-destructor)

/// @}
