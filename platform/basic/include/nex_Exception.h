#pragma once
/// \addtogroup basic
/// @{

/// \class nex_Exception
/// Root of every failure of the application. Raise with NEX_THROW (or nex_Exception::Throw),
/// which records the source path and line; re-raise through a base reference with Propagate(),
/// which keeps the most-derived type; keep beyond a handler with Copy().
///
/// Threads: an exception does not change once built, except through SetSource and assignment.
/// Its const operations (what(), the reports, Copy, Propagate, DBWrite) may be called on one
/// exception from several threads at once; SetSource and assignment need the one owner. This
/// holds for every class derived from it in this library.
#include <BASIC_Export.h>
#include <atr_String.h>
#include <cls_Uid.h>

#include <exception>
#include <type_traits>

class cls_ClassRegistrar;
class cls_ReadVisitor;
class cls_WriteVisitor;

class BASIC_EXPORT nex_Exception : public std::exception {
public:
  nex_Exception() noexcept = default;
  /// Copies share the report's text, so copying (as every throw does) allocates nothing.
  nex_Exception(const nex_Exception& other) noexcept = default;
  /// Shares the report's text, as copying does.
  nex_Exception& operator=(const nex_Exception& other) noexcept = default;
  ~nex_Exception() override;

  /// The report with its source location, for developers and logs.
  virtual atr_String DeveloperReport() const;
  /// The report as a user sees it.
  virtual atr_String UserReport() const;
  /// The error's own text, without source location; what the reports are made of.
  virtual atr_String AsString() const = 0;
  /// Raises a copy of this exception as its most-derived type, with its report fixed.
  [[noreturn]] virtual void Propagate() const = 0;
  /// A new heap copy of the most-derived type, owned by the caller.
  virtual nex_Exception* Copy() const = 0;
  /// The type identifier of the most-derived class.
  virtual unsigned int DynTypeId() const;
  /// Writes the object through writer: its class level, and its parent classes' levels within it.
  virtual void DBWrite(const cls_WriteVisitor& writer) const;

  /// DeveloperReport() as fixed when the exception was raised (Throw, NEX_THROW, Propagate) or
  /// read back from an archive; the text lives as long as the exception and every copy carries
  /// it. An exception only constructed, never raised, answers "nex_Exception".
  const char* what() const noexcept override;
  /// The source path the exception was raised from; "" until raised.
  const char* SourcePath() const noexcept { return m_SourcePath; }
  /// The source line it was raised from; 0 until raised.
  int SourceLine() const noexcept { return m_SourceLine; }
  /// Records where the exception is raised and fixes its report for what().
  void SetSource(const char* path, int line) noexcept;

  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept;
  /// Registers the class (name, version, parent) with registrar, so archives can read it back.
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

  /// Records path and line in exception, fixes its report and throws it (as E).
  template <class E>
  [[noreturn]] static void Throw(E exception, const char* path, int line) {
    static_assert(std::is_base_of_v<nex_Exception, E>, "only nex_Exception kinds are raised");
    exception.SetSource(path, line);
    throw exception;
  }

  /// Fixes the report for what() unless it already is; called on a fully built exception as
  /// it is raised or read back, since the report comes from the most-derived class.
  void FixReport() noexcept;

protected:
  /// Reads the object back from the record reader is at.
  explicit nex_Exception(const cls_ReadVisitor& reader);

private:
  const char* m_SourcePath = "";  ///< a literal: raisers pass fixed paths
  int m_SourceLine = 0;
  cls_Uid m_Uid;
  atr_String m_What;  ///< what(); empty until raised
};

/// Raises exception from the given source path, recording this line.
#define NEX_THROW(exception, path) nex_Exception::Throw((exception), (path), __LINE__)

/// @}
