#pragma once
/// \addtogroup basic
/// @{

/// \class cls_DoublesSource
/// A block of doubles that its owner produces when the archive is encoded, rather than a copy
/// held in memory beside the file form (cls_Value::DOUBLES_SOURCE). An object with a million
/// numbers spread over its own storage writes through one: saving it then holds one buffer of
/// its numbers, the file's, instead of two.
///
/// A source must keep what it reads alive and unchanged until the archive is gone, as a
/// shared copy-on-write snapshot does. It is read by the thread reading the archive, and by
/// several at once once the archive is written, so CopyTo must not change the source.
#include <cstddef>

class cls_DoublesSource {
public:
  virtual ~cls_DoublesSource() = default;
  /// The shape of the block, rows x columns, neither negative.
  ///@{
  virtual int Rows() const noexcept = 0;
  virtual int Columns() const noexcept = 0;
  ///@}
  /// Copies count cells from cell first on (row-major) into out; the range lies in the block.
  virtual void CopyTo(std::size_t first, std::size_t count, double* out) const noexcept = 0;
};

/// @}
