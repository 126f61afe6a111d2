#pragma once
/// \addtogroup wip
/// @{

/// \class wip_InterruptException
/// Raised by a reporter's InterruptedThrow when the user asked the running operation to stop.
/// It is a text exception (and persists as one: the wip module registers no classes), so
/// handlers of nex_TextException see it too, while a caller may catch it on its own.
#include <CVX_Export.h>
#include <nex_TextException.h>

class CVX_EXPORT wip_InterruptException
    : public nex_Raisable<wip_InterruptException, nex_TextException> {
public:
  wip_InterruptException() : nex_Raisable(atr_String("Operation interrupted by the user.")) {}
};

/// @}
