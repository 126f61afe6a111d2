#include "omu_ClassTable.h"

#include <omu_AccessErrorException.h>
#include <omu_ArgNumberErrorException.h>
#include <omu_ArgTypeErrorException.h>
#include <omu_AttributeErrorException.h>
#include <omu_CorNameErrorException.h>
#include <omu_FontErrorException.h>
#include <omu_GenericTypeErrorException.h>
#include <omu_GuiAccessErrorException.h>
#include <omu_IndexErrorException.h>
#include <omu_KeyErrorException.h>
#include <omu_KeywordErrorException.h>
#include <omu_KeywordTypeErrorException.h>
#include <omu_NameErrorException.h>
#include <omu_OverflowErrorException.h>
#include <omu_PrimArray.h>
#include <omu_PrimBool.h>
#include <omu_PrimBoolean.h>
#include <omu_PrimComplex.h>
#include <omu_PrimDictionary.h>
#include <omu_PrimEnumBase.h>
#include <omu_PrimException.h>
#include <omu_PrimExpr.h>
#include <omu_PrimList.h>
#include <omu_PrimNone.h>
#include <omu_PrimNumber.h>
#include <omu_PrimPath.h>
#include <omu_PrimString.h>
#include <omu_PrimTranslatedString.h>
#include <omu_PrimType.h>
#include <omu_PrimWrapper.h>
#include <omu_QueryPathMsg.h>
#include <omu_RangeErrorException.h>
#include <omu_TextRepr.h>
#include <omu_TypeErrorException.h>
#include <omu_TypeRegistryCache.h>
#include <omu_ValueErrorException.h>
#include <omu_ZeroDivisionErrorException.h>

#include <UTI_CaeUtils.h>
#include <UTI_ModuleStartup.h>
#include <UTI_Modules.h>
#include <omi_UseCounter.h>

namespace {
omi_UseCounter s_Uses;

template <class T>
constexpr UTI_Registration Register(int phase) {
  return {&T::InitializeMetadata, phase};
}

// The module's process-wide singletons: made on start, on the starting thread, so that threads
// that only read them never race to make them; released in this order on the last finalise.
struct Singleton {
  void (*make)();
  void (*release)() noexcept;
};
constexpr Singleton kSingletons[] = {
    {[] { omu_TextRepr::Instance(); }, &omu_TextRepr::Release},
    {[] { omu_TypeRegistryCache::Instance(); }, &omu_TypeRegistryCache::Release},
};

void Start() {
  UTI_StartModule(omu_ModuleNumber, typ_ArchCompEntry(omu_ClassTable),
                  {
                      Register<omu_ArgNumberErrorException>(2),
                      Register<omu_ArgTypeErrorException>(2),
                      Register<omu_GenericTypeErrorException>(2),
                      Register<omu_KeywordErrorException>(2),
                      Register<omu_KeywordTypeErrorException>(2),
                      Register<omu_TypeErrorException>(2),
                      Register<omu_CorNameErrorException>(2),
                      Register<omu_AttributeErrorException>(2),
                      Register<omu_RangeErrorException>(2),
                      Register<omu_AccessErrorException>(2),
                      Register<omu_FontErrorException>(2),
                      Register<omu_GuiAccessErrorException>(2),
                      Register<omu_IndexErrorException>(2),
                      Register<omu_KeyErrorException>(2),
                      Register<omu_NameErrorException>(2),
                      Register<omu_OverflowErrorException>(2),
                      Register<omu_ValueErrorException>(2),
                      Register<omu_ZeroDivisionErrorException>(2),
                      Register<omu_Primitive>(7),
                      Register<omu_PrimNumber>(3),
                      Register<omu_PrimString>(3),
                      Register<omu_PrimEnumBase>(7),
                      Register<omu_PrimDictionaryBase>(3),
                      Register<omu_PrimDictionary<cow_String>>(3),
                      Register<omu_PrimBoolean>(2),
                      Register<omu_PrimType>(2),
                      Register<omu_PrimNone>(2),
                      Register<omu_PrimPath>(2),
                      Register<omu_PrimComplex>(2),
                      Register<omu_PrimExpr>(2),
                      Register<omu_PrimTranslatedString>(2),
                      Register<omu_PrimSequence>(2),
                      Register<omu_PrimTuple>(2),
                      Register<omu_PrimList>(2),
                      Register<omu_PrimArray>(2),
                      Register<omu_PrimDictionary<int>>(2),
                      Register<omu_PrimWrapper>(2),
                      Register<omu_PrimException>(2),
                      {&omu_InitializeBoolConstants, 2},  // omu_OnOffConst and its two siblings
                      Register<omu_QueryPathMsg>(2),
                  });
  for (const Singleton& singleton : kSingletons) singleton.make();
}

void Stop() {
  for (const Singleton& singleton : kSingletons) singleton.release();
  UTI_StopModule(omu_ModuleNumber);
}
}  // namespace

void omu_initialize(int& count) { s_Uses.Initialize(count, Start); }
void omu_finalize(int& count) { s_Uses.Finalize(count, Stop); }
