#pragma once
// Root of every failure of the application. Raise with NEX_THROW (or nex_Exception::Throw),
// which records the source path and line; re-raise through a base reference with Propagate(),
// which keeps the most-derived type; keep beyond a handler with Copy().
#include <BASIC_Export.h>
#include <atr_String.h>
#include <cls_Uid.h>

#include <exception>
#include <string>
#include <type_traits>

class cls_ClassRegistrar;
class cls_ReadVisitor;
class cls_WriteVisitor;

class BASIC_EXPORT nex_Exception : public std::exception {
public:
  nex_Exception() noexcept = default;
  nex_Exception(const nex_Exception& other);
  nex_Exception& operator=(const nex_Exception& other);
  ~nex_Exception() override;

  // The report with its source location, for developers and logs.
  virtual atr_String DeveloperReport() const;
  // The report as a user sees it.
  virtual atr_String UserReport() const;
  virtual atr_String AsString() const = 0;
  [[noreturn]] virtual void Propagate() const = 0;
  virtual nex_Exception* Copy() const = 0;
  virtual unsigned int DynTypeId() const;
  virtual void DBWrite(const cls_WriteVisitor& writer) const;

  const char* what() const noexcept override;
  const char* SourcePath() const noexcept { return m_SourcePath; }
  int SourceLine() const noexcept { return m_SourceLine; }
  void SetSource(const char* path, int line) noexcept;

  static unsigned int TypeId() noexcept;
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

  template <class E>
  [[noreturn]] static void Throw(E exception, const char* path, int line) {
    static_assert(std::is_base_of_v<nex_Exception, E>, "only nex_Exception kinds are raised");
    exception.SetSource(path, line);
    throw exception;
  }

protected:
  explicit nex_Exception(const cls_ReadVisitor& reader);

private:
  const char* m_SourcePath = "";  // a literal: raisers pass fixed paths
  int m_SourceLine = 0;
  cls_Uid m_Uid;
  mutable std::string m_What;
};

// Raises exception from the given source path, recording this line.
#define NEX_THROW(exception, path) nex_Exception::Throw((exception), (path), __LINE__)
