#include <omu_Arguments.h>
#include <omu_Get.h>
#include <omu_PrimSequence.h>
#include <omu_PrimTuple.h>

#include <algorithm>

namespace {
constexpr int kInnerCapacity = 40;

// True when the source's last read took a value: it neither failed nor ran past the end.
bool TookValue(const omu_PrimTuple& source) {
  return source.ErrorArg() == 0 && source.Cursor() <= source.Size();
}

// The length of element i when it is a sequence, else -1.
int LengthOf(const omu_PrimTuple& rows, int i) {
  const auto* row = dynamic_cast<const omu_PrimSequence*>(rows.Index(i));
  return row ? row->Size() : -1;
}

// Reads the next row of rows as a tuple; a row that is not one raises at once.
omu_PrimTuple NextRow(omu_PrimTuple& rows) {
  omu_PrimTuple row(kInnerCapacity);
  rows.Get(row);
  if (rows.ErrorArg() != 0) rows.End(cow_String());
  return row;
}

template <class T>
void ReadElements(omu_PrimTuple& inner, cow_List<T>& out) {
  out.Clear();
  inner.Begin();
  for (int i = 0; i < inner.Size(); ++i) {
    T value{};
    inner.Get(value);
    out.Append(value);
  }
  inner.End(cow_String());
}

template <class T>
void ReadRows(omu_PrimTuple& rows, cow_2DArray<T>& out) {
  const int columns = rows.Size() > 0 ? LengthOf(rows, 0) : 0;
  if (columns == 0) return;  // an empty first row: nothing to read
  out.Resize(rows.Size(), std::max(columns, 0), T{});
  rows.Begin();
  for (int r = 0; r < rows.Size(); ++r) {
    omu_PrimTuple row = NextRow(rows);
    row.Begin();
    for (int c = 0; c < columns; ++c) row.Get(out.Get(r, c));
    row.End(cow_String());
  }
  rows.End(cow_String());
}

template <class T>
void ReadRaggedRows(omu_PrimTuple& rows, cow_2DArray<T>& out) {
  int longest = 0;
  for (int r = 0; r < rows.Size(); ++r) longest = std::max(longest, LengthOf(rows, r));
  out.Resize(rows.Size(), 1 + longest, T{});
  rows.Begin();
  for (int r = 0; r < rows.Size(); ++r) {
    omu_PrimTuple row = NextRow(rows);
    out.Get(r, 0) = static_cast<T>(row.Size());
    row.Begin();
    for (int c = 0; c < row.Size(); ++c) row.Get(out.Get(r, c + 1));
    row.End(cow_String());
  }
  rows.End(cow_String());
}

// Reads the argument of args under keyword as a tuple and, when that worked, hands it to
// read through a binder of its own, so that its faults raise from there.
template <class Read>
void ReadNested(omu_Arguments& args, const cow_String& keyword, Read&& read) {
  omu_PrimTuple value(kInnerCapacity);
  const bool readable = args.ErrorArg() == 0;
  args.Get(value, keyword);
  if (!readable || args.ErrorOnPrevious()) return;
  omu_Arguments nested(1);
  nested.Put(value);
  nested.Begin();
  read(static_cast<omu_PrimTuple&>(nested));
  nested.End(cow_String());
}
}  // namespace

template <class T>
void omu_Get(omu_PrimTuple& source, cow_List<T>& out) {
  omu_PrimTuple inner(kInnerCapacity);
  source.Get(inner);
  if (TookValue(source)) ReadElements(inner, out);
}

template <class T>
void omu_Get(omu_Arguments& args, cow_List<T>& out, const cow_String& keyword) {
  ReadNested(args, keyword, [&out](omu_PrimTuple& nested) { omu_Get(nested, out); });
}

template <class T>
void omu_Get(omu_PrimTuple& source, cow_2DArray<T>& out) {
  omu_PrimTuple rows(kInnerCapacity);
  source.Get(rows);
  if (TookValue(source)) ReadRows(rows, out);
}

template <class T>
void omu_Get(omu_Arguments& args, cow_2DArray<T>& out, const cow_String& keyword) {
  ReadNested(args, keyword, [&out](omu_PrimTuple& nested) { omu_Get(nested, out); });
}

template <class T>
void omu_GetIrregular(omu_PrimTuple& source, cow_2DArray<T>& out) {
  omu_PrimTuple rows(kInnerCapacity);
  source.Get(rows);
  if (TookValue(source)) ReadRaggedRows(rows, out);
}

template <class T>
void omu_GetIrregular(omu_Arguments& args, cow_2DArray<T>& out, const cow_String& keyword) {
  ReadNested(args, keyword, [&out](omu_PrimTuple& nested) { omu_GetIrregular(nested, out); });
}

#define OMU_GET_INSTANCES(T)                                                         \
  template CVX_EXPORT void omu_Get(omu_PrimTuple&, cow_List<T>&);                    \
  template CVX_EXPORT void omu_Get(omu_Arguments&, cow_List<T>&, const cow_String&); \
  template CVX_EXPORT void omu_Get(omu_PrimTuple&, cow_2DArray<T>&);                 \
  template CVX_EXPORT void omu_Get(omu_Arguments&, cow_2DArray<T>&, const cow_String&);
OMU_GET_INSTANCES(int)
OMU_GET_INSTANCES(double)
OMU_GET_INSTANCES(cow_String)
#undef OMU_GET_INSTANCES
template CVX_EXPORT void omu_GetIrregular(omu_PrimTuple&, cow_2DArray<double>&);
template CVX_EXPORT void omu_GetIrregular(omu_Arguments&, cow_2DArray<double>&, const cow_String&);
