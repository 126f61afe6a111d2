// The argument binder fed random calls: positional values and keyword values of random kinds,
// then a random sequence of reads. Only the documented scripting errors may escape, and only
// from End (or a name read by keyword); nothing may crash.
#include "FuzzInput.h"

#include <omu_Arguments.h>
#include <omu_CorNameErrorException.h>
#include <omu_Get.h>
#include <omu_PrimNone.h>
#include <omu_TypeErrorException.h>

#include <cstddef>
#include <cstdint>

namespace {
constexpr const char* kKeywords[] = {"a", "b", "c", "flag", "name", "points"};

const char* Keyword(FuzzInput& in) { return kKeywords[in.Byte() % std::size(kKeywords)]; }

// Stores one random value, by position (keyword null) or by keyword.
void PutValue(omu_Arguments& args, FuzzInput& in, const char* keyword) {
  auto put = [&](const auto& value) { keyword ? args.Put(value, keyword) : args.Put(value); };
  switch (in.Byte() % 7) {
    case 0:
      put(static_cast<int>(static_cast<std::int8_t>(in.Byte())));
      break;
    case 1:
      put(in.Byte() / 8.0);
      break;
    case 2:
      put(cow_String(in.Byte() % 2 ? "Part-1" : "bad name."));
      break;
    case 3:
      put(in.Byte() % 2 == 0);
      break;
    case 4:
      put(cow_List<double>{1.0, in.Byte() / 4.0});
      break;
    case 5:
      put(cow_List<cow_String>{"x", "y"});
      break;
    default:
      put(omu_PrimNone());
      break;
  }
}

void Read(omu_Arguments& args, FuzzInput& in) {
  const char* keyword = Keyword(in);
  switch (in.Byte() % 10) {
    case 0: {
      int v = 0;
      args.Get(v, keyword);
      break;
    }
    case 1: {
      double v = 0;
      args.Get(v, keyword);
      break;
    }
    case 2: {
      cow_String v;
      args.Get(v, keyword);
      break;
    }
    case 3: {
      bool v = false;
      args.Get(v, keyword);
      break;
    }
    case 4: {
      cow_List<double> v;
      omu_Get(args, v, cow_String(keyword));
      break;
    }
    case 5: {
      omu_CorvexName v;
      args.Get(v, keyword);
      break;
    }
    case 6:
      args.Optional();
      break;
    case 7:
      args.Alternative();
      break;
    case 8:
      (void)args.Error();
      (void)args.ErrorOnPrevious();
      break;
    default: {
      int v = 0;
      args.Get(v);
      break;
    }
  }
}
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzInput in(data, size);
  const int positional = in.Byte() % 6;
  omu_Arguments args(positional);
  for (int i = 0; i < positional; ++i) PutValue(args, in, nullptr);
  for (int i = in.Byte() % 5; i > 0; --i) PutValue(args, in, Keyword(in));
  (void)args.AsString(0);
  try {
    args.Begin();
    while (!in.Empty()) Read(args, in);
    args.End("f");
  } catch (const omu_TypeErrorException&) {
  } catch (const omu_CorNameErrorException&) {
  }
  return 0;
}
