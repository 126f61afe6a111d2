#include <aio_ostream.h>
#include <omu_Deprecation.h>

namespace {
bool s_Allowed = false;
}

bool omu_Deprecation::IsAllowed() noexcept { return s_Allowed; }

void omu_Deprecation::SetAllowed(bool allowed) noexcept { s_Allowed = allowed; }

void omu_Deprecation::Notice(const cow_String& old, const cow_String& replacement) {
  aio_cerr() << "Warning: '" << old << "' is deprecated";
  if (!replacement.IsEmpty()) aio_cerr() << "; use '" << replacement << "' instead";
  aio_cerr() << ".\n";
  aio_cerr().Flush();
}
