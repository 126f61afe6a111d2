#pragma once
/// \addtogroup basic
/// @{

/// \class cls_WriteVisitor
/// Writes objects into an archive's record tree. A class level writes itself as
/// \code
///   if (!writer.StartLevel<Parent>(TypeId(), m_Uid, *this)) return;   // or StartWrite at a root
///   writer.Write("name", value); ...
/// \endcode
/// Every object is written in full, even when its uid was written before in this pass: the
/// archive file stores a record identical to one written earlier under the same uid as a
/// reference to it, so an unchanged object shared by several owners is stored once, while a copy
/// changed since keeps its own contents under an identity of its own. StartWrite therefore
/// answers true; records nested deeper than an archive can read back (cls_Archive::MaxDepth, an
/// object that writes itself) raise nex_TextException instead.
/// A writer and the archive it fills belong to one thread.
#include <BASIC_Export.h>
#include <cls_Value.h>

#include <vector>

class cls_Archive;

class BASIC_EXPORT cls_WriteVisitor {
public:
  /// A writer for one more top-level record of the archive.
  explicit cls_WriteVisitor(cls_Archive& archive);
  /// A writer for the parent class level of the record that outer is writing.
  cls_WriteVisitor(const cls_WriteVisitor& outer, unsigned int parentTypeId);

  /// Starts the record of a class level typeId for the object uid; answers true (see the class).
  bool StartWrite(unsigned int typeId, const cls_Uid& uid) const;
  /// StartWrite, then self's Parent level written nested through Parent::DBWrite.
  template <class Parent, class Self>
  bool StartLevel(unsigned int typeId, const cls_Uid& uid, const Self& self) const {
    if (!StartWrite(typeId, uid)) return false;
    self.Parent::DBWrite(cls_WriteVisitor(*this, Parent::TypeId()));
    return true;
  }

  /// Writes the field name of the record started.
  ///@{
  void Write(const char* name, cls_Value value) const;
  void Write(const char* name, const atr_StringBase& text) const;
  void Write(const char* name, const char* text) const;
  ///@}
  /// Writes an enumerator field by its name.
  void WriteEnum(const char* name, const cow_String& enumeratorName) const;
  /// A plain value in place of a record: an item of a list of values.
  void WriteValue(cls_Value value) const;

  /// A nested object written by its own DBWrite (a record, or a reference to one).
  template <class T>
  void WriteObject(const char* name, const T& object) const {
    object.DBWrite(Field(name));
  }
  /// A nested object of a registered class known only by its type identifier; null
  /// writes an empty value.
  void WriteObject(const char* name, unsigned int typeId, const void* object) const;
  /// A list of nested objects: write(i, writer) writes item i through writer.
  template <class WriteItem>
  void WriteObjects(const char* name, int count, WriteItem&& writeItem) const {
    cls_Value::List& items = BeginList(name, count);
    for (int i = 0; i < count; ++i) writeItem(i, Item(items));
  }

  /// The class level of the record being written.
  unsigned int CurrentTypeId() const noexcept;

private:
  cls_WriteVisitor(const cls_WriteVisitor& outer, cls_Value* slot, int levels) noexcept
      : m_Archive(outer.m_Archive),
        m_Slot(slot),
        m_ExpectedTypeId(0),
        m_Depth(outer.m_Depth + levels) {}
  cls_WriteVisitor Field(const char* name) const;
  cls_WriteVisitor Item(cls_Value::List& items) const;
  cls_Value::List& BeginList(const char* name, int count) const;
  cls_Record& Current() const;

  cls_Archive* m_Archive;
  cls_Value* m_Slot;              ///< where StartWrite puts the record or the reference
  unsigned int m_ExpectedTypeId;  ///< 0: any class
  int m_Depth = 0;  ///< how deep its slot lies in the archive's values, as the reader counts
  mutable cls_Record* m_Current = nullptr;
};

/// @}
