#pragma once
/// \addtogroup basic
/// @{

/// \class utl_FilePath
/// A file-system path as the application passes it around: its text, unchanged. It does not
/// touch the file system.
#include <cow_String.h>

class utl_FilePath {
public:
  utl_FilePath() noexcept = default;
  /// The path as given; not checked or normalised.
  explicit utl_FilePath(const cow_String& path) : m_Path(path) {}

  /// The path's text.
  const cow_String& Text() const noexcept { return m_Path; }
  /// True for the empty path.
  bool IsEmpty() const noexcept { return m_Path.IsEmpty(); }
  friend bool operator==(const utl_FilePath&, const utl_FilePath&) = default;

private:
  cow_String m_Path;
};

/// @}
