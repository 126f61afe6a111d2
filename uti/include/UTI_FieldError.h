#pragma once
/// \addtogroup uti
/// @{

/// \class UTI_FieldError
/// A scripting error class whose persisted fields are described once, by Derived's table:
/// \code
///   static constexpr auto Fields() { return UTI_FieldTable{UTI_Field{...}, ...}; }
/// \endcode
/// (private, with UTI_FieldError a friend). The record DBWrite writes, the fields the reading
/// constructor reads and the attributes InitializeMetadata registers all come from it, so the
/// archive form and the registry cannot disagree. Derived also supplies ClassName and TypeId();
/// Parent is the class level it is registered under and writes first.
///
/// Derived's reading constructor reads its fields once its members exist:
/// \code
///   explicit X(const cls_ReadVisitor& reader) : UTI_FieldError(reader) { ReadFields(reader); }
/// \endcode
/// A record without one of the fields raises nex_TextException from there.
#include <UTI_FieldTable.h>
#include <cls_ClassRegistrar.h>
#include <cls_TypeAdapter.h>
#include <cls_Uid.h>
#include <nex_Raisable.h>

template <class Derived, class Parent>
class UTI_FieldError : public nex_Raisable<Derived, Parent> {
  using Raisable = nex_Raisable<Derived, Parent>;

public:
  /// Writes the object through writer: its class level, and its parent classes' levels within it.
  void DBWrite(const cls_WriteVisitor& writer) const override {
    if (!writer.template StartLevel<Parent>(Derived::TypeId(), m_Uid, *this)) return;
    Derived::Fields().Write(writer, static_cast<const Derived&>(*this));
  }

  /// Registers the class (name, version, parent) with registrar, so archives can read it back.
  static void InitializeMetadata(cls_ClassRegistrar& registrar) {
    Derived::Fields().Register(registrar.AddClassMD(
        new cls_TypeAdapter<Derived>(Derived::ClassName, 800, Parent::TypeId())));
  }

protected:
  /// The identity of Derived's level: null unless Derived hands one out.
  explicit UTI_FieldError(cls_Uid uid = cls_Uid()) noexcept : m_Uid(uid) {}
  /// Reads the parent level and this level's identity.
  explicit UTI_FieldError(const cls_ReadVisitor& reader)
      : Raisable(cls_ReadVisitor(reader, Parent::TypeId())), m_Uid(reader.Uid()) {}

  /// Reads Derived's fields (its Fields() table) into this object.
  void ReadFields(const cls_ReadVisitor& reader) {
    Derived::Fields().Read(reader, static_cast<Derived&>(*this));
  }

private:
  cls_Uid m_Uid;
};

/// @}
