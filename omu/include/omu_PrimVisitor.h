#pragma once
/// \addtogroup omu
/// @{

/// \class omu_PrimVisitor
/// Dispatch on the concrete kind of a primitive: Accept calls the one Visit overload for its
/// kind. Every Visit does nothing unless overridden, so a visitor names only what it handles.
#include <CVX_Export.h>
#include <cow_String.h>

class omu_PrimNumber;
class omu_PrimString;
class omu_PrimTranslatedString;
class omu_PrimArray;
class omu_PrimTuple;
class omu_PrimList;
class omu_PrimPath;
class omu_PrimEnumBase;
template <int N>
class omu_PrimBool;
class omu_PrimBoolean;
class omu_PrimNone;
class omu_PrimType;
class omu_PrimComplex;
class omu_InterfaceObj;
template <class K>
class omu_DictIntObjABC;
template <class K>
class omu_PrimDictionary;
class omu_SeqIntObj;

class CVX_EXPORT omu_PrimVisitor {
public:
  virtual ~omu_PrimVisitor();
  /// Called by Accept for a value of that kind; does nothing unless overridden.
  ///@{
  virtual void Visit(const omu_PrimNumber&) {}
  virtual void Visit(const omu_PrimString&) {}
  virtual void Visit(const omu_PrimTranslatedString&) {}
  virtual void Visit(const omu_PrimArray&) {}
  virtual void Visit(const omu_PrimTuple&) {}
  virtual void Visit(const omu_PrimList&) {}
  virtual void Visit(const omu_PrimPath&) {}
  virtual void Visit(const omu_PrimEnumBase&) {}
  virtual void Visit(const omu_PrimBool<2>&) {}
  virtual void Visit(const omu_PrimBoolean&) {}
  virtual void Visit(const omu_PrimNone&) {}
  virtual void Visit(const omu_PrimType&) {}
  virtual void Visit(const omu_PrimComplex&) {}
  virtual void Visit(const omu_InterfaceObj&) {}
  virtual void Visit(const omu_DictIntObjABC<int>&) {}
  virtual void Visit(const omu_DictIntObjABC<cow_String>&) {}
  virtual void Visit(const omu_DictIntObjABC<omu_PrimEnumBase>&) {}
  virtual void Visit(const omu_PrimDictionary<int>&) {}
  virtual void Visit(const omu_PrimDictionary<cow_String>&) {}
  virtual void Visit(const omu_SeqIntObj&) {}
  ///@}

protected:
  omu_PrimVisitor() = default;
};

/// @}
