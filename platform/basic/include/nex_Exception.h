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
  nex_Exception& operator=(const nex_Exception& other) noexcept = default;
  ~nex_Exception() override;

  /// The report with its source location, for developers and logs.
  virtual atr_String DeveloperReport() const;
  /// The report as a user sees it.
  virtual atr_String UserReport() const;
  virtual atr_String AsString() const = 0;
  [[noreturn]] virtual void Propagate() const = 0;
  virtual nex_Exception* Copy() const = 0;
  virtual unsigned int DynTypeId() const;
  virtual void DBWrite(const cls_WriteVisitor& writer) const;

  /// DeveloperReport() as fixed when the exception was raised (Throw, NEX_THROW, Propagate) or
  /// read back from an archive; the text lives as long as the exception and every copy carries
  /// it. An exception only constructed, never raised, answers "nex_Exception".
  const char* what() const noexcept override;
  const char* SourcePath() const noexcept { return m_SourcePath; }
  int SourceLine() const noexcept { return m_SourceLine; }
  /// Records where the exception is raised and fixes its report for what().
  void SetSource(const char* path, int line) noexcept;

  static unsigned int TypeId() noexcept;
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

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
